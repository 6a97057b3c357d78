// A browser window.
#ifndef ZN_I_BROWSER_WINDOW_ACCESS_H
#define ZN_I_BROWSER_WINDOW_ACCESS_H

#include "znutl/znString.h"
#include <vector>

class znIBrowserEvent;
class znIBrowserFindRequest;
class znIBrowserView;
class znIBrowserViewColumn;
class znIBrowserWindowCallback;
class znIBrowserWindowPart;

/// A browser window: shows one view inside a Tk frame, takes the events of its Tk tree, and is divided into
/// parts. It owns its parts, events, callbacks and find requests. It is made, deleted, posted and coloured
/// through `znIBrowser`.
///
/// Tk indices number the rows of the tree. The host hands them out to its Tk tree and gets them back with the
/// events, from scripts as well: each may be one that does not exist (any more), and a negative number of a
/// script's arrives as a large one.
class znIBrowserWindowAccess {
public:
    /// The view that the window shows; null when it has gone. It becomes current with the window.
    virtual znIBrowserView* GetView() = 0;
    /// The name, unique in the host; null ends a script's list of names. Events name the window by it.
    virtual const char* GetName() const = 0;
    /// The path of the Tk frame, as last set; "" until then.
    virtual const char* GetTkFrame() const = 0;
    /// Whether rows are striped.
    virtual bool GetStripeDisplay() const = 0;
    /// The background colour, in Tk's words as last set; "" for none of its own.
    virtual const char* GetBackgroundColor() const = 0;
    /// Whether the window is posted: shown, or to be shown as soon as there is a display.
    virtual bool IsPosted() const = 0;

    /// The parts of the window: those directly under its main frame or, with `recursive`, all.
    virtual void GetWindowParts(std::vector<znIBrowserWindowPart*>& parts, bool recursive) = 0;
    /// The part of that name anywhere in the window, or null.
    virtual znIBrowserWindowPart* FindWindowPart(const char* name) = 0;
    /// The names of the listeners, in the order added.
    virtual void GetListenerNames(std::vector<znString>& names) = 0;
    /// Adds a listener, a name that is told of the window's events. How is the host's: the embedded host
    /// calls the Tcl procedure of that name with the names of the window and the event.
    virtual bool AddListener(const char* name) = 0;
    /// Removes a listener; one that is not there is for the host to refuse.
    virtual bool DeleteListener(const char* name) = 0;

    // Events of the Tk tree. The window has become current just before. Each returns false when the window
    // does not accept the event, for instance because an index does not exist (any more); no text goes with
    // it. Scripts may run in each: callbacks and listeners.
    /// A row is to be expanded: the host fills in the rows below it.
    virtual bool RequestExpand(unsigned int index) = 0;
    /// A row is to be collapsed.
    virtual bool RequestCollapse(unsigned int index) = 0;
    /// The tree was scrolled: `position` is that of the first visible row, from 0. Scripts may give any
    /// number.
    virtual bool SetStatePos(int position) = 0;
    /// These rows, at least one, are selected in addition. All or none: one unknown index refuses the event.
    virtual bool SelectionAdded(const std::vector<unsigned int>& indices) = 0;
    /// These rows, at least one, are no longer selected; those that were not selected do no harm.
    virtual bool SelectionRemoved(const std::vector<unsigned int>& indices) = 0;
    /// Exactly these items are selected now.
    virtual bool SelectionUpdate(const std::vector<unsigned int>& indices) = 0;
    /// The selecting is over, and whoever waits for the new selection can be told of it. A host tells scripts
    /// of selected folders with `znIBrowserManagerTcl::UpdateTclFreeFolderSelection`.
    virtual bool SelectionChangeFinished() = 0;
    /// A popup menu of the window is opened (true) or has closed. It is the one for what `RightHandClick`
    /// told last; `znIBrowserPopupMenu` says which one that is, and what is done before it is shown.
    virtual bool PopupMenu(bool on) = 0;
    /// A check box was clicked: the style element named `element` in that column and row. `value` is what the
    /// property is to be from now on. The names are unchecked.
    virtual bool CheckBoxClick(const char* column, const char* element, unsigned int index, bool value) = 0;
    /// A button cell was pressed, with the text `value`; otherwise as for a check box.
    virtual bool WindowButtonClick(const char* column, const char* element, unsigned int index,
                                   const znString& value) = 0;
    /// A cell was clicked with the left button, in that style element; the names are unchecked.
    virtual bool LeftHandClick(const char* column, const char* element, unsigned int index) = 0;
    /// The rows, at least one, were clicked with the right button. The column is one of the window's view.
    virtual bool RightHandClick(znIBrowserViewColumn* column, const std::vector<unsigned int>& indices) = 0;
    /// Drops the items, at least one, on the item `target`.
    virtual bool SetDropItem(unsigned int target, const std::vector<unsigned int>& indices) = 0;
    /// An entry of the popup menu was chosen. What the two texts say is the host's own agreement with its Tk
    /// code. In the embedded host `first` is an item of the menu for what `RightHandClick` told last, or
    /// "MENU/ITEM" for an item of any menu, such as one in a cascade; `second` is the value that
    /// `znIBrowserPopupMenuItem::Perform` takes: the data source of a container, or the new check state; ""
    /// for none. Where there is no such item either may be the name of a view operation.
    virtual bool PerformPopupOperation(const char* first, const char* second) = 0;

