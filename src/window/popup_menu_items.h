// What the operations of popup menu items share: the setting of a current item.
#ifndef POPUP_MENU_ITEMS_H
#define POPUP_MENU_ITEMS_H

#include "frame/operation.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "window/popup_messages.h"

namespace znlayer {

/// The current popup menu item; null when there is none, with the error set.
inline znIBrowserPopupMenuItem* RequireItem(znBrowserManagerTcl& manager) {
    znIBrowserPopupMenuItem* const item = manager.GetCurrentPopupMenuItemPtr();
    if (!item) Operation(manager, Operation::State::Kept).Fail(popup_messages::noItem);
    return item;
}

/// An operation that changes a setting of the current item.
template <class... Values>
bool SetInItem(znBrowserManagerTcl& manager, bool (znIBrowserPopupMenuItem::*setter)(Values...),
               Values... values) {
    const Operation operation(manager);
    znIBrowserPopupMenuItem* const item = RequireItem(manager);
    return item && operation.HostAnswer((item->*setter)(values...));
}

/// One that reads a text of the current item; where the host has none, it is "".
inline bool GetText(znBrowserManagerTcl& manager, const char* (znIBrowserPopupMenuItem::*getter)() const,
                    znString& out) {
    const Operation operation(manager);
    znIBrowserPopupMenuItem* const item = RequireItem(manager);
    if (item) out = (item->*getter)();
    return item != nullptr;
}

/// One that reads a flag of the current item.
inline bool GetFlag(znBrowserManagerTcl& manager, bool (znIBrowserPopupMenuItem::*getter)() const,
                    znString& out) {
    const Operation operation(manager);
    znIBrowserPopupMenuItem* const item = RequireItem(manager);
    return item && operation.GiveBool((item->*getter)(), out);
}

} // namespace znlayer

#endif
