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

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;

void CallbackCreate(Call& call) {
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
    {Keyword::Create, "NAME TEXT -> NAME",
     "Makes a callback; WINDOW_OPERATION: one that runs a window operation.", CallbackCreate},
    {Keyword::Current, "?CALLBACK? -> CALLBACK", "Makes a callback of the event current, or tells which is.",
     CallbackCurrent},
    {Keyword::Delete, "", "Does nothing.", CallbackDelete},
    {Keyword::Names, "-> CALLBACK ...", "Lists the callbacks of the current event.", CallbackNames},
    {Keyword::Operation, "?TEXT? -> TEXT", "Sets or reads the operation that the callback runs.",
     CallbackOperation},
    {Keyword::Window, "?WINDOW? -> ?WINDOW?", "Sets or reads the window on which the callback acts.",
     CallbackWindow},
};
constexpr CommandLevel callbackLevel(callbackRows, znBrowserTclMessages::WINDOW_EVENT);

constexpr CommandRow rows[] = {
    {Keyword::Callback, "The callbacks of the current event.", &callbackLevel},
    {Keyword::Current, "?EVENT? -> EVENT", "Makes an event of the part current, or tells which is.", Current},
    {Keyword::Names, "-> EVENT ...", "Lists the events of the current part.", Names},
};

} // namespace

constexpr CommandLevel windowPartEventLevel(rows, znBrowserTclMessages::WINDOW_EVENT);

} // namespace znlayer
