// The root of the embedded host.
#ifndef ZN_HOST_APPLICATION_H
#define ZN_HOST_APPLICATION_H

#include "app/recorder.h"
#include "base/named_list.h"
#include "base/services.h"
#include "host/znIBrowserApplication.h"
#include "state/browser_states.h"

#include <string>

namespace znhost {

class DataCtrl;

class Application final : public znIBrowserApplication, public HostServices {
public:
    /// Both outlive the application. The interpreter must have been preserved.
    Application(Tcl_Interp* interp, CallLog& log);
    ~Application() override;

    BrowserStates& Model() { return browser_; }
    Recorder& Recording() { return recorder_; }
    NamedList<DataCtrl>& DataControls() { return dataControls_; }
    /// Tells the views what others were seen to have changed. @return whether there was anything
    bool FollowNews();
    /// Adds a data control on a database file, made when missing unless it is only to be read, or on one in
    /// memory when `file` is "".
    /// @return false, with the reason in `error`, and without a data control.
    bool AddDataCtrl(const std::string& name, const std::string& file, std::string& error,
                     bool readOnly = false);

    /// From now on rows are written into no files: scripts that nobody trusts run here.
    void ForbidFiles() { mayWriteFiles_ = false; }
    bool MayWriteFiles() const { return mayWriteFiles_; }

    znIBrowserDataCtrl* FindDataCtrl(const char* name) override;
    void GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) override;
    znIBrowser* GetBrowser() override;
    const char* GetTclNameSpace() override;
    Tcl_Interp* GetTclInterp() override;
    int EvalAppCommand(int objc, Tcl_Obj* const objv[]) override;
    znSignal<single_threaded, const char*>& GetWindowReselectedSignal() override;
    znIBrowserCollector* GetCollector() override;

private:
    znSignal<single_threaded, const char*> windowReselected_;
    Recorder recorder_;
    // The browser goes first: what it holds points into the data controls.
    NamedList<DataCtrl> dataControls_;
    BrowserStates browser_;
    bool mayWriteFiles_ = true;
};

} // namespace znhost

#endif
