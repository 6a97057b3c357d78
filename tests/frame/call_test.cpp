#include "fake_application.h"
#include "frame/call.h"
#include "znBrowserManagerTcl.h"

#include <gtest/gtest.h>

using namespace znlayer;

// Its bytes are not looked at, or this would crash.
TEST(Call, RefusesAnAnswerThatTclCannotHold) {
    const std::string_view huge("x", std::size_t{1} << 31);
    FakeApplication application;
    znBrowserManagerTcl manager(&application);
    Tcl_Obj* const word = Tcl_NewStringObj("znbrowsermanager", -1);
    Tcl_IncrRefCount(word);
    for (const char* const before : {"", "what was answered before"}) {
        Call call(manager, 1, &word);
        if (*before) call.Answer(before);
        call.Answer(huge);
        EXPECT_EQ(call.Finish(), TCL_OK);
        EXPECT_STREQ(Tcl_GetStringResult(manager.GetTclInterp()),
                     "[Command] \n\t[Error] The answer is too large: the limit is 536870912 bytes");
    }
    Tcl_DecrRefCount(word);
    manager.DeleteBrowserManagerCollectorTcl();
}
