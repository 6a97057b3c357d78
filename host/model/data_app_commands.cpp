#include "model/data_app_commands.h"

#include "model/app_commands.h"
#include "store/data_ctrl.h"

#include <tcl.h>

namespace znhost {

int AppCreateInputField(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    if (control->AddInputField(call.Text(1), call.Text(2))) return call.Answer(call.Text(1));
    return call.Fail(control->Log().Error(), "INPUTFIELD", call.Text(1));
}

int AppDeleteInputField(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    if (control->RemoveInputField(call.Text(1))) return call.Answer("");
    return call.Fail(control->Log().Error(), "INPUTFIELD", call.Text(1));
}

} // namespace znhost
