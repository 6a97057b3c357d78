// The embedded host as others link it. This file is in the shared library only.
#include "znBrowserHost.h"

#include "app/embedded_host.h"
#include "tk/browse.h"
#include "tk/tk_windows.h"

#include <tcl.h>

#include <exception>

namespace {

constexpr const char* associationName = "znBrowserHost";
constexpr const char* commandName = "znbrowsermanager";

void SetResult(Tcl_Interp* interp, const char* text) { Tcl_SetObjResult(interp, Tcl_NewStringObj(text, -1)); }

} // namespace

struct znBrowserHost::Parts {
    explicit Parts(Tcl_Interp* tcl) : interp(tcl), host(tcl, znhost::InterpMemory::LeftToOthers) {}

    Tcl_Interp* const interp;
    znhost::EmbeddedHost host;
    bool onDisplay = false;
    std::string error;
};

// ---- Coming and going ----

znBrowserHost::znBrowserHost(Tcl_Interp* interp) : parts_(std::make_unique<Parts>(interp)) {
    Tcl_CreateThreadExitHandler(DeleteAtExit, this);
}

znBrowserHost::~znBrowserHost() { Tcl_DeleteThreadExitHandler(DeleteAtExit, this); }

znBrowserHost* znBrowserHost::Attach(Tcl_Interp* interp) {
    if (!Tcl_InitStubs(interp, "8.6", 0)) return nullptr;
    Tcl_CmdInfo info;
    if (Tcl_GetCommandInfo(interp, commandName, &info)) {
        SetResult(interp, "the interpreter has a command \"znbrowsermanager\" already");
        return nullptr;
    }
    try {
        znBrowserHost* const host = new znBrowserHost(interp);
        Tcl_SetAssocData(
            interp, associationName, [](ClientData data, Tcl_Interp*) { Delete(data); }, host);
        return host;
    } catch (const std::exception& failure) {
        SetResult(interp, failure.what());
        return nullptr;
    }
}

znBrowserHost* znBrowserHost::Find(Tcl_Interp* interp) {
    if (!Tcl_InitStubs(interp, "8.6", 0)) return nullptr;
    return static_cast<znBrowserHost*>(Tcl_GetAssocData(interp, associationName, nullptr));
}

bool znBrowserHost::Detach(Tcl_Interp* interp) {
    const znBrowserHost* const host = Find(interp);
    if (host && host->parts_->host.IsRunning()) {
        SetResult(interp, "the browser is busy: a command of it runs");
        return false;
    }
    if (host) Tcl_DeleteAssocData(interp, associationName);
    return true;
}

void znBrowserHost::Delete(void* host) { delete static_cast<znBrowserHost*>(host); }

// The interpreter is not deleted then; the databases are to be closed all the same.
void znBrowserHost::DeleteAtExit(void* host) {
    Tcl_DeleteAssocData(static_cast<znBrowserHost*>(host)->parts_->interp, associationName);
}

// ---- What it does ----

znBrowserManagerTcl& znBrowserHost::GetManager() const { return parts_->host.Manager(); }

bool znBrowserHost::CreateDataCtrl(const char* name, const char* file) {
    if (name && file) return parts_->host.CreateDataCtrl(name, file, parts_->error);
    parts_->error = "a data control needs a name and a file";
    return false;
}

bool znBrowserHost::ShowWindows() {
    parts_->onDisplay = znhost::ShowWindows(parts_->host, parts_->error);
    return parts_->onDisplay;
}

bool znBrowserHost::Browse(const char* dataCtrl) {
    return znhost::OpenDefaultBrowser(parts_->interp, dataCtrl ? dataCtrl : "", !parts_->onDisplay,
                                      parts_->error);
}

std::size_t znBrowserHost::CountWindows() const { return parts_->host.OpenWindows(); }

std::vector<std::string> znBrowserHost::DrawWindows() const { return parts_->host.DrawWindows(); }

void znBrowserHost::Interrupt() noexcept { parts_->host.Interrupt(); }

void znBrowserHost::Resume() noexcept { parts_->host.Resume(); }

const char* znBrowserHost::GetError() const { return parts_->error.c_str(); }
