// What a free folder shows: its tree, its lists, and the styles of their items.
#include "host/znIBrowserDataReference.h"
#include "model/data_sources.h"
#include "model/free_folder.h"
#include "model/view.h"

#include <algorithm>

namespace znhost {

void FreeFolder::SetTree(znIBrowserDataSourceHierarchical* source) {
    tree_ = {};
    tree_.source = source;
    Changed(VIEW_ROWS);
}

void FreeFolder::SetTreeGroup(bool group, bool second) {
    tree_.group = group;
    tree_.second = second;
    Changed(VIEW_ROWS);
}

bool FreeFolder::ShowsChildType(const znIBrowserDataSource* type) const {
    return !Contains(tree_.hidden, const_cast<znIBrowserDataSource*>(type));
}

void FreeFolder::ShowChildType(znIBrowserDataSource& type, bool shown) {
    RemoveAll(tree_.hidden, &type);
    if (!shown) tree_.hidden.push_back(&type);
    Changed(VIEW_ROWS);
}

bool FreeFolder::AddTreeLink(const FolderTreeLink& link) {
    const bool exists = std::any_of(links_.begin(), links_.end(), [&](const FolderTreeLink& other) {
        return other.parent == link.parent && other.child == link.child && other.reference == link.reference;
    });
    if (exists) return false;
    links_.push_back(link);
    Changed(VIEW_ROWS);
    return true;
}

void FreeFolder::SetTreeLinks(std::vector<FolderTreeLink> links) {
    links_ = std::move(links);
    Changed(VIEW_ROWS);
}

FolderList* FreeFolder::FindList(const znIBrowserDataSourceSimple* source) {
    const auto found = std::find_if(lists_.begin(), lists_.end(),
                                    [source](const FolderList& list) { return list.source == source; });
    return source && found != lists_.end() ? &*found : nullptr;
}

void FreeFolder::AddList(znIBrowserDataSourceSimple& source, bool flag) {
    FolderList list;
    list.source = &source;
    list.flag = flag;
    lists_.push_back(std::move(list));
    Changed(VIEW_ROWS);
}

void FreeFolder::RemoveList(const FolderList& list) {
    lists_.erase(lists_.begin() + (&list - lists_.data()));
    Changed(VIEW_ROWS);
}

void FreeFolder::SetLists(std::vector<FolderList> lists) {
    lists_ = std::move(lists);
    Changed(VIEW_ROWS);
}

SimpleSources FreeFolder::Sources() const {
    SimpleSources sources;
    if (tree_.source) sources = MembersOf(log_, *tree_.source);
    for (const FolderTreeLink& link : links_) {
        for (znIBrowserDataSourceSimple* const source : SimpleSourcesOf(log_, link.parent)) {
            AddNew(sources, source);
        }
        for (znIBrowserDataSourceSimple* const source : SimpleSourcesOf(log_, link.child)) {
            AddNew(sources, source);
        }
    }
    for (const FolderList& list : lists_) AddNew(sources, list.source);
    return sources;
}

std::vector<znIBrowserDataSource*> FreeFolder::DataSources() const {
    std::vector<znIBrowserDataSource*> sources;
    AddNew(sources, AnySource(log_, tree_.source));
    for (znIBrowserDataSourceSimple* const source : Sources()) AddNew(sources, AnySource(log_, source));
    return sources;
}

int FreeFolder::CreateExpandedDepth(const znIBrowserDataSourceSimple* source) const {
    const auto found = createExpanded_.find(source);
    return found == createExpanded_.end() ? 0 : found->second;
}

void FreeFolder::SetCreateExpandedDepth(znIBrowserDataSourceSimple& source, int depth) {
    createExpanded_[&source] = depth;
    Changed(VIEW_ROWS);
}

int FreeFolder::SortingException(const znIBrowserDataSourceSimple* source) const {
    const auto found = sortingExceptions_.find(source);
    return found == sortingExceptions_.end() ? 0 : found->second;
}

void FreeFolder::SetSortingException(znIBrowserDataSourceSimple& source, int value) {
    sortingExceptions_[&source] = value;
    Changed(VIEW_ROWS);
}

namespace {

Style* StyleFor(const std::vector<ColumnStyle>& styles, const Column& column) {
    for (const ColumnStyle& entry : styles) {
        if (entry.column.lock().get() == &column) return entry.style.lock().get();
    }
    return nullptr;
}

/// Null takes the column's style away. Entries whose column has been deleted are removed on this occasion.
void SetStyleFor(std::vector<ColumnStyle>& styles, Column& column, Style* style) {
    RemoveWhere(styles, [&](const ColumnStyle& entry) {
        return entry.style.expired() || entry.column.expired() || entry.column.lock().get() == &column;
    });
    if (style) styles.push_back({column.weak_from_this(), style->weak_from_this()});
}

} // namespace

Style* FreeFolder::StyleIn(const Column& column) const {
    Style* const own = StyleFor(styles_, column);
    return own ? own : column.StyleInUse();
}

bool FreeFolder::UsesOwnStyle(const Column& column, const znIBrowserDataSourceSimple* source) const {
    for (const SourceStyle& entry : sourceStyles_) {
        if (entry.column.lock().get() == &column && Contains(SimpleSourcesOf(log_, entry.source), source)) {
            return entry.ownStyle;
        }
    }
    return settings_.style;
}

Style* FreeFolder::ItemStyleIn(const Column& column, const znIBrowserDataSourceSimple* source) const {
    for (const FolderList& list : lists_) {
        if (list.source != source) continue;
        if (Style* const style = StyleFor(list.styles, column)) return style;
    }
    return UsesOwnStyle(column, source) ? StyleIn(column) : column.StyleInUse();
}

void FreeFolder::SetListStyle(FolderList& list, Column& column, Style* style) {
    SetStyleFor(list.styles, column, style);
    Changed(VIEW_CELLS);
}

bool FreeFolder::SetStyle(znIBrowserStyle* style) {
    if (Refused("znIBrowserViewItem::SetStyle", style)) return false;
    if (!style) return Fail("No style to draw the folder \"" + name_ + "\" with");
    Style& own = *static_cast<Style*>(style);
    SetStyleFor(styles_, own.Owner(), &own);
    Changed(VIEW_CELLS);
    return true;
}

void FreeFolder::Forget(znIBrowserDataSource& source) {
    znIBrowserDataSourceSimple* const simple = SimpleOf(log_, &source);
    znIBrowserDataSourceHierarchical* const hierarchical = HierarchicalOf(log_, &source);
    if (hierarchical && tree_.source == hierarchical) tree_ = {};
    if (hierarchical && dropSource_ == hierarchical) dropSource_ = nullptr;
    RemoveAll(tree_.hidden, &source);
    RemoveWhere(links_,
                [&](const FolderTreeLink& link) { return link.parent == &source || link.child == &source; });
    RemoveWhere(sourceStyles_, [&](const SourceStyle& entry) { return entry.source == &source; });
    if (currentSource_ == &source) currentSource_ = nullptr;
    if (!simple) return;
    RemoveWhere(lists_, [&](const FolderList& list) { return list.source == simple; });
    createExpanded_.erase(simple);
    sortingExceptions_.erase(simple);
}

void FreeFolder::Forget(const znIBrowserDataReference& reference) {
    RemoveWhere(links_, [&](const FolderTreeLink& link) { return link.reference == &reference; });
}

void FreeFolder::GetTrees(std::vector<znIBrowserDataSourceHierarchical*>& trees) {
    trees.clear();
    if (Refused("znIBrowserViewItemFreeFolder::GetTrees")) return;
    if (tree_.source) trees.push_back(tree_.source);
}

bool FreeFolder::GetLists(std::vector<znIBrowserDataSourceSimple*>& lists) {
    lists.clear();
    if (Refused("znIBrowserViewItemFreeFolder::GetLists")) return false;
    for (const FolderList& list : lists_) lists.push_back(list.source);
    return true;
}

bool FreeFolder::SetDropItem(znIBrowserDataSourceHierarchical* source) {
    if (Refused("znIBrowserViewItemFreeFolder::SetDropItem", source)) return false;
    dropSource_ = source;
    return true;
}

bool FreeFolder::GetShownChildTypes(std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserViewItemFreeFolder::GetShownChildTypes")) return false;
    SimpleSources types;
    if (tree_.source) types = ChildrenOf(log_, *tree_.source);
    for (const FolderTreeLink& link : links_) {
        if (link.parent) AddNew(types, SimpleOf(log_, link.child));
    }
    RemoveWhere(types, [this](auto* type) { return !ShowsChildType(AnySource(log_, type)); });
    CopyNames(log_, types, names);
    return true;
}

bool FreeFolder::GetTreeToplevelNames(std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserViewItemFreeFolder::GetTreeToplevelNames")) return false;
    for (const FolderTreeLink& link : links_) {
        if (!link.parent) names.emplace_back(NameOf(log_, link.reference));
    }
    return true;
}

bool FreeFolder::GetTreeParentChildNames(std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserViewItemFreeFolder::GetTreeParentChildNames")) return false;
    for (const FolderTreeLink& link : links_) {
        if (link.parent) names.emplace_back(NameOf(log_, link.reference));
    }
    return true;
}

znIBrowserDataSource* FreeFolder::FindDataSource(const char* name) {
    if (Refused("znIBrowserViewItemFreeFolder::FindDataSource", name)) return nullptr;
    const std::string wanted = TextOf(name);
    for (znIBrowserDataSource* const source : DataSources()) {
        if (NameOf(log_, source) == wanted) return source;
    }
    return nullptr;
}

znIBrowserDataSource* FreeFolder::GetCurrentDataSource() {
    if (Refused("znIBrowserViewItemFreeFolder::GetCurrentDataSource")) return nullptr;
    return currentSource_;
}

bool FreeFolder::SetCurrentDataSource(znIBrowserDataSource* source) {
    if (Refused("znIBrowserViewItemFreeFolder::SetCurrentDataSource", source)) return false;
    currentSource_ = source;
    return true;
}

bool FreeFolder::SetDataSourceStyle(znIBrowserDataSource* source, znIBrowserViewColumn* column, bool style) {
    if (Refused("znIBrowserViewItemFreeFolder::SetDataSourceStyle", source, column, style)) return false;
    if (!source || !column) return Fail("No data source and column to draw with the folder's style");
    Column& drawn = *static_cast<Column*>(column);
    RemoveWhere(sourceStyles_, [&](const SourceStyle& entry) {
        return entry.column.expired() || (entry.source == source && entry.column.lock().get() == &drawn);
    });
    sourceStyles_.push_back({source, drawn.weak_from_this(), style});
    Changed(VIEW_CELLS);
    return true;
}

} // namespace znhost
