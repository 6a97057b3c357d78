// A style: how a column draws its items.
#ifndef ZN_I_BROWSER_STYLE_H
#define ZN_I_BROWSER_STYLE_H

#include <vector>

class znIBrowserStyleElement;
class znIBrowserViewColumn;

/// A named set of style elements that belongs to a column. It owns its elements. The texts of refusals are
/// not read.
class znIBrowserStyle {
public:
    /// The name, unique in the column.
    virtual const char* GetName() const = 0;
    /// The style's elements, in order. The first one becomes current when a script chooses the style.
    virtual void GetElements(std::vector<znIBrowserStyleElement*>& elements) = 0;
    /// Whether an element of that name exists. The layer then looks for it in the list of `GetElements`.
    virtual bool FindElement(const char* name) = 0;
    /// Makes an element, connected to nothing; the description may be "". No element has that name yet.
    /// @return the new element, or null when the host refuses.
    virtual znIBrowserStyleElement* CreateElement(const char* name, const char* description) = 0;
    /// Deletes an element of the style.
    virtual bool DeleteElement(znIBrowserStyleElement* element) = 0;
    /// The column that owns the style.
    virtual znIBrowserViewColumn* GetColumn() = 0;

protected:
    ~znIBrowserStyle() = default;
};

#endif
