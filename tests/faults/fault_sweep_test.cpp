// Each call that the manager makes of its host fails: nothing crashes, the interpreter goes on, and no
// current object is left that the host has destroyed.
#include "frame/command_table.h"
#include "tests/faults/sweep.h"
#include "znBrowserTclKeywords.h"

#include <iostream>
#include <set>
#include <sstream>
#include <vector>

namespace {

using znhost::CallLog;
using Words = std::vector<std::string>;

/// The commands that the script gives, each as its keywords, in plain spelling, up to the first other word.
std::set<Words> KeywordPaths() {
    SweepScript script;
    std::istringstream lines(script.Eval("join [concat $opening {*}[dict values $sections]] \\n"));
    std::set<Words> paths;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        Words path;
        for (std::string word; words >> word;) {
            const auto keyword = znBrowserTclKeywords(true).GetZnBrowserTclApiEnum(word.c_str());
            const char* const spelling = znBrowserTclKeywords::GetSpelling(keyword);
            path.emplace_back(spelling ? spelling : "");
            paths.insert(path);
        }
    }
    return paths;
}

/// A level that two words lead to is looked at below the first.
void ExpectEveryRow(const std::set<Words>& paths, const Words& path, const znlayer::CommandLevel& level,
                    std::set<const znlayer::CommandLevel*>& seen) {
    if (!seen.insert(&level).second) return;
    for (const znlayer::CommandRow& row : level) {
        const char* const spelling = znBrowserTclKeywords::GetSpelling(row.keyword);
        if (!spelling) continue; // no word reaches it
        Words below = path;
        below.emplace_back(spelling);
        EXPECT_TRUE(paths.count(below)) << "not in the script: " << testing::PrintToString(below);
        if (row.level) ExpectEveryRow(paths, below, *row.level, seen);
    }
}

TEST(FaultSweepScript, UsesEveryRowOfEveryCommandTable) {
    std::set<const znlayer::CommandLevel*> seen;
    ExpectEveryRow(KeywordPaths(), {}, znlayer::topLevel, seen);
}

/// How a call fails, and whether those that follow fail, too.
using CallFault = std::pair<CallLog::Fault, bool>;

class FaultSweep : public testing::TestWithParam<CallFault> {
protected:
    /// Runs a section, or the opening when `section` is empty, with that call failing.
    /// @return false when there were fewer calls
    bool FailCall(std::size_t n, const std::string& section) {
        SCOPED_TRACE(section + " call " + std::to_string(n));
        SweepRun run(script_);
        if (section == "display") run.ShowWindows();
        if (!section.empty()) run.Open();
        run.Log().FailCall(n, GetParam().first, GetParam().second);
        if (section.empty())
            run.Open();
        else if (section == "display")
            script_.Eval("show $display");
        else
            run.Run(section);
        const bool failed = run.Log().HasFailed();
        run.Log().FailCall(0);
        run.Check();
        return failed;
    }
    /// Lets each `step`-th call of a section fail. @return how many did
    std::size_t Sweep(const std::string& section, std::size_t step) {
        std::size_t failed = 0;
        for (std::size_t n = 1; FailCall(n, section); n += step) ++failed;
        return failed;
    }

    SweepScript script_;
};

// With "from then on", every third call is enough: what follows it fails anyway.
TEST_P(FaultSweep, EveryHostCallFailsAndTheCommandGoesOn) {
    const std::size_t step = GetParam().second ? 3 : 1;
    std::size_t failed = Sweep("", step);
    for (const std::string& section : script_.Sections()) failed += Sweep(section, step);
    std::cout << failed << " host calls failed, each in a run of its own\n";
    EXPECT_GT(failed, 1300u / step) << "the script no longer reaches the host";
}

class FaultSweepOnDisplay : public FaultSweep {};

TEST_P(FaultSweepOnDisplay, HostCallsFailAndTheWindowGoesOn) {
    const std::size_t step = GetParam().second ? 97 : 29;
    const std::size_t failed = Sweep("display", step);
    std::cout << failed << " host calls failed, each in a run of its own\n";
    EXPECT_GT(failed, 100u / step) << "the window no longer reaches the host";
}

const CallFault callFaults[] = {{CallLog::Fault::Refuse, false},
                                {CallLog::Fault::Throw, false},
                                {CallLog::Fault::Refuse, true},
                                {CallLog::Fault::Throw, true}};

std::string NameOfFault(const testing::TestParamInfo<CallFault>& fault) {
    return std::string(fault.param.first == CallLog::Fault::Refuse ? "Refused" : "Thrown") +
           (fault.param.second ? "FromThenOn" : "Once");
}

INSTANTIATE_TEST_SUITE_P(, FaultSweep, testing::ValuesIn(callFaults), NameOfFault);
INSTANTIATE_TEST_SUITE_P(, FaultSweepOnDisplay, testing::ValuesIn(callFaults), NameOfFault);

} // namespace
