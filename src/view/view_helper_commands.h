// The view helper's words: those of views that connect data sources themselves.
#ifndef VIEW_HELPER_COMMANDS_H
#define VIEW_HELPER_COMMANDS_H

class Call;

/// Hands a whole command, "view ...", to the view helper and answers what it answers.
void AnswerByViewHelper(Call& call);

#endif
