// An operation begins afresh: it forgets the error that an earlier one left behind. Which commands do not, is
// recorded.
#include "tests/faults/sweep.h"

namespace {

/// Commands of the sections after which an error from before them is still there, on the model or on nothing:
/// they are no operations, or are refused without an error of their own, or keep it by design.
constexpr char keepingWhatIsPending[] = R"(
OnTkColPreselButtonClicked a on
OnTkTreeRequestCollapseAll win
OnTkTreeRequestExpandAll win
checkbox create end a b
checkbox display elem 1 win
checkbox display geom 1 win
collector names
datasource hierarchical connect child names
datasource hierarchical connect parent names
datasource hierarchical connect parent unit x
datasource hierarchical criteria
datasource hierarchical disconnect note
datasource hierarchical property
datasource simple connect note
datasource simple connect part
datasource simple criteria data bool 1 unsigned 2 double 3 string d
datasource simple criteria data bool true
datasource simple criteria data double 4
datasource simple criteria data integer 1
datasource simple criteria data integer 3
datasource simple criteria data string e
datasource simple criteria data unsigned 2
datasource simple disconnect unit
datasource simple property create a 1 string 2
datasource simple property create p 0 value
datasource simple property delete p
datasource simple property names
frame
no filter
userinput script
view apply pending
view column caption C
view column delete
view column justify left
view column move 0
view column show
view column show true
view column width
view column width 40
view current
view datactrl
view datactrl disconnect
view datasource hierarchical disconnect h
view datasource simple connect part
view datasource simple disconnect own
view delete
view flush false
view flush true
view folder createexpanded unit
view operation names
view property connect script value
view property delete
view property type
view redraw
view style delete
window delete
window dropitem dataitemtype
window dropitem name
window dropitem toplevel
window map type
window map type bool icon
window map type double rgb
window map type integer string
window map type string button
window map type unsigned string
window part current toplevel
window part delete
window part event callback delete
)";

TEST(PendingError, IsForgottenByTheNextOperation) {
    SweepScript script;
    script.Eval("set keeping {}");
    for (const std::string& section : script.Sections()) {
        if (section.compare(0, 7, "hostile") == 0) continue; // the same commands, with other names
        for (const bool onAModel : {true, false}) {
            SweepRun run(script);
            if (onAModel) run.Open();
            const int lines =
                std::stoi(script.Eval("llength [set lines [dict get $sections " + section + "]]"));
            for (int i = 0; i < lines; ++i) {
                script.Eval("zn window map current {left behind}; set line [lindex $lines " +
                            std::to_string(i) + "]; zn {*}$line");
                if (std::string(run.Manager().GetErrorText().c_str()).find("left behind") !=
                    std::string::npos)
                    script.Eval("if {[lindex $line 0] ne {app}} {lappend keeping $line}");
            }
        }
    }
    EXPECT_EQ(script.Eval("join [lsort -unique $keeping] \\n"),
              std::string(keepingWhatIsPending + 1, sizeof(keepingWhatIsPending) - 3));
}

} // namespace
