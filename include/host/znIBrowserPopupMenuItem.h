// An item of a popup menu.
#ifndef ZN_I_BROWSER_POPUP_MENU_ITEM_H
#define ZN_I_BROWSER_POPUP_MENU_ITEM_H

#include "../znBrowserTypes.h"
#include "znutl/znString.h"
#include <vector>

class znIBrowserPopupMenu;
class znIBrowserWindowAccess;

/// An item of a popup menu. What it is: a line if it is a separator, else the way to another menu if it has a
/// cascade, else one entry per data source if it is a container, else an entry with a check box if it is
/// checkable, else a plain entry. The settings of what it is not are kept, and wait.
///
/// Getters answer what was last set; a C string is "" where nothing is. Operations and input fields are kept
/// by their names and looked up when the item is performed, as a menu belongs to no view and no data control:
/// the names are unchecked when they are set.
class znIBrowserPopupMenuItem {
public:
    /// The name, unique in its menu.
    virtual const char* GetName() const = 0;

    /// The menu that owns the item. Null, "not known", lets the layer forget a current item as soon as any
    /// menu is deleted.
    virtual znIBrowserPopupMenu* GetMenu() { return nullptr; }

    // What is shown.
    /// What the entry says; its name until a script sets another text.
    virtual const char* GetCaption() const { return ""; }
    /// Sets what the entry says; it may be "".
    virtual bool SetCaption(const char* /*caption*/) { return false; }
    /// The bubble help: a few words shown while the pointer rests on the entry.
    virtual const char* GetHelp() const { return ""; }
    /// Sets the bubble help; "" for none.
    virtual bool SetHelp(const char* /*help*/) { return false; }
    /// What the item is for, in full, where the host has room for it.
    virtual const char* GetDescription() const { return ""; }
    /// Sets the description; "" for none.
    virtual bool SetDescription(const char* /*description*/) { return false; }
    /// The file of the picture before the caption.
    virtual const char* GetIcon() const { return ""; }
    /// Sets that file; "" for none. Whether it can be read is for the host to check, now or when it is shown.
    virtual bool SetIcon(const char* /*file*/) { return false; }
    /// Whether the item is a line between others.
    virtual bool GetSeparator() const { return false; }
    /// Makes the item a line, or an entry again.
    virtual bool SetSeparator(bool /*separator*/) { return false; }
    /// Whether the entry has a check box.
    virtual bool GetCheckable() const { return false; }
    /// Gives the entry a check box, or takes it away: then it is no longer checked.
    virtual bool SetCheckable(bool /*checkable*/) { return false; }
    /// Whether the check box is ticked.
    virtual bool GetChecked() const { return false; }
    /// Ticks the check box, or not. Never asked to tick one that is not checkable. Nothing is performed.
    virtual bool SetChecked(bool /*checked*/) { return false; }
    /// Whether the item is switched on. Whether it can be chosen, see `Perform`, is worked out from this.
    virtual bool GetEnabled() const { return false; }
    /// Switches the item on, or off: then it is shown greyed.
    virtual bool SetEnabled(bool /*enabled*/) { return false; }
    /// Whether the item is shown at all.
    virtual bool GetVisible() const { return false; }
    /// Shows the item, or leaves it out.
    virtual bool SetVisible(bool /*visible*/) { return false; }
    /// Whether the item can be chosen only while exactly one row is selected.
    virtual bool GetOnSingleItem() const { return false; }
    /// Lets the item be chosen for one row only, or for any number of them.
    virtual bool SetOnSingleItem(bool /*single*/) { return false; }
    /// Whether the item is offered on the rows of free folders, too.
    virtual bool GetShowOnFolder() const { return false; }
    /// Offers the item on the rows of free folders, or only on others.
    virtual bool SetShowOnFolder(bool /*show*/) { return false; }

