// The default answers of `znIBrowserViewProperty`.
#ifndef ZN_BROWSER_VIEW_PROPERTY_DEFAULTS_H
#define ZN_BROWSER_VIEW_PROPERTY_DEFAULTS_H

#include "../../znBrowserTypes.h"
#include "../znIBrowserViewProperty.h"

#include <vector>

/// `znIBrowserViewProperty` for hosts that have a part of it: override what there is.
class znBrowserViewPropertyDefaults : public znIBrowserViewProperty {
public:
    const char* GetName() const override { return nullptr; }
    znIBrowserView* GetView() override { return nullptr; }
    ZNBROWSER_DATA_TYPE GetType() const override { return ZNBROWSER_DATA_UNDEFINED; }
    void GetConnections(std::vector<znBrowserConnection>& connections) override { connections.clear(); }
    znIBrowserDataProperty* GetDataProperty(znIBrowserDataSourceSimple*) override { return nullptr; }

protected:
    ~znBrowserViewPropertyDefaults() = default;
};

#endif
