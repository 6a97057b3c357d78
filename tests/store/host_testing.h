// What the tests of data sources share: a host with one data control, on a small model.
#ifndef HOST_TESTING_H
#define HOST_TESTING_H

#include "host/app/application.h"
#include "host/app/embedded_host.h"
#include "host/store/data_ctrl.h"

#include <gtest/gtest.h>
#include <tcl.h>

/// Assemblies nest and hold parts; the key of the parts has no index, that of the assemblies has one.
constexpr char smallModel[] =
    "CREATE TABLE assembly (id INTEGER PRIMARY KEY, parent REFERENCES assembly, name TEXT);"
    "CREATE INDEX by_parent ON assembly (parent);"
    "CREATE TABLE part (id INTEGER PRIMARY KEY, assembly REFERENCES assembly, name TEXT, mass REAL, ok "
    "BOOLEAN);"
    "INSERT INTO assembly VALUES (1, NULL, 'gearbox'), (2, 1, 'case'), (3, 1, 'shaft'), (4, 3, 'bearing');"
    "INSERT INTO part VALUES (10, 2, 'bolt', 0.5, 1), (11, 2, 'Cover', 2, 0), (12, 4, 'ball', NULL, NULL), "
    "(13, NULL, 'spare', 10, 1)";

class DataHost : public testing::Test {
protected:
    DataHost() : interp_(Tcl_CreateInterp()), host_(std::make_unique<znhost::EmbeddedHost>(interp_)) {
        EXPECT_TRUE(Open("m", "")) << error;
        std::string reason;
        EXPECT_TRUE(Control().Db().RunScript(smallModel, reason)) << reason;
    }
    ~DataHost() override {
        host_.reset();
        Tcl_DeleteInterp(interp_);
    }

    bool Open(const std::string& name, const std::string& file) {
        return host_->CreateDataCtrl(name, file, error);
    }
    znhost::Application& App() { return host_->App(); }
    znhost::DataCtrl& Control(const char* name = "m") { return *App().DataControls().Find(name); }
    znhost::SimpleSource& Source(const char* name) { return *Control().FindSimple(name); }
    /// A custom source of these base sources.
    znhost::SimpleSource& Custom(const char* name, std::initializer_list<const char*> bases) {
        Control().CreateDataSourceSimple(name, "", nullptr);
        for (const char* const base : bases) EXPECT_TRUE(Source(name).ConnectBase(&Source(base)));
        return Source(name);
    }
    znhost::RowLink Link(const char* parent, const char* child, const char* reference) {
        return {&Source(parent), &Source(child), Control().FindReference(reference)};
    }
    void Sql(const std::string& sql) {
        std::vector<std::vector<std::string>> rows;
        EXPECT_TRUE(Control().RunSql(sql, {}, rows, error)) << error;
    }
    /// Evaluates a Tcl script and gives its result.
    std::string Eval(const std::string& script) {
        Tcl_EvalEx(interp_, script.c_str(), -1, TCL_EVAL_GLOBAL);
        return Tcl_GetStringResult(interp_);
    }
    static std::string Joined(const std::vector<std::int64_t>& rows) {
        std::string joined;
        for (const std::int64_t row : rows) joined += (joined.empty() ? "" : " ") + std::to_string(row);
        return joined;
    }
    static std::string List(znhost::SimpleSource& source, const znhost::RowQuery& query = {}) {
        std::vector<std::int64_t> rows;
        source.List(query, rows);
        EXPECT_EQ(source.Count(query), static_cast<std::int64_t>(rows.size()));
        return Joined(rows);
    }

    std::string error;

private:
    Tcl_Interp* const interp_;
    std::unique_ptr<znhost::EmbeddedHost> host_;
};

#endif
