// The words "app rows" and "app draw": what a window shows, for scripts and as a text.
#ifndef ZN_HOST_ROW_APP_COMMANDS_H
#define ZN_HOST_ROW_APP_COMMANDS_H

namespace znhost {

class AppCall;
enum class RowKind;

/// "folder", "tree", "list" or "item".
const char* KindName(RowKind kind);

/// "rows WINDOW ?FIRST COUNT?": a dictionary for each row.
int AnswerRows(AppCall& call);
/// "draw WINDOW": the rows as a table.
int AnswerDraw(AppCall& call);

} // namespace znhost

#endif
