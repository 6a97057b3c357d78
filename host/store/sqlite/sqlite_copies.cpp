#include "store/sqlite/sqlite_copies.h"

#include "store/schema.h"
#include "store/transaction.h"

#include <algorithm>

namespace znhost {
namespace {

/// The pieces, one for each of the columns that `wanted` accepts, joined.
template <class Wanted, class Piece>
std::string Join(const Table& table, const char* separator, Wanted wanted, Piece piece) {
    std::string joined;
    for (const TableColumn& column : table.columns) {
        if (!wanted(column)) continue;
        if (!joined.empty()) joined += separator;
        joined += piece(Database::Quoted(column.name));
    }
    return joined;
}

bool InKey(const TableColumn& column) { return column.primaryKey > 0; }

bool ExecuteAll(Database& database, const std::vector<std::string>& statements, std::string& error) {
    return std::all_of(statements.begin(), statements.end(),
                       [&](const std::string& sql) { return database.Execute(sql, error); });
}

/// Finds the columns of the copy, as behind CREATE TABLE. What type a view's column has only SQLite knows: it
/// makes a table of them.
bool FindColumns(Database& database, const std::string& original, std::string& columns, std::string& error) {
    Database::Rows found;
    if (!ExecuteAll(database,
                    {"DROP TABLE IF EXISTS temp.znbrowser_form",
                     "CREATE TEMP TABLE znbrowser_form AS SELECT * FROM " + original + " WHERE 0"},
                    error) ||
        !database.Run("SELECT name, type FROM pragma_table_info('znbrowser_form', 'temp')", {}, found,
                      error)) {
        return false;
    }
    for (const std::vector<std::string>& column : found)
        columns += ", " + Database::Quoted(column[0]) + " " + column[1];
    return database.Execute("DROP TABLE temp.znbrowser_form", error);
}

/// Makes an empty copy in place of the one that was there. The index is there for `ON CONFLICT`, and to find
/// what is gone.
bool Create(Database& database, const Table& table, const std::string& original, std::string& error) {
    std::string columns = table.key + " INTEGER PRIMARY KEY";
    if (!FindColumns(database, original, columns, error)) return false;
    const std::string copy = Database::Quoted("znbrowser_rows_" + table.name);
    std::vector<std::string> statements{"DROP TABLE IF EXISTS " + table.rows,
                                        "CREATE TEMP TABLE " + copy + " (" + columns + ")"};
    const std::string key = Join(table, ", ", InKey, [](const std::string& name) { return name; });
    if (!key.empty()) {
        statements.push_back("CREATE UNIQUE INDEX temp." + Database::Quoted("znbrowser_key_" + table.name) +
                             " ON " + copy + " (" + key + ")");
    }
    return ExecuteAll(database, statements, error);
}

/// What makes the copy equal to the original. Rows with a primary key are changed where they are, so that
/// they keep their numbers.
std::vector<std::string> UpdateOf(const Table& table, const std::string& original) {
    const std::string fill = "INSERT INTO " + table.rows + " SELECT NULL, * FROM " + original;
    // The second comparison is the copy's own; the first, with the collation of the original, uses its index.
    const std::string same = Join(table, " AND ", InKey, [](const std::string& name) {
        return "original." + name + " = copy." + name + " AND copy." + name + " = original." + name;
    });
    if (same.empty()) return {"DELETE FROM " + table.rows, fill};
    const std::string changes = Join(
        table, ", ", [](const TableColumn& column) { return !InKey(column); },
        [](const std::string& name) { return name + " = excluded." + name; });
    return {"DELETE FROM " + table.rows + " AS copy WHERE NOT EXISTS (SELECT 1 FROM " + original +
                " AS original WHERE " + same + ")",
            fill + " WHERE true ON CONFLICT DO " + (changes.empty() ? "NOTHING" : "UPDATE SET " + changes)};
}

/// All that the form of the copy depends on.
std::string DefinitionOf(const Table& table) {
    std::string definition;
    for (const TableColumn& column : table.columns) {
        definition += Database::Quoted(column.name) + " " + column.declaredType + " " +
                      std::to_string(column.primaryKey) + ", ";
    }
    return definition;
}

/// Makes a new copy, unless there is one of the right form. The forms are kept beside the copies, so that
/// what is rolled back takes both along.
bool GiveForm(Database& database, const Table& table, const std::string& original, std::string& error) {
    if (!database.Execute("CREATE TEMP TABLE IF NOT EXISTS znbrowser_copies (name PRIMARY KEY, definition)",
                          error)) {
        return false;
    }
    const std::string definition = DefinitionOf(table);
    Statement known =
        database.Prepare("SELECT 1 FROM temp.znbrowser_copies WHERE name = ? AND definition = ?");
    known.Bind(1, table.name);
    known.Bind(2, definition);
    const bool hasForm = known.Next();
    if (hasForm || !known.Finish(error)) return hasForm;
    Database::Rows none;
    return Create(database, table, original, error) &&
           database.Run("REPLACE INTO temp.znbrowser_copies VALUES (?, ?)", {table.name, definition}, none,
                        error);
}

} // namespace

bool CopySqliteRows(Database& database, const Table& table, std::string& error) {
    const std::string original = "main." + Database::Quoted(table.name);
    Transaction transaction(database);
    return transaction.Begin(error, Transaction::Purpose::Copy) &&
           GiveForm(database, table, original, error) &&
           ExecuteAll(database, UpdateOf(table, original), error) && transaction.Commit(error);
}

} // namespace znhost
