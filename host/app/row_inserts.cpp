#include "app/row_inserts.h"

#include "host/znBrowserDataItems.h"
#include "rows/row_model.h"
#include "store/base_source.h"
#include "store/data_ctrl.h"

namespace znhost {

namespace {

/// A text as SQL writes it.
std::string Literal(const std::string& text) {
    std::string quoted = "'";
    for (const char character : text) quoted.append(character == '\'' ? 2 : 1, character);
    return quoted + "'";
}

/// The expression for a column's value as SQL writes it. A text may hold a NUL, at which `quote` would stop.
std::string LiteralOf(const std::string& column) {
    return "CASE WHEN typeof(" + column + ") = 'text' AND instr(" + column +
           ", char(0)) THEN 'CAST(' || quote(CAST(" + column + " AS BLOB)) || ' AS TEXT)' ELSE quote(" +
           column + ") END";
}

/// Whether the database computes the column, so that it takes no value.
bool IsComputed(Database& database, const std::string& table, const std::string& column) {
    Statement statement =
        database.Prepare("SELECT 1 FROM pragma_table_xinfo(?1) WHERE name = ?2 AND hidden IN (2, 3)");
    statement.Bind(1, Value(table));
    statement.Bind(2, Value(column));
    return statement.Next();
}

} // namespace

std::string RowInserts::SelectFor(DataCtrl& control, const Table& table) {
    std::string columns, values;
    for (const TableColumn& column : table.columns) {
        if (IsComputed(control.Db(), table.name, column.name)) continue;
        const std::string name = Database::Quoted(column.name);
        columns += (columns.empty() ? "" : ", ") + name;
        values += (values.empty() ? "" : " || ', ' || ") + LiteralOf(name);
    }
    const std::string begin = "INSERT INTO " + Database::Quoted(table.name) + " (" + columns + ") VALUES (";
    return "SELECT " + Literal(begin) + " || " + values + " || ');' FROM " + table.rows + " WHERE " +
           table.is;
}

bool RowInserts::Make(std::uint32_t index, std::string& line, std::string& error) {
    line.clear();
    znBrowserDataItem item;
    auto* const source = rows_.GetItem(index, item) ? dynamic_cast<SimpleSource*>(item.source) : nullptr;
    if (!source) return true;
    const RowPlace place = source->PlaceOf(item.row);
    BaseSource* const base = source->BaseAt(place.slot);
    const Schema::TablePtr table = base ? base->Table() : nullptr;
    if (!table) return true;
    if (table->IsOnServer()) {
        error = "rows of a server are not written as SQL statements";
        return false;
    }
    const auto [known, isNew] = sources_.try_emplace(table.get());
    if (isNew) known->second = {table, SelectFor(base->Control(), *table)};
    Statement statement = base->Control().Db().Prepare(known->second.select);
    table->BindRow(statement, 1, place.row);
    if (statement.Next()) line = std::string(statement.Text(0)) + "\n";
    return statement.Finish(error);
}

} // namespace znhost
