#include "window/window_event.h"

#include "window/window.h"

namespace znhost {

const char* EventName(EventKind kind) {
    static constexpr const char* names[eventKinds] = {
        "SELECTION_CHANGED", "ITEM_EXPANDED", "ITEM_COLLAPSED", "LEFT_CLICK", "RIGHT_CLICK",
        "CHECK_BOX_CLICK",   "BUTTON_CLICK",  "ITEMS_DROPPED",  "POSTED",     "UNPOSTED",
    };
    return names[static_cast<std::size_t>(kind)];
}

WindowEvent::WindowEvent(WindowPart& part, EventKind kind)
    : HostObject(part.Owner().Log()), part_(part), kind_(kind) {}

znIBrowserWindowAccess* WindowEvent::GetWindowAccess() {
    if (Refused("znIBrowserEvent::GetWindowAccess")) return nullptr;
    return &part_.Owner();
}

void WindowEvent::GetName(znString& name) const {
    name = znString();
    if (!Refused("znIBrowserEvent::GetName")) name.assign(EventName(kind_));
}

znIBrowserWindowPart* WindowEvent::GetWindowPart() {
    if (Refused("znIBrowserEvent::GetWindowPart")) return nullptr;
    return &part_;
}

WindowCallback::WindowCallback(WindowEvent& event, std::string name, bool isWindowOperation)
    : HostObject(event.Part().Owner().Log()), event_(event), name_(std::move(name)),
      isWindowOperation_(isWindowOperation) {}

const char* WindowCallback::GetName() const {
    if (Refused("znIBrowserWindowCallback::GetName")) return nullptr;
    return name_.c_str();
}

Window* WindowCallback::ActionWindow() const {
    const std::shared_ptr<Window> window = actionWindow_.lock();
    return window && !window->IsClosed() ? window.get() : nullptr;
}

void WindowCallback::SetActionWindow(Window* window) {
    actionWindow_ = window ? window->weak_from_this() : std::weak_ptr<Window>();
}

znIBrowserWindowAccess* WindowCallback::GetActionWindow() {
    if (Refused("znIBrowserWindowCallback::GetActionWindow")) return nullptr;
    return ActionWindow();
}

ZNBROWSER_CALLBACK_OPERATION WindowCallback::GetOperation() const {
    if (Refused("znIBrowserWindowCallback::GetOperation")) return ZNBROWSER_CALLBACK_UNDEFINED;
    return operation_;
}

znIBrowserEvent* WindowCallback::GetEvent() {
    if (Refused("znIBrowserWindowCallback::GetEvent")) return nullptr;
    return &event_;
}

} // namespace znhost
