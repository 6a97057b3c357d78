// The host's own words about saved states: "znbrowsermanager app state ...".
#ifndef ZN_HOST_STATE_APP_COMMANDS_H
#define ZN_HOST_STATE_APP_COMMANDS_H

namespace znhost {

class AppCall;

/// DATACTRL NAME: makes a state in which nothing is saved yet. Answers the name.
int AppCreateState(AppCall& call);
/// DATACTRL NAME: deletes a state with all it holds. It is not the current one afterwards.
int AppDeleteState(AppCall& call);
/// DATACTRL NAME: answers the entities kept with a state, in the order added.
int AppStateEntities(AppCall& call);
/// DATACTRL ?FILE?: answers the file in which the states are kept instead of the database; "" for none.
int AppStateFile(AppCall& call);
/// DATACTRL: answers the names of the states, in the order of their creation.
int AppStateNames(AppCall& call);

} // namespace znhost

#endif
