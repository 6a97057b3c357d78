// Which rows are expanded, by what they are: taken down, and brought back.
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "model/view.h"
#include "rows/row_model.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <unordered_map>

namespace znhost {

namespace {

std::string NameOf(CallLog& log, const RowContent& content) {
    switch (content.kind) {
    case RowKind::Folder: return content.folder->Name();
    case RowKind::Tree: return znhost::NameOf(log, content.scope->tree);
    default: return znhost::NameOf(log, content.source->GetSource());
    }
}

} // namespace

std::vector<KeptRow> RowModel::Expanded() {
    const Answering answering(*this);
    return WereExpanded();
}

std::vector<KeptRow> RowModel::WereExpanded() {
    std::vector<KeptRow> kept;
    if (!IsReady()) return kept;
    std::unordered_map<const RowNode*, std::size_t> numbers;
    for (RowNode* const node : RowTree::Expanded(tree_.Root())) {
        if (const Row row = RowTree::RowOf(*node)) {
            const RowContent& content = row.Content();
            kept.push_back({numbers[node->parent], content.kind, NameOf(log_, content),
                            row.IsItem() ? row.Number() : 0});
        }
        numbers[node] = kept.size();
    }
    return kept;
}

// ---- Bringing back ----

/// What is to be expanded directly below one row, by its place in the list: containers by what they are,
/// items by data source and row number. What is found is taken out.
struct RowModel::WantedRows {
    using Items = std::unordered_map<std::int64_t, std::size_t>;

    std::multimap<std::pair<RowKind, std::string>, std::size_t> containers;
    std::map<std::string, Items> items;

