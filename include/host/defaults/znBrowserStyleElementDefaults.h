// The default answers of `znIBrowserStyleElement`.
#ifndef ZN_BROWSER_STYLE_ELEMENT_DEFAULTS_H
#define ZN_BROWSER_STYLE_ELEMENT_DEFAULTS_H

#include "../znIBrowserStyleElement.h"

/// `znIBrowserStyleElement` for hosts that have a part of it: override what there is.
class znBrowserStyleElementDefaults : public znIBrowserStyleElement {
public:
    const char* GetName() const override { return nullptr; }
    const char* GetDescription() const override { return nullptr; }
    bool SetDescription(const char*) override { return false; }
    const char* GetMapName() const override { return nullptr; }
    bool SetMapName(const char*) override { return false; }
    const char* GetPropertyName() const override { return nullptr; }
    bool SetPropertyName(const char*) override { return false; }
    znIBrowserStyle* GetStyle() override { return nullptr; }

protected:
    ~znBrowserStyleElementDefaults() = default;
};

#endif
