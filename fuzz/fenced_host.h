// A host for fuzzing: fresh for each input, on a copy of a small database, and fenced in.
#ifndef FENCED_HOST_H
#define FENCED_HOST_H

#include "host/app/embedded_host.h"
#include "host/base/long_work.h"

#include <memory>
#include <tcl.h>

class DatabaseImage;

/// Nothing that an input says reaches a file or another program, or lasts for ever: the interpreter is a safe
/// one that runs a limited number of commands, SQLite opens no files, attaches nothing and runs a limited
/// number of steps.
class FencedHost {
public:
    /// Fences SQLite in, and starts Tcl; before anything else uses them.
    static void Prepare();
    /// @param image what the data control "gearbox" holds
    /// @param again the Tcl command "again", called with `data`
    FencedHost(const DatabaseImage& image, Tcl_ObjCmdProc* again, void* data);
    ~FencedHost();
    FencedHost(const FencedHost&) = delete;
    FencedHost& operator=(const FencedHost&) = delete;

    Tcl_Interp* Interp() const { return interp_; }
    znhost::EmbeddedHost& Host() { return *host_; }
    /// Opens the default browser on the database.
    void Browse();
    /// Runs what scripts left to be done when nothing else is: errors in the background, say.
    void RunDue();

private:
    /// Ends what runs too long: statements ask in the middle of their steps, every few thousand, and nothing
    /// that takes long goes on once the questions of a run are used up.
    struct Patience final : znhost::LongWork {
        bool GoesOn() override { return --questions >= 0; }
        bool HasTime() override { return true; }
        int questions = 0;
    };

    Tcl_Interp* interp_;
    Patience patience_;
    std::unique_ptr<znhost::EmbeddedHost> host_;
};

#endif
