// The selection of a view, its sorting and its filters.
#include "base/change_count.h"
#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "model/row_source.h"
#include "model/view.h"

#include <algorithm>

namespace znhost {

bool View::SelectFolder(FreeFolder& folder, bool selected) {
    if (folder.IsSelected() == selected) return false;
    folder.MarkSelected(selected);
    Changed(VIEW_SELECTION);
    return true;
}

void View::ClearAllSelection() {
    for (FreeFolder* const folder : root_->WithBelow()) SelectFolder(*folder, false);
    selection_.Clear();
}

/// Lets go of the items that do not exist any more: a new item may take their row numbers.
void View::ForgetMissingItems() {
    mayMissItems_ = false; // first: a change of the selection is told at once
    const std::uint64_t since = std::exchange(itemsSeen_, ChangeCount::Now());
    try {
        selection_.Forget(
            [since](auto* source, const RowSet& rows) { return MissingOf(source, rows, since); });
        if (collector_.LookAgain(browser_.Services().Trouble(), since))
            heldBack_ |= VIEW_ROWS | VIEW_COLLECTED;
    } catch (...) {
        mayMissItems_ = true;
        itemsSeen_ = 0;
        throw;
    }
}

bool View::ClearSelection() {
    if (Refused("znIBrowserView::ClearSelection")) return false;
    ClearAllSelection();
    return true;
}

namespace {

/// The sources whose items hang below those of `parent`, in the trees of a view.
SimpleSources SourcesBelow(const View& view, znIBrowserDataSourceSimple* parent) {
    SimpleSources below;
    const auto addChildren = [&](znIBrowserDataSourceHierarchical* source) {
        if (!source) return;
        const SimpleSources members = MembersOf(view.Log(), *source);
        if (members.empty() || members.front() != parent) return;
        for (znIBrowserDataSourceSimple* const child : ChildrenOf(view.Log(), *source)) AddNew(below, child);
    };
    for (znIBrowserDataSource* const source : view.ConnectedSources()) {
        addChildren(HierarchicalOf(view.Log(), source));
    }
    for (FreeFolder* const folder : view.RootFolder().WithBelow()) {
        addChildren(folder->Tree().source);
        for (const FolderTreeLink& link : folder->TreeLinks()) {
            if (SimpleOf(view.Log(), link.parent) == parent) AddNew(below, SimpleOf(view.Log(), link.child));
        }
    }
    return below;
}

} // namespace

bool View::GetSelectedItems(znIBrowserDataSource* source, bool recursive, znBrowserDataItems& items) {
    items.Clear();
    if (Refused("znIBrowserView::GetSelectedItems", source, recursive)) return false;
    SimpleSources sources = SimpleSourcesOf(log_, source);
    if (HierarchicalOf(log_, source) && !recursive && sources.size() > 1) sources.resize(1);
    for (std::size_t i = 0; recursive && i < sources.size(); ++i) {
        for (znIBrowserDataSourceSimple* const below : SourcesBelow(*this, sources[i]))
            AddNew(sources, below);
    }
    for (znIBrowserDataSourceSimple* const simple : sources) selection_.AppendTo(items, simple);
    return true;
}

// What is selected below a selected item belongs to a source of the view too, so `recursive` adds nothing.
bool View::GetAllSelectedItems(bool recursive, znBrowserDataItems& items) {
    items.Clear();
    if (Refused("znIBrowserView::GetAllSelectedItems", recursive)) return false;
    selection_.AppendTo(items);
    return true;
}

bool View::GetSorting() const {
    if (Refused("znIBrowserView::GetSorting")) return false;
    return sorting_;
}

bool View::SetSorting(bool sorting) {
    if (Refused("znIBrowserView::SetSorting", sorting)) return false;
    return Set(sorting_, sorting, VIEW_ROWS | VIEW_COLUMNS);
}

bool View::IsShown(znIBrowserDataSourceSimple* source) const {
    return hiddenSources_.empty() || hiddenSources_.count(NameOf(log_, source)) == 0;
}

bool View::GetShownFilters(std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserView::GetShownFilters")) return false;
    SimpleSources sources = ShowableSources();
    RemoveWhere(sources, [this](auto* source) { return !IsShown(source); });
    CopyNames(log_, sources, names);
    return true;
}

bool View::SetShownFilters(const std::vector<znString>& names) {
    if (Refused("znIBrowserView::SetShownFilters", names)) return false;
    std::set<std::string> hidden;
    std::set<std::string> known;
    for (znIBrowserDataSourceSimple* const source : ShowableSources()) known.insert(NameOf(log_, source));
    hidden = known;
    for (const znString& name : names) {
        if (!known.count(name.Str())) {
            return Fail("The view \"" + Name() + "\" does not show a data source \"" + name.Str() + "\"");
        }
        hidden.erase(name.Str());
    }
    return Set(hiddenSources_, std::move(hidden), VIEW_ROWS);
}

bool View::GetFilterNames(std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserView::GetFilterNames")) return false;
    CopyNames(log_, ShowableSources(), names);
    return true;
}

// The list itself is always that of the sources which the view has now. What is made anew is the memory of
// the hidden ones: a source that has gone, and comes back later, is shown.
bool View::RebuildFilterLists() {
    if (Refused("znIBrowserView::RebuildFilterLists")) return false;
    std::set<std::string> hidden;
    for (znIBrowserDataSourceSimple* const source : ShowableSources()) {
        if (!IsShown(source)) hidden.insert(NameOf(log_, source));
    }
    return Set(hiddenSources_, std::move(hidden), VIEW_ROWS);
}

bool View::GetGroupFilter() const {
    if (Refused("znIBrowserView::GetGroupFilter")) return false;
    return groupFilter_;
}

bool View::SetGroupFilter(bool group) {
    if (Refused("znIBrowserView::SetGroupFilter", group)) return false;
    return Set(groupFilter_, group, VIEW_ROWS);
}

const char* View::GetFilterString() const {
    if (Refused("znIBrowserView::GetFilterString")) return nullptr;
    return filter_.pattern.c_str();
}

bool View::SetFilterString(const char* pattern) {
    if (Refused("znIBrowserView::SetFilterString", pattern)) return false;
    return Set(filter_.pattern, TextOf(pattern), VIEW_FILTER);
}

void View::SetFilterAllColumns(bool all) { Set(filter_.allColumns, all, VIEW_FILTER); }

bool View::IsFiltered() const {
    return !filter_.pattern.empty() || std::any_of(columns_.begin(), columns_.end(), [](const auto& column) {
        return column->Filter().IsSet();
    });
}

bool View::GetFilterMatchCase() const {
    if (Refused("znIBrowserView::GetFilterMatchCase")) return false;
    return filter_.matchCase;
}

bool View::SetFilterMatchCase(bool matchCase) {
    if (Refused("znIBrowserView::SetFilterMatchCase", matchCase)) return false;
    return Set(filter_.matchCase, matchCase, VIEW_FILTER);
}

bool View::GetFilterMatchWord() const {
    if (Refused("znIBrowserView::GetFilterMatchWord")) return false;
    return filter_.matchWord;
}

bool View::SetFilterMatchWord(bool matchWord) {
    if (Refused("znIBrowserView::SetFilterMatchWord", matchWord)) return false;
    return Set(filter_.matchWord, matchWord, VIEW_FILTER);
}

} // namespace znhost
