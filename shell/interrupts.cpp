#include "interrupts.h"

#include "app/embedded_host.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

namespace {

// A signal has no other way to its receivers than what is global: the host, whose statements it stops, the
// mark that stops a script, and the pipe that wakes who waits.
znhost::EmbeddedHost* receiver = nullptr;
Tcl_AsyncHandler stopHandler = nullptr;
int wakePipe[2] = {-1, -1};
volatile std::sig_atomic_t isWaiting = 0;

void HandleInterrupt(int) {
    const int saved = errno;
    if (isWaiting) { // the first one was not heard: nothing is there that could hear this one
        std::signal(SIGINT, SIG_DFL);
        raise(SIGINT);
    }
    isWaiting = 1;
    receiver->Interrupt();
    Tcl_AsyncMark(stopHandler);
    if (write(wakePipe[1], "", 1) < 0) errno = saved; // full: who waits is woken already
    errno = saved;
}

} // namespace

Interrupts::Interrupts(Tcl_Interp* interp, znhost::EmbeddedHost& host) : interp_(interp), host_(host) {
    if (pipe2(wakePipe, O_CLOEXEC | O_NONBLOCK) != 0) wakePipe[0] = wakePipe[1] = -1;
    stopHandler = Tcl_AsyncCreate(StopScript, this);
    receiver = &host;
    isWaiting = 0;
    struct sigaction action = {};
    action.sa_handler = HandleInterrupt;
    sigaction(SIGINT, &action, nullptr);
}

Interrupts::~Interrupts() {
    std::signal(SIGINT, SIG_DFL);
    Tcl_AsyncDelete(stopHandler);
    stopHandler = nullptr;
    receiver = nullptr;
    for (int& end : wakePipe) {
        close(end);
        end = -1;
    }
}

bool Interrupts::Take() {
    bool found = false;
    for (char byte = 0; read(wakePipe[0], &byte, 1) > 0;) found = true;
    isWaiting = 0;
    host_.Resume();
    return found;
}

int Interrupts::WakeDescriptor() const { return wakePipe[0]; }

// Tcl tells the interpreter in which a script is in the middle of its run; none from within the event loop.
int Interrupts::StopScript(ClientData interrupts, Tcl_Interp* interp, int code) {
    const Interrupts& self = *static_cast<Interrupts*>(interrupts);
    if (interp || self.running_) {
        Tcl_Obj* const reason = Tcl_NewStringObj("interrupted", -1);
        Tcl_CancelEval(self.interp_, reason, nullptr, TCL_CANCEL_UNWIND);
    }
    return code;
}
