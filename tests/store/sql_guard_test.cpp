#include "store/sqlite/sql_guard.h"
#include "store/sqlite/sqlite_database.h"
#include "store_testing.h"

using namespace znhost;

namespace {

struct Case {
    std::string code;
    std::string reason;
};

class SqlGuard : public testing::Test {
protected:
    std::unique_ptr<Database> database_ =
        MemoryDatabase("CREATE TABLE part (id INTEGER PRIMARY KEY, name TEXT, mass REAL, \"a ) -- b\" INT);"
                       "INSERT INTO part VALUES (1, 'bolt', 0.1, 5);"
                       "CREATE VIEW chain AS WITH RECURSIVE n (i) AS (VALUES (1) UNION SELECT i + 1 FROM n"
                       " WHERE i < 5) SELECT i FROM n;");

    void ExpectRefused(const std::vector<Case>& cases) {
        for (const Case& one : cases) {
            int parameters = -1;
            std::string error;
            EXPECT_FALSE(CheckExpression(static_cast<SqliteDatabase&>(*database_), "part", one.code,
                                         parameters, error))
                << one.code;
            EXPECT_EQ(error, one.reason) << one.code;
            EXPECT_EQ(parameters, -1);
        }
    }
};

} // namespace

TEST_F(SqlGuard, AcceptsConditionsAndCountsTheirParameters) {
    const std::pair<const char*, int> cases[] = {
        {"mass > 1", 0},
        {"mass BETWEEN ? AND ?", 2},
        {"(name LIKE ? OR part.mass IS NULL) AND NOT (id IN (?, ?))", 3},
        {"name = 'a ; b -- c /* ) ('", 0},
        {"name = 'it''s' AND \"a ) -- b\" > 1 AND [a ) -- b] > - 1 AND `a ) -- b` / 2 < 9", 0},
        {"name = '?' AND id = ?", 1},
        {"id IN (SELECT max(id) FROM part GROUP BY name) OR EXISTS (SELECT i FROM chain WHERE i = id)", 0},
        {"abs(round(mass, 2)) < 3 OR upper(name) GLOB 'B*'", 0},
        {"name = 'ÄÖ山'", 0},
    };
    for (const auto& [code, count] : cases) {
        int parameters = -1;
        std::string error;
        EXPECT_TRUE(
            CheckExpression(static_cast<SqliteDatabase&>(*database_), "PART", code, parameters, error))
            << code << ": " << error;
        EXPECT_EQ(parameters, count) << code;
    }
    int parameters = -1;
    std::string error;
    EXPECT_TRUE(
        CheckExpression(static_cast<SqliteDatabase&>(*database_), "chain", "i = ?", parameters, error))
        << error;
}

TEST_F(SqlGuard, RefusesWhatLeavesTheParentheses) {
    ExpectRefused({
        {"1) OR (1", "a parenthesis is closed that was not opened"},
        {"mass > (1", "a parenthesis is not closed"},
        {"1; DELETE FROM part", "it holds more than one statement"},
        {"1 -- and the rest", "it holds a comment"},
        {"1 /* and the rest", "it holds a comment"},
        {"name = 'open", "a quote is not closed"},
        {"[name = 1", "a quote is not closed"},
        {"", "it is empty"},
        {" \n", "it is empty"},
        {std::string("1\0 = 2", 6), "it holds a NUL character"},
        {std::string("name = '\0'", 10), "it holds a NUL character"},
        {"id = ?1", "parameters have no numbers, use ? alone"},
        {"id = :id", "parameters have no names, use ? alone"},
        {"id = @id OR 1", "parameters have no names, use ? alone"},
        {"id = $id", "parameters have no names, use ? alone"},
        {"1 ORDER BY 1", "near \"ORDER\": syntax error"},
        {"DELETE FROM part", "near \"DELETE\": syntax error"},
    });
}

TEST_F(SqlGuard, RefusesWhatIsNoConditionOnTheTable) {
    ExpectRefused({
        {"weight > 1", "no such column: weight"},
        {"\"weight\" > 1", "no such column: weight"},
        {"count(*) > 1", "misuse of aggregate function count()"},
        {"id IN (SELECT 1 FROM nowhere)", "no such table: nowhere"},
        {"load_extension('x') = 1", "the function load_extension is not for conditions"},
        {"nosuch(1)", "no such function: nosuch"},
        {"(SELECT count(*) FROM pragma_table_info('part')) > 1", "it would do more than compare values"},
        {"id IN (WITH n AS (SELECT 1) SELECT * FROM n)", "it holds a WITH clause"},
    });
    EXPECT_EQ(Answer(*database_, "SELECT name FROM part WHERE name = \"bolt\""), "bolt"); // stock again
}
