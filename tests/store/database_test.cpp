#include "store/sqlite/temporary_files.h"
#include "store/transaction.h"
#include "store_testing.h"

#include <fstream>
#include <functional>

using namespace znhost;

TEST(ValueOfWord, NumbersAreThoseThatReadBackAsWritten) {
    for (const char* const word : {"0", "7", "-7", "9223372036854775807", "-9223372036854775808"}) {
        EXPECT_TRUE(std::holds_alternative<std::int64_t>(ValueOfWord(word))) << word;
    }
    for (const char* const word :
         {"0.0", "-0.0", "1.5", "-2.25", "3.0", "0.00001", "1e+20", "1.5e-07", "0.1"}) {
        EXPECT_TRUE(std::holds_alternative<double>(ValueOfWord(word))) << word;
    }
    for (const char* const word : {"", "007", "+1", "1.50", "-0", "1.", ".5", "0x10", "1e5", "inf", "nan",
                                   "1 ", " 1", "9223372036854775808", "1e999", "1,5", "e", "7 mm"}) {
        EXPECT_EQ(ValueOfWord(word), Value(std::string(word)));
    }
    EXPECT_EQ(ValueOfWord({"1\0", 2}), Value(std::string("1\0", 2)));
}

TEST(Database, WhatCannotBeOpenedIsRefusedWithTheReason) {
    const TemporaryDirectory directory;
    std::ofstream(directory.File("letter")) << std::string(4096, 'x');
    std::filesystem::create_symlink("nowhere", directory.File("link"));
    std::string error;
    const auto busy = Database::OpenFile(directory.File("busy"), error);
    ASSERT_TRUE(busy) << error;
    ASSERT_EQ(Answer(*busy, "CREATE TABLE t (a)") + Answer(*busy, "BEGIN EXCLUSIVE"), "");
    const std::pair<std::string, std::string> cases[] = {
        {directory.File("letter"), "file is not a database"},
        {directory.File("busy"), "database is locked"},
        {directory.File("missing/file"), "its directory does not exist"},
        {directory.File("file/"), "it is the name of a directory"},
        {directory.File("link"), "it is a link to a file that does not exist"},
        {directory.File("letter/file"), "its directory does not exist"},
        {directory.File("."), "it is a directory"},
        {"/dev/null", "it is a device"},
        {"file:/tmp/x", "a URI is no file name; a file of that name is \"./file:/tmp/x\""},
        {":memory:", "a database in memory has no file name: leave it out"},
        {"a\xC0\x80z", "no file of the system has such a name"},
        {"~no such user", "user \"no such user\" doesn't exist"},
        {"", "the file name is empty"},
    };
    for (const auto& [path, reason] : cases) {
        EXPECT_FALSE(Database::OpenFile(path, error));
        EXPECT_EQ(error, "cannot open the database \"" + path + "\": " + reason);
    }
}

TEST(Database, RunsOneStatementWithItsValues) {
    const auto database = MemoryDatabase("CREATE TABLE t (a INTEGER PRIMARY KEY, b)");
    const struct {
        std::string sql;
        std::vector<Value> values;
        std::string answer;
    } cases[] = {
        {"SELECT ?, ?, ?, ?", {std::int64_t{7}, 2.5, "it's", Value()}, "7,2.5,it's,"},
        {"SELECT typeof(?), typeof(?)", {Value(), std::string()}, "null,text"},
        {"SELECT hex(?)", {std::string("a\0b", 3)}, "610062"},
        {"SELECT hex(?)", {"a\xC0\x80z"}, "61007A"},
        {"SELECT hex(?)", {"\xED\xA0\xBD\xED\xB8\x80"}, "F09F9880"},
        {"SELECT hex('\xED\xA0\xBD\xED\xB8\x80')", {}, "F09F9880"},
        {"SELECT char(0, 128512), CAST(x'61FF' AS TEXT)",
         {},
         "\xC0\x80\xED\xA0\xBD\xED\xB8\x80,a\xED\xB3\xBF"},
        {"SELECT x'00FF'", {}, "\xC0\x80\xED\xB3\xBF"},
        {"SELECT \xED\xA0\xBD\xED\xB8\x80", {}, "no such column: \xED\xA0\xBD\xED\xB8\x80"},
        {"SELECT 1; \xED\xB3\xBF", {}, "one SQL statement at a time; this follows the first: \xED\xB3\xBF"},
        {"REPLACE INTO t VALUES (1, 'x'), (2, 'y')", {}, ""},
        {"REPLACE INTO t VALUES (3, 'z') RETURNING b", {}, "z"},
        {"SELECT * FROM t WHERE a < ?", {std::int64_t{3}}, "1,x|2,y"},
        {"SELECT 1; -- that is all\n ; /* really */", {}, "1"},
        {"SELECT ?", {}, "the SQL statement takes 1 value, 0 are given"},
        {"SELECT 1", {Value()}, "the SQL statement takes 0 values, 1 is given"},
        {"SELECT 1; DELETE FROM t", {}, "one SQL statement at a time; this follows the first: DELETE FROM t"},
        {"SELECT 1; rubbish", {}, "one SQL statement at a time; this follows the first: rubbish"},
        {" -- nothing", {}, "no SQL statement in \" -- nothing\""},
        {std::string("SELECT 1\0; DELETE FROM t", 24), {}, "a NUL character in the SQL statement"},
        {"SELECT 1\xC0\x80; DELETE FROM t", {}, "a NUL character in the SQL statement"},
        {"SELEKT 1", {}, "near \"SELEKT\": syntax error"},
        {"SELECT * FROM nowhere", {}, "no such table: nowhere"},
        {"INSERT INTO t VALUES (1, 'twice')", {}, "UNIQUE constraint failed: t.a"},
        {"SELECT abs(-9223372036854775808)", {}, "integer overflow"},
        {"SELECT count(*) FROM t", {}, "3"},
    };
    for (int round = 0; round < 2; ++round) { // the second time from the statements prepared before
        for (const auto& one : cases) {
            EXPECT_EQ(Answer(*database, one.sql, one.values), one.answer) << one.sql;
        }
    }
}

