// A style: how a column draws its items.
#ifndef ZN_I_BROWSER_STYLE_H
#define ZN_I_BROWSER_STYLE_H

#include <vector>

class znIBrowserStyleElement;
class znIBrowserViewColumn;

/// A named set of style elements that belongs to a column.
class znIBrowserStyle {
public:
    virtual const char* GetName() const = 0;
    /// The style's elements, in order.
    virtual void GetElements(std::vector<znIBrowserStyleElement*>& elements) = 0;
    /// Whether an element of that name exists.
    virtual bool FindElement(const char* name) = 0;
    /// Makes an element; the description may be "".
    /// @return the new element, or null when the host refuses.
    virtual znIBrowserStyleElement* CreateElement(const char* name, const char* description) = 0;
    virtual bool DeleteElement(znIBrowserStyleElement* element) = 0;
    /// The column that owns the style.
    virtual znIBrowserViewColumn* GetColumn() = 0;

protected:
    ~znIBrowserStyle() = default;
};

#endif
