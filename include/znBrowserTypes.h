// The small enumerations that the scripting layer shares with its host. Their numeric values are part
// of the interface. Each has the underlying type int, so a host may pass on values it knows and this
// header does not.
#ifndef ZN_BROWSER_TYPES_H
#define ZN_BROWSER_TYPES_H

/// The type of a value that a view property, a criteria, an input field or a data item field carries.
/// Values above 10 are the host's own: they are passed through and print as undefined.
enum ZNBROWSER_DATA_TYPE : int {
    ZNBROWSER_DATA_UNDEFINED = 0,
    ZNBROWSER_DATA_BOOL,
    ZNBROWSER_DATA_UNSIGNED,
    ZNBROWSER_DATA_INT,
    ZNBROWSER_DATA_DOUBLE,
    ZNBROWSER_DATA_STRING,
    ZNBROWSER_DATA_BOOL_ARRAY,
    ZNBROWSER_DATA_UNSIGNED_ARRAY,
    ZNBROWSER_DATA_INT_ARRAY,
    ZNBROWSER_DATA_DOUBLE_ARRAY,
    ZNBROWSER_DATA_STRING_ARRAY
};

/// What a GUI map translates: the type of its keys, and what a tree cell shows for them.
enum ZNBROWSER_GUIMAP_TYPE : int {
    ZNBROWSER_GUIMAP_UNDEFINED = 0,
    ZNBROWSER_GUIMAP_INT_TO_ICON,
    ZNBROWSER_GUIMAP_INT_TO_STRING,
    ZNBROWSER_GUIMAP_INT_TO_RGB,
    ZNBROWSER_GUIMAP_DOUBLE_TO_ICON,
    ZNBROWSER_GUIMAP_DOUBLE_TO_STRING,
    ZNBROWSER_GUIMAP_DOUBLE_TO_RGB,
    ZNBROWSER_GUIMAP_UINT_TO_ICON,
    ZNBROWSER_GUIMAP_UINT_TO_STRING,
    ZNBROWSER_GUIMAP_UINT_TO_RGB,
    ZNBROWSER_GUIMAP_BOOL_TO_ICON,
    ZNBROWSER_GUIMAP_BOOL_TO_STRING,
    ZNBROWSER_GUIMAP_BOOL_TO_RGB,
    ZNBROWSER_GUIMAP_STRING_TO_ICON,
    ZNBROWSER_GUIMAP_STRING_TO_STRING,
    ZNBROWSER_GUIMAP_STRING_TO_RGB,
    ZNBROWSER_GUIMAP_STRING_TO_BUTTON
};

/// How a criterion compares a value with its limit.
enum ZNBROWSER_CRITERION_TYPE : int {
    ZNBROWSER_CRITERION_UNKNOWN = 0,
    ZNBROWSER_CRITERION_MORE_THAN,
    ZNBROWSER_CRITERION_LESS_THAN,
    ZNBROWSER_CRITERION_EQUAL_TO
};

/// Which matches a find request asks for.
enum ZNBROWSER_FIND_REQUEST_TYPE : int {
    ZNBROWSER_FIND_REQUEST_UNKNOWN = 0,
    ZNBROWSER_FIND_REQUEST_ALL,
    ZNBROWSER_FIND_REQUEST_NEXT,
    ZNBROWSER_FIND_REQUEST_PREVIOUS
};

/// What a window callback does in its action window.
enum ZNBROWSER_CALLBACK_OPERATION : int {
    ZNBROWSER_CALLBACK_UNDEFINED = 0,
    ZNBROWSER_CALLBACK_TREE_AREA_SELECT_PARENT_ITEMS,
    ZNBROWSER_CALLBACK_TREE_AREA_SELECT_CHILDREN_ITEMS
};

/// What becomes of the collection with the items that are collected now.
enum ZNBROWSER_COLLECT : int {
    ZNBROWSER_COLLECT_ADD = 0, ///< they join it
    ZNBROWSER_COLLECT_REMOVE,  ///< they leave it
    ZNBROWSER_COLLECT_TOGGLE,  ///< those in it leave it, the others join it
    ZNBROWSER_COLLECT_SET      ///< they are the collection
};

/// Which items of a view are collected.
enum ZNBROWSER_COLLECT_FROM : int {
    ZNBROWSER_COLLECT_FROM_SELECTED = 0, ///< those selected in the windows of the view
    ZNBROWSER_COLLECT_FROM_DISPLAYED,    ///< those that its display state shows
    ZNBROWSER_COLLECT_FROM_ALL           ///< all
};

/// What an action of the collector does to the display state of a view.
enum ZNBROWSER_COLLECTOR_DISPLAY : int {
    ZNBROWSER_COLLECTOR_SHOW = 0,     ///< the collected items are shown
    ZNBROWSER_COLLECTOR_HIDE,         ///< the collected items are hidden
    ZNBROWSER_COLLECTOR_TOGGLE,       ///< collected items that are shown are hidden, and the other way round
    ZNBROWSER_COLLECTOR_SHOW_ONLY,    ///< of the data sources of the collected items only these are shown
    ZNBROWSER_COLLECTOR_ISOLATE,      ///< only they, with what lies above and below them, are shown
    ZNBROWSER_COLLECTOR_ISOLATE_ONLY, ///< only they, with what lies above them, are shown
    ZNBROWSER_COLLECTOR_SHOW_ALL      ///< everything is shown; nothing need be collected
};

/// How clicks in a window collect.
enum ZNBROWSER_COLLECTOR_CLICK : int {
    ZNBROWSER_COLLECTOR_CLICK_NONE = 0, ///< not at all
    ZNBROWSER_COLLECTOR_CLICK_SELECT,   ///< what is selected is the collection
    ZNBROWSER_COLLECTOR_CLICK_TOGGLE    ///< an item that is clicked joins or leaves the collection
};

/// A control in the collector bar of a window.
enum ZNBROWSER_COLLECTOR_CONTROL : int {
    ZNBROWSER_COLLECTOR_ADDREMOVE = 0,  ///< adds the selected items, or removes them
    ZNBROWSER_COLLECTOR_ENTITYSELECTOR, ///< chooses the kind of item
    ZNBROWSER_COLLECTOR_OPTIONSELECTOR, ///< chooses an action, performs it, and says how clicks collect
    ZNBROWSER_COLLECTOR_PNLCOLSELECTOR, ///< the named collections
    ZNBROWSER_COLLECTOR_PRESELECTOR,    ///< switches the preselector
    ZNBROWSER_COLLECTOR_UNDO,           ///< takes steps back, and restores them
    ZNBROWSER_COLLECTOR_SELECTION       ///< tells how many are collected, and empties the collection
};

/// For which data sources a popup menu item stands, one entry each.
enum ZNBROWSER_POPUP_CONTAINER : int {
    ZNBROWSER_POPUP_CONTAINER_NONE = 0,
    ZNBROWSER_POPUP_CONTAINER_SIMPLE,
    ZNBROWSER_POPUP_CONTAINER_HIERARCHICAL
};

/// Where in its menu a popup menu item goes: to either end, or one up or down; a new one before or behind the
/// current one.
enum ZNBROWSER_POPUP_PLACE : int {
    ZNBROWSER_POPUP_BEGINNING = 0,
    ZNBROWSER_POPUP_END,
    ZNBROWSER_POPUP_UP,
    ZNBROWSER_POPUP_DOWN
};

#endif
