// The browser object: what it owns, and what it makes the others let go of.
#include "model/browser.h"

#include "base/services.h"
#include "model/data_sources.h"
#include "model/gui_map_list.h"

namespace znhost {

znIBrowserView* ViewList::FindView(const char* name) {
    if (Refused("znIBrowserViewList::FindView", name)) return nullptr;
    return views_.Find(TextOf(name));
}

void ViewList::GetViews(std::vector<znIBrowserView*>& views, int flags) {
    views.clear();
    if (Refused("znIBrowserViewList::GetViews", flags)) return;
    views_.CopyTo(views);
}

Browser::Browser(HostServices& services)
    : HostObject(services.Log()), services_(services), views_(log_),
      guiMaps_(std::make_unique<GuiMapList>(log_)), popupMenus_(log_) {}

Browser::~Browser() = default;

void Browser::Forget(znIBrowserDataSource& source) {
    for (const auto& view : Views()) view->Forget(source);
}

void Browser::Forget(const znIBrowserDataReference& reference) {
    for (const auto& view : Views()) view->Forget(reference);
}

void Browser::Forget(const znIBrowserDataProperty& property) {
    for (const auto& view : Views()) view->Forget(property);
}

void Browser::Forget(const znIBrowserDataOperation& operation) {
    for (const auto& view : Views()) view->Forget(operation);
}

bool Browser::Uses(znIBrowserDataSource& source) {
    for (const auto& view : Views()) {
        if (view->Uses(source)) return true;
    }
    return false;
}

void Browser::DataChanged(const znIBrowserDataCtrl& control, unsigned changes) {
    NoteDataChange(control, changes);
    for (const auto& view : HeldViews()) {
        if (view->DataControl() == &control) view->Changed(changes);
    }
}

void Browser::NoteDataChange(const znIBrowserDataCtrl& control, unsigned changes) noexcept {
    for (const auto& view : Views()) {
        if (view->DataControl() == &control) view->NoteItems(changes);
    }
}

const char* Browser::GetError() const {
    if (Refused("znIBrowser::GetError")) return "";
    return log_.Error().c_str();
}

} // namespace znhost
