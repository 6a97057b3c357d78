// znbrowsermanager collector option ...: the actions on what is collected.
#include "state/collector/collector_words.h"

const char* const znBrowserTclMessages::COLLECTOR_OPTION =
    "    znbrowsermanager collector option [action] \n\n"
    "    \tActions:\n"
    "    \tcreate <option_name> <proc>    Creates an option that calls the Tcl procedure with the name of "
    "the\n"
    "    \t                               view and the list of the collected items, a datasource and a "
    "number\n"
    "    \t                               each. What it changes is one step.\n"
    "    \tcurrent [option_name]          Gets/sets the current option.\n"
    "    \tdelete <option_name>           Deletes an option that a script created.\n"
    "    \tnames                          Returns the names of the options.\n"
    "    \tperform [option_name]          Performs the option, or the current one.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Create(Call& call) {
    call.AnswerOutcome(call.manager.CreateCollectorOption(call.Text(4), call.Text(5)), call.Text(4));
}

void Current(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentCollectorOption, &Manager::GetCurrentCollectorOption);
}

void Delete(Call& call) { call.AnswerOutcome(call.manager.DeleteCollectorOption(call.Text(4))); }

void Names(Call& call) { call.AnswerValue(&Manager::GetCollectorOptionNames); }

void Perform(Call& call) { call.AnswerOutcome(call.manager.PerformCollectorOption(call.Text(4))); }

constexpr CommandRow rows[] = {
    {Keyword::Create, "NAME PROC -> NAME", "Makes an action of a Tcl procedure.", Create},
    {Keyword::Current, "?OPTION? -> OPTION",
     "Chooses an action, which is not performed, or tells which one is chosen.", Current},
    {Keyword::Delete, "OPTION", "Deletes an action that a script made.", Delete},
    {Keyword::Names, "-> OPTION ...", "Lists the actions.", Names},
    {Keyword::Perform, "?OPTION?", "Performs an action, or the one that is chosen.", Perform},
};

} // namespace

constexpr CommandLevel collectorOptionLevel(rows, Messages::COLLECTOR_OPTION);

} // namespace znlayer
