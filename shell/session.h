// One interpreter with the embedded host in it.
#ifndef SHELL_SESSION_H
#define SHELL_SESSION_H

#include "options.h"

#include <tcl.h>

#include <memory>
#include <string>
#include <vector>

namespace znhost {
class EmbeddedHost;
}

/// A stock Tcl interpreter with one command more, znbrowsermanager. Ends in the right order however the
/// program ends: the host first, its databases closed, then the interpreter.
class Session {
public:
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Initializes Tcl, sets argc, argv and argv0, registers the command and adds the data controls.
    /// Returns false, with the reason on standard error, when one of them fails.
    bool Start(const Options& options);

    /// Runs a script file, with `info script` set, and then what it left pending. An uncaught error's
    /// errorInfo goes to standard error.
    ExitCode RunScript(const std::string& file);
    /// Runs the script that standard input holds, up to its end.
    ExitCode RunStandardInput();

    /// Runs what is due in the event loop, background errors above all: without waiting, and what that
    /// puts off in its turn is not run.
    void ServePending();

    Tcl_Interp* GetInterp() const { return interp_; }
    /// The names of the host's objects as they are now.
    std::vector<std::string> GetObjectNames() const;

private:
    bool AddDatabases(const std::vector<DatabaseOption>& databases);
    void SetArguments(const Options& options);
    ExitCode Finish(int code);
    void PrintFailure(int code);
    static void CloseAtExit(ClientData session);

    Tcl_Interp* interp_;
    std::unique_ptr<znhost::EmbeddedHost> host_;
};

/// Writes one line to Tcl's standard channel `channel` (TCL_STDOUT, TCL_STDERR), in its encoding.
void PrintLine(int channel, Tcl_Obj* text);
void PrintLine(int channel, const std::string& text);

#endif
