// view property ...
#include "frame/command_table.h"
#include "frame/command_words.h"
#include "frame/data_types.h"
#include "host/znIBrowserView.h"
#include "view/view_helper.h"

const char* const znBrowserTclMessages::VIEW_PROPERTY =
    "    znbrowsermanager view property [action] \n\n"
    "    \tActions:\n"
    "    \tconnect <ds_prop_name>               "
    "Connects the current view property to a datasource property for the current view.\n"
    "    \tconnected                            "
    "Returns the connections of the current view property for the current view.\n"
    "    \tcreate <view_property_name>          Creates a new view property for the current view.\n"
    "    \tcurrent [view_property_name]         Gets/sets the current view property for the current view.\n"
    "    \tdelete                               Deletes the current view property from the current view.\n"
    "    \tnames                                Returns the names of the view properties for the current "
    "view.\n"
    "    \tscript <update_script> <get_script>  Connects Tcl scripts to the current view property.\n"
    "    \ttype [integer|double|string]         "
    "Gets/sets the type of the current view property for the current view.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// The data source that stands in for one that the words do not name.
znString CurrentDataSource(Manager& manager) {
    if (!manager.GetCurrentViewPtr()->UsesNewConnections()) return manager.GetCurrentDataSourceSimple();
    return ViewHelperOf(manager).GetCurrentDataSourceName();
}

void Connect(Call& call) {
    if (!call.manager.GetCurrentViewPtr() || call.Count() > 6) return;
    const bool namesSource = call.Has(5);
    const znString dataSource = namesSource ? znString(call.Text(4)) : CurrentDataSource(call.manager);
    const char* const dataProperty = call.Text(namesSource ? 5 : 4);
    if (!call.manager.ConnectProperty(dataSource.c_str(), dataProperty)) return call.AnswerError();
    for (const char* const text : {dataSource.c_str(), " ", dataProperty}) call.Answer(text);
}

void Connected(Call& call) { call.AnswerValue(&Manager::GetConnectionList); }

void Create(Call& call) { CreateWithName(call, 4, &Manager::CreateViewProperty, Messages::VIEW_PROPERTY); }

void Current(Call& call) {
    if (call.Has(4) && !call.manager.UpdateCurrentViewProperty(call.Text(4))) return call.AnswerError();
    call.Answer(call.manager.GetCurrentViewPropertyName());
}

void Delete(Call& call) {
    if (!call.manager.GetCurrentViewPropertyPtr()) return call.Answer("No current view property available");
    const znString name = call.manager.GetCurrentViewPropertyName();
    call.AnswerOutcome(call.manager.DeleteViewProperty(name.c_str()));
}

void Names(Call& call) { call.AnswerValue(&Manager::GetViewPropertyNames); }

void Script(Call& call) {
    call.AnswerOutcome(call.manager.SetViewPropertyScript(call.Text(4), call.Text(5), call.TextOr(6, "")));
}

void Type(Call& call) {
    if (call.Has(4) && !call.manager.SetViewPropertyType(call.Text(4))) return call.AnswerError();
    call.Answer(DataTypeName(call.manager.GetCurrentViewPropertyType()));
}

void Disconnect(Call& call) { RunWithName(call, 4, &Manager::DisconnectProperty, Messages::VIEW_PROPERTY); }

constexpr CommandRow propertyRows[] = {
    {Keyword::Connect,
     "DATAPROPERTY|DATASOURCE|script ?DATAPROPERTY|PROC? -> DATASOURCE|script DATAPROPERTY|PROC",
     "Connects the current property to a data property, or to a procedure.", Connect},
    {Keyword::Connected, "-> TEXT ...", "Lists what the current property is connected to.", Connected},
    {Keyword::Create, "NAME -> NAME", "Makes a property of the current view, and makes it current.", Create},
    {Keyword::Current, "?PROPERTY? -> PROPERTY", "Makes a property current, or tells which is.", Current},
    {Keyword::Delete, "", "Deletes the current property.", Delete},
    {Keyword::Names, "-> PROPERTY ...", "Lists the properties of the current view.", Names},
    {Keyword::Script, "SCRIPT SCRIPT ?TEXT?", "Sets the scripts that take a changed value and that give it.",
     Script},
    {Keyword::Type, "?TYPE? -> TYPE", "Sets the type of the current property, and tells it.", Type},
    // Missing in the usage text.
    {Keyword::Disconnect, "DATASOURCE|script", "Takes a connection of the current property away.",
     Disconnect},
};

} // namespace

constexpr CommandLevel viewPropertyLevel(propertyRows, Messages::VIEW_PROPERTY);

} // namespace znlayer
