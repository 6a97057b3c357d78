// The tables and views of a database, with what the browser needs to know of them.
#ifndef ZN_HOST_SCHEMA_H
#define ZN_HOST_SCHEMA_H

#include "store/database.h"
#include "store/row_keys.h"
#include "znBrowserTypes.h"

#include <optional>

namespace znhost {

struct TableColumn {
    std::string name;
    std::string declaredType; ///< as written in the table's definition, may be empty
    /// BOOL for BOOL and BOOLEAN; INT and DOUBLE where SQLite's rules give the column that affinity; else
    /// STRING.
    ZNBROWSER_DATA_TYPE type = ZNBROWSER_DATA_STRING;
    bool text = false;    ///< declared as a text: CHAR, CLOB or TEXT
    bool numeric = false; ///< a text that looks like a number is stored as that number
    bool notNull = false;
    int primaryKey = 0;           ///< position in the primary key from 1; 0: not in it
    bool indexed = false;         ///< rows with a given value are found through an index
    mutable bool hasLong = false; ///< a long value was seen in it: it is better read in parts
    // How a server looks at the texts of the values; "" where it does not, or sees others than are shown.
    std::string beyond; ///< SQL for: the text is not all ASCII
    std::string folded; ///< SQL for the text with all ASCII letters small
    /// SQL that is true when the text, letter case aside, holds the folded text bound to its `?`; it may be
    /// true of texts that are not all ASCII in any case.
    std::string holds;
};

/// The columns `from` of a table hold the values of the columns `to` of the table `table`, pair by pair.
struct ForeignKey {
    std::vector<std::string> from;
    std::string table;
    std::vector<std::string> to;
};

/// A table or a view. An item of it is known by its row number, the value of `key` in `rows`:
///
///     SELECT <key>, <columns> FROM <rows> WHERE <is>
///
/// The engine may know rows by something else than a number; then `keys` numbers them. `RowAt` and `BindRow`
/// take either. With most tables of SQLite it is the rowid of the table itself. Views, tables WITHOUT ROWID
/// and virtual tables have none, and where columns bear its three names it cannot be asked for: there `rows`
/// is a temporary copy
/// (`copied`), which `RowCopies::Refresh` brings up to date before it is read. The row numbers of a copied
/// table with a primary key stay with their rows; those of a view number its rows from 1, and hold until its
/// rows change.
struct Table {
    std::string name;
    bool view = false;
    bool copied = false;
    std::string rows;      ///< what stands behind FROM
    std::string original;  ///< the table itself, where that is another one
    std::string key;       ///< the expression for the row number, or what the engine knows the row by
    std::string order;     ///< what stands behind ORDER BY for the order of the rows
    std::string is;        ///< SQL for: the row is the one bound to its `?`
    std::string place;     ///< what is compared to find where in that order a row stands,
    std::string bound;     ///< and the row bound to its `?` as the other side of the comparison
    std::string backwards; ///< the order the other way round, on a server
    /// SQL for: the row is one of those in the list (see `Database::ListOf`) bound to its `?`; others may be
    /// found too. Empty: an engine that takes as long when each row is asked for.
    std::string among;
    std::string number;            ///< the `?` for a row number that other columns are compared with
    std::string inTable;           ///< `is` for the original; "": the rows cannot be changed
    std::shared_ptr<RowKeys> keys; ///< null: the row number is the value of `key`
    bool inParts = false;          ///< the engine can read its values in parts
    bool inBlocks = false; ///< a row is known by where it lies, "(BLOCK,NUMBER)": no index has that order
    std::vector<TableColumn> columns;
    std::vector<ForeignKey>
        foreignKeys; ///< in the order of their declaration; only those that lead somewhere
    /// The column that names a row: "name", "title", "label", "caption" or "number", else the first text
    /// column; none: a row is named by its row number.
    std::optional<std::size_t> displayColumn;
    /// What names a row, as an expression: the display column; where a row has nothing there, and in a table
    /// without such a column, its row number.
    std::string naming;
    /// The column that is the row number itself: INTEGER PRIMARY KEY.
    std::optional<std::size_t> rowidColumn;
    /// Why the table cannot be read (a view on a table that is gone, for example); empty: it can. Such a
    /// table may lack everything but its name.
    std::string problem;

    /// The place of a column, by its name as SQL compares it: without regard to (ASCII) case.
    std::optional<std::size_t> FindColumn(std::string_view column) const;
    void FindDisplayColumn();
    std::int64_t RowAt(const Statement& statement, int column) const {
        return keys ? keys->NumberOf(statement.Text(column)) : statement.Integer(column);
    }
    bool IsOnServer() const { return !among.empty(); }
    /// SQL for: the row stands there, "<" for instance before it, as seen from the one bound to its `?`.
    std::string Stands(const char* there) const { return place + " " + there + " " + bound; }
    /// SQL that is true of this row only, wherever it is read; "" where only its place in a copy is known.
    std::string ConditionOf(std::int64_t row) const;
    /// What is bound for the row.
    Value ValueOf(std::int64_t row) const { return keys ? Value(keys->KeyOf(row)) : Value(row); }
    void BindRow(Statement& statement, int position, std::int64_t row) const {
        if (keys) return statement.Bind(position, keys->KeyOf(row));
        statement.Bind(position, row);
    }
};

/// What the database is made of, read again when its tables changed. Tables are shared: one that was found
/// stays valid, as it was, after a change.
class Schema {
public:
    using TablePtr = std::shared_ptr<const Table>;

    explicit Schema(Database& database) : database_(database) {}

    /// All tables and views in name order, but for SQLite's own and those of the browser itself. When the
    /// database cannot be read, the tables last known.
    const std::vector<TablePtr>& Tables();
    /// The table of that name, case regarded as SQL does; null when there is none.
    TablePtr Find(std::string_view name);
    /// The tables last known.
    const std::vector<TablePtr>& Known() const { return tables_; }
    /// Brings `Tables` up to date. @return false when the database cannot be read at present
    bool Refresh(std::string& error);

private:
    Database& database_;
    Database::Stamp stamp_;
    std::vector<TablePtr> tables_;
};

/// Whether two names are one to SQL: the same but for ASCII case.
bool SameName(std::string_view a, std::string_view b);

} // namespace znhost

#endif
