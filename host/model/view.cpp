// A view: its parts, its observers, and the questions that scripts ask about it.
#include "model/view.h"

#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataReference.h"
#include "model/browser.h"
#include "model/data_sources.h"

#include <algorithm>

namespace znhost {

View::View(Browser& browser, std::string name, bool newConnections)
    : HostObject(browser.Log()), browser_(browser), name_(std::move(name)), newConnections_(newConnections),
      root_(std::make_shared<FreeFolder>(*this, nullptr, Name())),
      selection_([this] { Changed(VIEW_SELECTION); }) {
    columns_.Add(std::make_shared<Column>(*this, Column::builtInName, ColumnKind::BuiltIn));
}

View::~View() {
    while (!observers_.empty()) {
        ViewObserver& observer = *observers_.front();
        observers_.erase(observers_.begin());
        observer.OnViewDeleted();
    }
    for (const auto& operation : operations_) operation->Detach();
    for (const auto& property : properties_) property->Detach();
}

void View::DeleteColumn(Column& column) {
    TellObservers([&](ViewObserver& observer) { observer.OnColumnDeleted(column); });
    if (sortColumn_ == &column) sortColumn_ = nullptr;
    columns_.Remove(column);
    Changed(VIEW_COLUMNS | VIEW_ROWS);
}

void View::DeleteProperty(ViewProperty& property) {
    for (const auto& column : columns_) column->Forget(property);
    const std::shared_ptr<ViewProperty> held = properties_.Remove(property);
    property.Detach();
    Changed(VIEW_CELLS | VIEW_ROWS);
}

void View::SortBy(Column* column, bool ascending) {
    sortColumn_ = column;
    sortAscending_ = ascending;
    Changed(VIEW_ROWS | VIEW_COLUMNS);
}

ZNBROWSER_SORT_ORDER View::SortOrderOf(const Column& column) const {
    if (sortColumn_ != &column) return ZNBROWSER_UNSORTED;
    return sortAscending_ ? ZNBROWSER_ASCENDING : ZNBROWSER_DESCENDING;
}

void View::AddObserver(ViewObserver& observer) { observers_.push_back(&observer); }

void View::RemoveObserver(const ViewObserver& observer) {
    ViewObserver* const removed = const_cast<ViewObserver*>(&observer);
    collector_.ForgetWindow(&observer);
    std::replace(observers_.begin(), observers_.end(), removed, static_cast<ViewObserver*>(nullptr));
    if (telling_ == 0) DropRemovedObservers();
}

void View::DropRemovedObservers() { RemoveAll(observers_, static_cast<ViewObserver*>(nullptr)); }

void View::NoteItems(unsigned changes) noexcept {
    heldBack_ |= changes;
    if (changes & (VIEW_ROWS | VIEW_ITEMS)) mayMissItems_ = true;
    if (changes & VIEW_ROWS) itemsSeen_ = 0;
}

void View::NoteAndTell(unsigned changes) {
    heldBack_ |= changes;
    if (mayMissItems_) ForgetMissingItems();
    if (!browser_.HoldsBack()) Flush();
}

void View::Flush() {
    const unsigned changes = std::exchange(heldBack_, 0U);
    if (!changes || observers_.empty()) return;
    TellObservers([changes](ViewObserver& observer) { observer.OnViewChanged(changes); });
}

const znString& View::GetName() const {
    static const znString none;
    if (Refused("znIBrowserView::GetName")) return none;
    return name_;
}

znIBrowserDataCtrl* View::GetDataCtrl() {
    if (Refused("znIBrowserView::GetDataCtrl")) return nullptr;
    return dataControl_;
}

// What the view shows of another control stays configured, so that it is there again when that is connected
// again; only the selection and the
// collection go.
bool View::SetDataCtrl(znIBrowserDataCtrl* control) {
    if (Refused("znIBrowserView::SetDataCtrl", control)) return false;
    if (control == dataControl_) return true;
    dataControl_ = control;
    ClearAllSelection();
    collector_.Reset();
    Changed(VIEW_ALL);
    return true;
}

znIBrowserViewColumn* View::GetCurrentColumn() {
    if (Refused("znIBrowserView::GetCurrentColumn")) return nullptr;
    return &DefaultColumn();
}

znIBrowserViewItemFreeFolder* View::GetRootFreeFolder() {
    if (Refused("znIBrowserView::GetRootFreeFolder")) return nullptr;
    return root_.get();
}

bool View::UsesNewConnections() const {
    if (Refused("znIBrowserView::UsesNewConnections")) return false;
    return newConnections_;
}

znIBrowser* View::GetBrowser() {
    if (Refused("znIBrowserView::GetBrowser")) return nullptr;
    return &browser_;
}

znIBrowserViewColumn* View::FindColumn(const char* name) {
    if (Refused("znIBrowserView::FindColumn", name)) return nullptr;
    return columns_.Find(TextOf(name));
}

znIBrowserViewColumn* View::GetDefaultColumn() {
    if (Refused("znIBrowserView::GetDefaultColumn")) return nullptr;
    return &DefaultColumn();
}

bool View::GetColumns(std::vector<znIBrowserViewColumn*>& columns) {
    columns.clear();
    if (Refused("znIBrowserView::GetColumns")) return false;
    columns_.CopyTo(columns);
    return true;
}

znIBrowserViewProperty* View::FindViewProperty(const char* name) {
    if (Refused("znIBrowserView::FindViewProperty", name)) return nullptr;
    return properties_.Find(TextOf(name));
}

bool View::GetViewProperties(std::vector<znIBrowserViewProperty*>& properties) {
    properties.clear();
    if (Refused("znIBrowserView::GetViewProperties")) return false;
    properties_.CopyTo(properties);
    return true;
}

znIBrowserViewOperation* View::FindViewOperation(const char* name) {
    if (Refused("znIBrowserView::FindViewOperation", name)) return nullptr;
    return operations_.Find(TextOf(name));
}

// ---- Popup menu ----

znIBrowserPopupMenu* View::GetPopupMenu() {
    if (Refused("znIBrowserView::GetPopupMenu")) return nullptr;
    return Popup();
}

bool View::SetPopupMenu(const char* name) {
    if (Refused("znIBrowserView::SetPopupMenu", name)) return false;
    return popupMenu_.Set(browser_, name);
}

bool View::GetViewOperations(std::vector<znIBrowserViewOperation*>& operations) {
    operations.clear();
    if (Refused("znIBrowserView::GetViewOperations")) return false;
    operations_.CopyTo(operations);
    return true;
}

} // namespace znhost
