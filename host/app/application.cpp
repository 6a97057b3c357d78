#include "app/application.h"

#include "state/state_container.h"
#include "store/data_ctrl.h"
#include "window/collector.h"

namespace znhost {

Application::Application(Tcl_Interp* interp, CallLog& log) : HostServices(interp, log), browser_(*this) {}

Application::~Application() = default;

bool Application::AddDataCtrl(const std::string& name, const std::string& file, std::string& error,
                              bool readOnly) {
    if (name.empty()) {
        error = "a data control needs a name";
        return false;
    }
    if (dataControls_.Find(name)) {
        error = "a data control \"" + name + "\" already exists";
        return false;
    }
    std::shared_ptr<DataCtrl> control = DataCtrl::Open(
        browser_, name, file, readOnly ? Database::Access::Read : Database::Access::Change, error);
    if (!control) return false;
    control->SetStates(MakeStates(*control));
    dataControls_.Add(std::move(control));
    return true;
}

bool Application::FollowNews() {
    bool changed = false;
    for (const auto& control : dataControls_) {
        bool byOthers = false;
        std::string error;
        if (control->HasNews()) control->FollowOthers(byOthers, error); // who looks is told why it cannot
        changed = changed || byOthers;
    }
    return changed;
}

znIBrowserDataCtrl* Application::FindDataCtrl(const char* name) {
    if (Refused("znIBrowserApplication::FindDataCtrl", name)) return nullptr;
    return dataControls_.Find(TextOf(name));
}

void Application::GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) {
    controls.clear();
    if (Refused("znIBrowserApplication::GetDataCtrls")) return;
    dataControls_.CopyTo(controls);
}

znIBrowser* Application::GetBrowser() {
    if (Refused("znIBrowserApplication::GetBrowser")) return nullptr;
    return &browser_;
}

const char* Application::GetTclNameSpace() {
    static_cast<void>(Refused("znIBrowserApplication::GetTclNameSpace"));
    return "::znbrowser";
}

Tcl_Interp* Application::GetTclInterp() { return interp_; }

znSignal<single_threaded, const char*>& Application::GetWindowReselectedSignal() {
    static_cast<void>(Refused("znIBrowserApplication::GetWindowReselectedSignal"));
    return windowReselected_;
}

znIBrowserCollector* Application::GetCollector() {
    if (Refused("znIBrowserApplication::GetCollector")) return nullptr;
    return &browser_.VirtualCollector();
}

} // namespace znhost
