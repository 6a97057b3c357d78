// The root of the embedded host.
#ifndef ZN_HOST_APPLICATION_H
#define ZN_HOST_APPLICATION_H

#include "host/znIBrowserApplication.h"
#include "model/browser.h"
#include "model/host_call.h"
#include "model/named_list.h"

#include <string>
#include <vector>

class znIBrowserManagerTcl;

namespace znhost {

class DataCtrl;
class WindowDisplay;
class LongWork;

class Application final : public znIBrowserApplication, public HostObject {
public:
    /// Both outlive the application. The interpreter must have been preserved.
    Application(Tcl_Interp* interp, CallLog& log);
    ~Application() override;

    Tcl_Interp* Interp() const { return interp_; }
    Browser& Model() { return browser_; }
    /// The scripting layer; null before it is there and after it has gone.
    znIBrowserManagerTcl* Manager() const { return manager_; }
    void SetManager(znIBrowserManagerTcl* manager) { manager_ = manager; }

    /// What shows the windows on a screen; null when nothing does. It is not owned.
    WindowDisplay* Display() const { return display_; }
    void SetDisplay(WindowDisplay* display) { display_ = display; }

    /// Whether somebody still waits for what takes long; true when nobody looks after that.
    bool GoesOn() const;
    /// Whether there is time for more of what need not be done to the end.
    bool HasTime() const;
    /// It is not owned.
    void SetWork(LongWork* work) { work_ = work; }

    NamedList<DataCtrl>& DataControls() { return dataControls_; }
    /// Adds a data control on a database file, made when missing, or on one in memory when `file` is "".
    /// @return false, with the reason in `error`, and without a data control.
    bool AddDataCtrl(const std::string& name, const std::string& file, std::string& error);

    // Running Tcl. The interpreter's result and error state are put back afterwards. What runs may call
    // "znbrowsermanager" again and delete any object of the model.
    /// Runs a script by the manager. An error goes to the interpreter's background error handler.
    /// @return false when the script failed.
    bool RunScript(const std::string& script);
    /// Calls a Tcl procedure: its name and arguments, each a word. `result` receives its result or, when the
    /// answer is false, the error message.
    bool CallProcedure(const std::vector<std::string>& words, std::string& result);
    /// Calls a Tcl procedure by the manager's script service, with one argument: `item` as a list. An error
    /// goes to the interpreter's background error handler. @return false, and `value` is as it was, when the
    /// procedure failed
    bool ComputeValue(const std::string& procedure, const std::vector<std::string>& item, std::string& value);

    znIBrowserDataCtrl* FindDataCtrl(const char* name) override;
    void GetDataCtrls(std::vector<znIBrowserDataCtrl*>& controls) override;
    znIBrowser* GetBrowser() override;
    const char* GetTclNameSpace() override;
    Tcl_Interp* GetTclInterp() override;
    int EvalAppCommand(int objc, Tcl_Obj* const objv[]) override;
    znSignal<single_threaded, const char*>& GetWindowReselectedSignal() override;

private:
    Tcl_Interp* const interp_;
    znIBrowserManagerTcl* manager_ = nullptr;
    WindowDisplay* display_ = nullptr;
    LongWork* work_ = nullptr;
    znSignal<single_threaded, const char*> windowReselected_;
    // The browser goes first: what it holds points into the data controls.
    NamedList<DataCtrl> dataControls_;
    Browser browser_;
};

} // namespace znhost

#endif
