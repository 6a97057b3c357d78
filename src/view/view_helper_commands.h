// The words of the view helper.
#ifndef VIEW_HELPER_COMMANDS_H
#define VIEW_HELPER_COMMANDS_H

namespace znlayer {

class Call;
struct CommandLevel;

/// The words that may follow "view folder datasource".
extern const CommandLevel helperFolderDataSourceLevel;
/// The words that may follow "view dataitem select" and "deselect".
extern const CommandLevel helperSelectLevel;

/// Answers a whole "view ..." command by the helper: the words count from position 2.
void AnswerByViewHelper(Call& call);

} // namespace znlayer

#endif
