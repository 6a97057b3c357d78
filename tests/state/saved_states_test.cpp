// Saved states as other objects of the host see them: what was skipped, and states that are gone.
#include "app/application.h"
#include "host/app/embedded_host.h"
#include "host/state/state_container.h"
#include "host/store/data_ctrl.h"
#include "host/window/window_list.h"
#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>
#include <tcl.h>

namespace znhost {
namespace {

class SavedStates : public testing::Test {
protected:
    SavedStates() {
        Do("app datactrl create d");
        Do("app sql d {CREATE TABLE part (id INTEGER PRIMARY KEY, up INTEGER REFERENCES part, name TEXT)}");
        Do("app sql d {CREATE INDEX byUp ON part (up)}");
        for (const char* const words :
             {"datactrl current d", "view create v", "view datactrl connect",
              "datasource hierarchical create parts false false",
              "datasource hierarchical connect parent part -",
              "datasource hierarchical connect child part part.up", "view folder current v",
              "view folder create f", "window create w", "app state create d s", "state current s"}) {
            Do(words);
        }
    }
    ~SavedStates() override { Tcl_DeleteInterp(interp_); }

    std::string Do(const std::string& words) {
        EXPECT_EQ(Tcl_Eval(interp_, ("znbrowsermanager " + words).c_str()), TCL_OK)
            << words << ": " << Tcl_GetStringResult(interp_);
        return Tcl_GetStringResult(interp_);
    }
    BrowserStates& Model() { return host_.App().Model(); }
    Window* TheWindow() { return Model().Windows().All().Find("w"); }
    StateContainer& States() { return StatesOf(*host_.App().DataControls().Find("d")); }
    State& Saved() { return States().Named("s"); }
    std::string Error() { return host_.App().Log().Error(); }

