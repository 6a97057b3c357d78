// The browser object: through it the scripting layer changes the model.
#ifndef ZN_I_BROWSER_H
#define ZN_I_BROWSER_H

#include "../znBrowserTypes.h"
#include "znutl/znString.h"
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
class znIBrowserPopupMenu;
class znIBrowserPopupMenuList;
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
/// windows, callbacks and GUI maps. What holds for all host interfaces stands at `znIBrowserApplication`.
///
/// An operation that creates only says whether it did: the layer then finds the new object by its name and
/// makes it current. The layer has mostly looked for the name before and refused one that exists; a host
/// refuses it all the same. An operation that deletes takes along what the object owns, and lets go of the
/// object wherever else the host uses it.
///
/// A change may be shown in the windows at once, and what they then show may be computed by scripts: these
/// may run in every operation that changes what is shown. Comments name further cases.
class znIBrowser {
public:
    /// One pair of a share: the hierarchical data source, and the other view that shows it.
    using Share = std::pair<znIBrowserDataSourceHierarchical*, znIBrowserView*>;

    /// Carries out what was held back (`SetFlushFlag`) for a folder. The text of a refusal is not read.
    virtual bool ApplyPendingChanges(znIBrowserViewItemFreeFolder* folder) = 0;
    /// Whether changes reach the windows at once (true) or are held back (false). With true, what was held
    /// back until now is shown.
    virtual void SetFlushFlag(bool flush) = 0;

    // Views.
    /// Makes a view. The meaning of `flag` is the host's, false when the script gave none; in the embedded
    /// host true chooses the new connection scheme. The text of a refusal is not read.
    virtual bool CreateView(const char* name, bool flag) = 0;
    /// The list of all views; null counts as an empty one.
    virtual znIBrowserViewList* GetViewList() = 0;
    /// Deletes a view with its columns, styles, properties, operations and folders. The layer has made sure
    /// that no window shows it.
    virtual bool DeleteView(znIBrowserView* view) = 0;
    /// Redraws every view of that data control, with what was held back. The result is not used.
    virtual bool RedrawViews(znIBrowserDataCtrl* control) = 0;

    // Columns. The kind of a column decides what its cells show. `argument` is the host's; scripts cannot set
    // it, and it is "".
    /// Makes a column whose cells show an icon, as the script named it; "" when it named none.
    virtual bool CreateIconColumn(znIBrowserView* view, const char* name, const char* argument,
                                  const char* icon) = 0;
    /// Makes a column whose cells are buttons.
    virtual bool CreateButtonColumn(znIBrowserView* view, const char* name, const char* argument) = 0;
    /// Makes a column whose cells show texts: the kind of every column that a script gives no other kind.
    virtual bool CreateTextBoxColumn(znIBrowserView* view, const char* name, const char* argument) = 0;
    /// Justifies the cells. `justify` is the script's word, unchecked: "left", "center" or "right", or
    /// anything to be refused. Never asked for a built-in column.
    virtual bool SetColumnJustify(znIBrowserView* view, znIBrowserViewColumn* column,
                                  const char* justify) = 0;
    /// Sets the width of any column. `width` is a number of pixels of at least 0 as the script wrote it; the
    /// layer looks only at how the text begins.
    virtual bool SetColumnWidth(znIBrowserViewColumn* column, const char* width) = 0;
    /// Moves a column to a place among all columns of the view, hidden ones included. How places are counted
    /// and which exist is the host's (the embedded host counts from 0). Never asked for a built-in column.
    virtual bool MoveColumn(znIBrowserView* view, znIBrowserViewColumn* column, int position) = 0;
    /// Deletes a column with its styles. Never asked for a built-in column.
    virtual bool DeleteColumn(znIBrowserViewColumn* column) = 0;
    /// Sorts the view's rows by that column, ascending or descending. Asked only while the column may sort.
    virtual bool SetColumnAscending(znIBrowserViewColumn* column, bool ascending) = 0;

