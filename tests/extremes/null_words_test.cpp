// Null words, which only C++ clients of the command can pass: at each position of each command, one at a time
// and all from there on. Nothing crashes, no current object is left that is dead.
#include "app/embedded_host.h"
#include "tests/faults/sweep.h"
#include "znBrowserTclMessages.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <string>
#include <vector>

namespace {

/// The words of one command, held, as a C++ client passes them.
class ClientWords {
public:
    ClientWords(Tcl_Interp* interp, const char* line) {
        Tcl_Obj* const list = Tcl_NewStringObj(line, -1);
        Tcl_IncrRefCount(list);
        int count = 0;
        Tcl_Obj** words = nullptr;
        EXPECT_EQ(Tcl_ListObjGetElements(interp, list, &count, &words), TCL_OK) << line;
        held_.push_back(Tcl_NewStringObj("znbrowsermanager", -1));
        held_.insert(held_.end(), words, words + count);
        for (Tcl_Obj* const word : held_) Tcl_IncrRefCount(word);
        Tcl_DecrRefCount(list);
    }
    ~ClientWords() {
        for (Tcl_Obj* const word : held_) Tcl_DecrRefCount(word);
    }
    ClientWords(const ClientWords&) = delete;
    ClientWords& operator=(const ClientWords&) = delete;

    /// The words, those from `first` up to `end` null. The command turns the words of "app" around in the
    /// array that it is given.
    std::vector<Tcl_Obj*> WithNulls(std::size_t first, std::size_t end) const {
        std::vector<Tcl_Obj*> words = held_;
        for (std::size_t i = first; i < end; ++i) words[i] = nullptr;
        return words;
    }
    std::size_t Count() const { return held_.size(); }

private:
    std::vector<Tcl_Obj*> held_;
};

std::vector<std::string> Elements(SweepScript& script, const std::string& list) {
    int count = 0;
    const char** words = nullptr;
    EXPECT_EQ(Tcl_SplitList(script.Interp(), script.Eval(list).c_str(), &count, &words), TCL_OK);
    std::vector<std::string> elements(words, words + count);
    Tcl_Free(reinterpret_cast<char*>(words));
    return elements;
}

/// Every command that the sweeps give, with an interpreter that has read them.
class NullWords : public testing::TestWithParam<std::string> {
protected:
    /// Passes the words of the line, each one null in turn, and all from there on.
    void PassWithNulls(SweepRun& run, const std::string& line, std::size_t firstNull) {
        SCOPED_TRACE(line);
        const ClientWords words(script_.Interp(), line.c_str());
        for (std::size_t first = firstNull; first < words.Count(); ++first) {
            for (const std::size_t end : {first + 1, words.Count()}) {
                std::vector<Tcl_Obj*> passed = words.WithNulls(first, end);
                run.Manager().EvalTclCommand(static_cast<int>(passed.size()), passed.data());
                EXPECT_EQ(DeadCurrents(run.Host()), "") << "null from " << first << " to " << end;
            }
        }
    }

    SweepScript script_;
};

// Each line is given as it stands behind that, so that the next one finds what it works on.
TEST_P(NullWords, AreTakenAtEachPositionOfEachCommand) {
    SweepRun run(script_);
    run.Open();
    for (const std::string& line : Elements(script_, "dict get $sections " + GetParam())) {
        PassWithNulls(run, line, 1);
        script_.Eval("run [list {" + line + "}]");
    }
    PassWithNulls(run, "view names", 0);
    run.Check();
}

INSTANTIATE_TEST_SUITE_P(, NullWords, testing::ValuesIn(SweepScript().Sections()),
                         [](const auto& each) { return each.param; });

// The last word of each line is null.
TEST(NullWord, GetsTheUsageTextOfItsPlace) {
    using Texts = znBrowserTclMessages;
    const struct {
        const char* line;
        const char* usage;
    } rows[] = {
        {"x", Texts::GENERAL},
        {"state x", Texts::GENERAL},
        {"state current x", Texts::GENERAL},
        {"state entities x", Texts::GENERAL},
        {"element x", Texts::VIEW_COLUMN},
        {"element current x", Texts::VIEW_ELEMENT},
        {"element delete x", Texts::VIEW_ELEMENT},
        {"element description x", Texts::VIEW_ELEMENT},
        {"dataoperation current x", Texts::DATAOPERATION},
        {"dataoperation create x", Texts::DATAOPERATION},
        {"datasource simple filtercaption x", Texts::GENERAL},
        {"datasource simple connect x", Texts::DATASOURCE},
        {"datasource simple create x", Texts::DATASOURCE_SIMPLE},
        {"userinput current x", Texts::USERINPUT},
        {"view sort x", Texts::VIEW_SORT},
        {"view column caption x", Texts::VIEW_COLUMN},
        {"view folder children x", Texts::VIEW_FOLDER},
        {"window current x", Texts::WINDOW},
        {"OnTkTreeRequestExpand w x", Texts::ON_REQUEST_EXPAND},
    };
    SweepScript script;
    SweepRun run(script);
    run.Open();
    for (const auto& row : rows) {
        const ClientWords words(script.Interp(), row.line);
        std::vector<Tcl_Obj*> passed = words.WithNulls(words.Count() - 1, words.Count());
        EXPECT_EQ(run.Manager().EvalTclCommand(static_cast<int>(passed.size()), passed.data()), TCL_OK);
        EXPECT_STREQ(Tcl_GetStringResult(script.Interp()), row.usage) << row.line;
    }
}

} // namespace
