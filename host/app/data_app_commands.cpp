#include "app/data_app_commands.h"

#include "app/app_commands.h"
#include "base/tcl_values.h"
#include "store/data_ctrl.h"
#include "store/input_field.h"
#include "window/popup_input.h"
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
    znIBrowserInputField* const doomed = FindField(control->Log(), control, call.Text(1));
    if (!control->RemoveInputField(call.Text(1)))
        return call.Fail(control->Log().Error(), "INPUTFIELD", call.Text(1));
    auto* const manager = dynamic_cast<znBrowserManagerTcl*>(call.App().Manager());
    if (manager && manager->GetCurrentInputFieldPtr() == doomed) manager->ResetCurrentInputField();
    return call.Answer("");
}

namespace {

/// Reads the choices for a field, as the field writes them. @return a Tcl code
int ReadChoices(AppCall& call, InputField& field, std::vector<std::string>& choices) {
    int count = 0;
    Tcl_Obj** words = nullptr;
    if (Tcl_ListObjGetElements(call.App().Interp(), call.Word(2), &count, &words) != TCL_OK) return TCL_ERROR;
    const CallLog::Quiet quiet(field.Log());
    InputValue value = ReadField(field.Log(), field);
    InputField written(field.Log(), field.Name(), value.type);
    for (int i = 0; i < count; ++i) {
        value.text = Tcl_GetString(words[i]);
        const std::string reason = WhyNoValue(value.type, value.text);
        if (!reason.empty())
            return call.Fail("\"" + value.text + "\" is no choice for the input field \"" + field.Name() +
                                 "\": " + reason,
                             "INPUTFIELD", field.Name());
        WriteField(field.Log(), written, value);
        choices.push_back(written.Text());
    }
    return TCL_OK;
}

} // namespace

int AppInputFieldChoices(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    auto* const field = static_cast<InputField*>(FindField(control->Log(), control, call.Text(1)));
    if (!field)
        return call.Fail("the data control \"" + control->Name() + "\" has no input field \"" + call.Text(1) +
                             "\"",
                         "INPUTFIELD", call.Text(1));
    if (call.Count() > 2) {
        std::vector<std::string> choices;
        if (ReadChoices(call, *field, choices) != TCL_OK) return TCL_ERROR;
        field->SetChoices(std::move(choices));
    }
    return call.Answer(field->Choices());
}

} // namespace znhost
