// view element ...
#include "frame/command_table.h"
#include "frame/command_words.h"

const char* const znBrowserTclMessages::VIEW_ELEMENT =
    "    znbrowsermanager view element [action] \n\n"
    "    \tActions:\n"
    "    \tconnect <property/map> [property_name|map_name]  "
    "Connects the current element with a specified map/property\n"
    "    \t                                                 "
    "or the current map/property if no map/property name is specified.\n"
    "    \tcreate                                           Create a new element in the current view style.\n"
    "    \tcurrent                                          "
    "Gets/sets the current element in the current view style.\n"
    "    \tdelete                                           "
    "Deletes the current element in the current view style.\n"
    "    \tnames                                            "
    "Shows a list of names of existing elements in the current view style.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// The answer names the current object, even when another one was given.
void ConnectMap(Call& call) {
    if (!call.manager.SetStyleElementMapName(call.Text(5))) return call.AnswerError();
    call.Answer(call.manager.GetCurrentGuiMapName());
}

void ConnectProperty(Call& call) {
    if (!call.manager.SetStyleElementProperty(call.Text(5))) return call.AnswerError();
    call.Answer(call.manager.GetCurrentViewPropertyName());
}

void Create(Call& call) {
    call.AnswerOutcome(call.manager.CreateViewStyleElement(call.Text(4), call.TextOr(5, "")), call.Text(4));
}

void Current(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentStyleElement, &Manager::GetCurrentStyleElement);
}

void Delete(Call& call) { RunWithName(call, 4, &Manager::DeleteStyleElement, Messages::VIEW_ELEMENT); }

void Names(Call& call) { call.AnswerValue(&Manager::GetElementNames); }

constexpr CommandRow connectRows[] = {
    {Keyword::Property, "?PROPERTY? -> PROPERTY", "Shows that view property, or the current one.",
     ConnectProperty},
    {Keyword::Map, "?MAP? -> MAP", "Shows what that GUI map, or the current one, gives for a value.",
     ConnectMap},
};
constexpr CommandLevel connectLevel(connectRows, Messages::VIEW_ELEMENT);

constexpr CommandRow elementRows[] = {
    {Keyword::Connect, "What the current element shows.", &connectLevel},
    {Keyword::Create, "NAME ?TEXT? -> NAME", "Makes an element of the current style; the text describes it.",
     Create},
    {Keyword::Current, "?ELEMENT? -> ELEMENT", "Makes an element current, or tells which is.", Current},
    {Keyword::Delete, "ELEMENT", "Deletes an element of the current style.", Delete},
    {Keyword::Names, "-> ELEMENT ...", "Lists the elements of the current style.", Names},
};

} // namespace

constexpr CommandLevel viewElementLevel(elementRows, Messages::VIEW_ELEMENT);

} // namespace znlayer
