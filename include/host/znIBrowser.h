// The browser object: through it the scripting layer changes the model.
#ifndef ZN_I_BROWSER_H
#define ZN_I_BROWSER_H

#include "host/znutl/znString.h"
#include "znBrowserTypes.h"
#include <utility>
#include <vector>

class znIBrowserDataCtrl;
class znIBrowserDataOperation;
class znIBrowserDataProperty;
class znIBrowserDataReference;
class znIBrowserDataSource;
class znIBrowserDataSourceHierarchical;
class znIBrowserDataSourceSimple;
class znIBrowserEvent;
class znIBrowserFindRequest;
class znIBrowserGuiMap;
class znIBrowserGuiMapList;
class znIBrowserState;
class znIBrowserStyle;
class znIBrowserView;
class znIBrowserViewColumn;
class znIBrowserViewItemFreeFolder;
class znIBrowserViewList;
class znIBrowserViewProperty;
class znIBrowserWindowAccess;
class znIBrowserWindowAccessList;
class znIBrowserWindowCallback;
class znIBrowserWindowPart;

/// The browser object of the host: creates, changes and deletes views, columns, folders, view properties,
/// windows, callbacks and GUI maps. Unless a comment says otherwise, an operation that returns bool answers
/// false when it is refused and leaves the reason in `GetError()`.
class znIBrowser {
public:
    /// One pair of a share: the hierarchical data source, and the other view that shows it.
    using Share = std::pair<znIBrowserDataSourceHierarchical*, znIBrowserView*>;

    /// Why the last refused operation was refused; never null.
    virtual const char* GetError() const = 0;
    /// Carries out what was held back for a folder.
    virtual bool ApplyPendingChanges(znIBrowserViewItemFreeFolder* folder) = 0;
    /// Whether changes reach the windows at once (true) or are held back (false).
    virtual void SetFlushFlag(bool flush) = 0;

    // Views. The meaning of `flag` is the host's.
    virtual bool CreateView(const char* name, bool flag) = 0;
    virtual znIBrowserViewList* GetViewList() = 0;
    /// Deletes a view with its columns, styles, properties, operations and folders.
    virtual bool DeleteView(znIBrowserView* view) = 0;
    virtual bool RedrawViews(znIBrowserDataCtrl* control) = 0;

    // Columns.
    virtual bool CreateIconColumn(znIBrowserView* view, const char* name, const char* argument,
                                  const char* icon) = 0;
    virtual bool CreateButtonColumn(znIBrowserView* view, const char* name, const char* argument) = 0;
    virtual bool CreateTextBoxColumn(znIBrowserView* view, const char* name, const char* argument) = 0;
    virtual bool SetColumnJustify(znIBrowserView* view, znIBrowserViewColumn* column,
                                  const char* justify) = 0;
    /// `width` is the number of pixels as text.
    virtual bool SetColumnWidth(znIBrowserViewColumn* column, const char* width) = 0;
    virtual bool MoveColumn(znIBrowserView* view, znIBrowserViewColumn* column, int position) = 0;
    virtual bool DeleteColumn(znIBrowserViewColumn* column) = 0;
    virtual bool SetColumnAscending(znIBrowserViewColumn* column, bool ascending) = 0;

