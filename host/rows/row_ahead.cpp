#include "rows/row_ahead.h"

#include "rows/row_plan.h"

#include <algorithm>

namespace znhost {

namespace {

/// Read at once: the time that this takes goes unnoticed, that of the statement itself does not count.
constexpr std::size_t atOnce = 4096;

} // namespace

void RowAhead::Along::Expect(const std::vector<std::int64_t>& parents) {
    std::vector<std::int64_t> added;
    std::copy_if(parents.begin(), parents.end(), std::back_inserter(added),
                 [this](std::int64_t parent) { return !expected.Has(parent); });
    waiting.insert(waiting.end(), added.begin(), added.end());
    constexpr std::size_t few = 64; // with so many a pass over the set is not worth while
    if (added.size() > few) {
        expected.Add(std::move(added));
    } else {
        for (const std::int64_t parent : added) expected.Add(parent);
    }
}

RowAhead::Along& RowAhead::AlongOf(const RowContent& block, const RowLink& link) {
    const Key key{block.scope.get(), link.parent, link.child, link.reference};
    const auto known = all_.find(key);
    if (known != all_.end()) return known->second;
    Along& along = all_[key];
    along.block = block;
    along.link = link;
    along.order = order_(block, link);
    return along;
}

void RowAhead::Expect(const RowContent& block, const std::vector<std::int64_t>& rows) {
    for (const RowLink& link : block.scope->links) {
        if (link.parent == block.source) AlongOf(block, link).Expect(rows);
    }
}

std::optional<std::span<const std::int64_t>> RowAhead::Below(const RowContent& block, const RowLink& link,
                                                             std::int64_t parent) {
    if (failed_) return std::nullopt;
    Along& along = AlongOf(block, link);
    if (!along.order) return std::nullopt;
    if (!along.read.Has(parent) && !Read(along, parent)) return std::nullopt;
    const auto found = along.below.find(parent);
    if (found == along.below.end()) return std::span<const std::int64_t>();
    return std::span(along.rows).subspan(found->second.begin, found->second.end - found->second.begin);
}

/// Reads the children of that parent and of those that wait.
bool RowAhead::Read(Along& along, std::int64_t parent) {
    std::vector<std::int64_t> parents;
    bool isAmong = false;
    while (parents.size() < atOnce && !along.waiting.empty()) {
        const std::int64_t next = along.waiting.front();
        along.waiting.pop_front();
        if (along.read.Has(next)) continue;
        isAmong = isAmong || next == parent;
        parents.push_back(next);
    }
    if (!isAmong) parents.push_back(parent);
    RowGroups groups;
    failed_ = !along.link.child->ListBelow(along.link, parents, *along.order, groups);
    if (failed_) return false;
    std::size_t begin = along.rows.size();
    for (std::size_t i = 0; i < parents.size(); ++i) {
        const std::size_t end = along.rows.size() + groups.ends[i];
        if (begin != end) along.below.emplace(parents[i], Place{begin, end});
        begin = end;
    }
    along.rows.insert(along.rows.end(), groups.rows.begin(), groups.rows.end());
    along.read.Add(std::move(parents));
    if (!descends_) return true;
    RowContent below = along.block;
    below.source = along.link.child;
    Expect(below, groups.rows);
    return true;
}

} // namespace znhost
