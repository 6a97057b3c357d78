#include "app/embedded_host.h"

#include "app/app_commands.h"
#include "app/application.h"
#include "app/channels.h"
#include "app/manager_command.h"
#include "base/native.h"
#include "host/znIBrowserDataCtrl.h"
#include "model/data_sources.h"
#include "store/data_ctrl.h"
#include "store/sqlite/database_file.h"
#include "window/row_drawing.h"
#include "window/window_display.h"
#include "window/window_list.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserTclCommandTree.h"

#include <set>
#include <stdexcept>
#include <tcl.h>

namespace znhost {

namespace {

constexpr const char* commandName = "znbrowsermanager";

/// The interpreter, whose Tcl the host calls, whichever 8.x it is.
struct PreservedInterp {
    PreservedInterp(Tcl_Interp* tcl, InterpMemory interpMemory) : interp(tcl), memory(interpMemory) {
        if (!Tcl_InitStubs(interp, "8.6", 0))
            throw std::runtime_error("the embedded host needs Tcl 8.6 or a later 8.x");
        if (memory == InterpMemory::Kept) Tcl_Preserve(interp);
    }
    ~PreservedInterp() {
        if (memory == InterpMemory::Kept) Tcl_Release(interp);
    }
    PreservedInterp(const PreservedInterp&) = delete;
    PreservedInterp& operator=(const PreservedInterp&) = delete;

    Tcl_Interp* const interp;
    const InterpMemory memory;
};

/// A manager that knows whether a command runs.
class RunningManager final : public znBrowserManagerTcl {
public:
    explicit RunningManager(Application& application)
        : znBrowserManagerTcl(&application), application_(application) {}

    int EvalTclCommand(int objc, Tcl_Obj* const objv[]) override {
        struct Running {
            explicit Running(int& runningCount) : count(runningCount) { ++count; }
            ~Running() { --count; }
            int& count;
        };
        const Running running(running_);
        const HostServices::OneLook look(application_);
        return znBrowserManagerTcl::EvalTclCommand(objc, objv);
    }
    bool IsRunning() const { return running_ > 0; }

private:
    Application& application_;
    int running_ = 0;
};

} // namespace

/// What the host consists of; destroyed from the last to the first.
struct EmbeddedHost::Parts : PreservedInterp {
    Parts(Tcl_Interp* tcl, InterpMemory interpMemory)
        : PreservedInterp(tcl, interpMemory), application(interp, log) {}
    ~Parts() {
        display.reset();
        if (command.token) Tcl_DeleteCommandFromToken(interp, command.token);
        application.SetManager(nullptr);
        if (manager) manager->DeleteBrowserManagerCollectorTcl();
        manager.reset();
    }
    Parts(const Parts&) = delete;
    Parts& operator=(const Parts&) = delete;

    /// Keeps hold of the command, so that it is found again when a script has renamed it, and is not looked
    /// for when a script has deleted it.
    void WatchCommand() {
        Tcl_CmdInfo info;
        if (!Tcl_GetCommandInfo(interp, commandName, &info)) return;
        command = {Tcl_FindCommand(interp, commandName, nullptr, TCL_GLOBAL_ONLY), info.objProc,
                   info.objClientData};
        info.deleteProc = [](ClientData parts) { static_cast<Parts*>(parts)->command.token = nullptr; };
        info.deleteData = this;
        Tcl_SetCommandInfoFromToken(command.token, &info);
    }

