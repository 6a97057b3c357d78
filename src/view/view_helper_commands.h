// The words of the view helper.
#ifndef VIEW_HELPER_COMMANDS_H
#define VIEW_HELPER_COMMANDS_H

class Call;
struct CommandLevel;

/// The words that may follow "view folder datasource", for completion.
extern const CommandLevel helperFolderDataSourceLevel;

/// Answers a whole "view ..." command by the helper: the words count from position 2.
void AnswerByViewHelper(Call& call);

#endif
