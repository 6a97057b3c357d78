// The callbacks of an event.
#ifndef ZN_HOST_WINDOW_CALLBACK_H
#define ZN_HOST_WINDOW_CALLBACK_H

#include "base/host_call.h"
#include "host/znIBrowserWindowCallback.h"

#include <memory>
#include <string>

namespace znhost {

class Window;
class WindowEvent;

/// A named reaction to an event. It runs its window operation on the action window or, when it was not made
/// for one, calls the Tcl procedure that bears its name with the names of the window and of the event.
class WindowCallback final : public znIBrowserWindowCallback, public HostObject {
public:
    WindowCallback(WindowEvent& event, std::string name, bool isWindowOperation);

    const std::string& Name() const { return name_; }
    bool IsWindowOperation() const { return isWindowOperation_; }
    /// Null when there is none, or none any more.
    Window* ActionWindow() const;
    void SetActionWindow(Window* window);
    ZNBROWSER_CALLBACK_OPERATION Operation() const { return operation_; }
    void SetOperation(ZNBROWSER_CALLBACK_OPERATION operation) { operation_ = operation; }

    const char* GetName() const override;
    znIBrowserWindowAccess* GetActionWindow() override;
    ZNBROWSER_CALLBACK_OPERATION GetOperation() const override;
    znIBrowserEvent* GetEvent() override;

private:
    WindowEvent& event_;
    const std::string name_;
    const bool isWindowOperation_;
    std::weak_ptr<Window> actionWindow_;
    ZNBROWSER_CALLBACK_OPERATION operation_ = ZNBROWSER_CALLBACK_UNDEFINED;
};

} // namespace znhost

#endif
