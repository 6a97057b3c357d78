// The windows of the embedded host.
#ifndef ZN_HOST_WINDOW_LIST_H
#define ZN_HOST_WINDOW_LIST_H

#include "base/named_list.h"
#include "window/window.h"

namespace znhost {

class BrowserWindows;
class WindowDisplay;

/// All windows, in the order created.
class WindowList final : public znIBrowserWindowAccessList, public HostObject {
public:
    explicit WindowList(BrowserWindows& browser);
    ~WindowList() override;

    NamedList<Window>& All() { return windows_; }
    /// The window that scripts chose last; null when there is none.
    Window* Current() const { return current_; }
    void SetCurrent(Window* window) { current_ = window; }
    /// What shows the windows on a screen; null when nothing does. It is not owned.
    WindowDisplay* Display() const { return display_; }
    void SetDisplay(WindowDisplay* display) { display_ = display; }
    /// Closes the window and takes it out of the list; nothing leads to it any more.
    void Delete(Window& window);

    znIBrowserWindowAccess* FindWindowAccess(const char* name) override;
    void GetWindowAccesses(std::vector<znIBrowserWindowAccess*>& windows, int flags) override;

private:
    NamedList<Window> windows_;
    Window* current_ = nullptr;
    WindowDisplay* display_ = nullptr;
};

} // namespace znhost

#endif
