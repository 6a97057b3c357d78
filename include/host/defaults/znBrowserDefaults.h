// The default answers of `znIBrowser`.
#ifndef ZN_BROWSER_DEFAULTS_H
#define ZN_BROWSER_DEFAULTS_H

#include "../znIBrowser.h"
#include "../znutl/znString.h"

#include <vector>

/// `znIBrowser` for hosts that have a part of it: override what there is. A refusal that no other text
/// explains reads "not supported".
class znBrowserDefaults : public znIBrowser {
public:
    bool ApplyPendingChanges(znIBrowserViewItemFreeFolder*) override { return false; }
    void SetFlushFlag(bool) override {}
    bool CreateView(const char*, bool) override { return false; }
    znIBrowserViewList* GetViewList() override { return nullptr; }
    bool DeleteView(znIBrowserView*) override { return false; }
    bool RedrawViews(znIBrowserDataCtrl*) override { return false; }
    bool CreateIconColumn(znIBrowserView*, const char*, const char*, const char*) override { return false; }
    bool CreateButtonColumn(znIBrowserView*, const char*, const char*) override { return false; }
    bool CreateTextBoxColumn(znIBrowserView*, const char*, const char*) override { return false; }
    bool SetColumnJustify(znIBrowserView*, znIBrowserViewColumn*, const char*) override { return false; }
    bool SetColumnWidth(znIBrowserViewColumn*, const char*) override { return false; }
    bool MoveColumn(znIBrowserView*, znIBrowserViewColumn*, int) override { return false; }
    bool DeleteColumn(znIBrowserViewColumn*) override { return false; }
    bool SetColumnAscending(znIBrowserViewColumn*, bool) override { return false; }
    bool CreateViewProperty(znIBrowserView*, const char*) override { return false; }
    bool DeleteViewProperty(znIBrowserView*, znIBrowserViewProperty*) override { return false; }
    bool ConnectViewProperty(znIBrowserViewProperty*, znIBrowserDataSource*,
                             znIBrowserDataProperty*) override {
        return false;
    }
    bool ConnectViewPropertyNew(znIBrowserViewProperty*, znIBrowserDataSource*,
                                znIBrowserDataProperty*) override {
        return false;
    }
    bool DisconnectViewProperty(znIBrowserViewProperty*, znIBrowserDataSource*) override { return false; }
    bool ConnectScriptProperty(znIBrowserViewProperty*, const char*) override { return false; }
    bool SetViewPropertyScripts(znIBrowserViewProperty*, const char*, const char*, const char*) override {
        return false;
    }
    bool SetViewPropertyType(znIBrowserView*, znIBrowserViewProperty*, ZNBROWSER_DATA_TYPE) override {
        return false;
    }
    bool CreateViewOperation(znIBrowserView*, const char*) override { return false; }
    bool AddTree(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceHierarchical*) override { return false; }
    bool CreateFreeFolder(znIBrowserViewItemFreeFolder*, const char*) override { return false; }
    bool GetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder*) override { return false; }
    bool GetFreeFolderStyle(znIBrowserViewItemFreeFolder*) override { return false; }
    bool SetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool SetFreeFolderStyle(znIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool SetFreeFolderShowEmptyContainers(znIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool DestroyFreeFolder(znIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool RemoveTree(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceHierarchical*) override {
        return false;
    }
    bool SetTreeGroup(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceHierarchical*, bool, bool) override {
        return false;
    }
    bool SetChildTypeShown(znIBrowserViewItemFreeFolder*, znIBrowserDataSource*, bool) override {
        return false;
    }
    bool CreateTreeToplevel(znIBrowserViewItemFreeFolder*, znIBrowserDataSource*,
                            znIBrowserDataReference*) override {
        return false;
    }
    bool CreateTreeParentChild(znIBrowserViewItemFreeFolder*, znIBrowserDataSource*, znIBrowserDataSource*,
                               znIBrowserDataReference*) override {
        return false;
    }
    bool AddList(znIBrowserViewItemFreeFolder*, znIBrowserDataSource*, bool) override { return false; }
    bool RemoveList(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceSimple*) override { return false; }
    bool SetListCaption(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceSimple*, const char*) override {
        return false;
    }
    bool SetListGroup(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceSimple*, bool, bool) override {
        return false;
    }
    bool SetListStyle(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceSimple*, znIBrowserViewColumn*,
                      znIBrowserStyle*, bool) override {
        return false;
    }
    bool ExpandList(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceSimple*, bool) override {
        return false;
    }
    bool CollapseList(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceSimple*, bool) override {
        return false;
    }
    bool ExpandFreeFolder(znIBrowserView*, znIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool CollapseFreeFolder(znIBrowserView*, znIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool SetFreeFolderShowEmptyFolders(znIBrowserViewItemFreeFolder*, bool, bool) override { return false; }
    bool SetFreeFolderShowCountByImage(znIBrowserViewItemFreeFolder*, bool, bool) override { return false; }
    bool SetFreeFolderShowCountByNumber(znIBrowserViewItemFreeFolder*, bool, bool) override { return false; }
    bool SetFreeFolderBold(znIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool SetFreeFolderItalic(znIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool SetFreeFolderKeepChildrenAsCreated(znIBrowserViewItemFreeFolder*, bool) override { return false; }
    bool SetFreeFolderCreateExpandedItem(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceSimple*,
                                         int) override {
        return false;
    }
    bool SetFreeFolderSortingException(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceSimple*,
                                       int) override {
        return false;
    }
    znIBrowserWindowAccessList* GetWindowAccessList() override { return nullptr; }
    void SetCurrentWindowAccess(znIBrowserWindowAccess*) override {}
    bool CreateWindowAccess(const char*, znIBrowserView*) override { return false; }
    bool DeleteWindowAccess(znIBrowserWindowAccess*) override { return false; }
    void SetWindowTkFrame(znIBrowserWindowAccess*, const char*) override {}
    bool PostWindowAccess(znIBrowserWindowAccess*, bool) override { return false; }
    bool SetWindowStripeDisplay(znIBrowserWindowAccess*, bool, bool) override { return false; }
    bool SetWindowBackgroundColor(znIBrowserWindowAccess*, const char*, bool) override { return false; }
    bool CreateWindowPart(znIBrowserWindowAccess*, const char*, const char*) override { return false; }
    bool DeleteWindowPart(znIBrowserWindowPart*) override { return false; }
    bool SetWindowPartShown(znIBrowserWindowPart*, bool) override { return false; }
    bool CreateWindowCallback(znIBrowserEvent*, const char*, bool) override { return false; }
    bool SetCallbackActionWindow(znIBrowserWindowCallback*, znIBrowserWindowAccess*) override {
        return false;
    }
    bool SetCallbackOperation(znIBrowserWindowCallback*, ZNBROWSER_CALLBACK_OPERATION) override {
        return false;
    }
    znIBrowserGuiMapList* GetGuiMapList() override { return nullptr; }
    bool DeleteGuiMap(const char*) override { return false; }
    bool CreateGuiMapRecord(znIBrowserGuiMap*, bool, const char*) override { return false; }
    bool CreateGuiMapRecord(znIBrowserGuiMap*, unsigned int, const char*) override { return false; }
    bool CreateGuiMapRecord(znIBrowserGuiMap*, double, const char*) override { return false; }
    bool CreateGuiMapRecord(znIBrowserGuiMap*, int, const char*) override { return false; }
    bool CreateGuiMapRecord(znIBrowserGuiMap*, const char*, const char*) override { return false; }
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap*, bool, const char*) override { return false; }
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap*, unsigned int, const char*) override { return false; }
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap*, double, const char*) override { return false; }
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap*, int, const char*) override { return false; }
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap*, const char*, const char*) override { return false; }
    bool DeleteGuiMapRecord(znIBrowserGuiMap*, const char*) override { return false; }
    bool DeleteGuiMapRecord(znIBrowserGuiMap*, bool) override { return false; }
    bool DeleteGuiMapRecord(znIBrowserGuiMap*, unsigned int) override { return false; }
    bool DeleteGuiMapRecord(znIBrowserGuiMap*, double) override { return false; }
    bool DeleteGuiMapRecord(znIBrowserGuiMap*, int) override { return false; }
    bool CreateGuiMap(const char*) override { return false; }
    bool SetGuiMapType(znIBrowserGuiMap*, ZNBROWSER_GUIMAP_TYPE) override { return false; }
    bool SetFindRequestType(znIBrowserFindRequest*, ZNBROWSER_FIND_REQUEST_TYPE) override { return false; }
    bool PerformFindRequest(znIBrowserFindRequest*) override { return false; }
    bool ConnectDataSourceSimple(znIBrowserView*, const char*) override { return false; }
    bool ConnectDataSourceHierarchical(znIBrowserView*, const char*) override { return false; }
    bool DisconnectDataSource(znIBrowserView*, const char*) override { return false; }
    bool GetSharedDataSourcesHierarchical(znIBrowserView*, std::vector<Share>& shares) override {
        shares.clear();
        return true;
    }
    bool ShareDataSourceHierarchical(znIBrowserView*, znIBrowserView*,
                                     znIBrowserDataSourceHierarchical*) override {
        return false;
    }
    bool UpdateTreeDataSource(znIBrowserViewItemFreeFolder*, znIBrowserDataSource*) override { return false; }
    const char* GetError() const override { return "not supported"; }
    bool PerformDataOperation(znIBrowserDataOperation*) override { return false; }
    bool RestoreState(znIBrowserState*, znIBrowserWindowAccess*) override { return false; }
    bool AddStateEntities(znIBrowserDataCtrl*, znIBrowserState*, const std::vector<znString>&) override {
        return false;
    }
    bool RemoveStateEntities(znIBrowserDataCtrl*, znIBrowserState*, const std::vector<znString>&) override {
        return false;
    }

protected:
    ~znBrowserDefaults() = default;
};

#endif
