// Rows of a source that a server is asked for together.
#ifndef ZN_HOST_ASKED_ROWS_H
#define ZN_HOST_ASKED_ROWS_H

#include "store/row_part.h"

#include <unordered_map>

namespace znhost {

class SimpleSource;

/// Those of some rows of the source that are in one part, and where among all of them they stand.
class AskedRows {
public:
    AskedRows(SimpleSource& source, const RowPart& part, const std::vector<std::int64_t>& rows);

    bool IsEmpty() const { return rows_.empty(); }
    /// Binds their list to that `?`. @return the position behind it
    int Bind(Statement& statement, int position) const;
    /// Asks for the key and `columns` (each with a comma before it) of them all, whether the part's condition
    /// takes them or not; in the order that stands behind ORDER BY, if any.
    Statement Ask(const std::string& columns, const std::string& order = {}) const;
    /// Calls `visit(place)` with each place of the row on which the statement stands.
    template <class Visit>
    void ForEachPlace(const Statement& statement, Visit&& visit) const {
        const auto [first, end] = places_.equal_range(part_.table->RowAt(statement, 0));
        for (auto place = first; place != end; ++place) visit(place->second);
    }

private:
    SimpleSource& source_;
    const RowPart& part_;
    std::vector<std::int64_t> rows_; ///< by their numbers in the table
    std::unordered_multimap<std::int64_t, std::size_t> places_;
};

} // namespace znhost

#endif
