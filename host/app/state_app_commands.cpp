#include "app/state_app_commands.h"

#include "app/app_commands.h"
#include "state/state_container.h"
#include "store/data_ctrl.h"
#include "znBrowserManagerTcl.h"

#include <tcl.h>

namespace znhost {

namespace {

int FailState(AppCall& call, const std::string& error) { return call.Fail(error, "STATE", call.Text(1)); }

} // namespace

int AppCreateState(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    std::string error;
    if (!StatesOf(*control).Store().Create(call.Text(1), error)) return FailState(call, error);
    return call.Answer(call.Text(1));
}

int AppDeleteState(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    StateContainer& states = StatesOf(*control);
    std::string error;
    if (!states.Store().Delete(call.Text(1), error)) return FailState(call, error);
    auto* const manager = dynamic_cast<znBrowserManagerTcl*>(call.App().Manager());
    if (manager && manager->GetCurrentStatePtr() == &states.Named(call.Text(1))) manager->ResetCurrentState();
    return call.Answer("");
}

int AppStateFile(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    std::string error;
    if (call.Count() > 1 && !StatesOf(*control).KeepIn(call.Text(1), error))
        return call.Fail(error, "FILE", call.Text(1));
    return call.Answer(StatesOf(*control).Place());
}

int AppStateNames(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    std::vector<std::string> names;
    std::string error;
    if (!StatesOf(*control).Store().Names(names, error)) return FailState(call, error);
    return call.Answer(names);
}

int AppStateEntities(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    std::vector<std::string> entities;
    std::string error;
    if (!StatesOf(*control).Store().Entities(call.Text(1), entities, error)) return FailState(call, error);
    return call.Answer(entities);
}

} // namespace znhost
