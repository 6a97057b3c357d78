// The default answers of `znIBrowserApplication`.
#ifndef ZN_BROWSER_APPLICATION_DEFAULTS_H
#define ZN_BROWSER_APPLICATION_DEFAULTS_H

#include "../znIBrowserApplication.h"
#include "../znsigslot/znSignal.h"

#include <vector>

/// `znIBrowserApplication` for hosts that have a part of it: override what there is. `EvalAppCommand` raises
/// a Tcl error without a text.
class znBrowserApplicationDefaults : public znIBrowserApplication {
public:
    /// @param interp  the interpreter in which "znbrowsermanager" is going to live; not owned, not null
    explicit znBrowserApplicationDefaults(Tcl_Interp* interp) : interp_(interp) {}
    znBrowserApplicationDefaults(const znBrowserApplicationDefaults&) = delete;
    znBrowserApplicationDefaults& operator=(const znBrowserApplicationDefaults&) = delete;

    znIBrowserDataCtrl* FindDataCtrl(const char*) override { return nullptr; }
    void GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) override { controls.clear(); }
    znIBrowser* GetBrowser() override { return nullptr; }
    const char* GetTclNameSpace() override { return "::"; }
    Tcl_Interp* GetTclInterp() override { return interp_; }
    int EvalAppCommand(int, Tcl_Obj* const[]) override { return 1; }
    znSignal<single_threaded, const char*>& GetWindowReselectedSignal() override { return windowReselected_; }

protected:
    ~znBrowserApplicationDefaults() = default;

private:
    Tcl_Interp* const interp_;
    znSignal<single_threaded, const char*> windowReselected_;
};

#endif
