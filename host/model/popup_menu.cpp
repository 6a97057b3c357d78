#include "model/popup_menu.h"

#include "model/browser.h"

namespace znhost {

// ---- Places ----

PopupMenu* PopupPlace::Get() const {
    const std::shared_ptr<PopupMenu> menu = menu_.lock();
    return menu && !menu->IsDeleted() ? menu.get() : nullptr;
}

void PopupPlace::Set(PopupMenu* menu) { menu_ = menu ? menu->weak_from_this() : std::weak_ptr<PopupMenu>(); }

bool PopupPlace::Set(Browser& browser, const char* name) {
    const std::string wanted = TextOf(name);
    PopupMenu* const menu = browser.PopupMenus().Find(wanted);
    if (!menu && !wanted.empty()) {
        browser.Log().SetError("There is no popup menu \"" + wanted + "\"");
        return false;
    }
    Set(menu);
    return true;
}

// ---- A menu ----

PopupMenu::PopupMenu(Browser& browser, std::string name)
    : HostObject(browser.Log()), browser_(browser), name_(std::move(name)) {}

void PopupMenu::Delete() {
    deleted_ = true;
    for (const auto& item : items_.TakeAll()) item->Detach();
}

const char* PopupMenu::GetName() const {
    if (Refused("znIBrowserPopupMenu::GetName")) return nullptr;
    return name_.c_str();
}

bool PopupMenu::CreateItem(const char* name, int place) {
    if (Refused("znIBrowserPopupMenu::CreateItem", name, place)) return false;
    const std::string newName = TextOf(name);
    if (newName.empty()) return Fail("A popup menu item needs a name");
    if (items_.Find(newName))
        return Fail("The popup menu \"" + name_ + "\" already has an item \"" + newName + "\"");
    const auto position = static_cast<std::size_t>(place);
    if (position > items_.Size())
        return Fail("The popup menu \"" + name_ + "\" has no place " + std::to_string(place));
    PopupItem& item = items_.Add(std::make_shared<PopupItem>(*this, newName));
    if (position + 1 < items_.Size()) items_.Move(item, position);
    return true;
}

bool PopupMenu::DeleteItem(znIBrowserPopupMenuItem* item) {
    if (Refused("znIBrowserPopupMenu::DeleteItem", item)) return false;
    PopupItem* const doomed = static_cast<PopupItem*>(item);
    const std::shared_ptr<PopupItem> hold = doomed ? items_.Remove(*doomed) : nullptr;
    if (!hold) return Fail("The popup menu \"" + name_ + "\" has no such item");
    hold->Detach();
    return true;
}

bool PopupMenu::MoveItem(znIBrowserPopupMenuItem* item, int place) {
    if (Refused("znIBrowserPopupMenu::MoveItem", item, place)) return false;
    PopupItem* const moved = static_cast<PopupItem*>(item);
    if (!moved || moved->Menu() != this) return Fail("The popup menu \"" + name_ + "\" has no such item");
    const auto position = static_cast<std::size_t>(place);
    if (position >= items_.Size())
        return Fail("The popup menu \"" + name_ + "\" has no place " + std::to_string(place));
    items_.Move(*moved, position);
    return true;
}

znIBrowserPopupMenuItem* PopupMenu::FindItem(const char* name) {
    if (Refused("znIBrowserPopupMenu::FindItem", name)) return nullptr;
    return items_.Find(TextOf(name));
}

bool PopupMenu::GetItems(std::vector<znIBrowserPopupMenuItem*>& items) {
    items.clear();
    if (Refused("znIBrowserPopupMenu::GetItems")) return false;
    items_.CopyTo(items);
    return true;
}

const char* PopupMenu::GetPostScript() const {
    if (Refused("znIBrowserPopupMenu::GetPostScript")) return "";
    return postScript_.c_str();
}

bool PopupMenu::SetPostScript(const char* procedure) {
    if (Refused("znIBrowserPopupMenu::SetPostScript", procedure)) return false;
    postScript_ = TextOf(procedure);
    return true;
}

// ---- All menus ----

PopupMenuList::~PopupMenuList() {
    for (const auto& menu : menus_) menu->Delete();
}

znIBrowserPopupMenu* PopupMenuList::FindPopupMenu(const char* name) {
    if (Refused("znIBrowserPopupMenuList::FindPopupMenu", name)) return nullptr;
    return menus_.Find(TextOf(name));
}

bool PopupMenuList::GetPopupMenus(std::vector<znIBrowserPopupMenu*>& menus) {
    menus.clear();
    if (Refused("znIBrowserPopupMenuList::GetPopupMenus")) return false;
    menus_.CopyTo(menus);
    return true;
}

znIBrowserPopupMenuList* Browser::GetPopupMenuList() {
    if (Refused("znIBrowser::GetPopupMenuList")) return nullptr;
    return &popupMenus_;
}

bool Browser::CreatePopupMenu(const char* name) {
    if (Refused("znIBrowser::CreatePopupMenu", name)) return false;
    const std::string newName = TextOf(name);
    if (newName.empty()) return Fail("A popup menu needs a name");
    if (PopupMenus().Find(newName)) return Fail("A popup menu \"" + newName + "\" already exists");
    PopupMenus().Add(std::make_shared<PopupMenu>(*this, newName));
    return true;
}

bool Browser::DeletePopupMenu(znIBrowserPopupMenu* menu) {
    if (Refused("znIBrowser::DeletePopupMenu", menu)) return false;
    PopupMenu* const doomed = static_cast<PopupMenu*>(menu);
    const std::shared_ptr<PopupMenu> hold = doomed ? PopupMenus().Remove(*doomed) : nullptr;
    if (!hold) return Fail("There is no such popup menu");
    hold->Delete();
    OnPopupMenuDeleted(*hold);
    return true;
}

} // namespace znhost
