// The default answers of `znIBrowserDataCtrl`.
#ifndef ZN_BROWSER_DATA_CTRL_DEFAULTS_H
#define ZN_BROWSER_DATA_CTRL_DEFAULTS_H

#include "../znIBrowserDataCtrl.h"

#include <vector>

/// `znIBrowserDataCtrl` for hosts that have a part of it: override what there is.
class znBrowserDataCtrlDefaults : public znIBrowserDataCtrl {
public:
    const char* GetName() const override { return nullptr; }
    void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) override { sources.clear(); }
    znIBrowserDataSourceSimple* FindDataSourceSimple(const char*) override { return nullptr; }
    bool CreateDataSourceSimple(const char*, const char*, const char*) override { return false; }
    bool DeleteDataSourceSimple(const char*) override { return false; }
    void GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) override {
        sources.clear();
    }
    znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char*) override { return nullptr; }
    bool CreateDataSourceHierarchical(const char*, bool, bool, const char*, const char*) override {
        return false;
    }
    bool CreateDataOperation(const char*) override { return false; }
    void GetDataOperations(std::vector<znIBrowserDataOperation*>& operations) override { operations.clear(); }
    znIBrowserDataOperation* FindDataOperation(const char*) override { return nullptr; }
    bool SetDataSourceSimpleCaption(znIBrowserDataSourceSimple*, const char*) override { return false; }
    bool SetDataSourceSimpleFilterCaption(znIBrowserDataSourceSimple*, const char*) override { return false; }
    znIBrowserDataSource* FindDataSource(const char*) override { return nullptr; }
    bool GetDataReferences(std::vector<znIBrowserDataReference*>& references) override {
        references.clear();
        return true;
    }
    znIBrowserDataReference* FindDataReference(const char*) override { return nullptr; }
    bool GetDataSources(std::vector<znIBrowserDataSource*>& sources) override {
        sources.clear();
        return true;
    }
    void SetCurrentView(znIBrowserView*) override {}
    znIBrowserInputField* CreateInputField(const char*, const char*, int&) override { return nullptr; }
    bool DeleteInputField(const char*) override { return false; }
    bool GetInputFields(std::vector<znIBrowserInputField*>& fields) override {
        fields.clear();
        return true;
    }
    znIBrowserInputField* FindInputField(const char*) override { return nullptr; }
    znIBrowserStateContainer* GetStateContainer() override { return nullptr; }
    bool DeleteDataOperation(znIBrowserDataOperation*) override { return false; }

protected:
    ~znBrowserDataCtrlDefaults() = default;
};

#endif
