// Events of window parts, and the callbacks attached to them.
#include "frame/ascii.h"
#include "frame/data_types.h"
#include "frame/name_list.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserEvent.h"
#include "host/znIBrowserWindowAccess.h"
#include "host/znIBrowserWindowCallback.h"
#include "host/znIBrowserWindowPart.h"
#include "znBrowserManagerTcl.h"

namespace {

constexpr char noEvent[] = "Cannot get handle to event";
constexpr char noCallback[] = "Cannot get a handle to the current callback";

/// The events of a part. @return false when the host gives none
bool EventsOf(znIBrowserWindowPart* part, std::vector<znIBrowserEvent*>& events) {
    znIBrowserWindowAccess* const window = part->GetWindowAccess();
    return window && window->GetEvents(part, events);
}

znString NameOf(const znIBrowserEvent* event) {
    znString name;
    event->GetName(name);
    return name;
}

znIBrowserWindowCallback* FindCallback(znIBrowserEvent* event, const char* name) {
    znIBrowserWindowAccess* const window = event->GetWindowAccess();
    return window && name ? window->FindCallback(event, name) : nullptr;
}

} // namespace

bool znBrowserManagerTcl::GetWindowPartEventNames(znString& out) {
    BeginOperation();
    if (!current_.windowPart) return Fail("Cannot get a handle to the current window part");
    std::vector<znIBrowserEvent*> events;
    if (!EventsOf(current_.windowPart, events)) return Fail("Cannot get list of events");
    NameList names(EntryForm::Plain, ExtraBlanks::Between);
    for (const znIBrowserEvent* const event : events) names.Add(NameOf(event));
    return names.Give(*this, out);
}

bool znBrowserManagerTcl::SetCurrentEvent(const char* name) {
    BeginOperation();
    if (!current_.windowPart) return Fail("Cannot get handle to window part");
    std::vector<znIBrowserEvent*> events;
    EventsOf(current_.windowPart, events);
    for (znIBrowserEvent* const event : events) {
        if (!name || NameOf(event) != name) continue;
        SetCurrentEvent(event);
        return true;
    }
    return FailWith({"Cannot find window event : ", name});
}

bool znBrowserManagerTcl::GetCurrentEvent(znString& out) {
    BeginOperation();
    if (!current_.event) return Fail(noEvent);
    out = NameOf(current_.event);
    return true;
}

bool znBrowserManagerTcl::CreateWindowCallback(const char* name, const char* type) {
    BeginOperation();
    if (!name || !type) return false;
    znIBrowserEvent* const event = current_.event;
    if (!event) return Fail("Cannot get a handle to the current event");
    if (FindCallback(event, name)) return FailWith({"Window callback : ", name, " already exists"});
    const bool isWindowOperation = EqualsIgnoringCase(type, "WINDOW_OPERATION");
    znIBrowser* const browser = GetBrowser();
    if (!browser || !browser->CreateWindowCallback(event, name, isWindowOperation))
        return FailWithHostError();
    znIBrowserWindowCallback* const callback = FindCallback(event, name);
    if (!callback) return false;
    SetCurrentWindowCallback(callback);
    return true;
}

bool znBrowserManagerTcl::SetCurrentWindowCallback(const char* name) {
    BeginOperation();
    if (!current_.event) return Fail(noEvent);
    znIBrowserWindowCallback* const callback = FindCallback(current_.event, name);
    if (!callback) return FailWith({"Cannot find callback : ", name});
    SetCurrentWindowCallback(callback);
    return true;
}

bool znBrowserManagerTcl::GetCurrentWindowCallback(znString& out) {
    BeginOperation();
    if (!current_.windowCallback) return Fail(noCallback);
    out = current_.windowCallback->GetName();
    return true;
}

bool znBrowserManagerTcl::GetWindowCallbackNames(znString& out) {
    BeginOperation();
    if (!current_.event) return Fail("Cannot get handle to window event");
    std::vector<znIBrowserWindowCallback*> callbacks;
    znIBrowserWindowAccess* const window = current_.event->GetWindowAccess();
    if (!window || !window->GetCallbacks(current_.event, callbacks)) return FailWithHostError();
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddNames(callbacks).Give(*this, out);
}

bool znBrowserManagerTcl::SetCurrentWindowCallbackActionWindow(const char* windowName) {
    BeginOperation();
    if (!current_.windowCallback) return Fail(noCallback);
    znIBrowserWindowAccess* const window = FindWindowAccess(windowName);
    if (!window) return FailWith({"Cannot find window called : ", windowName});
    znIBrowser* const browser = GetBrowser();
    return HostAnswer(browser && browser->SetCallbackActionWindow(current_.windowCallback, window));
}

bool znBrowserManagerTcl::GetCurrentWindowCallbackActionWindow(znString& out) {
    BeginOperation();
    if (!current_.windowCallback) return Fail(noCallback);
    znIBrowserWindowAccess* const window = current_.windowCallback->GetActionWindow();
    if (!window) return Fail("Action window is not set");
    out = window->GetName();
    return true;
}

// An operation that does not exist is refused without a message.
bool znBrowserManagerTcl::SetCurrentWindowCallbackOperation(const char* operation) {
    BeginOperation();
    if (!current_.windowCallback) return Fail(noCallback);
    const ZNBROWSER_CALLBACK_OPERATION value = CallbackOperationFromText(operation ? operation : "");
    if (value == ZNBROWSER_CALLBACK_UNDEFINED) return false;
    znIBrowser* const browser = GetBrowser();
    return HostAnswer(browser && browser->SetCallbackOperation(current_.windowCallback, value));
}

bool znBrowserManagerTcl::GetCurrentWindowCallbackOperation(znString& out) {
    BeginOperation();
    if (!current_.windowCallback) return Fail(noCallback);
    out = CallbackOperationName(current_.windowCallback->GetOperation());
    return true;
}
