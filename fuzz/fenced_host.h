// A host for fuzzing: fresh for each input, on a small copy of the gearbox, and fenced in.
#ifndef FENCED_HOST_H
#define FENCED_HOST_H

#include "host/model/embedded_host.h"

#include <memory>
#include <tcl.h>

/// Nothing that an input says reaches a file or another program, or lasts for ever: the interpreter is a safe
/// one that runs a limited number of commands, SQLite opens no files, attaches nothing and runs a limited
/// number of steps.
class FencedHost {
public:
    /// @param again the Tcl command "again", called with `data`
    FencedHost(Tcl_ObjCmdProc* again, void* data);
    ~FencedHost();
    FencedHost(const FencedHost&) = delete;
    FencedHost& operator=(const FencedHost&) = delete;

    Tcl_Interp* Interp() const { return interp_; }
    znhost::EmbeddedHost& Host() { return *host_; }
    /// Runs what scripts left to be done when nothing else is: errors in the background, say.
    void RunDue();

private:
    Tcl_Interp* interp_;
    std::unique_ptr<znhost::EmbeddedHost> host_;
};

#endif
