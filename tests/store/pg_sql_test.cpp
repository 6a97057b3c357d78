#include "store/postgres/pg_sql.h"

#include <gtest/gtest.h>

using znhost::PgArray;
using znhost::PgElements;
using znhost::PgSql;

TEST(PgSql, OnlyQuestionMarksThatAreCodeStandForValues) {
    const struct {
        const char* sql;
        const char* text;
        int parameters;
        const char* firstWord;
    } cases[] = {
        {"SELECT ? + ?", "SELECT $1 + $2", 2, "select"},
        {"select '?', 'it''s ?', ?", "select '?', 'it''s ?', $1", 1, "select"},
        {R"(SELECT E'\'?' || ?, 'a\' || ?)", R"(SELECT E'\'?' || $1, 'a\' || $2)", 2, "select"},
        {R"(SELECT "a?""?" FROM t)", R"(SELECT "a?""?" FROM t)", 0, "select"},
        {"SELECT $$?$$, $a$ $$ ? $a$, ?", "SELECT $$?$$, $a$ $$ ? $a$, $1", 1, "select"},
        {"SELECT a$b$ ? FROM t$b$", "SELECT a$b$ $1 FROM t$b$", 1, "select"},
        {"-- ?\n COMMIT /* ? /* ? */ ? */ ?", "-- ?\n COMMIT /* ? /* ? */ ? */ $1", 1, "commit"},
        {"SELECT '{}'::jsonb ?? ?", "SELECT '{}'::jsonb ? $1", 1, "select"},
        {"SELECT 'open ?", "SELECT 'open ?", 0, "select"},
        {"", "", 0, ""},
    };
    for (const auto& one : cases) {
        const PgSql sql(one.sql);
        EXPECT_EQ(sql.text, one.text);
        EXPECT_EQ(sql.parameters, one.parameters) << one.sql;
        EXPECT_EQ(sql.firstWord, one.firstWord) << one.sql;
    }
}

TEST(PgSql, ArraysHoldAnyText) {
    const std::vector<std::string> texts{"", "a,b", "{}", "\"", "\\", "NULL", " x "};
    EXPECT_EQ(PgElements(PgArray(texts)), texts);
    EXPECT_EQ(PgElements("{}"), std::vector<std::string>());
    EXPECT_EQ(PgElements("{1,\"(0,5)\"}"), (std::vector<std::string>{"1", "(0,5)"}));
}
