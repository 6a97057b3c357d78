// view datasource ...: the data sources of the current view.
#include "frame/command_table.h"
#include "view/view_helper_commands.h"

const char* const znBrowserTclMessages::VIEW_DATASOURCE =
    "    znbrowsermanager view datasource [action] \n\n"
    "    \tActions:\n"
    "    \thierarchical connect <datasource_name>       Connects the hierarchical datasource to the current "
    "view.\n"
    "    \thierarchical connected                       Returns the hierarchical datasources of the current "
    "view.\n"
    "    \thierarchical disconnect <datasource_name>    Disconnects the datasource from the current view.\n"
    "    \thierarchical selected [recursive]            Returns the hierarchical datasources that have\n"
    "    \t                                             selected dataitems.\n"
    "    \tsimple connect <datasource_name>             Connects the simple datasource to the current view.\n"
    "    \tsimple connected                             Returns the simple datasources of the current view.\n"
    "    \tsimple disconnect <datasource_name>          Disconnects the datasource from the current view.\n"
    "    \tsimple selected [recursive]                  Returns the simple datasources that have\n"
    "    \t                                             selected dataitems.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

template <bool (Manager::*change)(znIBrowserView*, const char*)>
void Change(Call& call) {
    znIBrowserView* const view = call.manager.GetCurrentViewPtr();
    if (!view) return call.Answer("No current view available");
    if (!call.Has(5)) return call.Answer(Messages::VIEW_DATASOURCE);
    call.AnswerOutcome((call.manager.*change)(view, call.Text(5)), call.Text(5));
}

template <bool (Manager::*list)(znIBrowserView*, znString&)>
void Connected(Call& call) {
    znIBrowserView* const view = call.manager.GetCurrentViewPtr();
    if (!view) return call.Answer("No current view available");
    znString names;
    const bool listed = (call.manager.*list)(view, names);
    call.AnswerOutcome(listed, names.c_str());
}

template <bool (Manager::*list)(znString&, bool)>
void Selected(Call& call) {
    znString values;
    const bool listed = (call.manager.*list)(values, call.Is(5, Keyword::Recursive));
    call.AnswerOutcome(listed, values.c_str());
}

// Connecting asks for a current view before it looks at its words.
constexpr CommandRow hierarchicalRows[] = {
    {Keyword::Connect,
     {"HIERARCHICAL -> HIERARCHICAL", Arguments::Check::ByHandler},
     "Connects a hierarchical data source to the view.",
     Change<&Manager::DataSourceHierarchicalConnect>},
    {Keyword::Connected, "-> HIERARCHICAL ...", "Lists the hierarchical data sources of the view.",
     Connected<&Manager::DataSourceHierarchicalConnected>},
    {Keyword::Disconnect,
     {"HIERARCHICAL -> HIERARCHICAL", Arguments::Check::ByHandler},
     "Disconnects a hierarchical data source from the view.",
     Change<&Manager::DataSourceDisconnect>},
    {Keyword::Selected, "?recursive? -> HIERARCHICAL ...",
     "Lists the hierarchical data sources that have selected items.",
     Selected<&Manager::DataSourceHierarchicalSelected>},
};

constexpr CommandRow simpleRows[] = {
    {Keyword::Connect,
     {"DATASOURCE -> DATASOURCE", Arguments::Check::ByHandler},
     "Connects a simple data source to the view.",
     Change<&Manager::DataSourceSimpleConnect>},
    {Keyword::Connected, "-> DATASOURCE ...", "Lists the simple data sources of the view.",
     Connected<&Manager::DataSourceSimpleConnected>},
    {Keyword::Disconnect,
     {"DATASOURCE -> DATASOURCE", Arguments::Check::ByHandler},
     "Disconnects a simple data source from the view.",
     Change<&Manager::DataSourceDisconnect>},
    {Keyword::Selected, "?recursive? -> DATASOURCE ...",
     "Lists the simple data sources that have selected items.", Selected<&Manager::DataSourceSimpleSelected>},
};

constexpr CommandLevel hierarchicalLevel(hierarchicalRows, Messages::VIEW_DATASOURCE);
constexpr CommandLevel simpleLevel(simpleRows, Messages::VIEW_DATASOURCE);

// The view helper has words of its own here, for views that connect data sources themselves. It looks at the
// arguments itself.
constexpr CommandRow viewDataSourceRows[] = {
    {Keyword::Hierarchical, "The hierarchical data sources of the current view.", &hierarchicalLevel},
    {Keyword::Simple, "The simple data sources of the current view.", &simpleLevel},
    {Keyword::Connect,
     {"DATASOURCE -> DATASOURCE", Arguments::Check::ByHandler},
     "Connects a data source to the view.",
     AnswerByViewHelper},
    {Keyword::Current,
     {"?DATASOURCE? -> DATASOURCE", Arguments::Check::ByHandler},
     "Makes a data source of the view current, or tells which is.",
     AnswerByViewHelper},
    {Keyword::Disconnect,
     {"DATASOURCE -> DATASOURCE", Arguments::Check::ByHandler},
     "Disconnects a data source from the view.",
     AnswerByViewHelper},
    {Keyword::Names, "-> DATASOURCE|HIERARCHICAL ...", "Lists the data sources of the view.",
     AnswerByViewHelper},
    {Keyword::Selected,
     {"?recursive? -> TEXT ...", Arguments::Check::ByHandler},
     "Lists the selected items of the current data source.",
     AnswerByViewHelper},
};

} // namespace

constexpr CommandLevel viewDataSourceLevel(viewDataSourceRows, Messages::VIEW_DATASOURCE,
                                           Messages::HELPER_DATASOURCE);

} // namespace znlayer