    ManagerCommand command;
    CallLog log;
    Application application;
    Channels channels{application};
    std::unique_ptr<RunningManager> manager;
    std::shared_ptr<WindowDisplay> display;
};

EmbeddedHost::EmbeddedHost(Tcl_Interp* interp, InterpMemory memory)
    : parts_(std::make_unique<Parts>(interp, memory)) {
    parts_->manager = std::make_unique<RunningManager>(parts_->application);
    parts_->application.SetManager(parts_->manager.get());
    parts_->WatchCommand();
}

EmbeddedHost::~EmbeddedHost() = default;

bool EmbeddedHost::IsRunning() const { return parts_->manager->IsRunning(); }

znBrowserManagerTcl& EmbeddedHost::Manager() { return *parts_->manager; }

Application& EmbeddedHost::App() { return parts_->application; }

CallLog& EmbeddedHost::Calls() { return parts_->log; }

bool EmbeddedHost::CreateDataCtrl(const std::string& name, const std::string& file, std::string& error,
                                  bool readOnly) {
    std::string native;
    std::string ignored;
    const bool isFile = !file.empty() && FindDatabaseFile(file, native, ignored) && FileExists(native);
    const bool isThere = isFile || IsOnServer(file);
    return App().AddDataCtrl(name, file, error, readOnly && isThere);
}

bool EmbeddedHost::AllowChanges(const std::string& name, std::string& error) {
    DataCtrl* const control = App().DataControls().Find(name);
    return control && control->SetMayChange(true, error);
}

void EmbeddedHost::Interrupt() noexcept { parts_->application.Interrupt(); }

void EmbeddedHost::Resume() noexcept { parts_->application.Resume(); }

const ManagerCommand& EmbeddedHost::Command() const { return parts_->command; }

void EmbeddedHost::SetDisplay(std::shared_ptr<WindowDisplay> display) {
    App().Model().Windows().SetDisplay(display.get());
    parts_->display = std::move(display);
}

bool EmbeddedHost::HasDisplay() const { return parts_->display != nullptr; }

std::size_t EmbeddedHost::OpenWindows() const { return parts_->display ? parts_->display->OpenWindows() : 0; }

std::vector<std::string> EmbeddedHost::GetAppWords(const std::vector<std::string>& words) {
    return NextAppWords(words);
}

std::vector<EmbeddedHost::AppCommand> EmbeddedHost::GetAppCommands(const std::vector<std::string>& words) {
    std::vector<AppCommand> commands;
    for (const AppWord* const row : AppWordsBelow(words))
        commands.push_back({row->words, row->arguments, row->answers, row->help});
    return commands;
}

std::vector<std::string> EmbeddedHost::GetNames(const std::string& kind) const {
    const CallLog::Quiet quiet(parts_->log);
    std::vector<std::string> names;
    znBrowserTclCommandTree::GetNames(*parts_->manager, kind, names);
    return names;
}

std::vector<std::string> EmbeddedHost::DrawWindows() const {
    const CallLog::Quiet quiet(parts_->log);
    std::vector<std::string> drawings;
    for (const auto& window : parts_->application.Model().Windows().All()) {
        if (window->IsPosted()) drawings.push_back(DrawRows(*window));
    }
    return drawings;
}

std::vector<std::string> EmbeddedHost::GetObjectNames() const {
    CallLog& log = parts_->log;
    const CallLog::Quiet quiet(log);
    BrowserStates& browser = parts_->application.Model();
    std::set<std::string> names;
    for (const auto& control : parts_->application.DataControls()) {
        names.insert(control->Name());
        std::vector<znIBrowserDataSource*> sources;
        control->GetDataSources(sources);
        for (znIBrowserDataSource* const source : sources) names.insert(NameOf(log, source));
    }
    for (const auto& view : browser.Views()) {
        names.insert(view->Name());
        for (const auto& column : view->Columns()) names.insert(column->Name());
        for (const auto& property : view->Properties()) names.insert(property->Name());
        for (const auto& operation : view->Operations()) names.insert(operation->Name());
        for (const FreeFolder* const folder : view->RootFolder().WithBelow()) names.insert(folder->Name());
    }
    std::vector<znIBrowserWindowAccess*> windows;
    browser.Windows().GetWindowAccesses(windows, 0);
    for (znIBrowserWindowAccess* const window : windows) names.insert(NameOf(log, window));
    return {names.begin(), names.end()};
}

} // namespace znhost
