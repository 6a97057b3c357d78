// datactrl ...: which data control is current, and which there are. view datactrl ...: the view's own.
#include "data/data_ctrl_commands.h"

#include "frame/command_table.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserView.h"

// The first line says "browser state" where it means "data control".
const char* const znBrowserTclMessages::DATACTRL =
    "    znbrowsermanager datactrl [action] \n\n"
    "    \tcurrent [dctrl_name]   Gets/sets the name of the current browser state.\n"
    "    \tnames                  Show existing client data control name list.\n\n    ";

const char* const znBrowserTclMessages::VIEW_DATACTRL =
    "    znbrowsermanager view datactrl [connect/disconnect] \n\n"
    "    \tconnect       Connects the current data control to the current view.\n"
    "    \tdisconnect    Disconnects the current data control from the current view.\n\n";

namespace {

using Manager = znBrowserManagerTcl;

void Current(Call& call) {
    if (call.Has(3) && !call.manager.SetCurrentDataCtrl(call.Text(3))) return call.AnswerError();
    if (!call.manager.GetCurrentDataCtrlPtr()) return call.AnswerError();
    call.Answer(call.manager.GetCurrentDataCtrl());
}

void Names(Call& call) { call.AnswerValue(&Manager::GetDataCtrlNames); }

constexpr CommandRow dataCtrlRows[] = {
    {Keyword::Current, Current},
    {Keyword::Names, Names},
};

void ConnectToView(Call& call) {
    if (!call.manager.GetCurrentViewPtr()) return call.Answer("No current view available");
    if (!call.manager.DataCtrlConnect()) return call.AnswerError();
    call.Answer(call.manager.GetCurrentDataCtrl());
}

// Disconnecting needs no simple data source; the words ask for one all the same.
void DisconnectFromView(Call& call) {
    if (!call.manager.GetCurrentViewPtr()) return call.Answer("No current view available");
    if (!call.manager.GetCurrentDataSourceSimplePtr())
        return call.Answer("No current simple datasource available");
    if (!call.manager.DataCtrlDisconnect()) return call.AnswerError();
    call.Answer(call.manager.GetCurrentDataCtrl());
}

constexpr CommandRow viewDataCtrlRows[] = {
    {Keyword::Connect, ConnectToView},
    {Keyword::Disconnect, DisconnectFromView},
};

} // namespace

const CommandLevel dataCtrlLevel(dataCtrlRows, znBrowserTclMessages::DATACTRL);
const CommandLevel viewDataCtrlLevel(viewDataCtrlRows, znBrowserTclMessages::VIEW_DATACTRL);

void AnswerViewDataCtrl(Call& call) {
    if (call.Has(3)) return RunLevel(call, viewDataCtrlLevel, 3);
    znIBrowserView* const view = call.manager.GetCurrentViewPtr();
    znIBrowserDataCtrl* const control = view ? view->GetDataCtrl() : nullptr;
    call.Answer(control ? control->GetName() : znBrowserTclMessages::VIEW_DATACTRL);
}

int znBrowserManagerTcl::DataCtrlTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return RunFamily(*this, dataCtrlLevel, objc, objv);
}
