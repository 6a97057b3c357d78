#include "frame/event_commands.h"

#include "frame/call.h"

// Several of these texts do not fit the words that the events take: scripts and their authors know them so.
const char* const znBrowserTclMessages::ON_REQUEST_COLLAPSE =
    "    znbrowsermanager OnTkTreeRequestCollapse <windowname> <tkindex> \n\n"
    "    \tArguments:\n"
    "    \twindowname <tkindex>    Existing window name\n"
    "    \ttkindex                 Tkindex of the item to be collapsed.\n\n";

const char* const znBrowserTclMessages::ON_REQUEST_COLLAPSE_ALL =
    "    znbrowsermanager OnTkTreeRequestCollapseAll <windowname> \n\n"
    "    \tArguments:\n"
    "    \twindowname    Window name which will have all tkitems collapsed.\n\n";

const char* const znBrowserTclMessages::ON_REQUEST_EXPAND =
    "    znbrowsermanager OnTkTreeRequestExpand <windowname> <tkindex> \n\n"
    "    \tArguments:\n"
    "    \twindowname <tkindex>    Existing window name.\n"
    "    \ttkindex                 Tkindex of the item to be expanded.\n\n";

const char* const znBrowserTclMessages::ON_REQUEST_EXPAND_ALL =
    "    znbrowsermanager OnTkTreeRequestExpandAll <windowname> \n\n"
    "    \tArguments:\n"
    "    \twindowname    Window name which will have all tkitems expanded.\n\n";

const char* const znBrowserTclMessages::ON_REQUEST_SELECT =
    "    znbrowsermanager OnTkTreeRequestSelect windowname ctrlstat tkindex1 ?tkindex2 ... tkindexN? \n\n"
    "    \tArguments:\n"
    "    \twindowname                        Existing window name.\n"
    "    \tctrlstat                          Control button click status (true or false)."
    "    \tkindex1 ?tkindex2 ... tkindexN?   List of unsigned integer tkindex values.\n\n";

const char* const znBrowserTclMessages::ON_REQUEST_DESELECT =
    "    znbrowsermanager OnTkTreeRequestDeselect windowname ctrlstat tkindex1 ?tkindex2 ... tkindexN? \n\n"
    "    \tArguments:\n"
    "    \twindowname                        Existing window name.\n"
    "    \tctrlstat                          Control button click status (true or false)."
    "    \tkindex1 ?tkindex2 ... tkindexN?   List of unsigned integer tkindex values.\n\n";

const char* const znBrowserTclMessages::ON_SET_STATE_POS =
    "    znbrowsermanager OnTkTreeSetStatePos windowname tkstateindex \n\n"
    "    \tArguments:\n"
    "    \twindowname          Existing window name.\n"
    "    \tkindex              Unsigned integer tkstateindex value.\n\n";

const char* const znBrowserTclMessages::ON_CHECK_BOX_CLICK =
    "    znbrowsermanager OnTkTreeCheckBoxClick windowname columnname styleelementname tkindex newvalue \n\n"
    "    \tArguments:\n"
    "    \twindowname                        Existing window name.\n"
    "    \tcolumnname                        Existing column name.\n"
    "    \tstyleelementname                  Selected checkbox style element name.\n"
    "    \ttkindex                           Selected checkbox tkindex.\n"
    "    \tnewvalue                          New value to be assigned to the selected checkbox.\n\n";

const char* const znBrowserTclMessages::ON_WINDOW_BUTTON_CLICK =
    "    znbrowsermanager OnTkTreeWindowButtonClick windowname columnname styleelementname tkindex newvalue "
    "\n\n"
    "    \tArguments:\n"
    "    \twindowname                        existing window name\n"
    "    \tcolumnname                        existing column name\n"
    "    \tstyleelementname                  selected checkbox style element name\n"
    "    \ttkindex                           selected checkbox tkindex\n"
    "    \tnewvalue                          new value to be assigned to the selected button\n\n";

const char* const znBrowserTclMessages::ON_LEFT_HAND_CLICK =
    "    znbrowsermanager OnTkTreeLeftHandClick windowname \n\n"
    "    \tArguments:\n"
    "    \twindowname                        Existing window name.\n";

