// What a popup menu shows for a right click.
#ifndef ZN_HOST_POPUP_ENTRIES_H
#define ZN_HOST_POPUP_ENTRIES_H

#include "host/znIBrowserPopupMenuItem.h"
#include "model/popup_menu.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace znhost {

class Column;
class RowModel;
class View;
class Window;

/// What was clicked with the right button.
struct PopupClick {
    std::weak_ptr<Column> column; ///< none: the click is about whole rows
    /// The Tk indices of the rows that the menu is about, the clicked one first. None: the selected rows.
    std::vector<std::uint32_t> rows;
};

struct PopupEntry;
using PopupEntries = std::vector<PopupEntry>;

/// One entry of a menu as it is shown.
struct PopupEntry {
    enum class Kind { Command, Check, Separator, Cascade, Source };

    std::string item; ///< as `znIBrowserWindowAccess::PerformPopupOperation` takes it: "ITEM" or "MENU/ITEM"
    std::string caption;
    Kind kind = Kind::Command;
    bool enabled = false; ///< it can be chosen; of a cascade: it has entries, and can be opened
    bool checked = false;
    std::string help;
    std::string description;
    std::string icon;  ///< a file
    std::string value; ///< the name of the data source for which a container has the entry
    std::shared_ptr<const PopupEntries> entries; ///< of a cascade; null else
};

/// "command", "check", "separator", "cascade" or "source".
const char* KindName(PopupEntry::Kind kind);

/// The deepest that menus are shown inside each other; below that a cascade is empty.
constexpr std::size_t deepestCascade = 64;

/// What the rows are that a menu is about.
struct PopupRows {
    bool single = false; ///< one, however often it is shown
    bool folder = false; ///< one of them is a free folder
};
PopupRows LookAt(RowModel& rows, const std::vector<std::uint32_t>& indices);

/// The rows of a click that are still there.
std::vector<std::uint32_t> RowsOf(Window& window, const PopupClick& click);

/// Numbers of rows as a Tcl list.
std::string RowList(const std::vector<std::uint32_t>& rows);

/// The menu for a click: the column's, else that of the row's data source, else that of its folder, the
/// innermost first, else the view's. Null when there is none.
PopupMenu* ChooseMenu(Window& window, const PopupClick& click);

/// The menu, and those that open from it at any depth, each once.
using PopupMenus = std::vector<std::shared_ptr<PopupMenu>>;

/// Calls the post scripts of a menu and of those that open from it, each once. Nothing may be left of the
/// menu and the window then. @return the menus that are going to be shown
PopupMenus TellPosting(Window& window, const PopupClick& click, PopupMenu& menu);
/// What the menu shows as it is now. No script runs.
PopupEntries ListEntries(Window& window, const PopupMenu& menu, const PopupRows& rows);

/// Both: what the menu shows for a click. Empty when a script deleted it.
/// @param shown  receives the menus that are shown
PopupEntries MakeEntries(Window& window, const PopupClick& click, PopupMenu& menu, PopupMenus& shown);

/// The data sources for which a container of that kind has entries, each by name and caption, in the view's
/// order.
using SourceNames = std::vector<std::pair<std::string, std::string>>;
SourceNames SourcesInContainer(View& view, ZNBROWSER_POPUP_CONTAINER kind, bool all);

} // namespace znhost

#endif
