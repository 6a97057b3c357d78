// The rows of one table that belong to a data source, as SQL.
#ifndef ZN_HOST_ROW_PART_H
#define ZN_HOST_ROW_PART_H

#include "store/schema.h"

namespace znhost {

/// What a data source takes from one table: all rows, or those that fulfil a condition. A source has one part
/// for each of its tables.
struct RowPart {
    std::size_t slot = 0; ///< which of the source's tables it is
    Schema::TablePtr table;
    std::string condition;     ///< SQL that was checked; "" for all rows
    std::vector<Value> values; ///< for the `?` of the condition

    /// What stands behind FROM. The table goes by its own name also where a copy of it is read.
    std::string From() const { return table->rows + " AS " + Database::Quoted(table->name); }
    /// The WHERE of the part's rows that fulfil `more` too; "" when there is nothing to fulfil.
    std::string Where(std::string_view more = {}) const;
    /// SELECT of the row number and of `columns` (each with a comma before it).
    std::string Select(std::string_view columns = {}, std::string_view more = {}) const {
        return "SELECT " + table->key + std::string(columns) + " FROM " + From() + Where(more);
    }
    /// Binds the values of the condition from that `?` on. @return the position behind them
    int Bind(Statement& statement, int position = 1) const;
};

/// A row of a source's part: the number of the table among those of the source, and the row number there.
struct RowPlace {
    std::size_t slot = 0;
    std::int64_t row = 0;
};

} // namespace znhost

#endif
