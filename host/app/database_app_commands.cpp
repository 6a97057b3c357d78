#include "app/database_app_commands.h"

#include "app/app_commands.h"
#include "store/data_ctrl.h"

#include <tcl.h>

namespace znhost {

int AppOpenToRead(AppCall& call) {
    std::string error;
    const std::string name = call.Text(0);
    if (call.App().AddDataCtrl(name, call.Text(1), error, true)) return call.Answer(name);
    return call.Fail("cannot open the data control \"" + name + "\": " + error, "DATACTRL", name);
}

int AppWrite(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    if (call.Count() > 1) {
        int may = 0;
        if (Tcl_GetBooleanFromObj(call.App().Interp(), call.Word(1), &may) != TCL_OK) return TCL_ERROR;
        std::string error;
        if (!control->SetMayChange(may != 0, error))
            return call.Fail("\"" + control->Name() + "\": " + error, "WRITE", control->Name());
    }
    return call.Answer(control->MayChange() ? "true" : "false");
}

namespace {

int Follow(AppCall& call, bool anyway) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    bool changed = false;
    std::string error;
    const bool read = control->FollowOthers(changed, error);
    if (anyway && !changed) control->ItemsChanged(); // what could not be read is tried again
    if (read) return call.Answer(changed ? "true" : "false");
    return call.Fail("\"" + control->Name() + "\" cannot be read: " + error, "READ", control->Name());
}

} // namespace

int AppFollow(AppCall& call) { return Follow(call, false); }

int AppRefresh(AppCall& call) { return Follow(call, true); }

int AppChanges(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    std::vector<std::string> changes;
    for (const ChangeLog::Change& change : control->Changes().All()) changes.push_back(change.what);
    return call.Answer(changes);
}

int AppUndo(AppCall& call) {
    DataCtrl* const control = call.DataControl(0);
    if (!control) return TCL_ERROR;
    std::string error;
    if (control->UndoChange(error)) return call.Answer("");
    return call.Fail("cannot undo: " + error, "UNDO", control->Name());
}

} // namespace znhost
