// Data sources: what scripts do not see of them.
#include "host_testing.h"
#include "store_testing.h"

#include "host/znBrowserDataItems.h"

namespace znhost {
namespace {

using DataSourceTest = DataHost;

TEST_F(DataSourceTest, ADroppedTableLeavesItsObjectsWhichComeBackWithIt) {
    SimpleSource& part = Source("part");
    DataProperty& mass = *part.FindProperty("mass");
    DataReference& reference = *Control().FindReference("part.assembly");
    Sql("DROP TABLE part");
    EXPECT_EQ(Control().FindSimple("part"), nullptr);
    EXPECT_EQ(Control().FindReference("part.assembly"), nullptr);
    znString text;
    EXPECT_FALSE(mass.GetValueString({&part, 10}, 0, text));
    EXPECT_EQ(List(part), "");
    EXPECT_STREQ(part.GetError(), "There is no table \"part\" any more");
    Sql("CREATE TABLE part (mass REAL, assembly REFERENCES assembly)");
    Sql("INSERT INTO part VALUES (3, 1)");
    EXPECT_EQ(&Source("part"), &part);
    EXPECT_EQ(Control().FindReference("part.assembly"), &reference);
    ASSERT_EQ(part.FindProperty("mass"), &mass);
    EXPECT_TRUE(mass.GetValueString({&part, 1}, 0, text));
    EXPECT_EQ(text, znString("3.0"));
}

TEST_F(DataSourceTest, ValuesHaveTheTypeOfTheirProperty) {
    SimpleSource& part = Source("part");
    ASSERT_TRUE(part.CreateDataPropertyAttribute("mass as text", ZNBROWSER_DATA_STRING, 3, 0));
    const auto type = [&](const char* name, std::int64_t row = 10) {
        return part.FindProperty(name)->GetValue({&part, row}).GetType();
    };
    EXPECT_EQ(type("id"), znVariant::Long64);
    EXPECT_EQ(type("name"), znVariant::String);
    EXPECT_EQ(type("mass"), znVariant::Double);
    EXPECT_EQ(type("ok"), znVariant::Boolean);
    EXPECT_EQ(type("mass", 12), znVariant::Undefined);
    EXPECT_EQ(type("mass", 99), znVariant::Undefined);
    EXPECT_EQ(type("mass as text"), znVariant::String);
    znString text;
    EXPECT_FALSE(part.FindProperty("name")->GetValueString({&part, 10}, 1, text)); // no arrays here
    EXPECT_FALSE(part.FindProperty("name")->GetValueString({&Source("assembly"), 1}, 0, text));
}

TEST_F(DataSourceTest, AnAttributeOfACustomSourceReadsTheItemsOwnTable) {
    SimpleSource& both = Custom("both", {"part", "assembly"});
    ASSERT_TRUE(both.CreateDataPropertyAttribute("second", ZNBROWSER_DATA_STRING, 2, 0));
    EXPECT_FALSE(both.CreateDataPropertyAttribute("far", ZNBROWSER_DATA_STRING, 5, 0));
    EXPECT_STREQ(both.GetError(), "The data source \"both\" has no attribute 5: its attributes are numbered "
                                  "from 0 to 4");
    znBrowserDataItems items;
    both.GetDataItems(items);
    std::string values;
    items.ForEach([&](const znBrowserDataItem& item) {
        znString value;
        EXPECT_TRUE(both.FindProperty("second")->GetValueString(item, 0, value));
        values += value.Str() + " ";
    });
    EXPECT_EQ(values, "bolt Cover ball spare gearbox case shaft bearing ");
}

TEST_F(DataSourceTest, TheItemReachesTheProcedureUnharmed) {
    Sql("CREATE TABLE \"a [exit 3] $x \\\" (name)");
    Sql("INSERT INTO \"a [exit 3] $x \\\" VALUES ('n')");
    SimpleSource& odd = Source("a [exit 3] $x \\");
    Eval("proc table {item} {lindex $item 0}");
    ASSERT_TRUE(odd.CreateDataPropertyScript("table", "table"));
    znString text;
    ASSERT_TRUE(odd.FindProperty("table")->GetValueString({&odd, 1}, 0, text));
    EXPECT_EQ(text, znString("a [exit 3] $x \\"));
}

TEST_F(DataSourceTest, AValueIsNoErrorBecauseACommandOfItsProcedureWasRefused) {
    SimpleSource& part = Source("part");
    Eval("set reported {}; interp bgerror {} {apply {{text options} {lappend ::reported $text}}}\n"
         "proc good {item} {znbrowsermanager view current nosuch; return ok}\n"
         "proc bad {item} {error wrong}");
    ASSERT_TRUE(part.CreateDataPropertyScript("good", "good"));
    ASSERT_TRUE(part.CreateDataPropertyScript("bad", "bad"));
    znString text;
    EXPECT_TRUE(part.FindProperty("good")->GetValueString({&part, 10}, 0, text));
    EXPECT_EQ(text, znString("ok"));
    EXPECT_FALSE(part.FindProperty("bad")->GetValueString({&part, 10}, 0, text));
    EXPECT_EQ(Eval("update; set reported"), "wrong");
}

TEST_F(DataSourceTest, AProcedureMayDeleteTheSourceItComputesFor) {
    SimpleSource& doomed = Custom("doomed", {"part"});
    ASSERT_TRUE(doomed.CreateDataPropertyScript("last", "last"));
    Eval("znbrowsermanager datactrl current m; proc last {item} {znbrowsermanager datasource simple delete "
         "doomed}");
    RowQuery query;
    query.order = {true, doomed.FindProperty("last"), false};
    std::vector<std::int64_t> rows;
    doomed.List(query, rows);
    EXPECT_EQ(rows.size(), 4U);
    EXPECT_EQ(Control().FindSimple("doomed"), nullptr);
}

TEST_F(DataSourceTest, APropertyThatNeedsItsOwnValuesHasNoneThere) {
    SimpleSource& part = Source("part");
    ASSERT_TRUE(part.CreateDataPropertyScript("self", "self"));
    Eval("znbrowsermanager datactrl current m\n"
         "foreach words {{view create v} {view datactrl connect} {datasource simple current part}\n"
         "        {view property create p} {view property type string} {view property connect self}} {\n"
         "    znbrowsermanager {*}$words\n"
         "}\n"
         "proc self {item} {return <[znbrowsermanager datasource simple dataitem]>}");
    znString text;
    ASSERT_TRUE(part.FindProperty("self")->GetValueString({&part, 10}, 0, text));
    EXPECT_EQ(text, znString("<>"));
    EXPECT_STREQ(part.GetError(), "The property \"self\" needs its own values");
}

TEST_F(DataSourceTest, WhatNeedsTheTablesIsRefusedWhileTheyCannotBeRead) {
    const TemporaryDirectory directory;
    ASSERT_TRUE(Open("file", directory.File("a.db"))) << error;
    DataCtrl& control = Control("file");
    std::string reason;
    const auto other = Database::OpenFile(directory.File("a.db"), reason);
    ASSERT_TRUE(other->RunScript(smallModel, reason)) << reason;
    SimpleSource& part = *control.FindSimple("part");
    ASSERT_TRUE(control.CreateDataSourceHierarchical("tree", false, false, "", ""));
    std::vector<znIBrowserDataReference*> references;
    std::vector<znIBrowserDataSource*> sources;
    std::vector<znIBrowserDataSourceSimple*> simple;
    std::vector<znIBrowserDataProperty*> properties;
    ASSERT_TRUE(control.Db().RunScript("PRAGMA busy_timeout = 0", reason)) << reason;
    const std::pair<const char*, std::function<bool()>> calls[] = {
        {"references", [&] { return control.GetDataReferences(references); }},
        {"reference", [&] { return control.FindDataReference("nosuch") != nullptr; }},
        {"sources", [&] { return control.GetDataSources(sources); }},
        {"simple sources", [&] { return control.GetDataSourcesSimple(simple), simple.empty(); }},
        {"source", [&] { return control.FindDataSourceSimple("nosuch") != nullptr; }},
        {"create", [&] { return control.CreateDataSourceSimple("new", "", nullptr); }},
        {"delete", [&] { return control.DeleteDataSourceSimple("nosuch"); }},
        {"create tree", [&] { return control.CreateDataSourceHierarchical("new", true, true, "", ""); }},
        {"parent", [&] { return control.FindHierarchical("tree")->SetParent("nosuch"); }},
        {"properties", [&] { return part.GetDataProperties(properties); }},
        {"attribute", [&] { return part.CreateDataPropertyAttribute("a", ZNBROWSER_DATA_STRING, 0, 0); }},
    };
    ASSERT_TRUE(other->Execute("BEGIN EXCLUSIVE", reason)) << reason;
    for (const auto& [what, call] : calls) {
        App().Log().SetError("");
        EXPECT_FALSE(call()) << what;
        EXPECT_EQ(App().Log().Error(), "database is locked") << what;
    }
    EXPECT_STREQ(part.GetError(), "database is locked");
    EXPECT_EQ(control.FindDataSourceSimple("part"), &part); // as it was there last
    ASSERT_TRUE(other->Execute("COMMIT", reason)) << reason;
    EXPECT_TRUE(control.GetDataReferences(references));
    EXPECT_EQ(references.size(), 2U);
    EXPECT_TRUE(control.GetDataSources(sources));
    EXPECT_EQ(sources.size(), 3U);
}

TEST_F(DataSourceTest, ACriteriaFollowsTheTablesAndItsValues) {
    SimpleSource& heavy = Custom("heavy", {"part"});
    ASSERT_TRUE(heavy.CreateCriteria("c"));
    znIBrowserCriteria& criteria = *heavy.GetCriteriaList()->FindCriteria("c");
    for (const char* const code :
         {"mass > 1; DROP TABLE part", "", "1) OR (1", "nonsense = 1", "mass > ?1"}) {
        EXPECT_FALSE(criteria.SetCode(code)) << code;
    }
    ASSERT_TRUE(criteria.SetCode("mass > ? AND name <> ? OR ok = ?"));
    EXPECT_EQ(List(heavy), "");
    EXPECT_STREQ(heavy.GetError(), "The criteria \"c\" takes 3 values, but has 0");
    // Bound in the order of the types, not of the calls.
    ASSERT_TRUE(criteria.SetCode("ok = ? OR mass > ? AND name <> ?"));
    criteria.SetStringValues({znString("spare")});
    criteria.SetDoubleValues({1});
    criteria.SetBoolValues({true});
    EXPECT_EQ(List(heavy), "10 11 13");
    Sql("ALTER TABLE part RENAME COLUMN ok TO fine");
    EXPECT_EQ(List(heavy), "");
    EXPECT_NE(std::string(heavy.GetError()).find("does not fit \"part\""), std::string::npos);
    ASSERT_TRUE(heavy.DeleteCriteria(&criteria));
    EXPECT_EQ(List(heavy), "10 11 12 13");
}

TEST_F(DataSourceTest, ACodeOfAChosenBaseNarrowsThatOneOnly) {
    SimpleSource& both = Custom("both", {"part", "assembly"});
    ASSERT_TRUE(both.CreateCriteria("c"));
    znIBrowserCriteria& criteria = *both.GetCriteriaList()->FindCriteria("c");
    EXPECT_FALSE(criteria.SetCode("mass > 5")); // assemblies have none
    ASSERT_TRUE(both.SetCurrentBase(&Source("part")));
    ASSERT_TRUE(criteria.SetCode("mass > 5"));
    std::vector<std::int64_t> rows;
    both.List({}, rows);
    EXPECT_EQ(rows.size(), 5U);
}

TEST_F(DataSourceTest, ADeletedSourceIsTakenOutOfTreesWithWhatHangsOnIt) {
    Custom("heavy", {"part"});
    Sql("CREATE TABLE hole (part REFERENCES part (id))");
    ASSERT_TRUE(Control().CreateDataSourceHierarchical("tree", true, false, "a", "b"));
    HierarchicalSource& tree = *Control().FindHierarchical("tree");
    EXPECT_FALSE(tree.AddChild("heavy", "")); // no parent yet
    ASSERT_TRUE(tree.SetParent("assembly"));
    ASSERT_TRUE(tree.AddChild("heavy", "part.assembly"));
    ASSERT_TRUE(tree.AddChild("hole", ""));
    EXPECT_FALSE(tree.AddChild("hole", "hole.part")); // already there
    EXPECT_FALSE(tree.RemoveChild("assembly"));
    EXPECT_EQ(tree.Links().size(), 3U); // assemblies nest by themselves
    EXPECT_TRUE(Source("heavy").IsConnected());
    Control().DeleteDataSourceSimple("heavy");
    EXPECT_EQ(tree.Links().size(), 1U);
    EXPECT_EQ(tree.Members().size(), 1U);
}

TEST_F(DataSourceTest, InputFieldsHoldOneType) {
    int status = -1;
    znIBrowserInputField* const field = Control().CreateInputField("f", "UINT", status);
    ASSERT_TRUE(field);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Control().CreateInputField("g", "g", status), nullptr);
    EXPECT_NE(status, 0);
    int number = 0;
    EXPECT_TRUE(field->SetUnsignedValue(7));
    EXPECT_FALSE(field->SetDoubleValue(7));
    EXPECT_FALSE(field->GetIntegerValue(number));
    field->SetDataType(ZNBROWSER_DATA_INT);
    EXPECT_TRUE(field->SetIntegerValue(-2));
    EXPECT_TRUE(field->GetIntegerValue(number));
    EXPECT_EQ(number, -2);
    field->ResetValue();
    EXPECT_TRUE(field->GetIntegerValue(number));
    EXPECT_EQ(number, 0);
    field->SetDataType(ZNBROWSER_DATA_BOOL_ARRAY);
    EXPECT_FALSE(field->SetBoolValue(true));
}

} // namespace
} // namespace znhost
