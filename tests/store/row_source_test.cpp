// The rows of data sources as the windows ask for them.
#include "host_testing.h"
#include "store_testing.h"

#include "host/znBrowserDataItems.h"

namespace znhost {
namespace {

class RowSourceTest : public DataHost {
protected:
    std::string Below(const RowLink& link, std::int64_t parent) {
        RowQuery query;
        query.link = &link;
        query.parent = parent;
        const std::string rows = List(SourceOf(*link.child), query);
        EXPECT_EQ(SourceOf(*link.child).HasChildren(link, parent), !rows.empty());
        return rows;
    }
    std::string Top(const RowLink& link) {
        RowQuery query;
        query.link = &link;
        query.top = true;
        return List(SourceOf(*link.child), query);
    }
    std::string Above(const RowLink& link, const std::vector<std::int64_t>& children) {
        std::vector<std::int64_t> parents;
        SourceOf(*link.child).Parents(link, children, parents);
        return Joined(parents);
    }
    std::string Where(RowCondition::Compare compare, const char* property, const char* value) {
        RowQuery query;
        query.conditions.emplace_back();
        query.conditions[0].property = property ? Source("part").FindProperty(property) : nullptr;
        query.conditions[0].compare = compare;
        query.conditions[0].value = value;
        query.conditions[0].accept = [value](std::string_view text) { return text == value; };
        return List(Source("part"), query);
    }
    std::string Sorted(const char* property, bool descending) {
        RowQuery query;
        query.order = {true, property ? Source("part").FindProperty(property) : nullptr, descending};
        return List(Source("part"), query);
    }
};

TEST_F(RowSourceTest, LinksLeadDownAndUpWithAndWithoutAnIndex) {
    const RowLink nested = Link("assembly", "assembly", "assembly.parent");
    EXPECT_EQ(Below(nested, 1), "2 3");
    EXPECT_EQ(Below(nested, 4), "");
    EXPECT_EQ(Top(nested), "1");
    EXPECT_EQ(Above(nested, {4, 3, 2}), "1 3");
    const RowLink parts = Link("assembly", "part", "part.assembly");
    EXPECT_EQ(Below(parts, 2), "10 11");
    EXPECT_EQ(Top(parts), "13");
    EXPECT_EQ(Above(parts, {10, 11, 13}), "2");
    Sql("UPDATE part SET assembly = 1 WHERE id = 11");
    EXPECT_EQ(Below(parts, 2), "10");
    EXPECT_EQ(Below(parts, 1), "11");
    Sql("UPDATE part SET assembly = 99 WHERE id = 11"); // leads nowhere
    EXPECT_EQ(Top(parts), "11 13");
}

TEST_F(RowSourceTest, TheKeyMayLieInTheParentsTable) {
    const RowLink link = Link("part", "assembly", "part.assembly");
    EXPECT_EQ(Below(link, 12), "4");
    EXPECT_EQ(Below(link, 13), "");
    EXPECT_EQ(Top(link), "2 4"); // what some part refers to
    EXPECT_EQ(Above(link, {2}), "10 11");
}

TEST_F(RowSourceTest, ManyRowsAreLookedForAtOnce) {
    Sql("WITH RECURSIVE n (i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n LIMIT 1000) "
        "INSERT INTO part SELECT i, i % 2 + 1, 'part ' || i, i, 0 FROM n");
    std::vector<std::int64_t> rows;
    Source("part").List({}, rows);
    EXPECT_EQ(Above(Link("assembly", "part", "part.assembly"), rows), "1 2 4");
}

TEST_F(RowSourceTest, ConditionsCompareNumbersAsNumbersAndNothingWithNothing) {
    using Compare = RowCondition::Compare;
    EXPECT_EQ(Where(Compare::Equal, "mass", "2.00"), "11");
    EXPECT_EQ(Where(Compare::Less, "mass", "10"), "10 11");
    EXPECT_EQ(Where(Compare::More, "mass", "2"), "13");
    EXPECT_EQ(Where(Compare::Equal, "name", "cover"), "11"); // letter case aside
    EXPECT_EQ(Where(Compare::Equal, "name", "cove"), "");
    EXPECT_EQ(Where(Compare::Accept, "ok", "1"), "10 13");
    EXPECT_EQ(Where(Compare::Accept, nullptr, "ball"), "12");
}

TEST_F(RowSourceTest, RowsAreSortedByColumnTextAndComputedValue) {
    EXPECT_EQ(Sorted("mass", false), "12 10 11 13");
    EXPECT_EQ(Sorted("mass", true), "13 11 10 12");
    EXPECT_EQ(Sorted("ok", true), "10 13 11 12"); // equal ones in the order of the source
    EXPECT_EQ(Sorted(nullptr, false), "12 10 11 13");
    Eval("proc last {item} {string index [lindex $item 1] end}");
    ASSERT_TRUE(Source("part").CreateDataPropertyScript("last", "last"));
    EXPECT_EQ(Sorted("last", true), "13 12 11 10");
    EXPECT_EQ(Where(RowCondition::Compare::Equal, "last", "1"), "11");
}

TEST_F(RowSourceTest, ACustomSourceKeepsTheRowsOfItsTablesApart) {
    Sql("INSERT INTO assembly VALUES (-7, 1, 'odd')");
    SimpleSource& both = Custom("both", {"part", "assembly"});
    std::vector<std::int64_t> rows;
    both.List({}, rows);
    ASSERT_EQ(rows.size(), 9U);
    std::string names;
    std::string text;
    for (const std::int64_t row : rows) {
        EXPECT_TRUE(both.HasRow(row));
        EXPECT_TRUE(both.GetText(row, text));
        names += text + " ";
    }
    EXPECT_EQ(names, "bolt Cover ball spare odd gearbox case shaft bearing ");
    EXPECT_TRUE(both.Missing(rows).empty());
    Sql("DELETE FROM assembly WHERE id = -7");
    EXPECT_EQ(both.Missing(rows), std::vector<std::int64_t>{rows[4]});
    both.DisconnectBase(&Source("part"));
    EXPECT_EQ(both.Missing(rows).size(), 5U);
    EXPECT_FALSE(both.HasRow(rows[0]));
    EXPECT_TRUE(both.HasRow(rows[8])); // its number stays with it
    EXPECT_FALSE(both.GetText(-1, text));
}

TEST_F(RowSourceTest, BooleansAreWrittenOrTheReasonIsGiven) {
    SimpleSource& part = Source("part");
    EXPECT_TRUE(part.WriteBoolean(*part.FindProperty("ok"), 11, true, error)) << error;
    EXPECT_EQ(Answer(Control().Db(), "SELECT ok FROM part WHERE id = 11"), "1");
    EXPECT_FALSE(part.WriteBoolean(*part.FindProperty("ok"), 77, true, error));
    EXPECT_EQ(error, "the item does not exist any more");
    ASSERT_TRUE(part.CreateDataPropertyScript("s", "s"));
    EXPECT_FALSE(part.WriteBoolean(*part.FindProperty("s"), 11, true, error));
    Sql("CREATE VIEW checked AS SELECT id, ok FROM part");
    EXPECT_FALSE(Source("checked").WriteBoolean(*Source("checked").FindProperty("ok"), 1, true, error));
    EXPECT_EQ(error, "only a column of a table can be changed");
    Sql("CREATE TABLE keyed (code TEXT PRIMARY KEY, ok BOOLEAN) WITHOUT ROWID");
    Sql("INSERT INTO keyed VALUES ('a', 0), ('b', 0)");
    EXPECT_TRUE(Source("keyed").WriteBoolean(*Source("keyed").FindProperty("ok"), 2, true, error)) << error;
    EXPECT_EQ(Answer(Control().Db(), "SELECT code FROM keyed WHERE ok"), "b");
    Sql("CREATE TABLE hiding (rowid TEXT PRIMARY KEY, _rowid_, oid, ok BOOLEAN)");
    Sql("INSERT INTO hiding VALUES ('a', 2, 2, 0), ('b', 1, 1, 0)");
    EXPECT_TRUE(Source("hiding").WriteBoolean(*Source("hiding").FindProperty("ok"), 2, true, error)) << error;
    EXPECT_EQ(Answer(Control().Db(), "SELECT rowid FROM hiding WHERE ok"), "b");
}

TEST_F(RowSourceTest, ItemsMoveTogetherOrNotAtAll) {
    const RowLink parts = Link("assembly", "part", "part.assembly");
    EXPECT_TRUE(Source("part").MoveBelow(parts, {12, 13}, 2, error)) << error;
    EXPECT_EQ(Below(parts, 2), "10 11 12 13");
    EXPECT_FALSE(Source("part").MoveBelow(parts, {10, 77}, 3, error));
    EXPECT_EQ(Below(parts, 3), "");
    const RowLink nested = Link("assembly", "assembly", "assembly.parent");
    EXPECT_FALSE(Source("assembly").MoveBelow(nested, {3}, 4, error));
    EXPECT_EQ(error, "an item cannot be moved below itself");
    EXPECT_TRUE(Source("assembly").MoveBelow(nested, {4}, 2, error)) << error;
    EXPECT_EQ(Below(nested, 2), "4");
    const RowLink up = Link("part", "assembly", "part.assembly");
    EXPECT_FALSE(Source("assembly").MoveBelow(up, {1}, 10, error)); // the parts hold the key
}

TEST_F(RowSourceTest, CirclesInTheDataEnd) {
    Sql("UPDATE assembly SET parent = 4 WHERE id = 1");
    ASSERT_TRUE(Control().CreateDataSourceHierarchical("tree", false, false, "", ""));
    HierarchicalSource& tree = *Control().FindHierarchical("tree");
    ASSERT_TRUE(tree.SetParent("assembly"));
    ASSERT_TRUE(tree.AddChild("part", ""));
    znBrowserDataItems items;
    tree.GetDataItems(nullptr, items, false, true);
    EXPECT_EQ(items.Size(), 0U); // nothing in a circle is at the top
    const znBrowserDataItem gearbox{&Source("assembly"), 1};
    tree.GetDataItems(&gearbox, items, false, true);
    EXPECT_EQ(Joined(items.rows), "2 10 11 3 4 12");
    EXPECT_FALSE(
        Source("assembly").MoveBelow(Link("assembly", "assembly", "assembly.parent"), {2}, 2, error));
}

TEST_F(RowSourceTest, ALockedDatabaseReadsAsNoRowsAndRefusesWithItsReason) {
    const TemporaryDirectory directory;
    ASSERT_TRUE(Open("file", directory.File("a.db"))) << error;
    std::string reason;
    ASSERT_TRUE(Control("file").Db().RunScript(smallModel, reason)) << reason;
    SimpleSource& part = *Control("file").FindSimple("part");
    const auto other = Database::OpenFile(directory.File("a.db"), reason);
    ASSERT_TRUE(other->Execute("BEGIN EXCLUSIVE", reason)) << reason;
    EXPECT_EQ(List(part), "");
    EXPECT_STREQ(part.GetError(), "database is locked");
    EXPECT_FALSE(part.WriteBoolean(*part.FindProperty("ok"), 11, true, error));
    EXPECT_EQ(App().Log().Error(), "database is locked");
    ASSERT_TRUE(other->Execute("COMMIT", reason)) << reason;
    EXPECT_EQ(List(part), "10 11 12 13");
}

} // namespace
} // namespace znhost
