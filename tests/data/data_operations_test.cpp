// What C++ clients reach of the data families: null names, missing objects, and operations without a command.
#include "host/app/embedded_host.h"
#include "tests/frame/fake_application.h"

#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using Manager = znBrowserManagerTcl;
using Setter = bool (Manager::*)(const char*);
using Getter = bool (Manager::*)(znString&);

/// "true", or the message of the failure.
std::string Outcome(Manager& manager, bool succeeded) {
    return succeeded ? "true" : manager.GetErrorText().Str();
}

class EmptyModel : public testing::Test {
protected:
    ~EmptyModel() override { manager_.DeleteBrowserManagerCollectorTcl(); }

    FakeApplication application_;
    Manager manager_{&application_};
};

TEST_F(EmptyModel, NullNamesAreNotFound) {
    const struct {
        Setter setter;
        const char* outcome;
    } cases[] = {
        {&Manager::SetCurrentDataCtrl, "Cannot set current data control to NULL"},
        {&Manager::SetCurrentDataSourceSimple, "Cannot find datasource name : "},
        {&Manager::SetCurrentDataSourceHierarchical, "Cannot find datasource name : "},
        {&Manager::SetCurrentConnectDataSourceSimple, "Cannot get handle to current datasource"},
        {&Manager::DeleteDataSourceSimple, "Cannot get the current Data Control"},
        {&Manager::SetCurrentDataSourceSimpleCaption, ""},
        {&Manager::SetCurrentDataSourceSimpleFilterCaption, ""},
        {&Manager::CreateDataCriteria, "true"},
        {&Manager::SetCurrentCriteria, "Cannot get handle to the current data source"},
        {&Manager::SetCriteriaDataType, ""},
        {&Manager::CreateDataOperation, "Cannot get the current Data Control"},
        {&Manager::SetCurrentDataOperation, "Current Data Control object is not set"},
        {&Manager::SetCurrentInputField, "No current available data control"},
        {&Manager::SetInputFieldDataType, "Cannot get name of the current inputfield"},
        {&Manager::SetInputFieldValue, "Cannot get name of the current input field"},
    };
    for (const auto& [setter, outcome] : cases)
        EXPECT_EQ(Outcome(manager_, (manager_.*setter)(nullptr)), outcome);
}

TEST_F(EmptyModel, GettersNameWhatIsMissing) {
    const struct {
        Getter getter;
        const char* outcome;
    } cases[] = {
        {&Manager::GetDataSourcesNames, "Current Data Control object is not set"},
        {&Manager::GetPropertyNames, "Cannot get handle to current dataitemtype"},
        {&Manager::GetDataSourceHierarchicalSharedNames, "Cannot get handle to the current view"},
        {&Manager::DataSourceSimpleConnected, "true"},
    };
    for (const auto& [getter, outcome] : cases) {
        znString out;
        EXPECT_EQ(Outcome(manager_, (manager_.*getter)(out)), outcome);
    }
    znString out("left over");
    EXPECT_TRUE(manager_.DataSourceSimpleConnected("nosuch", out));
    EXPECT_EQ(out.Str(), "");
    ZNBROWSER_DATA_TYPE type = ZNBROWSER_DATA_UNDEFINED;
    EXPECT_EQ(Outcome(manager_, manager_.GetDataType("x", type)),
              "Cannot get handle to current dataitemtype");
    EXPECT_EQ(Outcome(manager_, manager_.DeleteDataOperation()), "No current datacontrol is available");
}

TEST_F(EmptyModel, PlaceholdersKeepThePendingError) {
    znString out("left over");
    manager_.SetError("pending");
    EXPECT_FALSE(manager_.DataSourceHierarchicalPropertyNames(out));
    EXPECT_FALSE(manager_.GetDataSourceHierarchicalCriteriaNames(out));
    EXPECT_FALSE(manager_.DataSourceHierarchicalDisconnectSimple("x"));
    EXPECT_FALSE(manager_.DataSourceSimpleConnect("x"));
    EXPECT_EQ(Outcome(manager_, false), "pending");
    EXPECT_EQ(out.Str(), "left over");
}

TEST_F(EmptyModel, ConnectingAnOperationSaysInTheResultWhatIsMissing) {
    EXPECT_FALSE(manager_.DataOperationConnect());
    EXPECT_STREQ(Tcl_GetStringResult(application_.GetTclInterp()), "No current view operation available");
    EXPECT_TRUE(manager_.GetState());
}

