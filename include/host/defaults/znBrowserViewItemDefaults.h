// The default answers of `znIBrowserViewItem`.
#ifndef ZN_BROWSER_VIEW_ITEM_DEFAULTS_H
#define ZN_BROWSER_VIEW_ITEM_DEFAULTS_H

#include "../znIBrowserViewItem.h"

/// `znIBrowserViewItem` for hosts that have a part of it: override what there is.
class znBrowserViewItemDefaults : public znIBrowserViewItem {
public:
    bool SetStyle(znIBrowserStyle*) override { return false; }

protected:
    ~znBrowserViewItemDefaults() = default;
};

#endif
