// Ctrl-C.
#ifndef SHELL_INTERRUPTS_H
#define SHELL_INTERRUPTS_H

#include <tcl.h>

namespace znhost {
class EmbeddedHost;
}

/// Makes of SIGINT something that stops what is being run and leaves the program alive: an SQL statement
/// fails with "interrupted", and so does the script around it, even one that catches errors. While nobody has
/// `Take`n one, a second SIGINT ends the program, as where nobody looks after signals. One object at a time.
class Interrupts {
public:
    /// Both outlive the object.
    Interrupts(Tcl_Interp* interp, znhost::EmbeddedHost& host);
    ~Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    /// While one lives a script is being run: an interrupt stops it wherever it is, also where it waits for
    /// events. Without one only what runs by itself, in the course of an event, is stopped.
    class Running {
    public:
        explicit Running(Interrupts& interrupts) : interrupts_(interrupts) { ++interrupts_.running_; }
        ~Running() { --interrupts_.running_; }
        Running(const Running&) = delete;
        Running& operator=(const Running&) = delete;

    private:
        Interrupts& interrupts_;
    };

    /// Forgets interrupts; tells whether there was one.
    bool Take();
    /// Can be read as soon as there is an interrupt.
    int WakeDescriptor() const;

private:
    static int StopScript(ClientData interrupts, Tcl_Interp* interp, int code);

    Tcl_Interp* const interp_;
    znhost::EmbeddedHost& host_;
    int running_ = 0;
};

#endif
