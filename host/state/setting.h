// What a state keeps, as it is stored: settings of several kinds.
#ifndef ZN_HOST_SETTING_H
#define ZN_HOST_SETTING_H

#include <charconv>
#include <cstddef>
#include <string>
#include <vector>

namespace znhost {

/// One thing that a state remembers. What the three texts mean goes with the kind.
struct Setting {
    std::string kind;
    std::string subject;
    std::string key;
    std::string value;
};
using Settings = std::vector<Setting>;

// Booleans and numbers in settings.
inline std::string OnOff(bool on) { return on ? "true" : "false"; }
inline bool IsOn(const Setting& setting) { return setting.value == "true"; }
/// The number that a text consists of; the greatest one when it is none.
inline std::size_t NumberOf(const std::string& text) {
    std::size_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = read.ec == std::errc() && read.ptr == text.data() + text.size();
    return whole ? number : static_cast<std::size_t>(-1);
}

} // namespace znhost

/// Each kind by the word that stands in the database, with the meaning of the three texts of a setting. Where
/// settings belong to a folder they name it by its number: the place of its own setting, counted from 0.
namespace znhost::kind {

/// A window part: its name; its parent's; whether it is shown. Parts stand in the order of their positions, a
/// parent before its children.
inline constexpr const char* part = "part";
/// A column: its name; its width in pixels; whether it is shown. In their order.
inline constexpr const char* column = "column";
/// How a column may sort: its name; the property by which it does; whether it may.
inline constexpr const char* columnSorting = "column sorting";
/// The column that sorts now: its name; nothing; whether ascending. None: no column sorts.
inline constexpr const char* sortColumn = "sort column";
/// What is either on or off in the window: its name; nothing; whether it is on.
inline constexpr const char* option = "option";
/// A free folder: its name; its parent's number, "" for the root; its tree's name, "" for none. A parent
/// before its children.
inline constexpr const char* folder = "folder";
/// A data reference that ties a folder's tree: the folder's number; the name of the data source whose items
/// it finds; the reference's name. In their order.
inline constexpr const char* tie = "tie";
/// Where a reference finds children: its place among the ties, from 0; nothing; the name of the parents' data
/// source. None: it finds the top items.
inline constexpr const char* tieParent = "tie parent";
/// What is either on or off in a folder: the folder's number; the name; whether it is on.
inline constexpr const char* folderOption = "folder option";
/// What a folder's tree does not show: the folder's number; the data source's name; nothing.
inline constexpr const char* hiddenType = "hidden type";
/// A list: its folder's number; its data source's name; its own caption. In their order.
inline constexpr const char* list = "list";
/// What is either on or off in a list: its place among the lists, from 0; the name; whether it is on.
inline constexpr const char* listOption = "list option";
/// A view property's type: its name; nothing; the type's name.
inline constexpr const char* propertyType = "property type";
/// A view property's connection: its name; the data source's; the data property's.
inline constexpr const char* connection = "connection";
/// A GUI map: its name; nothing; its type's name.
inline constexpr const char* guiMap = "gui map";
/// A record of a GUI map: the map's name; the key; the value.
inline constexpr const char* guiMapRecord = "gui map record";
/// A record that shows the greyed form of its icon: the map's name; the key; nothing.
inline constexpr const char* disabledRecord = "disabled record";
/// Whether a popup menu item is switched on: its menu's name; its name; whether it is.
inline constexpr const char* popupEnabling = "popup enabling";
/// The check box of a popup menu item that has one: its menu's name; its name; whether it is ticked.
inline constexpr const char* popupCheck = "popup check";
/// The text filter: nothing; nothing; the pattern.
inline constexpr const char* filter = "filter";
/// A data source that the filter hides: its name.
inline constexpr const char* hiddenSource = "hidden source";
/// The background colour: nothing; nothing; the colour.
inline constexpr const char* background = "background";
/// An expanded row: the name of its folder or data source; the number of the expanded row in which it lies,
/// counted from 1, or 0 at the top; what it is: "folder", "tree", "list", or an item's row number. Items that
/// follow each other in the same row are one setting, with all their row numbers, "7 8 12". A row before
/// those below it.
inline constexpr const char* expandedRow = "expanded row";
/// Which items of a data source are shown: its name; "hidden", or "only" and the greatest row numbers that
/// its tables had then; the row numbers of the items that are hidden, or that are the only ones shown:
/// "1:64 70".
inline constexpr const char* displayedItems = "displayed items";
/// A named collection: its name; the data source's; the row numbers of its items. One without items has no
/// data source.
inline constexpr const char* namedCollection = "named collection";
/// How far the window is scrolled: nothing; nothing; the position.
inline constexpr const char* scrollPosition = "scroll position";

} // namespace znhost::kind

#endif
