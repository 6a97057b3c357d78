// datasource simple ...: the simple data sources, base and custom.
#include "data/data_source_commands.h"
#include "frame/command_table.h"

// clang-format off: the texts keep their lines.
const char* const znBrowserTclMessages::DATASOURCE_SIMPLE =
    "    znbrowsermanager datasource simple [action] \n\n"
    "    \tcaption [caption_name]                              Gets/sets the caption for the current simple "
    "datasource.\n"
    "    \tconnect <datasource_name>                           Connects the simple datasource(base) to the "
    "current\n"
    "    \t                                                    scripted(custom) datasource.\n"
    "    \tconnected                                           Returns the simple datasources(base) "
    "connected to the\n"
    "    \t                                                    current scripted(custom) datasource.\n"
    "    \tcreate <datasource_name> [caption] [description]    Creates a scripted(custom) datasource with "
    "the given\n"
    "    \t                                                    name, caption and description.  If no caption "
    "is\n"
    "    \t                                                    specified, the caption is assigned the name "
    "given.\n"
    "    \tcriteria                                            Criteria for the current scripted(custom) "
    "datasource...\n"
    "    \tcurrent [datasource_name]                           Gets/sets the current simple datasource.\n"
    "    \tdataitem ids                                        Returns all of the dataitem ids contained in "
    "the\n"
    "    \t                                                    current simple datasource.\n"
    "    \tdelete <datasource_name>                            Deletes the scripted(custom) datasource with "
    "the given name.\n"
    "    \tdisconnect <datasource_name>                        Disconnects the simple datasource(base) from "
    "the current\n"
    "    \t                                                    scripted(custom) datasource.\n"
    "    \tnames                                               Returns the names of all of the simple "
    "datasources.\n"
    "    \toperation                                           Reserved, shows the datasource options.\n"
    "    \tproperty                                            Properties for the current simple "
    "datasource...\n"
    "    \tscript names                                        Returns the names of all of the "
    "scripted(custom) simple\n"
    "    \t                                                    datasources.\n\n";
// clang-format on

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Caption(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentDataSourceSimpleCaption,
                       &Manager::GetCurrentDataSourceSimpleCaption);
}

void FilterCaption(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentDataSourceSimpleFilterCaption,
                       &Manager::GetCurrentDataSourceSimpleFilterCaption);
}

void ConnectCurrent(Call& call) {
    call.AnswerOutcome(call.manager.SetCurrentConnectDataSourceSimple(call.Text(5)), call.Text(5));
}

constexpr CommandRow connectRows[] = {
    {Keyword::Current, "DATASOURCE -> DATASOURCE",
     "Chooses the base to which further settings of the data source refer.", ConnectCurrent},
};
constexpr CommandLevel connectLevel(connectRows, Messages::DATASOURCE);

void Connect(Call& call) {
    if (call.Is(4, Keyword::Current)) return RunLevel(call, connectLevel, 4);
    call.AnswerOutcome(call.manager.DataSourceSimpleConnect(call.Text(4)), call.Text(4));
}

void Connected(Call& call) { call.AnswerValue(&Manager::DataSourceSimpleConnected); }

void Create(Call& call) {
    const bool created =
        call.manager.CreateDataSourceSimple(call.Text(4), call.TextOr(5, ""), call.TextOr(6, ""));
    call.AnswerOutcome(created, call.Text(4));
}

void Current(Call& call) {
    if (call.Has(4) && !call.manager.SetCurrentDataSourceSimple(call.Text(4))) return call.AnswerError();
    call.Answer(call.manager.GetCurrentDataSourceSimple());
}

void DataItems(Call& call) { call.AnswerValue(&Manager::GetDataItemsFromCurrentDSS); }

void Delete(Call& call) {
    if (!call.manager.DeleteDataSourceSimple(call.Text(4))) return call.AnswerError();
    call.Answer(call.manager.GetCurrentDataSourceSimple());
}

void Disconnect(Call& call) {
    call.AnswerOutcome(call.manager.DataSourceSimpleDisconnect(call.Text(4)), call.Text(4));
}

void Names(Call& call) { call.AnswerValue(&Manager::DataSourceSimpleNames); }

// Without a data source there is nothing to have properties, whatever the words.
void Property(Call& call) {
    if (!call.manager.GetCurrentDataSourceSimplePtr())
        return call.Answer("No current datasource simple available");
    RunLevel(call, dataPropertyLevel, 4);
}

void ScriptNames(Call& call) { call.AnswerValue(&Manager::DataSourceSimpleCustomNames); }

constexpr CommandRow scriptRows[] = {
    {Keyword::Names, "-> DATASOURCE ...", "Lists the custom data sources.", ScriptNames},
};
constexpr CommandLevel scriptLevel(scriptRows, Messages::DATASOURCE_SIMPLE);

// The usage text lists an "operation", too; that word is unknown here.
constexpr CommandRow simpleRows[] = {
    {Keyword::Caption, "?TEXT? -> TEXT", "Sets or reads what people read as the name of the data source.",
     Caption, nullptr, &Messages::DATASOURCE},
    {Keyword::FilterCaption, "?TEXT? -> TEXT",
     "Sets or reads what people read for the data source among filters.", FilterCaption, nullptr,
     &Messages::GENERAL},
    {Keyword::Connect, "DATASOURCE -> DATASOURCE", "Connects a base to the current custom data source.",
     Connect, &connectLevel, &Messages::DATASOURCE},
    {Keyword::Connected, "-> DATASOURCE ...", "Lists the bases of the current custom data source.",
     Connected},
    {Keyword::Create, "NAME ?TEXT? ?TEXT? -> NAME",
     "Makes a custom data source; the texts: caption, description.", Create},
    {Keyword::Criteria, "What narrows the current custom data source.", &criteriaLevel},
    {Keyword::Current, "?DATASOURCE? -> DATASOURCE", "Makes a simple data source current, or tells which is.",
     Current, nullptr, &Messages::DATASOURCE},
    {Keyword::DataItem, "-> TEXT ...",
     "Lists what the current property shows for the items of the data source.", DataItems},
    {Keyword::Delete, "DATASOURCE -> ?DATASOURCE?",
     "Deletes a custom data source; tells which is current then.", Delete},
    {Keyword::Disconnect, "DATASOURCE -> DATASOURCE",
     "Disconnects a base from the current custom data source.", Disconnect},
    {Keyword::Names, "-> DATASOURCE ...", "Lists the simple data sources.", Names},
    {Keyword::Property, "", "The values that the current data source has for each item.", Property,
     &dataPropertyLevel},
    {Keyword::Script, "The custom data sources.", &scriptLevel},
};

} // namespace

constexpr CommandLevel dataSourceSimpleLevel(simpleRows, Messages::DATASOURCE_SIMPLE, Messages::DATASOURCE);

} // namespace znlayer