    // View properties.
    virtual bool CreateViewProperty(znIBrowserView* view, const char* name) = 0;
    virtual bool DeleteViewProperty(znIBrowserView* view, znIBrowserViewProperty* property) = 0;
    /// Classic connection scheme.
    virtual bool ConnectViewProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                                     znIBrowserDataProperty* dataProperty) = 0;
    /// New connection scheme.
    virtual bool ConnectViewPropertyNew(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                                        znIBrowserDataProperty* dataProperty) = 0;
    virtual bool DisconnectViewProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source) = 0;
    /// The values of the property come from a Tcl procedure.
    virtual bool ConnectScriptProperty(znIBrowserViewProperty* property, const char* argument) = 0;
    /// The pair of scripts of a property: one that takes a changed value, one that gives the value. The
    /// meaning of the third text is the host's.
    virtual bool SetViewPropertyScripts(znIBrowserViewProperty* property, const char* updateScript,
                                        const char* getScript, const char* third) = 0;
    virtual bool SetViewPropertyType(znIBrowserView* view, znIBrowserViewProperty* property,
                                     ZNBROWSER_DATA_TYPE type) = 0;

    virtual bool CreateViewOperation(znIBrowserView* view, const char* name) = 0;

    // Free folders, trees and lists.
    virtual bool AddTree(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source) = 0;
    virtual bool CreateFreeFolder(znIBrowserViewItemFreeFolder* parent, const char* name) = 0;
    virtual bool GetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder) = 0;
    virtual bool GetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder) = 0;
    virtual bool SetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder, bool group) = 0;
    virtual bool SetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder, bool style) = 0;
    virtual bool SetFreeFolderShowEmptyContainers(znIBrowserViewItemFreeFolder* folder, bool show) = 0;
    virtual bool DestroyFreeFolder(znIBrowserViewItemFreeFolder* folder, bool recursive) = 0;
    virtual bool RemoveTree(znIBrowserViewItemFreeFolder* folder,
                            znIBrowserDataSourceHierarchical* source) = 0;
    virtual bool SetTreeGroup(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source,
                              bool group, bool second) = 0;
    /// Shows or hides the items of one child source in the folder's tree.
    virtual bool SetChildTypeShown(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* type,
                                   bool shown) = 0;
    virtual bool CreateTreeToplevel(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source,
                                    znIBrowserDataReference* reference) = 0;
    virtual bool CreateTreeParentChild(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* parent,
                                       znIBrowserDataSource* child, znIBrowserDataReference* reference) = 0;
    virtual bool AddList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source, bool flag) = 0;
    virtual bool RemoveList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source) = 0;
    virtual bool SetListCaption(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                                const char* caption) = 0;
    virtual bool SetListGroup(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                              bool group, bool second) = 0;
    /// Draws the list's items in that column with that style (`use` true) or with the column's own.
    virtual bool SetListStyle(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                              znIBrowserViewColumn* column, znIBrowserStyle* style, bool use) = 0;
    virtual bool ExpandList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                            bool recursive) = 0;
    virtual bool CollapseList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                              bool recursive) = 0;
    virtual bool ExpandFreeFolder(znIBrowserView* view, znIBrowserViewItemFreeFolder* folder,
                                  bool recursive) = 0;
    virtual bool CollapseFreeFolder(znIBrowserView* view, znIBrowserViewItemFreeFolder* folder,
                                    bool recursive) = 0;
    virtual bool SetFreeFolderShowEmptyFolders(znIBrowserViewItemFreeFolder* folder, bool show,
                                               bool recursive) = 0;
    virtual bool SetFreeFolderShowCountByImage(znIBrowserViewItemFreeFolder* folder, bool show,
                                               bool recursive) = 0;
    virtual bool SetFreeFolderShowCountByNumber(znIBrowserViewItemFreeFolder* folder, bool show,
                                                bool recursive) = 0;
    virtual bool SetFreeFolderBold(znIBrowserViewItemFreeFolder* folder, bool bold) = 0;
    virtual bool SetFreeFolderItalic(znIBrowserViewItemFreeFolder* folder, bool italic) = 0;
    virtual bool SetFreeFolderKeepChildrenAsCreated(znIBrowserViewItemFreeFolder* folder, bool keep) = 0;
    /// Items of that source are shown expanded to `depth` levels when the folder is filled.
    virtual bool SetFreeFolderCreateExpandedItem(znIBrowserViewItemFreeFolder* folder,
                                                 znIBrowserDataSourceSimple* source, int depth) = 0;
    virtual bool SetFreeFolderSortingException(znIBrowserViewItemFreeFolder* folder,
                                               znIBrowserDataSourceSimple* source, int value) = 0;

    // Windows.
    virtual znIBrowserWindowAccessList* GetWindowAccessList() = 0;
    /// Tells the host which window is current; null for none.
    virtual void SetCurrentWindowAccess(znIBrowserWindowAccess* window) = 0;
    virtual bool CreateWindowAccess(const char* name, znIBrowserView* view) = 0;
    /// Deletes a window with its parts, events, callbacks, listeners and find requests.
    virtual bool DeleteWindowAccess(znIBrowserWindowAccess* window) = 0;
    virtual void SetWindowTkFrame(znIBrowserWindowAccess* window, const char* frame) = 0;
    virtual bool PostWindowAccess(znIBrowserWindowAccess* window, bool post) = 0;
    /// With `all` every window, and `window` may be null.
    virtual bool SetWindowStripeDisplay(znIBrowserWindowAccess* window, bool on, bool all) = 0;
    virtual bool SetWindowBackgroundColor(znIBrowserWindowAccess* window, const char* color, bool flag) = 0;

    // Window parts and callbacks.
    /// `parent` is "" for a part under the top level.
    virtual bool CreateWindowPart(znIBrowserWindowAccess* window, const char* name, const char* parent) = 0;
    virtual bool DeleteWindowPart(znIBrowserWindowPart* part) = 0;
    virtual bool SetWindowPartShown(znIBrowserWindowPart* part, bool shown) = 0;
    virtual bool CreateWindowCallback(znIBrowserEvent* event, const char* name, bool isWindowOperation) = 0;
    virtual bool SetCallbackActionWindow(znIBrowserWindowCallback* callback,
                                         znIBrowserWindowAccess* window) = 0;
    virtual bool SetCallbackOperation(znIBrowserWindowCallback* callback,
                                      ZNBROWSER_CALLBACK_OPERATION operation) = 0;

    // GUI maps.
    virtual znIBrowserGuiMapList* GetGuiMapList() = 0;
    /// The result is not used.
    virtual bool DeleteGuiMap(const char* name) = 0;
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, bool key, const char* value) = 0;
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) = 0;
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, double key, const char* value) = 0;
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, int key, const char* value) = 0;
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, const char* key, const char* value) = 0;
    // A disabled record shows the greyed form of the PNG file `value`.
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, bool key, const char* value) = 0;
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) = 0;
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, double key, const char* value) = 0;
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, int key, const char* value) = 0;
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, const char* key, const char* value) = 0;
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, const char* key) = 0;
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, bool key) = 0;
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, unsigned int key) = 0;
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, double key) = 0;
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, int key) = 0;
    virtual bool CreateGuiMap(const char* name) = 0;
    virtual bool SetGuiMapType(znIBrowserGuiMap* map, ZNBROWSER_GUIMAP_TYPE type) = 0;

    // Find requests. The result of the first is not used.
    virtual bool SetFindRequestType(znIBrowserFindRequest* request, ZNBROWSER_FIND_REQUEST_TYPE type) = 0;
    virtual bool PerformFindRequest(znIBrowserFindRequest* request) = 0;

    // Data sources of a view.
    virtual bool ConnectDataSourceSimple(znIBrowserView* view, const char* name) = 0;
    virtual bool ConnectDataSourceHierarchical(znIBrowserView* view, const char* name) = 0;
    virtual bool DisconnectDataSource(znIBrowserView* view, const char* name) = 0;
    /// The shares of a view, as pairs of source and other view.
    virtual bool GetSharedDataSourcesHierarchical(znIBrowserView* view, std::vector<Share>& shares) = 0;
    virtual bool ShareDataSourceHierarchical(znIBrowserView* view, znIBrowserView* other,
                                             znIBrowserDataSourceHierarchical* source) = 0;
    virtual bool UpdateTreeDataSource(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source) = 0;
    virtual bool PerformDataOperation(znIBrowserDataOperation* operation) = 0;

    // Saved states.
    virtual bool RestoreState(znIBrowserState* state, znIBrowserWindowAccess* window) = 0;
    virtual bool AddStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                                  const std::vector<znString>& entities) = 0;
    virtual bool RemoveStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                                     const std::vector<znString>& entities) = 0;

protected:
    ~znIBrowser() = default;
};

#endif
