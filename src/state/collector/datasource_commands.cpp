// znbrowsermanager collector datasource simple ...: what kind of item is collected.
#include "state/collector/collector_words.h"

const char* const znBrowserTclMessages::COLLECTOR_DATASOURCE =
    "    znbrowsermanager collector datasource [action] \n\n"
    "    \tActions:\n"
    "    \tsimple current [datasource_name|none]    Gets/sets the simple datasource whose items are "
    "collected;\n"
    "    \t                                         with none items of every datasource are.\n"
    "    \tsimple names                             Returns the names of the simple datasources whose items\n"
    "    \t                                         can be collected.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Current(Call& call) {
    call.SetThenAnswer(5, &Manager::SetCurrentCollectorDataSourceSimple,
                       &Manager::GetCurrentCollectorDataSourceSimple);
}

void Names(Call& call) { call.AnswerValue(&Manager::GetCollectorDataSourceSimpleNames); }

constexpr CommandRow simpleRows[] = {
    {Keyword::Current, "?KIND|none? -> KIND|none",
     "Chooses the data source whose items are collected, or tells which it is.", Current},
    {Keyword::Names, "-> KIND ...", "Lists the data sources whose items can be collected.", Names},
};
constexpr CommandLevel simpleLevel(simpleRows, Messages::COLLECTOR_DATASOURCE);

constexpr CommandRow rows[] = {
    {Keyword::Simple, "The simple data source whose items are collected.", &simpleLevel},
};

} // namespace

constexpr CommandLevel collectorDataSourceLevel(rows, Messages::COLLECTOR_DATASOURCE);

} // namespace znlayer
