// The manager: the one object of the scripting layer.
#ifndef ZN_BROWSER_MANAGER_TCL_H
#define ZN_BROWSER_MANAGER_TCL_H

#include "host/znutl/znStlVector.h"
#include "host/znutl/znString.h"
#include "znBrowserCurrentObjects.h"
#include "znBrowserErrorReporter.h"
#include "znBrowserExport.h"
#include "znBrowserTclKeywords.h"
#include "znBrowserTclMessages.h"
#include "znBrowserTypes.h"
#include "znIBrowserManagerTcl.h"

#include <initializer_list>
#include <memory>
#include <vector>

class znBrowserManagerCollectorTcl;
class znBrowserManagerViewTcl;
class znIBrowser;
class znIBrowserApplication;
class znIBrowserDataSource;
class znIBrowserInfo;
class znIBrowserViewItem;
class znVariant;

/// The scripting layer of the model browser. Constructed with the host's application, it registers the Tcl
/// command "znbrowsermanager" in the application's interpreter and serves it until it is destroyed.
///
/// Rules that hold for every operation unless its comment says otherwise:
/// - An operation that returns bool clears the error state first (`SetOk`), is false when it failed, and then
/// has
///   its message in the error text (`GetErrorText`, or the banner of `GetError`). Some refusals are silent:
///   false, with an empty error text.
/// - A text that an operation gives through a `znString&` is valid until the caller changes it. A returned C
/// string
///   is valid until the next operation.
/// - "Current" objects (`znBrowserCurrentObjects`) belong to the host. `GetCurrent...Ptr` reads one,
/// `ResetCurrent...`
///   makes it null and touches nothing else, `SetCurrent...` with a pointer stores it, `SetCurrent...` with a
///   name finds it in the host, and `UpdateCurrent...` moves it to the first child of a new parent. A failed
///   operation leaves every current object as it was.
/// - Where a name is refused or not found the message names it.
/// - Everything runs on the thread of the interpreter; nothing is locked.
///
/// The host must delete the command (or the interpreter) before or when it destroys the manager. Copies share
/// the browser info and the view helper, which the last of them releases; the command serves the object that
/// registered it.
class ZN_API znBrowserManagerTcl : public znBrowserErrorReporter, public znIBrowserManagerTcl {
public:
    /// The usage texts.
    static const znBrowserTclMessages TCLMESSAGE;
    /// The two GUI maps that always exist and cannot be deleted.
    static const char* const DEFAULT_IMAGES_GUIMAP;
    static const char* const DEFAULT_COLORS_GUIMAP;

    // ---- Lifecycle
    // ------------------------------------------------------------------------------------------
    /// Registers the command at once. `application` is not owned and outlives the manager.
    /// @throws std::runtime_error when the interpreter's Tcl is older than 8.5, or not 8.x.
    explicit znBrowserManagerTcl(znIBrowserApplication* application);
    znBrowserManagerTcl(const znBrowserManagerTcl& other);
    znBrowserManagerTcl& operator=(const znBrowserManagerTcl& other);
    /// Does what `CleanUp` does. The collector helper is not destroyed: only
    /// `DeleteBrowserManagerCollectorTcl` does.
    ~znBrowserManagerTcl() override;
    /// Registers the command and makes the current objects, the browser info and the helpers anew.
    void Init();
    /// Makes every current object null and gives up this manager's hold on the helpers.
    void InitVars();
    /// Releases this manager's hold on the browser info and the view helper.
    void CleanUp();
    /// Creates the browser info if there is none.
    void InitBrowserInfo();
    /// Releases this manager's hold on the browser info.
    void DestroyBrowserInfo();
    znIBrowserInfo* GetBrowserInfo() const;
    /// Creates the helper if there is none.
    void CreateBrowserManagerViewTcl();
    /// Destroys the helper, for every copy of the manager that shares it.
    void DeleteBrowserManagerViewTcl();
    znBrowserManagerViewTcl* GetBrowserManagerViewTcl() const;
    void CreateBrowserManagerCollectorTcl();
    void DeleteBrowserManagerCollectorTcl();
    znBrowserManagerCollectorTcl* GetBrowserManagerCollectorTcl() const;
    znIBrowserApplication* GetApplication() const;

    // ---- Services for the host
    // ------------------------------------------------------------------------------
    int EvalTclCommand(int objc, Tcl_Obj* const objv[]) override;
    bool EvalTclScript(const char* script) override;
    bool GetStringFromScript(const char* procName, znString& result, znString argument) override;
    const char* GetCurrentView() const override;
    Tcl_Interp* GetTclInterp() const override;
    bool UpdateTclInputScript(const char* script) override;
    bool UpdateTclFreeFolderSelection(const std::vector<znIBrowserViewItemFreeFolder*>& folders) override;
    /// The namespace of the host's browser scripts.
    bool GetTclNameSpace(znString& out);
    /// Always false; the command would do nothing while it is true.
    bool ProcessingCommand() const;
    /// Does nothing: the flag keeps its value.
    void ProcessingCommand(bool processing);
    /// Hands the flag to the host. Does not clear the error state.
    bool SetFlushFlag(bool flush);
    /// Carries out what the host held back for the current free folder.
    bool ApplyPendingChanges();
    /// Applies pending changes to the current free folder, or to the view's root folder, and reports nothing.
    void TemporaryTestFunction();