    // Parts, events and callbacks. A part or event given may be another window's: refuse then.
    /// Whether the part itself is set to be shown; a part around it may be hidden.
    virtual bool IsWindowPartShown(znIBrowserWindowPart* part) = 0;
    /// Moves the part to a place among the parts of the same parent. How places are counted is the host's:
    /// the embedded host counts from 0. The text of a refusal is not read.
    virtual bool SetWindowPartPosition(znIBrowserWindowPart* part, int position) = 0;
    /// Hangs the part, with those below it, under another; null for the top level. A parent that is the part
    /// itself or lies below it changes nothing: no refusal is read.
    virtual void SetWindowPartParent(znIBrowserWindowPart* part, znIBrowserWindowPart* parent) = 0;
    /// The events that the part offers, in the host's order. The first becomes current with the part. The
    /// text of a refusal is not read.
    virtual bool GetEvents(znIBrowserWindowPart* part, std::vector<znIBrowserEvent*>& events) = 0;
    /// The callback of that name on the event, or null.
    virtual znIBrowserWindowCallback* FindCallback(znIBrowserEvent* event, const char* name) = 0;
    /// The callbacks of the event, in the order in which they are fired.
    virtual bool GetCallbacks(znIBrowserEvent* event, std::vector<znIBrowserWindowCallback*>& callbacks) = 0;
    /// The names of the window operations that the part offers. The text of a refusal is not read.
    virtual bool GetOperations(znIBrowserWindowPart* part, std::vector<znString>& operations) = 0;

    // Find requests.
    /// The find requests of the window. The first, and its first property, become current with the window.
    virtual void GetFindRequests(std::vector<znIBrowserFindRequest*>& requests) = 0;
    /// The find request of that name, or null.
    virtual znIBrowserFindRequest* FindFindRequest(const char* name) = 0;

    // The tree as a whole. Values that rows need may be computed by scripts, which then run.
    /// Reports the width of a column, in pixels, to the user, or wherever the host sends such reports. "view
    /// column width" answers nothing of its own: the embedded host appends the number to the interpreter
    /// result. The column is one of the current view, which need not be the window's.
    virtual void ReportColumnWidth(znIBrowserViewColumn* column) = 0;
    /// From now on at most one row is selected at a time.
    virtual bool SetSingleSelection() = 0;
    /// From now on any number of rows can be selected; so it is in a new window.
    virtual bool SetMultipleSelection() = 0;
    /// Collapses every row.
    virtual bool CollapseAllItems() = 0;
    /// Collapses the selected rows.
    virtual bool CollapseSelectedItems() = 0;
    /// Expands every row, and all rows below it. Items may lie below themselves (a cycle): the host stops
    /// there.
    virtual bool ExpandAllItems() = 0;
    /// Expands the selected rows, each with all that lies below it.
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
