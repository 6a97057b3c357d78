// A free folder of a view.
#ifndef ZN_I_BROWSER_VIEW_ITEM_FREE_FOLDER_H
#define ZN_I_BROWSER_VIEW_ITEM_FREE_FOLDER_H

#include "znIBrowserViewItem.h"
#include "znutl/znString.h"
#include <vector>

struct znBrowserDataItems;
class znIBrowserDataSource;
class znIBrowserDataSourceHierarchical;
class znIBrowserDataSourceSimple;
class znIBrowserPopupMenu;
class znIBrowserView;
class znIBrowserViewColumn;

/// A named folder that scripts create in a view. It holds further folders, at most one tree (a hierarchical
/// data source) and any number of lists (simple data sources). Its settings are changed through `znIBrowser`,
/// and so is what it shows; each source is listed once. Folders may be nested to any depth.
class znIBrowserViewItemFreeFolder : public znIBrowserViewItem {
public:
    /// The name, unique among the folders of its parent; the root folder mostly bears the view's.
    virtual const char* GetName() const = 0;
    /// The child folder of that name, or null.
    virtual znIBrowserViewItemFreeFolder* FindChildFolder(const char* name) = 0;
    /// The hierarchical data sources shown in the folder: one at most, as long as the layer makes the trees.
    virtual void GetTrees(std::vector<znIBrowserDataSourceHierarchical*>& trees) = 0;
    /// The simple data sources shown in the folder, in order. The text of a refusal is not read.
    virtual bool GetLists(std::vector<znIBrowserDataSourceSimple*>& lists) = 0;
    /// The folders directly in this one, in the order created. The text of a refusal is not read.
    virtual bool GetChildFolders(std::vector<znIBrowserViewItemFreeFolder*>& folders) = 0;
    /// The folder that holds this one; null for the root folder.
    virtual znIBrowserViewItemFreeFolder* GetParent() = 0;
    /// The view that owns the folder.
    virtual znIBrowserView* GetView() = 0;
    /// Items dropped on the folder go to that hierarchical data source, of the current data control. The
    /// result is not used.
    virtual bool SetDropItem(znIBrowserDataSourceHierarchical* source) = 0;

    // Settings, as last set through `znIBrowser`.
    /// Whether trees and lists without items are shown.
    virtual bool GetShowEmptyContainers() const = 0;
    /// Whether child folders that show nothing are shown.
    virtual bool GetShowEmptyFolders() const = 0;
    /// Whether the child folders are left out of the sorting.
    virtual bool GetKeepChildrenAsCreated() const = 0;
    /// The names of the data item types (data sources) configured in the folder and below it, each once.
    virtual bool GetConfiguredTypes(std::vector<znString>& names) = 0;
    /// The names of the child types that the folder's tree shows: not its top source, not the hidden ones.
    /// The text of a refusal is not read.
    virtual bool GetShownChildTypes(std::vector<znString>& names) = 0;
    /// The names of the data references by which the folder's tree finds its top items.
    virtual bool GetTreeToplevelNames(std::vector<znString>& names) = 0;
    /// The names of the data references by which the folder's tree finds children.
    virtual bool GetTreeParentChildNames(std::vector<znString>& names) = 0;
    /// The selected folders below this one, by name, in the order shown.
    virtual bool GetSelectedFolderNames(std::vector<znString>& names) = 0;
    /// The selected items in this folder and those below it, by data source.
    virtual bool GetSelection(znBrowserDataItems& items) = 0;

    // Data sources configured in the folder itself (new connection scheme).
    /// The data source of that name, of either kind, that the folder shows; or null.
    virtual znIBrowserDataSource* FindDataSource(const char* name) = 0;
    /// The data source that scripts chose last in this folder, or null.
    virtual znIBrowserDataSource* GetCurrentDataSource() = 0;
    /// Keeps the data source that a script chose; it is one of the folder's.
    virtual bool SetCurrentDataSource(znIBrowserDataSource* source) = 0;
    /// Whether the items of that data source are drawn, in that column, with the folder's own style.
    virtual bool SetDataSourceStyle(znIBrowserDataSource* source, znIBrowserViewColumn* column,
                                    bool style) = 0;

    /// The popup menu of the folder's row and of the rows in it, those in folders below included, where
    /// nothing nearer has one; null for none of its own.
    virtual znIBrowserPopupMenu* GetPopupMenu() { return nullptr; }
    /// Gives these rows the popup menu of that name, which exists; "" for none.
    virtual bool SetPopupMenu(const char* /*name*/) { return false; }

protected:
    ~znIBrowserViewItemFreeFolder() = default;
};

#endif
