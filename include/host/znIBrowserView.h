// A view: what a window shows, and how.
#ifndef ZN_I_BROWSER_VIEW_H
#define ZN_I_BROWSER_VIEW_H

#include "host/znutl/znString.h"
#include <vector>

struct znBrowserDataItems;
class znIBrowser;
class znIBrowserDataCtrl;
class znIBrowserDataReference;
class znIBrowserDataSource;
class znIBrowserDataSourceHierarchical;
class znIBrowserDataSourceSimple;
class znIBrowserFindRequest;
class znIBrowserViewColumn;
class znIBrowserViewItemFreeFolder;
class znIBrowserViewOperation;
class znIBrowserViewProperty;

/// A view: columns, view properties, operations and a tree of free folders over the data sources of one
/// data control.
class znIBrowserView {
public:
    /// The view's name; the text lives as long as the view.
    virtual const znString& GetName() const = 0;
    /// The data control connected to the view, or null.
    virtual znIBrowserDataCtrl* GetDataCtrl() = 0;
    /// Connects a data control; null disconnects. The result is not used.
    virtual bool SetDataCtrl(znIBrowserDataCtrl* control) = 0;
    /// The column that the view regards as current (or its first), or null.
    virtual znIBrowserViewColumn* GetCurrentColumn() = 0;
    /// The folder that holds all other folders, or null.
    virtual znIBrowserViewItemFreeFolder* GetRootFreeFolder() = 0;
    /// True when data sources connect to the view itself (the new connection scheme), false when they are
    /// found through the view's data control (the classic scheme).
    virtual bool UsesNewConnections() const = 0;
    /// The browser object that keeps the view, and its shares.
    virtual znIBrowser* GetBrowser() = 0;

    // Columns.
    virtual znIBrowserViewColumn* FindColumn(const char* name) = 0;
    /// The column that becomes current when another was deleted; may be null.
    virtual znIBrowserViewColumn* GetDefaultColumn() = 0;
    /// All columns, in the order shown, hidden ones included.
    virtual bool GetColumns(std::vector<znIBrowserViewColumn*>& columns) = 0;

    // View properties and operations.
    virtual znIBrowserViewProperty* FindViewProperty(const char* name) = 0;
    virtual bool GetViewProperties(std::vector<znIBrowserViewProperty*>& properties) = 0;
    virtual znIBrowserViewOperation* FindViewOperation(const char* name) = 0;

    // Data sources and references of the view.
    /// The simple data sources connected to the view.
    virtual void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) = 0;
    /// The hierarchical data sources connected to the view, or shared with it.
    virtual void GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) = 0;
    /// A hierarchical data source configured in the view, or null.
    virtual znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char* name) = 0;
    /// A data source (of either kind) connected to the view itself, or null.
    virtual znIBrowserDataSource* FindDataSource(const char* name) = 0;
    /// New connection scheme: connects (true) or disconnects (false) a data source.
    virtual bool SetDataSourceConnected(znIBrowserDataSource* source, bool connected) = 0;
    /// The data sources connected to the view, in the order connected.
    virtual bool GetConnectedDataSources(std::vector<znIBrowserDataSource*>& sources) = 0;
    virtual bool GetConnectedDataReferences(std::vector<znIBrowserDataReference*>& references) = 0;
    /// Connects (true) or disconnects (false) a data reference.
    virtual bool ConnectDataReference(znIBrowserDataReference* reference, bool connect) = 0;

    // Find requests.
    /// Adds a property to search on to a find request of a window that shows this view.
    virtual bool AddFindRequestProperty(znIBrowserFindRequest* request, const char* name) = 0;

    // Selection.
    virtual bool ClearSelection() = 0;
    /// The selected items of one data source; with `recursive` also the selected items below its items.
    virtual bool GetSelectedItems(znIBrowserDataSource* source, bool recursive,
                                  znBrowserDataItems& items) = 0;
    /// The selected items of every data source of the view.
    virtual bool GetAllSelectedItems(bool recursive, znBrowserDataItems& items) = 0;

    // Sorting and filtering.
    virtual bool GetSorting() const = 0;
    virtual bool SetSorting(bool sorting) = 0;
    /// The names of the data sources that the view shows.
    virtual bool GetShownFilters(std::vector<znString>& names) = 0;
    /// Makes exactly these data sources (of `GetFilterNames`) the shown ones.
    virtual bool SetShownFilters(const std::vector<znString>& names) = 0;
    /// The names of all data sources that can be shown.
    virtual bool GetFilterNames(std::vector<znString>& names) = 0;
    /// Makes the list of filters anew from the data sources that the view has now.
    virtual bool RebuildFilterLists() = 0;
    virtual bool GetGroupFilter() const = 0;
    virtual bool SetGroupFilter(bool group) = 0;
    virtual const char* GetFilterString() const = 0;
    virtual bool SetFilterString(const char* pattern) = 0;
    virtual bool GetFilterMatchCase() const = 0;
    virtual bool SetFilterMatchCase(bool matchCase) = 0;
    virtual bool GetFilterMatchWord() const = 0;
    virtual bool SetFilterMatchWord(bool matchWord) = 0;

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
