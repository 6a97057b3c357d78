// znbrowsermanager window part ...
#include "window/window_levels.h"

const char* const znBrowserTclMessages::WINDOW_PART =
    "    znbrowsermanager window part [action] \n\n"
    "    \tActions:\n"
    "    \tcreate <part> [parent_part]    Creates a new part in the current window, under the toplevel or\n"
    "    \t                               the given part, and makes it the current part.\n"
    "    \tcreateproc <proc> [argument]   Sets the procedure that fills the frame of the current part.\n"
    "    \tcurrent [part]                 Gets/sets the current part.\n"
    "    \tcurrent toplevel               Makes the main frame of the current window the current part.\n"
    "    \tinfo                           Displays wll parts information under the current part for the\n"
    "    \t                               current window.\n"
    "    \tdelete                         Deletes the current part.\n"
    "    \tframe                          Shows the frame path of the current part.\n"
    "    \tmove <up|down|left|right>      Not supported: a part is moved by its position.\n"
    "    \tmove <position>                Sets the position of the current part.\n"
    "    \tnames [true|false]             Shows the names of the parts under the current part; true: of\n"
    "    \t                               all parts below it.\n"
    "    \tpackproc <proc> [argument]     Sets the procedure that packs the frame of the current part.\n"
    "    \tparent [part|toplevel]         Gets/sets the parent of the current part.\n"
    "    \tshow [true|false]              Gets/sets the shown state of the current part.\n\n";

const char* const znBrowserTclMessages::WINDOW_OPERATION =
    "    znbrowsermanager window operation [action] \n\n"
    "    \tActions:\n"
    "    \tnames   Shows the names of the operations of the current window part.\n\n";

namespace {

using Manager = znBrowserManagerTcl;

constexpr char refusedName[] = "can't create the window part with \"toplevel\" name";
constexpr char noPart[] = "No current window part available";

void Usage(Call& call) { call.Answer(znBrowserTclMessages::WINDOW_PART); }

void Create(Call& call) {
    if (!call.Has(4)) return Usage(call);
    if (call.Is(4, Keyword::TopLevel)) return call.Answer(refusedName);
    call.AnswerOutcome(call.manager.CreateWindowPart(call.Text(4), call.TextOr(5, "")), call.Text(4));
}

void Current(Call& call) {
    if (call.Is(4, Keyword::TopLevel)) return call.manager.ResetCurrentWindowPart();
    call.SetThenAnswer(4, &Manager::SetCurrentWindowPartByName, &Manager::GetCurrentWindowPart);
}

void Info(Call& call) { call.AnswerValue(&Manager::GetWindowPartInfo); }

void Delete(Call& call) {
    if (!call.manager.GetCurrentWindowPartPtr()) return call.Answer(noPart);
    znString name;
    call.manager.GetCurrentWindowPart(name);
    call.AnswerOutcome(call.manager.DeleteWindowPart(name.GetText()));
}

void Frame(Call& call) { call.AnswerValue(&Manager::GetWindowPartFramePath); }

void Move(Call& call) {
    int position = 0;
    if (!call.Integer(4, position)) return Usage(call);
    call.AnswerOutcome(call.manager.SetWindowPartPosition(position));
}

void Names(Call& call) {
    bool recursive = false;
    if (call.Has(4) && !call.Boolean(4, recursive)) return Usage(call);
    znString names;
    const bool listed = call.manager.GetWindowPartNames(names, recursive);
    call.AnswerOutcome(listed, names.c_str());
}

/// A procedure, and an argument that the host hands to it.
template <bool (Manager::*set)(const char*, const char*)>
void SetProc(Call& call) {
    if (!call.Has(4)) return Usage(call);
    call.AnswerOutcome((call.manager.*set)(call.Text(4), call.TextOr(5, "")));
}

void Parent(Call& call) {
    if (call.Has(4)) {
        const char* const parent = call.Is(4, Keyword::TopLevel) ? nullptr : call.Text(4);
        if (!call.manager.SetCurrentWindowPartParentByName(parent)) return call.AnswerError();
    }
    call.AnswerValue(&Manager::GetCurrentWindowPartParent);
}

void Show(Call& call) {
    bool shown = false;
    if (call.Has(4) && !call.Boolean(4, shown)) return Usage(call);
    if (call.Has(4) && !call.manager.SetWindowPartShownState(shown)) return call.AnswerError();
    call.AnswerValue(&Manager::GetWindowPartShownState);
}

void OperationNames(Call& call) { call.AnswerValue(&Manager::GetWindowPartOperationNames); }

constexpr CommandRow topLevelRows[] = {{Keyword::TopLevel, Current}};
constexpr CommandLevel topLevelWord(topLevelRows, znBrowserTclMessages::WINDOW_PART);

constexpr CommandRow operationRows[] = {{Keyword::Names, OperationNames}};
constexpr CommandLevel operationLevel(operationRows, znBrowserTclMessages::WINDOW_OPERATION);

constexpr CommandRow rows[] = {
    {Keyword::Create, Create},
    {Keyword::CreateProc, SetProc<&Manager::SetWindowPartCreateProc>},
    {Keyword::Current, Current, &topLevelWord},
    {Keyword::Info, Info},
    {Keyword::Delete, Delete},
    {Keyword::Frame, Frame},
    {Keyword::Move, Move},
    {Keyword::Names, Names},
    {Keyword::PackProc, SetProc<&Manager::SetWindowPartPackProc>},
    {Keyword::Parent, Parent, &topLevelWord},
    {Keyword::Show, Show},
    // These have usage texts of their own.
    {Keyword::Event, nullptr, &windowPartEventLevel},
    {Keyword::Operation, nullptr, &operationLevel},
};

} // namespace

constexpr CommandLevel windowPartLevel(rows, znBrowserTclMessages::WINDOW_PART);