const char* const znBrowserTclMessages::ON_RIGHT_HAND_CLICK =
    "    znbrowsermanager OnTkTreeRightHandClick windowname tkindex1 ?tkindex2 ... tkindexN? \n\n"
    "    \tArguments:\n"
    "    \twindowname                        Existing window name.\n"
    "    \tkindex1 ?tkindex2 ... tkindexN?   List of unsigned integer tkindex values.\n\n";

const char* const znBrowserTclMessages::ON_POPUP_MENU =
    "    znbrowsermanager OnTkTreePopupMenu windowname true/false \n\n"
    "    \tArguments:\n"
    "    \twindowname          Existing window name.\n"
    "    \ttrue/false          Popup Menu is on or off.\n\n";

const char* const znBrowserTclMessages::ON_POPUP_OPERATION =
    "    znbrowsermanager [OnTkTreeBeginPopupMenu|OnTkTreeFinishPopupMenu] windowname operationname\n\n"
    "    \tArguments:\n"
    "    \twindowname          Existing window name.\n"
    "    \toperationname       Existing operation name.\n\n";

const char* const znBrowserTclMessages::ON_DRAG_AND_DROP =
    "    znbrowsermanager OnTkTreeDragAndDrop windowname dropTkIndex tkindex1 ?tkindex2 ... tkindexN? \n\n"
    "    \tArguments:\n"
    "    \twindowname                        Existing window name.\n"
    "    \tdroptkindex                       Integer tkindex value.\n"
    "    \tkindex1 ?tkindex2 ... tkindexN?   List of unsigned integer tkindex values.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// Expand and collapse: the window and one index.
void AnswerIndexEvent(Call& call, bool (Manager::*handler)(const char*, unsigned int), const char* usage) {
    int index = 0;
    if (!call.Has(2) || !call.Integer(3, index)) return call.Answer(usage);
    call.AnswerOutcome((call.manager.*handler)(call.Text(2), static_cast<unsigned int>(index)));
}

/// Selection: the window and a list of indices. A list without indices is no event at all.
void AnswerSelectionEvent(Call& call,
                          bool (Manager::*handler)(const char*, const std::vector<unsigned int>&)) {
    if (call.Count() < 4) return;
    std::vector<unsigned int> indices;
    if (!call.Has(2) || !call.Indices(3, indices)) return call.Answer(Messages::ON_REQUEST_SELECT);
    call.AnswerOutcome((call.manager.*handler)(call.Text(2), indices));
}

/// Collapse and expand all: nobody handles them. The answer is the error text that is pending, normally none.
void AnswerAllEvent(Call& call, const char* usage) {
    if (!call.Has(2)) return call.Answer(usage);
    if (!call.manager.GetErrorText().empty()) call.Answer(call.manager.GetErrorText());
}

void AnswerCollectorEvent(Call& call, bool (Manager::*handler)(const char*, const char*)) {
    if (!call.Has(2) || !call.Has(3)) return call.Answer(Messages::COLLECTOR);
    call.AnswerOutcome((call.manager.*handler)(call.Text(2), call.Text(3)));
}

} // namespace

void OnRequestCollapse(Call& call) {
    AnswerIndexEvent(call, &Manager::OnTkTreeRequestCollapse, Messages::ON_REQUEST_COLLAPSE);
}

void OnRequestExpand(Call& call) {
    AnswerIndexEvent(call, &Manager::OnTkTreeRequestExpand, Messages::ON_REQUEST_EXPAND);
}

void OnRequestCollapseAll(Call& call) { AnswerAllEvent(call, Messages::ON_REQUEST_COLLAPSE_ALL); }

void OnRequestExpandAll(Call& call) { AnswerAllEvent(call, Messages::ON_REQUEST_EXPAND_ALL); }

void OnRequestDeselect(Call& call) { AnswerSelectionEvent(call, &Manager::OnTkTreeSelectionRemoved); }

void OnRequestSelectionUpdate(Call& call) { AnswerSelectionEvent(call, &Manager::OnTkTreeSelectionUpdate); }

void OnRequestSelect(Call& call) { AnswerSelectionEvent(call, &Manager::OnTkTreeSelectionAdded); }

