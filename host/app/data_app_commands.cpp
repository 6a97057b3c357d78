#include "app/data_app_commands.h"

#include "app/app_commands.h"
#include "store/data_ctrl.h"
#include "znBrowserManagerTcl.h"

#include <tcl.h>

namespace znhost {

int AppCreateInputField(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    if (control->AddInputField(call.Text(1), call.Text(2))) return call.Answer(call.Text(1));
    return call.Fail(control->Log().Error(), "INPUTFIELD", call.Text(1));
}

// The manager is not told when an object dies: its current field must not be the one that does.
int AppDeleteInputField(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    znIBrowserInputField* doomed = nullptr;
    {
        const CallLog::Quiet quiet(control->Log());
        doomed = control->FindInputField(call.Text(1).c_str());
    }
    if (!control->RemoveInputField(call.Text(1)))
        return call.Fail(control->Log().Error(), "INPUTFIELD", call.Text(1));
    auto* const manager = dynamic_cast<znBrowserManagerTcl*>(call.App().Manager());
    if (manager && manager->GetCurrentInputFieldPtr() == doomed) manager->ResetCurrentInputField();
    return call.Answer("");
}

} // namespace znhost
