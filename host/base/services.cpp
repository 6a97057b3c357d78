#include "base/services.h"

#include "base/kept_result.h"
#include "base/long_work.h"
#include "base/tcl_values.h"
#include "znIBrowserManagerTcl.h"

#include <algorithm>
#include <memory>
#include <tcl.h>

namespace znhost {

std::string_view HostServices::WhyStop() const {
    if (interrupted_) return "interrupted";
    if (work_ && !work_->GoesOn()) return "cancelled";
    if (IsHurried() && std::chrono::steady_clock::now() >= until_) return tooLong;
    return work_ && !work_->HasTime() ? tooLong : std::string_view();
}

void HostServices::NoteRead(std::uint64_t rows) const {
    if (work_) work_->Did(rows);
}

HostServices::Hurry::Hurry(HostServices& services, std::chrono::milliseconds time)
    : services_(services), outer_(services.until_) {
    services.until_ = std::min(outer_, std::chrono::steady_clock::now() + time);
}

// The lambda makes a script that ends with "return" end well; the script itself runs at the global level.
bool HostServices::RunScript(const std::string& script, std::string* result) {
    if (!manager_ || Tcl_InterpDeleted(interp_)) return Fail("There is no interpreter to run a script in");
    const KeptResult kept(interp_);
    const char* const words[] = {"::apply", "script {uplevel #0 $script}", script.c_str()};
    const std::unique_ptr<char, void (*)(char*)> command(Tcl_Merge(3, words), Tcl_Free);
    if (manager_->EvalTclScript(command.get())) {
        if (result) *result = Tcl_GetStringResult(interp_);
        return true;
    }
    log_.SetError(Tcl_GetStringResult(interp_));
    Tcl_BackgroundException(interp_, TCL_ERROR);
    return false;
}

bool HostServices::RunProcedure(const std::vector<std::string>& words, std::string* result) {
    return RunScript(ListText(words), result);
}

bool HostServices::CallProcedure(const std::vector<std::string>& words, std::string& result) {
    if (Tcl_InterpDeleted(interp_)) {
        result = "There is no interpreter to call a procedure in";
        return false;
    }
    const KeptResult kept(interp_);
    Tcl_Obj* const command = NewList(words);
    Tcl_IncrRefCount(command);
    const int code = Tcl_EvalObjEx(interp_, command, TCL_EVAL_GLOBAL);
    Tcl_DecrRefCount(command);
    result = Tcl_GetStringResult(interp_);
    return code == TCL_OK;
}

bool HostServices::ComputeValue(const std::string& procedure, const std::vector<std::string>& item,
                                std::string& value) {
    if (!manager_ || Tcl_InterpDeleted(interp_)) return false;
    const KeptResult kept(interp_);
    Tcl_ResetResult(interp_);
    znString result; // written when the procedure ended well, though something refused it may be noted then
    const bool computed =
        manager_->GetStringFromScript(procedure.c_str(), result, ListText(item)) || !result.IsNull();
    if (computed) {
        value = result.Str();
    } else {
        Tcl_BackgroundException(interp_, TCL_ERROR);
    }
    return computed;
}

void HostServices::ReportError(const std::string& text) {
    if (Tcl_InterpDeleted(interp_)) return;
    const KeptResult kept(interp_);
    Tcl_SetObjResult(interp_, Tcl_NewStringObj(text.data(), static_cast<int>(text.size())));
    Tcl_BackgroundException(interp_, TCL_ERROR);
}

bool HostServices::Notify(const std::function<bool(znIBrowserManagerTcl&)>& service) {
    if (!manager_ || Tcl_InterpDeleted(interp_)) return true;
    const KeptResult kept(interp_);
    Tcl_ResetResult(interp_);
    if (service(*manager_)) return true;
    // A service may also be refused because of what a procedure left behind: then no script has failed.
    Tcl_Obj* const options = Tcl_GetReturnOptions(interp_, TCL_ERROR);
    Tcl_IncrRefCount(options);
    Tcl_Obj* const key = Tcl_NewStringObj("-errorinfo", -1);
    Tcl_IncrRefCount(key);
    Tcl_Obj* place = nullptr;
    Tcl_DictObjGet(nullptr, options, key, &place);
    const bool failed = place != nullptr;
    if (failed) {
        log_.SetError(Tcl_GetStringResult(interp_));
        Tcl_BackgroundException(interp_, TCL_ERROR);
    }
    Tcl_DecrRefCount(key);
    Tcl_DecrRefCount(options);
    return !failed;
}

} // namespace znhost
