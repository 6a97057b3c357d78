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

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;

constexpr char refusedName[] = "can't create the window part with \"toplevel\" name";
constexpr char noPart[] = "No current window part available";

void Usage(Call& call) { call.Answer(znBrowserTclMessages::WINDOW_PART); }

void Create(Call& call) {
    if (call.Is(4, Keyword::TopLevel)) return call.Answer(refusedName);
    call.AnswerOutcome(call.manager.CreateWindowPart(call.Text(4), call.TextOr(5, "")), call.Text(4));
}

void CurrentTopLevel(Call& call) { call.manager.ResetCurrentWindowPart(); }

constexpr CommandRow currentRows[] = {
    {Keyword::TopLevel, "", "Makes the main frame of the window the current part.", CurrentTopLevel},
};
constexpr CommandLevel currentLevel(currentRows, znBrowserTclMessages::WINDOW_PART);

void Current(Call& call) {
    if (call.Is(4, Keyword::TopLevel)) return RunLevel(call, currentLevel, 4);
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
    call.AnswerOutcome((call.manager.*set)(call.Text(4), call.TextOr(5, "")));
}

void ParentTopLevel(Call& call) {
    if (!call.manager.SetCurrentWindowPartParentByName(nullptr)) return call.AnswerError();
    call.AnswerValue(&Manager::GetCurrentWindowPartParent);
}

constexpr CommandRow parentRows[] = {
    {Keyword::TopLevel, "", "Moves the current part directly under the main frame of the window.",
     ParentTopLevel},
};
constexpr CommandLevel parentLevel(parentRows, znBrowserTclMessages::WINDOW_PART);

void Parent(Call& call) {
    if (call.Is(4, Keyword::TopLevel)) return RunLevel(call, parentLevel, 4);
    call.SetThenAnswer(4, &Manager::SetCurrentWindowPartParentByName, &Manager::GetCurrentWindowPartParent);
}

void Show(Call& call) {
    bool shown = false;
    if (call.Has(4) && !call.Boolean(4, shown)) return Usage(call);
    if (call.Has(4) && !call.manager.SetWindowPartShownState(shown)) return call.AnswerError();
    call.AnswerValue(&Manager::GetWindowPartShownState);
}

void OperationNames(Call& call) { call.AnswerValue(&Manager::GetWindowPartOperationNames); }

constexpr CommandRow operationRows[] = {
    {Keyword::Names, "-> TEXT ...", "Lists the operations of the current part.", OperationNames},
};
constexpr CommandLevel operationLevel(operationRows, znBrowserTclMessages::WINDOW_OPERATION);

constexpr CommandRow rows[] = {
    {Keyword::Create, "NAME ?PART? -> NAME", "Makes a part, in the main frame or in another part.", Create},
    {Keyword::CreateProc, "PROC ?TEXT?", "Sets the procedure that fills the part's frame, and its argument.",
     SetProc<&Manager::SetWindowPartCreateProc>},
    {Keyword::Current, "?PART? -> ?PART?", "Makes a part of the window current, or tells which is.", Current,
     &currentLevel},
    {Keyword::Info, "-> TEXT", "Shows a table of the parts under the current part.", Info},
    {Keyword::Delete, "", "Deletes the current part.", Delete},
    {Keyword::Frame, "-> FRAME", "Tells the path of the part's frame.", Frame},
    {Keyword::Move, "INT", "Moves the part to a position among its neighbours.", Move},
    {Keyword::Names, "?BOOL? -> PART ...",
     "Lists the parts in the current part; with true, all parts below it.", Names},
    {Keyword::PackProc, "PROC ?TEXT?", "Sets the procedure that packs the part's frame, and its argument.",
     SetProc<&Manager::SetWindowPartPackProc>},
    {Keyword::Parent, "?PART? -> ?PART?", "Moves the current part into another, or tells in which it is.",
     Parent, &parentLevel},
    {Keyword::Show, "?BOOL? -> BOOL", "Shows or hides the part, or tells whether it is shown.", Show},
    // These have usage texts of their own.
    {Keyword::Event, "The events of the current part.", &windowPartEventLevel},
    {Keyword::Operation, "What the current part can do.", &operationLevel},
};

} // namespace

constexpr CommandLevel windowPartLevel(rows, znBrowserTclMessages::WINDOW_PART);

} // namespace znlayer
