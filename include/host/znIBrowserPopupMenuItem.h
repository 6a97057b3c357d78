// An item of a popup menu.
#ifndef ZN_I_BROWSER_POPUP_MENU_ITEM_H
#define ZN_I_BROWSER_POPUP_MENU_ITEM_H

/// An item of a popup menu.
class znIBrowserPopupMenuItem {
public:
    virtual const char* GetName() const = 0;

protected:
    ~znIBrowserPopupMenuItem() = default;
};

#endif
