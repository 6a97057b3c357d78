// Operations begin afresh: what a command answers does not tell of an error that an earlier one left behind.
#include "tests/faults/sweep.h"

#include <set>

namespace {

/// Those that do, by design: what is refused without a text of its own, or is no operation, shows what is
/// pending.
const std::set<std::string> showingWhatIsPending = {
    "OnTkTreeRequestCollapseAll win",
    "OnTkTreeRequestExpandAll win",
    "datasource hierarchical connect child names",
    "datasource hierarchical connect parent names",
    "datasource hierarchical connect parent unit x",
    "datasource hierarchical disconnect note",
    "datasource simple connect note",
    "datasource simple disconnect unit",
    "view flush false",
    "view flush true",
    "view folder createexpanded unit",
    "view operation names",
    "view redraw",
    "window map type bool icon",
    "window map type double rgb",
    "window map type integer string",
    "window map type string button",
    "window map type unsigned string",
};

TEST(PendingError, IsNotSeenByTheNextCommand) {
    constexpr char runSection[] = "foreach line $section {\n"
                                  "    zn window map current {left behind}\n"
                                  "    catch {znbrowsermanager {*}$line} answer\n"
                                  "    if {[string match {*left behind*} $answer]} {lappend told $line}\n"
                                  "}\n";
    SweepScript script;
    script.Eval("set told {}");
    for (const std::string& section : script.Sections()) {
        for (const bool onAModel : {true, false}) {
            SweepRun run(script);
            if (onAModel) run.Open();
            script.Eval("set section [dict get $sections " + section + "]\n" + runSection);
        }
    }
    std::istringstream told(script.Eval("join [lsort -unique $told] \\n"));
    std::set<std::string> found;
    for (std::string line; std::getline(told, line);) found.insert(line);
    EXPECT_EQ(found, showingWhatIsPending);
}

} // namespace
