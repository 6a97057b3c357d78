// View properties and view operations.
#include "host/znIBrowserDataProperty.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "model/view.h"

namespace znhost {

bool Browser::CreateViewProperty(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowser::CreateViewProperty", view, name)) return false;
    if (!view) return Fail("No view to create a property in");
    View& owner = *static_cast<View*>(view);
    const std::string newName = TextOf(name);
    if (owner.Properties().Find(newName)) {
        return Fail("The view \"" + owner.Name() + "\" already has a property \"" + newName + "\"");
    }
    owner.Properties().Add(std::make_shared<ViewProperty>(owner, newName));
    owner.Changed(VIEW_CELLS);
    return true;
}

bool Browser::DeleteViewProperty(znIBrowserView* view, znIBrowserViewProperty* property) {
    if (Refused("znIBrowser::DeleteViewProperty", view, property)) return false;
    if (!property) return Fail("No view property to delete");
    ViewProperty& doomed = *static_cast<ViewProperty*>(property);
    doomed.Owner().DeleteProperty(doomed);
    return true;
}

bool Browser::ConnectProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                              znIBrowserDataProperty* dataProperty) {
    if (!property || !source || !dataProperty) {
        return Fail("A connection needs a view property, a data source and a data property");
    }
    ViewProperty& connected = *static_cast<ViewProperty*>(property);
    if (connected.Connect(*source, *dataProperty)) return true;
    return Fail("The property \"" + connected.Name() + "\" is already connected to the data source \"" +
                NameOf(log_, source) + "\"");
}

bool Browser::ConnectViewProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                                  znIBrowserDataProperty* dataProperty) {
    if (Refused("znIBrowser::ConnectViewProperty", property, source, dataProperty)) return false;
    return ConnectProperty(property, source, dataProperty);
}

bool Browser::ConnectViewPropertyNew(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                                     znIBrowserDataProperty* dataProperty) {
    if (Refused("znIBrowser::ConnectViewPropertyNew", property, source, dataProperty)) return false;
    return ConnectProperty(property, source, dataProperty);
}

bool Browser::DisconnectViewProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source) {
    if (Refused("znIBrowser::DisconnectViewProperty", property, source)) return false;
    if (!property) return Fail("No view property to disconnect");
    ViewProperty& connected = *static_cast<ViewProperty*>(property);
    if (!source && connected.GetScript().empty())
        return Fail("The property \"" + connected.Name() + "\" is not connected to a script");
    if (!source) {
        connected.SetGetScript({});
        return true;
    }
    if (connected.Disconnect(*source)) return true;
    return Fail("The property \"" + connected.Name() + "\" is not connected to the data source \"" +
                NameOf(log_, source) + "\"");
}

bool Browser::ConnectScriptProperty(znIBrowserViewProperty* property, const char* argument) {
    if (Refused("znIBrowser::ConnectScriptProperty", property, argument)) return false;
    if (!property) return Fail("No view property to connect to a procedure");
    static_cast<ViewProperty*>(property)->SetGetScript(TextOf(argument));
    return true;
}

bool Browser::SetViewPropertyScripts(znIBrowserViewProperty* property, const char* updateScript,
                                     const char* getScript, const char* third) {
    if (Refused("znIBrowser::SetViewPropertyScripts", property, updateScript, getScript, third)) return false;
    if (!property) return Fail("No view property to set the scripts of");
    static_cast<ViewProperty*>(property)->SetScripts(TextOf(updateScript), TextOf(getScript), TextOf(third));
    return true;
}

bool Browser::SetViewPropertyType(znIBrowserView* view, znIBrowserViewProperty* property,
                                  ZNBROWSER_DATA_TYPE type) {
    if (Refused("znIBrowser::SetViewPropertyType", view, property, type)) return false;
    if (!property) return Fail("No view property to set the type of");
    static_cast<ViewProperty*>(property)->SetType(type);
    return true;
}

bool Browser::CreateViewOperation(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowser::CreateViewOperation", view, name)) return false;
    if (!view) return Fail("No view to create an operation in");
    View& owner = *static_cast<View*>(view);
    const std::string newName = TextOf(name);
    if (owner.Operations().Find(newName)) {
        return Fail("The view \"" + owner.Name() + "\" already has an operation \"" + newName + "\"");
    }
    owner.Operations().Add(std::make_shared<ViewOperation>(owner, newName));
    return true;
}

} // namespace znhost
