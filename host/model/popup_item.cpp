#include "model/popup_item.h"

#include "host/znIBrowserWindowAccess.h"
#include "model/browser.h"

#include <algorithm>

namespace znhost {

PopupItem::PopupItem(PopupMenu& menu, std::string name)
    : HostObject(menu.Log()), menu_(&menu), name_(std::move(name)) {
    settings_.caption = name_;
}

PopupKind PopupItem::Kind() const {
    if (settings_.separator) return PopupKind::Separator;
    if (Cascade()) return PopupKind::Cascade;
    if (settings_.container != ZNBROWSER_POPUP_CONTAINER_NONE) return PopupKind::Container;
    return settings_.checkable ? PopupKind::Check : PopupKind::Command;
}

const char* PopupItem::GetName() const {
    if (Refused("znIBrowserPopupMenuItem::GetName")) return nullptr;
    return name_.c_str();
}

znIBrowserPopupMenu* PopupItem::GetMenu() {
    if (Refused("znIBrowserPopupMenuItem::GetMenu")) return nullptr;
    return menu_;
}

// ---- What is shown ----

const char* PopupItem::GetCaption() const {
    if (Refused("znIBrowserPopupMenuItem::GetCaption")) return "";
    return settings_.caption.c_str();
}

bool PopupItem::SetCaption(const char* caption) {
    if (Refused("znIBrowserPopupMenuItem::SetCaption", caption)) return false;
    return Set(&PopupItemSettings::caption, TextOf(caption));
}

const char* PopupItem::GetHelp() const {
    if (Refused("znIBrowserPopupMenuItem::GetHelp")) return "";
    return settings_.help.c_str();
}

bool PopupItem::SetHelp(const char* help) {
    if (Refused("znIBrowserPopupMenuItem::SetHelp", help)) return false;
    return Set(&PopupItemSettings::help, TextOf(help));
}

const char* PopupItem::GetDescription() const {
    if (Refused("znIBrowserPopupMenuItem::GetDescription")) return "";
    return settings_.description.c_str();
}

bool PopupItem::SetDescription(const char* description) {
    if (Refused("znIBrowserPopupMenuItem::SetDescription", description)) return false;
    return Set(&PopupItemSettings::description, TextOf(description));
}

const char* PopupItem::GetIcon() const {
    if (Refused("znIBrowserPopupMenuItem::GetIcon")) return "";
    return settings_.icon.c_str();
}

bool PopupItem::SetIcon(const char* file) {
    if (Refused("znIBrowserPopupMenuItem::SetIcon", file)) return false;
    return Set(&PopupItemSettings::icon, TextOf(file));
}

bool PopupItem::GetSeparator() const {
    if (Refused("znIBrowserPopupMenuItem::GetSeparator")) return false;
    return settings_.separator;
}

bool PopupItem::SetSeparator(bool separator) {
    if (Refused("znIBrowserPopupMenuItem::SetSeparator", separator)) return false;
    return Set(&PopupItemSettings::separator, separator);
}

bool PopupItem::GetCheckable() const {
    if (Refused("znIBrowserPopupMenuItem::GetCheckable")) return false;
    return settings_.checkable;
}

bool PopupItem::SetCheckable(bool checkable) {
    if (Refused("znIBrowserPopupMenuItem::SetCheckable", checkable)) return false;
    settings_.checkable = checkable;
    Check(settings_.checked);
    return true;
}

bool PopupItem::GetChecked() const {
    if (Refused("znIBrowserPopupMenuItem::GetChecked")) return false;
    return settings_.checked;
}

bool PopupItem::SetChecked(bool checked) {
    if (Refused("znIBrowserPopupMenuItem::SetChecked", checked)) return false;
    if (checked && !settings_.checkable)
        return Fail("The popup menu item \"" + name_ + "\" is not checkable");
    Check(checked);
    return true;
}

bool PopupItem::GetEnabled() const {
    if (Refused("znIBrowserPopupMenuItem::GetEnabled")) return false;
    return settings_.enabled;
}

bool PopupItem::SetEnabled(bool enabled) {
    if (Refused("znIBrowserPopupMenuItem::SetEnabled", enabled)) return false;
    return Set(&PopupItemSettings::enabled, enabled);
}

bool PopupItem::GetVisible() const {
    if (Refused("znIBrowserPopupMenuItem::GetVisible")) return false;
    return settings_.visible;
}

bool PopupItem::SetVisible(bool visible) {
    if (Refused("znIBrowserPopupMenuItem::SetVisible", visible)) return false;
    return Set(&PopupItemSettings::visible, visible);
}

bool PopupItem::GetOnSingleItem() const {
    if (Refused("znIBrowserPopupMenuItem::GetOnSingleItem")) return false;
    return settings_.onSingleItem;
}

bool PopupItem::SetOnSingleItem(bool single) {
    if (Refused("znIBrowserPopupMenuItem::SetOnSingleItem", single)) return false;
    return Set(&PopupItemSettings::onSingleItem, single);
}

bool PopupItem::GetShowOnFolder() const {
    if (Refused("znIBrowserPopupMenuItem::GetShowOnFolder")) return false;
    return settings_.showOnFolder;
}

bool PopupItem::SetShowOnFolder(bool show) {
    if (Refused("znIBrowserPopupMenuItem::SetShowOnFolder", show)) return false;
    return Set(&PopupItemSettings::showOnFolder, show);
}

// ---- What leads on ----

znIBrowserPopupMenu* PopupItem::GetCascade() {
    if (Refused("znIBrowserPopupMenuItem::GetCascade")) return nullptr;
    return Cascade();
}

bool PopupItem::SetCascade(znIBrowserPopupMenu* menu) {
    if (Refused("znIBrowserPopupMenuItem::SetCascade", menu)) return false;
    cascade_.Set(static_cast<PopupMenu*>(menu));
    return true;
}

ZNBROWSER_POPUP_CONTAINER PopupItem::GetContainer() const {
    if (Refused("znIBrowserPopupMenuItem::GetContainer")) return ZNBROWSER_POPUP_CONTAINER_NONE;
    return settings_.container;
}

bool PopupItem::GetContainerAll() const {
    if (Refused("znIBrowserPopupMenuItem::GetContainerAll")) return false;
    return settings_.containerAll;
}

bool PopupItem::SetContainer(ZNBROWSER_POPUP_CONTAINER container, bool all) {
    if (Refused("znIBrowserPopupMenuItem::SetContainer", container, all)) return false;
    settings_.container = container;
    settings_.containerAll = all && container != ZNBROWSER_POPUP_CONTAINER_NONE;
    return true;
}

// ---- What choosing it does ----

const char* PopupItem::GetOperation() const {
    if (Refused("znIBrowserPopupMenuItem::GetOperation")) return "";
    return settings_.operation.c_str();
}

bool PopupItem::SetOperation(const char* name) {
    if (Refused("znIBrowserPopupMenuItem::SetOperation", name)) return false;
    return Set(&PopupItemSettings::operation, TextOf(name));
}

const char* PopupItem::GetDataOperation() const {
    if (Refused("znIBrowserPopupMenuItem::GetDataOperation")) return "";
    return settings_.dataOperation.c_str();
}

bool PopupItem::SetDataOperation(const char* name) {
    if (Refused("znIBrowserPopupMenuItem::SetDataOperation", name)) return false;
    return Set(&PopupItemSettings::dataOperation, TextOf(name));
}

const char* PopupItem::GetScript() const {
    if (Refused("znIBrowserPopupMenuItem::GetScript")) return "";
    return settings_.script.c_str();
}

bool PopupItem::SetScript(const char* procedure) {
    if (Refused("znIBrowserPopupMenuItem::SetScript", procedure)) return false;
    return Set(&PopupItemSettings::script, TextOf(procedure));
}

const char* PopupItem::GetPreOperation() const {
    if (Refused("znIBrowserPopupMenuItem::GetPreOperation")) return "";
    return settings_.preOperation.c_str();
}

bool PopupItem::SetPreOperation(const char* procedure) {
    if (Refused("znIBrowserPopupMenuItem::SetPreOperation", procedure)) return false;
    return Set(&PopupItemSettings::preOperation, TextOf(procedure));
}

bool PopupItem::GetUserInput(std::vector<znString>& fields) {
    fields.clear();
    if (Refused("znIBrowserPopupMenuItem::GetUserInput")) return false;
    fields.assign(settings_.userInput.begin(), settings_.userInput.end());
    return true;
}

bool PopupItem::SetUserInput(const std::vector<znString>& fields) {
    if (Refused("znIBrowserPopupMenuItem::SetUserInput", fields)) return false;
    std::vector<std::string> names(fields.size());
    std::transform(fields.begin(), fields.end(), names.begin(), [](auto& field) { return TextOf(field); });
    return Set(&PopupItemSettings::userInput, std::move(names));
}

bool PopupItem::Perform(znIBrowserWindowAccess* window, const char* value) {
    if (Refused("znIBrowserPopupMenuItem::Perform", window, value)) return false;
    if (!menu_ || !window) return Fail("No popup menu item, or no window to perform it in");
    return menu_->Owner().PerformPopupItem(*this, *window, TextOf(value));
}

} // namespace znhost