    // ---- Result buffer
    // -------------------------------------------------------------------------------------- Each append is
    // false, and appends nothing, when the text is null. `separate` puts a blank before a piece unless the
    // buffer is empty; `braceIfBlank` puts a piece that holds a blank into braces. Nothing is escaped.
    bool _AppendToBuff(const char* text, bool quoted, bool separate, bool braceIfBlank) const;
    bool AppendToBuff(const char* text, bool separate, bool braceIfBlank) const;
    bool AppendToBuff(int value, bool separate, bool braceIfBlank) const;
    bool AppendToBuffWithQuotes(const char* text, bool separate, bool braceIfBlank) const;
    bool NewAppendToBuff(const char* text, bool separate, bool braceIfBlank, bool quoted) const;
    /// Appends a blank, always, and the text in braces.
    bool AppendToListBuff(const char* text) const;
    void ResetBuff() const;
    void _ResetBuff() const;
    /// The buffer's text, never null; valid until the buffer changes.
    const char* GetBuff() const;
    /// Records the words of a command for the error banner.
    void SetCommand(int objc, Tcl_Obj* const objv[]);

    // ---- Types
    // ----------------------------------------------------------------------------------------------
    /// "integer", "double", "string", "unsigned" and "bool" in any letter case; anything else is undefined.
    static ZNBROWSER_DATA_TYPE ConvertStringToViewPropertyType(const char* word);
    /// The name of a scalar type; "UNDEFINED" for the others.
    static const char* ConvertViewPropertyTypeToString(ZNBROWSER_DATA_TYPE type);
    /// The keyword text of a type: "boolean", "integer", "double" or "string", else "unknown". Always true.
    static bool GetZnBrowserDataTypeString(ZNBROWSER_DATA_TYPE type, znString& out);
    /// Fills its own copy of a list; the caller's stays as it was.
    static void GetStringListFromTclArgs(int objc, Tcl_Obj* const objv[], unsigned int first,
                                         std::vector<znString> list);
    /// The type of a field of the current data item type (the items of the current simple data source).
    bool GetDataType(const char* fieldName, ZNBROWSER_DATA_TYPE& type);

    // ---- Command families
    // ----------------------------------------------------------------------------------- Each takes the
    // whole word list and puts its answer into the interpreter result.
    int ViewTclAPICommands(int objc, Tcl_Obj* const objv[]);
    int WindowTclAPICommands(int objc, Tcl_Obj* const objv[]);
    int StateTclAPICommands(int objc, Tcl_Obj* const objv[]);
    int DataCtrlTclAPICommands(int objc, Tcl_Obj* const objv[]);
    int DataUserInputTclAPICommands(int objc, Tcl_Obj* const objv[]);
    int CollectorTclAPICommands(int objc, Tcl_Obj* const objv[]);
    int DataSourceTclAPICommands(int objc, Tcl_Obj* const objv[]);
    int DataOperationTclAPICommands(int objc, Tcl_Obj* const objv[]);
    int DataReferenceTclAPICommands(int objc, Tcl_Obj* const objv[]);

    // ---- Views
    // ----------------------------------------------------------------------------------------------
    /// Creates a view and makes it current, with its data control. Silently false for a null name.
    /// @throws const char* "Could not create view" when the host refuses.
    bool CreateView(const char* name, bool flag);
    /// Deletes a view that no window shows; the first remaining view becomes current.
    bool DeleteView(const char* name);
    bool SetCurrentView(const char* name);
    /// Stores the view; its data control, if any, becomes current too.
    void SetCurrentView(znIBrowserView* view);
    /// As selecting by name does: also moves the data control, the column and the free folder. Nothing
    /// happens when the view is current already.
    void UpdateCurrentView(znIBrowserView* view);
    znIBrowserView* GetCurrentViewPtr() const;
    void ResetCurrentView();
    /// The names of all views, one blank between two.
    bool GetViewNames(znString& out);
    /// Redraws the views of the current data control. Silently false without one; the error text stays.
    bool RedrawAllViews();
    bool SetItalic(bool italic);
    /// "true" or "false": the italic flag of the current column.
    bool GetItalic(znString& out);

    // ---- Columns
    // --------------------------------------------------------------------------------------------
    bool CreateButtonColumn(const char* name, const char* argument);
    bool CreateTextBoxColumn(const char* name, const char* argument);
    bool CreateIconColumn(const char* name, const char* argument, const char* icon);
    /// A placeholder: true, and nothing is created.
    bool CreateCheckBoxColumn(const char* name, const char* argument);
    /// A placeholder: true, and nothing is created.
    bool CreateComboBoxColumn(const char* name, const char* argument);
    bool DeleteScriptedColumn(const char* name);
    bool ShowScriptedColumn(const char* name, bool show);
    bool MoveCurrentColumn(const char* name, int position);
    /// `justify` goes to the host as it is: "left", "center" or "right".
    bool SetViewColumnJustify(const char* name, const char* justify);
    /// `width`: pixels, as text.
    bool SetViewColumnWidth(const char* name, const char* width);
    /// Asks the current window to report the width; gives no text.
    bool GetViewColumnWidth(const char* name);
    bool SetCurrentColumn(const char* name);
    void SetCurrentColumn(znIBrowserViewColumn* column);
    void UpdateCurrentColumn(znIBrowserView* view);
    bool GetCurrentColumn(znString& out);
    znIBrowserViewColumn* GetCurrentColumnPtr() const;
    void ResetCurrentColumn();
    bool GetColumnNames(znString& out);
    bool GetColumnCaption(znString& out);
    bool SetColumnCaption(const char* caption);
    bool GetColumnItalic(znString& out);
    bool SetColumnItalic(bool italic);
    bool GetColumnSorting(znString& out);
    bool SetColumnSorting(bool sorting);
    bool GetViewColumnShownState(znString& out);
    /// The property by which the default column sorts.
    bool SortDefaultColumnByCustomProperty(znString& out);
    bool SetSortDefaultColumnByCustomProperty(const char* property);
    bool SetCurrentColumnPopupMenu(const char* name);
    bool GetCurrentColumnPopupMenu(znString& out);

