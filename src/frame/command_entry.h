// The entry from Tcl into the scripting layer.
#ifndef COMMAND_ENTRY_H
#define COMMAND_ENTRY_H

struct Tcl_Interp;
struct Tcl_Obj;

namespace znlayer {

/// The procedure behind "znbrowsermanager"; the client data is a `znIBrowserManagerTcl*`. Nothing that the
/// host throws passes through it: an exception in Tcl's frames would cost the interpreter a nesting level
/// each time.
int CommandProcedure(void* clientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]);

} // namespace znlayer

#endif
