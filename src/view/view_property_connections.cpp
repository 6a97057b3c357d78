// What view properties show: their connections to data properties.
#include "frame/data_types.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataProperty.h"
#include "host/znIBrowserDataSource.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewProperty.h"
#include "znBrowserMessages.h"

#include <algorithm>
#include <cstring>

using namespace znlayer;

namespace {

using Connections = std::vector<znBrowserConnection>;
using ConnectRequest = bool (znIBrowser::*)(znIBrowserViewProperty*, znIBrowserDataSource*,
                                            znIBrowserDataProperty*);

/// This name in place of a data source stands for a Tcl procedure.
constexpr char scriptSource[] = "script";

bool IsScript(const char* dataSource) { return dataSource && std::strcmp(dataSource, scriptSource) == 0; }

/// The type that counts in a comparison: an array counts as its elements. The host numbers further array
/// forms 11 to 13.
int ComparedType(ZNBROWSER_DATA_TYPE type) {
    switch (static_cast<int>(type)) {
    case ZNBROWSER_DATA_BOOL_ARRAY: return ZNBROWSER_DATA_BOOL;
    case ZNBROWSER_DATA_INT_ARRAY:
    case 11: return ZNBROWSER_DATA_INT;
    case ZNBROWSER_DATA_DOUBLE_ARRAY:
    case 12: return ZNBROWSER_DATA_DOUBLE;
    case ZNBROWSER_DATA_STRING_ARRAY:
    case 13: return ZNBROWSER_DATA_STRING;
    default: return type;
    }
}

bool HasType(const znIBrowserViewProperty& property) {
    return std::strcmp(DataTypeName(property.GetType()), DataTypeName(ZNBROWSER_DATA_UNDEFINED)) != 0;
}

Connections ConnectionsOf(znIBrowserViewProperty& property) {
    Connections connections;
    property.GetConnections(connections);
    return connections;
}

/// A connection to a script has no data source.
bool IsConnectedTo(znIBrowserViewProperty& property, const znIBrowserDataSource* source) {
    const Connections connections = ConnectionsOf(property);
    return std::any_of(
        connections.begin(), connections.end(),
        [source](const znBrowserConnection& connection) { return connection.dataSource == source; });
}

/// The source where the property's view looks for it: in its data control, or in the new scheme in the view.
znIBrowserDataSource* FindDataSource(znIBrowserViewProperty& property, const char* name) {
    znIBrowserView* const view = property.GetView();
    if (!view || !name) return nullptr;
    if (view->UsesNewConnections()) return view->FindDataSource(name);
    znIBrowserDataCtrl* const control = view->GetDataCtrl();
    return control ? control->FindDataSource(name) : nullptr;
}

/// Connects by one of the schemes, which is refused unless it is that of the property's view.
bool Connect(znBrowserManagerTcl& manager, znIBrowserViewProperty* property, const char* sourceName,
             const char* propertyName, bool newScheme) {
    const Operation operation(manager);
    znIBrowserView* const view = property ? property->GetView() : nullptr;
    if (!view || view->UsesNewConnections() != newScheme) return false;
    znIBrowserDataSource* const source = FindDataSource(*property, sourceName);
    if (!source) return operation.Fail({"Cannot find datasource named: ", sourceName});
    znIBrowserDataProperty* const dataProperty =
        FindNamed(source, &znIBrowserDataSource::FindDataProperty, propertyName);
    if (!dataProperty) {
        return operation.Fail({"Cannot find property named ", propertyName, " for datasource ", sourceName});
    }
    if (!newScheme && ComparedType(dataProperty->GetType()) != property->GetType())
        return operation.Fail({"View property type does not match data property type."});
    if (IsConnectedTo(*property, source)) {
        return operation.Fail({"A connection for Datasource ", sourceName,
                               " already exists.  New connection for ", sourceName, " ", propertyName,
                               " not made."});
    }
    const ConnectRequest request =
        newScheme ? &znIBrowser::ConnectViewPropertyNew : &znIBrowser::ConnectViewProperty;
    return operation.Ask(request, property, source, dataProperty);
}

/// "source property" as a list of its own; a connection to a script has no source.
znString Describe(const znBrowserManagerTcl& manager, const znBrowserConnection& connection) {
    NameList words(EntryForm::Braced);
    if (connection.dataSource)
        words.Add(connection.dataSource->GetName());
    else
        words.Add(scriptSource);
    if (connection.dataProperty) words.Add(connection.dataProperty->GetName());
    znString text;
    words.Give(manager, text);
    return text;
}

} // namespace

bool znBrowserManagerTcl::ConnectProperty(const char* dataSource, const char* dataProperty) {
    const Operation operation(*this);
    znIBrowserViewProperty* const property = current_.viewProperty;
    if (!property) return operation.Fail(znBrowserMessages::noCurrentViewProperty);
    if (!HasType(*property)) {
        return operation.Fail("No view property type defined.  "
                              "Cannot do connection of database object and property.");
    }
    if (IsScript(dataSource))
        return operation.Ask(&znIBrowser::ConnectScriptProperty, property, dataProperty);
    znIBrowserView* const view = property->GetView();
    return view && view->UsesNewConnections()
               ? CreateViewPropertyConnect_NEW(property, dataSource, dataProperty)
               : CreateViewPropertyConnect(property, dataSource, dataProperty);
}

bool znBrowserManagerTcl::CreateViewPropertyConnect(znIBrowserViewProperty* property, const char* dataSource,
                                                    const char* dataProperty) {
    return Connect(*this, property, dataSource, dataProperty, false);
}

bool znBrowserManagerTcl::CreateViewPropertyConnect_NEW(znIBrowserViewProperty* property,
                                                        const char* dataSource, const char* dataProperty) {
    return Connect(*this, property, dataSource, dataProperty, true);
}

bool znBrowserManagerTcl::DisconnectProperty(const char* dataSource) {
    const Operation operation(*this);
    if (!current_.viewProperty) return operation.Fail(znBrowserMessages::noCurrentViewProperty);
    if (!HasType(*current_.viewProperty))
        return operation.Fail("No view property type defined.  Cannot delete connection.");
    return DeleteViewPropertyConnect(dataSource);
}

bool znBrowserManagerTcl::DeleteViewPropertyConnect(const char* dataSource) {
    const Operation operation(*this);
    znIBrowserViewProperty* const property = current_.viewProperty;
    if (!property) return operation.Fail(znBrowserMessages::noCurrentViewProperty);
    const bool script = IsScript(dataSource);
    znIBrowserDataSource* const source = script ? nullptr : FindDataSource(*property, dataSource);
    if (!source && !script) return operation.Fail({"Cannot find datasource named: ", dataSource});
    if (!IsConnectedTo(*property, source))
        return operation.Fail({"A connection for Datasource ", dataSource, " does not exist to delete."});
    return operation.Ask(&znIBrowser::DisconnectViewProperty, property, source);
}

bool znBrowserManagerTcl::GetConnectionList(znString& out) {
    const Operation operation(*this);
    if (!current_.viewProperty) return operation.Fail("Cannot get handle to current view property.");
    if (!HasType(*current_.viewProperty))
        return operation.Fail("No view property type defined.  No connections.");
    NameList list(EntryForm::Braced);
    for (const znBrowserConnection& connection : ConnectionsOf(*current_.viewProperty))
        list.Add(Describe(*this, connection));
    return list.Give(*this, out);
}