    // ---- Styles and style elements
    // --------------------------------------------------------------------------
    /// Creates a style in the current column. One that exists already is made current, and then reported.
    bool CreateViewStyle(const char* name);
    bool DeleteViewStyle(const char* name);
    bool SetCurrentStyle(const char* name);
    /// Stores the style and tells the current column.
    void SetCurrentStyle(znIBrowserStyle* style);
    void UpdateCurrentStyle(znIBrowserViewColumn* column);
    bool GetCurrentStyle(znString& out);
    znIBrowserStyle* GetCurrentStylePtr() const;
    void ResetCurrentStyle();
    bool GetStyleNames(znString& out);
    /// Draws an item with the current style.
    bool SetViewItemStyle(znIBrowserViewItem* item);
    bool CreateViewStyleElement(const char* name, const char* description);
    bool DeleteStyleElement(const char* name);
    bool SetCurrentStyleElement(const char* name);
    void SetCurrentStyleElement(znIBrowserStyleElement* element);
    void UpdateCurrentStyleElement(znIBrowserStyle* style);
    bool GetCurrentStyleElement(znString& out);
    znIBrowserStyleElement* GetCurrentStyleElementPtr() const;
    void ResetCurrentStyleElement();
    bool GetElementNames(znString& out);
    bool SetStyleElementDescription(const char* description);
    bool GetStyleElementDescription(znString& out);
    /// Connects the current element to a GUI map; null stands for the current map.
    bool SetStyleElementMapName(const char* name);
    bool GetStyleElementMapName(znString& out);
    /// Connects the current element to a view property; null stands for the current property.
    bool SetStyleElementProperty(const char* name);

    // ---- View properties
    // ------------------------------------------------------------------------------------
    bool CreateViewProperty(const char* name);
    bool DeleteViewProperty(const char* name);
    znIBrowserViewProperty* FindViewProperty(const char* name);
    void SetCurrentViewProperty(znIBrowserViewProperty* property);
    bool UpdateCurrentViewProperty(const char* name);
    /// "" when none is current.
    const char* GetCurrentViewPropertyName() const;
    znIBrowserViewProperty* GetCurrentViewPropertyPtr() const;
    /// True when one was current; sets no error.
    bool ResetCurrentViewProperty();
    bool GetViewPropertyNames(znString& out);
    /// The field names of the current data item type.
    bool GetPropertyNames(znString& out);
    ZNBROWSER_DATA_TYPE GetCurrentViewPropertyType() const;
    bool SetViewPropertyType(const char* typeName);
    bool SetViewPropertyScript(const char* updateScript, const char* getScript, const char* third);
    /// Connects the current property to a data property; the data source "script" stands for a Tcl procedure.
    bool ConnectProperty(const char* dataSource, const char* dataProperty);
    /// Classic scheme: the source is found in the view's data control, and the types must agree.
    bool CreateViewPropertyConnect(znIBrowserViewProperty* property, const char* dataSource,
                                   const char* dataProperty);
    /// New scheme: the source is found in the view, and types are not compared.
    bool CreateViewPropertyConnect_NEW(znIBrowserViewProperty* property, const char* dataSource,
                                       const char* dataProperty);
    bool DisconnectProperty(const char* dataSource);
    bool DeleteViewPropertyConnect(const char* dataSource);
    bool GetConnectionList(znString& out);

    // ---- Free folders
    // ---------------------------------------------------------------------------------------
    /// Creates a folder under the current one, or takes the one that exists, and makes it current.
    bool CreateFreeFolder(const char* name);
    /// Deletes a child of the current folder.
    bool DestroyFreeFolder(const char* name, bool recursive);
    bool SetCurrentFreeFolder(const char* name);
    void SetCurrentFreeFolder(znIBrowserViewItemFreeFolder* folder);
    void UpdateCurrentFreeFolder(znIBrowserView* view);
    bool GetCurrentFreeFolderName(znString& out);
    znIBrowserViewItemFreeFolder* GetCurrentFreeFolderPtr() const;
    void ResetCurrentFreeFolder();
    bool GetFreeFolderName(znIBrowserViewItemFreeFolder* folder, znString& out);
    bool GetChildrenFreeFolderNames(znString& out);
    bool GetChildrenFreeFolderConfiguredTypes(znString& out);
    bool GetFreeFolderSelected(znString& out);
    bool GetFreeFolderSelection(znString& out);
    bool ExpandFreeFolder(bool recursive);
    bool CollapseFreeFolder(bool recursive);
    bool SetFreeFolderGroupLeafs(bool group);
    bool GetFreeFolderGroupLeafs(znString& out);
    bool SetFreeFolderStyle(bool style);
    bool GetFreeFolderStyle(znString& out);
    bool SetFreeFolderShowEmptyContainers(bool show);
    bool GetFreeFolderShowEmptyContainers(znString& out);
    bool ShowEmptyFolders(bool show, bool recursive);
    bool GetShowEmptyFoldersFlag(znString& out);
    bool SetFreeFolderShowCountByImage(bool show, bool recursive);
    bool SetFreeFolderShowCountByNumber(bool show, bool recursive);
    bool SetBoldFlagToFreeFolder(bool bold);
    bool SetItalicFlagToFreeFolder(bool italic);
    bool SetFreeFolderKeepChildrenFreeFoldersAsCreated(bool keep);
    bool GetFreeFolderKeepChildrenFreeFoldersAsCreated(znString& out);
    bool SetFreeFolderCreateExpandedItem(const char* dataSource, int depth);
    /// A placeholder: empties the text and is false, without a message; the error text stays.
    bool GetFreeFolderCreateExpandedItem(znString& out);
    bool SetFreeFolderSortingException(const char* dataSource, int value);
    /// A placeholder, as the one above.
    bool GetFreeFolderSortingException(znString& out);
    bool SetDropItemDataSourceHierarchical(const char* name);

