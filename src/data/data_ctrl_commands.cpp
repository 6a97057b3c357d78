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

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Current(Call& call) {
    if (call.Has(3) && !call.manager.SetCurrentDataCtrl(call.Text(3))) return call.AnswerError();
    if (!call.manager.GetCurrentDataCtrlPtr()) return call.AnswerError();
    call.Answer(call.manager.GetCurrentDataCtrl());
}

void Names(Call& call) { call.AnswerValue(&Manager::GetDataCtrlNames); }

constexpr CommandRow dataCtrlRows[] = {
    {Keyword::Current, "?DATACTRL? -> DATACTRL", "Makes a data control current, or tells which is.", Current},
    {Keyword::Names, "-> DATACTRL ...", "Lists the data controls.", Names},
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
    {Keyword::Connect, "-> DATACTRL", "Connects the current data control to the current view.",
     ConnectToView},
    {Keyword::Disconnect, "-> DATACTRL", "Disconnects the current view from its data control.",
     DisconnectFromView},
};

} // namespace

constexpr CommandLevel dataCtrlLevel(dataCtrlRows, Messages::DATACTRL);
constexpr CommandLevel viewDataCtrlLevel(viewDataCtrlRows, Messages::VIEW_DATACTRL);

void AnswerViewDataCtrl(Call& call) {
    if (call.Count() > 3) return RunLevel(call, viewDataCtrlLevel, 3);
    znIBrowserView* const view = call.manager.GetCurrentViewPtr();
    znIBrowserDataCtrl* const control = view ? view->GetDataCtrl() : nullptr;
    call.Answer(control ? control->GetName() : Messages::VIEW_DATACTRL);
}

} // namespace znlayer

int znBrowserManagerTcl::DataCtrlTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return znlayer::RunFamily(*this, znlayer::dataCtrlLevel, objc, objv);
}
