// One element of a style: a text, an icon, a check box.
#ifndef ZN_I_BROWSER_STYLE_ELEMENT_H
#define ZN_I_BROWSER_STYLE_ELEMENT_H

class znIBrowserStyle;

/// One drawn element of a style, connected to a view property or to a GUI map by name.
class znIBrowserStyleElement {
public:
    virtual const char* GetName() const = 0;
    virtual const char* GetDescription() const = 0;
    virtual bool SetDescription(const char* description) = 0;
    /// The GUI map that the element is connected to; "" for none.
    virtual const char* GetMapName() const = 0;
    virtual bool SetMapName(const char* name) = 0;
    /// The view property that the element is connected to; "" for none.
    virtual const char* GetPropertyName() const = 0;
    virtual bool SetPropertyName(const char* name) = 0;
    /// The style that owns the element.
    virtual znIBrowserStyle* GetStyle() = 0;

protected:
    ~znIBrowserStyleElement() = default;
};

#endif
