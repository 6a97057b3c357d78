// Rows that are to be expanded, told by what they are.
#ifndef ZN_HOST_WANTED_ROWS_H
#define ZN_HOST_WANTED_ROWS_H

#include "rows/row_model.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace znhost {

/// A row that is to be expanded.
struct WantedRow {
    RowKind kind;
    std::uint32_t name; ///< the number of its name
    std::int64_t row;   ///< an item's number; 0 for a container
    std::size_t place;  ///< in the list
    bool found = false;
};

/// A list of rows, ordered by the row in which each lies, so that what is wanted below a row is found without
/// looking at the rest. Names are numbered once: there are few of them, and rows by the hundred thousand.
class WantedRows {
public:
    using Name = std::uint32_t;

    /// Rows that do not lie below one before them are left out.
    explicit WantedRows(const std::vector<KeptRow>& rows);

    /// A name that no row has, too, has a number.
    Name NumberOf(const std::string& name);
    /// What is wanted below the row of that number, counted from 1; 0: at the top. An item stands there once.
    std::span<WantedRow> Below(std::size_t number);
    /// Those among them of one kind and name; items in the order of their numbers.
    static std::span<WantedRow> Among(std::span<WantedRow> below, RowKind kind, Name name);

private:
    void CountBelow(const std::vector<KeptRow>& rows);

    std::unordered_map<std::string, Name> names_;
    std::vector<std::size_t> begins_; ///< by number: where what lies below begins in `wanted_`
    std::vector<std::size_t> ends_;
    std::vector<WantedRow> wanted_;
};

} // namespace znhost

#endif
