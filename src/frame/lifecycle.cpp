// Construction, copies and destruction of the manager, and the registration of the command.
#include "frame/collector_helper.h"
#include "frame/command_entry.h"
#include "host/znIBrowserApplication.h"
#include "host/znIBrowserInfo.h"
#include "view/view_helper.h"
#include "znBrowserManagerTcl.h"

#include <tcl.h>

#include <stdexcept>

using namespace znlayer;

namespace {

class BrowserInfo final : public znIBrowserInfo {
public:
    const char* GetVersion() const override { return "1.0"; }
};

} // namespace

const znBrowserTclMessages znBrowserManagerTcl::TCLMESSAGE{};
const char* const znBrowserManagerTcl::DEFAULT_IMAGES_GUIMAP = "default_images_guimap";
const char* const znBrowserManagerTcl::DEFAULT_COLORS_GUIMAP = "default_colors_guimap";

znBrowserManagerTcl::znBrowserManagerTcl(znIBrowserApplication* application) : application_(application) {
    Init();
}

znBrowserManagerTcl::znBrowserManagerTcl(const znBrowserManagerTcl& other) = default;

znBrowserManagerTcl& znBrowserManagerTcl::operator=(const znBrowserManagerTcl& other) {
    if (this == &other) return *this;
    znBrowserErrorReporter::operator=(other);
    application_ = other.application_;
    current_ = other.current_;
    buffer_.assign(other.buffer_.View());
    processingCommand_ = other.processingCommand_;
    CleanUp();
    browserInfo_ = other.browserInfo_;
    viewHelper_ = other.viewHelper_;
    collectorHelper_ = other.collectorHelper_;
    return *this;
}

znBrowserManagerTcl::~znBrowserManagerTcl() { CleanUp(); }

void znBrowserManagerTcl::Init() {
    Tcl_Interp* const interp = GetTclInterp();
    // The library brings no Tcl of its own: it works with whatever 8.x the host has.
    if (!Tcl_InitStubs(interp, "8.5", 0))
        throw std::runtime_error("znbrowsermanager needs Tcl 8.5 or a later 8.x");
    const Tcl_Command command = Tcl_CreateObjCommand(interp, "znbrowsermanager", CommandProcedure,
                                                     static_cast<znIBrowserManagerTcl*>(this), nullptr);
    try {
        InitVars();
        InitBrowserInfo();
        CreateBrowserManagerViewTcl();
        CreateBrowserManagerCollectorTcl();
    } catch (...) { // no manager comes of it: the command must not reach for one
        Tcl_DeleteCommandFromToken(interp, command);
        throw;
    }
}

void znBrowserManagerTcl::InitVars() {
    SetOk();
    current_ = {};
    LeaveViewHelper();
    collectorHelper_.reset();
}

void znBrowserManagerTcl::CleanUp() {
    DestroyBrowserInfo();
    LeaveViewHelper();
}

void znBrowserManagerTcl::LeaveViewHelper() {
    // A copy that keeps the helper must not reach this manager through it.
    if (viewHelper_ && *viewHelper_) (*viewHelper_)->Leave(this);
    viewHelper_.reset();
}

void znBrowserManagerTcl::InitBrowserInfo() {
    if (!browserInfo_) browserInfo_ = std::make_shared<BrowserInfo>();
}

void znBrowserManagerTcl::DestroyBrowserInfo() { browserInfo_.reset(); }

znIBrowserInfo* znBrowserManagerTcl::GetBrowserInfo() const { return browserInfo_.get(); }

void znBrowserManagerTcl::CreateBrowserManagerViewTcl() {
    if (!viewHelper_) viewHelper_ = std::make_shared<std::unique_ptr<znBrowserManagerViewTcl>>();
    if (!*viewHelper_) *viewHelper_ = std::make_unique<znBrowserManagerViewTcl>(this);
}

void znBrowserManagerTcl::DeleteBrowserManagerViewTcl() {
    if (viewHelper_) viewHelper_->reset();
}

znBrowserManagerViewTcl* znBrowserManagerTcl::GetBrowserManagerViewTcl() const {
    return viewHelper_ ? viewHelper_->get() : nullptr;
}

void znBrowserManagerTcl::CreateBrowserManagerCollectorTcl() {
    if (GetBrowserManagerCollectorTcl()) return;
    if (!collectorHelper_) collectorHelper_ = std::make_shared<znBrowserManagerCollectorTcl*>(nullptr);
    *collectorHelper_ = new znBrowserManagerCollectorTcl(this);
}

void znBrowserManagerTcl::DeleteBrowserManagerCollectorTcl() {
    if (!collectorHelper_) return;
    delete *collectorHelper_;
    *collectorHelper_ = nullptr;
}

znBrowserManagerCollectorTcl* znBrowserManagerTcl::GetBrowserManagerCollectorTcl() const {
    return collectorHelper_ ? *collectorHelper_ : nullptr;
}

znIBrowserApplication* znBrowserManagerTcl::GetApplication() const { return application_; }

Tcl_Interp* znBrowserManagerTcl::GetTclInterp() const { return application_->GetTclInterp(); }

bool znBrowserManagerTcl::ProcessingCommand() const { return processingCommand_; }

void znBrowserManagerTcl::ProcessingCommand(bool) {}
