// What narrows the rows of a view to those with some values in a column.
#ifndef ZN_HOST_COLUMN_FILTER_H
#define ZN_HOST_COLUMN_FILTER_H

#include <string>
#include <vector>

namespace znhost {

struct ColumnFilter {
    enum class Kind { None, Contains, Equals, Between, Null };

    Kind kind = Kind::None;
    std::string value; ///< what is contained, or equal; the lowest one
    std::string to;    ///< the highest one

    bool IsSet() const { return kind != Kind::None; }
    friend bool operator==(const ColumnFilter&, const ColumnFilter&) = default;
};

/// The filter as words: "none", "null", "contains TEXT", "equals VALUE" or "between LOW HIGH".
std::vector<std::string> WordsOf(const ColumnFilter& filter);
/// False, and `filter` is as it was, when the words are none of these.
bool ReadColumnFilter(const std::vector<std::string>& words, ColumnFilter& filter);

} // namespace znhost

#endif
