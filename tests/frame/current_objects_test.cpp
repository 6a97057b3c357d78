// The current objects as a C++ client reads, stores and clears them, and the entries of the families.
#include "frame/current_kinds.h"
#include "frame/current_lifetimes.h"
#include "host/app/application.h"
#include "host/app/embedded_host.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tcl.h>

namespace {

using Manager = znBrowserManagerTcl;

/// Makes an object of each kind that words can make current.
constexpr char makeAllCurrent[] = R"(
    proc told args {}
    foreach words {
        {app datactrl create m} {app sql m {create table part (id integer primary key, name text)}}
        {datactrl current m} {datasource simple create own} {datasource simple criteria create c}
        {datasource hierarchical create h 0 0} {datasource hierarchical current h} {dataoperation create o}
        {dataoperation current o} {app inputfield create m f integer} {userinput current f} {view create v}
        {view datactrl connect} {view property create p} {view property type string} {view column create k}
        {view style create s} {view element create e} {view folder current v} {view list create own}
        {view list current own} {view operation create op} {window create w} {window map create g}
        {window part create x} {window part event current SELECTION_CHANGED}
        {window part event callback create told script} {window find property add p}
        {window find property current p} {window find property criterion current value}
        {app state create m st} {state current st} {view popupmenu create menu} {view popupmenuitem create i}
    } {
        set answer [znbrowsermanager {*}$words]
        if {[string match {\[Command\]*} $answer]} {error $answer}
    }
)";

class CurrentObjects : public testing::Test {
protected:
    CurrentObjects() : interp(Tcl_CreateInterp()), host(interp), manager(host.Manager()) {
        EXPECT_EQ(Tcl_Eval(interp, makeAllCurrent), TCL_OK) << Tcl_GetStringResult(interp);
    }
    ~CurrentObjects() override { Tcl_DeleteInterp(interp); }

    Tcl_Interp* interp;
    znhost::EmbeddedHost host;
    Manager& manager;
};

/// The objects that `ExpectKept` has looked at.
std::set<const void*> lookedAt;

/// What is cleared is none, and what is stored is read back.
template <class T, class Reset>
void ExpectKept(Manager& manager, const char* kind, T* (Manager::*get)() const, void (Manager::*set)(T*),
                Reset (Manager::*reset)()) {
    T* const object = (manager.*get)();
    EXPECT_NE(object, nullptr) << kind;
    lookedAt.insert(object);
    (manager.*reset)();
    EXPECT_EQ((manager.*get)(), nullptr) << kind;
    (manager.*set)(object);
    EXPECT_EQ((manager.*get)(), object) << kind;
}

