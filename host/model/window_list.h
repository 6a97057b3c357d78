// The windows of the embedded host.
#ifndef ZN_HOST_WINDOW_LIST_H
#define ZN_HOST_WINDOW_LIST_H

#include "model/named_list.h"
#include "model/window.h"

namespace znhost {

class Browser;

/// All windows, in the order created.
class WindowList final : public znIBrowserWindowAccessList, public HostObject {
public:
    explicit WindowList(Browser& browser);
    ~WindowList() override;

    NamedList<Window>& All() { return windows_; }
    /// The window that scripts chose last; null when there is none.
    Window* Current() const { return current_; }
    void SetCurrent(Window* window) { current_ = window; }
    /// Closes the window and takes it out of the list; nothing leads to it any more.
    void Delete(Window& window);

    znIBrowserWindowAccess* FindWindowAccess(const char* name) override;
    void GetWindowAccesses(std::vector<znIBrowserWindowAccess*>& windows, int flags) override;

private:
    NamedList<Window> windows_;
    Window* current_ = nullptr;
};

} // namespace znhost

#endif
