#include "store/postgres/pg_schema.h"

#include "store/postgres/pg_sql.h"

#include <algorithm>
#include <map>

namespace znhost {

/// A table while it is read.
struct PgTable {
    std::shared_ptr<Table> table;
    enum class Rows {
        Table,     ///< that of one table: its rows have places in it
        Several,   ///< of several tables
        Elsewhere, ///< computed, or brought from where rows have no places
    } rows = Rows::Table;
    bool inherits = false; ///< rows of other tables count among its own: no key holds for all
    std::string number;
    std::map<std::int64_t, std::size_t> places; ///< of the columns, by their numbers
    std::vector<std::string> types;             ///< of the columns: what a text is cast to
    std::vector<std::size_t> key;               ///< the columns of the primary key
};

namespace {

constexpr char listed[] =
    "WITH listed AS (SELECT c.oid, c.relname, c.relkind, c.relhassubclass, n.nspname "
    "FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace "
    "WHERE c.relkind IN ('r','p','v','m','f') AND NOT c.relispartition AND c.relpersistence <> 't' "
    "AND n.nspname !~ '^(pg_|information_schema$|znbrowser$)' AND has_schema_privilege(n.oid, 'USAGE')) ";

/// With the tables themselves: whether they are elsewhere, and whether in a place where rows have no number.
constexpr char listSql[] =
    "SELECT l.oid::bigint, l.nspname, l.relname, l.relkind::text, pg_table_is_visible(l.oid), "
    "has_any_column_privilege(l.oid, 'SELECT'), l.relkind = 'p' OR (l.relkind = 'r' AND l.relhassubclass), "
    "count(f.ftrelid), count(f.ftrelid) FILTER (WHERE w.fdwname <> 'postgres_fdw') "
    "FROM listed l LEFT JOIN LATERAL (SELECT l.oid AS relid UNION SELECT relid FROM "
    "pg_partition_tree(l.oid)) "
    "AS part ON true LEFT JOIN pg_foreign_table f ON f.ftrelid = part.relid "
    "LEFT JOIN pg_foreign_server s ON s.oid = f.ftserver "
    "LEFT JOIN pg_foreign_data_wrapper w ON w.oid = s.srvfdw "
    "GROUP BY l.oid, l.nspname, l.relname, l.relkind, l.relhassubclass";

constexpr char columnsSql[] =
    "SELECT a.attrelid::bigint, a.attnum, a.attname, format_type(a.atttypid, a.atttypmod), "
    "format_type(b.oid, -1), b.oid::bigint, b.typcategory::text, a.attnotnull, "
    "getdatabaseencoding() = 'UTF8' "
    "FROM listed l JOIN pg_attribute a ON a.attrelid = l.oid JOIN pg_type t ON t.oid = a.atttypid "
    "JOIN pg_type b ON b.oid = coalesce(nullif(t.typbasetype, 0), t.oid) "
    "WHERE a.attnum > 0 AND NOT a.attisdropped AND has_column_privilege(l.oid, a.attnum, 'SELECT') "
    "ORDER BY a.attrelid, a.attnum";

constexpr char primaryKeysSql[] = "SELECT k.conrelid::bigint, array_to_string(k.conkey, ' ') FROM listed l "
                                  "JOIN pg_constraint k ON k.conrelid = l.oid AND k.contype = 'p'";

constexpr char foreignKeysSql[] =
    "SELECT k.conrelid::bigint, k.confrelid::bigint, array_to_string(k.conkey, ' '), "
    "array_to_string(k.confkey, ' ') FROM listed l "
    "JOIN pg_constraint k ON k.conrelid = l.oid AND k.contype = 'f' AND k.conparentid = 0 ORDER BY k.oid";

/// The columns whose numbers stand in the text; none when one of them is not there.
std::vector<std::size_t> PlacesOf(const PgTable& table, std::string_view numbers) {
    std::vector<std::size_t> places;
    while (!numbers.empty()) {
        const std::size_t end = std::min(numbers.find(' '), numbers.size());
        const auto number = NumberOfText(numbers.substr(0, end));
        const auto found =
            number ? table.places.find(static_cast<std::int64_t>(*number)) : table.places.end();
        if (found == table.places.end()) return {};
        places.push_back(found->second);
        numbers.remove_prefix(std::min(end + 1, numbers.size()));
    }
    return places;
}

std::vector<std::string> NamesOf(const Table& table, const std::vector<std::size_t>& places) {
    std::vector<std::string> names;
    for (const std::size_t place : places) names.push_back(table.columns[place].name);
    return names;
}

/// As the server numbers its own types.
ZNBROWSER_DATA_TYPE TypeOf(std::int64_t type) {
    switch (type) {
    case 16: return ZNBROWSER_DATA_BOOL;
    case 20:
    case 21:
    case 23:
    case 26: return ZNBROWSER_DATA_INT;
    case 700:
    case 701:
    case 1700: return ZNBROWSER_DATA_DOUBLE;
    default: return ZNBROWSER_DATA_STRING;
    }
}

/// The text of a value as it is shown: a boolean is written in other words on a server, and casts take the
/// blanks at the end of a `character`.
std::string ShownText(const std::string& name, std::int64_t type) {
    if (type == 16) return name + "::integer::text";
    return type == 1042 ? "textin(bpcharout(" + name + "))" : name + "::text";
}

void FindTexts(TableColumn& column, std::int64_t type) {
    const std::string text = "(" + ShownText(Database::Quoted(column.name), type) + " COLLATE \"C\")";
    column.beyond = "octet_length(" + text + ") <> char_length(" + text + ")";
    column.folded = "lower(" + text + ")";
    column.holds = "(" + column.beyond + " OR strpos(" + column.folded + ", ?) > 0)";
}

bool IsWhole(const std::string& type) { return type == "bigint" || type == "integer" || type == "smallint"; }

/// A key of any number of columns, as one text.
void NumberByColumns(Table& table, const std::vector<std::string>& columns,
                     const std::vector<std::string>& types) {
    if (columns.size() == 1) {
        table.key = columns[0] + "::text";
        table.order = Database::Quoted(table.name) + "." + columns[0]; // the key bears the column's name, too
        table.backwards = table.order + " DESC";
        table.place = columns[0];
        table.bound = "?::" + types[0];
        table.is = table.Stands("=");
        table.among = columns[0] + " = ANY(?::" + types[0] + "[])";
        return;
    }
    std::string texts;
    std::string names;
    std::string fromOne;
    std::string fromEach;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const char* const comma = i == 0 ? "" : ", ";
        const std::string element = "[" + std::to_string(i + 1) + "]::" + types[i];
        texts += comma + columns[i] + "::text";
        names += comma + columns[i];
        table.backwards += comma + columns[i] + " DESC";
        fromOne += comma + ("given.key" + element);
        fromEach += comma + ("(given.key::text[])" + element);
    }
    table.key = "ARRAY[" + texts + "]::text";
    table.order = names;
    table.place = "(" + names + ")";
    table.bound = "(SELECT " + fromOne + " FROM (SELECT ?::text[]) AS given(key))";
    table.is = table.Stands("=");
    table.among = "(" + names + ") IN (SELECT " + fromEach + " FROM unnest(?::text[]) AS given(key))";
}

void NumberByColumn(Table& table, const std::string& column) {
    table.key = table.order = table.place = column;
    table.bound = "?::bigint";
    table.is = table.Stands("=");
    table.backwards = column + " DESC";
    table.among = column + " = ANY(?::bigint[])";
}

} // namespace

