// What the host may ask of the manager.
#ifndef ZNI_BROWSER_MANAGER_TCL_H
#define ZNI_BROWSER_MANAGER_TCL_H

#include "host/znutl/znString.h"

#include <vector>

struct Tcl_Interp;
struct Tcl_Obj;
class znIBrowserViewItemFreeFolder;

/// The host's view of the manager: the command itself, and the services by which the host reaches Tcl
/// scripts. The order of the operations is part of the interface. The client data of the command
/// "znbrowsermanager", as Tcl_GetCommandInfo tells it, is a pointer to this class.
class znIBrowserManagerTcl {
public:
    /// The body of the "znbrowsermanager" command. `objv[0]` is the command word; the interpreter result
    /// receives the answer.
    /// @return TCL_ERROR in the few cases that raise a Tcl error, else TCL_OK.
    virtual int EvalTclCommand(int objc, Tcl_Obj* const objv[]) = 0;
    /// Evaluates a script. The interpreter result is the script's, or Tcl's message.
    /// @return false, with an error text, for a null script and for one that ends with an error.
    virtual bool EvalTclScript(const char* script) = 0;
    virtual ~znIBrowserManagerTcl() = default;
    /// Calls a Tcl procedure, with `argument` in double quotes unless it is empty, and gives its result. The
    /// argument arrives as it is: what Tcl would substitute in it is escaped. A null name succeeds and
    /// changes nothing.
    /// @return false, with an error text, when the procedure fails; `result` stays as it was then.
    virtual bool GetStringFromScript(const char* procName, znString& result, znString argument) = 0;
    /// The name of the current view, valid as long as the view; "" when there is none, never null.
    virtual const char* GetCurrentView() const = 0;
    /// The interpreter of the application, which owns it.
    virtual Tcl_Interp* GetTclInterp() const = 0;
    /// Hands a popup's input script to "::znbrowser::UpdatePopupInputScript", in double quotes, with a blank
    /// before and behind it; nothing in it is substituted. A null script succeeds and does nothing.
    /// @return false, with an error text, when the procedure fails.
    virtual bool UpdateTclInputScript(const char* script) = 0;
    /// Tells the scripts which free folders are selected now: calls
    /// "::znbrowser::ResetSelectedFreeFoldersArray", then, for each folder in order,
    /// "::znbrowser::AddToSelectedFreeFoldersArray" with its name in double quotes, set off by blanks;
    /// nothing in the name is substituted.
    /// @return false, with an error text, at the first call that fails, and at a null folder.
    virtual bool UpdateTclFreeFolderSelection(const std::vector<znIBrowserViewItemFreeFolder*>& folders) = 0;
};

#endif