    Tcl_Interp* const interp_ = Tcl_CreateInterp();
    EmbeddedHost host_{interp_};
};

TEST_F(SavedStates, WhatIsSkippedIsNamedInTheErrorText) {
    Do("app sql d {CREATE TABLE bolt (id INTEGER PRIMARY KEY, part INTEGER REFERENCES part)}");
    Do("view folder current v");
    Do("view folder create tied");
    Do("view folder tree toplevel part part.up");
    Do("view folder tree parentchild part bolt bolt.part");
    const std::vector<std::pair<std::string, std::string>> things = {
        {"view folder current v", "app sql d {DROP TABLE bolt}"},
        {"view folder current v", "view folder delete f"},
        {"view column create c", "view column delete"},
        {"view property create p", "view property delete"},
        {"window part create t", "window part delete"},
        {"window map create m", "window map delete"},
    };
    for (const auto& [make, ignored] : things) Do(make);
    ASSERT_TRUE(States().SaveState(&Saved(), TheWindow())) << Error();
    ASSERT_TRUE(Model().RestoreState(&Saved(), TheWindow()));
    EXPECT_EQ(Error(), "");
    for (const auto& [ignored, remove] : things) Do(remove);
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(Model().RestoreState(&Saved(), TheWindow()));
        EXPECT_EQ(Error(), "Not restored, as it does not exist any more: folder \"f\", data source \"bolt\", "
                           "data reference \"bolt.part\", column \"c\", "
                           "view property \"p\", GUI map \"m\", window part \"t\"");
    }
}

TEST_F(SavedStates, ManyExpandedRowsAreKeptAndManyMissingOnesAreCounted) {
    Do("view folder current f");
    Do("view tree create parts");
    // A chain of parts and, beside it, pairs of a part and one below it.
    Do("app sql d {WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) "
       "INSERT INTO part SELECT i, CASE WHEN i <= 300 THEN nullif(i - 1, 0) WHEN i % 2 THEN i - 1 END, "
       "'part ' || i FROM n}");
    TheWindow()->Rows().ExpandAll();
    const std::int64_t all = TheWindow()->Rows().Count();
    ASSERT_EQ(all, 20002); // with a folder and a tree
    ASSERT_TRUE(States().SaveState(&Saved(), TheWindow())) << Error();
    TheWindow()->Rows().CollapseAll();
    EXPECT_TRUE(Model().RestoreState(&Saved(), TheWindow()));
    EXPECT_EQ(Error(), "");
    EXPECT_EQ(TheWindow()->Rows().Count(), all);
    Do("app sql d {DELETE FROM part WHERE id > 300}");
    EXPECT_TRUE(Model().RestoreState(&Saved(), TheWindow()));
    EXPECT_EQ(TheWindow()->Rows().Count(), 302);
    EXPECT_NE(Error().find("expanded row \"part "), std::string::npos) << Error();
    EXPECT_NE(Error().find(" and 9829 more"), std::string::npos) << Error();
}

TEST_F(SavedStates, FoldersOfOneNameAreToldApart) {
    FreeFolder* const outer = Model().Views().Find("v")->RootFolder().Children().Find("f");
    FreeFolder& inner = outer->AddChild("f");
    inner.AddList(*host_.App().DataControls().Find("d")->FindDataSourceSimple("part"), false);
    ASSERT_TRUE(States().SaveState(&Saved(), TheWindow())) << Error();
    std::map<znString, std::vector<znString>> lists;
    ASSERT_TRUE(Saved().GetFolderLists(lists));
    EXPECT_EQ(lists, (std::map<znString, std::vector<znString>>{{"f (2)", {"part"}}}));
    outer->SetLists(inner.Lists());
    inner.SetLists({});
    EXPECT_TRUE(Model().RestoreState(&Saved(), TheWindow())) << Error();
    EXPECT_TRUE(outer->Lists().empty());
    EXPECT_EQ(inner.Lists().size(), 1U);
}

TEST_F(SavedStates, AStateThatIsGoneRefusesEveryQuestion) {
    State& state = Saved();
    ASSERT_TRUE(States().SaveState(&state, TheWindow())) << Error();
    Do("app state delete d s");
    EXPECT_EQ(host_.Manager().GetCurrentStatePtr(), nullptr);
    std::map<znString, bool> options;
    EXPECT_FALSE(state.GetOptions(options));
    EXPECT_EQ(Error(), "There is no state \"s\"");
    EXPECT_FALSE(States().SaveState(&state, TheWindow()));
    EXPECT_FALSE(Model().RestoreState(&state, TheWindow()));
    Do("app state create d s");
    EXPECT_TRUE(state.GetOptions(options));
    EXPECT_TRUE(options.empty());
}

TEST_F(SavedStates, NothingAndStatesOfOtherControlsAreRefused) {
    Do("app datactrl create other");
    Do("app state create other s");
    StateContainer& others = StatesOf(*host_.App().DataControls().Find("other"));
    EXPECT_FALSE(others.SaveState(&Saved(), TheWindow()));
    EXPECT_EQ(Error(), "The state \"s\" belongs to another data control");
    EXPECT_FALSE(others.SaveState(nullptr, TheWindow()));
    EXPECT_FALSE(States().SaveState(&Saved(), nullptr));
    EXPECT_FALSE(Model().RestoreState(nullptr, TheWindow()));
    EXPECT_FALSE(Model().RestoreState(&Saved(), nullptr));
    EXPECT_FALSE(Model().AddStateEntities(nullptr, &Saved(), {"e"}));
    EXPECT_FALSE(Model().RemoveStateEntities(host_.App().DataControls().Find("other"), &Saved(), {"e"}));
    EXPECT_EQ(States().FindState(nullptr), nullptr);
    ASSERT_TRUE(Model().DeleteView(Model().Views().Find("v"))) << Error();
    EXPECT_FALSE(States().SaveState(&Saved(), TheWindow()));
    EXPECT_EQ(Error(), "The window \"w\" shows no view");
}

TEST_F(SavedStates, AScriptMayDeleteTheWindowThatIsBeingRestored) {
    Tcl_Eval(interp_, "proc value args {}");
    Do("app sql d {INSERT INTO part VALUES (1, NULL, 'one'), (2, NULL, 'two')}");
    for (const char* const words :
         {"view folder current f", "view list create part", "view property create p", "view column create c",
          "view sort ascending"}) {
        Do(words);
    }
    View& view = *Model().Views().Find("v");
    view.Properties().Find("p")->SetGetScript("value");
    view.Columns().Find("c")->SetSortProperty("p");
    TheWindow()->Rows().ExpandAll();
    ASSERT_EQ(TheWindow()->Rows().Count(), 4);
    ASSERT_TRUE(States().SaveState(&Saved(), TheWindow())) << Error();
    TheWindow()->Rows().CollapseAll();
    Tcl_Eval(interp_, "proc value args {znbrowsermanager window delete}");
    EXPECT_FALSE(Model().RestoreState(&Saved(), TheWindow()));
    EXPECT_EQ(Error(), "The window \"w\" shows no view");
    EXPECT_EQ(TheWindow(), nullptr);
}

TEST_F(SavedStates, WhatASpoiltDatabaseHoldsIsHarmless) {
    Do("window part create t");
    ASSERT_TRUE(States().SaveState(&Saved(), TheWindow())) << Error();
    for (const char* const value : {"", "-1", "99999999999999999999", "true", "t"}) {
        for (const char* const field : {"subject", "key", "value"}) {
            Do("app sql d {UPDATE znbrowser_setting SET " + std::string(field) + " = ?} {" + value + "}");
            Model().RestoreState(&Saved(), TheWindow());
            std::map<znString, std::vector<znString>> lists;
            EXPECT_TRUE(Saved().GetFolderLists(lists));
        }
    }
}

} // namespace
} // namespace znhost
