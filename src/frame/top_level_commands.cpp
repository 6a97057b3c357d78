// znbrowsermanager ...: the action words, the words answered without a family, and the host's own words.
#include "frame/command_count.h"
#include "frame/command_table.h"
#include "frame/event_commands.h"
#include "host/znIBrowserApplication.h"

#include <tcl.h>

#include <algorithm>

const char* const znBrowserTclMessages::GENERAL = "    znbrowsermanager [action] ?options?\n\n"
                                                  "    \tcollector     Browser virtual collector...\n"
                                                  "    \tdatasource    Browser datasources...\n"
                                                  "    \tstate         Browser state...\n"
                                                  "    \tview          Brower views...\n"
                                                  "    \twindow        Browser windows...\n\n    ";

const char* const znBrowserTclMessages::EMPTY =
    "    znbrowsermanager empty show [true|false]\n\n"
    "    \tActions:\n"
    "    \tset/get state of show empty containers in folders flag\n\n    ";

const char* const znBrowserTclMessages::NO_FILTER =
    "    znbrowsermanager no [option] \n\n"
    "    \tAction: negate previosely configured option\n"
    "    \tfilter    Do not apply filter, i.e. show all items.\n\n    ";

const char* const znBrowserTclMessages::CHECKBOX = "    znbrowsermanager checkbox [action] \n\n"
                                                   "    \tActions:\n"
                                                   "    \tnames               show checkbox names\n\n    ";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// For families that look at more than their table.
template <int (Manager::*family)(int, Tcl_Obj* const[])>
void RunFamilyOf(Call& call) {
    call.KeepResult();
    (call.manager.*family)(call.Count(), call.Words());
}

/// The host's handler gets the words behind "app" at the front of the caller's own array. The two words that
/// make room stand behind them: each reference that the caller holds stays in its array exactly once.
void App(Call& call) {
    call.KeepResult();
    znIBrowserApplication& application = *call.manager.GetApplication();
    Tcl_Obj** const words = const_cast<Tcl_Obj**>(call.Words());
    if (call.Count() > 2) std::rotate(words, words + 2, words + call.Count());
    if (application.EvalAppCommand(call.Count() - 2, words) == TCL_ERROR) call.Raise();
}

void Frame(Call& call) { call.manager.TemporaryTestFunction(); }

void ElementCurrent(Call& call) {
    if (call.Has(3)) call.AnswerOutcome(call.manager.SetCurrentStyleElement(call.Text(3)));
    call.AnswerValue(&Manager::GetCurrentStyleElement);
}

void ElementDelete(Call& call) { call.AnswerOutcome(call.manager.DeleteStyleElement(call.Text(3))); }

void ElementDescription(Call& call) {
    if (call.Has(3)) call.AnswerOutcome(call.manager.SetStyleElementDescription(call.Text(3)));
    call.AnswerValue(&Manager::GetStyleElementDescription);
}

void ElementNames(Call& call) { call.AnswerValue(&Manager::GetElementNames); }

void EmptyShow(Call& call) {
    if (call.Count() < 4) return call.AnswerValue(&Manager::GetFreeFolderShowEmptyContainers);
    bool show = false;
    if (!call.Boolean(3, show)) return call.Answer(Messages::EMPTY);
    if (!call.manager.SetFreeFolderShowEmptyContainers(show)) return call.AnswerError();
    call.Answer(show);
}

void NoFilter(Call& call) {
    call.manager.SetCurrentFilter({});
    call.AnswerValue(&Manager::GetCurrentFilter);
}

void Selection(Call& call) {
    if (!call.Has(2)) return call.Answer(Messages::VIEW_SELECTION);
    if (call.Is(2, Keyword::Clear)) call.AnswerOutcome(call.manager.ClearAllSelection());
}

void CheckBoxDisplay(Call& call) {
    if (call.Count() < 4) return call.Answer(Messages::VIEW_COLUMN);
    const bool elements = call.Is(3, Keyword::Elem);
    int value = 0;
    if ((!elements && !call.Is(3, Keyword::Geom)) || !call.Integer(4, value))
        return call.Answer(Messages::CHECKBOX);
    const char* const window = call.Text(5);
    call.AnswerOutcome(elements ? call.manager.OnTkTreeDispElemsToggleClick(window, value)
                                : call.manager.OnTkTreeDispGeomsToggleClick(window, value));
}

