// The events of a window part.
#ifndef ZN_HOST_WINDOW_EVENT_H
#define ZN_HOST_WINDOW_EVENT_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserEvent.h"
#include "window/window_callback.h"

#include <string>

namespace znhost {

class WindowPart;

/// What happens in a window. Each part offers all of these events, in this order; an event fires when it
/// happens in the window that the part belongs to.
enum class EventKind {
    SelectionChanged,
    ItemExpanded,
    ItemCollapsed,
    LeftClick,
    RightClick,
    CheckBoxClick,
    ButtonClick,
    ItemsDropped,
    Posted,
    Unposted,
};
constexpr std::size_t eventKinds = 10;

/// The name under which scripts know the event: "SELECTION_CHANGED", ...
const char* EventName(EventKind kind);

class WindowEvent final : public znIBrowserEvent, public HostObject {
public:
    WindowEvent(WindowPart& part, EventKind kind);

    WindowPart& Part() const { return part_; }
    EventKind Kind() const { return kind_; }
    NamedList<WindowCallback>& Callbacks() { return callbacks_; }

    znIBrowserWindowAccess* GetWindowAccess() override;
    void GetName(znString& name) const override;
    znIBrowserWindowPart* GetWindowPart() override;

private:
    WindowPart& part_;
    const EventKind kind_;
    NamedList<WindowCallback> callbacks_;
};

} // namespace znhost

#endif
