// The embedded host as a library: a browser for applications whose model lies in SQLite databases.
#ifndef ZN_BROWSER_HOST_H
#define ZN_BROWSER_HOST_H

#include "znBrowserExport.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

class znBrowserManagerTcl;
struct Tcl_Interp;

/// A host with a model of its own, and a manager on it: while it lives, the interpreter has the command
/// "znbrowsermanager". An interpreter has one host at most; a program may have one in each of several
/// interpreters, all on the same thread. Texts are in Tcl's UTF-8.
///
///     Tcl_FindExecutable(argv[0]);
///     Tcl_Interp* interp = Tcl_CreateInterp();
///     Tcl_Init(interp);
///     znBrowserHost* host = znBrowserHost::Attach(interp);
///     if (host && host->CreateDataCtrl("shop", "shop.db") && host->ShowWindows() && host->Browse("shop"))
///         while (host->CountWindows() > 0) Tcl_DoOneEvent(TCL_ALL_EVENTS);
///     Tcl_DeleteInterp(interp); // and the host with it
class ZN_API znBrowserHost {
public:
    /// A host that the interpreter owns: it goes with the interpreter, with `Detach`, or when its thread or
    /// the program ends by way of Tcl (`Tcl_Exit`, `Tcl_FinalizeThread`).
    /// @return null, with the reason in the interpreter result, when there is a command "znbrowsermanager"
    /// already, and when the interpreter's Tcl is older than 8.6 or not 8.x
    static znBrowserHost* Attach(Tcl_Interp* interp);
    /// The host that `Attach` gave the interpreter; null when there is none.
    static znBrowserHost* Find(Tcl_Interp* interp);
    /// Deletes that host, its windows and the command. Without one it does nothing.
    /// @return false, with the reason in the interpreter result, while the command runs: a script that it
    /// called cannot delete it
    static bool Detach(Tcl_Interp* interp);

    /// The manager behind the command: all that scripts can do, for C++. Owned by the host.
    znBrowserManagerTcl& GetManager() const;
    /// Adds a data control on the database `file`, which is made when missing; on one in memory when `file`
    /// is "".
    /// @return false, with the reason in `GetError`, and without a data control
    bool CreateDataCtrl(const char* name, const char* file);
    /// Loads Tk and its tree widget: from now on each posted window stands on the display. Where the program
    /// has not loaded Tk itself, Tk's main window is withdrawn. Calling it again changes nothing.
    /// @return false, with the reason in `GetError`; windows stay without a face then
    bool ShowWindows();
    /// Opens a window on a data control: its tables, their rows, and below each row those that refer to it.
    /// @return false, with the reason in `GetError`
    bool Browse(const char* dataCtrl);
    /// How many windows stand on the display. While there are any, serve Tcl's events.
    std::size_t CountWindows() const;
    /// The rows of each posted window as a text, for who has no display.
    std::vector<std::string> DrawWindows() const;
    /// Stops what takes long, an SQL statement above all, and whatever like that follows: it fails with
    /// "interrupted". May be called by a signal handler, and by any thread.
    void Interrupt() noexcept;
    /// What follows an `Interrupt` may take long again.
    void Resume() noexcept;
    /// Why the last of the operations above that returned false failed; never null, valid until the next one.
    const char* GetError() const;

    znBrowserHost(const znBrowserHost&) = delete;
    znBrowserHost& operator=(const znBrowserHost&) = delete;

private:
    struct Parts;
    explicit znBrowserHost(Tcl_Interp* interp);
    ~znBrowserHost();
    static void Delete(void* host);
    static void DeleteAtExit(void* host);

    std::unique_ptr<Parts> parts_;
};

#endif
