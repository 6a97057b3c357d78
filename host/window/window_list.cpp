#include "window/window_list.h"

#include "window/browser_windows.h"

namespace znhost {

WindowList::WindowList(BrowserWindows& browser) : HostObject(browser.Log()) {}

WindowList::~WindowList() {
    for (const auto& window : windows_) window->Close();
}

void WindowList::Delete(Window& window) {
    if (current_ == &window) current_ = nullptr;
    const std::shared_ptr<Window> held = windows_.Remove(window);
    window.Close();
}

znIBrowserWindowAccess* WindowList::FindWindowAccess(const char* name) {
    if (Refused("znIBrowserWindowAccessList::FindWindowAccess", name)) return nullptr;
    return windows_.Find(TextOf(name));
}

void WindowList::GetWindowAccesses(std::vector<znIBrowserWindowAccess*>& windows, int flags) {
    windows.clear();
    if (Refused("znIBrowserWindowAccessList::GetWindowAccesses", flags)) return;
    windows_.CopyTo(windows);
}

} // namespace znhost
