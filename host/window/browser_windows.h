// The windows of the browser object.
#ifndef ZN_HOST_BROWSER_WINDOWS_H
#define ZN_HOST_BROWSER_WINDOWS_H

#include "model/browser.h"

#include <memory>

namespace znhost {

class Collector;
class WindowList;

/// The browser object, with the windows on its views; it owns them.
class BrowserWindows : public Browser {
public:
    explicit BrowserWindows(HostServices& services);
    ~BrowserWindows() override;

    WindowList& Windows() { return *windows_; }
    Collector& VirtualCollector() { return *collector_; }

    // Windows.
    znIBrowserWindowAccessList* GetWindowAccessList() override;
    void SetCurrentWindowAccess(znIBrowserWindowAccess* window) override;
    bool CreateWindowAccess(const char* name, znIBrowserView* view) override;
    bool DeleteWindowAccess(znIBrowserWindowAccess* window) override;
    void SetWindowTkFrame(znIBrowserWindowAccess* window, const char* frame) override;
    bool PostWindowAccess(znIBrowserWindowAccess* window, bool post) override;
    bool SetWindowStripeDisplay(znIBrowserWindowAccess* window, bool on, bool all) override;
    bool SetWindowBackgroundColor(znIBrowserWindowAccess* window, const char* color, bool flag) override;

    // Window parts and callbacks.
    bool CreateWindowPart(znIBrowserWindowAccess* window, const char* name, const char* parent) override;
    bool DeleteWindowPart(znIBrowserWindowPart* part) override;
    bool SetWindowPartShown(znIBrowserWindowPart* part, bool shown) override;
    bool CreateWindowCallback(znIBrowserEvent* event, const char* name, bool isWindowOperation) override;
    bool SetCallbackActionWindow(znIBrowserWindowCallback* callback, znIBrowserWindowAccess* window) override;
    bool SetCallbackOperation(znIBrowserWindowCallback* callback,
                              ZNBROWSER_CALLBACK_OPERATION operation) override;

    // Find requests.
    bool SetFindRequestType(znIBrowserFindRequest* request, ZNBROWSER_FIND_REQUEST_TYPE type) override;
    bool PerformFindRequest(znIBrowserFindRequest* request) override;

    // Popup menus.
    bool PerformPopupItem(PopupItem& item, znIBrowserWindowAccess& window, const std::string& value) override;

protected:
    void OnPopupMenuDeleted(const PopupMenu& menu) override;

private:
    std::unique_ptr<WindowList> windows_;
    std::unique_ptr<Collector> collector_;
};

} // namespace znhost

#endif
