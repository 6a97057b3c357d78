// "datactrl ..." and "view datactrl ...".
#ifndef DATA_CTRL_COMMANDS_H
#define DATA_CTRL_COMMANDS_H

namespace znlayer {

class Call;
struct CommandLevel;

/// The words that may follow "view datactrl", for completion.
extern const CommandLevel viewDataCtrlLevel;

/// Answers "view datactrl ...", whose words begin at position 3.
void AnswerViewDataCtrl(Call& call);

} // namespace znlayer

#endif