TEST(Database, AScriptThatFailsLeavesNoTransactionOpen) {
    const auto database = MemoryDatabase("");
    std::string error;
    EXPECT_FALSE(database->RunScript("BEGIN; CREATE TABLE t (a); INSERT INTO u VALUES (1);", error));
    EXPECT_EQ(error, "no such table: u");
    EXPECT_FALSE(database->InTransaction());
    EXPECT_EQ(Answer(*database, "SELECT * FROM t"), "no such table: t");
}

TEST(Statement, IsUsedInsideALoopOverItsOwnRows) {
    const auto database = MemoryDatabase("CREATE TABLE t (id INTEGER PRIMARY KEY, up INTEGER);"
                                         "INSERT INTO t VALUES (1, 0), (2, 1), (3, 1), (4, 2), (5, 4);");
    const std::function<std::string(std::int64_t)> walk = [&](std::int64_t up) {
        Statement children = database->Prepare("SELECT id FROM t WHERE up = ? ORDER BY id");
        children.Bind(1, up);
        std::string tree;
        while (children.Next()) tree += children.Text(0), tree += "(" + walk(children.Integer(0)) + ")";
        return tree;
    };
    for (int round = 0; round < 3; ++round) EXPECT_EQ(walk(0), "1(2(4(5()))3())");
}

TEST(Statement, MoreTextsThanAreKeptAllWork) {
    const auto database = MemoryDatabase("");
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 200; ++i) {
            EXPECT_EQ(Answer(*database, "SELECT " + std::to_string(i)), std::to_string(i));
        }
    }
}

TEST(Statement, KeepsItsFirstFailureAndForgetsItsBindings) {
    const auto database = MemoryDatabase("CREATE TABLE t (a); INSERT INTO t VALUES (1);");
    const std::string sql = "SELECT a, ? FROM t";
    std::string error;
    {
        Statement statement = database->Prepare(sql);
        statement.Bind(1, "bound");
        statement.Bind(2, 7);
        EXPECT_FALSE(statement.Next());
        EXPECT_FALSE(statement.Finish(error));
        EXPECT_EQ(error, "column index out of range");
    }
    Statement again = database->Prepare(sql);
    ASSERT_TRUE(again.Next());
    EXPECT_TRUE(again.IsNull(1));
    EXPECT_EQ(again.Text(7), "");
    EXPECT_FALSE(again.Next());
    EXPECT_FALSE(again.Next()); // the end stays the end
    again.Rewind();
    EXPECT_TRUE(again.Next());
    EXPECT_TRUE(again.Finish(error));
}

TEST(Statement, StopsInTheMiddleOfAStepWhenItIsTold) {
    const auto database = MemoryDatabase("");
    const std::string endless = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) ";
    int left = 0;
    database->SetWhyStop([&left] { return left-- > 0 ? std::string_view() : "enough"; });
    for (const char* const end :
         {"SELECT count(*) FROM n", "SELECT i FROM n", "SELECT i FROM n WHERE i < 0"}) {
        left = 3;
        EXPECT_EQ(Answer(*database, endless + end), "enough") << end;
        EXPECT_EQ(left, -1) << end;
    }
    EXPECT_EQ(Answer(*database, "SELECT 1"), "1"); // too short to be asked
}

TEST(Statement, WhatNeverEndsDoesNotFillTheDisk) {
    const std::int64_t limit = TemporaryFiles::Limit();
    const auto database = MemoryDatabase("");
    TemporaryFiles::SetLimit(8 << 20);
    const std::string endless = " AS WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT "
                                "i, hex(zeroblob(500)) AS t ";
    for (const std::string& statement :
         {"CREATE TEMP TABLE copy" + endless + "FROM n",
          "CREATE TEMP TABLE sorted" + endless + "FROM n ORDER BY -i",
          std::string("WITH RECURSIVE n(i) AS (SELECT 1 UNION SELECT i + 1 FROM n) SELECT max(i) FROM n")}) {
        EXPECT_EQ(Answer(*database, statement),
                  "it needs too large a temporary file: the limit is 8388608 bytes")
            << statement;
    }
    TemporaryFiles::SetLimit(limit);
    ASSERT_EQ(Answer(*database, "CREATE TEMP TABLE copy AS SELECT 1 AS i"), "");
    EXPECT_EQ(Answer(*database, "SELECT i FROM copy"), "1");
}