bool PgSchema::ReadList(Found& found, std::string& error) {
    Statement list = database_.Prepare(std::string(listed) + listSql);
    hasOtherServers_ = false;
    while (list.Next()) {
        PgTable& entry = found[list.Integer(0)];
        entry.table = std::make_shared<Table>();
        Table& table = *entry.table;
        const std::string schema(list.Text(1));
        const std::string kind(list.Text(3));
        entry.number = list.Text(0);
        table.name = list.Text(2);
        table.original = Database::Quoted(schema) + "." + Database::Quoted(table.name);
        if (list.Integer(4) == 0) table.name = schema + "." + table.name;
        if (list.Integer(5) == 0) table.problem = "the server refuses to show the rows";
        table.view = kind == "v" || kind == "m";
        entry.inherits = kind == "r" && list.Integer(6) != 0;
        if (list.Integer(6) != 0) entry.rows = PgTable::Rows::Several;
        if (kind == "v" || list.Integer(8) != 0) entry.rows = PgTable::Rows::Elsewhere;
        hasOtherServers_ = hasOtherServers_ || list.Integer(7) != 0;
    }
    return list.Finish(error);
}

bool PgSchema::ReadColumns(Found& found, std::string& error) {
    Statement columns = database_.Prepare(std::string(listed) + columnsSql);
    while (columns.Next()) {
        const auto entry = found.find(columns.Integer(0));
        if (entry == found.end()) continue;
        Table& table = *entry->second.table;
        entry->second.places[columns.Integer(1)] = table.columns.size();
        entry->second.types.emplace_back(columns.Text(4));
        TableColumn& column = table.columns.emplace_back();
        column.name = columns.Text(2);
        column.declaredType = columns.Text(3);
        column.type = TypeOf(columns.Integer(5));
        column.text = columns.Text(6) == "S";
        column.numeric = column.type != ZNBROWSER_DATA_STRING;
        column.notNull = columns.Integer(7) != 0;
        if (columns.Integer(8) != 0) FindTexts(column, columns.Integer(5));
    }
    return columns.Finish(error);
}

