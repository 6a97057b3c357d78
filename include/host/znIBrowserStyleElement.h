// One element of a style: a text, an icon, a check box.
#ifndef ZN_I_BROWSER_STYLE_ELEMENT_H
#define ZN_I_BROWSER_STYLE_ELEMENT_H

class znIBrowserStyle;

/// One drawn element of a style, connected to a view property or to a GUI map by name. With both, the map
/// says what is drawn for the property's values. What a name stands for may be gone when it is drawn.
class znIBrowserStyleElement {
public:
    /// The name, unique in the style. Clicks name the element by it.
    virtual const char* GetName() const = 0;
    /// A text of the script's, "" when it gave none. What it says about the drawing is the host's.
    virtual const char* GetDescription() const = 0;
    /// Sets that text.
    virtual bool SetDescription(const char* description) = 0;
    /// The GUI map that the element is connected to; "" for none.
    virtual const char* GetMapName() const = 0;
    /// Connects the element to a GUI map, which exists. A property that it is connected to stays.
    virtual bool SetMapName(const char* name) = 0;
    /// The view property that the element is connected to; "" for none.
    virtual const char* GetPropertyName() const = 0;
    /// Connects the element to a property of the current view, which exists. A GUI map stays.
    virtual bool SetPropertyName(const char* name) = 0;
    /// The style that owns the element.
    virtual znIBrowserStyle* GetStyle() = 0;

protected:
    ~znIBrowserStyleElement() = default;
};

#endif
