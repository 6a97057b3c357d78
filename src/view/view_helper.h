// The view helper: serves views that connect data sources themselves.
#ifndef VIEW_HELPER_H
#define VIEW_HELPER_H

#include "host/znutl/znString.h"

struct znBrowserDataItem;
namespace znlayer {
class Operation;
}
class znBrowserManagerTcl;
class znIBrowserDataSource;
class znIBrowserView;
class znIBrowserViewItemFreeFolder;

/// Data sources of a view in the new connection scheme: connected, chosen, and their items selected. Errors
/// go to the manager that owns the helper; the operations follow its rules. Copies of a manager share one
/// helper, which belongs to the one that used it last.
class znBrowserManagerViewTcl {
public:
    explicit znBrowserManagerViewTcl(znBrowserManagerTcl* manager) : owner_(manager) {}

    /// Makes a manager the owner: every use of the helper begins so.
    void Serve(znBrowserManagerTcl* manager) { owner_ = manager; }
    /// Forgets a manager that goes away.
    void Leave(const znBrowserManagerTcl* manager) {
        if (owner_ == manager) owner_ = nullptr;
    }

    /// Connects a source of the view's data control to the current view.
    bool Connect(const char* name);
    bool Disconnect(const char* name);
    bool SetCurrentDataSource(const char* name);
    bool GetCurrentDataSource(znString& out);
    /// The name of the helper's current source; "" when the current view has it no more. Sets no error.
    znString GetCurrentDataSourceName() const;
    bool GetDataSourceNames(znString& out);

    /// The data source that the current free folder regards as current.
    bool SetFolderDataSource(const char* name);
    bool GetFolderDataSource(znString& out);
    bool SetFolderDataSourceStyle(bool style);

    /// The current item: no word chooses one, so its text is empty.
    bool GetCurrentItem(znString& out);
    /// The current view property's value of each selected item of the current source, in double quotes.
    bool GetSelectedItems(znString& out, bool recursive);
    /// The same for the selected items of all sources of the view.
    bool GetAllSelectedItems(znString& out, bool recursive);
    bool SelectItems(bool select, bool recursive);
    bool SelectItemsByValue(const char* value, bool select, bool recursive);

private:
    /// The helper's current source as long as the current view has it, else null: it may be dead otherwise.
    znIBrowserDataSource* CurrentDataSource() const;
    /// The helper's current source; null, and an error, when the current view, the source or, with
    /// `property`, a view property is missing.
    znIBrowserDataSource* RequireSource(const znlayer::Operation& operation, bool property);

    const znBrowserDataItem* item_ = nullptr;
    znIBrowserDataSource* dataSource_ = nullptr;
    znBrowserManagerTcl* owner_;
};

/// The helper of a manager, made on demand, and ready to serve it.
znBrowserManagerViewTcl& ViewHelperOf(znBrowserManagerTcl& manager);

#endif
