// The root of the host: what a host hands to the manager's constructor.
#ifndef ZN_I_BROWSER_APPLICATION_H
#define ZN_I_BROWSER_APPLICATION_H

#include "host/znsigslot/znSignal.h"
#include <vector>

class znIBrowser;
class znIBrowserDataCtrl;

struct Tcl_Interp;
struct Tcl_Obj;

/// The host application. General contract of the host interfaces, here and in the neighbouring headers:
/// - Every object belongs to the host. The scripting layer keeps plain pointers and never deletes one; the
///   destructors are therefore protected.
/// - A C string that an operation returns belongs to the host, stays valid until the next change of the
/// object
///   that gave it, and may be null.
/// - An operation that returns bool answers false when the host refuses, and leaves its reason in the error
/// text
///   of the browser object (`znIBrowser::GetError`).
/// - An operation that fills a list replaces what the caller's list held.
/// - The order of the operations is part of the interface.
/// - A host may throw; the command procedure turns what it throws into an error text.
class znIBrowserApplication {
public:
    /// The data control of that name, or null.
    virtual znIBrowserDataCtrl* FindDataCtrl(const char* name) = 0;
    /// Every data control of the application, in the host's order.
    virtual void GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) = 0;
    /// The browser object, through which most changes are made; may be null.
    virtual znIBrowser* GetBrowser() = 0;
    /// The Tcl namespace of the host's browser scripts; never null.
    virtual const char* GetTclNameSpace() = 0;
    /// The interpreter in which "znbrowsermanager" lives. It outlives the manager.
    virtual Tcl_Interp* GetTclInterp() = 0;
    /// The host's own words, those that follow "znbrowsermanager app". Puts its answer into the interpreter
    /// result.
    /// @return a Tcl code; only TCL_ERROR is passed on to the script.
    virtual int EvalAppCommand(int objc, Tcl_Obj* const objv[]) = 0;
    /// Emitted with the window's name when a script selects the window that is current already.
    virtual znSignal<single_threaded, const char*>& GetWindowReselectedSignal() = 0;

protected:
    ~znIBrowserApplication() = default;
};

#endif
