// The default answers of `znIBrowserView`.
#ifndef ZN_BROWSER_VIEW_DEFAULTS_H
#define ZN_BROWSER_VIEW_DEFAULTS_H

#include "../znBrowserDataItems.h"
#include "../znIBrowserView.h"
#include "../znutl/znString.h"

#include <vector>

/// `znIBrowserView` for hosts that have a part of it: override what there is.
class znBrowserViewDefaults : public znIBrowserView {
public:
    const znString& GetName() const override {
        static const znString none;
        return none;
    }
    znIBrowserDataCtrl* GetDataCtrl() override { return nullptr; }
    bool SetDataCtrl(znIBrowserDataCtrl*) override { return false; }
    znIBrowserViewColumn* GetCurrentColumn() override { return nullptr; }
    znIBrowserViewItemFreeFolder* GetRootFreeFolder() override { return nullptr; }
    bool UsesNewConnections() const override { return false; }
    znIBrowser* GetBrowser() override { return nullptr; }
    znIBrowserViewColumn* FindColumn(const char*) override { return nullptr; }
    znIBrowserViewColumn* GetDefaultColumn() override { return nullptr; }
    bool GetColumns(std::vector<znIBrowserViewColumn*>& columns) override {
        columns.clear();
        return true;
    }
    znIBrowserViewProperty* FindViewProperty(const char*) override { return nullptr; }
    bool GetViewProperties(std::vector<znIBrowserViewProperty*>& properties) override {
        properties.clear();
        return true;
    }
    znIBrowserViewOperation* FindViewOperation(const char*) override { return nullptr; }
    void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) override { sources.clear(); }
    void GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) override {
        sources.clear();
    }
    znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char*) override { return nullptr; }
    znIBrowserDataSource* FindDataSource(const char*) override { return nullptr; }
    bool SetDataSourceConnected(znIBrowserDataSource*, bool) override { return false; }
    bool GetConnectedDataSources(std::vector<znIBrowserDataSource*>& sources) override {
        sources.clear();
        return true;
    }
    bool GetConnectedDataReferences(std::vector<znIBrowserDataReference*>& references) override {
        references.clear();
        return true;
    }
    bool ConnectDataReference(znIBrowserDataReference*, bool) override { return false; }
    bool AddFindRequestProperty(znIBrowserFindRequest*, const char*) override { return false; }
    bool ClearSelection() override { return false; }
    bool GetSelectedItems(znIBrowserDataSource*, bool, znBrowserDataItems& items) override {
        items.Clear();
        return true;
    }
    bool GetAllSelectedItems(bool, znBrowserDataItems& items) override {
        items.Clear();
        return true;
    }
    bool GetSorting() const override { return false; }
    bool SetSorting(bool) override { return false; }
    bool GetShownFilters(std::vector<znString>& names) override {
        names.clear();
        return true;
    }
    bool SetShownFilters(const std::vector<znString>&) override { return false; }
    bool GetFilterNames(std::vector<znString>& names) override {
        names.clear();
        return true;
    }
    bool RebuildFilterLists() override { return false; }
    bool GetGroupFilter() const override { return false; }
    bool SetGroupFilter(bool) override { return false; }
    const char* GetFilterString() const override { return nullptr; }
    bool SetFilterString(const char*) override { return false; }
    bool GetFilterMatchCase() const override { return false; }
    bool SetFilterMatchCase(bool) override { return false; }
    bool GetFilterMatchWord() const override { return false; }
    bool SetFilterMatchWord(bool) override { return false; }

protected:
    ~znBrowserViewDefaults() = default;
};

/// `znIBrowserViewList` for hosts that have a part of it: override what there is.
class znBrowserViewListDefaults : public znIBrowserViewList {
public:
    znIBrowserView* FindView(const char*) override { return nullptr; }
    void GetViews(std::vector<znIBrowserView*>& views, int) override { views.clear(); }

protected:
    ~znBrowserViewListDefaults() = default;
};

#endif
