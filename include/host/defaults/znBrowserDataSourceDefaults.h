// The default answers of `znIBrowserDataSource`.
#ifndef ZN_BROWSER_DATA_SOURCE_DEFAULTS_H
#define ZN_BROWSER_DATA_SOURCE_DEFAULTS_H

#include "../znIBrowserDataSource.h"
#include "../znutl/znString.h"

#include <vector>

/// `znIBrowserDataSource` for hosts that have a part of it: override what there is.
class znBrowserDataSourceDefaults : public znIBrowserDataSource {
public:
    znString GetName() const override { return {}; }
    znIBrowserDataSourceSimple* GetSimple() override { return nullptr; }
    znIBrowserDataSourceHierarchical* GetHierarchical() override { return nullptr; }
    znIBrowserDataProperty* FindDataProperty(const char*) override { return nullptr; }
    bool SelectItems(znIBrowserView*, bool, bool) override { return false; }
    bool SelectItemsByProperty(znIBrowserView*, znIBrowserViewProperty*, bool, bool) override {
        return false;
    }
    bool SelectItemsByValue(znIBrowserView*, znIBrowserViewProperty*, const char*, bool, bool) override {
        return false;
    }
    bool SelectItemsByValues(znIBrowserView*, znIBrowserViewProperty*, const std::vector<znString>&, bool,
                             bool) override {
        return false;
    }

protected:
    ~znBrowserDataSourceDefaults() = default;
};

#endif
