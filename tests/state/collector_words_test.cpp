// What each collector word asks of a collector, and what becomes of odd answers.
#include "frame/collector_helper.h"
#include "tests/state/fake_collector.h"
#include "tests/store/host_testing.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserTclCommandTree.h"

#include <stdexcept>

namespace {

/// The model of the embedded host, with another collector.
class WithCollector final : public znIBrowserApplication {
public:
    explicit WithCollector(znIBrowserApplication& model) : model_(model) {}

    FakeCollector collector;

    znIBrowserDataCtrl* FindDataCtrl(const char* name) override { return model_.FindDataCtrl(name); }
    void GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) override { model_.GetDataCtrls(controls); }
    znIBrowser* GetBrowser() override { return model_.GetBrowser(); }
    const char* GetTclNameSpace() override { return model_.GetTclNameSpace(); }
    Tcl_Interp* GetTclInterp() override { return model_.GetTclInterp(); }
    int EvalAppCommand(int objc, Tcl_Obj* const objv[]) override { return model_.EvalAppCommand(objc, objv); }
    znSignal<single_threaded, const char*>& GetWindowReselectedSignal() override {
        return model_.GetWindowReselectedSignal();
    }
    znIBrowserCollector* GetCollector() override { return &collector; }

private:
    znIBrowserApplication& model_;
};

constexpr char setup[] = R"(
    interp alias {} zn {} znbrowsermanager
    proc said {args} {regsub {^\[Command\] .*\n\t\[Error\] } [zn {*}$args] {error: }}
    foreach words {{datactrl current m} {datasource simple create own} {view create v} {view datactrl connect}
        {view property create name} {view property type string} {view property connect part name}
        {window create w} {view create other} {window create last} {window current w}} {zn {*}$words}
)";

class CollectorWords : public DataHost {
protected:
    CollectorWords() : application(App()), manager(&application), collector(application.collector) {
        Eval(setup);
        collector.kinds = {&Source("part"), nullptr, &Source("own")};
        collector.names = {"isolate", "a b", "{"};
        collector.name = "isolate";
        collector.steps = 3;
        collector.items.Append(&Source("part"), 10);
        collector.items.Append(nullptr, 1);
        collector.items.Append(&Source("part"), 11);
    }
    ~CollectorWords() override {
        Eval("rename znbrowsermanager {}");
        manager.DeleteBrowserManagerCollectorTcl();
    }
    std::string Said(const std::string& words) { return Eval("said " + words); }

    WithCollector application;
    znBrowserManagerTcl manager;
    FakeCollector& collector;
};

struct Row {
    const char* words;
    const char* answer;
    const char* calls;
};

