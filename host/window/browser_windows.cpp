// Windows, their parts and callbacks, and find requests.
#include "window/browser_windows.h"

#include "window/collector.h"
#include "window/window_list.h"

namespace znhost {

namespace {

constexpr const char* noWindow = "There is no such window";

Window* Own(znIBrowserWindowAccess* window) { return static_cast<Window*>(window); }

} // namespace

BrowserWindows::BrowserWindows(HostServices& services)
    : Browser(services), windows_(std::make_unique<WindowList>(*this)),
      collector_(std::make_unique<Collector>(*this)) {}

BrowserWindows::~BrowserWindows() = default;

// ---- Windows ----

znIBrowserWindowAccessList* BrowserWindows::GetWindowAccessList() {
    if (Refused("znIBrowser::GetWindowAccessList")) return nullptr;
    return windows_.get();
}

void BrowserWindows::SetCurrentWindowAccess(znIBrowserWindowAccess* window) {
    if (Refused("znIBrowser::SetCurrentWindowAccess", window)) return;
    windows_->SetCurrent(Own(window));
}

bool BrowserWindows::CreateWindowAccess(const char* name, znIBrowserView* view) {
    if (Refused("znIBrowser::CreateWindowAccess", name, view)) return false;
    if (!view) return Fail("There is no such view");
    if (TextOf(name).empty()) return Fail("A window needs a name");
    if (windows_->All().Find(TextOf(name))) return Fail("A window \"" + TextOf(name) + "\" already exists");
    windows_->All().Add(std::make_shared<Window>(*this, static_cast<View&>(*view), TextOf(name)));
    return true;
}

bool BrowserWindows::DeleteWindowAccess(znIBrowserWindowAccess* window) {
    if (Refused("znIBrowser::DeleteWindowAccess", window)) return false;
    if (!window) return Fail(noWindow);
    windows_->Delete(*Own(window));
    return true;
}

void BrowserWindows::SetWindowTkFrame(znIBrowserWindowAccess* window, const char* frame) {
    if (Refused("znIBrowser::SetWindowTkFrame", window, frame) || !window) return;
    Own(window)->MoveInto(TextOf(frame));
}

bool BrowserWindows::PostWindowAccess(znIBrowserWindowAccess* window, bool post) {
    if (Refused("znIBrowser::PostWindowAccess", window, post)) return false;
    if (!window) return Fail(noWindow);
    Own(window)->Post(post);
    return true;
}

bool BrowserWindows::SetWindowStripeDisplay(znIBrowserWindowAccess* window, bool on, bool all) {
    if (Refused("znIBrowser::SetWindowStripeDisplay", window, on, all)) return false;
    if (!window && !all) return Fail(noWindow);
    if (!all) Own(window)->SetStripes(on);
    if (!all) return true;
    for (const auto& each : windows_->All()) each->SetStripes(on);
    return true;
}

bool BrowserWindows::SetWindowBackgroundColor(znIBrowserWindowAccess* window, const char* color, bool flag) {
    if (Refused("znIBrowser::SetWindowBackgroundColor", window, color, flag)) return false;
    if (!window) return Fail(noWindow);
    Own(window)->SetBackground(TextOf(color));
    return true;
}

// ---- Parts and callbacks ----

bool BrowserWindows::CreateWindowPart(znIBrowserWindowAccess* window, const char* name, const char* parent) {
    if (Refused("znIBrowser::CreateWindowPart", window, name, parent)) return false;
    if (!window) return Fail(noWindow);
    Window& own = *Own(window);
    WindowPart* const above = own.FindPart(TextOf(parent));
    if (!above && !TextOf(parent).empty()) return Fail("There is no window part \"" + TextOf(parent) + "\"");
    if (TextOf(name).empty()) return Fail("A window part needs a name");
    if (own.FindPart(TextOf(name))) return Fail("A window part \"" + TextOf(name) + "\" already exists");
    own.AddPart(TextOf(name), above);
    return true;
}

bool BrowserWindows::DeleteWindowPart(znIBrowserWindowPart* part) {
    if (Refused("znIBrowser::DeleteWindowPart", part)) return false;
    if (!part) return Fail("There is no such window part");
    WindowPart& own = static_cast<WindowPart&>(*part);
    own.Owner().DeletePart(own);
    return true;
}

bool BrowserWindows::SetWindowPartShown(znIBrowserWindowPart* part, bool shown) {
    if (Refused("znIBrowser::SetWindowPartShown", part, shown)) return false;
    if (!part) return Fail("There is no such window part");
    WindowPart& own = static_cast<WindowPart&>(*part);
    own.Owner().ShowPart(own, shown);
    return true;
}

bool BrowserWindows::CreateWindowCallback(znIBrowserEvent* event, const char* name, bool isWindowOperation) {
    if (Refused("znIBrowser::CreateWindowCallback", event, name, isWindowOperation)) return false;
    if (!event) return Fail("There is no such event");
    if (TextOf(name).empty()) return Fail("A callback needs a name");
    WindowEvent& own = static_cast<WindowEvent&>(*event);
    if (own.Callbacks().Find(TextOf(name))) return Fail("A callback \"" + TextOf(name) + "\" already exists");
    own.Callbacks().Add(std::make_shared<WindowCallback>(own, TextOf(name), isWindowOperation));
    return true;
}

bool BrowserWindows::SetCallbackActionWindow(znIBrowserWindowCallback* callback,
                                             znIBrowserWindowAccess* window) {
    if (Refused("znIBrowser::SetCallbackActionWindow", callback, window)) return false;
    if (!callback) return Fail("There is no such callback");
    static_cast<WindowCallback&>(*callback).SetActionWindow(Own(window));
    return true;
}

bool BrowserWindows::SetCallbackOperation(znIBrowserWindowCallback* callback,
                                          ZNBROWSER_CALLBACK_OPERATION operation) {
    if (Refused("znIBrowser::SetCallbackOperation", callback, operation)) return false;
    if (!callback) return Fail("There is no such callback");
    static_cast<WindowCallback&>(*callback).SetOperation(operation);
    return true;
}

// ---- Find requests ----

bool BrowserWindows::SetFindRequestType(znIBrowserFindRequest* request, ZNBROWSER_FIND_REQUEST_TYPE type) {
    if (Refused("znIBrowser::SetFindRequestType", request, type)) return false;
    if (!request) return Fail("There is no such find request");
    static_cast<FindRequest&>(*request).SetType(type);
    return true;
}

bool BrowserWindows::PerformFindRequest(znIBrowserFindRequest* request) {
    if (Refused("znIBrowser::PerformFindRequest", request)) return false;
    if (!request) return Fail("There is no such find request");
    FindRequest& own = static_cast<FindRequest&>(*request);
    return static_cast<Window&>(own.Owner()).Perform(own);
}

} // namespace znhost
