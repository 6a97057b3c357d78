// The words that tell of a database and its tables.
#ifndef ZN_HOST_TABLE_APP_COMMANDS_H
#define ZN_HOST_TABLE_APP_COMMANDS_H

namespace znhost {

class AppCall;

int AppFile(AppCall& call);
int AppTables(AppCall& call);

} // namespace znhost

#endif
