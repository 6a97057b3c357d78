// The interpreter, or all its variables, go away while a command is at work.
#include "app/embedded_host.h"

#include <gtest/gtest.h>
#include <tcl.h>

#include <memory>
#include <string>

namespace {

/// The Tcl command "die".
int DeleteInterp(ClientData, Tcl_Interp* interp, int, Tcl_Obj* const[]) {
    Tcl_DeleteInterp(interp);
    return TCL_OK;
}

/// A host whose operation, listener, callback and property all run one script.
class MidCommand : public testing::Test {
protected:
    MidCommand() : interp_(Tcl_CreateInterp()), host_(std::make_unique<znhost::EmbeddedHost>(interp_)) {
        Tcl_Preserve(interp_);
        Tcl_CreateObjCommand(interp_, "die", &DeleteInterp, nullptr, nullptr);
        std::string error;
        EXPECT_TRUE(host_->CreateDataCtrl("m", "", error)) << error;
        Eval("interp alias {} zn {} znbrowsermanager; proc all args {uplevel #0 $::script}\n"
             "zn app sql m {CREATE TABLE part(id INTEGER PRIMARY KEY)}; zn app sql m {INSERT INTO part "
             "VALUES (1), (2)}\n"
             "foreach words {{datactrl current m} {view create v} {view datactrl connect} {view operation "
             "create op}"
             " {view operation script all} {datasource simple create own} {datasource simple connect part}"
             " {datasource simple property create p 0 all} {view property create p} {view property type "
             "string}"
             " {view property connect own p} {window create w} {window listener connect all}"
             " {window part create a} {window part event current POSTED}"
             " {window part event callback create all script}} {zn {*}$words}");
    }
    ~MidCommand() override {
        host_.reset();
        if (!Tcl_InterpDeleted(interp_)) Tcl_DeleteInterp(interp_);
        Tcl_Release(interp_);
    }

    int Eval(const std::string& script) { return Tcl_EvalEx(interp_, script.c_str(), -1, TCL_EVAL_GLOBAL); }

    Tcl_Interp* interp_;
    std::unique_ptr<znhost::EmbeddedHost> host_;
};

constexpr const char* commands[] = {"zn view operation perform", "zn OnTkTreeSelectionChangeFinished w",
                                    "zn window post true", "zn datasource simple dataitem"};

class EveryWay : public MidCommand, public testing::WithParamInterface<const char*> {};

TEST_P(EveryWay, TheInterpreterMayBeDeletedInMidCommand) {
    Eval("set script die");
    Eval(GetParam());
    EXPECT_TRUE(Tcl_InterpDeleted(interp_));
}

TEST_P(EveryWay, AllVariablesMayBeDeletedInMidCommand) {
    Eval("set script {foreach name [info globals] {unset -nocomplain ::$name}}");
    Eval(GetParam());
    EXPECT_EQ(Eval("info globals script"), TCL_OK);
    EXPECT_STREQ(Tcl_GetStringResult(interp_), "");
    EXPECT_EQ(Eval("zn view current"), TCL_OK);
    EXPECT_STREQ(Tcl_GetStringResult(interp_), "v");
}

INSTANTIATE_TEST_SUITE_P(, EveryWay, testing::ValuesIn(commands));

} // namespace
