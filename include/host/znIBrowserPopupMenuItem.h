// An item of a popup menu.
#ifndef ZN_I_BROWSER_POPUP_MENU_ITEM_H
#define ZN_I_BROWSER_POPUP_MENU_ITEM_H

/// An item of a popup menu. One can be current, which only C++ clients of the manager bring about.
class znIBrowserPopupMenuItem {
public:
    /// The name, unique in its menu.
    virtual const char* GetName() const = 0;

protected:
    ~znIBrowserPopupMenuItem() = default;
};

#endif
