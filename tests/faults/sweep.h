// What the sweeps share: a run of a script on a host of its own, and the check of what the run leaves behind.
#ifndef SWEEP_H
#define SWEEP_H

#include "app/embedded_host.h"
#include "base/host_call.h"
#include "store/data_ctrl.h"
#include "tests/faults/living_objects.h"
#include "tk/tk_windows.h"
#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

/// An interpreter that has read the sections of the script.
class SweepScript {
public:
    SweepScript() : interp_(Tcl_CreateInterp()) {
        EXPECT_EQ(Tcl_Init(interp_), TCL_OK) << Tcl_GetStringResult(interp_);
        const std::string file = std::string(ZN_SOURCE_DIR) + "/tests/faults/every_family.tcl";
        EXPECT_EQ(Tcl_EvalFile(interp_, file.c_str()), TCL_OK) << Tcl_GetStringResult(interp_);
        std::istringstream names(Eval("dict keys $sections"));
        sections_.assign(std::istream_iterator<std::string>(names), {});
    }
    ~SweepScript() { Tcl_DeleteInterp(interp_); }
    SweepScript(const SweepScript&) = delete;
    SweepScript& operator=(const SweepScript&) = delete;

    Tcl_Interp* Interp() const { return interp_; }
    const std::vector<std::string>& Sections() const { return sections_; }
    /// Evaluates what must succeed.
    std::string Eval(const std::string& script) {
        EXPECT_EQ(Tcl_EvalEx(interp_, script.c_str(), -1, TCL_EVAL_GLOBAL), TCL_OK)
            << Tcl_GetStringResult(interp_);
        return Tcl_GetStringResult(interp_);
    }

private:
    Tcl_Interp* interp_;
    std::vector<std::string> sections_;
};

/// One run: a host with a data control "m" on a small model.
class SweepRun {
public:
    explicit SweepRun(SweepScript& script)
        : script_(script), host_(std::make_unique<znhost::EmbeddedHost>(script.Interp())) {
        const std::string model = script.Eval("join $model {;}");
        std::string error;
        EXPECT_TRUE(host_->CreateDataCtrl("m", "", error)) << error;
        EXPECT_TRUE(host_->App().DataControls().Find("m")->Db().RunScript(model, error)) << error;
    }

    znhost::EmbeddedHost& Host() { return *host_; }
    znBrowserManagerTcl& Manager() { return host_->Manager(); }
    znhost::CallLog& Log() { return host_->Calls(); }
    /// From now on posted windows stand on the display.
    void ShowWindows() {
        std::string error;
        EXPECT_TRUE(znhost::ShowWindows(*host_, error)) << error;
    }
    /// Both give what the commands answer.
    std::string Open() { return script_.Eval("run $opening"); }
    std::string Run(const std::string& section) {
        return script_.Eval("run [dict get $sections " + section + "]");
    }

    /// No current object is dead, no view shows a table that has gone, the rows of each window stand where
    /// they say, and the next command is answered.
    void Check() {
        EXPECT_EQ(DeadCurrents(*host_), "");
        host_->App().DataControls().Find("m")->ForgetMissing();
        for (const auto& view : host_->App().Model().Views()) {
            for (znIBrowserDataSourceSimple* const source : view->ShowableSources()) {
                const auto* const base = dynamic_cast<znhost::BaseSource*>(znhost::SourceOf(source));
                EXPECT_TRUE(!base || base->Table()) << base->Name();
            }
        }
        for (const auto& window : host_->App().Model().Windows().All()) CheckRows(*window);
        EXPECT_EQ(script_.Eval("znbrowsermanager view create afterwards; znbrowsermanager view current"),
                  "afterwards");
    }

private:
    /// Expanded, the rows are those that a new window would show, and each stands where it says.
    static void CheckRows(znhost::Window& window) {
        znhost::RowModel& rows = window.Rows();
        rows.ExpandAll();
        if (window.ShownView()) {
            znhost::RowModel anew(*window.ShownView());
            anew.ExpandAll();
            EXPECT_EQ(rows.Count(), anew.Count());
        }
        const std::vector<std::uint32_t> indices = rows.IndicesFrom(0, 1000);
        EXPECT_EQ(static_cast<std::int64_t>(indices.size()), rows.Count());
        for (std::size_t i = 0; i < indices.size(); ++i)
            EXPECT_EQ(rows.PositionOf(indices[i]), static_cast<std::int64_t>(i));
    }

    SweepScript& script_;
    std::unique_ptr<znhost::EmbeddedHost> host_;
};

#endif
