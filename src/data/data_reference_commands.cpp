// datareference ...: the links of the current data control. view datareference ...: those of the current
// view.
#include "frame/command_table.h"

const char* const znBrowserTclMessages::VIEW_DATAREFERENCE =
    "    znbrowsermanager view datareference [action] \n\n"
    "    \tActions:\n"
    "    \tconnect <datareference_name>       Connects the datareference to the current view.\n"
    "    \tconnected                          Returns the datareferences connected to the current view.\n"
    "    \tdisconnect <datareference_name>    Disconnects the datareference from the current view.\n"
    "    \tnames                              Returns the datareferences of the current data control.\n\n";

namespace {

using Manager = znBrowserManagerTcl;

void Names(Call& call) { call.AnswerValue(&Manager::GetDataReferencesNames); }

constexpr CommandRow dataReferenceRows[] = {
    {Keyword::Names, Names},
};

template <bool (Manager::*change)(const znString&)>
void Change(Call& call) {
    if (!call.Has(4)) return call.Answer(znBrowserTclMessages::VIEW_DATAREFERENCE);
    call.AnswerOutcome((call.manager.*change)(call.Text(4)), call.Text(4));
}

void Connected(Call& call) { call.AnswerValue(&Manager::GetConnectedDataReferencesNames); }

constexpr CommandRow viewDataReferenceRows[] = {
    {Keyword::Connect, Change<&Manager::ConnectDataReference>},
    {Keyword::Connected, Connected},
    {Keyword::Disconnect, Change<&Manager::DisconnectDataReference>},
    {Keyword::Names, Names},
};

} // namespace

// The family has no usage text of its own.
const CommandLevel dataReferenceLevel(dataReferenceRows, znBrowserTclMessages::DATASOURCE);
const CommandLevel viewDataReferenceLevel(viewDataReferenceRows, znBrowserTclMessages::VIEW_DATAREFERENCE);

int znBrowserManagerTcl::DataReferenceTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return RunFamily(*this, dataReferenceLevel, objc, objv);
}