    void Add(const KeptRow& row, std::size_t place) {
        if (row.kind == RowKind::Item) {
            items[row.name].emplace(row.row, place);
        } else {
            containers.emplace(std::make_pair(row.kind, row.name), place);
        }
    }
    void AppendTo(std::vector<std::size_t>& places) const {
        for (const auto& container : containers) places.push_back(container.second);
        for (const auto& [source, rows] : items) {
            for (const auto& item : rows) places.push_back(item.second);
        }
    }
};

/// False when there is nothing below the row, or the work must be given up. A row that is brought back was
/// expanded, perhaps with nothing below it any more: so it is again.
bool RowModel::ExpandWanted(RowNode& node, const Row& row) {
    if (!node.expanded && (kept_ || HasRows(row))) FillAndExpand(node);
    return node.expanded && !stopped_;
}

/// Expands the wanted ones of the rows directly below, and collapses the others.
/// @param open  receives the wanted ones and their places in the list.
void RowModel::ExpandExactly(RowNode& node, WantedRows& wanted, OpenRows& open, RowPlan::Ahead& ahead) {
    for (const TreePart& part : node.parts) {
        if (stopped_) return;
        if (part.block) {
            ExpandExactly(*part.block, wanted, open, ahead);
            continue;
        }
        RowNode& below = *part.node;
        const auto found = wanted.containers.find({below.content.kind, NameOf(log_, below.content)});
        if (found == wanted.containers.end()) {
            if (below.expanded) tree_.Collapse(below);
            continue;
        }
        if (ExpandWanted(below, RowTree::RowOf(below))) open.emplace_back(&below, found->second);
        wanted.containers.erase(found);
    }
}

void RowModel::ExpandExactly(RowBlock& block, WantedRows& wanted, OpenRows& open, RowPlan::Ahead& ahead) {
    WantedRows::Items none;
    const auto known = wanted.items.find(NameOf(log_, block.content));
    WantedRows::Items& items = known == wanted.items.end() ? none : known->second;
    std::vector<RowNode*> unwanted;
    for (const auto& child : block.children) {
        if (!items.count(RowTree::RowOf(*child.second).Number())) unwanted.push_back(child.second.get());
    }
    for (RowNode* const node : unwanted) tree_.Collapse(*node);
    std::vector<std::int64_t> expected;
    for (const auto& item : items) expected.push_back(item.first);
    if (!expected.empty()) ahead.Expect(block.content, expected);
    for (std::uint32_t i = 0; i < block.rows.size() && !items.empty() && !stopped_; ++i) {
        const auto item = items.find(block.rows[i]);
        if (item == items.end()) continue;
        const Row row = RowTree::ItemAt(block, i);
        if (row.IsExpanded() || kept_ || HasRows(row)) {
            RowNode& node = tree_.NodeOf(row);
            if (ExpandWanted(node, row)) open.emplace_back(&node, item->second);
        }
        items.erase(item);
    }
}

/// @param nodes  by the numbers of the rows: receives those that are expanded now
/// @return the places of the rows that do not exist
std::vector<std::size_t> RowModel::ExpandExactly(const std::vector<KeptRow>& rows,
                                                 std::vector<RowNode*>& nodes) {
    std::vector<std::vector<std::size_t>> below(rows.size() + 1); // by the number of the row above
    for (std::size_t place = 0; place < rows.size(); ++place) {
        if (rows[place].above <= place) below[rows[place].above].push_back(place);
    }
    std::vector<std::size_t> missing;
    RowNode& root = tree_.Root();
    nodes.assign(rows.size() + 1, nullptr);
    nodes[0] = &root;
    constexpr std::size_t many = 1000; // of which most lie below each other
    const RowTree::ManyChanges changes(tree_, root);
    RowPlan::Ahead ahead(plan_, rows.size() >= many);
    OpenRows open{{&root, 0}};
    while (!open.empty() && !stopped_) {
        const auto [node, number] = open.back();
        open.pop_back();
        WantedRows wanted;
        for (const std::size_t place : below[number]) wanted.Add(rows[place], place);
        OpenRows found;
        ExpandExactly(*node, wanted, found, ahead);
        for (const auto& [expanded, place] : found) {
            open.emplace_back(expanded, place + 1);
            nodes[place + 1] = expanded;
        }
        wanted.AppendTo(missing);
    }
    return missing;
}

std::vector<std::size_t> RowModel::SetExpanded(const std::vector<KeptRow>& rows) {
    const Change change(*this);
    std::vector<RowNode*> nodes;
    std::vector<std::size_t> missing;
    if (change) {
        missing = ExpandExactly(rows, nodes);
    } else {
        for (std::size_t place = 0; place < rows.size(); ++place) {
            if (rows[place].above == 0) missing.push_back(place);
        }
    }
    std::sort(missing.begin(), missing.end());
    Tell(RowChange::AllFilled);
    return missing;
}

// ---- A look that is to come back ----

std::vector<KeptRow> RowModel::SelectedContainers() {
    const Answering answering(*this);
    std::vector<KeptRow> kept;
    if (!IsReady() || selectedContainers_.empty()) return kept;
    std::unordered_map<const RowNode*, std::size_t> numbers;
    for (RowNode* const node : RowTree::Expanded(tree_.Root())) numbers.emplace(node, numbers.size());
    for (const std::uint32_t index : selectedContainers_) {
        const Row row = Find(index);
        if (!row) continue;
        const RowContent& content = row.Content();
        kept.push_back({numbers.at(&row.Owner()), content.kind, NameOf(log_, content), 0});
    }
    return kept;
}

void RowModel::BringBack(std::vector<KeptRow> expanded, std::vector<KeptRow> selected) noexcept {
    kept_ = Kept{std::move(expanded), std::move(selected)};
    OnViewChanged(VIEW_ROWS | VIEW_SELECTION);
}

/// It stays to be brought back until that has succeeded.
void RowModel::BringBackKept() {
    std::vector<RowNode*> nodes;
    ExpandExactly(kept_->expanded, nodes);
    if (stopped_) return;
    std::set<std::uint32_t> selected;
    for (const KeptRow& row : kept_->selected) {
        const RowNode* const above = row.above < nodes.size() ? nodes[row.above] : nullptr;
        if (!above) continue;
        for (const TreePart& part : above->parts) {
            if (part.node && part.node->content.kind == row.kind &&
                NameOf(log_, part.node->content) == row.name) {
                selected.insert(part.node->index);
            }
        }
    }
    selectedContainers_.swap(selected);
    kept_.reset();
}

std::int64_t RowModel::ShowCollected() {
    const Answering answering(*this);
    if (!IsReady() || view_->Collector().Collected().IsEmpty()) return -1;
    for (Row row = tree_.First(); row; row = tree_.Next(row)) {
        if (!IsCollected(row)) continue;
        Tell(RowChange::Shown, row.Index());
        return tree_.PositionOf(row);
    }
    return -1;
}

void RowModel::ExpandAlso(const std::vector<KeptRow>& rows) {
    using Key = std::tuple<std::size_t, RowKind, std::string, std::int64_t>;
    std::vector<KeptRow> all = Expanded();
    std::map<Key, std::size_t> numbers; // counted from 1, as `above` counts
    for (std::size_t i = 0; i < all.size(); ++i)
        numbers.emplace(Key(all[i].above, all[i].kind, all[i].name, all[i].row), i + 1);
    std::vector<std::size_t> number{0}; // of each of `rows`, in `all`
    for (KeptRow row : rows) {
        row.above = number.at(row.above);
        const auto [known, isNew] =
            numbers.emplace(Key(row.above, row.kind, row.name, row.row), all.size() + 1);
        if (isNew) all.push_back(row);
        number.push_back(known->second);
    }
    SetExpanded(all);
}

} // namespace znhost