bool PgSchema::ReadPrimaryKeys(Found& found, std::string& error) {
    Statement keys = database_.Prepare(std::string(listed) + primaryKeysSql);
    while (keys.Next()) {
        const auto entry = found.find(keys.Integer(0));
        if (entry == found.end()) continue;
        entry->second.key = PlacesOf(entry->second, keys.Text(1));
        int position = 0;
        for (const std::size_t place : entry->second.key)
            entry->second.table->columns[place].primaryKey = ++position;
    }
    return keys.Finish(error);
}

bool PgSchema::ReadForeignKeys(Found& found, std::string& error) {
    Statement keys = database_.Prepare(std::string(listed) + foreignKeysSql);
    while (keys.Next()) {
        const auto from = found.find(keys.Integer(0));
        const auto to = found.find(keys.Integer(1));
        if (from == found.end() || to == found.end()) continue;
        const std::vector<std::size_t> holding = PlacesOf(from->second, keys.Text(2));
        const std::vector<std::size_t> meant = PlacesOf(to->second, keys.Text(3));
        if (holding.empty() || holding.size() != meant.size()) continue;
        const Table& target = *to->second.table;
        from->second.table->foreignKeys.push_back(
            {NamesOf(*from->second.table, holding), target.name, NamesOf(target, meant)});
    }
    return keys.Finish(error);
}

/// Decides what an item of the table is known by.
void PgSchema::NumberRows(PgTable& entry) {
    Table& table = *entry.table;
    table.rows = table.original;
    table.number = "?::bigint";
    if (entry.rows == PgTable::Rows::Elsewhere) {
        table.copied = true;
        std::string key = "znbrowser_row";
        while (table.FindColumn(key)) key += '_';
        table.rows = "pg_temp." + Database::Quoted("znbrowser_rows_" + entry.number);
        return NumberByColumn(table, key);
    }
    const bool isKeyOfAll = !entry.key.empty() && !entry.inherits;
    if (isKeyOfAll && entry.key.size() == 1 && IsWhole(entry.types[entry.key[0]])) {
        table.rowidColumn = entry.key[0];
        NumberByColumn(table, Database::Quoted(table.columns[entry.key[0]].name));
        table.inTable = table.is;
        return;
    }
    std::shared_ptr<RowKeys> keys;
    if (isKeyOfAll) {
        std::vector<std::string> columns;
        std::vector<std::string> types;
        for (const std::size_t place : entry.key) {
            columns.push_back(Database::Quoted(table.columns[place].name));
            types.push_back(entry.types[place]);
        }
        NumberByColumns(table, columns, types);
        table.inTable = table.is;
    } else if (entry.rows == PgTable::Rows::Table) {
        NumberByColumns(table, {"ctid"}, {"tid"});
        table.inBlocks = true;
    } else {
        NumberByColumns(table, {"tableoid", "ctid"}, {"oid", "tid"});
        table.among = "ctid = ANY(?::tid[])"; // whichever table it is in; this is found without a look at all
    }
    std::shared_ptr<RowKeys>& known = keys_[entry.number + " " + table.key];
    const bool byPlace = !isKeyOfAll && entry.rows == PgTable::Rows::Several;
    if (!known) known = std::make_shared<RowKeys>(byPlace);
    table.keys = known;
}

bool PgSchema::Read(Database::Tables& tables, std::string& error) {
    Found found;
    if (!ReadList(found, error) || !ReadColumns(found, error) || !ReadPrimaryKeys(found, error) ||
        !ReadForeignKeys(found, error)) {
        return false;
    }
    tables.clear();
    for (auto& [number, entry] : found) {
        NumberRows(entry);
        Table& table = *entry.table;
        table.FindDisplayColumn();
        table.naming = table.key + "::text";
        if (table.displayColumn) {
            table.naming = "coalesce(nullif(" + Database::Quoted(table.columns[*table.displayColumn].name) +
                           "::text, ''), " + table.naming + ")";
        }
        tables.push_back(entry.table);
    }
    std::sort(tables.begin(), tables.end(), [](const auto& a, const auto& b) { return a->name < b->name; });
    const auto sameName = [](const auto& a, const auto& b) { return a->name == b->name; };
    tables.erase(std::unique(tables.begin(), tables.end(), sameName), tables.end());
    return true;
}

} // namespace znhost
