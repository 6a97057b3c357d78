#include "tk/tk_work.h"

#include <tcl.h>

#include <string>

namespace znhost {

namespace {

constexpr auto patience = std::chrono::milliseconds(200);
constexpr auto pause = std::chrono::milliseconds(100);

/// While one lives the command gives an error.
class BlockedCommand {
public:
    explicit BlockedCommand(Tcl_Command_* const* command) : command_(command) {
        if (!*command_ || !Tcl_GetCommandInfoFromToken(*command_, &info_)) return;
        Tcl_CmdInfo busy = info_;
        busy.objProc = AnswerBusy;
        Tcl_SetCommandInfoFromToken(*command_, &busy);
    }
    ~BlockedCommand() {
        if (*command_ && info_.objProc) Tcl_SetCommandInfoFromToken(*command_, &info_);
    }
    BlockedCommand(const BlockedCommand&) = delete;
    BlockedCommand& operator=(const BlockedCommand&) = delete;

private:
    Tcl_Command_* const* const command_;
    Tcl_CmdInfo info_{};
};

} // namespace

int AnswerBusy(void*, Tcl_Interp* interp, int, Tcl_Obj* const[]) {
    Tcl_SetObjResult(interp, Tcl_NewStringObj("the browser is busy", -1));
    Tcl_SetErrorCode(interp, "ZNBROWSER", "BUSY", nullptr);
    return TCL_ERROR;
}

void TkWork::Begin(int window) {
    if (depth_++) return;
    window_ = window;
    begun_ = served_ = Clock::now();
    until_ = Clock::time_point::max();
    cancelled_ = false;
}

bool TkWork::End() {
    if (depth_ == 0 || --depth_) return false;
    if (shown_) Call("::znbrowser::hideProgress");
    shown_ = false;
    return cancelled_;
}

bool TkWork::HasTime() { return !depth_ || until_ == Clock::time_point::max() || Clock::now() < until_; }

bool TkWork::GoesOn() {
    if (!depth_ || serving_) return true;
    if (cancelled_) return false;
    const Clock::time_point now = Clock::now();
    if (now - begun_ < patience || (shown_ && now - served_ < pause)) return true;
    serving_ = true;
    shown_ = true;
    {
        const BlockedCommand blocked(command_);
        Call("::znbrowser::showProgress");
        // A bound, as an idle script may ask for itself again and again.
        for (int i = 0; i < 200 && Tcl_DoOneEvent(TCL_WINDOW_EVENTS | TCL_IDLE_EVENTS | TCL_DONT_WAIT); ++i) {
        }
    }
    serving_ = false;
    served_ = Clock::now();
    return !cancelled_;
}

void TkWork::Call(const char* procedure) const {
    const Tcl_InterpState state = Tcl_SaveInterpState(interp_, TCL_OK);
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - begun_).count();
    const std::string script =
        std::string(procedure) + ' ' + std::to_string(window_) + ' ' + std::to_string(milliseconds);
    if (Tcl_EvalEx(interp_, script.c_str(), -1, TCL_EVAL_GLOBAL) != TCL_OK)
        Tcl_BackgroundException(interp_, TCL_ERROR);
    Tcl_RestoreInterpState(interp_, state);
}

} // namespace znhost
