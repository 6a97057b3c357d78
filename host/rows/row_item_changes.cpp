// Taking over the change of a few items: what else there is is not looked at.
#include "base/services.h"
#include "model/view.h"
#include "rows/row_model.h"

#include <algorithm>
#include <map>

namespace znhost {

namespace {

/// So many items may be expanded that have to be looked at one by one.
constexpr std::size_t mostExpanded = 1000;

} // namespace

/// Which items changed, by their sources.
struct RowModel::ChangedItems {
    struct Changed {
        bool known = false;
        std::vector<std::int64_t> rows;
    };

    explicit ChangedItems(std::uint64_t moment) : since(moment) {}

    const Changed& Of(RowSource* source) {
        const auto [entry, isNew] = bySource.try_emplace(source);
        if (isNew) entry->second.known = source->ChangedRows(since, entry->second.rows);
        return entry->second;
    }
    bool MayHaveChanged(RowSource* source) {
        const Changed& changed = Of(source);
        return !changed.known || !changed.rows.empty();
    }
    /// Whether others may lie below some items now: of that source, or of any when that is null.
    bool MayHaveMoved(const RowScope& scope, const RowSource* source) {
        return std::any_of(scope.links.begin(), scope.links.end(), [&](const RowLink& link) {
            return (!source || link.parent == source) &&
                   (MayHaveChanged(link.parent) || MayHaveChanged(link.child));
        });
    }

    const std::uint64_t since;
    std::map<RowSource*, Changed> bySource;
    std::size_t expandedItems = 0;
};

/// False when all that is expanded must be listed anew. What has been done by then does no harm.
bool RowModel::RefreshItems(std::uint64_t since) {
    RowNode& root = tree_.Root();
    if (!root.expanded || view_->IsFiltered() || !view_->Collector().Display().ShowsAll()) return false;
    ChangedItems changed(since);
    RowPlan::Ahead ahead(plan_, false);
    std::vector<RowNode*> open{&root};
    for (std::size_t next = 0; next < open.size() && !stopped_; ++next) {
        RowNode& node = *open[next];
        if (!RefreshNode(node, changed)) return false;
        for (const TreePart& part : node.parts) {
            if (part.node && part.node->expanded) open.push_back(part.node.get());
            if (!part.block || part.block->children.empty()) continue;
            changed.expandedItems += part.block->children.size();
            if (!changed.MayHaveMoved(*part.block->content.scope, nullptr)) continue;
            if (changed.expandedItems > mostExpanded) return false;
            OpenExpanded(*part.block, ahead, open);
        }
    }
    return true;
}

bool RowModel::RefreshNode(RowNode& node, ChangedItems& changed) {
    const bool isItem = node.block != nullptr;
    const bool isList = !isItem && node.content.kind == RowKind::List && !node.content.link.reference;
    if (isList && !node.content.IsNote() && node.parts.size() == 1 && node.parts.front().block)
        return TakeChanges(node, changed);
    const bool isTree = !isItem && node.content.kind == RowKind::Tree;
    const bool mayDiffer = isItem
                               ? changed.MayHaveMoved(*node.block->content.scope, node.block->content.source)
                           : isTree ? changed.MayHaveChanged(node.content.scope->top)
                                    : true;
    if (mayDiffer) RefreshNode(node);
    return true;
}

/// The rows of a list. False when they must be listed.
bool RowModel::TakeChanges(RowNode& list, ChangedItems& changed) {
    RowBlock& block = *list.parts.front().block;
    const ChangedItems::Changed& items = changed.Of(block.content.source);
    const RowOrder order = plan_.OrderOf(block.content);
    if (!items.known || (order.sorted && !block.content.source->IsStored(order.property))) return false;
    const ReadTrouble::Watch watch(Services().Trouble());
    for (const std::int64_t row : items.rows) {
        if (!TakeChange(block, order, row) || watch.Seen()) return false;
    }
    return true;
}

/// Puts one row where it belongs now, or takes it out. False when that is not to be found out.
bool RowModel::TakeChange(RowBlock& block, const RowOrder& order, std::int64_t row) {
    RowSource& source = *block.content.source;
    bool failed = false;
    const auto comesBefore = [&](std::int64_t a, std::int64_t b) {
        if (!order.sorted) return a < b;
        std::vector<std::int64_t> both{b, a};
        failed = failed || !source.SortRows(order, both);
        return both.front() == a;
    };
    const SharedRows& rows = block.rows;
    const auto known = order.sorted ? std::find(rows.begin(), rows.end(), row)
                                    : std::lower_bound(rows.begin(), rows.end(), row);
    const bool was = known != rows.end() && *known == row;
    const auto place = static_cast<std::uint32_t>(known - rows.begin());
    const bool isThere = source.HasRow(row);
    if (!was && !isThere) return true;
    if (was && isThere) {
        if (!order.sorted) return true;
        const bool stands = (known == rows.begin() || comesBefore(*std::prev(known), row)) &&
                            (std::next(known) == rows.end() || comesBefore(row, *std::next(known)));
        return stands && !failed;
    }
    if (was) {
        if (rows.size() == 1) return false;
        tree_.RemoveRow(block, place);
        return true;
    }
    const auto behind =
        order.sorted ? std::partition_point(rows.begin(), rows.end(),
                                            [&](std::int64_t other) { return comesBefore(other, row); })
                     : known;
    if (failed) return false;
    tree_.InsertRow(block, static_cast<std::uint32_t>(behind - rows.begin()), row);
    return true;
}

} // namespace znhost
