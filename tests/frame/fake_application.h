// A host without a browser object: the least that a manager can be given.
#ifndef FAKE_APPLICATION_H
#define FAKE_APPLICATION_H

#include "host/znIBrowserApplication.h"

#include <tcl.h>

#include <functional>

class FakeApplication final : public znIBrowserApplication {
public:
    FakeApplication() : interp_(Tcl_CreateInterp()) {}
    ~FakeApplication() { Tcl_DeleteInterp(interp_); }
    FakeApplication(const FakeApplication&) = delete;
    FakeApplication& operator=(const FakeApplication&) = delete;

    znIBrowserDataCtrl* FindDataCtrl(const char*) override { return nullptr; }
    void GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) override { controls.clear(); }
    znIBrowser* GetBrowser() override { return nullptr; }
    const char* GetTclNameSpace() override { return "::fake"; }
    Tcl_Interp* GetTclInterp() override { return interp_; }
    int EvalAppCommand(int objc, Tcl_Obj* const objv[]) override { return onAppCommand(objc, objv); }
    znSignal<single_threaded, const char*>& GetWindowReselectedSignal() override { return reselected_; }

    /// What "app" does; nothing unless a test says otherwise.
    std::function<int(int, Tcl_Obj* const*)> onAppCommand = [](int, Tcl_Obj* const*) { return TCL_OK; };

    std::string Eval(const char* script) {
        Tcl_Eval(interp_, script);
        return Tcl_GetStringResult(interp_);
    }

private:
    Tcl_Interp* interp_;
    znSignal<single_threaded, const char*> reselected_;
};

#endif
