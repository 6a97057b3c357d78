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

void ElementDelete(Call& call) {
    if (!call.Has(3)) return call.Answer(Messages::VIEW_ELEMENT);
    call.AnswerOutcome(call.manager.DeleteStyleElement(call.Text(3)));
}

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

constexpr CommandRow elementRows[] = {
    {Keyword::Current, ElementCurrent},
    {Keyword::Delete, ElementDelete},
    {Keyword::Description, ElementDescription},
    {Keyword::Names, ElementNames},
};
constexpr CommandRow emptyRows[] = {{Keyword::Show, EmptyShow}};
constexpr CommandRow noRows[] = {{Keyword::Filter, NoFilter}};
constexpr CommandRow selectionRows[] = {{Keyword::Clear, Selection}};
constexpr CommandRow checkBoxRows[] = {{Keyword::Display, CheckBoxDisplay},
                                       {Keyword::Create, CheckBoxCreate}};

constexpr CommandLevel elementLevel(elementRows, Messages::VIEW_COLUMN);
constexpr CommandLevel emptyLevel(emptyRows, Messages::EMPTY);
constexpr CommandLevel noLevel(noRows, Messages::NO_FILTER);
constexpr CommandLevel selectionLevel(selectionRows, Messages::VIEW_SELECTION);
constexpr CommandLevel checkBoxLevel(checkBoxRows, Messages::VIEW_COLUMN);

constexpr CommandRow topRows[] = {
    {Keyword::View, nullptr, &viewLevel},
    {Keyword::Window, nullptr, &windowLevel},
    {Keyword::App, App},
    {Keyword::Frame, Frame},
    {Keyword::State, RunFamilyOf<&Manager::StateTclAPICommands>, &stateLevel},
    {Keyword::DataCtrl, nullptr, &dataCtrlLevel},
    {Keyword::Element, nullptr, &elementLevel},
    {Keyword::Empty, nullptr, &emptyLevel},
    {Keyword::NoFilterForm, nullptr, &noLevel},
    {Keyword::Selection, Selection, &selectionLevel},
    {Keyword::UserInput, nullptr, &userInputLevel},
    {Keyword::Collector, RunFamilyOf<&Manager::CollectorTclAPICommands>},
    {Keyword::DataSource, nullptr, &dataSourceLevel},
    {Keyword::DataOperation, nullptr, &dataOperationLevel},
    {Keyword::DataReference, nullptr, &dataReferenceLevel},
    {Keyword::Checkbox, nullptr, &checkBoxLevel},
    {Keyword::OnTkTreeRequestCollapse, OnRequestCollapse},
    {Keyword::OnTkTreeRequestCollapseAll, OnRequestCollapseAll},
    {Keyword::OnTkTreeRequestDeselect, OnRequestDeselect},
    {Keyword::OnTkTreeSelectionChangeFinished, OnSelectionChangeFinished},
    {Keyword::OnTkTreeRequestSelectionUpdate, OnRequestSelectionUpdate},
    {Keyword::OnTkTreeRequestExpand, OnRequestExpand},
    {Keyword::OnTkTreeRequestExpandAll, OnRequestExpandAll},
    {Keyword::OnTkTreeRequestSelect, OnRequestSelect},
    {Keyword::OnTkTreeSetStatePos, OnSetStatePos},
    {Keyword::OnTkTreeCheckBoxClick, OnCheckBoxClick},
    {Keyword::OnTkTreeWindowButtonClick, OnWindowButtonClick},
    {Keyword::OnTkTreeLeftHandClick, OnLeftHandClick},
    {Keyword::OnTkTreeRightHandClick, OnRightHandClick},
    {Keyword::OnTkTreePopupMenu, OnPopupMenu},
    {Keyword::OnTkTreePerformPopupOperation, OnPerformPopupOperation},
    {Keyword::OnTkTreeSetDropItem, OnSetDropItem},
    {Keyword::OnTkColListItemSelected, OnColListItemSelected},
    {Keyword::OnTkColOptionItemSelected, OnColOptionItemSelected},
    {Keyword::OnTkColPreselButtonClicked, OnColPreselButtonClicked},
};

/// "data", "pending" and "apply" are keywords, but never actions.
constexpr Keyword firstAction = Keyword::View;
constexpr Keyword lastAction = Keyword::OnTkColPreselButtonClicked;

} // namespace

constexpr CommandLevel topLevel(topRows, Messages::GENERAL);

int znBrowserManagerTcl::EvalTclCommand(int objc, Tcl_Obj* const objv[]) {
    if (ProcessingCommand()) return TCL_OK;
    ++commandsBegun;
    SetCommand(objc, objv);
    Call call(*this, objc, objv);
    const Keyword action = call.Word(1);
    if (action < firstAction || action > lastAction)
        call.Answer(Messages::GENERAL);
    else
        RunWord(call, topLevel, 1, action);
    return call.Finish();
}
