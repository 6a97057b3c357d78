// Elements of the current style.
#include "frame/current_lifetimes.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserGuiMap.h"
#include "host/znIBrowserStyle.h"
#include "host/znIBrowserStyleElement.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewProperty.h"
#include "host/znIBrowserWindowAccess.h"
#include "view/view_messages.h"

#include <cstring>

using namespace znlayer;
using namespace view_messages;

namespace {

constexpr char noElementName[] = "Cannot get name of the current style element";

/// Styles tell only whether an element exists; to get at it one walks the list.
znIBrowserStyleElement* FindElement(znIBrowserStyle& style, const char* name) {
    if (!name || !style.FindElement(name)) return nullptr;
    std::vector<znIBrowserStyleElement*> elements;
    style.GetElements(elements);
    for (znIBrowserStyleElement* const element : elements) {
        const char* const elementName = element ? element->GetName() : nullptr;
        if (elementName && std::strcmp(elementName, name) == 0) return element;
    }
    return nullptr;
}

bool GuiMapExists(znIBrowser* browser, const char* name) {
    znIBrowserGuiMapList* const maps = browser ? browser->GetGuiMapList() : nullptr;
    return maps && name && maps->FindGuiMap(name);
}

} // namespace

bool znBrowserManagerTcl::CreateViewStyleElement(const char* name, const char* description) {
    const Operation operation(*this);
    if (!current_.style) return operation.Fail(noStyleName);
    if (!name) return operation.Fail(nullName);
    if (current_.style->FindElement(name))
        return operation.Fail({"Can't Create, Style Element exists: ", name});
    if (!current_.style->CreateElement(name, description ? description : ""))
        return operation.Fail({"Cannot Create element: ", name});
    return SetCurrentStyleElement(name);
}

bool znBrowserManagerTcl::DeleteStyleElement(const char* name) {
    const Operation operation(*this);
    if (!current_.style) return operation.Fail(noStyleName);
    znIBrowserStyleElement* const element = FindElement(*current_.style, name);
    if (!element)
        return operation.Fail(
            {"Element: ", name, " not found in the current style: ", current_.style->GetName()});
    const auto deletion = [&] { return current_.style->DeleteElement(element); };
    return DeleteAndForget(*this, CurrentsInside(*this, element), deletion) ||
           operation.Fail({"View style element \"", name, "\" cannot be deleted"});
}

bool znBrowserManagerTcl::SetCurrentStyleElement(const char* name) {
    const Operation operation(*this);
    if (!current_.style) return operation.Fail(noStyleHandle);
    znIBrowserStyleElement* const element = FindElement(*current_.style, name);
    if (!element) return operation.Fail({"Cannot not find element: ", name, " in the current style"});
    SetCurrentStyleElement(element);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentStyleElement(znString& out) {
    const Operation operation(*this);
    if (!current_.styleElement) return operation.Fail(noElementName);
    out = current_.styleElement->GetName();
    return true;
}

bool znBrowserManagerTcl::GetElementNames(znString& out) {
    const Operation operation(*this);
    if (!current_.style) return operation.Fail(noStyleName);
    std::vector<znIBrowserStyleElement*> elements;
    current_.style->GetElements(elements);
    return NameList(EntryForm::Braced).AddNames(elements, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::SetStyleElementDescription(const char* description) {
    const Operation operation(*this);
    if (!current_.styleElement) return operation.Fail(noElementName);
    return operation.HostAnswer(current_.styleElement->SetDescription(description));
}

bool znBrowserManagerTcl::GetStyleElementDescription(znString& out) {
    const Operation operation(*this);
    if (!current_.styleElement) return operation.Fail(noElementName);
    out = current_.styleElement->GetDescription();
    return true;
}

bool znBrowserManagerTcl::GetStyleElementMapName(znString& out) {
    const Operation operation(*this);
    if (!current_.styleElement) return operation.Fail("Cannot get description of the current style element");
    out = current_.styleElement->GetMapName();
    return true;
}

bool znBrowserManagerTcl::SetStyleElementMapName(const char* name) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    if (!current_.styleElement) return operation.Fail(noElementName);
    if (!name && !current_.guiMap) return operation.Fail("Cannot get name of the current gui map");
    const bool exists = GuiMapExists(BrowserOf(*this), name ? name : current_.guiMap->GetName());
    if (!exists && name) {
        return operation.Fail({"Gui Map: ", name, " not found in the current window: ",
                               current_.windowAccess ? current_.windowAccess->GetName() : nullptr});
    }
    // A current map that the host no longer knows is passed over in silence.
    return !exists ||
           operation.HostAnswer(current_.styleElement->SetMapName(name ? name : current_.guiMap->GetName()));
}

bool znBrowserManagerTcl::SetStyleElementProperty(const char* name) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    if (!current_.styleElement) return operation.Fail(noElementName);
    if (!name && !current_.viewProperty) return operation.Fail(noPropertyName);
    const char* const wanted = name ? name : current_.viewProperty->GetName();
    const bool exists = wanted && current_.view->FindViewProperty(wanted);
    if (!exists && name) {
        return operation.Fail(
            {"View Property: ", name, " not found in the current view: ", current_.view->GetName().c_str()});
    }
    return !exists || operation.HostAnswer(current_.styleElement->SetPropertyName(wanted));
}
