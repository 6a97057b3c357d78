// view filter ...
#include "frame/command_table.h"
#include "frame/command_words.h"

const char* const znBrowserTclMessages::VIEW_FILTER =
    "    znbrowsermanager view filter [action] \n\n"
    "    \tActions:\n"
    "    \tdataitemtype          Dataitemtype filter options for the current view...\n"
    "    \tgroup [true|false]    Gets/sets the grouping of the filter list of the current view.\n"
    "    \toption                String filter options for the current view...\n"
    "    \tstring                String filter for the current view...\n\n";

const char* const znBrowserTclMessages::VIEW_FILTER_OPTION =
    "    znbrowsermanager view filter option [action] \n\n"
    "    \tActions:\n"
    "    \tmatchcase [true|false]    Gets/sets whether the string filter of the current view matches the "
    "case.\n"
    "    \tmatchword [true|false]    "
    "Gets/sets whether the string filter of the current view matches whole words.\n\n";

const char* const znBrowserTclMessages::VIEW_FILTER_DATAITEMTYPE =
    "    znbrowsermanager view filter dataitemtype [action] \n\n"
    "    \tActions:\n"
    "    \tcurrent [name1 ... nameN]    Gets/sets the dataitemtypes that the current view shows.\n"
    "    \tupdate                       Rebuilds the filter lists of the current view.\n\n";

const char* const znBrowserTclMessages::VIEW_FILTER_STRING =
    "    znbrowsermanager view filter string [action] \n\n"
    "    \tActions:\n"
    "    \tcurrent [pattern]    Gets/sets the string filter of the current view.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Group(Call& call) {
    SetOrGetFlag(call, 4, &Manager::SetViewGroupFilter, &Manager::GetViewGroupFilter, Messages::VIEW_FILTER);
}

/// A match flag: what was set, or what is.
void MatchFlag(Call& call, bool (Manager::*setter)(bool&), Call::FlagGetter getter) {
    if (!call.Has(5)) return call.AnswerValue(getter);
    bool flag = false;
    if (!ReadFlag(call, 5, flag, Messages::VIEW_FILTER_OPTION)) return;
    if (!(call.manager.*setter)(flag)) return call.AnswerError();
    call.Answer(flag);
}

void MatchCase(Call& call) {
    MatchFlag(call, &Manager::SetFilterMatchCaseFlag, &Manager::GetFilterMatchCaseFlag);
}

void MatchWord(Call& call) {
    MatchFlag(call, &Manager::SetFilterMatchWordFlag, &Manager::GetFilterMatchWordFlag);
}

/// Without names nothing is set: there is no way to show no data source at all.
void CurrentTypes(Call& call) {
    if (call.Has(5) && !call.manager.SetCurrentFilter(call.TextsFrom(5))) return call.AnswerError();
    call.AnswerValue(&Manager::GetCurrentFilter);
}

void UpdateTypes(Call& call) {
    if (!call.manager.RebuildFilterLists()) return call.AnswerError();
    call.AnswerValue(&Manager::GetCurrentFilter);
}

void CurrentString(Call& call) {
    call.SetThenAnswer(5, &Manager::SetFilterString, &Manager::GetFilterString);
}

constexpr CommandRow optionRows[] = {
    {Keyword::MatchCase, "?BOOL? -> BOOL", "Sets or reads whether the case of letters counts.", MatchCase},
    {Keyword::MatchWord, "?BOOL? -> BOOL", "Sets or reads whether only whole words match.", MatchWord},
};
constexpr CommandLevel optionLevel(optionRows, Messages::VIEW_FILTER_OPTION);

constexpr CommandRow typeRows[] = {
    {Keyword::Current, "?DATASOURCE? ... -> DATASOURCE ...",
     "Shows only these data sources, or lists those that are shown.", CurrentTypes},
    {Keyword::Update, "-> DATASOURCE ...",
     "Rebuilds the list of filters, and lists the data sources that are shown.", UpdateTypes},
};
constexpr CommandLevel typeLevel(typeRows, Messages::VIEW_FILTER_DATAITEMTYPE);

constexpr CommandRow stringRows[] = {
    {Keyword::Current, "?PATTERN? -> ?PATTERN?", "Sets or reads the text that rows must hold to be shown.",
     CurrentString},
};
constexpr CommandLevel stringLevel(stringRows, Messages::VIEW_FILTER_STRING);

constexpr CommandRow filterRows[] = {
    {Keyword::DataItemType, "The data sources whose items are shown.", &typeLevel},
    {Keyword::Group, "?BOOL? -> BOOL", "Sets or reads whether the list of filters is grouped.", Group},
    {Keyword::Option, "How texts are compared with the filter.", &optionLevel},
    {Keyword::String, "The text by which rows are filtered.", &stringLevel},
};

} // namespace

constexpr CommandLevel viewFilterLevel(filterRows, Messages::VIEW_FILTER);

} // namespace znlayer
