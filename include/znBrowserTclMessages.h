// The usage texts of the command families.
#ifndef ZN_BROWSER_TCL_MESSAGES_H
#define ZN_BROWSER_TCL_MESSAGES_H

#include "znBrowserExport.h"

/// A holder without content: its static members are the texts that the command families print when their
/// words do not fit. Each text is a constant C string, defined in the file of its family beside the command
/// table that it describes.
struct ZN_API znBrowserTclMessages {
    // The command and the families that the top level serves.
    static const char* const GENERAL;
    static const char* const EMPTY;     ///< "empty show ..."
    static const char* const NO_FILTER; ///< "no filter", which no words reach
    static const char* const CHECKBOX;  ///< "checkbox ..."

    // Events of the Tk tree.
    static const char* const ON_REQUEST_COLLAPSE;
    static const char* const ON_REQUEST_COLLAPSE_ALL;
    static const char* const ON_REQUEST_EXPAND;
    static const char* const ON_REQUEST_EXPAND_ALL;
    static const char* const ON_REQUEST_SELECT;
    /// Kept for completeness: the deselect event answers with the text of the select event.
    static const char* const ON_REQUEST_DESELECT;
    static const char* const ON_SET_STATE_POS;
    static const char* const ON_CHECK_BOX_CLICK;
    static const char* const ON_WINDOW_BUTTON_CLICK;
    static const char* const ON_LEFT_HAND_CLICK;
    static const char* const ON_RIGHT_HAND_CLICK;
    static const char* const ON_POPUP_MENU;
    static const char* const ON_POPUP_OPERATION;
    static const char* const ON_DRAG_AND_DROP;

    // "view ..."
    static const char* const VIEW;
    static const char* const VIEW_DATACTRL;
    static const char* const VIEW_GROUP;
    static const char* const VIEW_ITALIC;
    static const char* const VIEW_COLUMN;
    static const char* const VIEW_STYLE;
    static const char* const VIEW_ELEMENT;
    static const char* const VIEW_PROPERTY;
    static const char* const VIEW_FOLDER;
    static const char* const VIEW_TREE;
    static const char* const VIEW_LIST;
    static const char* const VIEW_SELECTION;
    static const char* const VIEW_DATAITEM_SIMPLE;
    static const char* const VIEW_DATAITEM_HIERARCHICAL;
    static const char* const VIEW_SORT;
    static const char* const VIEW_FILTER;
    static const char* const VIEW_FILTER_OPTION;
    static const char* const VIEW_FILTER_DATAITEMTYPE;
    static const char* const VIEW_FILTER_STRING;
    static const char* const VIEW_OPERATION;
    static const char* const VIEW_DATASOURCE;
    static const char* const VIEW_DATAREFERENCE;
    static const char* const VIEW_POPUPMENU;
    static const char* const VIEW_POPUPMENUITEM;

    // The words of views that connect data sources themselves.
    static const char* const HELPER_VIEW;
    static const char* const HELPER_DATASOURCE;
    static const char* const HELPER_DATAITEM;
    static const char* const HELPER_FOLDER;
    static const char* const HELPER_FOLDER_DATASOURCE;

    // "window ..."
    static const char* const WINDOW;
    static const char* const WINDOW_PART;
    static const char* const WINDOW_EVENT;
    static const char* const WINDOW_OPERATION;
    static const char* const WINDOW_MAP;
    static const char* const WINDOW_MAP_RECORD;
    static const char* const WINDOW_FIND;

    // The data families.
    static const char* const DATACTRL;
    static const char* const DATASOURCE;
    static const char* const DATASOURCE_SIMPLE;
    static const char* const DATASOURCE_SIMPLE_CRITERIA;
    static const char* const DATASOURCE_SIMPLE_PROPERTY;
    static const char* const DATASOURCE_HIERARCHICAL;
    /// These two belong to words that no family serves; they are kept for the host's own help.
    static const char* const DATAITEMTYPE;
    static const char* const DATAFIELD;
    static const char* const DATAOPERATION;
    static const char* const USERINPUT;

    // "state ..."
    static const char* const STATE;

    // "collector ..."
    static const char* const COLLECTOR;
    static const char* const COLLECTOR_ADDREMOVE;
    static const char* const COLLECTOR_AUTOFIT;
    static const char* const COLLECTOR_DATASOURCE;
    static const char* const COLLECTOR_ENTITYSELECTOR;
    static const char* const COLLECTOR_OPTION;
    static const char* const COLLECTOR_OPTIONSELECTOR;
    static const char* const COLLECTOR_PNLCOLSELECTOR;
    static const char* const COLLECTOR_PRESELECTOR;
    static const char* const COLLECTOR_SELECTION;
    static const char* const COLLECTOR_SHOW;
    static const char* const COLLECTOR_SHOWHIDE;
    static const char* const COLLECTOR_UNDO;
};

#endif
