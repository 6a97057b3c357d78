#include "state/state_store.h"
#include "store/transaction.h"
#include "tests/store/store_testing.h"

#include <functional>

using namespace znhost;

namespace {

std::string Printed(const Settings& settings) {
    std::string text;
    for (const Setting& one : settings) {
        text += one.kind + ' ' + one.subject + ' ' + one.key + ' ' + one.value + '|';
    }
    return text;
}

/// A store on its own database, each question answered by a text: what was asked for, or the error.
struct StoreTest : ::testing::Test {
    std::unique_ptr<Database> database = MemoryDatabase("CREATE TABLE part (a); INSERT INTO part VALUES (1)");
    StateStore store{*database};
    std::string error;

    std::string Names() {
        std::vector<std::string> names;
        return store.Names(names, error) ? Joined(names) : error;
    }
    std::string Entities(const char* name) {
        std::vector<std::string> entities;
        return store.Entities(name, entities, error) ? Joined(entities) : error;
    }
    std::string Read(const char* name) {
        Settings settings;
        return store.Read(name, settings, error) ? Printed(settings) : error;
    }
    std::string Read(const char* name, const char* kind) {
        Settings settings;
        return store.Read(name, kind, settings, error) ? Printed(settings) : error;
    }
    std::string Done(bool done) { return done ? "" : error; }
    static std::string Joined(const std::vector<std::string>& words) {
        std::string text;
        for (const std::string& word : words) text += word + '|';
        return text;
    }
};

} // namespace

TEST_F(StoreTest, TablesComeWithTheFirstStateAndWindowsNeedNotLookAgain) {
    const std::string count = "SELECT count(*) FROM sqlite_schema WHERE name LIKE 'znbrowser%'";
    EXPECT_EQ(Names(), "");
    EXPECT_EQ(Read("s"), "There is no state \"s\"");
    EXPECT_EQ(Answer(*database, count), "0");
    EXPECT_EQ(Done(store.Create("s", error)), "");
    EXPECT_NE(Answer(*database, count), "0");
    Database::Stamp before, after;
    ASSERT_TRUE(database->ReadStamp(before, error)) << error;
    EXPECT_EQ(Done(store.Write("s", {{"k", "a", "b", "c"}}, error)), "");
    EXPECT_EQ(Done(store.Delete("s", error)), "");
    ASSERT_TRUE(database->ReadStamp(after, error)) << error;
    EXPECT_TRUE(after.SameRows(before));
}

TEST_F(StoreTest, StatesKeepWhatIsWrittenAndNothingOfBefore) {
    const std::string odd = "\xC0\x80 {'\"\\\n\xC3\xBC\xED\xA0\xBD\xED\xB8\x80\xED\xB3\xBF";
    EXPECT_EQ(Done(store.Create("z", error) && store.Create("a", error)), "");
    EXPECT_EQ(Done(store.Create("a", error)), "A state \"a\" already exists");
    EXPECT_EQ(Done(store.Create("", error)), "A state needs a name");
    EXPECT_EQ(Names(), "z|a|");
    EXPECT_EQ(Read("z"), "");
    EXPECT_EQ(Done(store.Write("z", {{"old", "", "", ""}, {"old", "", "", ""}}, error)), "");
    EXPECT_EQ(Done(store.Write("z", {{"k", "2", "", odd}, {"j", "3", "x", ""}, {"k", "1", "", ""}}, error)),
              "");
    EXPECT_EQ(Read("z"), "j 3 x |k 2  " + odd + "|k 1  |");
    EXPECT_EQ(Read("z", "k"), "k 2  " + odd + "|k 1  |");
    EXPECT_EQ(Read("z", "old"), "");
    EXPECT_EQ(Read("a", "k"), "");
    EXPECT_EQ(Done(store.Delete("z", error) && store.Create("z", error)), "");
    EXPECT_EQ(Names(), "a|z|");
    EXPECT_EQ(Read("z"), "");
    EXPECT_EQ(Done(store.Write("b", {}, error)), "There is no state \"b\"");
    EXPECT_EQ(Done(store.Delete("b", error)), "There is no state \"b\"");
    EXPECT_EQ(Read("b", "k"), "There is no state \"b\"");
}

