// Items of the current popup menu: made, chosen, deleted, listed and moved.
#include "frame/current_lifetimes.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "view/view_messages.h"
#include "window/popup_messages.h"

#include <algorithm>
#include <string>

using namespace znlayer;
using namespace popup_messages;

namespace {

using Items = std::vector<znIBrowserPopupMenuItem*>;

/// The current item in its menu.
struct Placed {
    Items items;
    int place = -1; ///< that of the current item; -1 without one

    int Count() const { return static_cast<int>(items.size()); }
};

/// Reads the items of the current menu. @return false, with the error set, when there is none or it refuses
bool ReadItems(znBrowserManagerTcl& manager, Placed& placed) {
    const Operation operation(manager, Operation::State::Kept);
    znIBrowserPopupMenu* const menu = manager.GetCurrentPopupMenuPtr();
    if (!menu) return operation.Fail(noMenu);
    if (!menu->GetItems(placed.items)) return operation.FailWithHostError();
    const auto found =
        std::find(placed.items.begin(), placed.items.end(), manager.GetCurrentPopupMenuItemPtr());
    if (found != placed.items.end()) placed.place = static_cast<int>(found - placed.items.begin());
    return true;
}

/// As `ReadItems`, but the current item must be one of them.
bool ReadItem(znBrowserManagerTcl& manager, Placed& placed) {
    if (!ReadItems(manager, placed)) return false;
    return placed.place >= 0 || Operation(manager, Operation::State::Kept).Fail(noItem);
}

bool Move(znBrowserManagerTcl& manager, int from, int to) {
    if (from == to) return true;
    const Operation operation(manager, Operation::State::Kept);
    return operation.HostAnswer(
        manager.GetCurrentPopupMenuPtr()->MoveItem(manager.GetCurrentPopupMenuItemPtr(), to));
}

} // namespace

bool znBrowserManagerTcl::CreatePopupMenuItem(const char* name, ZNBROWSER_POPUP_PLACE place) {
    const Operation operation(*this);
    if (!name) return operation.Fail(view_messages::nullName);
    if (!*name) return operation.Fail("A popup menu item needs a name");
    Placed placed;
    const bool nextToCurrent = place == ZNBROWSER_POPUP_UP || place == ZNBROWSER_POPUP_DOWN;
    if (!(nextToCurrent ? ReadItem(*this, placed) : ReadItems(*this, placed))) return false;
    znIBrowserPopupMenu* const menu = current_.popupMenu;
    if (menu->FindItem(name)) return operation.Fail({"Popup menu item exists already: ", name});
    int at = placed.Count();
    if (place == ZNBROWSER_POPUP_BEGINNING) at = 0;
    if (nextToCurrent) at = place == ZNBROWSER_POPUP_UP ? placed.place : placed.place + 1;
    return operation.HostAnswer(menu->CreateItem(name, at)) && SetCurrentPopupMenuItem(name);
}

bool znBrowserManagerTcl::DeletePopupMenuItem(const char* name) {
    const Operation operation(*this);
    znIBrowserPopupMenu* const menu = current_.popupMenu;
    if (!menu) return operation.Fail(noMenu);
    znIBrowserPopupMenuItem* const item = FindNamed(menu, &znIBrowserPopupMenu::FindItem, name);
    if (!item) return operation.Fail("cann't delte popup menu items doesn't exist in the current popup menu");
    const znBrowserCurrentObjects doomed = CurrentsInside(*this, item);
    const auto deletion = [&] { return operation.HostAnswer(menu->DeleteItem(item)); };
    return DeleteAndForget(*this, doomed, deletion);
}

bool znBrowserManagerTcl::SetCurrentPopupMenuItem(const char* name) {
    const Operation operation(*this);
    if (!current_.popupMenu) return operation.Fail(noMenu);
    znIBrowserPopupMenuItem* const item = FindNamed(current_.popupMenu, &znIBrowserPopupMenu::FindItem, name);
    if (!item) return operation.Fail({"Cannot find popup menu item named: ", name});
    SetCurrentPopupMenuItem(item);
    return true;
}

bool znBrowserManagerTcl::GetPopupMenuItemNames(znString& out) {
    const Operation operation(*this);
    Placed placed;
    if (!ReadItems(*this, placed)) return false;
    return NameList(EntryForm::Braced).AddNames(placed.items, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::MovePopupMenuItem(ZNBROWSER_POPUP_PLACE place) {
    const Operation operation(*this);
    Placed placed;
    if (!ReadItem(*this, placed)) return false;
    const int last = placed.Count() - 1;
    switch (place) {
    case ZNBROWSER_POPUP_BEGINNING: return Move(*this, placed.place, 0);
    case ZNBROWSER_POPUP_UP: return Move(*this, placed.place, std::max(placed.place - 1, 0));
    case ZNBROWSER_POPUP_DOWN: return Move(*this, placed.place, std::min(placed.place + 1, last));
    default: return Move(*this, placed.place, last);
    }
}

bool znBrowserManagerTcl::MovePopupMenuItemTo(int place) {
    const Operation operation(*this);
    Placed placed;
    if (!ReadItem(*this, placed)) return false;
    if (place >= 0 && place < placed.Count()) return Move(*this, placed.place, place);
    const std::string wanted = std::to_string(place);
    const std::string last = std::to_string(placed.Count() - 1);
    return operation.Fail({"Cannot move popup menu item to", wanted.c_str(), "expected 0 to", last.c_str()});
}
