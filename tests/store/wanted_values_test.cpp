// Rows found by the values that are wanted: an index gives what a look at each row gives.
#include "host_testing.h"

#include "store/wanted_values.h"

namespace znhost {
namespace {

constexpr const char* stored[] = {"5",
                                  "5.0",
                                  "'5'",
                                  "' 5'",
                                  "'+5'",
                                  "'5.0'",
                                  "100",
                                  "'1e2'",
                                  "0.1 + 0.2",
                                  "0.3",
                                  "-0.0",
                                  "0",
                                  "'0x10'",
                                  "'abc'",
                                  "'ABC'",
                                  "'abc '",
                                  "''",
                                  "x''",
                                  "x'35'",
                                  "x'352e30'",
                                  "9e999",
                                  "'inf'",
                                  "'nan'",
                                  "1e-300",
                                  "NULL",
                                  "4.9e-324",
                                  "true",
                                  "'a'||char(0)||'b'",
                                  "9007199254740993",
                                  "9007199254740992.0",
                                  "-9223372036854775808",
                                  "'12345678901234567890123'"};
constexpr std::string_view wanted[] = {"5",
                                       "5.0",
                                       " 5",
                                       "+5",
                                       "100",
                                       "1e2",
                                       "0.3",
                                       "0.30000000000000004",
                                       "0",
                                       "-0.0",
                                       "0x10",
                                       "abc",
                                       "ABC",
                                       "abc ",
                                       "",
                                       "Inf",
                                       "inf",
                                       "nan",
                                       "1e-300",
                                       "1e999",
                                       "1",
                                       "true",
                                       std::string_view("a\0b", 3),
                                       "9007199254740993",
                                       "9.00719925474099e+15",
                                       "-9223372036854775808",
                                       "1.23456789012346e+22"};

class WantedValuesTest : public DataHost {
protected:
    std::string Rows(const char* property, const std::vector<znString>& values, bool numbers, bool byIndex) {
        RowQuery query;
        query.conditions.emplace_back();
        const auto all = std::make_shared<WantedValues>(values, numbers);
        query.conditions[0].property = Source("t").FindProperty(property);
        query.conditions[0].accept = [all](std::string_view text) { return all->Has(text); };
        if (byIndex) query.conditions[0].wanted = all;
        return List(Source("t"), query);
    }
};

TEST_F(WantedValuesTest, AnIndexFindsWhatALookAtEachRowFinds) {
    std::vector<std::vector<znString>> lists{{}};
    for (const std::string_view value : wanted) lists.push_back({value});
    lists.emplace_back(std::begin(wanted), std::end(wanted));
    std::size_t found = 0;
    for (const char* const type : {"INTEGER", "REAL", "BOOLEAN", "NUMERIC", "DECIMAL(9)", "TEXT", "BLOB", "",
                                   "TEXT COLLATE NOCASE", "COLLATE RTRIM", "ANY"}) {
        Sql("DROP TABLE IF EXISTS t");
        Sql(std::string("CREATE TABLE t (v ") + type + ")");
        Sql("CREATE INDEX by_v ON t (v)");
        for (const char* const value : stored) Sql(std::string("INSERT INTO t VALUES (") + value + ")");
        for (const std::vector<znString>& list : lists) {
            for (const bool numbers : {false, true}) {
                const std::string rows = Rows("v", list, numbers, false);
                EXPECT_EQ(Rows("v", list, numbers, true), rows)
                    << type << " " << (list.empty() ? "" : list.front().c_str()) << " " << numbers;
                found += rows.size();
            }
        }
    }
    EXPECT_GT(found, 1000U);
}

TEST_F(WantedValuesTest, EveryRowIsLookedAtOnlyWhereAnIndexCannotTell) {
    TableColumn column;
    const auto byIndex = [&](const char* value, bool numbers) {
        return !WantedValues({znString(value)}, numbers).LookupsIn(column).empty();
    };
    EXPECT_FALSE(byIndex("5", false));
    column.indexed = true;
    EXPECT_TRUE(byIndex("5", false));
    EXPECT_FALSE(byIndex("5", true)); // a text "5.0" would be taken
    column.numeric = true;
    EXPECT_TRUE(byIndex("5", true));
    EXPECT_FALSE(byIndex("inf", true));
}

TEST_F(WantedValuesTest, AnIndexServesRowNumbersCriteriaAndSeveralTables) {
    Sql("CREATE INDEX by_name ON assembly (name)");
    SimpleSource& both = Custom("both", {"part", "assembly"});
    ASSERT_TRUE(both.CreateDataPropertyAttribute("id", ZNBROWSER_DATA_INT, 0, 0));
    ASSERT_TRUE(both.CreateCriteria("c"));
    znIBrowserCriteria& criteria = *both.GetCriteriaList()->FindCriteria("c");
    ASSERT_TRUE(criteria.SetCode("id <> ?"));
    criteria.SetIntValues({11});
    RowQuery query;
    query.conditions.emplace_back();
    const auto ids = std::make_shared<WantedValues>(std::vector<znString>{"11", "12", "3.0"}, true);
    query.conditions[0] = {both.FindProperty("id"),
                           RowCondition::Compare::Accept,
                           "",
                           [ids](std::string_view text) { return ids->Has(text); },
                           "",
                           ids};
    std::vector<std::int64_t> rows;
    both.List(query, rows);
    std::string names;
    std::string text;
    for (const std::int64_t row : rows) names += both.GetText(row, text) ? text + " " : "? ";
    EXPECT_EQ(names, "ball shaft ");
}

} // namespace
} // namespace znhost