    // ---- Trees and lists of the current folder
    // --------------------------------------------------------------
    bool CreateTree(const char* name);
    bool DeleteTree(const char* name);
    bool GetTreeNames(znString& out);
    bool SetCurrentTreeGroup(bool group, bool second);
    bool SetShowChildType(const char* type, bool show);
    bool GetShownChildrenTypes(znString& out);
    bool CreateFolderTreeToplevel(const char* dataSource, const char* dataReference);
    bool CreateFolderTreeParentChild(const char* parent, const char* child, const char* dataReference);
    bool GetFolderTreeToplevelNames(znString& out);
    bool GetFolderTreeParentChildNames(znString& out);
    bool UpdateTreeDataSource(const znString& name);
    bool CreateList(const char* name, bool flag);
    bool ListAdd(const char* name, bool flag);
    bool DeleteList(const char* name);
    bool SetCurrentList(const char* name);
    void SetCurrentList(znIBrowserDataSourceSimple* list);
    znIBrowserDataSourceSimple* GetCurrentListPtr() const;
    void ResetCurrentList();
    bool GetListNames(znString& out, bool recursive);
    bool SetCurrentListCaption(const char* caption);
    bool SetCurrentListGroup(bool group, bool second);
    bool SetCurrentListStyle(bool use);
    bool ExpandFreeFolderList(bool recursive);
    bool CollapseFreeFolderList(bool recursive);

    // ---- Selection and data items
    // ---------------------------------------------------------------------------
    bool ClearCurrentViewSelection();
    bool ClearAllSelection();
    bool SetSingleSelection();
    bool SetMultipleSelection();
    bool SelectDataItemSimples(bool select, bool recursive);
    bool SelectDataItemSimplesByProp(bool select, bool recursive);
    bool SelectDataItemSimplesByPropAndValue(const char* value, bool select, bool recursive);
    bool SelectDataItemSimplesByPropAndValues(int count, const std::vector<znString>& values, bool select,
                                              bool recursive);
    bool SelectDataItemHierarchicals(bool select, bool recursive);
    bool SelectDataItemHierarchicalsByProp(bool select, bool recursive);
    bool SelectDataItemHierarchicalsByPropAndValue(const char* value, bool select, bool recursive);
    bool SelectDataItemHierarchicalsByPropAndValues(int count, const std::vector<znString>& values,
                                                    bool select, bool recursive);
    /// The current view property's value of each selected item of the current source, in double quotes.
    bool DataItemsSelected(znString& out, bool children, bool recursive);
    bool DataItemsSelectedAll(znString& out, bool children, bool recursive);
    bool DataSourceSimpleSelected(znString& out, bool recursive);
    bool DataSourceHierarchicalSelected(znString& out, bool recursive);
    bool GetSelectedDataItemValues(const char* property, znString& out);
    bool GetSelectedDataItemValues(const char* property, const char* second, znString& out);

    // ---- Sorting and filtering
    // ------------------------------------------------------------------------------
    bool SetSorting(bool sorting);
    bool GetSorting(znString& out);
    bool SetAscendingOrder(bool ascending);
    /// "ascending", "descending" or "unsorted".
    bool GetAscendingOrder(znString& out);
    bool SetViewGroupFilter(bool group);
    bool GetViewGroupFilter(znString& out);
    bool SetCurrentFilter(const std::vector<znString>& names);
    bool GetCurrentFilter(znString& out);
    bool GetFilterNames(znString& out);
    bool RebuildFilterLists();
    bool SetFilterString(const char* pattern);
    bool GetFilterString(znString& out);
    bool SetFilterMatchCaseFlag(bool& flag);
    bool GetFilterMatchCaseFlag(bool& flag);
    bool SetFilterMatchWordFlag(bool& flag);
    bool GetFilterMatchWordFlag(bool& flag);

    // ---- View operations
    // ------------------------------------------------------------------------------------
    bool CreateViewOperation(const char* name);
    bool SetCurrentViewOperation(const char* name);
    void SetCurrentViewOperation(znIBrowserViewOperation* operation);
    bool GetCurrentViewOperation(znString& out);
    znIBrowserViewOperation* GetCurrentViewOperationPtr() const;
    void ResetCurrentViewOperation();
    /// Lists nothing: gives the error state.
    bool GetViewOperationNames();
    bool SetViewOperationScript(const char* script);
    bool SetViewOperationEditable(bool editable);
    bool PerformViewOperation();

    // ---- Windows
    // --------------------------------------------------------------------------------------------
    bool CreateWindowAccess(const char* name);
    bool DeleteWindowAccess(const char* name);
    /// Also moves the current view; emits the reselection signal when the window is current already.
    bool SetCurrentWindowAccess(const char* name);
    void SetCurrentWindowAccess(znIBrowserWindowAccess* window);
    /// The name of the current window, but only while a column is current; else "".
    bool GetCurrentWindowAccess(znString& out);
    znIBrowserWindowAccess* GetCurrentWindowAccessPtr() const;
    void ResetCurrentWindowAccess();
    void UpdateWindowAccessDependentCurrents(znIBrowserWindowAccess* window);
    bool GetWindowAccessNames(znString& out);
    bool PostWindowAccess(bool post);
    bool IsWindowAccessPosted(bool& posted);
    bool SetWindowBackgroundColor(const char* color, bool flag);
    bool GetCurrentWindowBackgroundColor(znString& out);
    bool SetWindowStripeDisplay(bool on, bool all);
    bool GetCurrentWindowStripeDisplay(bool& on);
    bool SetCurrentWindowTkFrame(const znString& frame);
    bool GetCurrentWindowTkFrame(znString& out);
    bool CollapseAllItems();
    bool CollapseSelectedItems();
    bool ExpandAllItems();
    bool ExpandSelectedItems();

