// A window as scripts see it: settings, parts, listeners, events and find requests.
#include "base/services.h"
#include "window/browser_windows.h"
#include "window/window.h"

#include <algorithm>
#include <tcl.h>

namespace znhost {

znIBrowserView* Window::GetView() {
    if (Refused("znIBrowserWindowAccess::GetView")) return nullptr;
    return view_;
}

const char* Window::GetName() const {
    if (Refused("znIBrowserWindowAccess::GetName")) return nullptr;
    return name_.c_str();
}

const char* Window::GetTkFrame() const {
    if (Refused("znIBrowserWindowAccess::GetTkFrame")) return nullptr;
    return tkFrame_.c_str();
}

bool Window::GetStripeDisplay() const {
    if (Refused("znIBrowserWindowAccess::GetStripeDisplay")) return false;
    return stripes_;
}

const char* Window::GetBackgroundColor() const {
    if (Refused("znIBrowserWindowAccess::GetBackgroundColor")) return nullptr;
    return background_.c_str();
}

bool Window::IsPosted() const {
    if (Refused("znIBrowserWindowAccess::IsPosted")) return false;
    return posted_;
}

// ---- Parts and listeners ----

void Window::GetWindowParts(std::vector<znIBrowserWindowPart*>& parts, bool recursive) {
    parts.clear();
    if (Refused("znIBrowserWindowAccess::GetWindowParts", recursive)) return;
    std::vector<WindowPart*> found;
    WindowPart::Append(parts_, recursive, found);
    parts.assign(found.begin(), found.end());
}

znIBrowserWindowPart* Window::FindWindowPart(const char* name) {
    if (Refused("znIBrowserWindowAccess::FindWindowPart", name)) return nullptr;
    return FindPart(TextOf(name));
}

void Window::GetListenerNames(std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserWindowAccess::GetListenerNames")) return;
    names.assign(listeners_.begin(), listeners_.end());
}

bool Window::AddListener(const char* name) {
    if (Refused("znIBrowserWindowAccess::AddListener", name)) return false;
    const std::string listener = TextOf(name);
    if (listener.empty()) return Fail("A listener needs a name");
    if (std::find(listeners_.begin(), listeners_.end(), listener) != listeners_.end()) {
        return Fail("The window \"" + name_ + "\" has a listener \"" + listener + "\" already");
    }
    listeners_.push_back(listener);
    return true;
}

bool Window::DeleteListener(const char* name) {
    if (Refused("znIBrowserWindowAccess::DeleteListener", name)) return false;
    const auto found = std::find(listeners_.begin(), listeners_.end(), TextOf(name));
    if (found == listeners_.end()) {
        return Fail("The window \"" + name_ + "\" has no listener \"" + TextOf(name) + "\"");
    }
    listeners_.erase(found);
    return true;
}

bool Window::IsWindowPartShown(znIBrowserWindowPart* part) {
    if (Refused("znIBrowserWindowAccess::IsWindowPartShown", part)) return false;
    const WindowPart* const own = Own(part);
    return own && own->IsShown();
}

bool Window::SetWindowPartPosition(znIBrowserWindowPart* part, int position) {
    if (Refused("znIBrowserWindowAccess::SetWindowPartPosition", part, position)) return false;
    WindowPart* const own = Own(part);
    if (!own) return Fail("The part is not one of the window \"" + name_ + "\"");
    return PlacePart(*own, position) ||
           Fail("There is no position " + std::to_string(position) + " for the part");
}

void Window::SetWindowPartParent(znIBrowserWindowPart* part, znIBrowserWindowPart* parent) {
    if (Refused("znIBrowserWindowAccess::SetWindowPartParent", part, parent)) return;
    WindowPart* const own = Own(part);
    WindowPart* const above = Own(parent);
    const bool movable = own && above == parent && !(above && own->Holds(*above));
    if (movable) MovePart(*own, above);
}

// ---- Events ----

bool Window::GetEvents(znIBrowserWindowPart* part, std::vector<znIBrowserEvent*>& events) {
    events.clear();
    if (Refused("znIBrowserWindowAccess::GetEvents", part)) return false;
    WindowPart* const own = Own(part);
    if (!own) return Fail("The part is not one of the window \"" + name_ + "\"");
    for (std::size_t i = 0; i < eventKinds; ++i) events.push_back(&own->Event(static_cast<EventKind>(i)));
    return true;
}

znIBrowserWindowCallback* Window::FindCallback(znIBrowserEvent* event, const char* name) {
    if (Refused("znIBrowserWindowAccess::FindCallback", event, name)) return nullptr;
    WindowEvent* const own = Own(event);
    return own ? own->Callbacks().Find(TextOf(name)) : nullptr;
}

bool Window::GetCallbacks(znIBrowserEvent* event, std::vector<znIBrowserWindowCallback*>& callbacks) {
    callbacks.clear();
    if (Refused("znIBrowserWindowAccess::GetCallbacks", event)) return false;
    WindowEvent* const own = Own(event);
    if (!own) return Fail("The event is not one of the window \"" + name_ + "\"");
    own->Callbacks().CopyTo(callbacks);
    return true;
}

bool Window::GetOperations(znIBrowserWindowPart* part, std::vector<znString>& operations) {
    operations.clear();
    if (Refused("znIBrowserWindowAccess::GetOperations", part)) return false;
    if (!Own(part)) return Fail("The part is not one of the window \"" + name_ + "\"");
    operations = {"TREE_AREA_SELECT_PARENT_ITEMS", "TREE_AREA_SELECT_CHILDREN_ITEMS"};
    return true;
}

// ---- Find requests, columns ----

void Window::GetFindRequests(std::vector<znIBrowserFindRequest*>& requests) {
    requests.clear();
    if (Refused("znIBrowserWindowAccess::GetFindRequests")) return;
    findRequests_.CopyTo(requests);
}

znIBrowserFindRequest* Window::FindFindRequest(const char* name) {
    if (Refused("znIBrowserWindowAccess::FindFindRequest", name)) return nullptr;
    return findRequests_.Find(TextOf(name));
}

// The report goes into the interpreter's result: it is what the script that asked for it reads.
void Window::ReportColumnWidth(znIBrowserViewColumn* column) {
    if (Refused("znIBrowserWindowAccess::ReportColumnWidth", column) || !column) return;
    const std::string width = std::to_string(static_cast<Column*>(column)->Width());
    Tcl_AppendResult(browser_.Services().Interp(), width.c_str(), static_cast<char*>(nullptr));
}

} // namespace znhost
