#include "rows/row_display.h"

#include "base/read_trouble.h"

#include <algorithm>

namespace znhost {

DisplayState::Rows RowDisplay::Of(const RowSource* source) const {
    return source ? state_.Of(const_cast<RowSource*>(source)->GetSource()) : nullptr;
}

void RowDisplay::Narrow(const RowSource* source, std::vector<std::int64_t>& rows) const {
    const DisplayState::Rows displayed = Of(source);
    if (!displayed) return;
    std::erase_if(rows, [&displayed](std::int64_t row) { return !displayed->Shows(row); });
}

std::int64_t RowDisplay::Count(RowSource& source) const {
    const DisplayState::Rows displayed = Of(&source);
    const auto size = displayed ? static_cast<std::int64_t>(displayed->rows.Size()) : 0;
    return displayed && displayed->only ? size : source.Count({}) - size;
}

RowDisplay::Below& RowDisplay::BelowAlong(const RowLink& link, const DisplayedRows& rows) const {
    const auto known = std::find_if(below_.begin(), below_.end(),
                                    [&link](const Below& below) { return below.link == link; });
    if (known != below_.end()) return *known;
    Below below{link, {}, {}, {}};
    std::vector<std::int64_t> parents;
    link.child->Parents(link, rows.rows.ToVector(), parents);
    below.withSet.Add(std::move(parents));
    return below_.emplace_back(std::move(below));
}

/// Whether something is left below a row with hidden items below it.
bool RowDisplay::HasShown(Below& below, std::int64_t parent) const {
    if (below.asked.Has(parent)) return below.withShown.Has(parent);
    RowQuery query;
    query.link = &below.link;
    query.parent = parent;
    std::vector<std::int64_t> rows;
    const ReadTrouble::Watch watch(trouble_);
    below.link.child->List(query, rows);
    Narrow(below.link.child, rows);
    if (watch.Seen()) return true;
    if (!rows.empty()) below.withShown.Add(parent);
    below.asked.Add(parent);
    return !rows.empty();
}

std::vector<bool> RowDisplay::HaveChildren(const RowLink& link,
                                           const std::vector<std::int64_t>& parents) const {
    std::vector<bool> have(parents.size(), false);
    const DisplayState::Rows displayed = Of(link.child);
    const ReadTrouble::Watch watch(trouble_);
    if (!displayed || !displayed->only) link.child->HaveChildren(link, parents, have);
    if (displayed) {
        Below& below = BelowAlong(link, *displayed);
        for (std::size_t i = 0; i < parents.size(); ++i) {
            if (displayed->only) {
                have[i] = below.withSet.Has(parents[i]);
            } else if (have[i] && below.withSet.Has(parents[i])) {
                have[i] = HasShown(below, parents[i]);
            }
        }
    }
    if (watch.Seen()) have.assign(parents.size(), true);
    return have;
}

} // namespace znhost
