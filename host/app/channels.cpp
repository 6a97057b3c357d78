#include "app/channels.h"

#include "app/application.h"
#include "store/data_ctrl.h"

#include <algorithm>

namespace znhost {

namespace {

// What wakes Tcl up is taken before it waits again.
void DoNothing(ClientData, int) {}

} // namespace

Channels::Channels(Application& application) : application_(application) {
    Tcl_CreateEventSource(BeforeWait, DoNothing, this);
}

Channels::~Channels() {
    Tcl_DeleteEventSource(BeforeWait, DoNothing, this);
    Tcl_CancelIdleCall(Follow, this);
    for (const int file : heard_) Tcl_DeleteFileHandler(file);
}

void Channels::BeforeWait(ClientData channels, int) {
    Channels& self = *static_cast<Channels*>(channels);
    try {
        const bool hasNews = self.HasNews(); // first: a connection that is found lost is closed by that
        self.Listen();
        if (!hasNews) return;
    } catch (const std::bad_alloc&) { // Tcl knows no exceptions; it is looked at before the next wait
        return;
    }
    if (!self.isDue_) Tcl_DoWhenIdle(Follow, &self);
    self.isDue_ = true;
    const Tcl_Time now{0, 0};
    Tcl_SetMaxBlockTime(&now);
}

void Channels::Listen() {
    std::vector<int> files;
    for (const auto& control : application_.DataControls()) {
        if (control->Db().Channel() >= 0) files.push_back(control->Db().Channel());
    }
    if (files == heard_) return;
    for (const int file : heard_) {
        if (std::find(files.begin(), files.end(), file) == files.end()) Tcl_DeleteFileHandler(file);
    }
    for (const int file : files) Tcl_CreateFileHandler(file, TCL_READABLE, DoNothing, nullptr);
    heard_ = std::move(files);
}

bool Channels::HasNews() {
    bool told = false;
    for (const auto& control : application_.DataControls())
        told = control->Db().TakeNotices() || control->HasMissing() || told;
    return told;
}

// What cannot be read now is told when somebody looks.
void Channels::Follow(ClientData channels) {
    Channels& self = *static_cast<Channels*>(channels);
    self.isDue_ = false;
    try {
        const HostServices::OneLook look(self.application_);
        for (const auto& control : self.application_.DataControls()) {
            bool changed = false;
            std::string error;
            if (control->Db().Channel() >= 0 || control->HasMissing()) control->FollowOthers(changed, error);
        }
    } catch (const std::bad_alloc&) {
        self.isDue_ = false;
    }
}

} // namespace znhost