/// Creating a check box is accepted at either end of a row, and nothing is created.
void CheckBoxCreate(Call& call) {
    const bool placed = call.Is(3, Keyword::Beginning) || call.Is(3, Keyword::End);
    if (call.Count() < 6 || !placed) call.Answer(Messages::VIEW_COLUMN);
}

// The actions on style elements share a text when an element's name cannot be read.
constexpr const char* const* elementUsage = &Messages::VIEW_ELEMENT;

constexpr CommandRow elementRows[] = {
    {Keyword::Current, "?ELEMENT? -> ELEMENT",
     "Makes an element of the current style current, or tells which is.", ElementCurrent, nullptr,
     elementUsage},
    {Keyword::Delete, "ELEMENT", "Deletes an element of the current style.", ElementDelete, nullptr,
     elementUsage},
    {Keyword::Description, "?TEXT? -> TEXT", "Sets or reads the description of the current element.",
     ElementDescription, nullptr, elementUsage},
    {Keyword::Names, "-> ELEMENT ...", "Lists the elements of the current style.", ElementNames},
};
constexpr CommandRow emptyRows[] = {
    {Keyword::Show, "?BOOL? -> BOOL",
     "Sets or reads whether the current folder shows containers that are empty.", EmptyShow},
};
constexpr CommandRow noRows[] = {
    {Keyword::Filter, "", "Shows the items of every data source again.", NoFilter},
};
constexpr CommandRow selectionRows[] = {
    {Keyword::Clear, "", "Deselects everything in every view.", Selection},
};
constexpr CommandRow checkBoxRows[] = {
    {Keyword::Display, HandlerChecks("elem|geom INT ?WINDOW?"),
     "Switches a check box of the rows that stand for one item.", CheckBoxDisplay},
    {Keyword::Create, HandlerChecks("beginning|end NAME NAME"), "Is accepted, and makes nothing.",
     CheckBoxCreate},
};

constexpr CommandLevel elementLevel(elementRows, Messages::VIEW_COLUMN);
constexpr CommandLevel emptyLevel(emptyRows, Messages::EMPTY);
constexpr CommandLevel noLevel(noRows, Messages::NO_FILTER);
constexpr CommandLevel selectionLevel(selectionRows, Messages::VIEW_SELECTION);
constexpr CommandLevel checkBoxLevel(checkBoxRows, Messages::VIEW_COLUMN);

