// What the data families' operations do with null names and without anything to work on.
#include "tests/frame/fake_application.h"

#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>

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

TEST_F(EmptyModel, UnconnectedReferencesFollowWhatTheBufferHolds) {
    manager_.AppendToBuff("before", false, false);
    EXPECT_EQ(Outcome(manager_, manager_.ConnectDataReference("r")), "Current View object is not set");
    EXPECT_STREQ(manager_.GetBuff(), "before");
}

} // namespace
