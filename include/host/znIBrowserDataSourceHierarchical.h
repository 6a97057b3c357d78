// A hierarchical data source: items with children.
#ifndef ZN_I_BROWSER_DATA_SOURCE_HIERARCHICAL_H
#define ZN_I_BROWSER_DATA_SOURCE_HIERARCHICAL_H

#include <vector>

struct znBrowserDataItem;
struct znBrowserDataItems;
class znIBrowserDataCtrl;
class znIBrowserDataSource;
class znIBrowserDataSourceSimple;

/// Simple data sources arranged as a parent and its children, shown as a tree. The parent and the children
/// belong to the same data control. The texts of refusals are not read.
class znIBrowserDataSourceHierarchical {
public:
    /// The name, unique in the data control; null ends a script's list of names.
    virtual const char* GetName() const = 0;
    /// Whether a view uses the source: shows it, shares it or is connected to it.
    virtual bool IsConnected() const = 0;
    /// Sets the parent, a simple source, by name; unknown names are for the host to refuse.
    virtual bool SetParent(const char* name) = 0;
    /// Adds a child, a simple source, by name; `third` says how it hangs on (the host's: in the embedded host
    /// a data reference, or "" for the only one that fits).
    virtual bool AddChild(const char* name, const char* third) = 0;
    /// Removes a child by name; the parent cannot be removed.
    virtual bool RemoveChild(const char* name) = 0;
    /// The parent, or null while it has none.
    virtual znIBrowserDataSourceSimple* GetParent() = 0;
    /// The children, in the order added, each once. The answer is not looked at, only the list.
    virtual bool GetChildren(std::vector<znIBrowserDataSourceSimple*>& children) = 0;
    /// The items below `parent`; with null the top items.
    /// @param flag       reserved for the host: false.
    /// @param recursive  also everything below them, in the order of the tree.
    virtual void GetDataItems(const znBrowserDataItem* parent, znBrowserDataItems& items, bool flag,
                              bool recursive) = 0;
    /// The source without regard to its kind.
    virtual znIBrowserDataSource* GetDataSource() = 0;
    /// The data control that owns the source.
    virtual znIBrowserDataCtrl* GetDataCtrl() = 0;

protected:
    ~znIBrowserDataSourceHierarchical() = default;
};

#endif
