// znbrowsermanager collector ...: the browser's virtual collector.
#include "state/collector/collector_words.h"

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

const char* const znBrowserTclMessages::COLLECTOR_ADDREMOVE =
    "    znbrowsermanager collector addremove [action] \n\n"
    "    \tActions:\n"
    "    \tenable [true|false]    Gets/sets whether the add/remove icons of the collector bar answer.\n"
    "    \tshow [true|false]      Gets/sets whether they stand in the collector bar.\n\n";

const char* const znBrowserTclMessages::COLLECTOR_ENTITYSELECTOR =
    "    znbrowsermanager collector entityselector [action] \n\n"
    "    \tActions:\n"
    "    \tenable [true|false]    Gets/sets whether the entity selector of the collector bar answers.\n"
    "    \tshow [true|false]      Gets/sets whether it stands in the collector bar.\n\n";

const char* const znBrowserTclMessages::COLLECTOR_AUTOFIT =
    "    znbrowsermanager collector autofit [true|false]\n\n"
    "    \tGets/sets whether the windows scroll to the collected items after an action.\n\n";

const char* const znBrowserTclMessages::COLLECTOR_SHOW =
    "    znbrowsermanager collector show [true|false]\n\n"
    "    \tGets/sets whether the current window has a collector bar.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Autofit(Call& call) {
    Manager& manager = call.manager;
    SetFlagThenAnswer(
        call, 3, Messages::COLLECTOR_AUTOFIT,
        [&](bool autofit) { return manager.SetCollectorAutofit(autofit); },
        [&](bool& autofit) { return manager.GetCollectorAutofit(autofit); });
}

void Show(Call& call) {
    Manager& manager = call.manager;
    SetFlagThenAnswer(
        call, 3, Messages::COLLECTOR_SHOW, [&](bool shown) { return manager.SetCollectorBarShown(shown); },
        [&](bool& shown) { return manager.GetCollectorBarShown(shown); });
}

void AddToPnlCol(Call& call) { call.AnswerOutcome(call.manager.AddToCollectorPanelCollection(call.Text(3))); }

/// A word that stands alone or leads on: with words behind it the level's, else its own.
template <const CommandLevel* level, class Own>
void RunOr(Call& call, Own own) {
    if (call.Count() > 3) return RunLevel(call, *level, 3);
    own(call);
}

void Preselector(Call& call) {
    RunOr<&collectorPreselectorLevel>(call, [](Call& alone) {
        bool on = false;
        if (!alone.manager.GetCollectorPreselector(on)) return alone.AnswerError();
        alone.Answer(on ? znBrowserTclKeywords::KEYWORD_ON : znBrowserTclKeywords::KEYWORD_OFF);
    });
}

void Undo(Call& call) {
    RunOr<&collectorUndoLevel>(call, [](Call& alone) { alone.Run(&Manager::UndoCollectorStep); });
}

constexpr CommandRow addRemoveRows[] = {
    enableControlRow<ZNBROWSER_COLLECTOR_ADDREMOVE, &Messages::COLLECTOR_ADDREMOVE>,
    showControlRow<ZNBROWSER_COLLECTOR_ADDREMOVE, &Messages::COLLECTOR_ADDREMOVE>,
};
constexpr CommandLevel addRemoveLevel(addRemoveRows, Messages::COLLECTOR_ADDREMOVE);

constexpr CommandRow entitySelectorRows[] = {
    enableControlRow<ZNBROWSER_COLLECTOR_ENTITYSELECTOR, &Messages::COLLECTOR_ENTITYSELECTOR>,
    showControlRow<ZNBROWSER_COLLECTOR_ENTITYSELECTOR, &Messages::COLLECTOR_ENTITYSELECTOR>,
};
constexpr CommandLevel entitySelectorLevel(entitySelectorRows, Messages::COLLECTOR_ENTITYSELECTOR);

// Those that the usage text leaves out stand behind the others.
constexpr CommandRow rows[] = {
    {Keyword::AddRemove, "The control that adds the selected items and removes them.", &addRemoveLevel},
    {Keyword::AutoFit, "?BOOL? -> BOOL",
     "Sets or reads whether windows scroll to the collected items after an action.", Autofit, nullptr,
     &Messages::COLLECTOR_AUTOFIT},
    {Keyword::DataSource, "What kind of item is collected.", &collectorDataSourceLevel},
    {Keyword::EntitySelector, "The control that chooses what kind of item is collected.",
     &entitySelectorLevel},
    {Keyword::Option, "The actions on what is collected.", &collectorOptionLevel},
    {Keyword::OptionSelector, "How clicks collect, and the control that chooses the action.",
     &collectorOptionSelectorLevel},
    {Keyword::PnlColSelector, "The named collections of the current view.", &collectorPnlColSelectorLevel},
    {Keyword::Preselector, "-> on|off", "Tells whether windows mark the item under the pointer.", Preselector,
     &collectorPreselectorLevel},
    {Keyword::Selection, "What is collected in the current view.", &collectorSelectionLevel},
    {Keyword::Undo, "", "Takes back the last step of the current view.", Undo, &collectorUndoLevel},
    {Keyword::Isolate, "", "Shows only the collected items, with what lies above and below them.",
     ChangeDisplay<ZNBROWSER_COLLECTOR_ISOLATE>},
    {Keyword::IsolateOnly, "", "Shows only the collected items, with what lies above them.",
     ChangeDisplay<ZNBROWSER_COLLECTOR_ISOLATE_ONLY>},
    {Keyword::ShowOnly, "", "Shows, of the data sources of the collected items, only these.",
     ChangeDisplay<ZNBROWSER_COLLECTOR_SHOW_ONLY>},
    {Keyword::ShowHide, "Shows or hides the collected items.", &collectorShowHideLevel},
    {Keyword::AddToPnlCol, "?COLLECTION?",
     "Adds what is collected to a named collection, or the current one.", AddToPnlCol},
    {Keyword::Show, "?BOOL? -> BOOL", "Sets or reads whether the current window has a collector bar.", Show,
     nullptr, &Messages::COLLECTOR_SHOW},
};

} // namespace

constexpr CommandLevel collectorLevel(rows, Messages::COLLECTOR);

} // namespace znlayer

int znBrowserManagerTcl::CollectorTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    using namespace znlayer;
    return RunFamily(*this, collectorLevel, objc, objv);
}