    // View properties.
    /// Makes a view property, without a type and without connections.
    virtual bool CreateViewProperty(znIBrowserView* view, const char* name) = 0;
    /// Deletes a view property with its connections. The text of a refusal is not read.
    virtual bool DeleteViewProperty(znIBrowserView* view, znIBrowserViewProperty* property) = 0;
    /// Classic connection scheme: the property shows that data property for the items of the source. The
    /// layer has compared the types and refused a second connection to the source.
    virtual bool ConnectViewProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                                     znIBrowserDataProperty* dataProperty) = 0;
    /// New connection scheme: the same, but the types have not been compared.
    virtual bool ConnectViewPropertyNew(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                                        znIBrowserDataProperty* dataProperty) = 0;
    /// Removes the property's connection to that source, in either scheme; to its script for a null source.
    /// The layer has checked that there is one.
    virtual bool DisconnectViewProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source) = 0;
    /// The values of the property come from a Tcl procedure, named by `argument`. How it is called is the
    /// host's: the embedded host gives it the item's data source and number.
    virtual bool ConnectScriptProperty(znIBrowserViewProperty* property, const char* argument) = 0;
    /// The pair of scripts of a property: one that takes a changed value, one that gives the value. The
    /// meaning of the third text is the host's; "" when the script gave none.
    virtual bool SetViewPropertyScripts(znIBrowserViewProperty* property, const char* updateScript,
                                        const char* getScript, const char* third) = 0;
    /// Sets the type, which is neither undefined nor the one that the property has. `view` is the property's
    /// own, as `znIBrowserViewProperty::GetView` gave it. Existing connections stay.
    virtual bool SetViewPropertyType(znIBrowserView* view, znIBrowserViewProperty* property,
                                     ZNBROWSER_DATA_TYPE type) = 0;

    /// Makes a view operation, without a script. `view` may be null: scripts may ask without a current view,
    /// and it is for the host to refuse.
    virtual bool CreateViewOperation(znIBrowserView* view, const char* name) = 0;

    // Free folders, trees and lists.
    /// Shows a hierarchical data source of the folder's view as the folder's tree. The folder has none yet.
    virtual bool AddTree(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source) = 0;
    /// Makes a folder below `parent`. Scripts may run.
    virtual bool CreateFreeFolder(znIBrowserViewItemFreeFolder* parent, const char* name) = 0;
    /// The setting of `SetFreeFolderGroupLeafs`. A new folder, or one created a second time, takes over that
    /// of its parent.
    virtual bool GetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder) = 0;
    /// The setting of `SetFreeFolderStyle`; handed down from the parent in the same way.
    virtual bool GetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder) = 0;
    /// Whether items without children stand together, by data source, in the folder's trees. Scripts may run.
    virtual bool SetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder, bool group) = 0;
    /// Whether the folder's own style is used for the items in it too. Scripts may run.
    virtual bool SetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder, bool style) = 0;
    /// Whether a tree or list in the folder is shown while it has no items.
    virtual bool SetFreeFolderShowEmptyContainers(znIBrowserViewItemFreeFolder* folder, bool show) = 0;
    /// Deletes a folder. `recursive` false asks for the folder alone: the embedded host then refuses one that
    /// has child folders. True takes those below it along.
    virtual bool DestroyFreeFolder(znIBrowserViewItemFreeFolder* folder, bool recursive) = 0;
    /// Takes the tree out of the folder, which shows it. The data source stays.
    virtual bool RemoveTree(znIBrowserViewItemFreeFolder* folder,
                            znIBrowserDataSourceHierarchical* source) = 0;
    /// Whether the children in the folder's tree stand together by data source. The folder need not show that
    /// tree: refuse then. `second` is the host's, false when the script gave none.
    virtual bool SetTreeGroup(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source,
                              bool group, bool second) = 0;
    /// Shows or hides the items of one child source in the folder's tree. `type` may be a source that does
    /// not belong to the tree: refuse then.
    virtual bool SetChildTypeShown(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* type,
                                   bool shown) = 0;
    /// Ties a tree together without a hierarchical source: the items of `source` are its top items; where the
    /// reference ties them to each other, those that refer to no other. The text of a refusal is not read.
    virtual bool CreateTreeToplevel(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source,
                                    znIBrowserDataReference* reference) = 0;
    /// One more level of such a tree: below an item of `parent` hang the items of `child` that the reference
    /// ties to it.
    virtual bool CreateTreeParentChild(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* parent,
                                       znIBrowserDataSource* child, znIBrowserDataReference* reference) = 0;
    /// Shows a data source as a list in the folder. From "view list add" it may be a hierarchical one or one
    /// that the folder lists already: for the host to refuse. `flag` is the host's, false by default.
    virtual bool AddList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source, bool flag) = 0;
    /// Takes a list out of the folder, which shows it. The data source stays.
    virtual bool RemoveList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source) = 0;
    /// What stands above the list instead of the data source's own caption; "" for that one. Here and below
    /// the folder need not show the list (the current one may be another folder's): refuse then.
    virtual bool SetListCaption(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                                const char* caption) = 0;
    /// Whether the items of the list are grouped. How is the host's, and so is `second`, false by default.
    virtual bool SetListGroup(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                              bool group, bool second) = 0;
    /// Draws the list's items in that column with that style (`use` true) or with the column's own. The style
    /// may belong to another column.
    virtual bool SetListStyle(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                              znIBrowserViewColumn* column, znIBrowserStyle* style, bool use) = 0;
    /// Expands a list in every window of the view; with `recursive` everything below it too.
    virtual bool ExpandList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                            bool recursive) = 0;
    /// Collapses a list in every window of the view; with `recursive` everything below it too.
    virtual bool CollapseList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                              bool recursive) = 0;
    /// Expands a folder in every window of the view; with `recursive` everything below it too. `view` is the
    /// current view, which need not be the folder's.
    virtual bool ExpandFreeFolder(znIBrowserView* view, znIBrowserViewItemFreeFolder* folder,
                                  bool recursive) = 0;
    /// Collapses a folder, in the same way.
    virtual bool CollapseFreeFolder(znIBrowserView* view, znIBrowserViewItemFreeFolder* folder,
                                    bool recursive) = 0;
    /// Whether child folders that show nothing are shown; with `recursive` also for the folders below.
    virtual bool SetFreeFolderShowEmptyFolders(znIBrowserViewItemFreeFolder* folder, bool show,
                                               bool recursive) = 0;
    /// Whether icons tell how many rows a folder, tree or list holds: none, one or many. `recursive` as
    /// above.
    virtual bool SetFreeFolderShowCountByImage(znIBrowserViewItemFreeFolder* folder, bool show,
                                               bool recursive) = 0;
    /// Whether the captions tell that number. `recursive` as above.
    virtual bool SetFreeFolderShowCountByNumber(znIBrowserViewItemFreeFolder* folder, bool show,
                                                bool recursive) = 0;
    /// Whether the folder's own caption is bold.
    virtual bool SetFreeFolderBold(znIBrowserViewItemFreeFolder* folder, bool bold) = 0;
    /// Whether the folder's own caption is italic.
    virtual bool SetFreeFolderItalic(znIBrowserViewItemFreeFolder* folder, bool italic) = 0;
    /// Whether the child folders stay in the order in which they were created when the rows are sorted. The
    /// text of a refusal is not read.
    virtual bool SetFreeFolderKeepChildrenAsCreated(znIBrowserViewItemFreeFolder* folder, bool keep) = 0;
    /// Items of that source are shown expanded to `depth` levels when the folder is filled: 0 for none. The
    /// layer does not check the number.
    virtual bool SetFreeFolderCreateExpandedItem(znIBrowserViewItemFreeFolder* folder,
                                                 znIBrowserDataSourceSimple* source, int depth) = 0;
    /// Excepts the items of that source from the sorting of rows. The meaning of `value` is the host's: the
    /// embedded host sorts them with 0 and leaves them as they are otherwise. No command reaches it.
    virtual bool SetFreeFolderSortingException(znIBrowserViewItemFreeFolder* folder,
                                               znIBrowserDataSourceSimple* source, int value) = 0;

    // Windows.
    /// The list of all windows; null counts as an empty one.
    virtual znIBrowserWindowAccessList* GetWindowAccessList() = 0;
    /// Tells the host which window is current; null for none. Posting tells it again.
    virtual void SetCurrentWindowAccess(znIBrowserWindowAccess* window) = 0;
    /// Makes a window that shows the view. It is not posted yet and has no Tk frame.
    virtual bool CreateWindowAccess(const char* name, znIBrowserView* view) = 0;
    /// Deletes a window with its parts, events, callbacks, listeners and find requests. The first of those
    /// that remain becomes current.
    virtual bool DeleteWindowAccess(znIBrowserWindowAccess* window) = 0;
    /// The path of the Tk frame inside which the window is shown. The frame need not exist yet.
    virtual void SetWindowTkFrame(znIBrowserWindowAccess* window, const char* frame) = 0;
    /// Shows the window (`post` true) or takes it off the display. Scripts may run: those that fill its
    /// parts, for instance. The command asks only when the posted state differs; C++ clients may ask anyway.
    virtual bool PostWindowAccess(znIBrowserWindowAccess* window, bool post) = 0;
    /// Switches the striped display of rows. With `all` every window, and `window` may be null.
    virtual bool SetWindowStripeDisplay(znIBrowserWindowAccess* window, bool on, bool all) = 0;
    /// Sets the background colour, in Tk's words as the script gave them, unchecked. `flag` is the host's,
    /// false when the script gave none.
    virtual bool SetWindowBackgroundColor(znIBrowserWindowAccess* window, const char* color, bool flag) = 0;

    // Window parts and callbacks.
    /// Makes a part of the window below the part named `parent`, which exists; "" for one under the top
    /// level. Scripts may run.
    virtual bool CreateWindowPart(znIBrowserWindowAccess* window, const char* name, const char* parent) = 0;
    /// Deletes a part with the parts below it, their events and callbacks. Scripts may run.
    virtual bool DeleteWindowPart(znIBrowserWindowPart* part) = 0;
    /// Shows or hides a part. Its pack procedure may run.
    virtual bool SetWindowPartShown(znIBrowserWindowPart* part, bool shown) = 0;
    /// Attaches a callback to an event: one that runs a window operation (true), or another kind of the
    /// host's. The embedded host then calls the Tcl procedure that bears the callback's name.
    virtual bool CreateWindowCallback(znIBrowserEvent* event, const char* name, bool isWindowOperation) = 0;
    /// Sets the window on which the callback's operation works. It may be the event's own window.
    virtual bool SetCallbackActionWindow(znIBrowserWindowCallback* callback,
                                         znIBrowserWindowAccess* window) = 0;
    /// Sets what the callback does there; never `ZNBROWSER_CALLBACK_UNDEFINED`.
    virtual bool SetCallbackOperation(znIBrowserWindowCallback* callback,
                                      ZNBROWSER_CALLBACK_OPERATION operation) = 0;

    // GUI maps. The host makes the two maps "default_images_guimap" and "default_colors_guimap" before it
    // makes the manager, and keeps them: the layer only refuses scripts that would delete them.
    /// The list of all GUI maps; null counts as an empty one.
    virtual znIBrowserGuiMapList* GetGuiMapList() = 0;
    /// Deletes a map, never one of the two default ones. Style elements keep its name. The result is not
    /// used, and the map is no longer current in any case.
    virtual bool DeleteGuiMap(const char* name) = 0;
    /// Maps a key to what a cell shows for it: `value` is a text, a PNG file or a colour, by the map's type,
    /// and unchecked. Commands read the key by that type. A record that exists is replaced.
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, bool key, const char* value) = 0;
    /// The same for the keys of the UINT_TO_ types.
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) = 0;
    /// The same for the keys of the DOUBLE_TO_ types.
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, double key, const char* value) = 0;
    /// The same for the keys of the INT_TO_ types.
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, int key, const char* value) = 0;
    /// The same for the keys of the STRING_TO_ types, and for any key while the map has no type.
    virtual bool CreateGuiMapRecord(znIBrowserGuiMap* map, const char* key, const char* value) = 0;
    /// As `CreateGuiMapRecord`, but the cell shows the disabled (greyed) form of the PNG file `value`.
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, bool key, const char* value) = 0;
    /// The same for the keys of the UINT_TO_ types.
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) = 0;
    /// The same for the keys of the DOUBLE_TO_ types.
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, double key, const char* value) = 0;
    /// The same for the keys of the INT_TO_ types.
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, int key, const char* value) = 0;
    /// The same for the keys of the STRING_TO_ types.
    virtual bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, const char* key, const char* value) = 0;
    /// Deletes the record of a text key, of either form. The map has answered that there is one.
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, const char* key) = 0;
    /// The same for the keys of the BOOL_TO_ types.
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, bool key) = 0;
    /// The same for the keys of the UINT_TO_ types.
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, unsigned int key) = 0;
    /// The same for the keys of the DOUBLE_TO_ types.
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, double key) = 0;
    /// The same for the keys of the INT_TO_ types.
    virtual bool DeleteGuiMapRecord(znIBrowserGuiMap* map, int key) = 0;
    /// Makes a map without a type and without records. A refusal only leaves the current map as it is: the
    /// script hears nothing of it.
    virtual bool CreateGuiMap(const char* name) = 0;
    /// Sets the type, which is neither undefined nor the one that the map has. What becomes of records whose
    /// keys do not fit is the host's: the embedded host deletes them.
    virtual bool SetGuiMapType(znIBrowserGuiMap* map, ZNBROWSER_GUIMAP_TYPE type) = 0;

    // Find requests.
    /// Sets which matches are asked for; `ZNBROWSER_FIND_REQUEST_UNKNOWN` when the script's word was none.
    /// The result is not used.
    virtual bool SetFindRequestType(znIBrowserFindRequest* request, ZNBROWSER_FIND_REQUEST_TYPE type) = 0;
    /// Searches, and selects in the request's window what is found. False, with the reason, when nothing is
    /// found or nothing can be searched. Scripts may run.
    virtual bool PerformFindRequest(znIBrowserFindRequest* request) = 0;

    // Data sources of a view. The texts of the first three's refusals are not read.
    /// Connects the simple data source of that name, of the view's data control, to the view.
    virtual bool ConnectDataSourceSimple(znIBrowserView* view, const char* name) = 0;
    /// Connects the hierarchical data source of that name, of the view's data control, to the view.
    virtual bool ConnectDataSourceHierarchical(znIBrowserView* view, const char* name) = 0;
    /// Disconnects the data source of that name, of either kind, from the view.
    virtual bool DisconnectDataSource(znIBrowserView* view, const char* name) = 0;
    /// The shares of a view, as pairs of source and other view. The text of a refusal is not read.
    virtual bool GetSharedDataSourcesHierarchical(znIBrowserView* view, std::vector<Share>& shares) = 0;
    /// From now on `view` shows the source together with `other`, to whose data control it belongs. The two
    /// views may be the same.
    virtual bool ShareDataSourceHierarchical(znIBrowserView* view, znIBrowserView* other,
                                             znIBrowserDataSourceHierarchical* source) = 0;
    /// Reads the items of that source in the folder's tree again. The text of a refusal is not read.
    virtual bool UpdateTreeDataSource(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source) = 0;
    /// Why the last refused operation of any host object was refused; never null. It is read right after the
    /// refusal. Scripts see an empty text as "Unknown error".
    virtual const char* GetError() const = 0;
    /// Runs the operation's script. False when it has none or ends with an error; the text is not read.
    virtual bool PerformDataOperation(znIBrowserDataOperation* operation) = 0;

    // Saved states. The texts of refusals are not read.
    /// Brings the window back to the configuration saved in the state. Scripts may run.
    virtual bool RestoreState(znIBrowserState* state, znIBrowserWindowAccess* window) = 0;
    /// Keeps entities with the state. What their names denote is the host's. There is at least one from
    /// scripts. `control` is the current data control, which need not be the state's.
    virtual bool AddStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                                  const std::vector<znString>& entities) = 0;
    /// Takes entities out of the state; in the same way.
    virtual bool RemoveStateEntities(znIBrowserDataCtrl* control, znIBrowserState* state,
                                     const std::vector<znString>& entities) = 0;

    // Popup menus. A host that has none overrides none of these; see `znIBrowserPopupMenu`.
    /// The list of all popup menus; null in a host that has none.
    virtual znIBrowserPopupMenuList* GetPopupMenuList() { return nullptr; }
    /// Makes a popup menu without items. The layer has made sure that the name is neither taken nor empty.
    virtual bool CreatePopupMenu(const char* /*name*/) { return false; }
    /// Deletes a popup menu with its items. What showed it, cascades of other menus included, shows none. One
    /// that is open in a window is closed. Scripts may run.
    virtual bool DeletePopupMenu(znIBrowserPopupMenu* /*menu*/) { return false; }

protected:
    ~znIBrowser() = default;
};

#endif