constexpr CommandRow topRows[] = {
    {Keyword::View, "Views, and what they show.", &viewLevel},
    {Keyword::Window, "Windows: where views are shown.", &windowLevel},
    {Keyword::App, HandlerChecks("ANY ..."), "The words of the host application.", App},
    {Keyword::Frame, "", "Shows what was held back in the current folder.", Frame},
    {Keyword::State, HandlerChecks(""), "Saved configurations of a window.",
     RunFamilyOf<&Manager::StateTclAPICommands>, &stateLevel},
    {Keyword::DataCtrl, "Data controls: the databases.", &dataCtrlLevel},
    {Keyword::Element, "The elements of the current style.", &elementLevel},
    {Keyword::Empty, "Containers that are empty.", &emptyLevel},
    {Keyword::NoFilterForm, "Takes an option back.", &noLevel},
    {Keyword::Selection, "", "The selection in every view.", Selection, &selectionLevel},
    {Keyword::UserInput, "Input fields.", &userInputLevel},
    {Keyword::Collector, HandlerChecks(""), "The virtual collector.",
     RunFamilyOf<&Manager::CollectorTclAPICommands>, &collectorLevel},
    {Keyword::DataSource, "Data sources: the items of a data control, kind by kind.", &dataSourceLevel},
    {Keyword::DataOperation, "Operations of the current data control.", &dataOperationLevel},
    {Keyword::DataReference, "The data references of the current data control.", &dataReferenceLevel},
    {Keyword::Checkbox, "Check boxes of rows.", &checkBoxLevel},
    // What the trees of a window report. Each event looks at its words itself: what it answers to a bad one
    // differs from event to event.
    {Keyword::OnTkTreeRequestCollapse, HandlerChecks("WINDOW INDEX"), "A row was collapsed.",
     OnRequestCollapse},
    {Keyword::OnTkTreeRequestCollapseAll, HandlerChecks("WINDOW"),
     "Everything was collapsed; nothing follows from it.", OnRequestCollapseAll},
    {Keyword::OnTkTreeRequestDeselect, HandlerChecks("WINDOW INDEX ..."), "Rows were deselected.",
     OnRequestDeselect},
    {Keyword::OnTkTreeSelectionChangeFinished, HandlerChecks("WINDOW"),
     "A change of the selection is complete.", OnSelectionChangeFinished},
    {Keyword::OnTkTreeRequestSelectionUpdate, HandlerChecks("WINDOW INDEX ..."),
     "These rows are now the selection.", OnRequestSelectionUpdate},
    {Keyword::OnTkTreeRequestExpand, HandlerChecks("WINDOW INDEX"), "A row was expanded.", OnRequestExpand},
    {Keyword::OnTkTreeRequestExpandAll, HandlerChecks("WINDOW"),
     "Everything was expanded; nothing follows from it.", OnRequestExpandAll},
    {Keyword::OnTkTreeRequestSelect, HandlerChecks("WINDOW INDEX ..."), "Rows were selected.",
     OnRequestSelect},
    {Keyword::OnTkTreeSetStatePos, HandlerChecks("WINDOW INT"), "A position of the state was chosen.",
     OnSetStatePos},
    {Keyword::OnTkTreeCheckBoxClick, HandlerChecks("WINDOW COLUMN ELEMENT INDEX BOOL"),
     "A check box was switched.", OnCheckBoxClick},
    {Keyword::OnTkTreeWindowButtonClick, HandlerChecks("WINDOW COLUMN ELEMENT INDEX VALUE"),
     "A button in a cell was pressed.", OnWindowButtonClick},
    {Keyword::OnTkTreeLeftHandClick, HandlerChecks("WINDOW COLUMN ELEMENT INDEX"), "A cell was clicked.",
     OnLeftHandClick},
    {Keyword::OnTkTreeRightHandClick, HandlerChecks("WINDOW COLUMN INDEX ..."),
     "A cell was clicked with the right button.", OnRightHandClick},
    {Keyword::OnTkTreePopupMenu, HandlerChecks("WINDOW BOOL"), "A popup menu was opened or closed.",
     OnPopupMenu},
    {Keyword::OnTkTreePerformPopupOperation, HandlerChecks("WINDOW POPUPMENUITEM|VIEWOPERATION VALUE"),
     "An item or a view operation was chosen in a popup menu.", OnPerformPopupOperation},
    {Keyword::OnTkTreeSetDropItem, HandlerChecks("WINDOW INDEX INDEX ..."),
     "Rows were dropped on the first one.", OnSetDropItem},
    {Keyword::OnTkColListItemSelected, HandlerChecks("WINDOW KIND|none"),
     "A data source was chosen for the collector.", OnColListItemSelected},
    {Keyword::OnTkColOptionItemSelected, HandlerChecks("WINDOW OPTION"),
     "An action was chosen for the collector.", OnColOptionItemSelected},
    {Keyword::OnTkColPreselButtonClicked, HandlerChecks("WINDOW on|off"),
     "The collector's preselector was switched; nothing follows from it.", OnColPreselButtonClicked},
};

// "data", "pending" and "apply" are keywords, but never actions.
static_assert(LieWithin(topRows, Keyword::View, Keyword::OnTkColPreselButtonClicked),
              "no keyword outside this range is an action");

} // namespace

constexpr CommandLevel topLevel(topRows, Messages::GENERAL);

} // namespace znlayer

int znBrowserManagerTcl::EvalTclCommand(int objc, Tcl_Obj* const objv[]) {
    using namespace znlayer;
    if (ProcessingCommand()) return TCL_OK;
    ++commandsBegun;
    SetCommand(objc, objv);
    Call call(*this, objc, objv);
    RunWord(call, topLevel, 1, call.Word(1));
    return call.Finish();
}