    // ---- Window parts, events, callbacks, listeners
    // ---------------------------------------------------------
    bool CreateWindowPart(const char* name, const char* parent);
    bool DeleteWindowPart(const char* name);
    bool SetCurrentWindowPartByName(const char* name);
    void SetCurrentWindowPartByPtr(znIBrowserWindowPart* part);
    bool GetCurrentWindowPart(znString& out);
    znIBrowserWindowPart* GetCurrentWindowPartPtr() const;
    void ResetCurrentWindowPart();
    bool SetCurrentWindowPartParent(znIBrowserWindowPart* parent);
    /// As above; null moves the part to the top level.
    bool SetCurrentWindowPartParentByName(const char* name);
    bool GetCurrentWindowPartParent(znString& out);
    bool SetWindowPartCreateProc(const char* procedure, const char* argument);
    bool SetWindowPartPackProc(const char* procedure, const char* argument);
    bool SetWindowPartPosition(int position);
    bool SetWindowPartShownState(bool shown);
    bool GetWindowPartShownState(znString& out);
    bool GetWindowPartFramePath(znString& out);
    bool GetWindowPartNames(znString& out, bool recursive);
    /// A table of the parts: name, parent, position, frame path.
    bool GetWindowPartInfo(znString& out);
    bool GetWindowPartEventNames(znString& out);
    bool GetWindowPartOperationNames(znString& out);
    bool SetCurrentEvent(const char* name);
    void SetCurrentEvent(znIBrowserEvent* event);
    void UpdateCurrentEvent(znIBrowserWindowPart* part);
    /// Does nothing.
    void UpdateEventDependentCurrents(znIBrowserEvent* event);
    bool GetCurrentEvent(znString& out);
    znIBrowserEvent* GetCurrentEventPtr() const;
    void ResetCurrentEvent();
    bool CreateWindowCallback(const char* name, const char* type);
    bool SetCurrentWindowCallback(const char* name);
    void SetCurrentWindowCallback(znIBrowserWindowCallback* callback);
    /// Does nothing: the current callback never follows its event.
    void UpdateCurrentWindowCallback(znIBrowserEvent* event);
    bool GetCurrentWindowCallback(znString& out);
    znIBrowserWindowCallback* GetCurrentWindowCallbackPtr() const;
    void ResetCurrentWindowCallback();
    bool GetWindowCallbackNames(znString& out);
    bool SetCurrentWindowCallbackActionWindow(const char* windowName);
    bool GetCurrentWindowCallbackActionWindow(znString& out);
    bool SetCurrentWindowCallbackOperation(const char* operation);
    bool GetCurrentWindowCallbackOperation(znString& out);
    bool AddWindowListener(const char* name);
    bool DeleteWindowListener(const char* name);
    bool GetWindowListenerNames(znString& out);

    // ---- GUI maps
    // -------------------------------------------------------------------------------------------
    bool CreateGuiMap(const char* name);
    bool DeleteGuiMap(const znString& name);
    bool UpdateCurrentGuiMap(const char* name);
    void SetCurrentGuiMap(znIBrowserGuiMap* map);
    /// "" when none is current.
    const char* GetCurrentGuiMapName() const;
    znIBrowserGuiMap* GetCurrentGuiMapPtr() const;
    /// True when one was current; sets no error.
    bool ResetCurrentGuiMap();
    bool GetGuiMapNames(znString& out);
    ZNBROWSER_GUIMAP_TYPE GetCurrentGuiMapType() const;
    /// Does not clear the error state.
    bool CreateGuiMappingTypetoType(const char* keyType, const char* shownType);
    bool CreateGuiMapRecord(bool key, const char* value);
    bool CreateGuiMapRecord(unsigned int key, const char* value);
    bool CreateGuiMapRecord(double key, const char* value);
    bool CreateGuiMapRecord(int key, const char* value);
    bool CreateGuiMapRecord(const char* key, const char* value);
    bool CreateGuiMapDisabledRecord(bool key, const char* value);
    bool CreateGuiMapDisabledRecord(unsigned int key, const char* value);
    bool CreateGuiMapDisabledRecord(double key, const char* value);
    bool CreateGuiMapDisabledRecord(int key, const char* value);
    bool CreateGuiMapDisabledRecord(const char* key, const char* value);
    bool DeleteGuiMapRecord(bool key);
    bool DeleteGuiMapRecord(unsigned int key);
    bool DeleteGuiMapRecord(double key);
    bool DeleteGuiMapRecord(int key);
    bool DeleteGuiMapRecord(const char* key);
    /// The records of the current map.
    bool GetGuiMapRecordNames(znString& out);