    // What leads on.
    /// The menu that the item opens; null for none.
    virtual znIBrowserPopupMenu* GetCascade() { return nullptr; }
    /// Lets the item open that menu; null for none. The layer has made sure that no menu comes to stand
    /// inside itself, at any depth. When the menu is deleted the item has no cascade any more.
    virtual bool SetCascade(znIBrowserPopupMenu* /*menu*/) { return false; }
    /// Which data sources the item stands for when the menu is shown.
    virtual ZNBROWSER_POPUP_CONTAINER GetContainer() const { return ZNBROWSER_POPUP_CONTAINER_NONE; }
    /// Whether these are all data sources of the data control, not only those of the view.
    virtual bool GetContainerAll() const { return false; }
    /// Lets the item become, whenever the menu is shown, one entry for each simple or hierarchical data
    /// source of the window's view, with `all` of the view's data control. An entry bears the caption of its
    /// source and performs the item with the name of the source as the value. `all` is false for
    /// `ZNBROWSER_POPUP_CONTAINER_NONE`.
    virtual bool SetContainer(ZNBROWSER_POPUP_CONTAINER /*container*/, bool /*all*/) { return false; }

    // What choosing it does.
    /// The name of the view operation that is performed.
    virtual const char* GetOperation() const { return ""; }
    /// Sets that operation, one of the window's view; "" for none.
    virtual bool SetOperation(const char* /*name*/) { return false; }
    /// The name of the data operation that is performed.
    virtual const char* GetDataOperation() const { return ""; }
    /// Sets that operation, one of the data control of the window's view; "" for none.
    virtual bool SetDataOperation(const char* /*name*/) { return false; }
    /// The Tcl procedure that is called.
    virtual const char* GetScript() const { return ""; }
    /// Sets that procedure, see `Perform`; "" for none.
    virtual bool SetScript(const char* /*procedure*/) { return false; }
    /// The Tcl procedure that is called first, and may call it off.
    virtual const char* GetPreOperation() const { return ""; }
    /// Sets that procedure, see `Perform`; "" for none.
    virtual bool SetPreOperation(const char* /*procedure*/) { return false; }
    /// The names of the input fields whose values the user is asked for, in the order set.
    virtual bool GetUserInput(std::vector<znString>& /*fields*/) { return false; }
    /// Sets those fields, of the data control of the window's view; none of them for an empty list.
    virtual bool SetUserInput(const std::vector<znString>& /*fields*/) { return false; }

    /// Performs the item on the selected rows of a window, as a click on it does: the layer asks for it with
    /// the current window, and the host for clicks (`znIBrowserWindowAccess::PerformPopupOperation`). `value`
    /// is the new state of a checkable item, a boolean as Tcl reads it; for a container the name of a data
    /// source; else it goes to the procedures as it is. Null and "" are none: then a checkable item is turned
    /// over.
    ///
    /// It is refused before anything is done, with a text that names the item and the reason, when it cannot
    /// be chosen: when it is a separator or has a cascade, is not visible or not enabled, is for one row only
    /// while not exactly one is selected, or not for folders while a folder is selected. It is refused, too,
    /// when `value` is no boolean for a checkable item, or no data source that a container has an entry for,
    /// and when an operation or an input field of it does not exist. Then, in this order:
    /// 1. The pre-operation is called. When it answers a boolean that is false, nothing is done, and the
    ///    answer here is true; with any other answer it goes on. When it fails, that is a refusal.
    /// 2. Where there is a display the user is asked for the values of the input fields. When he cancels,
    ///    nothing is done, and the answer is true. Else the values are set in the fields. Without a display
    ///    the fields keep the values they have. Either way these are handed on through
    ///    `znIBrowserManagerTcl::UpdateTclInputScript`, as a Tcl list of a name, a type ("bool", "int",
    ///    "double" or "string") and a value for each field; not for an item without fields, and not while
    ///    there is no procedure "::znbrowser::UpdatePopupInputScript" to take them.
    /// 3. The check box of a checkable item takes the new state.
    /// 4. The view operation is performed, then the data operation, then the script is called.
    ///
    /// Both procedures are called as
    ///
    ///     PROC WINDOW ITEM ROWS VALUE
    ///
    /// with the names of the window and the item, a list of the Tk indices of the selected rows, and the
    /// value, for a checkable item "true" or "false". The host runs them with
    /// `znIBrowserManagerTcl::EvalTclScript`; each argument is one word, and nothing in it is substituted.
    ///
    /// Scripts may run at each step, and delete the item, its menu and the window. What is gone, or what the
    /// pre-operation has disabled, is not performed any further, and the answer is true. False, with the
    /// reason, when a step fails: the steps behind it are not taken.
    virtual bool Perform(znIBrowserWindowAccess* /*window*/, const char* /*value*/) { return false; }

protected:
    ~znIBrowserPopupMenuItem() = default;
};

#endif
