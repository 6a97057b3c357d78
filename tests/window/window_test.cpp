// Windows as only C++ reaches them: null arguments, a host without a browser object, and the reselection
// signal.
#include "app/application.h"
#include "app/embedded_host.h"
#include "tests/frame/fake_application.h"
#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using Manager = znBrowserManagerTcl;

class WindowTest : public testing::Test, protected znListener<single_threaded> {
protected:
    WindowTest() : interp(Tcl_CreateInterp(), Tcl_DeleteInterp), host(interp.get()) {
        for (const char* script : {"view create v", "window create w", "window part create p",
                                   "window part event callback create c x"}) {
            Tcl_Eval(interp.get(), (std::string("znbrowsermanager ") + script).c_str());
        }
    }

    std::unique_ptr<Tcl_Interp, void (*)(Tcl_Interp*)> interp;
    znhost::EmbeddedHost host;
    Manager& manager = host.Manager();
    znSignal<single_threaded, const char*>& reselected = host.App().GetWindowReselectedSignal();
};

TEST_F(WindowTest, NullNamesAreRefusedWithTheMessageOfAnUnknownNameOrWithoutOne) {
    constexpr const char* null = nullptr;
    const struct {
        const char* message;
        std::function<bool(Manager&)> run;
    } operations[] = {
        {"", [](Manager& m) { return m.CreateWindowAccess(null); }},
        {"", [](Manager& m) { return m.CreateWindowPart(null, null); }},
        {"", [](Manager& m) { return m.DeleteWindowPart(null); }},
        {"", [](Manager& m) { return m.SetCurrentWindowPartByName(null); }},
        {"", [](Manager& m) { return m.CreateWindowCallback("c", null); }},
        {"", [](Manager& m) { return m.CreateGuiMap(null); }},
        {"", [](Manager& m) { return m.SetCurrentFindRequest(znString()); }},
        {"", [](Manager& m) { return m.SetCurrentWindowCallbackOperation(null); }},
        {"Cannot find window event : ", [](Manager& m) { return m.SetCurrentEvent(null); }},
        {"Cannot find callback : ", [](Manager& m) { return m.SetCurrentWindowCallback(null); }},
        {"Cannot find window called : ",
         [](Manager& m) { return m.SetCurrentWindowCallbackActionWindow(null); }},
        {"Unable to find gui map: ", [](Manager& m) { return m.UpdateCurrentGuiMap(null); }},
        {"Cannot find window called : ", [](Manager& m) { return m.OnTkTreeRequestExpand(null, 1); }},
        {"Cannot find column called : ", [](Manager& m) { return m.OnTkTreeRightHandClick("w", null, {}); }},
    };
    for (const auto& [message, run] : operations) {
        manager.SetOk();
        manager.AppendToBuff("left over", true, false);
        EXPECT_FALSE(run(manager)) << message;
        EXPECT_STREQ(manager.GetErrorText().c_str(), message);
    }
    EXPECT_TRUE(manager.DeleteWindowAccess(null));
    EXPECT_TRUE(manager.SetCurrentWindowAccess(null));
}

TEST_F(WindowTest, ChoosingTheCurrentWindowAgainEmitsItsName) {
    std::string heard;
    reselected.Connect(*this, [&heard](const char* name) { heard += name; });
    manager.CreateWindowAccess("w2");
    manager.SetCurrentWindowAccess("w");
    EXPECT_EQ(heard, "");
    manager.SetCurrentWindowAccess("w");
    manager.OnTkTreeSelectionChangeFinished("w");
    EXPECT_EQ(heard, "ww");
}

TEST_F(WindowTest, ANewTypeOfAGuiMapEndsWithTheErrorThatWasPending) {
    manager.CreateGuiMap("m");
    EXPECT_TRUE(manager.CreateGuiMappingTypetoType("bool", "icon"));
    manager.SetError("pending");
    EXPECT_FALSE(manager.CreateGuiMappingTypetoType("INTEGER", "Icon"));
    EXPECT_EQ(manager.GetCurrentGuiMapType(), ZNBROWSER_GUIMAP_INT_TO_ICON);
    EXPECT_STREQ(manager.GetErrorText().c_str(), "pending");
}

TEST_F(WindowTest, ASlotMayDeleteTheWindowOfAnEvent) {
    reselected.Connect(*this, [this](const char* name) { manager.DeleteWindowAccess(name); });
    EXPECT_FALSE(manager.OnTkTreeRightHandClick("w", "Name", {1}));
    EXPECT_EQ(manager.GetCurrentWindowAccessPtr(), nullptr);
}

TEST(WindowWithoutBrowserTest, NothingIsFoundAndNothingIsMade) {
    FakeApplication application;
    Manager manager(&application);
    znString names;
    EXPECT_FALSE(manager.SetCurrentWindowAccess("w"));
    EXPECT_FALSE(manager.SetWindowStripeDisplay(true, true));
    EXPECT_FALSE(manager.OnTkTreeSetStatePos("w", 1));
    EXPECT_FALSE(manager.DeleteGuiMap("m"));
    EXPECT_TRUE(manager.CreateGuiMap("m"));
    EXPECT_TRUE(manager.GetWindowAccessNames(names) && names.empty());
    EXPECT_TRUE(manager.GetGuiMapNames(names) && names.empty());
    manager.DeleteBrowserManagerCollectorTcl();
}

} // namespace
