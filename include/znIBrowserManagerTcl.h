// What the host may ask of the manager.
#ifndef ZNI_BROWSER_MANAGER_TCL_H
#define ZNI_BROWSER_MANAGER_TCL_H

#include "host/znutl/znString.h"

#include <vector>

struct Tcl_Interp;
struct Tcl_Obj;
class znIBrowserViewItemFreeFolder;

/// The host's view of the manager: the command itself, and the services by which the host reaches Tcl
/// scripts. The order of the operations is part of the interface.
class znIBrowserManagerTcl {
public:
    /// The body of the "znbrowsermanager" command. `objv[0]` is the command word; the interpreter result
    /// receives the answer.
    /// @return TCL_ERROR in the few cases that raise a Tcl error, else TCL_OK.
    virtual int EvalTclCommand(int objc, Tcl_Obj* const objv[]) = 0;
    /// Evaluates a script. The interpreter result is the script's.
    /// @return false, with an error text, for a null script and for one that ends with an error.
    virtual bool EvalTclScript(const char* script) = 0;
    virtual ~znIBrowserManagerTcl() = default;
    /// Calls a Tcl procedure, with one quoted argument unless `argument` is empty, and gives its result.
    /// A null name succeeds and changes nothing.
    virtual bool GetStringFromScript(const char* procName, znString& result, znString argument) = 0;
    /// The name of the current view; "" when there is none, never null.
    virtual const char* GetCurrentView() const = 0;
    /// The interpreter of the application.
    virtual Tcl_Interp* GetTclInterp() const = 0;
    /// Hands a popup's input script to "::znbrowser::UpdatePopupInputScript". A null script does nothing.
    virtual bool UpdateTclInputScript(const char* script) = 0;
    /// Tells the scripts which free folders are selected now: calls
    /// "::znbrowser::ResetSelectedFreeFoldersArray", then "::znbrowser::AddToSelectedFreeFoldersArray" for
    /// each.
    virtual bool UpdateTclFreeFolderSelection(const std::vector<znIBrowserViewItemFreeFolder*>& folders) = 0;
};

#endif
