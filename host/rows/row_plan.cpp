#include "rows/row_plan.h"

#include "base/services.h"
#include "base/text.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "model/view.h"

#include <algorithm>

namespace znhost {

namespace {

RowContent Container(RowKind kind, const RowContent& folder, std::shared_ptr<const RowScope> scope,
                     RowSource* source) {
    RowContent content;
    content.kind = kind;
    content.folder = folder.folder;
    content.scope = std::move(scope);
    content.source = source;
    return content;
}

RowQuery QueryFor(const RowContent& block) {
    RowQuery query;
    query.link = block.link.reference ? &block.link : nullptr;
    query.parent = block.parent;
    query.top = block.top;
    return query;
}

} // namespace

bool RowScope::HasLinksBelow(const RowSource* source) const {
    return std::any_of(links.begin(), links.end(),
                       [source](const RowLink& link) { return link.parent == source; });
}

// ---- What stands where ----

std::vector<RowContent> RowPlan::Below(const RowContent& container) const {
    if (container.kind == RowKind::Folder) return InFolder(container);
    RowContent items = container;
    items.kind = RowKind::Item;
    if (container.kind != RowKind::Tree) return {items};
    items.source = container.scope->top;
    if (!items.source || !IsShown(items.source)) return {};
    for (const RowLink& link : container.scope->links) {
        if (link.parent != items.source || link.child != items.source) continue;
        items.link = link;
        items.top = true;
        break;
    }
    return {items};
}

std::vector<RowContent> RowPlan::Below(const RowContent& block, std::int64_t row) const {
    std::vector<RowContent> contents;
    for (const RowLink& link : block.scope->links) {
        if (link.parent != block.source || !HasRows(block, link, row)) continue;
        RowContent below = Container(RowKind::Item, block, block.scope, link.child);
        below.link = link;
        below.parent = row;
        const bool leafs = block.scope->groupsLeafs && !block.scope->HasLinksBelow(link.child);
        if (block.scope->groups || leafs) below.kind = RowKind::List;
        contents.push_back(below);
    }
    return contents;
}

std::vector<RowContent> RowPlan::InFolder(const RowContent& folder) const {
    std::vector<RowContent> contents;
    AddChildFolders(folder, contents);
    AddTopItems(folder, contents);
    AddLists(folder, contents);
    return contents;
}

void RowPlan::AddChildFolders(const RowContent& folder, std::vector<RowContent>& contents) const {
    const FolderSettings& settings = folder.folder->Settings();
    for (const std::shared_ptr<FreeFolder>& child : folder.folder->Children()) {
        RowContent content;
        content.folder = child;
        if (Stands(content, settings.showEmptyFolders)) contents.push_back(content);
    }
    Column* const column = view_.SortColumn();
    if (settings.keepChildrenAsCreated || column != &view_.DefaultColumn()) return;
    std::stable_sort(contents.begin(), contents.end(), [this](const RowContent& a, const RowContent& b) {
        const int order = Fold(a.folder->Name()).compare(Fold(b.folder->Name()));
        return view_.SortsAscending() ? order < 0 : order > 0;
    });
}

/// The folder's tree, and the top items of the tree that it ties together itself.
void RowPlan::AddTopItems(const RowContent& folder, std::vector<RowContent>& contents) const {
    if (folder.folder->Tree().source) {
        const RowContent tree = Container(RowKind::Tree, folder, TreeScope(*folder.folder), nullptr);
        if (Stands(tree, folder.folder->Settings().showEmptyContainers)) contents.push_back(tree);
    }
    std::vector<RowSource*> tops;
    std::vector<RowContent> blocks;
    for (const FolderTreeLink& link : folder.folder->TreeLinks()) {
        RowSource* const source = link.parent ? nullptr : GetRowSource(SimpleOf(view_.Log(), link.child));
        if (!source || !IsShown(source)) continue;
        tops.push_back(source);
        RowContent items = Container(RowKind::Item, folder, nullptr, source);
        if (link.reference) items.link = {source, source, link.reference};
        items.top = true;
        blocks.push_back(items);
    }
    if (blocks.empty()) return;
    const std::shared_ptr<const RowScope> scope = MakeScope(*folder.folder, tops, nullptr);
    for (RowContent& block : blocks) {
        block.scope = scope;
        contents.push_back(std::move(block));
    }
}

void RowPlan::AddLists(const RowContent& folder, std::vector<RowContent>& contents) const {
    for (const FolderList& list : folder.folder->Lists()) {
        RowSource* const source = GetRowSource(list.source);
        if (!source || !IsShown(source)) continue;
        const RowContent content =
            Container(RowKind::List, folder, MakeScope(*folder.folder, {source}, source), source);
        if (Stands(content, folder.folder->Settings().showEmptyContainers)) contents.push_back(content);
    }
}

bool RowPlan::IsShown(RowSource* source) const { return view_.IsShown(source->GetSource()); }

/// Whether containers without rows are hidden. A text filter always hides them: they would bury what it
/// found.
bool RowPlan::HidesEmpty(bool shows) const { return !shows || (!whole_ && view_.IsFiltered()); }

/// Whether a container has its place: it has rows, or it is shown without, unless it would have some if none
/// were hidden.
bool RowPlan::Stands(const RowContent& container, bool showsEmpty) const {
    if (HidesEmpty(showsEmpty)) return HasRows(container);
    if (!Hides(container) || HasRows(container)) return true;
    RowPlan whole(view_);
    whole.whole_ = true;
    return !whole.HasRows(whole.Whole(container));
}

// ---- The display state ----

std::shared_ptr<const RowDisplay> RowPlan::Display() const {
    const DisplayState& state = view_.Collector().Display();
    if (whole_ || state.ShowsAll()) return nullptr;
    if (!display_) display_ = std::make_shared<const RowDisplay>(state, Trouble());
    return display_;
}

/// Whether something may be hidden that would stand in the container.
bool RowPlan::Hides(const RowContent& container) const {
    if (!Display()) return false;
    if (container.kind == RowKind::Folder) return true;
    const RowScope& scope = *container.scope;
    const auto hides = [&scope](RowSource* source) { return scope.display && scope.display->Hides(source); };
    return hides(container.kind == RowKind::Tree ? scope.top : container.source);
}

/// The same container, in which nothing is hidden or filtered.
RowContent RowPlan::Whole(RowContent container) const {
    if (!container.scope) return container;
    const auto scope = std::make_shared<RowScope>(*container.scope);
    scope->display.reset();
    scope->filter.reset();
    container.scope = scope;
    return container;
}

std::optional<std::int64_t> RowPlan::CountWhole(const RowContent& container) const {
    if (container.IsNote() || !Hides(container)) return std::nullopt;
    RowPlan whole(view_);
    whole.whole_ = true;
    return whole.Count(Whole(container));
}

// ---- Links and filters ----

void RowPlan::AddFolderLinks(const FreeFolder& folder, RowScope& scope) const {
    for (const FolderTreeLink& link : folder.TreeLinks()) {
        RowSource* const parent = GetRowSource(SimpleOf(view_.Log(), link.parent));
        RowSource* const child = GetRowSource(SimpleOf(view_.Log(), link.child));
        if (parent && child && link.reference && IsShown(child))
            scope.links.push_back({parent, child, link.reference});
    }
    scope.groupsLeafs = folder.Settings().groupLeafs;
}

std::shared_ptr<RowScope> RowPlan::MakeScope(FreeFolder& folder, const std::vector<RowSource*>& tops,
                                             const void* what) const {
    auto scope = std::make_shared<RowScope>();
    AddFolderLinks(folder, *scope);
    Filter(*scope, tops, folder, what);
    return scope;
}

void RowPlan::AddTreeLinks(FreeFolder& folder, RowScope& scope) const {
    znIBrowserDataSourceHierarchical& tree = *folder.Tree().source;
    scope.tree = &tree;
    scope.groups = folder.Tree().group;
    scope.top = GetRowSource(tree.GetParent());
    for (const RowLink& link : GetRowLinks(tree)) {
        znIBrowserDataSource* const type = AnySource(view_.Log(), link.child->GetSource());
        const bool isTop = link.child == scope.top && link.parent == scope.top;
        if (isTop || (IsShown(link.child) && folder.ShowsChildType(type))) scope.links.push_back(link);
    }
}

std::shared_ptr<RowScope> RowPlan::TreeScope(FreeFolder& folder) const {
    auto scope = std::make_shared<RowScope>();
    AddTreeLinks(folder, *scope);
    AddFolderLinks(folder, *scope);
    Filter(*scope, {scope->top}, folder, folder.Tree().source);
    return scope;
}

std::vector<RowLink> RowPlan::AllLinks() const {
    RowScope all;
    for (FreeFolder* const folder : view_.RootFolder().WithBelow()) {
        if (folder->Tree().source) AddTreeLinks(*folder, all);
        AddFolderLinks(*folder, all);
    }
    std::vector<RowLink> links;
    for (const RowLink& link : all.links) {
        if (std::find(links.begin(), links.end(), link) == links.end()) links.push_back(link);
    }
    return links;
}

/// With a filter, only the shown items with the text remain, and those above them.
void RowPlan::Filter(RowScope& scope, const std::vector<RowSource*>& tops, const FreeFolder& folder,
                     const void* what) const {
    scope.display = Display();
    if (whole_ || !view_.IsFiltered()) return;
    std::shared_ptr<const RowFilter>& known = filters_[{&folder, what}];
    const ReadTrouble::Watch watch(Trouble());
    if (!known) {
        const auto matches = [&](RowSource& source, std::vector<std::int64_t>& rows) { Match(source, rows); };
        known = std::make_shared<RowFilter>(tops, scope.links, matches, scope.display.get(),
                                            [this] { return IsStopped(); });
    }
    scope.filter = known;
    if (watch.Seen() || IsStopped()) filters_.erase({&folder, what}); // it does not know all that matches
}

// ---- Rows ----

RowPlan::Ahead::Ahead(RowPlan& plan, bool descends)
    : plan_(plan), ahead_(descends, [&plan](const RowContent& block,
                                            const RowLink& link) { return plan.OrderBelow(block, link); }),
      outer_(plan.ahead_) {
    if (!outer_) plan.ahead_ = &ahead_;
}

/// The rows below an item, when they are read ahead, without those that are not shown.
std::optional<std::vector<std::int64_t>> RowPlan::KnownBelow(const RowContent& block, const RowLink& link,
                                                             std::int64_t parent) const {
    const auto known = ahead_ ? ahead_->Below(block, link, parent) : std::nullopt;
    if (!known) return std::nullopt;
    std::vector<std::int64_t> rows(known->begin(), known->end());
    RowContent below = block;
    below.source = link.child;
    Narrow(below, rows);
    return rows;
}

std::vector<std::int64_t> RowPlan::List(const RowContent& block) const {
    if (ahead_ && block.link.reference && !block.top) {
        RowContent above = block;
        above.source = block.link.parent;
        if (const auto known = KnownBelow(above, block.link, block.parent)) return *known;
    }
    return List(block, OrderOf(block));
}

SharedRows RowPlan::ListToShow(const RowContent& block) const {
    const bool isPart = block.link.reference || block.scope->filter || block.scope->display;
    if (isPart || OrderOf(block).sorted) return SharedRows(List(block));
    return block.source->ListAll();
}

std::vector<std::int64_t> RowPlan::ListFulfilling(const RowContent& block, RowCondition condition) {
    RowQuery query = QueryFor(block);
    query.conditions.push_back(std::move(condition));
    std::vector<std::int64_t> rows;
    block.source->List(query, rows);
    return rows;
}

std::vector<std::int64_t> RowPlan::List(const RowContent& block, const RowSet& among) const {
    return List(block, OrderOf(block), &among);
}

std::vector<std::int64_t> RowPlan::List(const RowContent& block, const RowOrder& order, const RowSet* among) {
    const RowFilter* const filter = block.scope->filter.get();
    RowQuery query = QueryFor(block);
    query.order = order;
    query.among = among || !filter ? among : &filter->Kept(block.source);
    std::vector<std::int64_t> rows;
    block.source->List(query, rows);
    if (among || !filter) Narrow(block, rows);
    return rows;
}

void RowPlan::Narrow(const RowContent& block, std::vector<std::int64_t>& rows) {
    if (const RowFilter* const filter = block.scope->filter.get()) {
        std::erase_if(rows, [&](std::int64_t row) { return !filter->Keeps(block.source, row); });
    } else if (block.scope->display) {
        block.scope->display->Narrow(block.source, rows);
    }
}

std::int64_t RowPlan::CountRows(const RowContent& block) {
    const RowScope& scope = *block.scope;
    const bool isHidden = scope.display && scope.display->Hides(block.source);
    if (isHidden && !scope.filter && !block.link.reference) return scope.display->Count(*block.source);
    if (isHidden || scope.filter) return static_cast<std::int64_t>(List(block, RowOrder()).size());
    return block.source->Count(QueryFor(block));
}

bool RowPlan::IsWhole() const { return !view_.IsFiltered() && view_.Collector().Display().ShowsAll(); }

bool RowPlan::HasRows(const RowContent& container) const {
    if (container.kind == RowKind::List && container.link.reference)
        return true; // a group is only there with items
    if (container.IsNote()) return false;
    const ReadTrouble::Watch watch(Trouble());
    const std::vector<RowContent> below = Below(container);
    return std::any_of(below.begin(), below.end(), [&watch](const RowContent& content) {
        if (content.kind != RowKind::Item) return true;
        const bool isAll = !content.link.reference && !content.scope->filter && !content.scope->display;
        return (isAll ? content.source->HasMoreThan(0) : CountRows(content) > 0) || watch.Seen();
    });
}

bool RowPlan::HasRows(const RowContent& block, const RowLink& link, std::int64_t row) const {
    const RowFilter* const filter = block.scope->filter.get();
    if (filter) return filter->KeepsBelow(link, row);
    if (const auto known = ahead_ ? ahead_->Below(block, link, row) : std::nullopt) {
        return !known->empty() && (!block.scope->display || !KnownBelow(block, link, row)->empty());
    }
    if (block.scope->display) return block.scope->display->HaveChildren(link, {row})[0];
    const ReadTrouble::Watch watch(Trouble());
    return link.child->HasChildren(link, row) || watch.Seen();
}

bool RowPlan::HasRowsAlongAny(const RowContent& block, std::int64_t row) const {
    return std::any_of(block.scope->links.begin(), block.scope->links.end(), [&](const RowLink& link) {
        return link.parent == block.source && HasRows(block, link, row);
    });
}

const ReadTrouble& RowPlan::Trouble() const { return view_.Owner().Services().Trouble(); }

std::vector<bool> RowPlan::HaveRows(const RowContent& block, const std::vector<std::int64_t>& rows) const {
    std::vector<bool> have(rows.size(), false);
    const RowFilter* const filter = block.scope->filter.get();
    if (ahead_ && !filter) {
        ahead_->Expect(block, rows);
        for (std::size_t i = 0; i < rows.size(); ++i) have[i] = HasRowsAlongAny(block, rows[i]);
        return have;
    }
    const RowDisplay* const display = block.scope->display.get();
    for (const RowLink& link : block.scope->links) {
        if (link.parent != block.source) continue;
        std::vector<bool> along;
        const ReadTrouble::Watch watch(Trouble());
        if (!filter && display) along = display->HaveChildren(link, rows);
        if (!filter && !display) link.child->HaveChildren(link, rows, along);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (filter ? filter->KeepsBelow(link, rows[i]) : along[i] || watch.Seen()) have[i] = true;
        }
    }
    return have;
}