TEST_F(CurrentObjects, AreReadClearedAndStored) {
#define EXPECT_KEPT(Kind)                                                                                    \
    ExpectKept(manager, #Kind, &Manager::GetCurrent##Kind##Ptr, &Manager::SetCurrent##Kind,                  \
               &Manager::ResetCurrent##Kind)
    EXPECT_KEPT(View);
    EXPECT_KEPT(Column);
    EXPECT_KEPT(Style);
    EXPECT_KEPT(StyleElement);
    EXPECT_KEPT(FreeFolder);
    EXPECT_KEPT(List);
    EXPECT_KEPT(ViewOperation);
    EXPECT_KEPT(ViewProperty);
    EXPECT_KEPT(WindowAccess);
    EXPECT_KEPT(Event);
    EXPECT_KEPT(WindowCallback);
    EXPECT_KEPT(GuiMap);
    EXPECT_KEPT(DataCtrl);
    EXPECT_KEPT(Criteria);
    EXPECT_KEPT(DataOperation);
    EXPECT_KEPT(InputField);
    EXPECT_KEPT(State);
    EXPECT_KEPT(PopupMenu);
    EXPECT_KEPT(PopupMenuItem);
#undef EXPECT_KEPT
    ExpectKept(manager, "WindowPart", &Manager::GetCurrentWindowPartPtr, &Manager::SetCurrentWindowPartByPtr,
               &Manager::ResetCurrentWindowPart);
    ExpectKept(manager, "FindRequest", &Manager::GetCurrentFindRequestPtr,
               &Manager::SetCurrentFindRequestByPtr, &Manager::ResetCurrentFindRequest);
    ExpectKept(manager, "FindRequestProperty", &Manager::GetCurrentFindRequestPropertyPtr,
               &Manager::SetCurrentFindRequestPropertyByPtr, &Manager::ResetCurrentFindRequestProperty);
    ExpectKept(manager, "FindRequestPropertyCriterion", &Manager::GetCurrentFindRequestPropertyCriterionPtr,
               &Manager::SetCurrentFindRequestPropertyCriterionByPtr,
               &Manager::ResetCurrentFindRequestPropertyCriterion);

    // Each kind was among them, but for those whose setters take no null.
    std::string missing;
    const znBrowserCurrentObjects& current = znlayer::CurrentAccess::Of(manager);
    znlayer::ForEachCurrentKind([&](const auto& kind) {
        if (lookedAt.count(current.*kind.member) == 0) missing += std::string(kind.name) + "; ";
    });
    EXPECT_EQ(missing, "connect data source simple; data source hierarchical; ");
}

TEST_F(CurrentObjects, DataSourcesStayWhenNoneIsGiven) {
    znIBrowserDataSourceSimple* const simple = manager.GetCurrentDataSourceSimplePtr();
    znIBrowserDataSourceHierarchical* const tree = manager.GetCurrentDataSourceHierarchicalPtr();
    ASSERT_TRUE(simple && tree);
    manager.SetCurrentDataSourceSimple(static_cast<znIBrowserDataSourceSimple*>(nullptr));
    manager.SetCurrentDataSourceHierarchical(static_cast<znIBrowserDataSourceHierarchical*>(nullptr));
    manager.SetCurrentConnectDataSourceSimple(simple);
    EXPECT_EQ(manager.GetCurrentDataSourceSimplePtr(), simple);
    EXPECT_EQ(manager.GetCurrentDataSourceHierarchicalPtr(), tree);
    EXPECT_EQ(manager.GetCurrentConnectDataSourceSimplePtr(), nullptr) << "only by name";
    EXPECT_STREQ(manager.GetCurrentConnectDataSourceSimple(), "");
}

TEST_F(CurrentObjects, FollowTheFirstChildOfANewParent) {
    manager.UpdateCurrentStyle(manager.GetCurrentColumnPtr());
    EXPECT_NE(manager.GetCurrentStyleElementPtr(), nullptr);
    manager.UpdateCurrentStyle(nullptr);
    EXPECT_EQ(manager.GetCurrentStylePtr(), nullptr);
    EXPECT_EQ(manager.GetCurrentStyleElementPtr(), nullptr);
    manager.UpdateCurrentFindRequestPropertyCriterion(manager.GetCurrentFindRequestPropertyPtr());
    EXPECT_NE(manager.GetCurrentFindRequestPropertyCriterionPtr(), nullptr);
    manager.UpdateWindowAccessDependentCurrents(nullptr);
    EXPECT_EQ(manager.GetCurrentFindRequestPtr(), nullptr);
    EXPECT_EQ(manager.GetCurrentFindRequestPropertyPtr(), nullptr);
    manager.UpdateWindowAccessDependentCurrents(manager.GetCurrentWindowAccessPtr());
    EXPECT_NE(manager.GetCurrentFindRequestPtr(), nullptr);
    manager.UpdateCurrentView(nullptr);
    EXPECT_EQ(manager.GetCurrentColumnPtr(), nullptr);
    EXPECT_EQ(manager.GetCurrentFreeFolderPtr(), nullptr);
}

TEST_F(CurrentObjects, SomeNeverFollow) {
    const auto before =
        std::make_tuple(manager.GetCurrentCriteriaPtr(), manager.GetCurrentWindowCallbackPtr(),
                        manager.GetCurrentDataSourceSimplePtr(), manager.GetCurrentListPtr());
    manager.UpdateCurrentCriteria(nullptr);
    manager.UpdateCurrentWindowCallback(nullptr);
    manager.UpdateEventDependentCurrents(nullptr);
    manager.OnDataSourceDelete(manager.GetCurrentDataSourceSimplePtr());
    manager.OnDataSourceDelete(manager.GetCurrentDataSourceHierarchicalPtr());
    EXPECT_EQ(before, std::make_tuple(manager.GetCurrentCriteriaPtr(), manager.GetCurrentWindowCallbackPtr(),
                                      manager.GetCurrentDataSourceSimplePtr(), manager.GetCurrentListPtr()));
}

/// The kinds that are not current any more once the host has told that the object goes; then all are again.
template <class T>
std::string ForgottenWith(Manager& manager, T* dying) {
    znBrowserCurrentObjects& current = znlayer::CurrentAccess::Of(manager);
    const znBrowserCurrentObjects before = current;
    std::string forgotten;
    manager.AboutToDelete(dying);
    znlayer::ForEachCurrentKind([&](const auto& kind) {
        if (before.*kind.member && !(current.*kind.member)) forgotten += std::string(kind.name) + "; ";
    });
    current = before;
    return forgotten;
}

TEST_F(CurrentObjects, GoWithWhatTheHostDeletesByItself) {
#define EXPECT_FORGOTTEN(Kind, kinds)                                                                        \
    EXPECT_EQ(ForgottenWith(manager, manager.GetCurrent##Kind##Ptr()), kinds)
    EXPECT_FORGOTTEN(
        View, "view; column; style; style element; view property; view operation; free folder; list; ");
    EXPECT_FORGOTTEN(Column, "column; style; style element; ");
    EXPECT_FORGOTTEN(Style, "style; style element; ");
    EXPECT_FORGOTTEN(StyleElement, "style element; ");
    EXPECT_FORGOTTEN(ViewProperty, "view property; ");
    EXPECT_FORGOTTEN(ViewOperation, "view operation; ");
    EXPECT_FORGOTTEN(FreeFolder, "free folder; list; ");
    EXPECT_FORGOTTEN(WindowAccess, "window; window part; event; window callback; find request; "
                                   "find request property; find request property criterion; ");
    EXPECT_FORGOTTEN(WindowPart, "window part; event; window callback; ");
    EXPECT_FORGOTTEN(Event, "event; window callback; ");
    EXPECT_FORGOTTEN(WindowCallback, "window callback; ");
    EXPECT_FORGOTTEN(FindRequest, "find request; find request property; find request property criterion; ");
    EXPECT_FORGOTTEN(FindRequestProperty, "find request property; find request property criterion; ");
    EXPECT_FORGOTTEN(FindRequestPropertyCriterion, "find request property criterion; ");
    EXPECT_FORGOTTEN(GuiMap, "GUI map; ");
    EXPECT_FORGOTTEN(DataCtrl, "list; data control; data source simple; data source hierarchical; criteria; "
                               "data operation; input field; state; ");
    EXPECT_FORGOTTEN(DataSourceSimple, "list; data source simple; criteria; ");
    EXPECT_FORGOTTEN(DataSourceHierarchical, "data source hierarchical; ");
    EXPECT_FORGOTTEN(Criteria, "criteria; ");
    EXPECT_FORGOTTEN(DataOperation, "data operation; ");
    EXPECT_FORGOTTEN(InputField, "input field; ");
    EXPECT_FORGOTTEN(State, "state; ");
    EXPECT_FORGOTTEN(PopupMenu, "popup menu; popup menu item; ");
    EXPECT_FORGOTTEN(PopupMenuItem, "popup menu item; ");
#undef EXPECT_FORGOTTEN
}

TEST_F(CurrentObjects, StayWhenTheHostDeletesOthers) {
    const znBrowserCurrentObjects kept = znlayer::CurrentAccess::Of(manager);
    ASSERT_EQ(Tcl_Eval(interp, "znbrowsermanager view create other; znbrowsermanager window create other;"
                               "znbrowsermanager app datactrl create other"),
              TCL_OK);
    znIBrowserView* const view = manager.GetCurrentViewPtr();
    znIBrowserWindowAccess* const window = manager.GetCurrentWindowAccessPtr();
    znIBrowserFindRequest* const request = manager.GetCurrentFindRequestPtr();
    znlayer::CurrentAccess::Of(manager) = kept;
    ASSERT_TRUE(view != kept.view && window != kept.windowAccess && request && request != kept.findRequest);
    EXPECT_EQ(ForgottenWith(manager, view), "");
    EXPECT_EQ(ForgottenWith(manager, window), "");
    EXPECT_EQ(ForgottenWith(manager, request), "");
    EXPECT_EQ(ForgottenWith(manager, host.App().FindDataCtrl("other")), "");
}

/// One written before there were any operations but the name.
struct OldPopupMenu final : znIBrowserPopupMenu, znIBrowserPopupMenuItem {
    const char* GetName() const override { return "old"; }
};

TEST_F(CurrentObjects, AnOldPopupMenuSupportsNothing) {
    OldPopupMenu menu;
    manager.SetCurrentPopupMenu(&menu);
    manager.SetCurrentPopupMenuItem(&menu);
    znString text;
    EXPECT_FALSE(manager.CreatePopupMenuItem("i", ZNBROWSER_POPUP_END));
    EXPECT_FALSE(manager.GetPopupMenuItemNames(text));
    EXPECT_FALSE(manager.SetPopupMenuItemCaption("c"));
    EXPECT_FALSE(manager.SetPopupMenuItemVisible(true));
    EXPECT_FALSE(manager.SetPopupMenuItemContainer(ZNBROWSER_POPUP_CONTAINER_SIMPLE, true));
    EXPECT_FALSE(manager.GetPopupMenuItemUserInput(text));
    EXPECT_FALSE(manager.PerformPopupMenuItem(nullptr));
    EXPECT_TRUE(manager.GetPopupMenuPostScript(text) && manager.GetPopupMenuItemCaption(text) &&
                manager.GetPopupMenuItemCascade(text) && manager.GetPopupMenuItemContainer(text));
    EXPECT_EQ(text, "");
    EXPECT_TRUE(manager.GetPopupMenuItemEnabled(text));
    EXPECT_EQ(text, "false");
    EXPECT_EQ(ForgottenWith<znIBrowserPopupMenu>(manager, &menu), "popup menu; popup menu item; ");
    manager.UpdateCurrentPopupMenuItem(&menu);
    EXPECT_EQ(manager.GetCurrentPopupMenuItemPtr(), nullptr);
    manager.ResetCurrentPopupMenu();
}

using Family = int (Manager::*)(int, Tcl_Obj* const[]);

/// What a family leaves in the interpreter for these words.
std::string AnswerOf(Manager& manager, Family family, const char* words) {
    Tcl_Interp* const interp = manager.GetTclInterp();
    Tcl_ResetResult(interp);
    Tcl_Obj* const list = Tcl_NewStringObj(words, -1);
    Tcl_IncrRefCount(list);
    int count = 0;
    Tcl_Obj** objects = nullptr;
    EXPECT_EQ(Tcl_ListObjGetElements(interp, list, &count, &objects), TCL_OK);
    EXPECT_EQ((manager.*family)(count, objects), TCL_OK);
    Tcl_DecrRefCount(list);
    return Tcl_GetStringResult(interp);
}

TEST_F(CurrentObjects, FamiliesAnswerLikeTheCommand) {
    const struct {
        Family family;
        const char* words;
    } cases[] = {
        {&Manager::ViewTclAPICommands, "znbrowsermanager view names"},
        {&Manager::WindowTclAPICommands, "znbrowsermanager window names"},
        {&Manager::DataCtrlTclAPICommands, "znbrowsermanager datactrl names"},
        {&Manager::DataUserInputTclAPICommands, "znbrowsermanager userinput current"},
        {&Manager::DataSourceTclAPICommands, "znbrowsermanager datasource hierarchical names"},
        {&Manager::DataOperationTclAPICommands, "znbrowsermanager dataoperation names"},
        {&Manager::DataReferenceTclAPICommands, "znbrowsermanager datareference"},
        {&Manager::DataReferenceTclAPICommands, "znbrowsermanager datareference nosuch"},
    };
    for (const auto& row : cases) {
        ASSERT_EQ(Tcl_Eval(interp, row.words), TCL_OK);
        const std::string expected = Tcl_GetStringResult(interp);
        EXPECT_NE(expected, "") << row.words;
        EXPECT_EQ(AnswerOf(manager, row.family, row.words), expected) << row.words;
    }
}

TEST_F(CurrentObjects, ServicesForTypesAndScripts) {
    EXPECT_EQ(Manager::ConvertStringToViewPropertyType("Integer"), ZNBROWSER_DATA_INT);
    EXPECT_EQ(Manager::ConvertStringToViewPropertyType(nullptr), ZNBROWSER_DATA_UNDEFINED);
    EXPECT_STREQ(Manager::ConvertViewPropertyTypeToString(ZNBROWSER_DATA_DOUBLE), "Double");
    znString text;
    EXPECT_TRUE(Manager::GetZnBrowserDataTypeString(ZNBROWSER_DATA_BOOL, text));
    EXPECT_EQ(text, "boolean");
    std::vector<znString> list{"kept"};
    Tcl_Obj* const words[] = {nullptr, nullptr};
    Manager::GetStringListFromTclArgs(2, words, 0, list);
    EXPECT_EQ(list.size(), 1U) << "the caller's list stays";

    Tcl_Eval(interp, "namespace eval znbrowser {\n"
                     "    proc ResetSelectedFreeFoldersArray {} {set ::folders {}}\n"
                     "    proc AddToSelectedFreeFoldersArray {name} {lappend ::folders $name}}");
    EXPECT_TRUE(manager.UpdateTclFreeFolderSelection({manager.GetCurrentFreeFolderPtr()}));
    EXPECT_STREQ(Tcl_GetVar(interp, "folders", TCL_GLOBAL_ONLY), "{ v }");
    manager.ProcessingCommand(true);
    EXPECT_FALSE(manager.ProcessingCommand());
    manager.ResetBuff();
    EXPECT_TRUE(manager.AppendToBuffWithQuotes("a", false, false));
    EXPECT_TRUE(manager.NewAppendToBuff("b c", true, true, false));
    EXPECT_STREQ(manager.GetBuff(), "\"a\" {b c}");
    manager._ResetBuff();
    EXPECT_STREQ(manager.GetBuff(), "");
}

TEST_F(CurrentObjects, OperationsThatNoWordReaches) {
    znString text("before");
    EXPECT_FALSE(manager.GetFreeFolderCreateExpandedItem(text));
    EXPECT_EQ(text, "");
    manager.SetError("pending");
    EXPECT_FALSE(manager.GetViewOperationNames()) << "the state, as it is";
    manager.SetOk();
    EXPECT_TRUE(manager.GetViewOperationNames());

    EXPECT_TRUE(manager.ConnectProperty("script", "told"));
    EXPECT_FALSE(manager.GetSelectedDataItemValues("nosuch", text));
    EXPECT_TRUE(manager.GetSelectedDataItemValues("p", text));

    for (const auto& [from, disable] : {
             std::pair<const char*, bool (*)(Manager&)>{
                 "bool", [](Manager& to) { return to.CreateGuiMapDisabledRecord(true, "x.png"); }},
             {"unsigned", [](Manager& to) { return to.CreateGuiMapDisabledRecord(3U, "x.png"); }},
             {"double", [](Manager& to) { return to.CreateGuiMapDisabledRecord(1.5, "x.png"); }},
         }) {
        Tcl_Eval(interp, (std::string("znbrowsermanager window map type ") + from + " icon").c_str());
        EXPECT_TRUE(disable(manager)) << from;
    }

    manager.ResetCurrentFreeFolder();
    manager.ResetBuff();
    EXPECT_FALSE(manager.ApplyPendingChanges());
    EXPECT_EQ(manager.GetErrorText(), "Cannot find current freefolder");
}

TEST_F(CurrentObjects, APartThatGoesTakesOnlyWhatLiesInItAlong) {
    EXPECT_TRUE(manager.CreateWindowPart("inner", "x"));
    EXPECT_TRUE(manager.CreateWindowPart("other", nullptr));
    EXPECT_TRUE(manager.SetCurrentWindowPartByName("x"));
    znIBrowserWindowCallback* const callback = manager.GetCurrentWindowCallbackPtr();
    EXPECT_NE(callback, nullptr);
    EXPECT_TRUE(manager.DeleteWindowPart("other"));
    EXPECT_EQ(manager.GetCurrentWindowCallbackPtr(), callback);
    EXPECT_TRUE(manager.DeleteWindowPart("x"));
    EXPECT_EQ(manager.GetCurrentWindowCallbackPtr(), nullptr);
    EXPECT_EQ(manager.GetCurrentWindowPartPtr(), nullptr);
}

TEST_F(CurrentObjects, ValuesOfSelectedItemsByTheNameOfAProperty) {
    constexpr char select[] = R"(
        foreach words {
            {app sql m {insert into part values (1, 'a'), (2, 'b')}} {view datasource simple connect part}
            {view property create q} {view property type string} {view property connect part name}
            {view property create unconnected} {datasource simple current part} {view dataitem simple select}
        } {znbrowsermanager {*}$words}
    )";
    EXPECT_EQ(Tcl_Eval(interp, select), TCL_OK) << Tcl_GetStringResult(interp);
    znString text;
    EXPECT_TRUE(manager.GetSelectedDataItemValues("q", text));
    EXPECT_EQ(text, "\"a\" \"b\"");
    EXPECT_TRUE(manager.GetSelectedDataItemValues("unconnected", "q", text));
    EXPECT_EQ(text, "\"a\" \"b\"") << "those of the second where the first has none";
    EXPECT_TRUE(manager.GetSelectedDataItemValues("unconnected", nullptr, text));
    EXPECT_EQ(text, "");
}

TEST_F(CurrentObjects, WhatTheHostRefusesIsReported) {
    const struct {
        const char* refused;
        bool (*run)(Manager&, znString&);
        const char* message;
    } cases[] = {
        {"znIBrowserDataCtrl::DeleteDataOperation",
         [](Manager& on, znString&) { return on.DeleteDataOperation(); },
         "dataoperation couldn't found in current data control to delete"},
        {"znIBrowser::GetSharedDataSourcesHierarchical",
         [](Manager& on, znString& out) { return on.GetDataSourceHierarchicalSharedNames(out); },
         "Cannot get the list of shared data sources"},
        {"znIBrowserView::GetFilterNames", [](Manager& on, znString& out) { return on.GetFilterNames(out); },
         "v"},
    };
    for (const auto& row : cases) {
        ASSERT_EQ(Tcl_Eval(interp, (std::string("znbrowsermanager app refuse ") + row.refused).c_str()),
                  TCL_OK)
            << row.refused;
        znString text;
        EXPECT_FALSE(row.run(manager, text)) << row.refused;
        EXPECT_NE(manager.GetErrorText().View().find(row.message), std::string_view::npos) << row.refused;
    }
    EXPECT_NE(manager.GetCurrentDataOperationPtr(), nullptr) << "it was not deleted";
}

TEST_F(CurrentObjects, AResultThatIsSharedStaysAsItIs) {
    Tcl_Obj* const kept = Tcl_NewStringObj("kept", -1);
    Tcl_IncrRefCount(kept);
    Tcl_Obj* const words[] = {Tcl_NewStringObj("znbrowsermanager", -1), Tcl_NewStringObj("view", -1),
                              Tcl_NewStringObj("names", -1)};
    for (Tcl_Obj* const word : words) Tcl_IncrRefCount(word);
    Tcl_SetObjResult(interp, kept);
    EXPECT_EQ(manager.EvalTclCommand(3, words), TCL_OK);
    EXPECT_STREQ(Tcl_GetStringResult(interp), "v");
    EXPECT_STREQ(Tcl_GetString(kept), "kept");
    for (Tcl_Obj* const word : words) Tcl_DecrRefCount(word);
    Tcl_DecrRefCount(kept);
}

} // namespace