TEST_F(StoreTest, EntitiesAreKeptApartFromTheSettings) {
    ASSERT_TRUE(store.Create("s", error) && store.Create("t", error)) << error;
    EXPECT_EQ(Done(store.AddEntities("s", {"gear", "axle", "gear"}, error)), "");
    EXPECT_EQ(Done(store.AddEntities("s", {"axle", "nut"}, error)), "");
    EXPECT_EQ(Done(store.Write("s", {}, error)), "");
    EXPECT_EQ(Entities("s"), "gear|axle|nut|");
    EXPECT_EQ(Entities("t"), "");
    EXPECT_EQ(Done(store.RemoveEntities("s", {"gear", "bolt"}, error)),
              "The state \"s\" has no entity \"bolt\"");
    EXPECT_EQ(Entities("s"), "gear|axle|nut|");
    EXPECT_EQ(Done(store.RemoveEntities("s", {"gear", "nut"}, error)), "");
    EXPECT_EQ(Entities("s"), "axle|");
    EXPECT_EQ(Done(store.Delete("s", error) && store.Create("s", error)), "");
    EXPECT_EQ(Entities("s"), "");
    EXPECT_EQ(Done(store.AddEntities("u", {"x"}, error)), "There is no state \"u\"");
    EXPECT_EQ(Entities("u"), "There is no state \"u\"");
}

TEST_F(StoreTest, AChangeThatFailsChangesNothing) {
    ASSERT_TRUE(store.Create("s", error) && store.Write("s", {{"k", "before", "", ""}}, error)) << error;
    Answer(*database, "CREATE TRIGGER no BEFORE INSERT ON znbrowser_setting WHEN new.subject = 'late' "
                      "BEGIN SELECT raise(FAIL, 'disk full'); END");
    EXPECT_EQ(Done(store.Write("s", {{"k", "early", "", ""}, {"k", "late", "", ""}}, error)), "disk full");
    EXPECT_EQ(Read("s"), "k before  |");
    EXPECT_FALSE(database->InTransaction());
    Transaction outer(*database); // a script's own
    ASSERT_TRUE(outer.Begin(error)) << error;
    EXPECT_EQ(Done(store.Write("s", {{"k", "after", "", ""}}, error)), "");
    EXPECT_TRUE(database->InTransaction());
    EXPECT_EQ(Read("s"), "k after  |");
}

TEST_F(StoreTest, OlderTablesAreUpgradedInOneTransaction) {
    std::vector<StateStore::Upgrade> history = StateStore::Upgrades();
    const auto present = std::to_string(history.size());
    const auto next = std::to_string(history.size() + 1);
    const std::string version = "SELECT version FROM znbrowser_schema";
    ASSERT_TRUE(store.Create("s", error) && store.Write("s", {{"k", "old", "", ""}}, error)) << error;
    history.push_back({"UPDATE znbrowser_setting SET subject = 'new'", "rubbish"});
    EXPECT_EQ(Done(StateStore(*database, history).Create("t", error)), "near \"rubbish\": syntax error");
    EXPECT_EQ(Answer(*database, version), present);
    EXPECT_EQ(Read("s"), "k old  |");
    history.back().pop_back();
    std::vector<std::string> names;
    EXPECT_EQ(Done(StateStore(*database, history).Names(names, error)), "");
    EXPECT_EQ(Answer(*database, version), next);
    EXPECT_EQ(Answer(*database, "SELECT subject FROM znbrowser_setting"), "new");

    const std::string refusal = "The saved states of the database are of version " + next +
                                "; this program knows those up to version " + present;
    EXPECT_EQ(Names(), refusal);
    EXPECT_EQ(Read("s"), refusal);
    EXPECT_EQ(Done(store.Create("t", error)), refusal);
    EXPECT_EQ(Done(store.Delete("s", error)), refusal);
}

TEST(StateStore, StatesOutliveTheProcessAndShowInOthers) {
    const TemporaryDirectory directory;
    std::string error;
    const auto one = Database::OpenFile(directory.File("db"), error);
    const auto other = Database::OpenFile(directory.File("db"), error);
    ASSERT_TRUE(one && other) << error;
    StateStore first(*one), second(*other);
    Settings settings;
    EXPECT_FALSE(second.Read("s", settings, error));
    EXPECT_TRUE(first.Create("s", error) && first.Write("s", {{"k", "a", "b", "c"}}, error)) << error;
    EXPECT_TRUE(second.Read("s", settings, error)) << error;
    EXPECT_EQ(Printed(settings), "k a b c|");
    Transaction writing(*other);
    ASSERT_TRUE(writing.Begin(error)) << error;
    EXPECT_FALSE(first.Write("s", {}, error));
    EXPECT_EQ(error, "database is locked");
}
