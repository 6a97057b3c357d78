// View properties of the current view.
#include "frame/current_lifetimes.h"
#include "frame/data_types.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewProperty.h"
#include "view/view_messages.h"
#include "znBrowserMessages.h"

using namespace znlayer;

namespace {

constexpr char noView[] = "Cannot get handle to current view.";

} // namespace

bool znBrowserManagerTcl::CreateViewProperty(const char* name) {
    const Operation operation(*this);
    if (!current_.view)
        return operation.Fail("Cannot get handle to current view, view property not created.");
    if (!name) return operation.Fail(view_messages::nullName);
    if (current_.view->FindViewProperty(name))
        return operation.Fail({"View property ", name, " already exists"});
    if (!operation.Ask(&znIBrowser::CreateViewProperty, current_.view, name)) return false;
    znIBrowserViewProperty* const property = current_.view ? current_.view->FindViewProperty(name) : nullptr;
    if (property) SetCurrentViewProperty(property);
    return true;
}

bool znBrowserManagerTcl::DeleteViewProperty(const char* name) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    znIBrowserViewProperty* const property =
        FindNamed(current_.view, &znIBrowserView::FindViewProperty, name);
    if (!property)
        return operation.Fail({"View property ", name, " does not exist, therefore cannot be deleted."});
    znIBrowser* const browser = BrowserOf(*this);
    const auto deletion = [&] { return browser && browser->DeleteViewProperty(current_.view, property); };
    return DeleteAndForget(*this, CurrentsInside(*this, property), deletion) ||
           operation.Fail({"View property \"", name, "\" cannot be deleted"});
}

znIBrowserViewProperty* znBrowserManagerTcl::FindViewProperty(const char* name) {
    const Operation operation(*this);
    if (!current_.view) operation.Fail(noView);
    return FindNamed(current_.view, &znIBrowserView::FindViewProperty, name);
}

bool znBrowserManagerTcl::UpdateCurrentViewProperty(const char* name) {
    znIBrowserViewProperty* const property = FindViewProperty(name);
    if (!GetState()) return false;
    const Operation operation(*this, Operation::State::Kept); // it has begun with the search
    if (!property) return operation.Fail({"Unable to find view property: ", name});
    SetCurrentViewProperty(property);
    return true;
}

const char* znBrowserManagerTcl::GetCurrentViewPropertyName() const {
    const char* const name = current_.viewProperty ? current_.viewProperty->GetName() : nullptr;
    return name ? name : "";
}

bool znBrowserManagerTcl::GetViewPropertyNames(znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    std::vector<znIBrowserViewProperty*> properties;
    if (!current_.view->GetViewProperties(properties)) return operation.FailWithHostError();
    return NameList(EntryForm::Braced).AddNames(properties, NullName::IsLeftOut).Give(*this, out);
}

ZNBROWSER_DATA_TYPE znBrowserManagerTcl::GetCurrentViewPropertyType() const {
    return current_.viewProperty ? current_.viewProperty->GetType() : ZNBROWSER_DATA_UNDEFINED;
}

bool znBrowserManagerTcl::SetViewPropertyType(const char* typeName) {
    const Operation operation(*this);
    znIBrowserViewProperty* const property = current_.viewProperty;
    if (!property) return operation.Fail("Current view property not set, cannot set type.");
    const ZNBROWSER_DATA_TYPE type = typeName ? DataTypeFromWord(typeName) : ZNBROWSER_DATA_UNDEFINED;
    if (type == ZNBROWSER_DATA_UNDEFINED) return operation.Fail("Unknown type...type not set.");
    if (type == property->GetType()) return operation.Fail("Type is same as current type.");
    return operation.Ask(&znIBrowser::SetViewPropertyType, property->GetView(), property, type);
}

bool znBrowserManagerTcl::SetViewPropertyScript(const char* updateScript, const char* getScript,
                                                const char* third) {
    const Operation operation(*this);
    if (!current_.viewProperty) return operation.Fail(znBrowserMessages::noCurrentViewProperty);
    return operation.Ask(&znIBrowser::SetViewPropertyScripts, current_.viewProperty, updateScript, getScript,
                         third);
}
