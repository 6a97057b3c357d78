#include "model/style.h"

#include "model/column.h"
#include "model/view.h"

namespace znhost {

StyleElement::StyleElement(Style& style, std::string name, std::string description)
    : HostObject(style.Log()), style_(style), name_(std::move(name)), description_(std::move(description)) {}

bool StyleElement::Change(std::string& field, const char* text) {
    field = TextOf(text);
    style_.Changed();
    return true;
}

const char* StyleElement::GetName() const {
    if (Refused("znIBrowserStyleElement::GetName")) return nullptr;
    return name_.c_str();
}

const char* StyleElement::GetDescription() const {
    if (Refused("znIBrowserStyleElement::GetDescription")) return nullptr;
    return description_.c_str();
}

bool StyleElement::SetDescription(const char* description) {
    if (Refused("znIBrowserStyleElement::SetDescription", description)) return false;
    return Change(description_, description);
}

const char* StyleElement::GetMapName() const {
    if (Refused("znIBrowserStyleElement::GetMapName")) return nullptr;
    return mapName_.c_str();
}

bool StyleElement::SetMapName(const char* name) {
    if (Refused("znIBrowserStyleElement::SetMapName", name)) return false;
    return Change(mapName_, name);
}

const char* StyleElement::GetPropertyName() const {
    if (Refused("znIBrowserStyleElement::GetPropertyName")) return nullptr;
    return propertyName_.c_str();
}

bool StyleElement::SetPropertyName(const char* name) {
    if (Refused("znIBrowserStyleElement::SetPropertyName", name)) return false;
    return Change(propertyName_, name);
}

znIBrowserStyle* StyleElement::GetStyle() {
    if (Refused("znIBrowserStyleElement::GetStyle")) return nullptr;
    return &style_;
}

Style::Style(Column& column, std::string name)
    : HostObject(column.Owner().Log()), column_(column), name_(std::move(name)) {}

void Style::Changed() const { column_.Owner().Changed(VIEW_CELLS); }

const char* Style::GetName() const {
    if (Refused("znIBrowserStyle::GetName")) return nullptr;
    return name_.c_str();
}

void Style::GetElements(std::vector<znIBrowserStyleElement*>& elements) {
    elements.clear();
    if (Refused("znIBrowserStyle::GetElements")) return;
    elements_.CopyTo(elements);
}

bool Style::FindElement(const char* name) {
    if (Refused("znIBrowserStyle::FindElement", name)) return false;
    return elements_.Find(TextOf(name)) != nullptr;
}

znIBrowserStyleElement* Style::CreateElement(const char* name, const char* description) {
    if (Refused("znIBrowserStyle::CreateElement", name, description)) return nullptr;
    const std::string newName = TextOf(name);
    if (elements_.Find(newName)) {
        Fail("The style \"" + name_ + "\" already has an element \"" + newName + "\"");
        return nullptr;
    }
    StyleElement& element =
        elements_.Add(std::make_shared<StyleElement>(*this, newName, TextOf(description)));
    Changed();
    return &element;
}

bool Style::DeleteElement(znIBrowserStyleElement* element) {
    if (Refused("znIBrowserStyle::DeleteElement", element)) return false;
    if (!element || !elements_.Remove(*static_cast<StyleElement*>(element))) {
        return Fail("The style \"" + name_ + "\" has no such element");
    }
    Changed();
    return true;
}

znIBrowserViewColumn* Style::GetColumn() {
    if (Refused("znIBrowserStyle::GetColumn")) return nullptr;
    return &column_;
}

} // namespace znhost
