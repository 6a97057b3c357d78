// A browser window.
#ifndef ZN_I_BROWSER_WINDOW_ACCESS_H
#define ZN_I_BROWSER_WINDOW_ACCESS_H

#include "host/znutl/znString.h"
#include <vector>

class znIBrowserEvent;
class znIBrowserFindRequest;
class znIBrowserView;
class znIBrowserViewColumn;
class znIBrowserWindowCallback;
class znIBrowserWindowPart;

/// A browser window: shows one view inside a Tk frame, takes the events of its Tk tree, and is divided into
/// parts. Tk indices number the rows of the tree.
class znIBrowserWindowAccess {
public:
    /// The view that the window shows.
    virtual znIBrowserView* GetView() = 0;
    virtual const char* GetName() const = 0;
    virtual const char* GetTkFrame() const = 0;
    virtual bool GetStripeDisplay() const = 0;
    virtual const char* GetBackgroundColor() const = 0;
    virtual bool IsPosted() const = 0;

    /// The parts of the window: those directly under its main frame or, with `recursive`, all.
    virtual void GetWindowParts(std::vector<znIBrowserWindowPart*>& parts, bool recursive) = 0;
    /// The part of that name anywhere in the window, or null.
    virtual znIBrowserWindowPart* FindWindowPart(const char* name) = 0;
    virtual void GetListenerNames(std::vector<znString>& names) = 0;
    virtual bool AddListener(const char* name) = 0;
    virtual bool DeleteListener(const char* name) = 0;

    // Events of the Tk tree. Each returns false when the window does not accept the event, for instance
    // because an index does not exist (any more).
    virtual bool RequestExpand(unsigned int index) = 0;
    virtual bool RequestCollapse(unsigned int index) = 0;
    virtual bool SetStatePos(int position) = 0;
    virtual bool SelectionAdded(const std::vector<unsigned int>& indices) = 0;
    virtual bool SelectionRemoved(const std::vector<unsigned int>& indices) = 0;
    /// Exactly these items are selected now.
    virtual bool SelectionUpdate(const std::vector<unsigned int>& indices) = 0;
    virtual bool SelectionChangeFinished() = 0;
    virtual bool PopupMenu(bool on) = 0;
    virtual bool CheckBoxClick(const char* column, const char* element, unsigned int index, bool value) = 0;
    virtual bool WindowButtonClick(const char* column, const char* element, unsigned int index,
                                   const znString& value) = 0;
    virtual bool LeftHandClick(const char* column, const char* element, unsigned int index) = 0;
    virtual bool RightHandClick(znIBrowserViewColumn* column, const std::vector<unsigned int>& indices) = 0;
    /// Drops the items on the item `target`.
    virtual bool SetDropItem(unsigned int target, const std::vector<unsigned int>& indices) = 0;
    virtual bool PerformPopupOperation(const char* first, const char* second) = 0;

    // Parts, events and callbacks.
    virtual bool IsWindowPartShown(znIBrowserWindowPart* part) = 0;
    virtual bool SetWindowPartPosition(znIBrowserWindowPart* part, int position) = 0;
    virtual bool SetWindowPartParent(znIBrowserWindowPart* part, znIBrowserWindowPart* parent) = 0;
    virtual bool GetEvents(znIBrowserWindowPart* part, std::vector<znIBrowserEvent*>& events) = 0;
    virtual znIBrowserWindowCallback* FindCallback(znIBrowserEvent* event, const char* name) = 0;
    virtual bool GetCallbacks(znIBrowserEvent* event, std::vector<znIBrowserWindowCallback*>& callbacks) = 0;
    /// The names of the window operations that the part offers.
    virtual bool GetOperations(znIBrowserWindowPart* part, std::vector<znString>& operations) = 0;

    // Find requests.
    virtual void GetFindRequests(std::vector<znIBrowserFindRequest*>& requests) = 0;
    virtual znIBrowserFindRequest* FindFindRequest(const char* name) = 0;

    // The tree as a whole.
    /// Reports the width of a column to the user, or wherever the host sends such reports.
    virtual void ReportColumnWidth(znIBrowserViewColumn* column) = 0;
    virtual bool SetSingleSelection() = 0;
    virtual bool SetMultipleSelection() = 0;
    virtual bool CollapseAllItems() = 0;
    virtual bool CollapseSelectedItems() = 0;
    virtual bool ExpandAllItems() = 0;
    virtual bool ExpandSelectedItems() = 0;

protected:
    ~znIBrowserWindowAccess() = default;
};

/// The list of the host's windows.
class znIBrowserWindowAccessList {
public:
    /// The window of that exact name, or null.
    virtual znIBrowserWindowAccess* FindWindowAccess(const char* name) = 0;
    /// All windows in the host's order. `flags` is reserved: 0.
    virtual void GetWindowAccesses(std::vector<znIBrowserWindowAccess*>& windows, int flags) = 0;

protected:
    ~znIBrowserWindowAccessList() = default;
};

#endif
