// The collector's words on a host that was written before there were any.
#include "frame/collector_helper.h"
#include "frame/command_table.h"
#include "tests/frame/fake_application.h"
#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>

#include <string>

using namespace znlayer;

namespace {

class CollectorTest : public testing::Test {
protected:
    CollectorTest() : manager(&application) {}
    ~CollectorTest() override { manager.DeleteBrowserManagerCollectorTcl(); }

    FakeApplication application;
    znBrowserManagerTcl manager;
};

/// Calls `visit(line)` for each row that answers, with words in the places of those that it needs.
template <class Visit>
void VisitCommands(const CommandLevel& level, const std::string& words, Visit visit) {
    for (const CommandRow& row : level) {
        std::string line = words + ' ' + znBrowserTclKeywords::GetSpelling(row.keyword);
        if (row.level) VisitCommands(*row.level, line, visit);
        for (std::size_t i = 0; i < row.arguments.Fewest(); ++i) line += " 1";
        if (row.answer) visit(line);
    }
}

TEST_F(CollectorTest, AHostWithoutOneSaysSoInEveryWord) {
    std::size_t commands = 0;
    VisitCommands(collectorLevel, "znbrowsermanager collector", [&](const std::string& line) {
        EXPECT_EQ(application.Eval(line.c_str()),
                  "[Command] " + line + "\n\t[Error] The host has no collector");
        ++commands;
    });
    EXPECT_GT(commands, 45U);
}

TEST_F(CollectorTest, TheKindIsATextOfTheHelper) {
    EXPECT_STREQ(manager.GetCurrentCollectorDataSourceSimple(), "");
    manager.GetBrowserManagerCollectorTcl()->DataSourceName() = "part";
    EXPECT_STREQ(znBrowserManagerTcl(manager).GetCurrentCollectorDataSourceSimple(), "part");
    EXPECT_EQ(manager.GetCurrentCollectorDataSourceSimplePtr(), nullptr);
    manager.DeleteBrowserManagerCollectorTcl();
    EXPECT_STREQ(manager.GetCurrentCollectorDataSourceSimple(), "");
}

} // namespace
