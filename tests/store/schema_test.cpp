#include "store/row_copies.h"
#include "store/sqlite/sqlite_schema.h"
#include "store/sqlite/temporary_files.h"
#include "store_testing.h"

using namespace znhost;

namespace {

/// Each name with a blank behind it.
template <class List, class Name>
std::string Names(const List& list, Name name) {
    std::string names;
    for (const auto& one : list) names += name(one) + " ";
    return names;
}

std::string TableNames(Schema& schema) {
    return Names(schema.Tables(), [](const Schema::TablePtr& table) { return table->name; });
}

std::string IndexedColumns(const Table& table) {
    return Names(table.columns, [](const TableColumn& column) { return column.indexed ? column.name : "-"; });
}

std::string ForeignKeys(const Table& table) {
    const auto same = [](const std::string& name) { return name; };
    return Names(table.foreignKeys, [&](const ForeignKey& key) {
        return "(" + Names(key.from, same) + "-> " + key.table + " " + Names(key.to, same) + ")";
    });
}

/// The row number and the first value of each row.
std::string RowsOf(Database& database, const Table& table) {
    std::string error;
    RowCopies copies(database);
    if (!copies.Refresh(table, error)) return error;
    return Answer(database, "SELECT " + table.key + ", " + Database::Quoted(table.columns[0].name) +
                                " FROM " + table.rows + " ORDER BY 1");
}

} // namespace

TEST(Schema, DeclaredTypesBecomeDataTypes) {
    const std::pair<ZNBROWSER_DATA_TYPE, std::vector<const char*>> cases[] = {
        {ZNBROWSER_DATA_BOOL, {"BOOLEAN", "bool"}},
        {ZNBROWSER_DATA_INT, {"INTEGER", "unsigned big int", "CHARINT"}},
        {ZNBROWSER_DATA_DOUBLE, {"Real", "DOUBLE PRECISION", "FLOAT"}},
        {ZNBROWSER_DATA_STRING, {"TEXT", "VARCHAR(10)", "REALTEXT", "", "DATE"}},
    };
    for (const auto& [type, declarations] : cases) {
        for (const char* const declared : declarations)
            EXPECT_EQ(TypeOfDeclaration(declared), type) << declared;
    }
}

TEST(Schema, ListsTablesAndViewsByNameAndFollowsChanges) {
    const auto database =
        MemoryDatabase("CREATE TABLE wheel (id INTEGER PRIMARY KEY AUTOINCREMENT);"
                       "CREATE TABLE \"a \"\"b\"\" c\" (x); CREATE TABLE znbrowser_state (x);"
                       "CREATE TABLE znbrowserx (x); CREATE VIEW round AS SELECT * FROM wheel;"
                       "CREATE TEMP TABLE mine (x);");
    Schema schema(*database);
    EXPECT_EQ(TableNames(schema), "a \"b\" c round wheel znbrowserx ");
    const Schema::TablePtr wheel = schema.Find("WHEEL");
    ASSERT_TRUE(wheel);
    ASSERT_EQ(Answer(*database, "ALTER TABLE wheel RENAME TO disc") +
                  Answer(*database, "DROP TABLE znbrowserx"),
              "");
    EXPECT_EQ(TableNames(schema), "a \"b\" c disc round ");
    EXPECT_FALSE(schema.Find("wheel"));
    EXPECT_EQ(wheel->name, "wheel"); // as it was
    Answer(*database, "BEGIN");
    Answer(*database, "CREATE TABLE one (x)");
    EXPECT_TRUE(schema.Find("one"));
    Answer(*database, "ROLLBACK");
    Answer(*database, "CREATE TABLE two (x)");
    EXPECT_TRUE(!schema.Find("one") && schema.Find("two"));
}

