// The objects on which commands act.
#ifndef ZN_BROWSER_CURRENT_OBJECTS_H
#define ZN_BROWSER_CURRENT_OBJECTS_H

struct znBrowserCriterion;
struct znBrowserProperty;
class znIBrowserCriteria;
class znIBrowserDataCtrl;
class znIBrowserDataOperation;
class znIBrowserDataSourceHierarchical;
class znIBrowserDataSourceSimple;
class znIBrowserEvent;
class znIBrowserFindRequest;
class znIBrowserGuiMap;
class znIBrowserInputField;
class znIBrowserPopupMenu;
class znIBrowserPopupMenuItem;
class znIBrowserState;
class znIBrowserStyle;
class znIBrowserStyleElement;
class znIBrowserView;
class znIBrowserViewColumn;
class znIBrowserViewItemFreeFolder;
class znIBrowserViewOperation;
class znIBrowserViewProperty;
class znIBrowserWindowAccess;
class znIBrowserWindowCallback;
class znIBrowserWindowPart;

/// The objects on which commands act: plain pointers into the host's model, null for none. None is owned. The
/// manager clears those that die with what it deletes; a host that deletes objects by itself must
/// say so before (`znBrowserManagerTcl::AboutToDelete`).
struct znBrowserCurrentObjects {
    znIBrowserDataOperation* dataOperation = nullptr;
    znIBrowserViewOperation* viewOperation = nullptr;
    znIBrowserInputField* inputField = nullptr;
    znIBrowserPopupMenu* popupMenu = nullptr;
    znIBrowserPopupMenuItem* popupMenuItem = nullptr;
    znIBrowserStyle* style = nullptr;
    znIBrowserState* state = nullptr;
    znIBrowserDataCtrl* dataCtrl = nullptr;
    znIBrowserStyleElement* styleElement = nullptr;
    znIBrowserView* view = nullptr;
    znIBrowserViewItemFreeFolder* freeFolder = nullptr;
    /// The data source that a list of the current folder shows.
    znIBrowserDataSourceSimple* list = nullptr;
    znIBrowserViewColumn* column = nullptr;
    znIBrowserWindowAccess* windowAccess = nullptr;
    znIBrowserGuiMap* guiMap = nullptr;
    /// Null stands for the top level, the window's main frame.
    znIBrowserWindowPart* windowPart = nullptr;
    znIBrowserEvent* event = nullptr;
    znIBrowserWindowCallback* windowCallback = nullptr;
    znIBrowserCriteria* criteria = nullptr;
    znIBrowserDataSourceSimple* dataSourceSimple = nullptr;
    /// Never set: connecting goes to the host at once.
    znIBrowserDataSourceSimple* connectDataSourceSimple = nullptr;
    znIBrowserDataSourceHierarchical* dataSourceHierarchical = nullptr;
    znIBrowserViewProperty* viewProperty = nullptr;
    znIBrowserFindRequest* findRequest = nullptr;
    znBrowserProperty* findRequestProperty = nullptr;
    znBrowserCriterion* findRequestPropertyCriterion = nullptr;
};

#endif
