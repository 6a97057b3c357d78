// A view.
#ifndef ZN_HOST_VIEW_H
#define ZN_HOST_VIEW_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "base/shared_rows.h"
#include "host/znIBrowserView.h"
#include "model/column.h"
#include "model/free_folder.h"
#include "model/popup_place.h"
#include "model/selection.h"
#include "model/text_filter.h"
#include "model/view_collector.h"
#include "model/view_observer.h"
#include "model/view_operation.h"
#include "model/view_property.h"

#include <exception>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace znhost {

class Browser;

class View final : public znIBrowserView, public HostObject, public std::enable_shared_from_this<View> {
public:
    using Share = std::pair<znIBrowserDataSourceHierarchical*, znIBrowserView*>;

    /// Has one column, "Name", and a root folder that bears the view's name.
    View(Browser& browser, std::string name, bool newConnections);
    /// Tells the observers.
    ~View() override;

    const std::string& Name() const { return name_.Str(); }
    Browser& Owner() const { return browser_; }
    znIBrowserDataCtrl* DataControl() const { return dataControl_; }
    bool HasNewConnections() const { return newConnections_; }
    FreeFolder& RootFolder() const { return *root_; }

    // Columns. The default column is the built-in one; it always exists.
    NamedList<Column>& Columns() { return columns_; }
    const NamedList<Column>& Columns() const { return columns_; }
    Column& DefaultColumn() const { return *columns_.Find(Column::builtInName); }
    void DeleteColumn(Column& column);
    /// The column by which the rows are sorted; null when they are not, or the view does not sort.
    Column* SortColumn() const { return sorting_ ? sortColumn_ : nullptr; }
    bool SortsAscending() const { return sortAscending_; }
    /// Null: no column sorts.
    void SortBy(Column* column, bool ascending);
    /// The direction of one column, whether or not the view sorts at present.
    ZNBROWSER_SORT_ORDER SortOrderOf(const Column& column) const;

    NamedList<ViewProperty>& Properties() { return properties_; }
    const NamedList<ViewProperty>& Properties() const { return properties_; }
    void DeleteProperty(ViewProperty& property);
    NamedList<ViewOperation>& Operations() { return operations_; }
    const NamedList<ViewOperation>& Operations() const { return operations_; }

    // Data sources connected to the view itself, in the order connected, and references.
    const std::vector<znIBrowserDataSource*>& ConnectedSources() const { return connected_; }
    bool IsConnected(const znIBrowserDataSource* source) const;
    /// False, with an error text, when the source is connected already.
    bool ConnectSource(znIBrowserDataSource& source);
    /// False, with an error text, when the source is not connected.
    bool DisconnectSource(znIBrowserDataSource& source);
    const std::vector<znIBrowserDataReference*>& ConnectedReferences() const { return references_; }
    /// The hierarchical sources that this view shares with others.
    const std::vector<Share>& Shares() const { return shares_; }
    /// Lets the views that share their sources with this one forget it.
    void EndShares();
    /// False, with an error text, when the share exists.
    bool AddShare(View& other, znIBrowserDataSourceHierarchical& source);

    /// The popup menu of the rows where nothing nearer has one; null for none.
    PopupMenu* Popup() const { return popupMenu_.Get(); }

    // Selection.
    Selection& Selected() { return selection_; }
    const Selection& Selected() const { return selection_; }
    /// What is collected and shown of the view, and its steps.
    ViewCollector& Collector() { return collector_; }
    const ViewCollector& Collector() const { return collector_; }
    /// True when that changed something.
    bool SelectFolder(FreeFolder& folder, bool selected);
    void ClearAllSelection();

    // Filters.
    /// Whether the filter shows the items of that source.
    bool IsShown(znIBrowserDataSourceSimple* source) const;
    const TextFilter& Filter() const { return filter_; }
    /// Lets the text filter look at all columns shown, or at the items' texts only.
    void SetFilterAllColumns(bool all);
    /// Whether there is a text filter, or one of a column.
    bool IsFiltered() const;
    bool GroupsFilter() const { return groupFilter_; }
    /// The simple data sources that the view has: in its folders, then those only connected.
    std::vector<znIBrowserDataSourceSimple*> ShowableSources() const;

    // Who shows the view. Observers are not owned and must outlive the view or be removed.
    void AddObserver(ViewObserver& observer);
    void RemoveObserver(const ViewObserver& observer);
    /// Tells the observers, now or, while changes are held back, with the next `Flush`; with them what could
    /// not be told before because memory ran out. `changes` are bits of `ViewChange`; 0: nothing new.
    void Changed(unsigned changes) {
        if (!observers_.empty() || mayMissItems_) NoteAndTell(changes);
    }
    /// The long lists that its windows show.
    RowLists& Lists() { return rowLists_; }
    /// Notes that the items of the data control changed, to be told with the next `Changed` or `Flush`.
    void NoteItems(unsigned changes) noexcept;
    /// Tells what was held back.
    void Flush();
    /// Tells each observer something at once: `tell(ViewObserver&)`. One may run scripts, which may delete
    /// the others, and the view. All are told, even when one throws or no memory is left.
    template <class Tell>
    void TellObservers(Tell&& tell) {
        const std::shared_ptr<View> self = weak_from_this().lock(); // null while the view is being destroyed
        std::exception_ptr failure;
        ++telling_;
        std::size_t i = 0; // by index: an observer may add others, which are not told yet
        for (std::size_t left = observers_.size(); left > 0; --left, ++i) {
            try {
                if (observers_[i]) tell(*observers_[i]);
            } catch (...) {
                failure = std::current_exception();
            }
        }
        if (--telling_ == 0) DropRemovedObservers();
        if (failure) std::rethrow_exception(failure);
    }

