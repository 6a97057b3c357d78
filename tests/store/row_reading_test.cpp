// The ways in which many rows are read at once give what one look after the other gives.
#include "host_testing.h"

#include "base/change_count.h"
#include "store/sort_keys.h"

#include <random>

namespace znhost {
namespace {

class RowReadingTest : public DataHost {
protected:
    std::vector<std::int64_t> Rows(SimpleSource& source, const RowQuery& query = {}) {
        std::vector<std::int64_t> rows;
        source.List(query, rows);
        return rows;
    }
    RowOrder By(SimpleSource& source, const char* property, bool descending) {
        return {true, property ? source.FindProperty(property) : nullptr, descending};
    }
    /// What lies below all items of the link's parent source, read at once and one by one.
    void ExpectGroupsBy(const RowOrder& order, const RowLink& link) {
        const std::vector<std::int64_t> parents = Rows(SourceOf(*link.parent));
        RowGroups groups;
        ASSERT_TRUE(link.child->ListBelow(link, parents, order, groups));
        ASSERT_EQ(groups.ends.size(), parents.size());
        std::size_t begin = 0;
        for (std::size_t i = 0; i < parents.size(); ++i) {
            RowQuery query;
            query.link = &link;
            query.parent = parents[i];
            query.order = order;
            const auto at = groups.rows.begin();
            const std::vector<std::int64_t> group(at + static_cast<std::ptrdiff_t>(begin),
                                                  at + static_cast<std::ptrdiff_t>(groups.ends[i]));
            EXPECT_EQ(Joined(group), Joined(Rows(SourceOf(*link.child), query))) << parents[i];
            begin = groups.ends[i];
        }
        EXPECT_EQ(begin, groups.rows.size());
    }
    void ExpectGroups(const RowLink& link, std::initializer_list<const char*> properties) {
        ExpectGroupsBy({}, link);
        for (const bool descending : {false, true}) {
            ExpectGroupsBy(By(SourceOf(*link.child), nullptr, descending), link);
            for (const char* const property : properties)
                ExpectGroupsBy(By(SourceOf(*link.child), property, descending), link);
        }
    }
};

TEST_F(RowReadingTest, WhatLiesBelowManyRowsIsWhatLiesBelowEach) {
    Sql("INSERT INTO part SELECT id + 100, assembly, upper(name), 11 - id, ok FROM part");
    Sql("CREATE TABLE bearing (id INTEGER PRIMARY KEY, parent REFERENCES assembly, name TEXT)");
    Sql("INSERT INTO bearing VALUES (1, 3, 'ball'), (2, 1, 'needle'), (3, 3, 'Axle'), (4, 77, 'lost')");
    ExpectGroups(Link("assembly", "assembly", "assembly.parent"), {"id"});
    ExpectGroups(Link("assembly", "part", "part.assembly"), {"mass", "ok", "name"});
    ExpectGroups(Link("part", "assembly", "part.assembly"), {"id"});
    Sql("CREATE INDEX by_assembly ON part (assembly, name)"); // whose rows are not in the order of their
                                                              // numbers
    ExpectGroups(Link("assembly", "part", "part.assembly"), {"mass", "ok", "name"});
    Sql("CREATE INDEX bearings ON bearing (parent)");
    SimpleSource& both = Custom("both", {"assembly", "bearing"});
    ExpectGroups({&both, &both, Control().FindReference("assembly.parent")}, {});
    ExpectGroups({&both, &both, Control().FindReference("bearing.parent")}, {});
}

TEST_F(RowReadingTest, KeysOfTextsAndOfSeveralColumnsLeadBelowManyRows) {
    Sql("CREATE TABLE place (code TEXT COLLATE NOCASE, floor, name TEXT, UNIQUE (code, floor), UNIQUE "
        "(code))");
    Sql("CREATE TABLE thing (name TEXT, code REFERENCES place (code), floor, FOREIGN KEY (code, floor) "
        "REFERENCES "
        "place (code, floor))");
    Sql("CREATE INDEX things ON thing (code, floor)");
    Sql("INSERT INTO place VALUES ('a', 1, 'x'), ('B', 2, 'y'), (NULL, 3, 'z'), ('7', '7', 's')");
    Sql("INSERT INTO thing VALUES ('one', 'a', 1), ('two', 'A', 1), ('three', 'b', 2), ('four', NULL, 3), "
        "('five', 7, 7), ('six', 'a', 2)");
    for (const char* const reference : {"thing.code", "thing.code#2"})
        ExpectGroups(Link("place", "thing", reference), {"name", "floor"});
}

/// Values of all kinds, with equals among them.
std::string RandomValue(std::mt19937& random) {
    const auto below = [&random](int limit) {
        return std::uniform_int_distribution<int>(0, limit - 1)(random);
    };
    switch (below(6)) {
    case 0: return "NULL";
    case 1: return std::to_string(below(5));
    case 2: return std::to_string(below(5)) + ".5";
    case 3: return "'" + std::string(1, static_cast<char>('a' + below(3))) + "'";
    case 4:
        return "'" + std::string(1, static_cast<char>('A' + below(3))) + "bcdefghijk" +
               std::to_string(below(3)) + "'";
    default: return below(2) ? "'Ä'" : "x'6162'";
    }
}

// The same rows stand in two tables, one with an index on each column.
TEST_F(RowReadingTest, AnIndexGivesTheOrderThatSortingGives) {
    const std::string columns =
        " (id INTEGER PRIMARY KEY, anything, whole INTEGER, real REAL, text TEXT, plain TEXT)";
    Sql("CREATE TABLE bare" + columns);
    std::mt19937 random(7);
    for (int i = 0; i < 300; ++i) {
        std::string values = std::to_string(i * 3 % 301);
        for (int column = 0; column < 4; ++column) values += ", " + RandomValue(random);
        Sql("INSERT INTO bare VALUES (" + values + ", 'text ' || " + std::to_string(i * 7 % 100) + ")");
    }
    Sql("CREATE TABLE indexed" + columns);
    Sql("INSERT INTO indexed SELECT * FROM bare");
    for (const char* const column : {"anything", "whole", "real", "text", "plain"}) {
        Sql("CREATE INDEX by_" + std::string(column) + " ON indexed (" + column + ")");
        for (const bool descending : {false, true}) {
            RowQuery bare;
            RowQuery indexed;
            bare.order = By(Source("bare"), column, descending);
            indexed.order = By(Source("indexed"), column, descending);
            const std::vector<std::int64_t> rows = Rows(Source("bare"), bare);
            EXPECT_EQ(Joined(Rows(Source("indexed"), indexed)), Joined(rows)) << column << descending;
            std::vector<std::int64_t> some(rows.rbegin(), rows.rend());
            EXPECT_TRUE(Source("bare").SortRows(bare.order, some));
            EXPECT_EQ(Joined(some), Joined(rows)) << column << descending;
        }
    }
}

TEST_F(RowReadingTest, RowsNumberedWithoutAGapAreAllThere) {
    for (const char* const change :
         {"DELETE FROM part WHERE id = 13", "DELETE FROM part WHERE id = 11",
          "INSERT INTO part (id) VALUES (-3), (9223372036854775807)", "DELETE FROM part"}) {
        Sql(change);
        std::string rows;
        std::vector<std::vector<std::string>> read;
        EXPECT_TRUE(Control().RunSql("SELECT group_concat(id, ' ') FROM (SELECT id FROM part ORDER BY id)",
                                     {}, read, error));
        EXPECT_EQ(List(Source("part")), read[0][0]) << change;
    }
}

TEST(SortKeysTest, LargeIntegersAndRealsAreComparedExactly) {
    constexpr std::int64_t large = 9007199254740993; // has no equal among the reals
    SortKeys keys;
    std::vector<std::int64_t> rows;
    for (const Value& value :
         {Value("b"), Value(large), Value(1e19), Value(-1e300), Value(large - 1), Value(),
          Value(9007199254740992.0), Value("A"), Value(2.5), Value(std::int64_t{2})}) {
        rows.push_back(static_cast<std::int64_t>(rows.size()));
        keys.Add(value);
    }
    keys.Sort(rows, 0, rows.size(), false, true);
    EXPECT_EQ(rows, (std::vector<std::int64_t>{5, 3, 9, 8, 4, 6, 1, 2, 7, 0}));
}

TEST(SortKeysTest, SortingManyRowsPausesNowAndThen) {
    constexpr std::int64_t count = 100000;
    SortKeys keys;
    std::vector<std::int64_t> rows;
    for (std::int64_t row = 0; row < count; ++row) {
        rows.push_back(row);
        keys.Add(Value(row * 7919 % count));
    }
    int pauses = 0;
    keys.Sort(rows, 0, rows.size(), false, true, [&pauses] { ++pauses; });
    EXPECT_GT(pauses, 5);
    EXPECT_EQ(rows[1] * 7919 % count, 1);
}

class JournalTest : public DataHost {
protected:
    /// The rows of "part" that a statement changes; "?" when they are not known.
    std::string Changed(const std::string& statement) {
        const std::uint64_t before = ChangeCount::Now();
        Sql(statement);
        std::vector<std::int64_t> rows;
        return Source("part").ChangedRows(before, rows) ? Joined(rows) : "?";
    }
};

TEST_F(JournalTest, ChangedRowsAreKnownOrKnownToBeUnknown) {
    Sql("CREATE TABLE log (id INTEGER PRIMARY KEY)");
    Sql("UPDATE part SET ok = 0"); // others may have changed everything before
    EXPECT_EQ(Changed("SELECT 1"), "");
    EXPECT_EQ(Changed("UPDATE part SET ok = 1 WHERE id = 11"), "11");
    EXPECT_EQ(Changed("INSERT INTO log VALUES (5)"), "");
    EXPECT_EQ(Changed("UPDATE part SET id = 20 WHERE id = 11"), "11 20");
    EXPECT_EQ(Changed("INSERT OR REPLACE INTO part (id) VALUES (20)"), "20 20");
    EXPECT_EQ(Changed("DELETE FROM part WHERE id > 12"), "13 20");
    EXPECT_EQ(Changed("DELETE FROM part"), "10 12");
    EXPECT_EQ(Changed("INSERT INTO part (id) VALUES (1), (2)"), "1 2");
    EXPECT_EQ(Changed("WITH n (i) AS (SELECT 5 UNION ALL SELECT i + 1 FROM n LIMIT 1000) INSERT INTO part "
                      "(id) SELECT i FROM n"),
              "?");
    EXPECT_EQ(Changed("UPDATE part SET ok = 1 WHERE id = 2"), "2");
    Sql("BEGIN");
    EXPECT_EQ(Changed("UPDATE part SET ok = 0 WHERE id = 2"), "2");
    EXPECT_EQ(Changed("ROLLBACK"), "?");
    EXPECT_EQ(Changed("ALTER TABLE part ADD COLUMN more"), "?");
}

} // namespace
} // namespace znhost
