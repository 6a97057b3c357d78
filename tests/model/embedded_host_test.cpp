// The embedded host as a whole: how it comes and goes.
#include "host/app/embedded_host.h"

#include <gtest/gtest.h>
#include <tcl.h>

namespace znhost {
namespace {

int Eval(Tcl_Interp* interp, const char* script) { return Tcl_Eval(interp, script); }

TEST(EmbeddedHost, GoesBeforeItsInterpreterAndTakesTheCommandAlong) {
    for (const char* const script : {"", "rename znbrowsermanager other", "rename znbrowsermanager {}"}) {
        Tcl_Interp* const interp = Tcl_CreateInterp();
        auto host = std::make_unique<EmbeddedHost>(interp);
        ASSERT_EQ(Eval(interp, script), TCL_OK);
        host.reset();
        EXPECT_EQ(Eval(interp, "znbrowsermanager view names"), TCL_ERROR) << script;
        EXPECT_EQ(Eval(interp, "other view names"), TCL_ERROR) << script;
        Tcl_DeleteInterp(interp);
    }
}

TEST(EmbeddedHost, OutlivesItsInterpreter) {
    Tcl_Interp* const interp = Tcl_CreateInterp();
    EmbeddedHost host(interp);
    ASSERT_EQ(Eval(interp, "znbrowsermanager view create v"), TCL_OK);
    Tcl_DeleteInterp(interp);
    EXPECT_EQ(host.GetObjectNames(), (std::vector<std::string>{"Name", "v"}));
}

} // namespace
} // namespace znhost
