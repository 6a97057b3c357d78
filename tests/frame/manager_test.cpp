// The manager as a C++ client sees it: lifetimes, script services, the result buffer, and the barrier against
// what a host throws.
#include "host/znIBrowserInfo.h"
#include "tests/frame/fake_application.h"
#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <new>
#include <stdexcept>

namespace {

class ManagerTest : public testing::Test {
protected:
    ManagerTest() : manager(std::make_unique<znBrowserManagerTcl>(&application)) {}
    ~ManagerTest() override {
        if (manager) manager->DeleteBrowserManagerCollectorTcl();
    }

    FakeApplication application;
    std::unique_ptr<znBrowserManagerTcl> manager;
};

TEST_F(ManagerTest, CopiesShareInfoAndHelperUntilTheLastOne) {
    EXPECT_STREQ(manager->GetBrowserInfo()->GetVersion(), "1.0");
    znBrowserManagerTcl copy(*manager);
    EXPECT_EQ(copy.GetBrowserInfo(), manager->GetBrowserInfo());
    EXPECT_EQ(copy.GetBrowserManagerViewTcl(), manager->GetBrowserManagerViewTcl());
    copy.CleanUp();
    copy.CleanUp();
    EXPECT_NE(manager->GetBrowserManagerViewTcl(), nullptr);
    copy = *manager;
    copy.DeleteBrowserManagerViewTcl();
    EXPECT_EQ(manager->GetBrowserManagerViewTcl(), nullptr);
    manager->CreateBrowserManagerViewTcl();
    EXPECT_EQ(copy.GetBrowserManagerViewTcl(), manager->GetBrowserManagerViewTcl());
    copy.DeleteBrowserManagerCollectorTcl();
    EXPECT_EQ(manager->GetBrowserManagerCollectorTcl(), nullptr);
    manager.reset();
    EXPECT_STREQ(copy.GetBrowserInfo()->GetVersion(), "1.0");
    // The command still belongs to the dead original: the host's duty is to delete it.
    Tcl_DeleteCommand(application.GetTclInterp(), "znbrowsermanager");
}

TEST_F(ManagerTest, ScriptServices) {
    application.Eval("proc give {args} {return <[join $args |]>}; proc fail {} {error boom}");
    EXPECT_FALSE(manager->EvalTclScript(nullptr));
    EXPECT_STREQ(manager->GetErrorText().c_str(), "NULL pointer found");
    EXPECT_TRUE(manager->EvalTclScript("set x 1")) << "and the error text stays";
    EXPECT_STREQ(manager->GetErrorText().c_str(), "NULL pointer found");

    znString result("before");
    EXPECT_TRUE(manager->GetStringFromScript(nullptr, result, "a"));
    EXPECT_EQ(result, "before");
    EXPECT_TRUE(manager->GetStringFromScript("give", result, "a b"));
    EXPECT_EQ(result, "<a b>");
    EXPECT_TRUE(manager->GetStringFromScript("give", result, ""));
    EXPECT_EQ(result, "<>");
    EXPECT_FALSE(manager->GetStringFromScript("fail", result, ""));
    EXPECT_EQ(result, "<>");
    EXPECT_STREQ(manager->GetErrorText().c_str(), "Error while executing TCL script");

    application.Eval("namespace eval ::znbrowser {proc UpdatePopupInputScript {s} {set ::input $s}}");
    EXPECT_TRUE(manager->UpdateTclInputScript(nullptr));
    EXPECT_TRUE(manager->UpdateTclInputScript("x y"));
    EXPECT_EQ(application.Eval("set ::input"), " x y ");

    EXPECT_FALSE(manager->UpdateTclFreeFolderSelection({})) << "the reset procedure is called first, always";
    application.Eval("proc ::znbrowser::ResetSelectedFreeFoldersArray {} {incr ::resets}");
    EXPECT_TRUE(manager->UpdateTclFreeFolderSelection({}));
    EXPECT_EQ(application.Eval("set ::resets"), "1");
    application.Eval(
        "proc ::znbrowser::ResetSelectedFreeFoldersArray {} {znbrowsermanager view column current x}");
    EXPECT_TRUE(manager->UpdateTclFreeFolderSelection({})) << "whatever error its commands leave";
    EXPECT_FALSE(manager->GetState());
    application.Eval("proc ::znbrowser::ResetSelectedFreeFoldersArray {} {}");
    EXPECT_FALSE(manager->UpdateTclFreeFolderSelection({nullptr}));
}

TEST_F(ManagerTest, TextsReachProceduresAsTheyAre) {
    application.Eval("proc give {text} {return $text}\n"
                     "namespace eval ::znbrowser {proc UpdatePopupInputScript {s} {set ::input $s}}");
    for (const std::string text :
         {"[set ::ran 1]", "$env(HOME)", "a\"b", "a\\", "\\n", "{", "}", "a\nb", ";set ::ran 1", "-x", "#x",
          "]", "\t[", "\"; set ::ran 1; #", "\\\n", "$", "a\\\"b"}) {
        znString result;
        EXPECT_TRUE(manager->GetStringFromScript("give", result, text)) << text;
        EXPECT_EQ(result, text);
        EXPECT_TRUE(manager->UpdateTclInputScript(text.c_str())) << text;
        EXPECT_EQ(application.Eval("set ::input"), " " + text + " ");
        EXPECT_EQ(application.Eval("info exists ::ran"), "0") << text;
    }
}

TEST_F(ManagerTest, ResultBufferJoinsQuotesAndBraces) {
    const struct {
        const char* text;
        bool quoted, separate, braced;
        const char* expected;
    } rows[] = {
        {"a b", false, true, true, "{a b}"},
        {nullptr, true, true, true, "{a b}"},
        {"x", false, true, true, "{a b} x"},
        {"c d", true, true, true, "{a b} x \"{c d}\""},
        {"\te", false, false, true, "{a b} x \"{c d}\"\te"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(manager->_AppendToBuff(row.text, row.quoted, row.separate, row.braced),
                  row.text != nullptr);
        EXPECT_STREQ(manager->GetBuff(), row.expected);
    }
    manager->ResetBuff();
    EXPECT_FALSE(manager->AppendToListBuff(nullptr));
    manager->AppendToListBuff("a");
    manager->AppendToListBuff("b c");
    manager->AppendToBuff(-5, true, false);
    EXPECT_STREQ(manager->GetBuff(), " {a} {b c} -5");
}

TEST_F(ManagerTest, CommandTextSkipsMissingWords) {
    Tcl_Obj* const word = Tcl_NewStringObj("a", 1);
    Tcl_IncrRefCount(word);
    Tcl_Obj* const words[] = {word, nullptr, word};
    manager->SetCommand(3, words);
    EXPECT_STREQ(manager->GetBuff(), "");
    EXPECT_STREQ(manager->GetError(), "[Command] a a\n\t[Error] Unknown error");
    Tcl_DecrRefCount(word);
}

TEST_F(ManagerTest, AppWordsAreRotatedInTheCallersArray) {
    std::array<Tcl_Obj*, 4> words{};
    const char* const texts[] = {"znbrowsermanager", "app", "x", "y"};
    for (std::size_t i = 0; i < words.size(); ++i)
        Tcl_IncrRefCount(words[i] = Tcl_NewStringObj(texts[i], -1));
    std::string seen;
    application.onAppCommand = [&](int objc, Tcl_Obj* const* objv) {
        for (int i = 0; i < objc; ++i) seen += Tcl_GetString(objv[i]);
        return TCL_ERROR;
    };
    EXPECT_EQ(manager->EvalTclCommand(4, words.data()), TCL_ERROR);
    EXPECT_EQ(seen, "xy");
    EXPECT_STREQ(Tcl_GetString(words[2]), "znbrowsermanager");
    EXPECT_STREQ(Tcl_GetString(words[3]), "app");
    for (Tcl_Obj* const word : words) Tcl_DecrRefCount(word);
}

TEST_F(ManagerTest, NothingThrownByTheHostLeavesTheCommand) {
    const std::function<int()> throwers[] = {
        []() -> int { throw std::runtime_error("torn"); }, []() -> int { throw "torn"; },
        []() -> int { throw znString("torn"); },           []() -> int { throw 7; },
        []() -> int { throw std::bad_alloc(); },
    };
    for (const auto& thrower : throwers) {
        application.onAppCommand = [&](int, Tcl_Obj* const*) { return thrower(); };
        // Often enough to use up the interpreter's nesting levels, if each cost one.
        for (int i = 0; i < 1200; ++i) {
            ASSERT_EQ(Tcl_Eval(application.GetTclInterp(), "znbrowsermanager app x"), TCL_OK);
        }
        EXPECT_EQ(
            application.Eval("string first {[Command] znbrowsermanager app x} [znbrowsermanager app x]"),
            "0");
    }
    EXPECT_EQ(application.Eval("expr 1+1"), "2");
}

TEST_F(ManagerTest, WithoutABrowserObjectOperationsFailQuietly) {
    EXPECT_STREQ(manager->GetCurrentView(), "");
    EXPECT_FALSE(manager->DeleteView("v"));
    EXPECT_TRUE(manager->SetFlushFlag(true));
    EXPECT_FALSE(manager->ApplyPendingChanges());
    EXPECT_STREQ(manager->GetErrorText().c_str(), "Current Data Control object is not set");
    manager->TemporaryTestFunction();
    EXPECT_FALSE(manager->ResetCurrentViewProperty());
    for (const char* const script :
         {"view names", "view create v", "window names", "window create w", "view column names"})
        EXPECT_EQ(Tcl_Eval(application.GetTclInterp(), (std::string("znbrowsermanager ") + script).c_str()),
                  TCL_OK);
}

} // namespace
