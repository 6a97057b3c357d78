#include "rows/wanted_rows.h"

#include <algorithm>
#include <tuple>

namespace znhost {

namespace {

bool LiesBelowOneBefore(const KeptRow& row, std::size_t place) { return row.above <= place; }

auto KeyOf(const WantedRow& wanted) { return std::tie(wanted.kind, wanted.name, wanted.row); }

/// By what they are; the same ones in the order of the list.
bool StandsBefore(const WantedRow& one, const WantedRow& other) {
    return std::tuple_cat(KeyOf(one), std::tie(one.place)) <
           std::tuple_cat(KeyOf(other), std::tie(other.place));
}

bool IsSameItem(const WantedRow& one, const WantedRow& other) {
    return one.kind == RowKind::Item && KeyOf(one) == KeyOf(other);
}

} // namespace

WantedRows::WantedRows(const std::vector<KeptRow>& rows) {
    CountBelow(rows);
    const std::string* last = nullptr; // names stand many times one after the other
    Name name = 0;
    for (std::size_t place = 0; place < rows.size(); ++place) {
        const KeptRow& row = rows[place];
        if (!LiesBelowOneBefore(row, place)) continue;
        if (!last || *last != row.name) name = NumberOf(row.name);
        last = &row.name;
        wanted_[ends_[row.above]++] = {row.kind, name, row.kind == RowKind::Item ? row.row : 0, place};
    }
    for (std::size_t number = 0; number < ends_.size(); ++number) {
        const auto begin = wanted_.begin() + static_cast<std::ptrdiff_t>(begins_[number]);
        const auto end = wanted_.begin() + static_cast<std::ptrdiff_t>(ends_[number]);
        if (!std::is_sorted(begin, end, StandsBefore)) std::sort(begin, end, StandsBefore);
        ends_[number] =
            begins_[number] + static_cast<std::size_t>(std::unique(begin, end, IsSameItem) - begin);
    }
}

/// Makes room below each row for as many as lie there.
void WantedRows::CountBelow(const std::vector<KeptRow>& rows) {
    std::vector<std::size_t> counts(rows.size() + 1);
    for (std::size_t place = 0; place < rows.size(); ++place) {
        if (LiesBelowOneBefore(rows[place], place)) ++counts[rows[place].above];
    }
    std::size_t all = 0;
    begins_.reserve(counts.size());
    for (const std::size_t count : counts) {
        begins_.push_back(all);
        all += count;
    }
    ends_ = begins_;
    wanted_.resize(all);
}

WantedRows::Name WantedRows::NumberOf(const std::string& name) {
    return names_.emplace(name, static_cast<Name>(names_.size())).first->second;
}

std::span<WantedRow> WantedRows::Below(std::size_t number) {
    return std::span(wanted_).subspan(begins_[number], ends_[number] - begins_[number]);
}

std::span<WantedRow> WantedRows::Among(std::span<WantedRow> below, RowKind kind, Name name) {
    const auto key = std::tie(kind, name);
    const auto keyOf = [](const WantedRow& wanted) { return std::tie(wanted.kind, wanted.name); };
    const auto begin = std::partition_point(below.begin(), below.end(),
                                            [&](const WantedRow& wanted) { return keyOf(wanted) < key; });
    const auto end = std::partition_point(begin, below.end(),
                                          [&](const WantedRow& wanted) { return keyOf(wanted) == key; });
    return {begin, end};
}

} // namespace znhost