    // ---- Find requests
    // --------------------------------------------------------------------------------------
    bool SetCurrentFindRequest(const znString& name);
    void SetCurrentFindRequestByPtr(znIBrowserFindRequest* request);
    void UpdateCurrentFindRequest(znIBrowserWindowAccess* window);
    bool GetCurrentFindRequest(znString& out);
    znIBrowserFindRequest* GetCurrentFindRequestPtr() const;
    void ResetCurrentFindRequest();
    bool GetFindRequestNames(znString& out);
    bool SetCurrentFindRequestType(const znString& word);
    bool GetCurrentFindRequestType(znString& out);
    bool PerformCurrentFindRequest();
    bool AddPropertyToCurrentFindRequest(const znString& name);
    bool SetCurrentFindRequestProperty(const znString& name);
    void SetCurrentFindRequestPropertyByPtr(znBrowserProperty* property);
    void UpdateCurrentFindRequestProperty(znIBrowserFindRequest* request);
    bool GetCurrentFindRequestProperty(znString& out);
    znBrowserProperty* GetCurrentFindRequestPropertyPtr() const;
    void ResetCurrentFindRequestProperty();
    bool GetFindRequestPropertyNames(znString& out);
    bool SetCurrentFindRequestPropertyCriterion(const znString& name);
    void SetCurrentFindRequestPropertyCriterionByPtr(znBrowserCriterion* criterion);
    void UpdateCurrentFindRequestPropertyCriterion(znBrowserProperty* property);
    bool GetCurrentFindRequestPropertyCriterion(znString& out);
    znBrowserCriterion* GetCurrentFindRequestPropertyCriterionPtr() const;
    void ResetCurrentFindRequestPropertyCriterion();
    bool GetCurrentFindRequestPropertyCriteriaNames(znString& out);
    /// Accepts "equalto" alone, and stores nothing.
    bool SetCurrentFindRequestPropertyCriterionType(const znString& word);
    bool GetCurrentFindRequestPropertyCriterionType(znString& out);
    bool SetCurrentFindRequestPropertyCriterionValue(const znString& value);
    bool GetCurrentFindRequestPropertyCriterionValue(znString& out);
    bool SetCurrentFindRequestPropertyCriterionMatchcase(bool matchCase);
    bool GetCurrentFindRequestPropertyCriterionMatchcase(bool& matchCase);
    bool SetCurrentFindRequestPropertyCriterionMatchword(bool matchWord);
    bool GetCurrentFindRequestPropertyCriterionMatchword(bool& matchWord);
    bool SetCurrentFindRequestPropertyCriterionUseregexp(bool useRegexp);
    bool GetCurrentFindRequestPropertyCriterionUseregexp(bool& useRegexp);

    // ---- Events of the Tk tree
    // ------------------------------------------------------------------------------ Each makes the named
    // window current and hands the event to it; the answer is the window's. The error state is not cleared
    // first.
    bool OnTkTreeRequestExpand(const char* window, unsigned int tkIndex);
    bool OnTkTreeRequestCollapse(const char* window, unsigned int tkIndex);
    bool OnTkTreeSetStatePos(const char* window, int position);
    bool OnTkTreeSelectionAdded(const char* window, const std::vector<unsigned int>& indices);
    bool OnTkTreeSelectionRemoved(const char* window, const std::vector<unsigned int>& indices);
    bool OnTkTreeSelectionUpdate(const char* window, const std::vector<unsigned int>& indices);
    bool OnTkTreeSelectionChangeFinished(const char* window);
    bool OnTkTreePopupMenu(const char* window, bool on);
    bool OnTkTreeCheckBoxClick(const char* window, const char* column, const char* element,
                               unsigned int tkIndex, bool value);
    bool OnTkTreeWindowButtonClick(const char* window, const char* column, const char* element,
                                   unsigned int tkIndex, const char* value);
    bool OnTkTreeLeftHandClick(const char* window, const char* column, const char* element,
                               unsigned int tkIndex);
    bool OnTkTreeRightHandClick(const char* window, const char* column,
                                const std::vector<unsigned int>& indices);
    bool OnTkTreeSetDropItem(const char* window, unsigned int target,
                             const std::vector<unsigned int>& indices);
    bool OnTkTreePerformPopupOperation(const char* window, const char* first, const char* second);
    /// Only checks that the window exists.
    bool OnTkTreeDispElemsToggleClick(const char* window, int value);
    /// The same as `OnTkTreeDispElemsToggleClick`.
    bool OnTkTreeDispGeomsToggleClick(const char* window, int value);
    /// Events of the collector, which this version does not serve: true, and nothing happens.
    bool OnTkColListItemSelected(const char* first, const char* second);
    bool OnTkColOptionItemSelected(const char* first, const char* second);

    // ---- Data controls
    // --------------------------------------------------------------------------------------
    bool SetCurrentDataCtrl(const char* name);
    void SetCurrentDataCtrl(znIBrowserDataCtrl* control);
    /// The name of the current data control; "" when there is none, never null.
    const char* GetCurrentDataCtrl() const;
    znIBrowserDataCtrl* GetCurrentDataCtrlPtr() const;
    void ResetCurrentDataCtrl();
    /// The names of all data controls: each is followed by two blanks, and preceded by one from the second
    /// on.
    bool GetDataCtrlNames(znString& out);
    /// Connects the current data control to the current view, which must have none.
    bool DataCtrlConnect();
    /// Takes the data control from the current view.
    bool DataCtrlDisconnect();