TEST(Schema, KnowsTheColumnsKeysAndIndexes) {
    const auto database = MemoryDatabase(
        "CREATE TABLE kind (code TEXT, area TEXT, PRIMARY KEY (area, code)) WITHOUT ROWID;"
        "CREATE TABLE part (id INTEGER PRIMARY KEY, up REFERENCES PART, title TEXT NOT NULL, size REAL,"
        " area, code, other REFERENCES nowhere, odd REFERENCES part (missing), twice AS (size * 2),"
        " FOREIGN KEY (area, code) REFERENCES kind, FOREIGN KEY (title) REFERENCES Maker (NAME));"
        "CREATE TABLE maker (name TEXT UNIQUE, id INT PRIMARY KEY, rowid, Label TEXT);"
        "CREATE INDEX a ON part (up, size); CREATE INDEX b ON part (code) WHERE size > 1;"
        "CREATE INDEX c ON part (size + 1);"
        "CREATE TABLE hidden (rowid, _rowid_, oid); CREATE TABLE plain (size REAL, remark VARCHAR(9));"
        "CREATE TABLE falling (id INTEGER PRIMARY KEY DESC);");
    Schema schema(*database);
    const auto part = schema.Find("part"), kind = schema.Find("kind"), maker = schema.Find("maker");
    EXPECT_EQ(IndexedColumns(*part), "id up - - - - - - - ");
    EXPECT_EQ(IndexedColumns(*maker), "name id - - ");
    EXPECT_EQ(ForeignKeys(*part), "(up -> part id ) (area code -> kind area code ) (title -> maker name ) ");
    EXPECT_TRUE(part->columns[2].notNull && part->columns[2].text && !part->columns[3].notNull);
    EXPECT_TRUE(part->columns[0].numeric && part->columns[3].numeric && !part->columns[2].numeric);
    EXPECT_EQ(kind->columns[0].primaryKey, 2);
    const std::tuple<const char*, const char*, const char*, int> cases[] = {
        {"part", "main.\"part\"", "\"id\"", 2},
        {"maker", "main.\"maker\"", "_rowid_", 0},
        {"plain", "main.\"plain\"", "rowid", 1},
        {"falling", "main.\"falling\"", "rowid", -1},
        {"kind", "temp.\"znbrowser_rows_kind\"", "znbrowser_row", 0},
        {"hidden", "temp.\"znbrowser_rows_hidden\"", "znbrowser_row", -1},
    };
    for (const auto& [name, rows, key, display] : cases) {
        const auto table = schema.Find(name);
        EXPECT_EQ(table->rows, rows);
        EXPECT_EQ(table->key, key) << name;
        EXPECT_EQ(table->displayColumn ? static_cast<int>(*table->displayColumn) : -1, display) << name;
        EXPECT_EQ(table->problem, "") << name;
    }
}

TEST(RowCopies, RowsOfAViewAreNumberedAndFollowTheDatabase) {
    const auto database = MemoryDatabase("CREATE TABLE t (a); INSERT INTO t VALUES ('x'), ('y'), (NULL);"
                                         "CREATE VIEW v AS SELECT a FROM t ORDER BY a DESC;"
                                         "CREATE VIEW w AS SELECT a, a FROM t WHERE a <> 'x';"
                                         "CREATE VIEW broken AS SELECT * FROM gone;");
    Schema schema(*database);
    EXPECT_EQ(RowsOf(*database, *schema.Find("v")), "1,y|2,x|3,");
    EXPECT_EQ(RowsOf(*database, *schema.Find("w")), "1,y");
    EXPECT_EQ(RowsOf(*database, *schema.Find("t")), "1,x|2,y|3,");
    EXPECT_EQ(RowsOf(*database, *schema.Find("broken")), "no such table: main.gone");
    RowCopies copies(*database);
    std::string error;
    const auto changesOfRefresh = [&](const char* name) {
        const std::int64_t before = database->RowsChanged();
        EXPECT_TRUE(copies.Refresh(*schema.Find(name), error)) << error;
        return database->RowsChanged() - before;
    };
    EXPECT_GT(changesOfRefresh("v"), 0);
    EXPECT_GT(changesOfRefresh("w"), 0);
    EXPECT_EQ(changesOfRefresh("v") + changesOfRefresh("w"), 0); // each copy leaves the other one fresh
    for (const char* const sql : {"DELETE FROM t WHERE a IS NULL", "BEGIN", "INSERT INTO t VALUES ('z')"}) {
        ASSERT_EQ(Answer(*database, sql), "");
        EXPECT_GT(changesOfRefresh("v"), 0) << sql;
    }
    EXPECT_EQ(Answer(*database, "SELECT a FROM temp.znbrowser_rows_v"), "z|y|x");
    ASSERT_EQ(Answer(*database, "ROLLBACK"), "");
    EXPECT_GT(changesOfRefresh("v"), 0);
    EXPECT_EQ(Answer(*database, "SELECT a FROM temp.znbrowser_rows_v"), "y|x");
    Answer(*database, "DROP VIEW v");
    Answer(*database, "CREATE VIEW v AS SELECT 1 AS other, a FROM t");
    EXPECT_GT(changesOfRefresh("v"), 0);
    EXPECT_EQ(Answer(*database, "SELECT * FROM temp.znbrowser_rows_v"), "1,1,x|2,1,y");
}

TEST(RowCopies, ColumnsMayBearTheNamesOfTheRowNumber) {
    const char* const names = "(rowid TEXT, _rowid_ TEXT, oid TEXT, znbrowser_row";
    const std::pair<const char*, std::string> cases[] = {
        {"plain", std::string("CREATE TABLE plain ") + names + ")"},
        {"keyed", std::string("CREATE TABLE keyed ") + names + ", PRIMARY KEY (oid))"},
        {"withoutRows",
         std::string("CREATE TABLE withoutRows ") + names + ", PRIMARY KEY (oid)) WITHOUT ROWID"},
        {"numbered", std::string("CREATE TABLE numbered ") + names + ", id INTEGER PRIMARY KEY)"},
    };
    for (const auto& [name, creation] : cases) {
        const std::string table = name;
        const auto database =
            MemoryDatabase(creation + "; INSERT INTO " + table +
                           "(rowid, _rowid_, oid) VALUES ('a', 'b', 'c'), ('7', 'e', 'f');" +
                           "CREATE VIEW seen AS SELECT * FROM " + table);
        Schema schema(*database);
        EXPECT_EQ(RowsOf(*database, *schema.Find(table)), "1,a|2,7") << name;
        EXPECT_EQ(RowsOf(*database, *schema.Find("seen")), "1,a|2,7") << name;
    }
}

