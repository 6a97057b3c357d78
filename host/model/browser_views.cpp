// Views, and when their changes reach the windows.
#include "host/znIBrowserDataCtrl.h"
#include "model/browser.h"
#include "model/view.h"

namespace znhost {

void Browser::SetFlushFlag(bool flush) {
    if (Refused("znIBrowser::SetFlushFlag", flush)) return;
    flush_ = flush;
    if (!flush_) return;
    for (const auto& view : HeldViews()) view->Flush();
}

bool Browser::ApplyPendingChanges(znIBrowserViewItemFreeFolder* folder) {
    if (Refused("znIBrowser::ApplyPendingChanges", folder)) return false;
    if (!folder) return Fail("No folder to apply the pending changes to");
    static_cast<FreeFolder*>(folder)->Owner().Flush();
    return true;
}

bool Browser::CreateView(const char* name, bool flag) {
    if (Refused("znIBrowser::CreateView", name, flag)) return false;
    const std::string newName = TextOf(name);
    if (Views().Find(newName)) return Fail("A view \"" + newName + "\" already exists");
    Views().Add(std::make_shared<View>(*this, newName, flag));
    return true;
}

znIBrowserViewList* Browser::GetViewList() {
    if (Refused("znIBrowser::GetViewList")) return nullptr;
    return &views_;
}

bool Browser::DeleteView(znIBrowserView* view) {
    if (Refused("znIBrowser::DeleteView", view)) return false;
    View* const doomed = static_cast<View*>(view);
    const std::shared_ptr<View> hold = doomed ? Views().Remove(*doomed) : nullptr;
    if (!hold) return Fail("There is no such view");
    doomed->EndShares();
    return true;
}

bool Browser::RedrawViews(znIBrowserDataCtrl* control) {
    if (Refused("znIBrowser::RedrawViews", control)) return false;
    if (!control) return Fail("No data control to redraw the views of");
    for (const auto& view : HeldViews()) {
        if (view->DataControl() != control) continue;
        view->Changed(VIEW_ALL);
        view->Flush();
    }
    return true;
}

} // namespace znhost