void OnSelectionChangeFinished(Call& call) {
    if (call.Count() < 3) return;
    if (!call.Has(2)) return call.Answer(Messages::ON_REQUEST_SELECT);
    call.AnswerOutcome(call.manager.OnTkTreeSelectionChangeFinished(call.Text(2)));
}

void OnSetStatePos(Call& call) {
    if (!call.Has(2) || !call.Has(3)) return call.Answer(Messages::ON_SET_STATE_POS);
    int position = 0;
    // A word that is no number gets the text of the select event.
    if (!call.Integer(3, position)) return call.Answer(Messages::ON_REQUEST_SELECT);
    call.AnswerOutcome(call.manager.OnTkTreeSetStatePos(call.Text(2), position));
}

void OnCheckBoxClick(Call& call) {
    int index = 0;
    bool value = false;
    if (!call.Has(2) || !call.Has(3) || !call.Has(4) || !call.Integer(5, index) || !call.Boolean(6, value))
        return call.Answer(Messages::ON_CHECK_BOX_CLICK);
    call.AnswerOutcome(call.manager.OnTkTreeCheckBoxClick(call.Text(2), call.Text(3), call.Text(4),
                                                          static_cast<unsigned int>(index), value));
}

void OnWindowButtonClick(Call& call) {
    if (call.Count() < 7) return call.Answer(Messages::ON_WINDOW_BUTTON_CLICK);
    int index = 0;
    // A bad word, unlike a missing one, gets the text of the check box event.
    if (!call.Has(2) || !call.Has(3) || !call.Has(4) || !call.Integer(5, index) || !call.Has(6))
        return call.Answer(Messages::ON_CHECK_BOX_CLICK);
    call.AnswerOutcome(call.manager.OnTkTreeWindowButtonClick(
        call.Text(2), call.Text(3), call.Text(4), static_cast<unsigned int>(index), call.Text(6)));
}

void OnLeftHandClick(Call& call) {
    int index = 0;
    if (!call.Has(2) || !call.Has(3) || !call.Has(4) || !call.Integer(5, index))
        return call.Answer(Messages::ON_LEFT_HAND_CLICK);
    call.AnswerOutcome(call.manager.OnTkTreeLeftHandClick(call.Text(2), call.Text(3), call.Text(4),
                                                          static_cast<unsigned int>(index)));
}

void OnRightHandClick(Call& call) {
    std::vector<unsigned int> indices;
    if (!call.Has(2) || !call.Has(3) || !call.Has(4) || !call.Indices(4, indices))
        return call.Answer(Messages::ON_RIGHT_HAND_CLICK);
    call.AnswerOutcome(call.manager.OnTkTreeRightHandClick(call.Text(2), call.Text(3), indices));
}

void OnPopupMenu(Call& call) {
    bool on = false;
    if (!call.Has(2) || !call.Boolean(3, on)) return call.Answer(Messages::ON_POPUP_MENU);
    call.AnswerOutcome(call.manager.OnTkTreePopupMenu(call.Text(2), on));
}

void OnPerformPopupOperation(Call& call) {
    if (!call.Has(2) || !call.Has(3) || !call.Has(4)) return call.Answer(Messages::ON_POPUP_OPERATION);
    call.AnswerOutcome(call.manager.OnTkTreePerformPopupOperation(call.Text(2), call.Text(3), call.Text(4)));
}

void OnSetDropItem(Call& call) {
    int target = 0;
    std::vector<unsigned int> indices;
    if (!call.Has(2) || !call.Integer(3, target) || target < 0 || !call.Has(4) || !call.Indices(4, indices))
        return call.Answer(Messages::ON_DRAG_AND_DROP);
    call.AnswerOutcome(
        call.manager.OnTkTreeSetDropItem(call.Text(2), static_cast<unsigned int>(target), indices));
}

void OnColListItemSelected(Call& call) { AnswerCollectorEvent(call, &Manager::OnTkColListItemSelected); }

void OnColOptionItemSelected(Call& call) { AnswerCollectorEvent(call, &Manager::OnTkColOptionItemSelected); }

/// "on" and "off" are accepted, and nothing follows from them.
void OnColPreselButtonClicked(Call& call) {
    const bool known = call.Is(3, Keyword::On) || call.Is(3, Keyword::Off);
    if (!call.Has(2) || !known) call.Answer(Messages::COLLECTOR);
}

} // namespace znlayer
