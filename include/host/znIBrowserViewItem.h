// What a view can draw with a style.
#ifndef ZN_I_BROWSER_VIEW_ITEM_H
#define ZN_I_BROWSER_VIEW_ITEM_H

class znIBrowserStyle;

/// An item of a view that takes a style: a free folder, for one.
class znIBrowserViewItem {
public:
    /// Draws the item, in the style's column, with that style from now on. It is one of the current column,
    /// which need not be of the item's own view: refuse then.
    virtual bool SetStyle(znIBrowserStyle* style) = 0;

protected:
    ~znIBrowserViewItem() = default;
};

#endif
