// The host's own words about a database as a whole: "znbrowsermanager app datactrl ...".
#ifndef ZN_HOST_DATABASE_APP_COMMANDS_H
#define ZN_HOST_DATABASE_APP_COMMANDS_H

namespace znhost {

class AppCall;

/// NAME FILE: a data control that only reads. Answers the name.
int AppOpenToRead(AppCall& call);
/// DATACTRL ?BOOL?: whether the database may be changed
int AppWrite(AppCall& call);
/// DATACTRL: whether others have changed it, of which windows are told
int AppFollow(AppCall& call);
/// DATACTRL: the same, and windows read anew in any case
int AppRefresh(AppCall& call);
/// DATACTRL: what people have changed in windows
int AppChanges(AppCall& call);
int AppUndo(AppCall& call);

} // namespace znhost

#endif
