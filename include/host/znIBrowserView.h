// A view: what a window shows, and how.
#ifndef ZN_I_BROWSER_VIEW_H
#define ZN_I_BROWSER_VIEW_H

#include "znutl/znString.h"
#include <vector>

struct znBrowserDataItems;
class znIBrowser;
class znIBrowserDataCtrl;
class znIBrowserDataReference;
class znIBrowserDataSource;
class znIBrowserDataSourceHierarchical;
class znIBrowserDataSourceSimple;
class znIBrowserFindRequest;
class znIBrowserPopupMenu;
class znIBrowserViewColumn;
class znIBrowserViewItemFreeFolder;
class znIBrowserViewOperation;
class znIBrowserViewProperty;

/// A view: columns, view properties, operations and a tree of free folders over the data sources of one
/// data control. They are made and deleted through `znIBrowser`.
class znIBrowserView {
public:
    /// The view's name; the text lives as long as the view.
    virtual const znString& GetName() const = 0;
    /// The data control connected to the view, or null. It becomes current with the view.
    virtual znIBrowserDataCtrl* GetDataCtrl() = 0;
    /// Connects a data control; null disconnects. The layer connects one only to a view that has none. The
    /// result is not used.
    virtual bool SetDataCtrl(znIBrowserDataCtrl* control) = 0;
    /// The column that the view regards as current (or its first), or null. It becomes current when a script
    /// chooses the view, but not when one creates it.
    virtual znIBrowserViewColumn* GetCurrentColumn() = 0;
    /// The folder that holds all other folders, or null. It becomes current when a script chooses the view,
    /// but not when one creates it.
    virtual znIBrowserViewItemFreeFolder* GetRootFreeFolder() = 0;
    /// True when data sources connect to the view itself (the new connection scheme), false when they are
    /// found through the view's data control (the classic scheme).
    virtual bool UsesNewConnections() const = 0;
    /// The browser object that keeps the view, and its shares.
    virtual znIBrowser* GetBrowser() = 0;

    // Columns.
    /// The column of that name, built-in or not, or null.
    virtual znIBrowserViewColumn* FindColumn(const char* name) = 0;
    /// The column that becomes current when another was deleted, and whose sorting "sort byname" sets; may be
    /// null.
    virtual znIBrowserViewColumn* GetDefaultColumn() = 0;
    /// All columns, in the order shown, hidden ones included. The text of a refusal is not read.
    virtual bool GetColumns(std::vector<znIBrowserViewColumn*>& columns) = 0;

    // View properties and operations.
    /// The view property of that name, or null.
    virtual znIBrowserViewProperty* FindViewProperty(const char* name) = 0;
    /// All view properties, in the host's order.
    virtual bool GetViewProperties(std::vector<znIBrowserViewProperty*>& properties) = 0;
    /// The view operation of that name, or null.
    virtual znIBrowserViewOperation* FindViewOperation(const char* name) = 0;

