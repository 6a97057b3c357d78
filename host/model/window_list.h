// The windows of the embedded host.
#ifndef ZN_HOST_WINDOW_LIST_H
#define ZN_HOST_WINDOW_LIST_H

#include "host/znIBrowserWindowAccess.h"
#include "model/browser.h"

namespace znhost {

class WindowList final : public znIBrowserWindowAccessList, public HostObject {
public:
    explicit WindowList(Browser& browser) : HostObject(browser.Log()) {}

    znIBrowserWindowAccess* FindWindowAccess(const char* name) override {
        static_cast<void>(Refused("znIBrowserWindowAccessList::FindWindowAccess", name));
        return nullptr;
    }
    void GetWindowAccesses(std::vector<znIBrowserWindowAccess*>& windows, int flags) override {
        windows.clear();
        static_cast<void>(Refused("znIBrowserWindowAccessList::GetWindowAccesses", flags));
    }
};

} // namespace znhost

#endif
