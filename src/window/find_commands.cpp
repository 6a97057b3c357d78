// znbrowsermanager window find ...
#include "window/window_levels.h"

const char* const znBrowserTclMessages::WINDOW_FIND =
    "    znbrowsermanager window find [action] \n\n"
    "    \tActions:\n"
    "    \tcurrent [request_name]                        Gets/sets the current find request.\n"
    "    \tnames                                         Shows the find requests of the current window.\n"
    "    \tperform                                       Searches as the current find request says.\n"
    "    \tproperty add <property_name>                  Adds a property to the current find request.\n"
    "    \tproperty criterion current [criterion_name]   Gets/sets the current criterion.\n"
    "    \tproperty criterion matchcase [true|false]     Gets/sets whether letter case matters.\n"
    "    \tproperty criterion matchword [true|false]     Gets/sets whether whole words must match.\n"
    "    \tproperty criterion names                      Shows the criteria of the current property.\n"
    "    \tproperty criterion type [equalto]             Gets/sets the type of the current criterion.\n"
    "    \tproperty criterion useregexp [true|false]     Gets/sets whether the value is a regular "
    "expression.\n"
    "    \tproperty criterion value [text]               Gets/sets the value of the current criterion.\n"
    "    \tproperty current [property_name]              Gets/sets the current property.\n"
    "    \tproperty names                                Shows the properties of the current find request.\n"
    "    \ttype [all|next|previous]                      Gets/sets the type of the current find request.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using StringSetter = bool (Manager::*)(const znString&);
using FlagSetter = bool (Manager::*)(bool);

void Usage(Call& call) { call.Answer(znBrowserTclMessages::WINDOW_FIND); }

/// The word at `position`, if there is one, is set; then the value is read.
template <int position, StringSetter set, Call::Getter get>
void Text(Call& call) {
    if (call.Has(position) && !(call.manager.*set)(call.Text(position))) return call.AnswerError();
    call.AnswerValue(get);
}

/// The same for a flag of the current criterion.
template <FlagSetter set, Call::FlagGetter get>
void Flag(Call& call) {
    bool value = false;
    if (call.Has(6) && !call.Boolean(6, value)) return Usage(call);
    if (call.Has(6) && !(call.manager.*set)(value)) return call.AnswerError();
    call.AnswerValue(get);
}

template <Call::Getter get>
void Value(Call& call) {
    call.AnswerValue(get);
}

void Perform(Call& call) { call.Run(&Manager::PerformCurrentFindRequest); }

void PropertyAdd(Call& call) {
    call.AnswerOutcome(call.manager.AddPropertyToCurrentFindRequest(call.Text(5)));
}

constexpr CommandRow criterionRows[] = {
    {Keyword::Current, "?CRITERION? -> CRITERION",
     "Makes a criterion of the property current, or tells which is.",
     Text<6, &Manager::SetCurrentFindRequestPropertyCriterion,
          &Manager::GetCurrentFindRequestPropertyCriterion>},
    {Keyword::MatchCase, "?BOOL? -> BOOL", "Sets or reads whether letter case matters.",
     Flag<&Manager::SetCurrentFindRequestPropertyCriterionMatchcase,
          &Manager::GetCurrentFindRequestPropertyCriterionMatchcase>},
    {Keyword::MatchWord, "?BOOL? -> BOOL", "Sets or reads whether whole words must match.",
     Flag<&Manager::SetCurrentFindRequestPropertyCriterionMatchword,
          &Manager::GetCurrentFindRequestPropertyCriterionMatchword>},
    {Keyword::Names, "-> CRITERION ...", "Lists the criteria of the current property.",
     Value<&Manager::GetCurrentFindRequestPropertyCriteriaNames>},
    {Keyword::Type, "?equalto? -> ?equalto?", "Sets or reads how values are compared.",
     Text<6, &Manager::SetCurrentFindRequestPropertyCriterionType,
          &Manager::GetCurrentFindRequestPropertyCriterionType>},
    {Keyword::UseRegExp, "?BOOL? -> BOOL", "Sets or reads whether the value is a regular expression.",
     Flag<&Manager::SetCurrentFindRequestPropertyCriterionUseregexp,
          &Manager::GetCurrentFindRequestPropertyCriterionUseregexp>},
    {Keyword::Value, "?TEXT? -> TEXT", "Sets or reads the text to search for.",
     Text<6, &Manager::SetCurrentFindRequestPropertyCriterionValue,
          &Manager::GetCurrentFindRequestPropertyCriterionValue>},
};
constexpr CommandLevel criterionLevel(criterionRows, znBrowserTclMessages::WINDOW_FIND);

constexpr CommandRow propertyRows[] = {
    {Keyword::Add, "PROPERTY", "Adds a property to the find request.", PropertyAdd},
    {Keyword::Criterion, "How values of the current property are matched.", &criterionLevel},
    {Keyword::Criteria, "How values are matched; another word for criterion.", &criterionLevel},
    {Keyword::Current, "?FINDPROPERTY? -> FINDPROPERTY",
     "Makes a property of the find request current, or tells which is.",
     Text<5, &Manager::SetCurrentFindRequestProperty, &Manager::GetCurrentFindRequestProperty>},
    {Keyword::Names, "-> FINDPROPERTY ...", "Lists the properties of the find request.",
     Value<&Manager::GetFindRequestPropertyNames>},
};
constexpr CommandLevel propertyLevel(propertyRows, znBrowserTclMessages::WINDOW_FIND);

constexpr CommandRow rows[] = {
    {Keyword::Current, "?FINDREQUEST? -> FINDREQUEST",
     "Makes a find request of the window current, or tells which is.",
     Text<4, &Manager::SetCurrentFindRequest, &Manager::GetCurrentFindRequest>},
    {Keyword::Names, "-> FINDREQUEST ...", "Lists the find requests of the window.",
     Value<&Manager::GetFindRequestNames>},
    {Keyword::Perform, "", "Searches as the current find request says.", Perform},
    {Keyword::Property, "The properties on which the find request searches.", &propertyLevel},
    {Keyword::Type, "?all|next|previous? -> all|next|previous", "Sets or reads which matches are looked for.",
     Text<4, &Manager::SetCurrentFindRequestType, &Manager::GetCurrentFindRequestType>},
};

} // namespace

constexpr CommandLevel windowFindLevel(rows, znBrowserTclMessages::WINDOW_FIND);

} // namespace znlayer
