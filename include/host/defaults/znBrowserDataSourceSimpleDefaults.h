// The default answers of `znIBrowserDataSourceSimple`.
#ifndef ZN_BROWSER_DATA_SOURCE_SIMPLE_DEFAULTS_H
#define ZN_BROWSER_DATA_SOURCE_SIMPLE_DEFAULTS_H

#include "../znBrowserDataItems.h"
#include "../znIBrowserDataSourceSimple.h"

#include <vector>

/// `znIBrowserDataSourceSimple` for hosts that have a part of it: override what there is.
class znBrowserDataSourceSimpleDefaults : public znIBrowserDataSourceSimple {
public:
    const char* GetName() const override { return nullptr; }
    const char* GetCaption() const override { return nullptr; }
    const char* GetFilterCaption() const override { return nullptr; }
    const char* GetError() const override { return nullptr; }
    bool IsConnected() const override { return false; }
    bool IsBase() const override { return false; }
    bool IsCustom() const override { return false; }
    bool ConnectBase(znIBrowserDataSourceSimple*) override { return false; }
    bool DisconnectBase(znIBrowserDataSourceSimple*) override { return false; }
    bool GetBaseDataSources(std::vector<znIBrowserDataSourceSimple*>& bases) override {
        bases.clear();
        return true;
    }
    void Update() override {}
    bool SetCurrentBase(znIBrowserDataSourceSimple*) override { return false; }
    znIBrowserCriteriaContainer* GetCriteriaList() override { return nullptr; }
    bool CreateCriteria(const char*) override { return false; }
    bool DeleteCriteria(znIBrowserCriteria*) override { return false; }
    bool GetDataProperties(std::vector<znIBrowserDataProperty*>& properties) override {
        properties.clear();
        return true;
    }
    bool CreateDataPropertyAttribute(const char*, ZNBROWSER_DATA_TYPE, unsigned int, int) override {
        return false;
    }
    bool CreateDataPropertyScript(const char*, const char*) override { return false; }
    bool DeleteDataProperty(const char*) override { return false; }
    void GetDataItems(znBrowserDataItems& items) override { items.Clear(); }
    znIBrowserDataSource* GetDataSource() override { return nullptr; }
    znIBrowserDataCtrl* GetDataCtrl() override { return nullptr; }

protected:
    ~znBrowserDataSourceSimpleDefaults() = default;
};

#endif
