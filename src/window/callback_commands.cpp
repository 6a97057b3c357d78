// znbrowsermanager window part event ...
#include "window/window_levels.h"

// The text leaves out "part", which the words need.
const char* const znBrowserTclMessages::WINDOW_EVENT =
    "    znbrowsermanager window event [action] \n\n"
    "    \tActions:\n"
    "    \tcallback create <callback> <type>   Creates a callback of the current event and makes it the\n"
    "    \t                                    current one. Type WINDOW_OPERATION: a window operation.\n"
    "    \tcallback current [callback]         Gets/sets the current callback.\n"
    "    \tcallback delete                     Accepted, and does nothing.\n"
    "    \tcallback names                      Shows the names of the callbacks of the current event.\n"
    "    \tcallback operation [operation]      Gets/sets the operation of the current callback:\n"
    "    \t                                    TREE_AREA_SELECT_PARENT_ITEMS or\n"
    "    \t                                    TREE_AREA_SELECT_CHILDREN_ITEMS.\n"
    "    \tcallback window [window]            Gets/sets the action window of the current callback.\n"
    "    \tcurrent [event]                     Gets/sets the current event of the current part.\n"
    "    \tnames                               Shows the names of the events of the current part.\n\n";

namespace {

using Manager = znBrowserManagerTcl;

void CallbackCreate(Call& call) {
    if (!call.Has(7)) return call.Answer(znBrowserTclMessages::WINDOW_EVENT);
    call.AnswerOutcome(call.manager.CreateWindowCallback(call.Text(6), call.Text(7)), call.Text(6));
}

void CallbackCurrent(Call& call) {
    call.SetThenAnswer(6, &Manager::SetCurrentWindowCallback, &Manager::GetCurrentWindowCallback);
}

void CallbackDelete(Call&) {}

void CallbackNames(Call& call) { call.AnswerValue(&Manager::GetWindowCallbackNames); }

void CallbackOperation(Call& call) {
    call.SetThenAnswer(6, &Manager::SetCurrentWindowCallbackOperation,
                       &Manager::GetCurrentWindowCallbackOperation);
}

void CallbackWindow(Call& call) {
    call.SetThenAnswer(6, &Manager::SetCurrentWindowCallbackActionWindow,
                       &Manager::GetCurrentWindowCallbackActionWindow);
}

void Current(Call& call) { call.SetThenAnswer(5, &Manager::SetCurrentEvent, &Manager::GetCurrentEvent); }

void Names(Call& call) { call.AnswerValue(&Manager::GetWindowPartEventNames); }

constexpr CommandRow callbackRows[] = {
    {Keyword::Create, CallbackCreate},       {Keyword::Current, CallbackCurrent},
    {Keyword::Delete, CallbackDelete},       {Keyword::Names, CallbackNames},
    {Keyword::Operation, CallbackOperation}, {Keyword::Window, CallbackWindow},
};
constexpr CommandLevel callbackLevel(callbackRows, znBrowserTclMessages::WINDOW_EVENT);

constexpr CommandRow rows[] = {
    {Keyword::Callback, nullptr, &callbackLevel},
    {Keyword::Current, Current},
    {Keyword::Names, Names},
};

} // namespace

constexpr CommandLevel windowPartEventLevel(rows, znBrowserTclMessages::WINDOW_EVENT);
