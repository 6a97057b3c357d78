#include "window/window_popup.h"

#include "base/services.h"
#include "model/data_sources.h"
#include "window/browser_windows.h"
#include "window/window.h"
#include "window/window_display.h"
#include "window/window_list.h"

#include <algorithm>

namespace znhost {

void WindowPopup::SetClick(PopupClick click) {
    click_ = std::move(click);
    menu_.Set(nullptr);
}

void WindowPopup::Open() {
    Close();
    open_ = true;
    PopupMenu* const menu = ChooseMenu(window_, click_);
    menu_.Set(menu);
    PopupMenus shown;
    PopupEntries entries = menu ? MakeEntries(window_, click_, *menu, shown) : PopupEntries();
    if (!open_) return;
    entries_ = std::move(entries);
    shown_ = std::move(shown);
}

void WindowPopup::Close() {
    open_ = false;
    entries_.clear();
    shown_.clear();
}

bool WindowPopup::Shows(const PopupMenu& menu) const {
    return open_ &&
           std::any_of(shown_.begin(), shown_.end(), [&](auto& each) { return each.get() == &menu; });
}

PopupItem* WindowPopup::FindItem(const std::string& name) {
    PopupMenu* const menu = menu_.Get() ? menu_.Get() : ChooseMenu(window_, click_);
    if (PopupItem* const item = menu ? menu->Items().Find(name) : nullptr) return item;
    for (std::size_t slash = name.find('/'); slash != std::string::npos; slash = name.find('/', slash + 1)) {
        PopupMenu* const named = window_.Owner().PopupMenus().Find(name.substr(0, slash));
        if (PopupItem* const item = named ? named->Items().Find(name.substr(slash + 1)) : nullptr)
            return item;
    }
    return nullptr;
}

// ---- The window's events ----

bool Window::RightHandClick(znIBrowserViewColumn* column, const std::vector<unsigned int>& indices) {
    if (Refused("znIBrowserWindowAccess::RightHandClick", column, indices)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    if (!column || !rows_.HasAll(indices)) return false;
    popup_.SetClick({static_cast<Column*>(column)->weak_from_this(), indices});
    Fire(EventKind::RightClick);
    return true;
}

bool Window::PopupMenu(bool on) {
    if (Refused("znIBrowserWindowAccess::PopupMenu", on)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    on ? popup_.Open() : popup_.Close();
    return true;
}

// Where the menu has no such item, one of the two texts is the name of an operation of the view.
bool Window::PerformPopupOperation(const char* first, const char* second) {
    if (Refused("znIBrowserWindowAccess::PerformPopupOperation", first, second)) return false;
    const std::shared_ptr<Window> self = shared_from_this();
    if (PopupItem* const item = popup_.FindItem(TextOf(first)))
        return browser_.PerformPopupItem(*item, *this, TextOf(second));
    return RunOperation(TextOf(first)) || RunOperation(TextOf(second)) ||
           Fail("There is no popup menu item and no view operation \"" + TextOf(first) + "\"");
}

void BrowserWindows::OnPopupMenuDeleted(const PopupMenu& menu) {
    const std::vector<std::shared_ptr<Window>> windows(windows_->All().begin(), windows_->All().end());
    for (const auto& window : windows) {
        if (!window->Popup().Shows(menu)) continue;
        window->Popup().Close();
        if (WindowDisplay* const display = windows_->Display()) display->ClosePopup(*window);
    }
}

} // namespace znhost
