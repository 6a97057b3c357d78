// The manager's command, as the windows know it.
#ifndef ZN_HOST_MANAGER_COMMAND_H
#define ZN_HOST_MANAGER_COMMAND_H

#include <tcl.h>

namespace znhost {

/// Scripts may rename or delete the command, whose name is theirs to use. What it does is there as long as
/// the manager, so that windows go on without it.
struct ManagerCommand {
    Tcl_Command token = nullptr; ///< null when a script has deleted it
    Tcl_ObjCmdProc* procedure = nullptr;
    ClientData data = nullptr;
};

} // namespace znhost

#endif
