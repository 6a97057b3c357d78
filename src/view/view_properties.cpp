// View properties of the current view.
#include "frame/data_types.h"
#include "frame/deletion.h"
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewProperty.h"
#include "view/ask_browser.h"
#include "view/view_messages.h"

namespace {

constexpr char noView[] = "Cannot get handle to current view.";

} // namespace

bool znBrowserManagerTcl::CreateViewProperty(const char* name) {
    BeginOperation();
    if (!current_.view) return Fail("Cannot get handle to current view, view property not created.");
    if (!name) return Fail(view_messages::nullName);
    if (current_.view->FindViewProperty(name)) return FailWith({"View property ", name, " already exists"});
    if (!AskBrowser(*this, &znIBrowser::CreateViewProperty, current_.view, name)) return false;
    znIBrowserViewProperty* const property = current_.view ? current_.view->FindViewProperty(name) : nullptr;
    if (property) SetCurrentViewProperty(property);
    return true;
}

bool znBrowserManagerTcl::DeleteViewProperty(const char* name) {
    BeginOperation();
    if (!current_.view) return Fail(noView);
    znIBrowserViewProperty* const property = name ? current_.view->FindViewProperty(name) : nullptr;
    if (!property) return FailWith({"View property ", name, " does not exist, therefore cannot be deleted."});
    znIBrowser* const browser = GetBrowser();
    const auto deletion = [&] { return browser && browser->DeleteViewProperty(current_.view, property); };
    const auto forget = [&] {
        if (current_.viewProperty == property) ResetCurrentViewProperty();
    };
    return DeleteAndForget(deletion, forget) || FailWith({"View property \"", name, "\" cannot be deleted"});
}

znIBrowserViewProperty* znBrowserManagerTcl::FindViewProperty(const char* name) {
    BeginOperation();
    if (!current_.view) SetError(noView);
    return current_.view && name ? current_.view->FindViewProperty(name) : nullptr;
}

bool znBrowserManagerTcl::UpdateCurrentViewProperty(const char* name) {
    znIBrowserViewProperty* const property = FindViewProperty(name);
    if (!GetState()) return false;
    if (!property) return FailWith({"Unable to find view property: ", name});
    SetCurrentViewProperty(property);
    return true;
}

const char* znBrowserManagerTcl::GetCurrentViewPropertyName() const {
    const char* const name = current_.viewProperty ? current_.viewProperty->GetName() : nullptr;
    return name ? name : "";
}

bool znBrowserManagerTcl::GetViewPropertyNames(znString& out) {
    BeginOperation();
    if (!current_.view) return Fail(noView);
    std::vector<znIBrowserViewProperty*> properties;
    if (!current_.view->GetViewProperties(properties)) return FailWithHostError();
    return NameList(EntryForm::Braced).AddNames(properties, NullName::IsLeftOut).Give(*this, out);
}

ZNBROWSER_DATA_TYPE znBrowserManagerTcl::GetCurrentViewPropertyType() const {
    return current_.viewProperty ? current_.viewProperty->GetType() : ZNBROWSER_DATA_UNDEFINED;
}

bool znBrowserManagerTcl::SetViewPropertyType(const char* typeName) {
    BeginOperation();
    znIBrowserViewProperty* const property = current_.viewProperty;
    if (!property) return Fail("Current view property not set, cannot set type.");
    const ZNBROWSER_DATA_TYPE type = typeName ? DataTypeFromWord(typeName) : ZNBROWSER_DATA_UNDEFINED;
    if (type == ZNBROWSER_DATA_UNDEFINED) return Fail("Unknown type...type not set.");
    if (type == property->GetType()) return Fail("Type is same as current type.");
    return AskBrowser(*this, &znIBrowser::SetViewPropertyType, property->GetView(), property, type);
}

bool znBrowserManagerTcl::SetViewPropertyScript(const char* updateScript, const char* getScript,
                                                const char* third) {
    BeginOperation();
    if (!current_.viewProperty) return Fail(messages::noCurrentViewProperty);
    return AskBrowser(*this, &znIBrowser::SetViewPropertyScripts, current_.viewProperty, updateScript,
                      getScript, third);
}
