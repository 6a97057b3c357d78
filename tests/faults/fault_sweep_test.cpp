// Each call that the manager makes of its host fails once: nothing crashes, the interpreter goes on, and no
// current object is left that the host has destroyed.
#include "model/embedded_host.h"
#include "model/host_call.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <string>

namespace {

using znhost::CallLog;

std::string ReadScript() {
    std::ifstream file(std::string(ZN_SOURCE_DIR) + "/tests/faults/every_family.tcl");
    return {std::istreambuf_iterator<char>(file), {}};
}

/// One run of the script on a host of its own.
class Sweep {
public:
    Sweep() : interp_(Tcl_CreateInterp()), host_(std::make_unique<znhost::EmbeddedHost>(interp_)) {
        std::string error;
        EXPECT_TRUE(host_->CreateDataCtrl("m", "", error)) << error;
    }
    ~Sweep() {
        host_.reset();
        Tcl_DeleteInterp(interp_);
    }
    Sweep(const Sweep&) = delete;
    Sweep& operator=(const Sweep&) = delete;

    CallLog& Log() { return host_->Calls(); }
    std::string Eval(const std::string& script) {
        EXPECT_EQ(Tcl_Eval(interp_, script.c_str()), TCL_OK) << Tcl_GetStringResult(interp_);
        return Tcl_GetStringResult(interp_);
    }

    /// Asks every family for its current object: a dead one would be touched here.
    void TouchCurrents() {
        for (const char* const words : {"view current",
                                        "view column current",
                                        "view style current",
                                        "view element current",
                                        "view property current",
                                        "view property type",
                                        "view folder current",
                                        "view operation current",
                                        "view list caption x",
                                        "window current",
                                        "window part current",
                                        "window part event current",
                                        "window part event callback current",
                                        "window map current",
                                        "window find current",
                                        "window find property current",
                                        "window find property criterion value",
                                        "datactrl current",
                                        "datasource simple current",
                                        "datasource simple caption",
                                        "datasource simple criteria current",
                                        "datasource hierarchical current",
                                        "dataoperation current",
                                        "userinput current",
                                        "state current",
                                        "view datasource current"})
            Eval(std::string("catch {znbrowsermanager ") + words + "}");
    }

private:
    Tcl_Interp* interp_;
    std::unique_ptr<znhost::EmbeddedHost> host_;
};

std::size_t CountCalls(const std::string& script) {
    Sweep run;
    run.Log().SetJournal(true);
    run.Eval(script);
    return run.Log().Journal().size();
}

TEST(FaultSweep, EveryHostCallFailsOnceAndTheCommandGoesOn) {
    const std::string script = ReadScript();
    const std::size_t calls = CountCalls(script);
    ASSERT_GT(calls, 400u) << "the script no longer reaches the host";
    std::size_t failed = 0;
    for (const CallLog::Fault fault : {CallLog::Fault::Refuse, CallLog::Fault::Throw}) {
        for (std::size_t n = 1; n <= calls; ++n) {
            SCOPED_TRACE("call " + std::to_string(n));
            Sweep run;
            run.Log().FailCall(n, fault);
            run.Eval(script);
            failed += run.Log().HasFailed() ? 1 : 0;
            run.Log().FailCall(0);
            run.TouchCurrents();
            EXPECT_EQ(run.Eval("expr {[string length [znbrowsermanager view names]] >= 0}"), "1");
        }
    }
    std::cout << failed << " of " << 2 * calls << " host calls failed, each in a run of its own\n";
    EXPECT_GT(failed, calls);
}

TEST(FaultSweep, FromAnyCallOnEverythingFails) {
    const std::string script = ReadScript();
    const std::size_t calls = CountCalls(script);
    for (std::size_t n = 1; n <= calls; n += 7) {
        SCOPED_TRACE("from call " + std::to_string(n));
        Sweep run;
        run.Log().FailCall(n, n % 2 ? CallLog::Fault::Refuse : CallLog::Fault::Throw, true);
        run.Eval(script);
        run.Log().FailCall(0);
        run.TouchCurrents();
    }
}

} // namespace
