// znbrowsermanager collector ...: the browser's virtual collector.
//
// The collector is the host's. The words are known here so that a script gets their help, and the events are
// accepted, but nothing is done with either.
#include "frame/call.h"

using namespace znlayer;

const char* const znBrowserTclMessages::COLLECTOR =
    "    znbrowsermanager collector [action] \n\n"
    "    \tActions:\n"
    "    \taddremove          Add/remove icon options...\n"
    "    \tautofit            Fits the model to the graphics window when a collector\n"
    "    \t                   action is performed.\n"
    "    \tdatsource simple   Datasource simple...\n"
    "    \tentityselector     Entity selector icon options...\n"
    "    \toption             Option names...\n"
    "    \toptionselector     Collector option selector...\n"
    "    \tpnlcolselector      Panel collector selector...\n"
    "    \tpreselector        Pre-selector options...\n"
    "    \tselection          Selection options...\n"
    "    \tundo               Undo options...\n\n    ";

int znBrowserManagerTcl::CollectorTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    Call call(*this, objc, objv);
    call.Answer(znBrowserTclMessages::COLLECTOR);
    return call.Finish();
}

bool znBrowserManagerTcl::OnTkColListItemSelected(const char*, const char*) {
    SetOk();
    return true;
}

bool znBrowserManagerTcl::OnTkColOptionItemSelected(const char*, const char*) {
    SetOk();
    return true;
}
