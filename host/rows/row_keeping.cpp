// Which rows are expanded, by what they are: taken down, and brought back.
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "model/view.h"
#include "rows/row_model.h"
#include "rows/wanted_rows.h"

#include <algorithm>
#include <map>
#include <span>
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

/// False when there is nothing below the row, or the work must be given up. A row that is brought back was
/// expanded, perhaps with nothing below it any more: so it is again.
bool RowModel::ExpandWanted(RowNode& node, const Row& row) {
    if (!node.expanded && (kept_ || HasRows(row))) FillAndExpand(node);
    return node.expanded && !stopped_;
}

/// What is expanded step by step: the rows that are wanted, and those of them whose content is still to be
/// looked at.
struct RowModel::Expanding {
    RowPlan::Ahead ahead;
    WantedRows rows;
    std::vector<std::pair<RowNode*, std::size_t>> open; ///< each with its number
    std::unordered_map<const RowSource*, WantedRows::Name> sources;
    std::vector<std::int64_t> expected; ///< the items of one block

    void Found(WantedRow& wanted, RowNode* expanded) {
        wanted.found = true;
        if (expanded) open.emplace_back(expanded, wanted.place + 1);
    }
};

/// Expands the wanted ones of the rows directly below, and collapses the others.
void RowModel::ExpandExactly(RowNode& node, std::span<WantedRow> wanted, Expanding& all) {
    for (const TreePart& part : node.parts) {
        if (stopped_) return;
        if (part.block) {
            ExpandExactly(*part.block, wanted, all);
            continue;
        }
        RowNode& below = *part.node;
        const auto named =
            WantedRows::Among(wanted, below.content.kind, all.rows.NumberOf(NameOf(log_, below.content)));
        const auto found =
            std::find_if(named.begin(), named.end(), [](const auto& one) { return !one.found; });
        if (found == named.end()) {
            if (below.expanded) tree_.Collapse(below);
        } else {
            all.Found(*found, ExpandWanted(below, RowTree::RowOf(below)) ? &below : nullptr);
        }
    }
}

void RowModel::ExpandExactly(RowBlock& block, std::span<WantedRow> wanted, Expanding& all) {
    const auto [known, isNew] = all.sources.emplace(block.content.source, 0);
    if (isNew) known->second = all.rows.NumberOf(NameOf(log_, block.content));
    const auto items = WantedRows::Among(wanted, RowKind::Item, known->second);
    const auto find = [items](std::int64_t row) {
        const auto at =
            std::lower_bound(items.begin(), items.end(), row,
                             [](const auto& item, std::int64_t number) { return item.row < number; });
        return at != items.end() && at->row == row ? at : items.end();
    };
    std::vector<RowNode*> unwanted;
    for (const auto& child : block.children) {
        if (find(RowTree::RowOf(*child.second).Number()) == items.end())
            unwanted.push_back(child.second.get());
    }
    for (RowNode* const node : unwanted) tree_.Collapse(*node);
    if (items.empty()) return;
    all.expected.clear();
    for (const auto& item : items) all.expected.push_back(item.row);
    all.ahead.Expect(block.content, all.expected);
    block.rows.Look(all.expected);
    const SharedRows::Rows& rows = block.rows.Known();
    auto next = items.begin(); // most blocks stand in the order of the row numbers
    for (std::size_t i = 0, missing = items.size(); i < rows.size() && missing && !stopped_; ++i) {
        const auto item = next != items.end() && next->row == rows[i] ? next : find(rows[i]);
        if (item == items.end() || item->found) continue;
        next = item + 1;
        --missing;
        ExpandWanted(block, static_cast<std::uint32_t>(i), *item, all);
    }
}

void RowModel::ExpandWanted(RowBlock& block, std::uint32_t position, WantedRow& item, Expanding& all) {
    const Row row = RowTree::ItemAt(block, position);
    RowNode* expanded = nullptr;
    if (row.IsExpanded() || kept_ || HasRows(row)) {
        expanded = &tree_.NodeOf(row);
        if (!ExpandWanted(*expanded, row)) expanded = nullptr;
    }
    all.Found(item, expanded);
}

/// @param nodes  by the numbers of the rows: receives those that are expanded now
/// @return the places of the rows that do not exist
std::vector<std::size_t> RowModel::ExpandExactly(const std::vector<KeptRow>& rows,
                                                 std::vector<RowNode*>& nodes) {
    RowNode& root = tree_.Root();
    nodes.assign(rows.size() + 1, nullptr);
    constexpr std::size_t many = 1000; // of which most lie below each other
    const RowTree::ManyChanges changes(tree_, root);
    Expanding all{RowPlan::Ahead(plan_, rows.size() >= many), WantedRows(rows), {{&root, 0}}, {}, {}};
    std::vector<std::size_t> missing;
    while (!all.open.empty() && !stopped_) {
        const auto [node, number] = all.open.back();
        all.open.pop_back();
        nodes[number] = node;
        const std::span<WantedRow> wanted = all.rows.Below(number);
        ExpandExactly(*node, wanted, all);
        for (const auto& one : wanted) {
            if (!one.found) missing.push_back(one.place);
        }
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
    LookFor(view_->Collector().Collected());
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
