// datasource hierarchical ...: simple data sources arranged as a tree.
#include "data/data_source_commands.h"
#include "frame/command_table.h"
#include "frame/command_words.h"

// clang-format off: the texts keep their lines.
const char* const znBrowserTclMessages::DATASOURCE_HIERARCHICAL =
    "    znbrowsermanager datasource hierarchical [action] \n\n"
    "    \tconnect <child|parent> <datasource_name>    Connects the simple datasource(base) to the current\n"
    "    \t                                            hierarchical datasource.  The parent option will set\n"
    "    \t                                            the parent datasource, the child option will add a\n"
    "    \t                                            child datasource.\n"
    "    \tconnected                                   Returns the connected hierarchical datasources.\n"
    "    \tcurrent [datasource_name]                   Gets/sets the current hierarchical datasource.\n"
    "    \tdisconnect <datasource_name>                Disconnects the simple datasource(base) from the "
    "current\n"
    "    \t                                            hierarchical datasource.  Note that a parent "
    "datasource\n"
    "    \t                                            cannot be disconnected from the current hierarchical "
    "datasource.\n"
    "    \tnames                                       Returns the names of all of the hierarchical "
    "datasources.\n\n";
// clang-format on

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

// Unlike keywords, "parent" and "child" are taken in exactly these letters; any other word ends the command
// without a word. The parent needs no third word, and yet one must stand there.
void Connect(Call& call) {
    const std::string_view kind = call.Text(4);
    if (kind != "parent" && kind != "child") return;
    if (call.Is(5, Keyword::Names)) {
        return call.AnswerValue(kind == "parent" ? &Manager::DataSourceHierarchicalParentNames
                                                 : &Manager::DataSourceHierarchicalChildrenNames);
    }
    if (!call.Has(6)) return call.Answer(Messages::DATASOURCE_HIERARCHICAL);
    call.AnswerOutcome(call.manager.DataSourceHierarchicalConnect(kind.data(), call.Text(5), call.Text(6)));
}

void Connected(Call& call) { call.AnswerValue(&Manager::DataSourceHierarchicalConnected); }

// A bad first boolean shows the usage of another family; scripts know it so.
void Create(Call& call) {
    bool first = false;
    bool second = false;
    if (!call.Boolean(5, first)) return call.Answer(Messages::USERINPUT);
    if (!call.Boolean(6, second)) return call.Answer(Messages::DATASOURCE_HIERARCHICAL);
    const bool created = call.manager.CreateDataSourceHierarchical(call.Text(4), first, second,
                                                                   call.TextOr(7, ""), call.TextOr(8, ""));
    call.AnswerOutcome(created, call.Text(4));
}

void Current(Call& call) {
    if (call.Has(4) && !call.manager.SetCurrentDataSourceHierarchical(call.Text(4)))
        return call.AnswerError();
    call.Answer(call.manager.GetCurrentDataSourceHierarchical());
}

void Disconnect(Call& call) {
    RunWithName(call, 4, &Manager::DataSourceHierarchicalDisconnectSimple, Messages::DATASOURCE_HIERARCHICAL);
}

void Names(Call& call) { call.AnswerValue(&Manager::DataSourceHierarchicalNames); }
void DataItems(Call& call) { call.AnswerValue(&Manager::GetDataItemsFromCurrentDSH); }
void Criteria(Call& call) { call.Answer("Feature not supported for 9.0"); }
void Property(Call& call) { call.Answer("Feature not supported in 9.0"); }

// The usage text leaves out the last four.
constexpr CommandRow hierarchicalRows[] = {
    {Keyword::Connect, "parent|child ?names|DATASOURCE? ?TEXT? -> DATASOURCE ...",
     "Makes a simple data source the parent, or adds it as a child, or lists them.", Connect},
    {Keyword::Connected, "-> HIERARCHICAL ...", "Lists the hierarchical data sources that are connected.",
     Connected},
    {Keyword::Current, "?HIERARCHICAL? -> HIERARCHICAL",
     "Makes a hierarchical data source current, or tells which is.", Current},
    {Keyword::Disconnect, "DATASOURCE", "Removes a child from the current hierarchical data source.",
     Disconnect},
    {Keyword::Names, "-> HIERARCHICAL ...", "Lists the hierarchical data sources.", Names},
    {Keyword::Create, "NAME BOOL BOOL ?TEXT? ?TEXT? -> NAME",
     "Makes a hierarchical data source and makes it current.", Create},
    {Keyword::DataItem, "-> TEXT ...",
     "Lists what the current property shows for the items of the data source.", DataItems},
    {Keyword::Criteria, "-> TEXT", "Answers that criteria are not supported here.", Criteria},
    {Keyword::Property, "-> TEXT", "Answers that properties are not supported here.", Property},
};

} // namespace

constexpr CommandLevel dataSourceHierarchicalLevel(hierarchicalRows, Messages::DATASOURCE_HIERARCHICAL);

} // namespace znlayer
