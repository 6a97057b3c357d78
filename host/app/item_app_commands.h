// The "app" words about one item of a window.
#ifndef ZN_HOST_ITEM_APP_COMMANDS_H
#define ZN_HOST_ITEM_APP_COMMANDS_H

namespace znhost {

class AppCall;

int AnswerItem(AppCall& call);
int AnswerReferences(AppCall& call);
int AnswerReferring(AppCall& call);
int AnswerReveal(AppCall& call);

} // namespace znhost

#endif
