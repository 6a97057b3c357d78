// An application with a model of its own, as small as it can be: it has nothing to show yet.
#include <znBrowserScripting/host/defaults/znBrowserApplicationDefaults.h>
#include <znBrowserScripting/znBrowserManagerTcl.h>
#include <znBrowserScripting/znBrowserVersion.h>

#include <cstdio>
#include <tcl.h>

#if ZN_BROWSER_VERSION_NUMBER < ZN_BROWSER_VERSION_OF(0, 2, 0)
#error "too old"
#endif

namespace {

class Application final : public znBrowserApplicationDefaults {
public:
    using znBrowserApplicationDefaults::znBrowserApplicationDefaults;

    const char* GetTclNameSpace() override { return "::mine"; }
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
