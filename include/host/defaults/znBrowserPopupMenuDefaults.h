// The default answers of `znIBrowserPopupMenu`.
#ifndef ZN_BROWSER_POPUP_MENU_DEFAULTS_H
#define ZN_BROWSER_POPUP_MENU_DEFAULTS_H

#include "../znIBrowserPopupMenu.h"

/// `znIBrowserPopupMenu` for hosts that have a part of it: override what there is.
class znBrowserPopupMenuDefaults : public znIBrowserPopupMenu {
public:
    const char* GetName() const override { return nullptr; }

protected:
    ~znBrowserPopupMenuDefaults() = default;
};

#endif
