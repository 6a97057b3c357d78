// A popup menu of the host.
#ifndef ZN_I_BROWSER_POPUP_MENU_H
#define ZN_I_BROWSER_POPUP_MENU_H

/// A popup menu. Scripts refer to one by name: see `znIBrowserViewColumn::SetPopupMenu`.
class znIBrowserPopupMenu {
public:
    /// The name, unique in the host.
    virtual const char* GetName() const = 0;

protected:
    ~znIBrowserPopupMenu() = default;
};

#endif
