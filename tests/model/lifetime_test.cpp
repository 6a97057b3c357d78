// Scripts that delete what runs them, and what is told to those who show a view.
#include "host/app/application.h"
#include "host/model/browser.h"
#include "host/model/view.h"
#include "host/store/data_ctrl.h"
#include "host/znBrowserDataItems.h"
#include "znIBrowserManagerTcl.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <functional>

namespace znhost {
namespace {

/// A scripting layer whose scripts are functions.
class ScriptedManager final : public znIBrowserManagerTcl {
public:
    int EvalTclCommand(int, Tcl_Obj* const[]) override { return TCL_OK; }
    bool EvalTclScript(const char*) override { return script(); }
    bool GetStringFromScript(const char*, znString&, znString) override { return false; }
    const char* GetCurrentView() const override { return ""; }
    Tcl_Interp* GetTclInterp() const override { return nullptr; }
    bool UpdateTclInputScript(const char*) override { return false; }
    bool UpdateTclFreeFolderSelection(const std::vector<znIBrowserViewItemFreeFolder*>&) override {
        return false;
    }

    std::function<bool()> script;
};

struct Observer final : ViewObserver {
    void OnViewChanged(unsigned bits) override {
        changes |= bits;
        ++batches;
    }
    void OnExpanded(FreeFolder& folder, znIBrowserDataSourceSimple*, bool, bool) override {
        told += "expanded " + folder.Name() + " ";
    }
    void OnFolderDeleted(FreeFolder& folder) override { told += "folder " + folder.Name() + " "; }
    void OnColumnDeleted(Column& column) override { told += "column " + column.Name() + " "; }
    void OnDataSourceDeleted(znIBrowserDataSource&) override { told += "source "; }
    void OnViewDeleted() noexcept override { told += "view"; }

    unsigned changes = 0;
    int batches = 0;
    std::string told;
};

class Lifetime : public testing::Test {
protected:
    Lifetime() {
        application_.SetManager(&manager_);
        browser_.CreateView("v", false);
    }
    ~Lifetime() override { Tcl_DeleteInterp(interp_); }
    View& TheView() { return *browser_.Views().Find("v"); }

    Tcl_Interp* const interp_ = Tcl_CreateInterp();
    CallLog log_;
    ScriptedManager manager_;
    Application application_{interp_, log_};
    Browser& browser_ = application_.Model();
};

TEST_F(Lifetime, AnOperationMayDeleteItsView) {
    browser_.CreateViewOperation(&TheView(), "o");
    ViewOperation& operation = *TheView().Operations().Find("o");
    operation.SetScript("anything");
    manager_.script = [&] { return browser_.DeleteView(&TheView()); };
    EXPECT_TRUE(operation.Perform());
    EXPECT_TRUE(browser_.Views().IsEmpty());
}

TEST_F(Lifetime, AFailingScriptIsReportedInTheBackgroundAndLeavesTheResultAlone) {
    browser_.CreateViewOperation(&TheView(), "o");
    ViewOperation& operation = *TheView().Operations().Find("o");
    operation.SetScript("anything");
    manager_.script = [&] {
        Tcl_SetObjResult(interp_, Tcl_NewStringObj("what went wrong", -1));
        return false;
    };
    Tcl_Eval(interp_, "proc background {message options} {set ::reported $message}\n"
                      "interp bgerror {} background");
    Tcl_SetObjResult(interp_, Tcl_NewStringObj("mine", -1));
    EXPECT_FALSE(operation.Perform());
    EXPECT_STREQ(Tcl_GetStringResult(interp_), "mine");
    while (Tcl_DoOneEvent(TCL_DONT_WAIT)) {
    }
    EXPECT_STREQ(Tcl_GetVar(interp_, "reported", TCL_GLOBAL_ONLY), "what went wrong");
}

TEST_F(Lifetime, AValueScriptMayDeleteItsProperty) {
    browser_.CreateViewProperty(&TheView(), "p");
    ViewProperty& property = *TheView().Properties().Find("p");
    browser_.ConnectScriptProperty(&property, "value");
    const auto deletes = [](ClientData view, Tcl_Interp* interp, int, Tcl_Obj* const[]) {
        View& owner = *static_cast<View*>(view);
        owner.DeleteProperty(*owner.Properties().Find("p"));
        Tcl_SetObjResult(interp, Tcl_NewStringObj("last words", -1));
        return TCL_OK;
    };
    Tcl_CreateObjCommand(interp_, "value", deletes, &TheView(), nullptr);
    znString value;
    EXPECT_TRUE(property.DataProperty(nullptr)->GetValueString({}, 0, value));
    EXPECT_EQ(value, znString("last words"));
}

TEST_F(Lifetime, FoldersMayBeNestedDeeperThanTheStack) {
    FreeFolder* folder = &TheView().RootFolder();
    for (int depth = 0; depth < 50000; ++depth) folder = &folder->AddChild("f");
    EXPECT_EQ(TheView().RootFolder().WithBelow().size(), 50001U);
    EXPECT_TRUE(browser_.DeleteView(&TheView()));
}

TEST_F(Lifetime, ObserversAreToldInBatchesAndBeforeAnythingGoes) {
    Observer observer;
    TheView().AddObserver(observer);
    browser_.SetFlushFlag(false);
    FreeFolder& folder = TheView().RootFolder().AddChild("f");
    folder.AddChild("g");
    browser_.CreateTextBoxColumn(&TheView(), "c", "");
    EXPECT_EQ(observer.batches, 0);
    browser_.ApplyPendingChanges(&folder);
    EXPECT_EQ(observer.batches, 1);
    EXPECT_EQ(observer.changes, unsigned{VIEW_ROWS | VIEW_COLUMNS});
    browser_.ExpandFreeFolder(&TheView(), &folder, true);
    browser_.DestroyFreeFolder(&folder, true);
    browser_.DeleteColumn(TheView().Columns().Find("c"));
    browser_.DeleteView(&TheView());
    EXPECT_EQ(observer.told, "expanded f folder g folder f column c view");
}

TEST_F(Lifetime, StylesThatWereDeletedAreNotDrawn) {
    browser_.CreateTextBoxColumn(&TheView(), "c", "");
    Column& column = *TheView().Columns().Find("c");
    column.CreateStyle("own");
    column.CreateStyle("folder");
    FreeFolder& folder = TheView().RootFolder();
    column.SetStyle(column.FindStyle("own"));
    folder.SetStyle(column.FindStyle("folder"));
    EXPECT_EQ(folder.StyleIn(column), column.Styles().Find("folder"));
    column.DeleteStyle(column.FindStyle("folder"));
    EXPECT_EQ(folder.StyleIn(column), column.Styles().Find("own"));
    column.DeleteStyle(column.FindStyle("own"));
    EXPECT_EQ(folder.StyleIn(column), nullptr);
}

} // namespace
} // namespace znhost
