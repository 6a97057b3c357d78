// znbrowsermanager collector pnlcolselector ...: the named collections of the current view.
#include "state/collector/collector_words.h"

const char* const znBrowserTclMessages::COLLECTOR_PNLCOLSELECTOR =
    "    znbrowsermanager collector pnlcolselector [action] \n\n"
    "    \tActions:\n"
    "    \tcreate <collection_name>     Keeps what is collected under a name, and makes it current.\n"
    "    \tcurrent [collection_name]    Collects what was kept under that name, or shows the current name.\n"
    "    \tdelete <collection_name>     Forgets what was kept under that name.\n"
    "    \tenable [true|false]          Gets/sets whether the panel collector selector of the bar answers.\n"
    "    \tnames                        Returns the names under which items are kept.\n"
    "    \tshow [true|false]            Gets/sets whether it stands in the collector bar.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Create(Call& call) {
    call.AnswerOutcome(call.manager.CreateCollectorPanelCollection(call.Text(4)), call.Text(4));
}

void Current(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentCollectorPanelCollection,
                       &Manager::GetCurrentCollectorPanelCollection);
}

void Delete(Call& call) { call.AnswerOutcome(call.manager.DeleteCollectorPanelCollection(call.Text(4))); }

void Names(Call& call) { call.AnswerValue(&Manager::GetCollectorPanelCollectionNames); }

constexpr CommandRow rows[] = {
    {Keyword::Create, "NAME -> NAME", "Keeps what is collected under a name, and makes it current.", Create},
    {Keyword::Current, "?COLLECTION? -> COLLECTION",
     "Collects what a named collection holds, or tells which one is current.", Current},
    {Keyword::Delete, "COLLECTION", "Deletes a named collection; what is collected stays so.", Delete},
    enableControlRow<ZNBROWSER_COLLECTOR_PNLCOLSELECTOR, &Messages::COLLECTOR_PNLCOLSELECTOR>,
    {Keyword::Names, "-> COLLECTION ...", "Lists the named collections.", Names},
    showControlRow<ZNBROWSER_COLLECTOR_PNLCOLSELECTOR, &Messages::COLLECTOR_PNLCOLSELECTOR>,
};

} // namespace

constexpr CommandLevel collectorPnlColSelectorLevel(rows, Messages::COLLECTOR_PNLCOLSELECTOR);

} // namespace znlayer
