// The Tcl package "znbrowser": the command znbrowsermanager, on the embedded host, in any Tcl 8.6. Its
// windows stand on the display where Tk has been loaded before. A safe interpreter gets nothing, as there is
// no Znbrowser_SafeInit: the host opens files.
#include "znBrowserHost.h"
#include "znBrowserVersion.h"

#include <tcl.h>

namespace {

constexpr const char* packageName = "znbrowser";

bool HasTk(Tcl_Interp* interp) {
    const bool present = Tcl_PkgPresent(interp, "Tk", nullptr, 0) != nullptr;
    Tcl_ResetResult(interp);
    return present;
}

} // namespace

extern "C" ZN_API int Znbrowser_Init(Tcl_Interp* interp) {
    if (!Tcl_InitStubs(interp, "8.6", 0)) return TCL_ERROR;
    znBrowserHost* const host = znBrowserHost::Attach(interp);
    if (!host) return TCL_ERROR;
    if (HasTk(interp) && !host->ShowWindows()) {
        Tcl_SetObjResult(interp, Tcl_ObjPrintf("no windows: %s", host->GetError()));
        znBrowserHost::Detach(interp);
        return TCL_ERROR;
    }
    return Tcl_PkgProvide(interp, packageName, ZN_BROWSER_VERSION);
}

/// For `unload`. The package can be required again afterwards. The code stays in memory until the program
/// ends, as texts of scripts may still hold what it has made of them.
extern "C" ZN_API int Znbrowser_Unload(Tcl_Interp* interp, int) {
    if (!znBrowserHost::Detach(interp)) return TCL_ERROR;
    return Tcl_Eval(interp, "package forget znbrowser");
}
