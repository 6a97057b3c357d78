// The host's own words about data: "znbrowsermanager app datactrl ..." and "app inputfield ...".
#ifndef ZN_HOST_DATA_APP_COMMANDS_H
#define ZN_HOST_DATA_APP_COMMANDS_H

namespace znhost {

class AppCall;

/// DATACTRL NAME TYPE: makes an input field. Answers the name.
int AppCreateInputField(AppCall& call);
/// DATACTRL NAME
int AppDeleteInputField(AppCall& call);

// Of a database as a whole.
int AppOpenToRead(AppCall& call);
int AppWrite(AppCall& call);
int AppFollow(AppCall& call);
int AppRefresh(AppCall& call);
int AppChanges(AppCall& call);
int AppUndo(AppCall& call);

} // namespace znhost

#endif
