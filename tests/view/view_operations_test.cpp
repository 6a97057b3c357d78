// The view family as a C++ client sees it: null names and objects, a host without a browser object, and the
// operations that no command reaches.
#include "host/app/embedded_host.h"
#include "tests/frame/fake_application.h"
#include "view/view_helper.h"
#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>

namespace {

using Manager = znBrowserManagerTcl;

class ViewOperations : public testing::Test {
protected:
    ViewOperations() : interp(Tcl_CreateInterp()), host(interp), manager(host.Manager()) {
        manager.CreateView("V", false);
        manager.CreateTextBoxColumn("c", "");
        manager.CreateViewStyle("s");
        manager.CreateViewStyleElement("e", nullptr);
        manager.SetCurrentFreeFolder("V");
        manager.CreateViewProperty("p");
    }
    ~ViewOperations() override {
        manager.DeleteBrowserManagerCollectorTcl();
        Tcl_DeleteInterp(interp);
    }

    /// The message of an operation that must fail.
    std::string Fault(bool succeeded) { return succeeded ? "succeeded" : manager.GetErrorText().c_str(); }

    Tcl_Interp* interp;
    znhost::EmbeddedHost host;
    Manager& manager;
};

TEST_F(ViewOperations, NullNamesAreRefused) {
    struct Case {
        bool (Manager::*operation)(const char*);
        const char* message;
    };
    const Case cases[] = {
        {&Manager::SetCurrentView, "Cannot set current view to NULL"},
        {&Manager::DeleteView, "Cannot find view : "},
        {&Manager::SetCurrentColumn, "Unable to find column: "},
        {&Manager::DeleteScriptedColumn, "Column \"\" doesn't exists"},
        {&Manager::CreateViewStyle, ""},
        {&Manager::DeleteViewStyle,
         "View style   in current column  c  does not exist, therefore cannot be deleted."},
        {&Manager::SetCurrentStyle, "Cannot not find style:   in the current column"},
        {&Manager::SetCurrentStyleElement, "Cannot not find element:   in the current style"},
        {&Manager::DeleteStyleElement, "Element:   not found in the current style:  s"},
        {&Manager::CreateViewProperty, "NULL pointer found where name is expected"},
        {&Manager::DeleteViewProperty, "View property   does not exist, therefore cannot be deleted."},
        {&Manager::UpdateCurrentViewProperty, "Unable to find view property: "},
        {&Manager::SetViewPropertyType, "Unknown type...type not set."},
        {&Manager::CreateFreeFolder, "NULL pointer found where name is expected"},
        {&Manager::SetCurrentFreeFolder, "Cannot not find folder :   in the current folder"},
        {&Manager::CreateTree, "Cannot get name of the current datasource"},
        {&Manager::DeleteTree, "Cannot find the p_dsh :"},
        {&Manager::DeleteList, "List of:  (s) is not configured in the folder:  V"},
        {&Manager::CreateViewOperation, "NULL pointer found where name is expected"},
        {&Manager::SetCurrentViewOperation, "Cannot find dataoperation named: "},
    };
    for (const Case& test : cases) EXPECT_EQ(Fault((manager.*test.operation)(nullptr)), test.message);
    EXPECT_FALSE(manager.CreateView(nullptr, false));
    EXPECT_FALSE(manager.GetState() && manager.FindViewProperty(nullptr));
    EXPECT_STREQ(manager.GetCurrentView(), "V") << "and every current object stays";
    EXPECT_STREQ(manager.GetCurrentViewPropertyName(), "p");
}

TEST_F(ViewOperations, NullObjectsAreRefused) {
    znString out("before");
    EXPECT_EQ(Fault(manager.GetFreeFolderName(nullptr, out)), "Null pointer hit");
    EXPECT_EQ(Fault(manager.SetViewItemStyle(nullptr)), "Null pointer hit");
    EXPECT_EQ(Fault(manager.CreateViewPropertyConnect(nullptr, "a", "b")), "");
    EXPECT_EQ(Fault(manager.CreateViewPropertyConnect_NEW(manager.GetCurrentViewPropertyPtr(), "a", "b")), "")
        << "a view of the classic scheme";
    EXPECT_EQ(out, "before");
}

TEST_F(ViewOperations, WhatNoCommandReaches) {
    EXPECT_TRUE(manager.CreateComboBoxColumn("x", ""));
    EXPECT_EQ(Fault(manager.SetFreeFolderSortingException("part", 1)), "Cannot find data source simple");
    znString text = "before";
    EXPECT_FALSE(manager.GetFreeFolderSortingException(text) || !text.empty());
    EXPECT_TRUE(manager.GetStyleElementMapName(text));
    manager.ResetCurrentStyleElement();
    EXPECT_EQ(Fault(manager.GetStyleElementMapName(text)),
              "Cannot get description of the current style element");
    EXPECT_TRUE(manager.GetFilterNames(text));
    EXPECT_EQ(Fault(manager.GetSelectedDataItemValues("x", text)), "Unable to find view property:  x");
    EXPECT_EQ(Fault(manager.GetSelectedDataItemValues("x", "y", text)),
              "Unable to find view property:  x  or  y");
    EXPECT_TRUE(manager.GetSelectedDataItemValues("x", "p", text));
    EXPECT_TRUE(manager.SetCurrentFilter({})) << "no names: everything is shown";
    EXPECT_THROW(manager.CreateView("V", false), const char*);
    EXPECT_STREQ(manager.GetCurrentView(), "V");
}

TEST_F(ViewOperations, TheHelperServesWhoeverUsesItLast) {
    znString text;
    {
        Manager copy(manager);
        EXPECT_FALSE(ViewHelperOf(copy).GetFolderDataSource(text));
        EXPECT_STREQ(copy.GetErrorText().c_str(), "Cannot get name of the current datasource");
        EXPECT_TRUE(manager.GetErrorText().empty());
    }
    EXPECT_EQ(Fault(ViewHelperOf(manager).Connect(nullptr)), "Cannot find data source : ");
    manager.DeleteBrowserManagerViewTcl();
    EXPECT_EQ(Fault(ViewHelperOf(manager).Disconnect("x")), "Cannot find data source :  x");
}

TEST(ViewOperationsWithoutBrowser, FailSilently) {
    FakeApplication application;
    Manager manager(&application);
    znString out;
    EXPECT_FALSE(manager.CreateView("V", false));
    EXPECT_FALSE(manager.DeleteView("V"));
    EXPECT_FALSE(manager.GetViewNames(out));
    EXPECT_FALSE(manager.CreateViewOperation("o"));
    EXPECT_TRUE(manager.GetErrorText().empty());
    EXPECT_FALSE(manager.SetCurrentView("V"));
    EXPECT_FALSE(manager.ClearAllSelection());
    EXPECT_STREQ(manager.GetErrorText().c_str(), "Cannot get a handle to browser manager");
    manager.DeleteBrowserManagerCollectorTcl();
}

} // namespace