TEST(Statement, StopsWaitingForALockWhenItIsTold) {
    const TemporaryDirectory directory;
    std::string error;
    const auto one = Database::OpenFile(directory.File("shared"), error);
    const auto other = Database::OpenFile(directory.File("shared"), error);
    ASSERT_TRUE(one && other) << error;
    ASSERT_EQ(Answer(*one, "CREATE TABLE t (a)"), "");
    ASSERT_EQ(Answer(*other, "SELECT * FROM t"), "");
    ASSERT_EQ(Answer(*one, "BEGIN EXCLUSIVE"), "");
    int asked = 0;
    other->SetWhyStop([&asked] { return ++asked < 3 ? std::string_view() : "enough"; });
    EXPECT_EQ(Answer(*other, "SELECT * FROM t"), "database is locked");
    EXPECT_EQ(asked, 3);
    asked = -1000;
    EXPECT_EQ(Answer(*other, "SELECT * FROM t"), "database is locked");
    const int waited = asked;
    EXPECT_EQ(Answer(*other, "SELECT * FROM t"), "database is locked");
    EXPECT_EQ(asked, waited); // who waited in vain does not wait again at once
    ASSERT_EQ(Answer(*one, "COMMIT"), "");
    EXPECT_EQ(Answer(*other, "SELECT * FROM t"), "");
}

TEST(Transaction, IsUndoneUnlessCommitted) {
    const auto database = MemoryDatabase("CREATE TABLE t (a)");
    std::string error;
    const std::tuple<bool, bool, const char*> cases[] = {
        {false, false, ""}, {false, true, ""}, {true, false, "outer"}, {true, true, "outer|inner"}};
    for (const auto& [outerKept, innerKept, rows] : cases) {
        Answer(*database, "DELETE FROM t");
        {
            Transaction outer(*database);
            ASSERT_TRUE(outer.Begin(error)) << error;
            Answer(*database, "INSERT INTO t VALUES ('outer')");
            {
                Transaction inner(*database);
                ASSERT_TRUE(inner.Begin(error)) << error;
                Answer(*database, "INSERT INTO t VALUES ('inner')");
                EXPECT_TRUE(!innerKept || inner.Commit(error)) << error;
            }
            EXPECT_TRUE(!outerKept || outer.Commit(error)) << error;
        }
        EXPECT_FALSE(database->InTransaction());
        EXPECT_EQ(Answer(*database, "SELECT * FROM t"), rows);
    }
}

TEST(Transaction, ALockOfOthersShowsAtTheBeginning) {
    const TemporaryDirectory directory;
    std::string error;
    const auto one = Database::OpenFile(directory.File("shared"), error);
    const auto other = Database::OpenFile(directory.File("shared"), error);
    ASSERT_TRUE(one && other) << error;
    Transaction writing(*one);
    ASSERT_TRUE(writing.Begin(error)) << error;
    Transaction refused(*other);
    EXPECT_FALSE(refused.Begin(error));
    EXPECT_EQ(error, "database is locked");
    Transaction copying(*other);
    EXPECT_TRUE(copying.Begin(error, Transaction::Purpose::Copy)) << error;
}

TEST(Database, StampsTellWhetherTablesOrRowsChanged) {
    const TemporaryDirectory directory;
    std::string error;
    const auto database = Database::OpenFile(directory.File("shared"), error);
    const auto other = Database::OpenFile(directory.File("shared"), error);
    ASSERT_TRUE(database && other) << error;
    Database::Stamp last;
    const struct {
        Database& by;
        const char* sql;
        bool sameTables, sameRows;
    } cases[] = {
        {*database, "CREATE TABLE t (a)", false, false},
        {*database, "SELECT * FROM t", true, true},
        {*database, "INSERT INTO t VALUES (1)", true, false},
        {*other, "INSERT INTO t VALUES (2)", true, false},
        {*database, "DELETE FROM t", true, false},
        {*other, "CREATE TABLE u (a)", false, false},
        {*database, "CREATE TEMP TABLE v (a)", true, true},
        {*database, "BEGIN", false, false},
        {*database, "CREATE TABLE w (a)", false, false},
        {*database, "ROLLBACK", false, false},
    };
    ASSERT_TRUE(database->ReadStamp(last, error)) << error;
    for (const auto& one : cases) {
        ASSERT_EQ(Answer(one.by, one.sql), "");
        Database::Stamp now;
        ASSERT_TRUE(database->ReadStamp(now, error)) << error;
        EXPECT_EQ(now.SameTables(last), one.sameTables) << one.sql;
        EXPECT_EQ(now.SameRows(last), one.sameRows) << one.sql;
        last = now;
    }
}
