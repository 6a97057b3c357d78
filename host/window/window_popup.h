// The popup menu of a window.
#ifndef ZN_HOST_WINDOW_POPUP_H
#define ZN_HOST_WINDOW_POPUP_H

#include "window/popup_entries.h"

#include <string>

namespace znhost {

/// Knows what was clicked last, which menu is open for it, and what that shows.
class WindowPopup {
public:
    explicit WindowPopup(Window& window) : window_(window) {}
    WindowPopup(const WindowPopup&) = delete;
    WindowPopup& operator=(const WindowPopup&) = delete;

    /// The menus from now on are about this click.
    void SetClick(PopupClick click);
    /// The menu for the click is shown: its post scripts run, and may delete the window.
    void Open();
    void Close();
    bool IsOpen() const { return open_; }
    /// What the open menu shows.
    const PopupEntries& Entries() const { return entries_; }
    /// Whether the menu that is open shows that one, itself or in a cascade.
    bool Shows(const PopupMenu& menu) const;

    /// The item of that name in the menu for the click, or "MENU/ITEM" for one of any menu. Null when there
    /// is none.
    PopupItem* FindItem(const std::string& name);

private:
    Window& window_;
    PopupClick click_;
    PopupPlace menu_; ///< the one that was shown for the click
    PopupMenus shown_;
    PopupEntries entries_;
    bool open_ = false;
};

} // namespace znhost

#endif
