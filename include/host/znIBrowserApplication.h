// The root of the host: what a host hands to the manager's constructor.
#ifndef ZN_I_BROWSER_APPLICATION_H
#define ZN_I_BROWSER_APPLICATION_H

#include "znsigslot/znSignal.h"
#include <vector>

class znIBrowser;
class znIBrowserCollector;
class znIBrowserDataCtrl;

struct Tcl_Interp;
struct Tcl_Obj;

/// The host application. General contract of the host interfaces, here and in the neighbouring headers:
/// - **Ownership.** Every object belongs to the host. The scripting layer keeps plain pointers and never
///   deletes one; the destructors are therefore protected. It forgets what dies in a deletion that it asked
///   for. Of any other deletion it hears nothing: a host that deletes an object on its own account first says
///   so (`AboutToDelete` of the manager).
/// - **Owners.** An operation that names an object's owner may answer null for "not known". The layer then
///   lets go of the object as soon as any owner of that kind is deleted.
/// - **Texts given.** They are NUL-terminated, in Tcl's UTF-8, and belong to the caller: copy what is kept.
///   From scripts they are never null, though they may be empty; only a C++ client of the manager can pass on
///   a null, and never as a name to be found.
/// - **Texts returned.** A C string belongs to the host, stays valid until the next change of the object that
///   gave it, and may be null, which scripts see as an empty text or as a missing name.
/// - **Names.** `GetName` has the shape that each interface had first: a C string mostly, a `znString` for
///   data sources without regard to their kind, a reference for views; events fill one in. Names are compared
///   exactly, letter case included. An operation that finds an object answers null when there is none; that
///   is no error and leaves no error text.
/// - **Objects given.** They are the host's own, from an earlier answer, and not null unless the comment says
///   so.
/// - **Refusals.** An operation that returns bool answers false when the host refuses, changes nothing then,
///   and leaves its reason in the error text of the browser object (`znIBrowser::GetError`), from where it is
///   shown to the script. Comments say where the answer or the text is not looked at. A getter of a setting
///   answers the setting: its false is no refusal.
/// - **Lists.** An operation that fills a list replaces what the caller's list held, and puts no null pointer
///   into it.
/// - **Scripts.** Where a comment says that scripts may run, these may use the command and delete anything,
///   the objects of the call included: the layer touches none of them afterwards.
/// - **Order.** The order of the operations is part of the interface.
/// - **Exceptions.** A host may throw; the command procedure turns what it throws into an error text: the
///   message of a `std::exception`, a `znString` or a C string, for others a general one.
/// - **Threads.** Everything happens on the thread of the interpreter.
class znIBrowserApplication {
public:
    /// The data control of that name, or null.
    virtual znIBrowserDataCtrl* FindDataCtrl(const char* name) = 0;
    /// Every data control of the application, in the host's order.
    virtual void GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) = 0;
    /// The browser object, through which most changes are made; asked for each time. Null makes each
    /// operation that needs it fail, mostly without a reason.
    virtual znIBrowser* GetBrowser() = 0;
    /// The Tcl namespace of the host's browser scripts, as "view namespace" shows it; never null.
    virtual const char* GetTclNameSpace() = 0;
    /// The interpreter in which "znbrowsermanager" lives; never null. It outlives the manager.
    virtual Tcl_Interp* GetTclInterp() = 0;
    /// The host's own words, those that follow "znbrowsermanager app": `objv[0]` is the first of them, and
    /// `objc` may be 0. Puts its answer into the interpreter result. Scripts may run.
    /// @return a Tcl code; only TCL_ERROR is passed on to the script.
    virtual int EvalAppCommand(int objc, Tcl_Obj* const objv[]) = 0;
    /// Emitted with the window's name when a script or an event selects the window that is current already.
    /// Belongs to the host; its slots may do anything.
    virtual znSignal<single_threaded, const char*>& GetWindowReselectedSignal() = 0;
    /// The virtual collector; asked for each time. Null for a host that has none, as it is without an
    /// operation of its own here: every collector word says so then.
    virtual znIBrowserCollector* GetCollector() { return nullptr; }

protected:
    ~znIBrowserApplication() = default;
};

#endif