    // ---- Simple data sources
    // --------------------------------------------------------------------------------
    /// True even when the host made nothing. The description is not passed on.
    bool CreateDataSourceSimple(const char* name, const char* caption, const char* description);
    /// True also for an unknown name.
    bool DeleteDataSourceSimple(const char* name);
    /// A source of the current data control, or null; sets no error.
    znIBrowserDataSourceSimple* FindDataSourceSimple(const char* name) const;
    bool SetCurrentDataSourceSimple(const char* name);
    /// Null is ignored.
    void SetCurrentDataSourceSimple(znIBrowserDataSourceSimple* source);
    /// Null is ignored.
    void UpdateCurrentDataSourceSimple(znIBrowserDataSourceSimple* source);
    /// "" when none is current.
    const char* GetCurrentDataSourceSimple() const;
    znIBrowserDataSourceSimple* GetCurrentDataSourceSimplePtr() const;
    bool GetCurrentDataSourceSimpleCaption(znString& out);
    bool SetCurrentDataSourceSimpleCaption(const char* caption);
    bool GetCurrentDataSourceSimpleFilterCaption(znString& out);
    bool SetCurrentDataSourceSimpleFilterCaption(const char* caption);
    /// Tells the current source which of its base sources is meant; no current object changes.
    bool SetCurrentConnectDataSourceSimple(const char* name);
    /// Does nothing.
    void SetCurrentConnectDataSourceSimple(znIBrowserDataSourceSimple* source);
    /// Always "".
    const char* GetCurrentConnectDataSourceSimple() const;
    /// Always null.
    znIBrowserDataSourceSimple* GetCurrentConnectDataSourceSimplePtr() const;
    /// Connects a base source to the current custom source. Silently false when that is not custom.
    bool DataSourceSimpleConnect(const char* name);
    bool DataSourceSimpleDisconnect(const char* name);
    /// The base sources of the current source, of a named one, and the simple sources of a view.
    bool DataSourceSimpleConnected(znString& out);
    bool DataSourceSimpleConnected(const char* name, znString& out);
    bool DataSourceSimpleConnected(znIBrowserView* view, znString& out);
    bool DataSourceSimpleConnect(znIBrowserView* view, const char* name);
    bool DataSourceDisconnect(znIBrowserView* view, const char* name);
    bool DataSourceSimpleNames(znString& out);
    bool DataSourceSimpleCustomNames(znString& out);
    bool DataSourceSimplePropertyNames(const char* dataSource, znString& out);
    /// The current view property's value of every item of the current source, in double quotes.
    bool GetDataItemsFromCurrentDSS(znString& out);
    bool GetDataSourcesNames(znString& out);
    /// Does nothing; called by the host when a source goes away.
    void OnDataSourceDelete(znIBrowserDataSourceSimple* source);

    // ---- Hierarchical data sources
    // --------------------------------------------------------------------------
    bool CreateDataSourceHierarchical(const char* name, bool first, bool second, const char* text1,
                                      const char* text2);
    /// A source of the current data control, or null; sets no error.
    znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char* name) const;
    bool SetCurrentDataSourceHierarchical(const char* name);
    /// Null is ignored.
    void SetCurrentDataSourceHierarchical(znIBrowserDataSourceHierarchical* source);
    /// Null is ignored.
    void UpdateCurrentDataSourceHierarchical(znIBrowserDataSourceHierarchical* source);
    /// "" when none is current.
    const char* GetCurrentDataSourceHierarchical() const;
    znIBrowserDataSourceHierarchical* GetCurrentDataSourceHierarchicalPtr() const;
    /// Sets the parent of the current source (`kind` "parent") or adds a child ("child").
    bool DataSourceHierarchicalConnect(const char* kind, const char* name, const char* third);
    bool DataSourceHierarchicalDisconnectSimple(const char* name);
    bool DataSourceHierarchicalConnected(znString& out);
    bool DataSourceHierarchicalNames(znString& out);
    bool DataSourceHierarchicalParentNames(znString& out);
    bool DataSourceHierarchicalChildrenNames(znString& out);
    bool DataSourceHierarchicalConnect(znIBrowserView* view, const char* name);
    bool DataSourceHierarchicalConnected(znIBrowserView* view, znString& out);
    bool GetDataItemsFromCurrentDSH(znString& out);
    /// Silently false, nothing changes.
    bool DataSourceHierarchicalPropertyNames(znString& out);
    /// Silently false, nothing changes.
    bool GetDataSourceHierarchicalCriteriaNames(znString& out);
    /// Shares a hierarchical source with another view. An unknown view or source leaves its text in the
    /// result buffer, and the operation succeeds.
    bool CreateDataSourceHierarchicalShare(const znString& dataSource, const znString& view);
    bool GetDataSourceHierarchicalSharedNames(znString& out);
    /// Does nothing; called by the host when a source goes away.
    void OnDataSourceDelete(znIBrowserDataSourceHierarchical* source);

    // ---- Criteria and data properties
    // -----------------------------------------------------------------------
    bool CreateDataCriteria(const char* name);
    bool DeleteDataCriteria();
    bool SetCurrentCriteria(const char* name);
    void SetCurrentCriteria(znIBrowserCriteria* criteria);
    /// Does nothing: the current criteria never follow their source.
    void UpdateCurrentCriteria(znIBrowserDataSourceSimple* source);
    bool GetCurrentCriteria(znString& out);
    znIBrowserCriteria* GetCurrentCriteriaPtr() const;
    void ResetCurrentCriteria();
    bool GetDataSourceSimpleCriteriaNames(znString& out);
    bool SetCriteriaCode(const char* code);
    bool SetCriteriaDataType(const char* typeWord);
    bool GetCriteriaDataType(znString& out);
    /// The type name and the stored values. Booleans are printed inverted.
    bool GetCriteriaDataParameters(znString& out);
    bool UpdateCriteriaData(const std::vector<bool>& bools, const std::vector<unsigned int>& unsigneds,
                            const std::vector<int>& ints, const std::vector<double>& doubles,
                            const znStlVector<znString>& strings);
    /// A property whose value a Tcl procedure computes.
    bool CreateDataPropertyScripted(const char* name, const char* script);
    /// A property that reads an attribute of the item.
    bool CreateDataPropertyScripted(const char* name, ZNBROWSER_DATA_TYPE type, unsigned int attributeId,
                                    int extra);

    // ---- Data operations
    // ------------------------------------------------------------------------------------
    bool CreateDataOperation(const char* name);
    bool DeleteDataOperation();
    bool SetCurrentDataOperation(const char* name);
    void SetCurrentDataOperation(znIBrowserDataOperation* operation);
    bool GetCurrentDataOperation(znString& out);
    znIBrowserDataOperation* GetCurrentDataOperationPtr() const;
    void ResetCurrentDataOperation();
    bool GetDataOperationNames(znString& out);
    /// Connects the current data operation to the current view operation. What is missing is written into the
    /// interpreter result.
    bool DataOperationConnect();
    bool PerformDataOperation();
    bool SetDataOperationScript(const char* script);

    // ---- Data references
    // ------------------------------------------------------------------------------------
    bool GetDataReferencesNames(znString& out);
    /// Looks the reference up in the view's data control.
    bool ConnectDataReference(const znString& name);
    /// Looks the reference up in the current data control.
    bool DisconnectDataReference(const znString& name);
    bool GetConnectedDataReferencesNames(znString& out);

    // ---- Input fields
    // ---------------------------------------------------------------------------------------
    /// Refused while a data control is current, and without one there is nothing to create it in.
    bool CreateInputField(const char* name, const char* type);
    /// Refused while a data control is current.
    bool DeleteInputField();
    bool SetCurrentInputField(const char* name);
    void SetCurrentInputField(znIBrowserInputField* field);
    /// Gives the present error state; `out` stays as it was when none is current.
    bool GetCurrentInputField(znString& out);
    znIBrowserInputField* GetCurrentInputFieldPtr() const;
    void ResetCurrentInputField();
    /// Refused while a data control is current.
    bool GetInputFieldNames(znString& out);
    bool GetInputFieldDataType(znString& out);
    bool SetInputFieldDataType(const char* word);
    bool GetInputFieldValue(znString& out);
    bool SetInputFieldValue(const char* text);
    bool ResetInputFieldValue();

    // ---- States
    // ---------------------------------------------------------------------------------------------
    bool SetCurrentState(const char* name);
    void SetCurrentState(znIBrowserState* state);
    bool GetCurrentState(znString& out);
    znIBrowserState* GetCurrentStatePtr() const;
    void ResetCurrentState();
    bool GetStateNames(znString& out);
    bool SaveCurrentState();
    bool RestoreCurrentState();
    bool CurrentStateAddEntities(const std::vector<znString>& entities);
    bool CurrentStateRemoveEntities(const std::vector<znString>& entities);
    /// The configuration kept in the current state, one line an entry, in eight sections.
    bool GetConfigData(std::vector<znString>& lines);

    // ---- Popup menus: kept as current objects, served by the host
    // -------------------------------------------
    znIBrowserPopupMenu* GetCurrentPopupMenuPtr() const;
    void SetCurrentPopupMenu(znIBrowserPopupMenu* menu);
    bool GetCurrentPopupMenu(znString& out);
    void ResetCurrentPopupMenu();
    znIBrowserPopupMenuItem* GetCurrentPopupMenuItemPtr() const;
    void SetCurrentPopupMenuItem(znIBrowserPopupMenuItem* item);
    bool GetCurrentPopupMenuItem(znString& out);
    void ResetCurrentPopupMenuItem();

