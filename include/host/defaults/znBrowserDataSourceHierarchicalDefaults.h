// The default answers of `znIBrowserDataSourceHierarchical`.
#ifndef ZN_BROWSER_DATA_SOURCE_HIERARCHICAL_DEFAULTS_H
#define ZN_BROWSER_DATA_SOURCE_HIERARCHICAL_DEFAULTS_H

#include "../znBrowserDataItems.h"
#include "../znIBrowserDataSourceHierarchical.h"

#include <vector>

/// `znIBrowserDataSourceHierarchical` for hosts that have a part of it: override what there is.
class znBrowserDataSourceHierarchicalDefaults : public znIBrowserDataSourceHierarchical {
public:
    const char* GetName() const override { return nullptr; }
    bool IsConnected() const override { return false; }
    bool SetParent(const char*) override { return false; }
    bool AddChild(const char*, const char*) override { return false; }
    bool RemoveChild(const char*) override { return false; }
    znIBrowserDataSourceSimple* GetParent() override { return nullptr; }
    bool GetChildren(std::vector<znIBrowserDataSourceSimple*>& children) override {
        children.clear();
        return true;
    }
    void GetDataItems(const znBrowserDataItem*, znBrowserDataItems& items, bool, bool) override {
        items.Clear();
    }
    znIBrowserDataSource* GetDataSource() override { return nullptr; }
    znIBrowserDataCtrl* GetDataCtrl() override { return nullptr; }

protected:
    ~znBrowserDataSourceHierarchicalDefaults() = default;
};

#endif
