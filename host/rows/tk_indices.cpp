#include "rows/tk_indices.h"

#include <limits>

namespace znhost {

std::uint32_t TkIndices::Take(std::uint32_t count, const Owner& owner) {
    if (!count) return 0;
    std::uint32_t first = FreeFrom(next_, count);
    if (!first) first = FreeFrom(1, count);
    if (!first) return 0;
    ranges_.emplace(first, Range{count, owner});
    next_ = std::uint64_t{first} + count;
    return first;
}

TkIndices::Owner TkIndices::Find(std::uint32_t index) const {
    auto range = ranges_.upper_bound(index);
    if (range == ranges_.begin()) return {};
    --range;
    const std::uint32_t offset = index - range->first;
    if (offset >= range->second.count) return {};
    Owner owner = range->second.owner;
    owner.slot += offset;
    return owner;
}

/// The first gap of that length at or after `start`; 0 when there is none.
std::uint32_t TkIndices::FreeFrom(std::uint64_t start, std::uint32_t count) const {
    constexpr std::uint64_t end = std::uint64_t{std::numeric_limits<std::uint32_t>::max()} + 1;
    for (auto range = ranges_.lower_bound(static_cast<std::uint32_t>(start < end ? start : end - 1));
         start + count <= end; ++range) {
        if (range == ranges_.end() || start + count <= range->first) return static_cast<std::uint32_t>(start);
        start = std::uint64_t{range->first} + range->second.count;
    }
    return 0;
}

} // namespace znhost
