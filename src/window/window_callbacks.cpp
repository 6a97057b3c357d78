// Events of window parts, and the callbacks attached to them.
#include "frame/ascii.h"
#include "frame/data_types.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserEvent.h"
#include "host/znIBrowserWindowAccess.h"
#include "host/znIBrowserWindowCallback.h"
#include "host/znIBrowserWindowPart.h"
#include "znBrowserManagerTcl.h"

using namespace znlayer;

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
    const Operation operation(*this);
    if (!current_.windowPart) return operation.Fail("Cannot get a handle to the current window part");
    std::vector<znIBrowserEvent*> events;
    if (!EventsOf(current_.windowPart, events)) return operation.Fail("Cannot get list of events");
    NameList names(EntryForm::Plain, ExtraBlanks::Between);
    for (const znIBrowserEvent* const event : events) names.Add(NameOf(event));
    return names.Give(*this, out);
}

bool znBrowserManagerTcl::SetCurrentEvent(const char* name) {
    const Operation operation(*this);
    if (!current_.windowPart) return operation.Fail("Cannot get handle to window part");
    std::vector<znIBrowserEvent*> events;
    EventsOf(current_.windowPart, events);
    for (znIBrowserEvent* const event : events) {
        if (!name || NameOf(event) != name) continue;
        SetCurrentEvent(event);
        return true;
    }
    return operation.Fail({"Cannot find window event : ", name});
}

bool znBrowserManagerTcl::GetCurrentEvent(znString& out) {
    const Operation operation(*this);
    if (!current_.event) return operation.Fail(noEvent);
    out = NameOf(current_.event);
    return true;
}

bool znBrowserManagerTcl::CreateWindowCallback(const char* name, const char* type) {
    const Operation operation(*this);
    if (!name || !type) return false;
    znIBrowserEvent* const event = current_.event;
    if (!event) return operation.Fail("Cannot get a handle to the current event");
    if (FindCallback(event, name)) return operation.Fail({"Window callback : ", name, " already exists"});
    const bool isWindowOperation = EqualsIgnoringCase(type, "WINDOW_OPERATION");
    znIBrowser* const browser = BrowserOf(*this);
    if (!browser || !browser->CreateWindowCallback(event, name, isWindowOperation))
        return operation.FailWithHostError();
    znIBrowserWindowCallback* const callback = FindCallback(event, name);
    if (!callback) return false;
    SetCurrentWindowCallback(callback);
    return true;
}

bool znBrowserManagerTcl::SetCurrentWindowCallback(const char* name) {
    const Operation operation(*this);
    if (!current_.event) return operation.Fail(noEvent);
    znIBrowserWindowCallback* const callback = FindCallback(current_.event, name);
    if (!callback) return operation.Fail({"Cannot find callback : ", name});
    SetCurrentWindowCallback(callback);
    return true;
}

bool znBrowserManagerTcl::GetCurrentWindowCallback(znString& out) {
    const Operation operation(*this);
    if (!current_.windowCallback) return operation.Fail(noCallback);
    out = current_.windowCallback->GetName();
    return true;
}

bool znBrowserManagerTcl::GetWindowCallbackNames(znString& out) {
    const Operation operation(*this);
    if (!current_.event) return operation.Fail("Cannot get handle to window event");
    std::vector<znIBrowserWindowCallback*> callbacks;
    znIBrowserWindowAccess* const window = current_.event->GetWindowAccess();
    if (!window || !window->GetCallbacks(current_.event, callbacks)) return operation.FailWithHostError();
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddNames(callbacks).Give(*this, out);
}

bool znBrowserManagerTcl::SetCurrentWindowCallbackActionWindow(const char* windowName) {
    const Operation operation(*this);
    if (!current_.windowCallback) return operation.Fail(noCallback);
    znIBrowserWindowAccess* const window = FindWindowAccess(*this, windowName);
    if (!window) return operation.Fail({"Cannot find window called : ", windowName});
    znIBrowser* const browser = BrowserOf(*this);
    return operation.HostAnswer(browser && browser->SetCallbackActionWindow(current_.windowCallback, window));
}

bool znBrowserManagerTcl::GetCurrentWindowCallbackActionWindow(znString& out) {
    const Operation operation(*this);
    if (!current_.windowCallback) return operation.Fail(noCallback);
    znIBrowserWindowAccess* const window = current_.windowCallback->GetActionWindow();
    if (!window) return operation.Fail("Action window is not set");
    out = window->GetName();
    return true;
}

// An operation that does not exist is refused without a message.
bool znBrowserManagerTcl::SetCurrentWindowCallbackOperation(const char* text) {
    const Operation operation(*this);
    if (!current_.windowCallback) return operation.Fail(noCallback);
    const ZNBROWSER_CALLBACK_OPERATION value = CallbackOperationFromText(text ? text : "");
    if (value == ZNBROWSER_CALLBACK_UNDEFINED) return false;
    znIBrowser* const browser = BrowserOf(*this);
    return operation.HostAnswer(browser && browser->SetCallbackOperation(current_.windowCallback, value));
}

bool znBrowserManagerTcl::GetCurrentWindowCallbackOperation(znString& out) {
    const Operation operation(*this);
    if (!current_.windowCallback) return operation.Fail(noCallback);
    out = CallbackOperationName(current_.windowCallback->GetOperation());
    return true;
}
