// The default answers of `znIBrowserPopupMenuItem`.
#ifndef ZN_BROWSER_POPUP_MENU_ITEM_DEFAULTS_H
#define ZN_BROWSER_POPUP_MENU_ITEM_DEFAULTS_H

#include "../znIBrowserPopupMenuItem.h"

/// `znIBrowserPopupMenuItem` for hosts that have a part of it: override what there is.
class znBrowserPopupMenuItemDefaults : public znIBrowserPopupMenuItem {
public:
    const char* GetName() const override { return nullptr; }

protected:
    ~znBrowserPopupMenuItemDefaults() = default;
};

#endif
