// The values that a condition wants, and how an index finds the rows that have one of them.
#ifndef ZN_HOST_WANTED_VALUES_H
#define ZN_HOST_WANTED_VALUES_H

#include "store/schema.h"

#include <set>

class znString;

namespace znhost {

/// Takes the texts that are equal to one of the values: as numbers, where the property is a number.
class WantedValues {
public:
    /// Rows that an index can find: those for which this SQL is true with one of these sets of values for its
    /// `?`.
    struct Lookup {
        std::string sql;
        std::vector<std::vector<Value>> runs;
    };

    /// @param numbers  whether the property is a number
    WantedValues(const std::vector<znString>& values, bool numbers);

    bool Has(std::string_view text) const;
    /// Lookups that together find every row whose value `Has` takes, written as text; they may find others
    /// too, and one more than once. None: only a look at each row can tell.
    std::vector<Lookup> LookupsIn(const TableColumn& column) const;

private:
    std::vector<std::vector<Value>> Texts() const;
    std::vector<std::vector<Value>> Ranges() const;

    const bool isNumeric_;
    bool isInfinite_ = false; ///< a text among the values reads as an infinite number
    std::set<std::string, std::less<>> texts_;
    std::set<double> numbers_; ///< the texts that read as numbers
};

} // namespace znhost

#endif
