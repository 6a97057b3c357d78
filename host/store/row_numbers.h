// Row numbers for sources that are made of several tables.
#ifndef ZN_HOST_ROW_NUMBERS_H
#define ZN_HOST_ROW_NUMBERS_H

#include "store/row_part.h"

#include <map>

namespace znhost {

/// One number for each place, and back. The rows of the first table keep theirs, the others get the table's
/// slot into the upper bits. Row numbers too large for that, and negative ones, are numbered as they come and
/// remembered.
class RowNumbers {
public:
    std::int64_t RowOf(RowPlace place) {
        if (place.row >= 0 && place.row < largeRow && place.slot < maxSlots) {
            return static_cast<std::int64_t>(place.slot) * largeRow + place.row;
        }
        const auto [entry, isNew] =
            odd_.try_emplace({place.slot, place.row}, firstOdd + static_cast<std::int64_t>(places_.size()));
        if (isNew) places_.push_back(place);
        return entry->second;
    }
    RowPlace PlaceOf(std::int64_t row) const {
        if (row < 0) return nowhere;
        if (row < firstOdd) return {static_cast<std::size_t>(row / largeRow), row % largeRow};
        const auto odd = static_cast<std::uint64_t>(row - firstOdd);
        return odd < places_.size() ? places_[odd] : nowhere;
    }

private:
    static constexpr std::int64_t largeRow = std::int64_t{1} << 44;
    static constexpr std::size_t maxSlots = 1U << 16;
    static constexpr std::int64_t firstOdd = largeRow << 16;
    static constexpr RowPlace nowhere{static_cast<std::size_t>(-1), 0};

    std::map<std::pair<std::size_t, std::int64_t>, std::int64_t> odd_;
    std::vector<RowPlace> places_;
};

} // namespace znhost

#endif
