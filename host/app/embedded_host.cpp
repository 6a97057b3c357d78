#include "app/embedded_host.h"

#include "app/app_commands.h"
#include "app/application.h"
#include "app/manager_command.h"
#include "host/znIBrowserDataCtrl.h"
#include "model/data_sources.h"
#include "store/data_ctrl.h"
#include "window/row_drawing.h"
#include "window/window_display.h"
#include "window/window_list.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserTclCommandTree.h"

#include <set>
#include <tcl.h>

namespace znhost {

namespace {

constexpr const char* commandName = "znbrowsermanager";

/// Keeps the interpreter's memory, whoever deletes it.
struct PreservedInterp {
    explicit PreservedInterp(Tcl_Interp* tcl) : interp(tcl) { Tcl_Preserve(interp); }
    ~PreservedInterp() { Tcl_Release(interp); }
    PreservedInterp(const PreservedInterp&) = delete;
    PreservedInterp& operator=(const PreservedInterp&) = delete;

    Tcl_Interp* const interp;
};

} // namespace

/// What the host consists of; destroyed from the last to the first.
struct EmbeddedHost::Parts : PreservedInterp {
    explicit Parts(Tcl_Interp* tcl) : PreservedInterp(tcl), application(interp, log) {}
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
    std::unique_ptr<znBrowserManagerTcl> manager;
    std::shared_ptr<WindowDisplay> display;
};

EmbeddedHost::EmbeddedHost(Tcl_Interp* interp) : parts_(std::make_unique<Parts>(interp)) {
    parts_->manager = std::make_unique<znBrowserManagerTcl>(&parts_->application);
    parts_->application.SetManager(parts_->manager.get());
    parts_->WatchCommand();
}

EmbeddedHost::~EmbeddedHost() = default;

znBrowserManagerTcl& EmbeddedHost::Manager() { return *parts_->manager; }

Application& EmbeddedHost::App() { return parts_->application; }

CallLog& EmbeddedHost::Calls() { return parts_->log; }

bool EmbeddedHost::CreateDataCtrl(const std::string& name, const std::string& file, std::string& error) {
    return App().AddDataCtrl(name, file, error);
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
        commands.push_back({row->words, row->arguments, row->help});
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
