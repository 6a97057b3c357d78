// The default answers of `znIBrowserStyle`.
#ifndef ZN_BROWSER_STYLE_DEFAULTS_H
#define ZN_BROWSER_STYLE_DEFAULTS_H

#include "../znIBrowserStyle.h"

#include <vector>

/// `znIBrowserStyle` for hosts that have a part of it: override what there is.
class znBrowserStyleDefaults : public znIBrowserStyle {
public:
    const char* GetName() const override { return nullptr; }
    void GetElements(std::vector<znIBrowserStyleElement*>& elements) override { elements.clear(); }
    bool FindElement(const char*) override { return false; }
    znIBrowserStyleElement* CreateElement(const char*, const char*) override { return nullptr; }
    bool DeleteElement(znIBrowserStyleElement*) override { return false; }
    znIBrowserViewColumn* GetColumn() override { return nullptr; }

protected:
    ~znBrowserStyleDefaults() = default;
};

#endif
