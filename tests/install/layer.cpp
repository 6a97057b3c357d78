// An application with a model of its own, as small as it can be: it has nothing to show yet.
#include <znBrowserScripting/host/znIBrowserApplication.h>
#include <znBrowserScripting/znBrowserManagerTcl.h>
#include <znBrowserScripting/znBrowserVersion.h>

#include <cstdio>
#include <tcl.h>

#if ZN_BROWSER_VERSION_NUMBER < ZN_BROWSER_VERSION_OF(0, 2, 0)
#error "too old"
#endif

namespace {

class Application final : public znIBrowserApplication {
public:
    explicit Application(Tcl_Interp* interp) : interp_(interp) {}

    znIBrowserDataCtrl* FindDataCtrl(const char*) override { return nullptr; }
    void GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) override { controls.clear(); }
    znIBrowser* GetBrowser() override { return nullptr; }
    const char* GetTclNameSpace() override { return "::mine"; }
    Tcl_Interp* GetTclInterp() override { return interp_; }
    int EvalAppCommand(int, Tcl_Obj* const[]) override { return TCL_OK; }
    znSignal<single_threaded, const char*>& GetWindowReselectedSignal() override { return reselected_; }

private:
    Tcl_Interp* const interp_;
    znSignal<single_threaded, const char*> reselected_;
};

} // namespace

int main() {
    Tcl_Interp* const interp = Tcl_CreateInterp();
    Application application(interp);
    {
        znBrowserManagerTcl manager(&application);
        Tcl_Eval(interp, "znbrowsermanager view namespace");
        std::puts(Tcl_GetStringResult(interp));
        manager.DeleteBrowserManagerCollectorTcl();
        Tcl_DeleteInterp(interp);
    }
}