std::int64_t RowPlan::Count(const RowContent& container) const {
    std::int64_t count = 0;
    if (container.IsNote()) return count;
    for (const RowContent& content : Below(container))
        count += content.kind == RowKind::Item ? CountRows(content) : 1;
    return count;
}

std::int64_t RowPlan::Count(const RowContent& block, std::int64_t row) const {
    std::int64_t count = 0;
    for (const RowContent& content : Below(block, row)) {
        const bool areItems = content.kind == RowKind::Item;
        const auto known = areItems ? KnownBelow(block, content.link, row) : std::nullopt;
        count += known ? static_cast<std::int64_t>(known->size()) : areItems ? CountRows(content) : 1;
    }
    return count;
}

// ---- Order ----

ViewProperty* RowPlan::PropertyOf(const Column& column, const Style* style) const {
    if (style) {
        for (const std::shared_ptr<StyleElement>& element : style->Elements()) {
            if (ViewProperty* const property = view_.Properties().Find(element->PropertyName()))
                return property;
        }
    }
    return column.Kind() == ColumnKind::BuiltIn ? nullptr : view_.Properties().Find(column.Name());
}

RowOrder RowPlan::OrderOf(const RowContent& block) const {
    Column* const column = view_.SortColumn();
    znIBrowserDataSourceSimple* const source = block.source->GetSource();
    if (!column || block.folder->SortingException(source) != 0) return {};
    ViewProperty* property = view_.Properties().Find(column->SortProperty());
    if (!property) property = PropertyOf(*column, block.folder->ItemStyleIn(*column, source));
    RowOrder order;
    order.property = property ? property->DataProperty(source) : nullptr;
    order.sorted = order.property || column->Kind() == ColumnKind::BuiltIn;
    order.descending = !view_.SortsAscending();
    order.natural = column->SortsNaturally();
    return order;
}

/// What is asked for in this way must not run scripts.
std::optional<RowOrder> RowPlan::OrderBelow(const RowContent& block, const RowLink& link) const {
    RowContent below = block;
    below.source = link.child;
    const RowOrder order = OrderOf(below);
    if (order.sorted && !link.child->IsStored(order.property)) return std::nullopt;
    return order;
}

} // namespace znhost
