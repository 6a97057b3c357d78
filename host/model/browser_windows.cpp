// Windows, their parts and callbacks, and find requests.
#include "host/znIBrowserEvent.h"
#include "host/znIBrowserFindRequest.h"
#include "host/znIBrowserWindowAccess.h"
#include "host/znIBrowserWindowCallback.h"
#include "host/znIBrowserWindowPart.h"
#include "model/browser.h"
#include "model/view.h"
#include "model/window_list.h"

namespace znhost {

znIBrowserWindowAccessList* Browser::GetWindowAccessList() {
    if (Refused("znIBrowser::GetWindowAccessList")) return nullptr;
    return windows_.get();
}

void Browser::SetCurrentWindowAccess(znIBrowserWindowAccess* window) {
    static_cast<void>(Refused("znIBrowser::SetCurrentWindowAccess", window));
}

bool Browser::CreateWindowAccess(const char* name, znIBrowserView* view) {
    if (Refused("znIBrowser::CreateWindowAccess", name, view)) return false;
    return Fail("There is no such window");
}

bool Browser::DeleteWindowAccess(znIBrowserWindowAccess* window) {
    if (Refused("znIBrowser::DeleteWindowAccess", window)) return false;
    return Fail("There is no such window");
}

void Browser::SetWindowTkFrame(znIBrowserWindowAccess* window, const char* frame) {
    static_cast<void>(Refused("znIBrowser::SetWindowTkFrame", window, frame));
}

bool Browser::PostWindowAccess(znIBrowserWindowAccess* window, bool post) {
    if (Refused("znIBrowser::PostWindowAccess", window, post)) return false;
    return Fail("There is no such window");
}

bool Browser::SetWindowStripeDisplay(znIBrowserWindowAccess* window, bool on, bool all) {
    if (Refused("znIBrowser::SetWindowStripeDisplay", window, on, all)) return false;
    return Fail("There is no such window");
}

bool Browser::SetWindowBackgroundColor(znIBrowserWindowAccess* window, const char* color, bool flag) {
    if (Refused("znIBrowser::SetWindowBackgroundColor", window, color, flag)) return false;
    return Fail("There is no such window");
}

bool Browser::CreateWindowPart(znIBrowserWindowAccess* window, const char* name, const char* parent) {
    if (Refused("znIBrowser::CreateWindowPart", window, name, parent)) return false;
    return Fail("There is no such window");
}

bool Browser::DeleteWindowPart(znIBrowserWindowPart* part) {
    if (Refused("znIBrowser::DeleteWindowPart", part)) return false;
    return Fail("There is no such window");
}

bool Browser::SetWindowPartShown(znIBrowserWindowPart* part, bool shown) {
    if (Refused("znIBrowser::SetWindowPartShown", part, shown)) return false;
    return Fail("There is no such window");
}

bool Browser::CreateWindowCallback(znIBrowserEvent* event, const char* name, bool isWindowOperation) {
    if (Refused("znIBrowser::CreateWindowCallback", event, name, isWindowOperation)) return false;
    return Fail("There is no such window");
}

bool Browser::SetCallbackActionWindow(znIBrowserWindowCallback* callback, znIBrowserWindowAccess* window) {
    if (Refused("znIBrowser::SetCallbackActionWindow", callback, window)) return false;
    return Fail("There is no such window");
}

bool Browser::SetCallbackOperation(znIBrowserWindowCallback* callback,
                                   ZNBROWSER_CALLBACK_OPERATION operation) {
    if (Refused("znIBrowser::SetCallbackOperation", callback, operation)) return false;
    return Fail("There is no such window");
}

bool Browser::SetFindRequestType(znIBrowserFindRequest* request, ZNBROWSER_FIND_REQUEST_TYPE type) {
    if (Refused("znIBrowser::SetFindRequestType", request, type)) return false;
    return Fail("There is no such window");
}

bool Browser::PerformFindRequest(znIBrowserFindRequest* request) {
    if (Refused("znIBrowser::PerformFindRequest", request)) return false;
    return Fail("There is no such window");
}

bool View::AddFindRequestProperty(znIBrowserFindRequest* request, const char* name) {
    if (Refused("znIBrowserView::AddFindRequestProperty", request, name)) return false;
    return Fail("There is no such find request");
}

} // namespace znhost
