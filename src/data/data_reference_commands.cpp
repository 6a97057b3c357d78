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

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Names(Call& call) { call.AnswerValue(&Manager::GetDataReferencesNames); }

constexpr CommandRow dataReferenceRows[] = {
    {Keyword::Names, "-> REFERENCE ...", "Lists the data references of the current data control.", Names},
};

template <bool (Manager::*change)(const znString&)>
void Change(Call& call) {
    call.AnswerOutcome((call.manager.*change)(call.Text(4)), call.Text(4));
}

void Connected(Call& call) { call.AnswerValue(&Manager::GetConnectedDataReferencesNames); }

constexpr CommandRow viewDataReferenceRows[] = {
    {Keyword::Connect, "REFERENCE -> REFERENCE", "Connects a data reference to the current view.",
     Change<&Manager::ConnectDataReference>},
    {Keyword::Connected, "-> REFERENCE ...", "Lists the data references of the current view.", Connected},
    {Keyword::Disconnect, "REFERENCE -> REFERENCE", "Disconnects a data reference from the current view.",
     Change<&Manager::DisconnectDataReference>},
    {Keyword::Names, "-> REFERENCE ...", "Lists the data references of the current data control.", Names},
};

} // namespace

// The family has no usage text of its own.
constexpr CommandLevel dataReferenceLevel(dataReferenceRows, Messages::DATASOURCE);
constexpr CommandLevel viewDataReferenceLevel(viewDataReferenceRows, Messages::VIEW_DATAREFERENCE);

} // namespace znlayer

int znBrowserManagerTcl::DataReferenceTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return znlayer::RunFamily(*this, znlayer::dataReferenceLevel, objc, objv);
}
