// One interpreter with the embedded host in it.
#ifndef SHELL_SESSION_H
#define SHELL_SESSION_H

#include "interrupts.h"
#include "options.h"

#include <tcl.h>

#include <memory>
#include <string>
#include <vector>

/// A stock Tcl interpreter with one command more, znbrowsermanager. Ends in the right order however the
/// program ends: the host first, its databases closed, then the interpreter.
class Session {
public:
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Initializes Tcl, sets argc, argv and argv0, registers the command, adds the data controls and, with
    /// --tk, gives windows a display; that there is none is said on standard error and no failure.
    /// Returns false, with the reason on standard error, when one of them fails.
    bool Start(const Options& options);

    /// Runs a script file, with `info script` set, and then what it left pending. An uncaught error's
    /// errorInfo goes to standard error; without one, windows are shown until the last one is closed.
    ExitCode RunScript(const std::string& file);
    /// Runs the script that standard input holds, up to its end; with --tk and nothing but blanks there,
    /// opens the browsers.
    ExitCode RunStandardInput();

    /// Opens the default browser on each data control of the command line.
    /// @return false, with the reason on standard error, when one cannot be opened
    bool OpenBrowsers();
    /// With --tk but without a display: prints the rows of each posted window.
    void DrawWindows() const;

    /// Runs what is due in the event loop, background errors above all: without waiting, and what that
    /// puts off in its turn is not run.
    void ServePending();

    Tcl_Interp* GetInterp() const { return interp_; }
    /// The names that may stand for an argument of that kind now; for "", those of all that scripts name
    /// most.
    std::vector<std::string> GetNames(const std::string& kind) const;
    /// Ctrl-C: a session that has started looks after it.
    Interrupts& GetInterrupts() { return *interrupts_; }

private:
    bool AddDatabases(const std::vector<DatabaseOption>& databases);
    bool AllowChanges();
    void SetArguments(const Options& options);
    void FindDisplay();
    bool Browse(const std::string& control);
    ExitCode Finish(int code);
    bool IsAnythingLater() const;
    /// @return false when it was interrupted
    bool ShowToTheEnd();
    void PrintFailure(int code);
    void Close();
    static void CloseAtExit(ClientData session);

    /// What is to become of windows.
    enum class Windows { Hidden, OnDisplay, AsText };

    Tcl_Interp* interp_;
    Windows windows_ = Windows::Hidden;
    bool readsOnly_ = false;           ///< the databases are for a browser: only a script changes them
    std::vector<std::string> browsed_; ///< the data controls of the command line
    std::unique_ptr<znhost::EmbeddedHost> host_;
    std::unique_ptr<Interrupts> interrupts_;
};

/// Writes one line to Tcl's standard channel `channel` (TCL_STDOUT, TCL_STDERR), in its encoding.
void PrintLine(int channel, Tcl_Obj* text);
void PrintLine(int channel, const std::string& text);

#endif
