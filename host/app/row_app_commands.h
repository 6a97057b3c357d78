// The words "app rows" and "app draw": what a window shows, for scripts and as a text.
#ifndef ZN_HOST_ROW_APP_COMMANDS_H
#define ZN_HOST_ROW_APP_COMMANDS_H

#include <memory>

namespace znhost {

class AppCall;
class Window;
enum class RowKind;

/// The window that the first argument names, held; null, and the error stands in the interpreter, when there
/// is none.
std::shared_ptr<Window> WindowOf(AppCall& call);

/// "folder", "tree", "list" or "item".
const char* KindName(RowKind kind);

/// "rows WINDOW ?FIRST COUNT?": a dictionary for each row.
int AnswerRows(AppCall& call);
/// "draw WINDOW": the rows as a table.
int AnswerDraw(AppCall& call);
/// WINDOW ?BOOL?: whether the items of lists stand at the top
int AnswerFlat(AppCall& call);
int AnswerDetails(AppCall& call);
int AnswerChooser(AppCall& call);

} // namespace znhost

#endif
