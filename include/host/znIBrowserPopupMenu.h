// A popup menu of the host.
#ifndef ZN_I_BROWSER_POPUP_MENU_H
#define ZN_I_BROWSER_POPUP_MENU_H

#include <vector>

class znIBrowserPopupMenuItem;

/// A popup menu: items in an order, made by scripts and shown on a right click. It is made and deleted
/// through `znIBrowser`, owns its items, and may be shown in any number of places: see `SetPopupMenu` of
/// views, folders, columns and simple data sources, and `znIBrowserPopupMenuItem::SetCascade`. Those keep a
/// menu, not a copy: what scripts change is there the next time that it is shown.
///
/// A host that has no popup menus overrides only what has no body here: each command then says that it has
/// none. One that has them overrides everything in this header, in that of the items, and what
/// `znIBrowser`, `znIBrowserView`, `znIBrowserViewItemFreeFolder` and `znIBrowserDataSourceSimple` have for
/// them.
///
/// **Showing a menu.** The host shows it when it is told of a right click
/// (`znIBrowserWindowAccess::RightHandClick`, then `PopupMenu(true)`). Which one: that of the clicked column,
/// else that of the row's data source, else that of the row's folder, the innermost first, else that of the
/// view. Each time before it is shown, in this order:
/// 1. The post script is called, see `SetPostScript`. It may change and delete anything: what is shown
///    afterwards is looked up again. A script that fails is reported, and the menu is shown all the same.
/// 2. Container items become one entry for each data source, see `znIBrowserPopupMenuItem::SetContainer`.
/// 3. What can be chosen is worked out, see `znIBrowserPopupMenuItem::Perform`. Items that are not visible
///    are left out, and on rows of folders also those that are not for folders.
/// Menus in cascades are treated in the same way, with their own post scripts, when they are shown or before.
class znIBrowserPopupMenu {
public:
    /// The name, unique in the host.
    virtual const char* GetName() const = 0;

    // Items.
    /// Makes an item at a place, from 0 (the first) to the number of items (behind the last). It is a command
    /// without an action: its caption is its name, it is enabled and visible, all else is false, empty or
    /// none. The layer has made sure of the place, and that the name is neither taken nor empty.
    virtual bool CreateItem(const char* /*name*/, int /*place*/) { return false; }
    /// Deletes an item of the menu. One that is being performed takes no further step.
    virtual bool DeleteItem(znIBrowserPopupMenuItem* /*item*/) { return false; }
    /// Moves an item of the menu: from now on it is the one at that place, from 0 to the number of items less
    /// one. The others keep their order. The layer has made sure of the place.
    virtual bool MoveItem(znIBrowserPopupMenuItem* /*item*/, int /*place*/) { return false; }
    /// The item of that name, or null.
    virtual znIBrowserPopupMenuItem* FindItem(const char* /*name*/) { return nullptr; }
    /// All items, in the order shown. The first becomes current with the menu; a refusal counts as none
    /// there.
    virtual bool GetItems(std::vector<znIBrowserPopupMenuItem*>& /*items*/) { return false; }

    /// The Tcl procedure that is called before the menu is shown; "" for none.
    virtual const char* GetPostScript() const { return ""; }
    /// Sets that procedure; "" for none. It is looked for when it is called, as
    ///
    ///     PROC WINDOW COLUMN ROWS
    ///
    /// with the names of the window and of the clicked column ("" for none), and a list of the Tk indices of
    /// the rows that the menu is about. The host runs it with `znIBrowserManagerTcl::EvalTclScript`; each
    /// argument is one word, and nothing in it is substituted. What it answers is not used.
    virtual bool SetPostScript(const char* /*procedure*/) { return false; }

protected:
    ~znIBrowserPopupMenu() = default;
};

/// The popup menus of the host.
class znIBrowserPopupMenuList {
public:
    /// The menu of that exact name, or null.
    virtual znIBrowserPopupMenu* FindPopupMenu(const char* name) = 0;
    /// All menus in the host's order.
    virtual bool GetPopupMenus(std::vector<znIBrowserPopupMenu*>& menus) = 0;

protected:
    ~znIBrowserPopupMenuList() = default;
};

#endif
