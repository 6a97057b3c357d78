// Popup menus on a display: what its user is asked for, and what becomes of a menu that is open.
#include "app/application.h"
#include "app/embedded_host.h"
#include "window/window_display.h"
#include "window/window_list.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <functional>
#include <memory>
#include <string>
#include <tcl.h>
#include <vector>

namespace {

/// A display whose user does as he is told.
class Display final : public znhost::WindowDisplay {
public:
    std::function<bool(znhost::InputValues& values)> answer;
    std::string asked;
    int closed = 0;

    void Open(znhost::Window&) override {}
    void MakePart(const std::string&) override {}
    void PackPart(znhost::Window&, const std::string&, const std::vector<std::string>&) override {}
    void HidePart(const std::string&) override {}
    void RemovePart(const std::string&) override {}
    void Close(znhost::Window&) override {}
    std::size_t OpenWindows() const override { return 0; }
    void ClosePopup(znhost::Window&) override { ++closed; }
    bool AskInput(znhost::Window&, const std::string& title, znhost::InputValues& values) override {
        asked += title;
        for (const znhost::InputValue& value : values) asked += ' ' + value.field + '=' + value.text;
        return answer(values);
    }
};

class PopupDisplayTest : public testing::Test {
protected:
    PopupDisplayTest() : interp(Tcl_CreateInterp(), Tcl_DeleteInterp), host(interp.get()) {
        host.App().Model().Windows().SetDisplay(&display);
        Run("app datactrl create m");
        for (const char* script : {"datactrl current m", "view create v", "view datactrl connect",
                                   "window create w", "window post true", "view popupmenu create menu",
                                   "view popupmenu connect view", "view popupmenuitem create x",
                                   "view popupmenuitem caption Ask", "view popupmenuitem script done"})
            Run(script);
        for (const char* const field : {"grade unsigned", "size double", "note string"})
            Run(std::string("app inputfield create m ") + field);
        Run("view popupmenuitem userinput grade size note");
        Tcl_Eval(interp.get(), "set done {}; proc done {w i rows value} {append ::done $value}");
    }
    ~PopupDisplayTest() override { host.App().Model().Windows().SetDisplay(nullptr); }

    std::string Run(const std::string& words) {
        Tcl_Eval(interp.get(), ("znbrowsermanager " + words).c_str());
        return Tcl_GetStringResult(interp.get());
    }
    std::string Value(const char* field) {
        Run(std::string("userinput current ") + field);
        return Run("userinput value");
    }
    std::string Done() { return Tcl_GetVar(interp.get(), "done", TCL_GLOBAL_ONLY); }

    Display display;
    std::unique_ptr<Tcl_Interp, void (*)(Tcl_Interp*)> interp;
    znhost::EmbeddedHost host;
};

TEST_F(PopupDisplayTest, TheValuesOfTheUserAreSetBeforeTheItemIsPerformed) {
    display.answer = [](znhost::InputValues& values) {
        values[0].text = "4294967295";
        values[1].text = "0x10";
        values[2].text = "a b";
        return true;
    };
    EXPECT_EQ(Run("view popupmenuitem perform v"), "");
    EXPECT_EQ(display.asked, "Ask grade=0 size=0 note=");
    EXPECT_EQ(Value("size"), "16.000000");
    EXPECT_EQ(Value("note"), "a b");
    EXPECT_EQ(Done(), "v");
    display.asked.clear();
    Run("view popupmenuitem perform v");
    EXPECT_EQ(display.asked, "Ask grade=4294967295 size=16 note=a b"); // the last value of an unsigned field
    Run("window post false");
    display.asked.clear();
    Run("view popupmenuitem perform v");
    EXPECT_EQ(display.asked, ""); // nobody sees the window
}

TEST_F(PopupDisplayTest, WhatIsCancelledOrNoValueChangesNoField) {
    const struct {
        const char* grade;
        const char* size;
        bool taken;
        const char* answer;
    } cases[] = {
        {"1", "2", false, ""},
        {"-1", "2", true, "got \"-1\" for the input field \"grade\": it must be a whole number from 0"},
        {"4294967296", "2", true, "got \"4294967296\" for the input field \"grade\""},
        {"1", "two", true, "got \"two\" for the input field \"size\": it must be a number"},
    };
    for (const auto& given : cases) {
        display.answer = [&](znhost::InputValues& values) {
            values[0].text = given.grade;
            values[1].text = given.size;
            return given.taken;
        };
        const std::string got = Run("view popupmenuitem perform v");
        EXPECT_NE(got.find(given.answer), std::string::npos) << got;
        EXPECT_EQ(got.empty(), *given.answer == '\0') << got;
        EXPECT_EQ(Value("size"), "0.000000");
        EXPECT_EQ(Done(), "");
    }
}

TEST_F(PopupDisplayTest, WhileTheUserIsAskedAnythingMayBeDeleted) {
    for (const char* script : {"app inputfield delete m size", "view popupmenuitem delete x",
                               "view popupmenu delete menu", "window delete"}) {
        display.answer = [&](znhost::InputValues&) {
            Run(script);
            return true;
        };
        EXPECT_EQ(Run("view popupmenuitem perform v"), "") << script;
        EXPECT_EQ(Done(), "") << script;
        for (const char* again :
             {"app inputfield create m size double", "view create v", "view datactrl connect",
              "window create w", "window post true", "view popupmenu create menu",
              "view popupmenuitem create x", "view popupmenuitem script done",
              "view popupmenuitem userinput grade size note"})
            Run(again);
    }
}

TEST_F(PopupDisplayTest, AMenuThatIsOpenIsClosedWhenItIsDeleted) {
    Run("view popupmenu create below");
    Run("view popupmenu create other");
    Run("view popupmenu current menu");
    Run("view popupmenuitem cascade below");
    for (const char* const menu : {"other", "below", "menu"}) {
        Run("OnTkTreePopupMenu w true");
        const int before = display.closed;
        Run(std::string("view popupmenu delete ") + menu);
        EXPECT_EQ(display.closed - before, menu == std::string("other") ? 0 : 1) << menu;
    }
}

} // namespace
