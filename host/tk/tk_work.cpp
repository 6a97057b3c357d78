#include "tk/tk_work.h"

#include <tcl.h>

#include <string>
#include <utility>

namespace znhost {

namespace {

constexpr auto patience = std::chrono::milliseconds(200);
constexpr auto pause = std::chrono::milliseconds(40);
/// Without a panel, from the first moment on: a key must not wait longer.
constexpr auto pauseOfTyping = std::chrono::milliseconds(25);
/// Of what nobody waits for: it looks round so often.
constexpr auto pauseOfYielding = std::chrono::milliseconds(5);

int PutOffExit(ClientData work, Tcl_Interp*, int objc, Tcl_Obj* const objv[]) {
    static_cast<TkWork*>(work)->PutOff(objc, objv);
    return TCL_OK;
}

/// While one lives the command does something else.
class ReplacedCommand {
public:
    ReplacedCommand(Tcl_Command_* const* command, Tcl_ObjCmdProc* procedure, ClientData data)
        : command_(command) {
        if (!*command_ || !Tcl_GetCommandInfoFromToken(*command_, &info_)) return;
        Tcl_CmdInfo other = info_;
        other.objProc = procedure;
        other.objClientData = data;
        Tcl_SetCommandInfoFromToken(*command_, &other);
    }
    ~ReplacedCommand() {
        if (*command_ && info_.objProc) Tcl_SetCommandInfoFromToken(*command_, &info_);
    }
    ReplacedCommand(const ReplacedCommand&) = delete;
    ReplacedCommand& operator=(const ReplacedCommand&) = delete;

private:
    Tcl_Command_* const* const command_;
    Tcl_CmdInfo info_{};
};

/// `exit` as it is called now; null when a script has taken it away.
class ExitCommand {
public:
    ExitCommand(Tcl_Interp* interp, TkWork& work)
        : interp_(interp), command_(Find(interp)), replaced_(&command_, PutOffExit, &work) {}
    ~ExitCommand() {
        if (Find(interp_) != command_) command_ = nullptr;
    }
    ExitCommand(const ExitCommand&) = delete;
    ExitCommand& operator=(const ExitCommand&) = delete;

private:
    static Tcl_Command Find(Tcl_Interp* interp) {
        return Tcl_FindCommand(interp, "exit", nullptr, TCL_GLOBAL_ONLY);
    }

    Tcl_Interp* const interp_;
    Tcl_Command command_;
    const ReplacedCommand replaced_;
};

} // namespace

int AnswerBusy(void*, Tcl_Interp* interp, int, Tcl_Obj* const[]) {
    Tcl_SetObjResult(interp, Tcl_NewStringObj("the browser is busy", -1));
    Tcl_SetErrorCode(interp, "ZNBROWSER", "BUSY", nullptr);
    return TCL_ERROR;
}

TkWork::TkWork(Tcl_Interp* interp, Tcl_Command_* const* command)
    : interp_(interp), command_(command), leaving_(Tcl_AsyncCreate(Leave, this)) {}

TkWork::~TkWork() {
    Tcl_AsyncDelete(leaving_);
    if (exit_) Tcl_DecrRefCount(exit_);
}

void TkWork::PutOff(int objc, Tcl_Obj* const objv[]) {
    if (!exit_) Tcl_IncrRefCount(exit_ = Tcl_NewListObj(objc, objv));
    Cancel();
}

/// Tcl calls it between two commands: nothing that works on a database is in the middle of a step then.
int TkWork::Leave(void* work, Tcl_Interp*, int code) {
    TkWork& self = *static_cast<TkWork*>(work);
    if (!self.exit_) return code;
    Tcl_Obj* const words = std::exchange(self.exit_, nullptr);
    // It does not return, unless it fails.
    if (Tcl_EvalObjEx(self.interp_, words, TCL_EVAL_GLOBAL) != TCL_OK)
        Tcl_BackgroundException(self.interp_, TCL_ERROR);
    Tcl_DecrRefCount(words);
    return code;
}

void TkWork::Begin(int window, Panel panel) {
    if (depth_++) return;
    window_ = window;
    panel_ = panel;
    begun_ = served_ = Clock::now();
    until_ = Clock::time_point::max();
    rows_ = 0;
    cancelled_ = false;
}

bool TkWork::End() {
    if (depth_ == 0 || --depth_) return false;
    if (shown_ && panel_ == Panel::Shown) Call("::znbrowser::hideProgress");
    shown_ = false;
    return cancelled_;
}

TkWork::Rest::Rest(TkWork& work)
    : work_(work), depth_(work.depth_), window_(work.window_), panel_(work.panel_) {
    work_.depth_ = depth_ ? 1 : 0;
    work_.End();
}

TkWork::Rest::~Rest() {
    work_.depth_ = 0;
    work_.Begin(window_, panel_);
    work_.depth_ = depth_;
}

bool TkWork::HasTime() { return !depth_ || until_ == Clock::time_point::max() || Clock::now() < until_; }

bool TkWork::GoesOn() {
    if (!depth_ || serving_) return true;
    if (cancelled_) return false;
    if (panel_ == Panel::Yields) {
        cancelled_ = IsDisturbed();
        return !cancelled_;
    }
    const Clock::time_point now = Clock::now();
    const bool waits = panel_ == Panel::Shown ? now - begun_ < patience || (shown_ && now - served_ < pause)
                                              : now - served_ < pauseOfTyping;
    if (waits) return true;
    Serve();
    return !cancelled_;
}

/// Whether anything waits to be attended to: what the notifier has found, and leaves where it is.
bool TkWork::IsDisturbed() {
    if (Clock::now() - served_ < pauseOfYielding) return false;
    served_ = Clock::now();
    const Tcl_Time noTime{0, 0};
    Tcl_WaitForEvent(&noTime);
    bool waits = false;
    Tcl_DeleteEvents(
        [](Tcl_Event* event, ClientData found) {
            if (event->proc) *static_cast<bool*>(found) = true; // one without is the one in hand
            return 0;                                           // it stays
        },
        &waits);
    return waits;
}

void TkWork::Serve() {
    serving_ = true;
    shown_ = true;
    {
        const ReplacedCommand blocked(command_, AnswerBusy, nullptr);
        const ExitCommand waiting(interp_, *this);
        if (panel_ == Panel::Shown) Call("::znbrowser::showProgress");
        // A bound, as an idle script may ask for itself again and again.
        for (int i = 0; i < 200 && Tcl_DoOneEvent(TCL_WINDOW_EVENTS | TCL_IDLE_EVENTS | TCL_DONT_WAIT); ++i) {
        }
    }
    serving_ = false;
    served_ = Clock::now();
    if (exit_) Tcl_AsyncMark(leaving_);
}

void TkWork::Call(const char* procedure) const {
    const Tcl_InterpState state = Tcl_SaveInterpState(interp_, TCL_OK);
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begun_).count();
    const std::string script = std::string(procedure) + ' ' + std::to_string(window_) + ' ' +
                               std::to_string(milliseconds) + ' ' + std::to_string(rows_);
    if (Tcl_EvalEx(interp_, script.c_str(), -1, TCL_EVAL_GLOBAL) != TCL_OK)
        Tcl_BackgroundException(interp_, TCL_ERROR);
    Tcl_RestoreInterpState(interp_, state);
}

} // namespace znhost
