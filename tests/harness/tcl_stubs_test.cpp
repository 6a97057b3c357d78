// The host reaches Tcl through the stubs. A program fills them once it has an interpreter; tests of parts
// that need none have them filled here.
#include <gtest/gtest.h>
#include <tcl.h>

namespace {

const bool filled = [] {
    Tcl_FindExecutable(nullptr);
    Tcl_Interp* const interp = Tcl_CreateInterp();
    const bool done = (Tcl_InitStubs)(interp, "8.6", 0) != nullptr;
    Tcl_DeleteInterp(interp);
    return done;
}();

TEST(TclStubs, AreFilled) { EXPECT_TRUE(filled); }

} // namespace
