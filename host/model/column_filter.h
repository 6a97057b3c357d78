// What narrows the rows of a view to those with some values in a column.
#ifndef ZN_HOST_COLUMN_FILTER_H
#define ZN_HOST_COLUMN_FILTER_H

#include <string>

namespace znhost {

struct ColumnFilter {
    enum class Kind { None, Contains, Equals, Between, Null };

    Kind kind = Kind::None;
    std::string value; ///< what is contained, or equal; the lowest one
    std::string to;    ///< the highest one

    bool IsSet() const { return kind != Kind::None; }
    friend bool operator==(const ColumnFilter&, const ColumnFilter&) = default;
};

} // namespace znhost

#endif
