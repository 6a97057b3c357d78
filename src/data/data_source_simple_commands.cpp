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

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Caption(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentDataSourceSimpleCaption,
                       &Manager::GetCurrentDataSourceSimpleCaption);
}

void FilterCaption(Call& call) {
    if (call.Count() > 4 && !call.Has(4)) return call.Answer(Messages::GENERAL);
    call.SetThenAnswer(4, &Manager::SetCurrentDataSourceSimpleFilterCaption,
                       &Manager::GetCurrentDataSourceSimpleFilterCaption);
}

void ConnectCurrent(Call& call) {
    if (!call.Has(5)) return call.Answer(Messages::DATASOURCE);
    call.AnswerOutcome(call.manager.SetCurrentConnectDataSourceSimple(call.Text(5)), call.Text(5));
}

void Connect(Call& call) {
    if (!call.Has(4)) return call.Answer(Messages::DATASOURCE);
    if (call.Is(4, Keyword::Current)) return ConnectCurrent(call);
    call.AnswerOutcome(call.manager.DataSourceSimpleConnect(call.Text(4)), call.Text(4));
}

void Connected(Call& call) { call.AnswerValue(&Manager::DataSourceSimpleConnected); }

void Create(Call& call) {
    if (!call.Has(4)) return call.Answer(Messages::DATASOURCE_SIMPLE);
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
    if (!call.Has(4)) return call.Answer(Messages::DATASOURCE_SIMPLE);
    if (!call.manager.DeleteDataSourceSimple(call.Text(4))) return call.AnswerError();
    call.Answer(call.manager.GetCurrentDataSourceSimple());
}

void Disconnect(Call& call) {
    if (!call.Has(4)) return call.Answer(Messages::DATASOURCE_SIMPLE);
    call.AnswerOutcome(call.manager.DataSourceSimpleDisconnect(call.Text(4)), call.Text(4));
}

void Names(Call& call) { call.AnswerValue(&Manager::DataSourceSimpleNames); }

// Without a data source there is nothing to have properties, whatever the words.
void Property(Call& call) {
    if (!call.manager.GetCurrentDataSourceSimplePtr())
        return call.Answer("No current datasource simple available");
    RunLevel(call, dataPropertyLevel, 4);
}

void Script(Call& call) {
    if (!call.Is(4, Keyword::Names)) return call.Answer(Messages::DATASOURCE_SIMPLE);
    call.AnswerValue(&Manager::DataSourceSimpleCustomNames);
}

// The usage text lists an "operation", too; that word is unknown here.
constexpr CommandRow simpleRows[] = {
    {Keyword::Caption, Caption}, {Keyword::FilterCaption, FilterCaption},
    {Keyword::Connect, Connect}, {Keyword::Connected, Connected},
    {Keyword::Create, Create},   {Keyword::Criteria, nullptr, &criteriaLevel},
    {Keyword::Current, Current}, {Keyword::DataItem, DataItems},
    {Keyword::Delete, Delete},   {Keyword::Disconnect, Disconnect},
    {Keyword::Names, Names},     {Keyword::Property, Property, &dataPropertyLevel},
    {Keyword::Script, Script},
};

} // namespace

const CommandLevel dataSourceSimpleLevel(simpleRows, znBrowserTclMessages::DATASOURCE_SIMPLE,
                                         znBrowserTclMessages::DATASOURCE);
