// Styles and their elements.
#ifndef ZN_HOST_STYLE_H
#define ZN_HOST_STYLE_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserStyle.h"
#include "host/znIBrowserStyleElement.h"

#include <memory>
#include <string>

namespace znhost {

class Column;
class Style;

/// One drawn element of a style. What it shows is the value of a view property, seen through a GUI map;
/// both are kept by name.
class StyleElement final : public znIBrowserStyleElement, public HostObject {
public:
    StyleElement(Style& style, std::string name, std::string description);

    const std::string& Name() const { return name_; }
    const std::string& Description() const { return description_; }
    const std::string& MapName() const { return mapName_; }
    const std::string& PropertyName() const { return propertyName_; }

    const char* GetName() const override;
    const char* GetDescription() const override;
    bool SetDescription(const char* description) override;
    const char* GetMapName() const override;
    bool SetMapName(const char* name) override;
    const char* GetPropertyName() const override;
    bool SetPropertyName(const char* name) override;
    znIBrowserStyle* GetStyle() override;

private:
    bool Change(std::string& field, const char* text);

    Style& style_;
    const std::string name_;
    std::string description_;
    std::string mapName_;
    std::string propertyName_;
};

/// A named set of elements, owned by a column.
class Style final : public znIBrowserStyle, public HostObject, public std::enable_shared_from_this<Style> {
public:
    Style(Column& column, std::string name);

    const std::string& Name() const { return name_; }
    Column& Owner() const { return column_; }
    const NamedList<StyleElement>& Elements() const { return elements_; }
    /// Tells the windows that cells look different now.
    void Changed() const;

    const char* GetName() const override;
    void GetElements(std::vector<znIBrowserStyleElement*>& elements) override;
    bool FindElement(const char* name) override;
    znIBrowserStyleElement* CreateElement(const char* name, const char* description) override;
    bool DeleteElement(znIBrowserStyleElement* element) override;
    znIBrowserViewColumn* GetColumn() override;

private:
    friend class StyleElement;

    Column& column_;
    const std::string name_;
    NamedList<StyleElement> elements_;
};

} // namespace znhost

#endif
