// The default answers of `znIBrowserPopupMenu`.
#ifndef ZN_BROWSER_POPUP_MENU_DEFAULTS_H
#define ZN_BROWSER_POPUP_MENU_DEFAULTS_H

#include "../znIBrowserPopupMenu.h"

#include <vector>

/// `znIBrowserPopupMenu` for hosts that have a part of it: override what there is.
class znBrowserPopupMenuDefaults : public znIBrowserPopupMenu {
public:
    const char* GetName() const override { return nullptr; }

protected:
    ~znBrowserPopupMenuDefaults() = default;
};

/// `znIBrowserPopupMenuList` for hosts that have a part of it: override what there is.
class znBrowserPopupMenuListDefaults : public znIBrowserPopupMenuList {
public:
    znIBrowserPopupMenu* FindPopupMenu(const char*) override { return nullptr; }
    bool GetPopupMenus(std::vector<znIBrowserPopupMenu*>&) override { return false; }

protected:
    ~znBrowserPopupMenuListDefaults() = default;
};

#endif
