#include "store/sqlite/sqlite_schema.h"

#include "store/schema.h"

#include <algorithm>
#include <unordered_map>

namespace znhost {
namespace {

std::string Folded(std::string_view text) {
    std::string folded(text);
    for (char& character : folded) {
        if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
    }
    return folded;
}

bool StartsWith(std::string_view text, std::string_view start) {
    return text.substr(0, start.size()) == start;
}

bool Holds(std::string_view text, std::initializer_list<std::string_view> words) {
    return std::any_of(words.begin(), words.end(),
                       [text](std::string_view word) { return text.find(word) != text.npos; });
}

bool IsInternal(std::string_view name) {
    const std::string folded = Folded(name);
    return StartsWith(folded, "sqlite_") || StartsWith(folded, "znbrowser_");
}

/// By SQLite's rules: anything with INT in it is an integer, even when it is a text too.
bool IsTextDeclaration(std::string_view declaredType) {
    const std::string folded = Folded(declaredType);
    return folded.find("int") == folded.npos && Holds(folded, {"char", "clob", "text"});
}

/// By SQLite's rules too; the texts of a column of any type stay texts where the table is strict.
bool IsNumericDeclaration(std::string_view declaredType) {
    const std::string folded = Folded(declaredType);
    if (TypeOfDeclaration(folded) != ZNBROWSER_DATA_STRING) return true;
    return !folded.empty() && folded != "any" && !IsTextDeclaration(folded) && !Holds(folded, {"blob"});
}

/// Builds one table from what the pragmas tell.
class TableReader {
public:
    TableReader(Database& database, Table& table) : database_(database), table_(table) {}

    bool ReadColumns(std::string& error) {
        Statement columns = Ask("table_xinfo", table_.name);
        while (columns.Next()) {
            if (columns.Integer(6) == 1) continue; // hidden: an argument of a virtual table
            if (columns.Integer(6) > 1)
                table_.inParts = false; // generated: stored at other places, or not at all
            TableColumn& column = table_.columns.emplace_back();
            column.name = columns.Text(1);
            column.declaredType = columns.Text(2);
            column.type = TypeOfDeclaration(column.declaredType);
            column.text = IsTextDeclaration(column.declaredType);
            column.numeric = IsNumericDeclaration(column.declaredType);
            column.notNull = columns.Integer(3) != 0;
            column.primaryKey = static_cast<int>(columns.Integer(5));
        }
        return columns.Finish(error);
    }

    /// Marks what an index leads with. A partial index does not hold all rows.
    bool ReadIndexes(std::string& error) {
        Statement indexes = Ask("index_list", table_.name);
        while (indexes.Next()) {
            if (indexes.Integer(4) != 0) continue; // partial
            keyHasIndex_ = keyHasIndex_ || indexes.Text(3) == "pk";
            if (!ReadIndex(indexes.Text(1), error)) return false;
        }
        return indexes.Finish(error);
    }

    /// Targets without columns stay so for now: they mean the primary key of a table perhaps not yet read.
    bool ReadForeignKeys(std::string& error) {
        Statement keys = Ask("foreign_key_list", table_.name);
        while (keys.Next()) {
            if (keys.Integer(1) == 0) {
                table_.foreignKeys.emplace_back();
                table_.foreignKeys.back().table = keys.Text(2);
            }
            table_.foreignKeys.back().from.emplace_back(keys.Text(3));
            if (!keys.IsNull(4)) table_.foreignKeys.back().to.emplace_back(keys.Text(4));
        }
        std::reverse(table_.foreignKeys.begin(), table_.foreignKeys.end()); // the last declared came first
        return keys.Finish(error);
    }

    void FindRowidColumn() {
        const auto isKey = [](const TableColumn& column) { return column.primaryKey > 0; };
        if (keyHasIndex_ || std::count_if(table_.columns.begin(), table_.columns.end(), isKey) != 1) return;
        const auto key = std::find_if(table_.columns.begin(), table_.columns.end(), isKey);
        // A key of any other type is an ordinary column with an index, also INT; so is INTEGER ... DESC.
        if (!SameName(key->declaredType, "INTEGER")) return;
        key->indexed = true;
        table_.rowidColumn = static_cast<std::size_t>(key - table_.columns.begin());
    }