TEST(RowCopies, WhatIsTooLargeIsNotReadAgainBeforeSomethingChanges) {
    const std::int64_t limit = TemporaryFiles::Limit();
    const auto database = MemoryDatabase(
        "CREATE TABLE t (i); INSERT INTO t VALUES (1);"
        "CREATE VIEW a AS WITH RECURSIVE n(i) AS (SELECT i FROM t UNION ALL SELECT i + 1 FROM n) "
        "SELECT i, hex(zeroblob(500)) FROM n; CREATE VIEW b AS SELECT * FROM a;");
    Schema schema(*database);
    RowCopies copies(*database);
    std::string error;
    int asked = 0;
    database->SetWhyStop([&asked] { return ++asked, std::string_view(); });
    TemporaryFiles::SetLimit(8 << 20);
    const auto isRead = [&](const char* name) {
        error.clear();
        asked = 0;
        EXPECT_FALSE(copies.Refresh(*schema.Find(name), error));
        EXPECT_EQ(error, "it needs too large a temporary file: the limit is 8388608 bytes");
        return asked > 0;
    };
    EXPECT_TRUE(isRead("a") && isRead("b"));
    EXPECT_FALSE(isRead("a") || isRead("b"));
    ASSERT_EQ(Answer(*database, "INSERT INTO t VALUES (2)"), "");
    EXPECT_TRUE(isRead("a"));
    ASSERT_EQ(Answer(*database, "DELETE FROM t"), "");
    EXPECT_TRUE(copies.Refresh(*schema.Find("a"), error)) << error;
    TemporaryFiles::SetLimit(limit);
}

TEST(RowCopies, RowsWithAKeyKeepTheirNumbers) {
    const auto database =
        MemoryDatabase("CREATE TABLE t (k TEXT COLLATE NOCASE, n INT, v, PRIMARY KEY (k, n)) WITHOUT ROWID;"
                       "INSERT INTO t VALUES ('b', 1, 'one'), ('d', 1, 'two'), ('f', 1, 'three');"
                       "CREATE TABLE all_key (k PRIMARY KEY) WITHOUT ROWID; INSERT INTO all_key VALUES (2);");
    Schema schema(*database);
    RowCopies copies(*database);
    std::string error;
    ASSERT_TRUE(copies.Refresh(*schema.Find("t"), error) && copies.Refresh(*schema.Find("all_key"), error))
        << error;
    const auto script = "INSERT INTO t VALUES ('a', 1, 'new'); DELETE FROM t WHERE k = 'd';"
                        "UPDATE t SET v = 'changed' WHERE k = 'f'; UPDATE t SET k = 'B' WHERE k = 'b';"
                        "INSERT INTO all_key VALUES (1);";
    ASSERT_TRUE(database->RunScript(script, error)) << error;
    Answer(*database, "CREATE TABLE unrelated (x)");
    ASSERT_TRUE(copies.Refresh(*schema.Find("t"), error) && copies.Refresh(*schema.Find("all_key"), error))
        << error;
    EXPECT_EQ(Answer(*database, "SELECT rowid, k, v FROM temp.znbrowser_rows_t ORDER BY k COLLATE NOCASE"),
              "4,a,new|5,B,one|3,f,changed");
    EXPECT_EQ(Answer(*database, "SELECT rowid, k FROM temp.znbrowser_rows_all_key"), "1,2|2,1");
}

TEST(Gearbox, IsSoundAndUnderstood) {
    const char* const file =
        "examples/models/gearbox.db"; // made by the build, in whose directory the tests run
    ASSERT_TRUE(std::filesystem::exists(file));
    std::string error;
    const auto database = Database::OpenFile(file, error);
    ASSERT_TRUE(database) << error;
    EXPECT_EQ(Answer(*database, "PRAGMA foreign_key_check") + Answer(*database, "PRAGMA integrity_check"),
              "ok");
    Schema schema(*database);
    EXPECT_EQ(TableNames(schema), "assembly feature heavy_part material part part_material supplier ");
    EXPECT_EQ(ForeignKeys(*schema.Find("assembly")), "(parent_id -> assembly id ) ");
    EXPECT_EQ(ForeignKeys(*schema.Find("part")),
              "(assembly_id -> assembly id ) (material_id -> material id ) (supplier_id -> supplier id ) ");
    EXPECT_FALSE(schema.Find("part")->columns[3].indexed);
    EXPECT_EQ(RowsOf(*database, *schema.Find("heavy_part")),
              Answer(*database, "SELECT row_number() OVER (), id "
                                "FROM heavy_part"));
}