    // Lets go of what is about to be deleted.
    void Forget(znIBrowserDataSource& source);
    void Forget(const znIBrowserDataReference& reference);
    void Forget(const znIBrowserDataProperty& property);
    void Forget(const znIBrowserDataOperation& operation);
    void Forget(const View& other);
    /// Whether the view shows the source, or is connected to it.
    bool Uses(znIBrowserDataSource& source) const;

    const znString& GetName() const override;
    znIBrowserDataCtrl* GetDataCtrl() override;
    bool SetDataCtrl(znIBrowserDataCtrl* control) override;
    znIBrowserViewColumn* GetCurrentColumn() override;
    znIBrowserViewItemFreeFolder* GetRootFreeFolder() override;
    bool UsesNewConnections() const override;
    znIBrowser* GetBrowser() override;
    znIBrowserViewColumn* FindColumn(const char* name) override;
    znIBrowserViewColumn* GetDefaultColumn() override;
    bool GetColumns(std::vector<znIBrowserViewColumn*>& columns) override;
    znIBrowserViewProperty* FindViewProperty(const char* name) override;
    bool GetViewProperties(std::vector<znIBrowserViewProperty*>& properties) override;
    znIBrowserViewOperation* FindViewOperation(const char* name) override;
    void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) override;
    void GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) override;
    znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char* name) override;
    /// A name may stand in double quotes, as one must that is a word of the commands: "script".
    znIBrowserDataSource* FindDataSource(const char* name) override;
    bool SetDataSourceConnected(znIBrowserDataSource* source, bool connected) override;
    bool GetConnectedDataSources(std::vector<znIBrowserDataSource*>& sources) override;
    bool GetConnectedDataReferences(std::vector<znIBrowserDataReference*>& references) override;
    bool ConnectDataReference(znIBrowserDataReference* reference, bool connect) override;
    bool AddFindRequestProperty(znIBrowserFindRequest* request, const char* name) override;
    bool ClearSelection() override;
    bool GetSelectedItems(znIBrowserDataSource* source, bool recursive, znBrowserDataItems& items) override;
    bool GetAllSelectedItems(bool recursive, znBrowserDataItems& items) override;
    bool GetSorting() const override;
    bool SetSorting(bool sorting) override;
    bool GetShownFilters(std::vector<znString>& names) override;
    bool SetShownFilters(const std::vector<znString>& names) override;
    bool GetFilterNames(std::vector<znString>& names) override;
    bool RebuildFilterLists() override;
    bool GetGroupFilter() const override;
    bool SetGroupFilter(bool group) override;
    const char* GetFilterString() const override;
    bool SetFilterString(const char* pattern) override;
    bool GetFilterMatchCase() const override;
    bool SetFilterMatchCase(bool matchCase) override;
    bool GetFilterMatchWord() const override;
    bool SetFilterMatchWord(bool matchWord) override;
    znIBrowserPopupMenu* GetPopupMenu() override;
    bool SetPopupMenu(const char* name) override;
    bool GetViewOperations(std::vector<znIBrowserViewOperation*>& operations) override;

private:
    template <class Value>
    bool Set(Value& field, Value value, unsigned change) {
        field = std::move(value);
        Changed(change);
        return true;
    }
    void NoteAndTell(unsigned changes);
    void DropRemovedObservers();
    void ForgetMissingItems();

    Browser& browser_;
    const znString name_;
    const bool newConnections_;
    znIBrowserDataCtrl* dataControl_ = nullptr;

    NamedList<Column> columns_;
    NamedList<ViewProperty> properties_;
    NamedList<ViewOperation> operations_;
    std::shared_ptr<FreeFolder> root_;

    znIBrowserDataSource* FindConnected(const std::string& name) const;

    std::vector<znIBrowserDataSource*> connected_;
    std::vector<znIBrowserDataReference*> references_;
    std::vector<Share> shares_;
    std::vector<std::weak_ptr<View>> sharers_; ///< Who shared something with this view, perhaps no more.

    Selection selection_;
    ViewCollector collector_;
    bool sorting_ = true;
    Column* sortColumn_ = nullptr;
    bool sortAscending_ = true;
    TextFilter filter_;
    bool groupFilter_ = false;
    PopupPlace popupMenu_;
    std::set<std::string> hiddenSources_; ///< By name: what is not shown.

    std::vector<ViewObserver*> observers_; ///< Null: removed while they are being told something.
    int telling_ = 0;
    unsigned heldBack_ = 0;
    bool mayMissItems_ = false; ///< Selected and collected items may not exist any more.
    std::uint64_t itemsSeen_ =
        0; ///< When they were last looked at, as `ChangeCount` tells; 0: any may be missing.
    RowLists rowLists_;
};

} // namespace znhost

#endif
