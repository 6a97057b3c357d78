// The default answers of `znIBrowserViewItemFreeFolder`.
#ifndef ZN_BROWSER_VIEW_ITEM_FREE_FOLDER_DEFAULTS_H
#define ZN_BROWSER_VIEW_ITEM_FREE_FOLDER_DEFAULTS_H

#include "../znBrowserDataItems.h"
#include "../znIBrowserViewItemFreeFolder.h"
#include "../znutl/znString.h"

#include <vector>

/// `znIBrowserViewItemFreeFolder` for hosts that have a part of it: override what there is.
class znBrowserViewItemFreeFolderDefaults : public znIBrowserViewItemFreeFolder {
public:
    bool SetStyle(znIBrowserStyle*) override { return false; }
    const char* GetName() const override { return nullptr; }
    znIBrowserViewItemFreeFolder* FindChildFolder(const char*) override { return nullptr; }
    void GetTrees(std::vector<znIBrowserDataSourceHierarchical*>& trees) override { trees.clear(); }
    bool GetLists(std::vector<znIBrowserDataSourceSimple*>& lists) override {
        lists.clear();
        return true;
    }
    bool GetChildFolders(std::vector<znIBrowserViewItemFreeFolder*>& folders) override {
        folders.clear();
        return true;
    }
    znIBrowserViewItemFreeFolder* GetParent() override { return nullptr; }
    znIBrowserView* GetView() override { return nullptr; }
    bool SetDropItem(znIBrowserDataSourceHierarchical*) override { return false; }
    bool GetShowEmptyContainers() const override { return false; }
    bool GetShowEmptyFolders() const override { return false; }
    bool GetKeepChildrenAsCreated() const override { return false; }
    bool GetConfiguredTypes(std::vector<znString>& names) override {
        names.clear();
        return true;
    }
    bool GetShownChildTypes(std::vector<znString>& names) override {
        names.clear();
        return true;
    }
    bool GetTreeToplevelNames(std::vector<znString>& names) override {
        names.clear();
        return true;
    }
    bool GetTreeParentChildNames(std::vector<znString>& names) override {
        names.clear();
        return true;
    }
    bool GetSelectedFolderNames(std::vector<znString>& names) override {
        names.clear();
        return true;
    }
    bool GetSelection(znBrowserDataItems& items) override {
        items.Clear();
        return true;
    }
    znIBrowserDataSource* FindDataSource(const char*) override { return nullptr; }
    znIBrowserDataSource* GetCurrentDataSource() override { return nullptr; }
    bool SetCurrentDataSource(znIBrowserDataSource*) override { return false; }
    bool SetDataSourceStyle(znIBrowserDataSource*, znIBrowserViewColumn*, bool) override { return false; }

protected:
    ~znBrowserViewItemFreeFolderDefaults() = default;
};

#endif