private:
    friend class znBrowserManagerViewTcl;

    /// Gives up this manager's hold on the view helper; the last hold takes the helper with it.
    void LeaveViewHelper();

    // How operations begin and end.
    /// Clears the error state and empties the result buffer.
    void BeginOperation();
    /// Sets the error text. @return false
    bool Fail(const char* message);
    /// Joins pieces in the result buffer, a blank before each unless it is the first; null pieces are left
    /// out.
    /// @return false
    bool FailWith(std::initializer_list<const char*> pieces);
    /// Takes over the browser object's error text. @return false
    bool FailWithHostError();
    /// The answer of the host: true, or `FailWithHostError`.
    bool HostAnswer(bool accepted);
    /// Gives the result buffer's text. @return the error state
    bool GiveBuffer(znString& out);
    static bool GiveBool(bool value, znString& out);
    znIBrowser* GetBrowser() const;
    znIBrowserView* FindView(const char* name) const;
    znIBrowserWindowAccess* FindWindowAccess(const char* name) const;
    /// The window that an event of the Tk tree names, made current; null, and an error, when there is none.
    znIBrowserWindowAccess* SelectEventWindow(const char* name);
    // The records of the current GUI map, whatever the type of the key.
    template <class Key>
    bool AddGuiMapRecord(Key key, const char* value, bool disabled);
    template <class Key>
    bool RemoveGuiMapRecord(Key key);

    // What dies with a host object. `CurrentsInside` finds, before the host deletes an object, the current
    // objects that lie in it (the object itself included); `Forget` clears, after it, those of them that are
    // still current.
    znBrowserCurrentObjects CurrentsInside(znIBrowserView* view) const;
    znBrowserCurrentObjects CurrentsInside(znIBrowserViewColumn* column) const;
    znBrowserCurrentObjects CurrentsInside(znIBrowserStyle* style) const;
    znBrowserCurrentObjects CurrentsInside(znIBrowserViewItemFreeFolder* folder) const;
    znBrowserCurrentObjects CurrentsInside(znIBrowserWindowAccess* window) const;
    znBrowserCurrentObjects CurrentsInside(znIBrowserWindowPart* part) const;
    znBrowserCurrentObjects CurrentsInside(znIBrowserDataSourceSimple* source) const;
    void Forget(const znBrowserCurrentObjects& doomed);

    znIBrowserApplication* application_;
    znBrowserCurrentObjects current_;
    mutable znString buffer_;
    bool processingCommand_ = false;
    // Copies share these. A helper stands in a slot of its own, so that all copies see when it goes.
    std::shared_ptr<znIBrowserInfo> browserInfo_;
    std::shared_ptr<std::unique_ptr<znBrowserManagerViewTcl>> viewHelper_;
    std::shared_ptr<znBrowserManagerCollectorTcl*> collectorHelper_;
};

#endif