/// In order: what is chosen stays so. A control is one of seven, and the last one is that of undo.
constexpr Row table[] = {
    {"collector datasource simple names", "part own", ""},
    {"collector datasource simple current", "none", ""},
    {"collector selection add", "", "Collect 0 0 all\n"},
    {"collector datasource simple current nosuch", "error: The collector cannot find datasource :  nosuch",
     ""},
    {"collector datasource simple current part", "part", "SetKind part\n"},
    {"collector selection rem displayed", "", "Collect 1 1 kind\n"},
    {"collector selection toggle selected", "", "Collect 2 0 kind\n"},
    {"collector selection set all", "", "Collect 3 2 kind\n"},
    {"collector selection add byprop name x {}", "", "CollectByValues 0 2 kind\n"},
    {"collector selection set byprop nosuch x", "error: Unable to find view property:  nosuch", ""},
    {"collector selection count", "part 2 own 2", ""},
    {"collector selection dataitems", "\"bolt\" \"Cover\"", ""},
    {"collector selection dataitems nosuch", "error: Unable to find view property:  nosuch", ""},
    {"collector selection clear", "", "ClearCollection\n"},
    {"collector preselector dataitem name", "\"bolt\"", ""},
    {"collector datasource simple current none", "none", "SetKind \n"},
    {"collector option names", "isolate {a b} \\{", ""},
    {"collector option current {a b}", "isolate", "SetCurrentOption a b\n"},
    {"collector option current nosuch", "error: Cannot find collector option :  nosuch", ""},
    {"collector option perform", "", "PerformOption isolate\n"},
    {"collector option perform {a b}", "", "PerformOption a b\n"},
    {"collector option perform {}", "error: Cannot find collector option :  ", ""},
    {"collector option create new go", "new", "CreateOption new go\n"},
    {"collector option create isolate go", "error: Collector option already exists :  isolate", ""},
    {"collector option delete {a b}", "", "DeleteOption a b\n"},
    {"collector optionselector current none", "toggle", "SetClickMode 0\n"},
    {"collector optionselector current select", "toggle", "SetClickMode 1\n"},
    {"collector isolate", "", "ChangeDisplay 4\n"},
    {"collector isolateonly", "", "ChangeDisplay 5\n"},
    {"collector showonly", "", "ChangeDisplay 3\n"},
    {"collector showhide show", "", "ChangeDisplay 0\n"},
    {"collector showhide hide", "", "ChangeDisplay 1\n"},
    {"collector showhide toggle", "", "ChangeDisplay 2\n"},
    {"collector showhide all", "", "ChangeDisplay 6\n"},
    {"collector autofit no", "true", "SetAutofit 0\n"},
    {"collector preselector on", "on", "SetPreselector 1\n"},
    {"collector undo", "", "Undo\n"},
    {"collector undo count", "3", ""},
    {"collector undo names", "isolate {a b} \\{", ""},
    {"collector undo restore", "", "Restore\n"},
    {"collector undo clear", "", "ClearSteps\n"},
    {"collector pnlcolselector create x", "x", "CreateNamedCollection x\n"},
    {"collector pnlcolselector create {a b}", "error: Panel collection already exists :  a b", ""},
    {"collector pnlcolselector current {a b}", "isolate", "SetCurrentNamedCollection a b\n"},
    {"collector pnlcolselector delete nosuch", "error: Cannot find panel collection :  nosuch", ""},
    {"collector pnlcolselector delete {a b}", "", "DeleteNamedCollection a b\n"},
    {"collector addtopnlcol", "", "AddToNamedCollection isolate\n"},
    {"collector addtopnlcol {a b}", "", "AddToNamedCollection a b\n"},
    {"collector show 0", "true", "SetBarShown 0\n"},
    {"collector addremove show yes", "false", "SetControlShown 0 1\n"},
    {"collector entityselector enable yes", "false", "SetControlEnabled 1 1\n"},
    {"collector optionselector show off", "false", "SetControlShown 2 0\n"},
    {"collector pnlcolselector enable off", "false", "SetControlEnabled 3 0\n"},
    {"collector preselector show 0", "false", "SetControlShown 4 0\n"},
    {"collector undo enable 1", "true", "SetControlEnabled 5 1\n"},
    {"collector selection enable 1", "false", "SetControlEnabled 6 1\n"},
    {"OnTkColListItemSelected w own", "", "SetKind own\n"},
    {"OnTkColOptionItemSelected w {a b}", "", "SetCurrentOption a b\n"},
};

TEST_F(CollectorWords, AskTheCollectorForWhatTheySay) {
    for (const Row& row : table) {
        collector.calls.clear();
        EXPECT_EQ(Said(row.words), row.answer) << row.words;
        EXPECT_EQ(collector.calls, row.calls) << row.words;
    }
    for (const Row& row : table) {
        if (!row.calls[0]) continue;
        collector.accepts = false;
        const std::string answer = Said(row.words);
        EXPECT_EQ(answer.substr(0, 6), "error:") << row.words << " was refused";
        collector.accepts = true;
    }
}

TEST_F(CollectorWords, EventsMakeTheirWindowCurrentFirst) {
    Eval("zn window current last");
    EXPECT_EQ(Said("OnTkColOptionItemSelected w nosuch"), "error: Cannot find collector option :  nosuch");
    EXPECT_EQ(Eval("list [zn window current] [zn view current]"), "w v");
    EXPECT_EQ(Said("OnTkColListItemSelected last none"), "");
    EXPECT_EQ(Eval("zn window current"), "last");
}

