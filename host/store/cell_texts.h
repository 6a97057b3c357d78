// What the cells of rows show of the columns of their table.
#ifndef ZN_HOST_CELL_TEXTS_H
#define ZN_HOST_CELL_TEXTS_H

#include "store/column_values.h"
#include "store/schema.h"

#include <optional>

class znIBrowserDataProperty;

namespace znhost {

/// Reads the texts of stored properties, row by row, from a statement that asks for `Sql`. Once a long value
/// was met in a column, only the beginnings of its values are read, where the engine can do so.
class CellTexts {
public:
    /// @param properties  of the columns; null for the text of the item itself
    CellTexts(Database& database, const Table& table, const std::vector<znIBrowserDataProperty*>& properties);

    /// The columns to be asked for, with commas between.
    const std::string& Sql() const { return sql_; }
    /// The texts of the row on which the statement stands; NULL gives none, and a long one is cut.
    /// @param first  where the columns begin
    void Take(const Statement& statement, int first, std::int64_t row, std::optional<std::string>* texts);

private:
    struct Cell {
        const TableColumn* column = nullptr;  ///< null: no plain column of the table
        std::unique_ptr<ColumnValues> values; ///< only where long values are expected
    };

    std::string Add(Cell& cell, znIBrowserDataProperty* property);
    std::string TakeLong(const Cell& cell, bool isBlob, std::int64_t row) const;

    Database& database_;
    const Table& table_;
    std::vector<Cell> cells_;
    std::string sql_;
};

} // namespace znhost

#endif