    // Data sources and references of the view.
    /// The simple data sources connected to the view.
    virtual void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) = 0;
    /// The hierarchical data sources connected to the view, or shared with it.
    virtual void GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) = 0;
    /// A hierarchical data source that can become a folder's tree, or null: one connected to the view or
    /// shared with it. In the classic scheme, where sources are not connected one by one, any of the view's
    /// data control can.
    virtual znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char* name) = 0;
    /// A data source (of either kind) connected to the view itself, or null.
    virtual znIBrowserDataSource* FindDataSource(const char* name) = 0;
    /// New connection scheme: connects (true) or disconnects (false) a data source. The text of a refusal is
    /// not read.
    virtual bool SetDataSourceConnected(znIBrowserDataSource* source, bool connected) = 0;
    /// The data sources connected to the view, in the order connected. The text of a refusal is not read.
    virtual bool GetConnectedDataSources(std::vector<znIBrowserDataSource*>& sources) = 0;
    /// The data references connected to the view, in the order connected. The text of a refusal is not read.
    virtual bool GetConnectedDataReferences(std::vector<znIBrowserDataReference*>& references) = 0;
    /// Connects (true) or disconnects (false) a data reference. When it connects, the reference comes from
    /// the view's data control, when it disconnects from the current one. The text of a refusal is not read.
    virtual bool ConnectDataReference(znIBrowserDataReference* reference, bool connect) = 0;

    // Find requests.
    /// Adds a property to search on, with the criteria that the host gives it, to a find request of a window
    /// that shows this view. Whether it exists is for the host to check. The result is not used.
    virtual bool AddFindRequestProperty(znIBrowserFindRequest* request, const char* name) = 0;

    // Selection.
    /// Deselects every item and folder of the view.
    virtual bool ClearSelection() = 0;
    /// The selected items of one data source; with `recursive` also the selected items below its items. Those
    /// of a hierarchical source are the ones of its parent source, with `recursive` of its children too.
    virtual bool GetSelectedItems(znIBrowserDataSource* source, bool recursive,
                                  znBrowserDataItems& items) = 0;
    /// The selected items of every data source of the view; with `recursive` also those below them.
    virtual bool GetAllSelectedItems(bool recursive, znBrowserDataItems& items) = 0;

    // Sorting and filtering. A view shows an item when its data source is a shown one and the item, or one
    // below it, matches the filter string.
    /// Whether the view sorts its rows at all.
    virtual bool GetSorting() const = 0;
    /// Switches the sorting of the whole view; each column keeps its own flag.
    virtual bool SetSorting(bool sorting) = 0;
    /// The names of the data sources that the view shows. The text of a refusal is not read.
    virtual bool GetShownFilters(std::vector<znString>& names) = 0;
    /// Makes exactly these data sources (of `GetFilterNames`) the shown ones. Where a C++ client gives no
    /// name, the layer passes on all of them.
    virtual bool SetShownFilters(const std::vector<znString>& names) = 0;
    /// The names of all data sources that can be shown. The text of a refusal is not read.
    virtual bool GetFilterNames(std::vector<znString>& names) = 0;
    /// Rebuilds the list of filters from the data sources that the view has now.
    virtual bool RebuildFilterLists() = 0;
    /// Whether the list of filters is grouped where it is offered.
    virtual bool GetGroupFilter() const = 0;
    /// Groups the list of filters, or not. What is shown stays the same.
    virtual bool SetGroupFilter(bool group) = 0;
    /// The text that shown items must contain; "" when all are shown.
    virtual const char* GetFilterString() const = 0;
    /// Sets that text; "" shows everything. Whether it has wildcards is the host's: the embedded host knows
    /// "*" and "?", which make it a pattern for the whole text.
    virtual bool SetFilterString(const char* pattern) = 0;
    /// Whether letter case counts in the filter.
    virtual bool GetFilterMatchCase() const = 0;
    /// Lets letter case count, or not.
    virtual bool SetFilterMatchCase(bool matchCase) = 0;
    /// Whether the filter finds whole words only.
    virtual bool GetFilterMatchWord() const = 0;
    /// Lets the filter find whole words only, or parts of words too.
    virtual bool SetFilterMatchWord(bool matchWord) = 0;

    // Popup menu, and what its items perform.
    /// The popup menu of the view's rows, where nothing nearer has one; null for none.
    virtual znIBrowserPopupMenu* GetPopupMenu() { return nullptr; }
    /// Gives the rows the popup menu of that name, which exists; "" for none.
    virtual bool SetPopupMenu(const char* /*name*/) { return false; }
    /// All view operations, in the host's order. They are only listed to people who type a name of one; the
    /// text of a refusal is not read.
    virtual bool GetViewOperations(std::vector<znIBrowserViewOperation*>& /*operations*/) { return false; }

protected:
    ~znIBrowserView() = default;
};

/// The list of the host's views.
class znIBrowserViewList {
public:
    /// The view of that exact name, or null.
    virtual znIBrowserView* FindView(const char* name) = 0;
    /// All views in the host's order. `flags` is reserved: 0.
    virtual void GetViews(std::vector<znIBrowserView*>& views, int flags) = 0;

protected:
    ~znIBrowserViewList() = default;
};

#endif