TEST_F(CollectorWords, SayWhatIsMissing) {
    Eval("foreach name {w last} {zn window current $name; zn window delete}");
    Eval("foreach name {v other} {zn view current $name; zn view delete}");
    EXPECT_EQ(Said("collector isolate"), "error: Current View object is not set");
    EXPECT_EQ(Said("collector undo show"), "error: Current Window object is not set");
    EXPECT_EQ(Said("collector datasource simple current part"), "error: Current View object is not set");
    EXPECT_EQ(Said("collector datasource simple current none"), "none");
    Eval("zn view create bare");
    EXPECT_EQ(Said("collector selection dataitems"), "error: Current View Property object is not set");
    collector.steps = 0;
    collector.name = nullptr;
    collector.names = {nullptr};
    EXPECT_EQ(Said("collector undo"), "error: There is no step to take back");
    EXPECT_EQ(Said("collector undo restore"), "error: There is no step to restore");
    EXPECT_EQ(Said("collector option perform"), "error: Cannot find collector option : ");
    EXPECT_EQ(Said("collector option names"), "");
    EXPECT_EQ(Said("collector addtopnlcol"), "error: No panel collection is current");
    EXPECT_EQ(collector.calls, "SetKind \n");
}

TEST_F(CollectorWords, AKindThatGoesIsChosenNoMore) {
    EXPECT_EQ(Said("collector datasource simple current own"), "own");
    EXPECT_EQ(manager.GetCurrentCollectorDataSourceSimplePtr(), &Source("own"));
    collector.kinds.clear(); // the view shows it no more
    EXPECT_EQ(manager.GetCurrentCollectorDataSourceSimplePtr(), nullptr);
    EXPECT_EQ(Said("collector selection add"), "error: The collector cannot find datasource :  own");
    EXPECT_EQ(Said("collector datasource simple current"), "own");
    collector.calls.clear();
    Eval("zn datasource simple delete own");
    EXPECT_EQ(Said("collector datasource simple current"), "none");
    EXPECT_EQ(collector.calls, "SetKind \n");
}

TEST_F(CollectorWords, AChangeThatThrowsOrRunsScriptsLeavesTheWordsInOrder) {
    collector.during = [] { throw std::runtime_error("boom"); };
    EXPECT_EQ(Said("collector datasource simple current part"), "error: boom");
    EXPECT_EQ(Said("collector datasource simple current"), "none");
    static znBrowserManagerTcl* inner;
    inner = &manager;
    collector.during = [] {
        inner->SetCurrentView("nosuch");
        inner->DeleteBrowserManagerCollectorTcl();
    };
    EXPECT_EQ(Said("collector isolate"), "") << "what a script leaves behind is none of it";
    EXPECT_TRUE(manager.GetState());
    EXPECT_EQ(Said("collector datasource simple current part"), "none");
}

TEST_F(CollectorWords, NullTextsAreErrors) {
    EXPECT_FALSE(manager.SetCurrentCollectorDataSourceSimple(nullptr));
    EXPECT_FALSE(manager.SetCurrentCollectorOption(nullptr));
    EXPECT_FALSE(manager.CreateCollectorOption("x", nullptr));
    EXPECT_FALSE(manager.CreateCollectorPanelCollection(nullptr));
    EXPECT_FALSE(manager.SetCurrentCollectorPanelCollection(nullptr));
    EXPECT_FALSE(manager.ChangeCollectorSelectionByProp(ZNBROWSER_COLLECT_ADD, nullptr, {"x"}));
    EXPECT_FALSE(manager.ChangeCollectorSelectionByProp(ZNBROWSER_COLLECT_TOGGLE, "name", {"x"}));
    EXPECT_FALSE(manager.ChangeCollectorSelectionByProp(ZNBROWSER_COLLECT_ADD, "name", {}));
    EXPECT_EQ(collector.calls, "");
}

TEST_F(CollectorWords, CompletionKnowsTheNames) {
    const auto names = [this](const char* kind) {
        std::vector<std::string> found;
        std::string joined;
        znBrowserTclCommandTree::GetNames(manager, kind, found);
        for (const std::string& name : found) joined += name + '|';
        return joined;
    };
    EXPECT_EQ(names("KIND"), "part|own|");
    EXPECT_EQ(names("OPTION"), "isolate|a b|{|");
    EXPECT_EQ(names("COLLECTION"), "isolate|a b|{|");
}

} // namespace