    /// Where the rows are read and what numbers them.
    void FindRows() {
        if (table_.rowidColumn) {
            table_.key = Database::Quoted(table_.columns[*table_.rowidColumn].name);
        } else if (!table_.copied) { // any of the three names may be taken by an ordinary column
            for (const char* const name : {"rowid", "_rowid_", "oid"}) {
                if (table_.key.empty() && !table_.FindColumn(name)) table_.key = name;
            }
            table_.copied = table_.key.empty();
        }
        if (table_.copied) {
            table_.inParts = false;
            table_.key = "znbrowser_row";
            while (table_.FindColumn(table_.key)) table_.key += '_';
            for (TableColumn& column : table_.columns)
                column.indexed = column.primaryKey == 1; // all that the copy has
        }
        table_.naming = table_.displayColumn
                            ? "coalesce(nullif(" +
                                  Database::Quoted(table_.columns[*table_.displayColumn].name) + ", ''), " +
                                  table_.key + ")"
                            : table_.key;
        table_.original = "main." + Database::Quoted(table_.name);
        table_.rows =
            table_.copied ? "temp." + Database::Quoted("znbrowser_rows_" + table_.name) : table_.original;
        table_.order = table_.key;
        table_.is = table_.key + " = ?";
        table_.place = table_.key;
        table_.bound = "?";
        table_.number = "?";
        table_.inTable = table_.copied ? RowOfCopy() : table_.is;
    }

private:
    /// Finds the row of a copy in the table itself; "" when it cannot be found there: the rows of a view come
    /// from elsewhere, and copies of tables without a key have nothing that leads back.
    std::string RowOfCopy() const {
        std::string key;
        for (const TableColumn& column : table_.columns) {
            if (column.primaryKey > 0) key += (key.empty() ? "" : ", ") + Database::Quoted(column.name);
        }
        if (key.empty() || table_.view) return {};
        const bool single = key.find(", ") == std::string::npos;
        return (single ? key : "(" + key + ")") + " = (SELECT " + key + " FROM " + table_.rows + " WHERE " +
               table_.is + ")";
    }
    /// The pragmas themselves, not the functions of the same names, which take the time of another query
    /// each.
    Statement Ask(std::string_view pragma, std::string_view name) {
        return database_.PrepareOnce("PRAGMA main." + std::string(pragma) + "(" + Database::Quoted(name) +
                                     ")");
    }
    bool ReadIndex(std::string_view name, std::string& error) {
        Statement parts = Ask("index_info", name);
        if (parts.Next() && parts.Integer(1) >= 0) { // an expression is no column
            if (const auto column = table_.FindColumn(parts.Text(2))) table_.columns[*column].indexed = true;
        }
        return parts.Finish(error);
    }

    Database& database_;
    Table& table_;
    bool keyHasIndex_ = false;
};

std::string ReadTable(Database& database, Table& table) {
    TableReader reader(database, table);
    std::string error;
    if (!reader.ReadColumns(error)) return error;
    if (!table.view && !reader.ReadForeignKeys(error)) return error;
    if (!table.copied) {
        if (!reader.ReadIndexes(error)) return error;
        reader.FindRowidColumn();
    }
    table.FindDisplayColumn();
    reader.FindRows();
    return {};
}

using TablesByName = std::unordered_map<std::string, const Table*>;

/// Gives a foreign key its target as the target's own definition has it. @return false when it leads nowhere
bool Resolve(ForeignKey& key, const Table& from, const TablesByName& tables) {
    const auto found = tables.find(Folded(key.table));
    if (found == tables.end()) return false;
    const Table& target = *found->second;
    key.table = target.name;
    if (key.to.empty()) {
        for (int position = 1; position <= static_cast<int>(key.from.size()); ++position) {
            for (const TableColumn& column : target.columns) {
                if (column.primaryKey == position) key.to.push_back(column.name);
            }
        }
    }
    const auto allIn = [](const Table& table, std::vector<std::string>& names) {
        return std::all_of(names.begin(), names.end(), [&table](std::string& name) {
            const auto column = table.FindColumn(name);
            if (column) name = table.columns[*column].name;
            return column.has_value();
        });
    };
    return key.to.size() == key.from.size() && allIn(target, key.to) && allIn(from, key.from);
}

} // namespace

ZNBROWSER_DATA_TYPE TypeOfDeclaration(std::string_view declaredType) {
    const std::string folded = Folded(declaredType);
    if (folded == "bool" || folded == "boolean") return ZNBROWSER_DATA_BOOL;
    if (Holds(folded, {"int"})) return ZNBROWSER_DATA_INT;
    if (IsTextDeclaration(declaredType) || Holds(folded, {"blob"})) return ZNBROWSER_DATA_STRING;
    return Holds(folded, {"real", "floa", "doub"}) ? ZNBROWSER_DATA_DOUBLE : ZNBROWSER_DATA_STRING;
}

bool ReadSqliteTables(Database& database, Database::Tables& tables, std::string& error) {
    // A statement in the middle of its rows keeps others from writing: the tables are read as one.
    Statement hold = database.Prepare("SELECT 1 FROM main.sqlite_schema");
    hold.Next();
    if (!hold.Finish(error)) return false;
    Statement encoding = database.Prepare("PRAGMA encoding");
    const bool isUtf8 = encoding.Next() && encoding.Text(0) == "UTF-8";
    Database::Tables found;
    Statement list = database.Prepare("PRAGMA main.table_list");
    while (list.Next()) {
        const std::string type(list.Text(2));
        if ((type != "table" && type != "view" && type != "virtual") || IsInternal(list.Text(1))) continue;
        Table& table = *found.emplace_back(std::make_shared<Table>());
        table.view = type == "view";
        table.copied = type != "table" || list.Integer(4) != 0;
        table.inParts = isUtf8 && !table.copied;
        table.name = list.Text(1);
    }
    if (!list.Finish(error)) return false;
    std::sort(found.begin(), found.end(), [](const auto& a, const auto& b) { return a->name < b->name; });
    TablesByName byName;
    for (const auto& table : found) {
        table->problem = ReadTable(database, *table);
        byName.emplace(Folded(table->name), table.get());
    }
    for (const auto& table : found) {
        std::vector<ForeignKey>& keys = table->foreignKeys;
        const auto leadsNowhere = [&](ForeignKey& key) { return !Resolve(key, *table, byName); };
        keys.erase(std::remove_if(keys.begin(), keys.end(), leadsNowhere), keys.end());
    }
    tables = std::move(found);
    return true;
}

} // namespace znhost