/// Two views, `other` and the current `mine`, on a data control with one table and a hierarchical source.
class SmallModel : public testing::Test {
protected:
    SmallModel() {
        Tcl_Eval(interp_,
                 "proc zn args {znbrowsermanager {*}$args}; zn app datactrl create c;"
                 "zn app sql c {CREATE TABLE part (id INTEGER PRIMARY KEY, up REFERENCES part, mass REAL)};"
                 "zn datactrl current c; zn view create other; zn view datactrl connect;"
                 "zn view create mine; zn view datactrl connect;"
                 "zn datasource hierarchical create tree 0 0; zn datasource simple create all;"
                 "zn datasource simple connect part; zn datasource simple current part");
    }
    ~SmallModel() override {
        host_.reset();
        Tcl_DeleteInterp(interp_);
    }

    Tcl_Interp* interp_ = Tcl_CreateInterp();
    std::unique_ptr<znhost::EmbeddedHost> host_ = std::make_unique<znhost::EmbeddedHost>(interp_);
    Manager& manager_ = host_->Manager();
    znString out_;
};

TEST_F(SmallModel, ListsThatNoCommandGives) {
    EXPECT_TRUE(manager_.GetDataSourcesNames(out_));
    EXPECT_EQ(out_.Str(), "part   all   tree  ");
    EXPECT_TRUE(manager_.GetPropertyNames(out_));
    EXPECT_EQ(out_.Str(), "id   up   mass");
    EXPECT_TRUE(manager_.DataSourceSimpleConnected("all", out_));
    EXPECT_EQ(out_.Str(), "part");
    EXPECT_EQ(manager_.FindDataSourceSimple("part"), manager_.GetCurrentDataSourceSimplePtr());
    ZNBROWSER_DATA_TYPE type = ZNBROWSER_DATA_UNDEFINED;
    EXPECT_TRUE(manager_.GetDataType("mass", type));
    EXPECT_EQ(type, ZNBROWSER_DATA_DOUBLE);
    EXPECT_EQ(Outcome(manager_, manager_.GetDataType("nosuch", type)), "Cannot find field name :  nosuch");
}

TEST_F(SmallModel, SharesTellOfUnknownNamesInTheBufferOnly) {
    const struct {
        const char* source;
        const char* view;
        const char* outcome;
        const char* buffer;
    } cases[] = {
        {"", "other", "", ""},
        {"tree", nullptr, "", ""},
        {"tree", "v", "true", "View: \" v \" does not exist"},
        {"t", "other", "true", "Data Source Hierarchical: \" t \" does not exist"},
        {"tree", "other", "true", ""},
    };
    for (const auto& [source, view, outcome, buffer] : cases) {
        EXPECT_EQ(Outcome(manager_, manager_.CreateDataSourceHierarchicalShare(source, view)), outcome);
        EXPECT_STREQ(manager_.GetBuff(), buffer);
    }
    EXPECT_TRUE(manager_.GetDataSourceHierarchicalSharedNames(out_));
    EXPECT_EQ(out_.Str(), "Shared DSH(s):  \" tree \" with  \" other \" view");
}

TEST_F(SmallModel, WhatIsDeletedIsCurrentNoMore) {
    EXPECT_EQ(Outcome(manager_, manager_.DeleteDataOperation()),
              "Cannot get name of the current dataoperation");
    EXPECT_TRUE(manager_.CreateDataOperation("paint"));
    EXPECT_TRUE(manager_.DeleteDataOperation());
    EXPECT_EQ(manager_.GetCurrentDataOperationPtr(), nullptr);
    EXPECT_TRUE(manager_.GetDataOperationNames(out_));
    EXPECT_EQ(out_.Str(), "");
    EXPECT_TRUE(manager_.SetCurrentDataSourceSimple("all"));
    manager_.SetCurrentList(manager_.GetCurrentDataSourceSimplePtr());
    EXPECT_TRUE(manager_.DeleteDataSourceSimple("all"));
    EXPECT_EQ(manager_.GetCurrentListPtr(), nullptr);
}

TEST_F(SmallModel, ReferenceMessagesFollowWhatTheBufferHolds) {
    manager_.AppendToBuff("before", false, false);
    EXPECT_EQ(Outcome(manager_, manager_.ConnectDataReference("r")),
              "before Cannot find data reference :  r");
}

} // namespace
