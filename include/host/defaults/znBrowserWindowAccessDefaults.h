// The default answers of `znIBrowserWindowAccess`.
#ifndef ZN_BROWSER_WINDOW_ACCESS_DEFAULTS_H
#define ZN_BROWSER_WINDOW_ACCESS_DEFAULTS_H

#include "../znIBrowserWindowAccess.h"
#include "../znutl/znString.h"

#include <vector>

/// `znIBrowserWindowAccess` for hosts that have a part of it: override what there is.
class znBrowserWindowAccessDefaults : public znIBrowserWindowAccess {
public:
    znIBrowserView* GetView() override { return nullptr; }
    const char* GetName() const override { return nullptr; }
    const char* GetTkFrame() const override { return nullptr; }
    bool GetStripeDisplay() const override { return false; }
    const char* GetBackgroundColor() const override { return nullptr; }
    bool IsPosted() const override { return false; }
    void GetWindowParts(std::vector<znIBrowserWindowPart*>& parts, bool) override { parts.clear(); }
    znIBrowserWindowPart* FindWindowPart(const char*) override { return nullptr; }
    void GetListenerNames(std::vector<znString>& names) override { names.clear(); }
    bool AddListener(const char*) override { return false; }
    bool DeleteListener(const char*) override { return false; }
    bool RequestExpand(unsigned int) override { return false; }
    bool RequestCollapse(unsigned int) override { return false; }
    bool SetStatePos(int) override { return false; }
    bool SelectionAdded(const std::vector<unsigned int>&) override { return false; }
    bool SelectionRemoved(const std::vector<unsigned int>&) override { return false; }
    bool SelectionUpdate(const std::vector<unsigned int>&) override { return false; }
    bool SelectionChangeFinished() override { return false; }
    bool PopupMenu(bool) override { return false; }
    bool CheckBoxClick(const char*, const char*, unsigned int, bool) override { return false; }
    bool WindowButtonClick(const char*, const char*, unsigned int, const znString&) override { return false; }
    bool LeftHandClick(const char*, const char*, unsigned int) override { return false; }
    bool RightHandClick(znIBrowserViewColumn*, const std::vector<unsigned int>&) override { return false; }
    bool SetDropItem(unsigned int, const std::vector<unsigned int>&) override { return false; }
    bool PerformPopupOperation(const char*, const char*) override { return false; }
    bool IsWindowPartShown(znIBrowserWindowPart*) override { return false; }
    bool SetWindowPartPosition(znIBrowserWindowPart*, int) override { return false; }
    void SetWindowPartParent(znIBrowserWindowPart*, znIBrowserWindowPart*) override {}
    bool GetEvents(znIBrowserWindowPart*, std::vector<znIBrowserEvent*>& events) override {
        events.clear();
        return true;
    }
    znIBrowserWindowCallback* FindCallback(znIBrowserEvent*, const char*) override { return nullptr; }
    bool GetCallbacks(znIBrowserEvent*, std::vector<znIBrowserWindowCallback*>& callbacks) override {
        callbacks.clear();
        return true;
    }
    bool GetOperations(znIBrowserWindowPart*, std::vector<znString>& operations) override {
        operations.clear();
        return true;
    }
    void GetFindRequests(std::vector<znIBrowserFindRequest*>& requests) override { requests.clear(); }
    znIBrowserFindRequest* FindFindRequest(const char*) override { return nullptr; }
    void ReportColumnWidth(znIBrowserViewColumn*) override {}
    bool SetSingleSelection() override { return false; }
    bool SetMultipleSelection() override { return false; }
    bool CollapseAllItems() override { return false; }
    bool CollapseSelectedItems() override { return false; }
    bool ExpandAllItems() override { return false; }
    bool ExpandSelectedItems() override { return false; }

protected:
    ~znBrowserWindowAccessDefaults() = default;
};

/// `znIBrowserWindowAccessList` for hosts that have a part of it: override what there is.
class znBrowserWindowAccessListDefaults : public znIBrowserWindowAccessList {
public:
    znIBrowserWindowAccess* FindWindowAccess(const char*) override { return nullptr; }
    void GetWindowAccesses(std::vector<znIBrowserWindowAccess*>& windows, int) override { windows.clear(); }

protected:
    ~znBrowserWindowAccessListDefaults() = default;
};

#endif
