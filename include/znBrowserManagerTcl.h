// The manager: the one object of the scripting layer. Its operations stand in sections, "// ---- NAME ----":
//   Lifecycle; Services for the host; Result buffer; Types; Command families; Current objects; Views;
//   Columns; Styles and style elements; View properties; Free folders;
//   Trees and lists of the current folder; Selection and data items; Sorting and filtering;
//   View operations; Windows; Window parts, events, callbacks, listeners; GUI maps; Find requests;
//   Events of the Tk tree; Data controls; Simple data sources; Hierarchical data sources;
//   Criteria and data properties; Data operations; Data references; Input fields; States; Popup menus;
//   Popup menu items; Objects that the host deletes on its own account.
// The words in quotes behind an operation are those of the command that ends in it.
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

namespace znlayer {
class CurrentAccess;
}
class znBrowserManagerCollectorTcl;
class znBrowserManagerViewTcl;
class znIBrowser;
class znIBrowserApplication;
class znIBrowserDataSource;
class znIBrowserInfo;
class znIBrowserViewItem;
class znVariant;

/// The scripting layer of the model browser. Constructed with the host's application, it registers the Tcl
/// command "znbrowsermanager" in the application's interpreter and serves it until it is destroyed. Each word
/// of the command ends in one of the operations below, and a host may call them just as well.
///
/// What holds for every operation, unless its comment says otherwise:
/// - Outcome: one that returns bool clears the error state and the result buffer first. False: it failed, and
///   the message is in the error state (`GetErrorText`, or the banner of `GetError`). "Silently false":
///   false, and no error text is set. "The error state stays": it is not even cleared.
/// - Requirements: without a current object that it works on it fails, and the message says which is missing.
///   What the host refuses fails with the error text of its browser object (`znIBrowser::GetError`), or with
///   a text of the operation's own; where there is no browser object, it fails without the former.
/// - Names may be null: an unknown or null name fails, and nearly every message carries it. Texts that are no
///   names go to the host as they are, null included.
/// - Values: `znString& out` is replaced; where the host has a null text, it is left without storage. A flag
///   reads "true" or "false". After a failure there is nothing to be read from `out`. A C string that is
///   returned is never null, and is valid until the next operation.
/// - Lists are one text: names with a blank between two ("a b"). In a "braced" list a name that holds a blank
///   stands in braces ("a {b c}"); a "wide" list has three blanks between two ("a   b"), a "trailing" list
///   two more at its end ("a   b  "); a "quoted" list has each entry in double quotes. Nothing is escaped. A
///   null name among the host's is left out of the lists of the view sections, and empties the others.
/// - Objects are the host's: the manager keeps plain pointers to them and owns none. A pointer argument may
///   be null, and then stands for none.
/// - Current objects (`znBrowserCurrentObjects`): `SetCurrent...` with a pointer stores it, with a name finds
///   it first; `GetCurrent...Ptr` reads it, `ResetCurrent...` makes it null; none of the three changes
///   anything else. `UpdateCurrent...` makes it follow a new parent. What an operation creates becomes
///   current, but for trees, lists and data properties. What one deletes, and what lies in that, is current
///   no more. A failed operation leaves every current object as it was.
/// - Scripts that the host runs inside a call may use the command, and delete what they like.
/// - What the host throws passes through; only the Tcl command turns it into an error banner.
/// - Everything runs on the thread of the interpreter; nothing is locked.
///
/// The host must delete the command (or the interpreter) before or when it destroys the manager. Copies share
/// the browser info and the view helper, which the last of them releases; the command serves the object that
/// registered it.
class ZN_API znBrowserManagerTcl : public znBrowserErrorReporter, public znIBrowserManagerTcl {
public:
    /// The usage texts.
    static const znBrowserTclMessages TCLMESSAGE;
    /// The names of the two GUI maps that always exist and cannot be deleted.
    static const char* const DEFAULT_IMAGES_GUIMAP;
    static const char* const DEFAULT_COLORS_GUIMAP;

    // ---- Lifecycle ----
    // The constructor does it all; the parts are public for hosts that rebuild a manager in place.

    /// Registers the command at once. `application` is not owned, must not be null and outlives the manager.
    /// @throws std::runtime_error when the interpreter's Tcl is older than 8.5, or not 8.x.
    explicit znBrowserManagerTcl(znIBrowserApplication* application);
    /// Take over the error state, the current objects and the result buffer, and share the helpers. The
    /// command keeps serving the original.
    znBrowserManagerTcl(const znBrowserManagerTcl& other);
    znBrowserManagerTcl& operator=(const znBrowserManagerTcl& other);

    /// Does what `CleanUp` does. The collector helper is not destroyed: only
    /// `DeleteBrowserManagerCollectorTcl` does.
    ~znBrowserManagerTcl() override;
    /// Registers the command for this object, clears the current objects and creates both helpers, and the
    /// browser info if there is none. Throws as the constructor does.
    void Init();
    /// Clears the error state, makes every current object null and gives up this manager's hold on the
    /// helpers. The result buffer and the browser info stay.
    void InitVars();
    /// Releases this manager's hold on the browser info and the view helper.
    void CleanUp();
    /// Creates the browser info if there is none.
    void InitBrowserInfo();
    /// Releases this manager's hold on the browser info.
    void DestroyBrowserInfo();
    /// The version of the scripting layer. Owned by the managers that share it; null once released.
    znIBrowserInfo* GetBrowserInfo() const;
    /// Creates the view helper, which serves views that connect data sources themselves, if there is none.
    void CreateBrowserManagerViewTcl();
    /// Destroys the view helper, for every copy of the manager that shares it.
    void DeleteBrowserManagerViewTcl();
    /// The view helper, owned by the managers that share it; null when there is none.
    znBrowserManagerViewTcl* GetBrowserManagerViewTcl() const;
    /// Creates the collector helper if there is none.
    void CreateBrowserManagerCollectorTcl();
    /// Destroys the collector helper, for every copy that shares it. Nothing else does: a host that wants its
    /// memory back calls this before it destroys the manager.
    void DeleteBrowserManagerCollectorTcl();
    /// The collector helper; null when there is none.
    znBrowserManagerCollectorTcl* GetBrowserManagerCollectorTcl() const;
    /// The application that the manager was made with.
    znIBrowserApplication* GetApplication() const;

    // ---- Services for the host ----
    // What a host asks of the manager, beside the operations that scripts use.

    /// The services of `znIBrowserManagerTcl`, as described there. `EvalTclScript` does not clear the error
    /// state: it stays when the script succeeds.
    int EvalTclCommand(int objc, Tcl_Obj* const objv[]) override;
    bool EvalTclScript(const char* script) override;
    bool GetStringFromScript(const char* procName, znString& result, znString argument) override;
    const char* GetCurrentView() const override;
    Tcl_Interp* GetTclInterp() const override;
    bool UpdateTclInputScript(const char* script) override;
    bool UpdateTclFreeFolderSelection(const std::vector<znIBrowserViewItemFreeFolder*>& folders) override;

    /// Gives the namespace of the host's browser scripts. Never fails.
    bool GetTclNameSpace(znString& out); ///< "view namespace"
    /// Always false; the command would do nothing while it is true.
    bool ProcessingCommand() const;
    /// Does nothing: the flag keeps its value.
    void ProcessingCommand(bool processing);
    /// Tells the host whether changes reach the windows at once (true) or are held back (false). The error
    /// state stays, and is what is returned.
    bool SetFlushFlag(bool flush); ///< "view flush"
    /// Carries out what the host held back for the current free folder; a data control must be current, too.
    /// The error state stays when the host answers, yes or no. The message about a missing folder follows
    /// what the result buffer holds.
    bool ApplyPendingChanges(); ///< "view apply pending"
    /// Carries out what the host held back for the current free folder; without one, the root folder of the
    /// current view becomes current first. Does nothing without a current data control, and reports nothing.
    void TemporaryTestFunction(); ///< "frame"

    // ---- Result buffer ----
    // Where operations put texts together. Each append is false, and appends nothing, when the text is null.
    // `separate` puts a blank before a piece unless the buffer is empty; `braceIfBlank` puts a piece that
    // holds a blank into braces; `quoted` puts double quotes around all of it. Nothing is escaped.

    /// Appends a piece.
    bool _AppendToBuff(const char* text, bool quoted, bool separate, bool braceIfBlank) const;
    /// Appends a piece without quotes; a number in decimal.
    bool AppendToBuff(const char* text, bool separate, bool braceIfBlank) const;
    bool AppendToBuff(int value, bool separate, bool braceIfBlank) const;

    /// Appends a piece in double quotes.
    bool AppendToBuffWithQuotes(const char* text, bool separate, bool braceIfBlank) const;
    /// The same as `_AppendToBuff`, with `quoted` at the end.
    bool NewAppendToBuff(const char* text, bool separate, bool braceIfBlank, bool quoted) const;
    /// Appends a blank, always, and the text in braces.
    bool AppendToListBuff(const char* text) const;
    /// Empty the buffer; both do the same.
    void ResetBuff() const;
    void _ResetBuff() const;

    /// The buffer's text; valid until the buffer changes.
    const char* GetBuff() const;
    /// Records the words of a command, joined by blanks, for the error banner, and empties the buffer. Null
    /// words are left out.
    void SetCommand(int objc, Tcl_Obj* const objv[]);

    // ---- Types ----

    /// The type of "integer", "double", "string", "unsigned" or "bool", in any letter case. Anything else,
    /// null included, is undefined.
    static ZNBROWSER_DATA_TYPE ConvertStringToViewPropertyType(const char* word);
    /// The name of a scalar type ("Bool", "Unsigned", "Integer", "Double", "String"); "UNDEFINED" for the
    /// others. The text is static.
    static const char* ConvertViewPropertyTypeToString(ZNBROWSER_DATA_TYPE type);
    /// The keyword text of a type: "boolean", "integer", "double" or "string", else "unknown". Always true.
    static bool GetZnBrowserDataTypeString(ZNBROWSER_DATA_TYPE type, znString& out);
    /// Takes the words from `first` on, but into its own copy of the list: the caller's stays as it was.
    static void GetStringListFromTclArgs(int objc, Tcl_Obj* const objv[], unsigned int first,
                                         std::vector<znString> list);
    /// The type of a field of the current data item type (the items of the current simple data source).
    bool GetDataType(const char* fieldName, ZNBROWSER_DATA_TYPE& type);

    // ---- Command families ----
    // Each takes the whole word list, the command word included, and puts one text into the interpreter
    // result: the value, a usage text where the words do not fit, or the error banner. It returns TCL_OK, but
    // TCL_ERROR where a script is to see a Tcl error.

    /// "znbrowsermanager view ..."
    int ViewTclAPICommands(int objc, Tcl_Obj* const objv[]);
    /// "znbrowsermanager window ..."
    int WindowTclAPICommands(int objc, Tcl_Obj* const objv[]);
    /// "znbrowsermanager state ..."
    int StateTclAPICommands(int objc, Tcl_Obj* const objv[]);
    /// "znbrowsermanager datactrl ..."
    int DataCtrlTclAPICommands(int objc, Tcl_Obj* const objv[]);
    /// "znbrowsermanager userinput ..."
    int DataUserInputTclAPICommands(int objc, Tcl_Obj* const objv[]);
    /// "znbrowsermanager collector ..."; always TCL_OK.
    int CollectorTclAPICommands(int objc, Tcl_Obj* const objv[]);
    /// "znbrowsermanager datasource ..."
    int DataSourceTclAPICommands(int objc, Tcl_Obj* const objv[]);
    /// "znbrowsermanager dataoperation ..."
    int DataOperationTclAPICommands(int objc, Tcl_Obj* const objv[]);
    /// "znbrowsermanager datareference ..."
    int DataReferenceTclAPICommands(int objc, Tcl_Obj* const objv[]);

    // ---- Current objects ----
    // What scripts choose with the word "current" is found by name, in the sections below. These read, store
    // and clear it; popup menus have theirs in their own section.

    /// Stores the view and its data control. The column and the folder stay.
    void SetCurrentView(znIBrowserView* view);
    /// As selecting by name does; null clears the view, the column and the folder.
    void UpdateCurrentView(znIBrowserView* view);
    /// Reads and clears the current view. The data control stays.
    znIBrowserView* GetCurrentViewPtr() const;
    void ResetCurrentView();

    /// Stores the column. The style and the element stay.
    void SetCurrentColumn(znIBrowserViewColumn* column);
    /// Takes the column that the view itself regards as current. The style and the element stay.
    void UpdateCurrentColumn(znIBrowserView* view);
    /// Reads and clears the current column.
    znIBrowserViewColumn* GetCurrentColumnPtr() const;
    void ResetCurrentColumn();

    /// Stores the style and tells the current column, if any. The element stays.
    void SetCurrentStyle(znIBrowserStyle* style);
    /// Takes the first style of the column, or none, tells the current column, and takes the style's first
    /// element, or none.
    void UpdateCurrentStyle(znIBrowserViewColumn* column);
    /// Reads and clears the current style; no column is told.
    znIBrowserStyle* GetCurrentStylePtr() const;
    void ResetCurrentStyle();
    /// Stores the element.
    void SetCurrentStyleElement(znIBrowserStyleElement* element);
    /// Takes the first element of the style, or none.
    void UpdateCurrentStyleElement(znIBrowserStyle* style);
    /// Reads and clears the current element.
    znIBrowserStyleElement* GetCurrentStyleElementPtr() const;
    void ResetCurrentStyleElement();

    /// Stores the property.
    void SetCurrentViewProperty(znIBrowserViewProperty* property);
    /// The current property, or null.
    znIBrowserViewProperty* GetCurrentViewPropertyPtr() const;
    /// Clears the current property. True when one was current; the error state stays.
    bool ResetCurrentViewProperty();

    /// Stores the folder.
    void SetCurrentFreeFolder(znIBrowserViewItemFreeFolder* folder);
    /// Takes the root folder of the view, or none.
    void UpdateCurrentFreeFolder(znIBrowserView* view);
    /// Reads and clears the current folder. The list stays.
    znIBrowserViewItemFreeFolder* GetCurrentFreeFolderPtr() const;
    void ResetCurrentFreeFolder();

    /// Stores the data source of a list.
    void SetCurrentList(znIBrowserDataSourceSimple* list);
    /// Reads and clears the current list.
    znIBrowserDataSourceSimple* GetCurrentListPtr() const;
    void ResetCurrentList();

    /// Stores the operation.
    void SetCurrentViewOperation(znIBrowserViewOperation* operation);
    /// Reads and clears the current operation.
    znIBrowserViewOperation* GetCurrentViewOperationPtr() const;
    void ResetCurrentViewOperation();

    /// Stores the window. The view, the part and the event stay.
    void SetCurrentWindowAccess(znIBrowserWindowAccess* window);
    /// Reads and clears the current window; the host is not told, and the find request stays.
    znIBrowserWindowAccess* GetCurrentWindowAccessPtr() const;
    void ResetCurrentWindowAccess();
    /// Does what `UpdateCurrentFindRequest` does.
    void UpdateWindowAccessDependentCurrents(znIBrowserWindowAccess* window);

    /// Stores the part; null is the top level. The event stays.
    void SetCurrentWindowPartByPtr(znIBrowserWindowPart* part);
    /// Reads the current part, and goes to the top level.
    znIBrowserWindowPart* GetCurrentWindowPartPtr() const;
    void ResetCurrentWindowPart();
    /// Stores the event.
    void SetCurrentEvent(znIBrowserEvent* event);
    /// Takes the first event of the part, or none.
    void UpdateCurrentEvent(znIBrowserWindowPart* part);
    /// Does nothing: nothing follows the event.
    void UpdateEventDependentCurrents(znIBrowserEvent* event);
    /// Reads and clears the current event.
    znIBrowserEvent* GetCurrentEventPtr() const;
    void ResetCurrentEvent();
    /// Stores the callback.
    void SetCurrentWindowCallback(znIBrowserWindowCallback* callback);
    /// Does nothing: the current callback never follows its event.
    void UpdateCurrentWindowCallback(znIBrowserEvent* event);
    /// Reads and clears the current callback.
    znIBrowserWindowCallback* GetCurrentWindowCallbackPtr() const;
    void ResetCurrentWindowCallback();

    /// Stores the map.
    void SetCurrentGuiMap(znIBrowserGuiMap* map);
    /// The current map, or null.
    znIBrowserGuiMap* GetCurrentGuiMapPtr() const;

    /// Stores the request.
    void SetCurrentFindRequestByPtr(znIBrowserFindRequest* request);
    /// Takes the first request of the window and that request's first property, or none. The criterion stays.
    void UpdateCurrentFindRequest(znIBrowserWindowAccess* window);
    /// Reads and clears the current request.
    znIBrowserFindRequest* GetCurrentFindRequestPtr() const;
    void ResetCurrentFindRequest();
    /// Stores the property.
    void SetCurrentFindRequestPropertyByPtr(znBrowserProperty* property);
    /// Takes the first property of the request, or none. The criterion stays.
    void UpdateCurrentFindRequestProperty(znIBrowserFindRequest* request);
    /// Reads and clears the current property.
    znBrowserProperty* GetCurrentFindRequestPropertyPtr() const;
    void ResetCurrentFindRequestProperty();
    /// Stores the criterion.
    void SetCurrentFindRequestPropertyCriterionByPtr(znBrowserCriterion* criterion);
    /// Takes the first criterion of the property, or none.
    void UpdateCurrentFindRequestPropertyCriterion(znBrowserProperty* property);
    /// Reads and clears the current criterion.
    znBrowserCriterion* GetCurrentFindRequestPropertyCriterionPtr() const;
    void ResetCurrentFindRequestPropertyCriterion();

    /// Stores the data control; it is not told.
    void SetCurrentDataCtrl(znIBrowserDataCtrl* control);
    /// Reads and clears the current data control. Data sources and the like stay.
    znIBrowserDataCtrl* GetCurrentDataCtrlPtr() const;
    void ResetCurrentDataCtrl();

    /// Store the source; null is ignored. Both do the same.
    void SetCurrentDataSourceSimple(znIBrowserDataSourceSimple* source);
    void UpdateCurrentDataSourceSimple(znIBrowserDataSourceSimple* source);
    /// The current source, or null.
    znIBrowserDataSourceSimple* GetCurrentDataSourceSimplePtr() const;
    /// Does nothing.
    void SetCurrentConnectDataSourceSimple(znIBrowserDataSourceSimple* source);
    /// Always null.
    znIBrowserDataSourceSimple* GetCurrentConnectDataSourceSimplePtr() const;

    /// Store the source; null is ignored. Both do the same.
    void SetCurrentDataSourceHierarchical(znIBrowserDataSourceHierarchical* source);
    void UpdateCurrentDataSourceHierarchical(znIBrowserDataSourceHierarchical* source);
    /// The current source, or null.
    znIBrowserDataSourceHierarchical* GetCurrentDataSourceHierarchicalPtr() const;

    /// Stores the criteria.
    void SetCurrentCriteria(znIBrowserCriteria* criteria);
    /// Does nothing: the current criteria never follow their source.
    void UpdateCurrentCriteria(znIBrowserDataSourceSimple* source);
    /// Reads and clears the current criteria.
    znIBrowserCriteria* GetCurrentCriteriaPtr() const;
    void ResetCurrentCriteria();

    /// Stores the operation.
    void SetCurrentDataOperation(znIBrowserDataOperation* operation);
    /// Reads and clears the current operation.
    znIBrowserDataOperation* GetCurrentDataOperationPtr() const;
    void ResetCurrentDataOperation();

    /// Stores the field.
    void SetCurrentInputField(znIBrowserInputField* field);
    /// Reads and clears the current field.
    znIBrowserInputField* GetCurrentInputFieldPtr() const;
    void ResetCurrentInputField();

    /// Stores the state.
    void SetCurrentState(znIBrowserState* state);
    /// Reads and clears the current state.
    znIBrowserState* GetCurrentStatePtr() const;
    void ResetCurrentState();

    // ---- Views ----
    // With a view its data control becomes current, too, if it has one.

    /// Creates a view; `flag` is the host's. Silently false for a null name, and when the host does not know
    /// the view afterwards.
    /// @throws const char* "Could not create view" when the host refuses.
    bool CreateView(const char* name, bool flag); ///< "view create"
    /// Deletes a view that no window shows; the first remaining view becomes current, as by name, or none.
    bool DeleteView(const char* name); ///< "view delete"
    /// Makes a view current, and with it the view's column and root folder. One that is current already
    /// changes nothing.
    bool SetCurrentView(const char* name); ///< "view current"

    /// The names of all views.
    bool GetViewNames(znString& out); ///< "view names"
    /// Redraws the views of the current data control. Silently false without one; the error state stays.
    bool RedrawAllViews(); ///< "view redraw"
    /// Set and read the italic flag of the current column. A view must be current, too.
    bool SetItalic(bool italic);   ///< "view italic"
    bool GetItalic(znString& out); ///< "view italic"

    // ---- Columns ----
    // Names are those of columns of the current view. Built-in columns cannot be deleted, shown or hidden,
    // moved or justified: an error names the column.

    /// Create a column; `argument` and `icon` are the host's. The current style and element stay.
    bool CreateButtonColumn(const char* name, const char* argument);                 ///< "view column create"
    bool CreateTextBoxColumn(const char* name, const char* argument);                ///< "view column create"
    bool CreateIconColumn(const char* name, const char* argument, const char* icon); ///< "view column create"

    /// Placeholders: true, and nothing is created.
    bool CreateCheckBoxColumn(const char* name, const char* argument); ///< "view column create"
    bool CreateComboBoxColumn(const char* name, const char* argument);

    /// Deletes a column with its styles; the view's default column becomes current.
    bool DeleteScriptedColumn(const char* name); ///< "view column delete"
    /// Shows or hides a column.
    bool ShowScriptedColumn(const char* name, bool show); ///< "view column show"
    /// Moves a column, not necessarily the current one; `position` is the host's.
    bool MoveCurrentColumn(const char* name, int position); ///< "view column move"
    /// `justify` goes to the host as it is: "left", "center" or "right".
    bool SetViewColumnJustify(const char* name, const char* justify); ///< "view column justify"
    /// `width`: pixels, as text. Built-in columns have a width, too.
    bool SetViewColumnWidth(const char* name, const char* width); ///< "view column width"
    /// Asks the current window to report the width to wherever the host sends such reports; gives no text.
    bool GetViewColumnWidth(const char* name); ///< "view column width"
    /// Makes a column current, and with it its first style and that style's first element, or none.
    bool SetCurrentColumn(const char* name); ///< "view column current"
    /// The name of the current column.
    bool GetCurrentColumn(znString& out); ///< "view column current"

    /// The names of all columns, hidden ones included, in the order shown.
    bool GetColumnNames(znString& out); ///< "view column names"
    /// Read and set the text at the head of the current column.
    bool GetColumnCaption(znString& out);       ///< "view column caption"
    bool SetColumnCaption(const char* caption); ///< "view column caption"

    /// Read and set whether the current column is drawn in italics.
    bool GetColumnItalic(znString& out); ///< "view column italic"
    bool SetColumnItalic(bool italic);   ///< "view column italic"

    /// Read and set whether the current column may sort the rows.
    bool GetColumnSorting(znString& out); ///< "view column sort"
    bool SetColumnSorting(bool sorting);  ///< "view column sort"

    /// "true" or "false": whether the current column is shown.
    bool GetViewColumnShownState(znString& out); ///< "view column show"
    /// Read and set the view property by which the default column of the current column's view sorts; "" when
    /// it sorts by its text.
    bool SortDefaultColumnByCustomProperty(znString& out);           ///< "view column sort byname"
    bool SetSortDefaultColumnByCustomProperty(const char* property); ///< "view column sort byname"

    /// Set and read the popup menu of the current column, by name; "" when it has none.
    bool SetCurrentColumnPopupMenu(const char* name); ///< "view column popupmenu"
    bool GetCurrentColumnPopupMenu(znString& out);    ///< "view column popupmenu"

    // ---- Styles and style elements ----
    // Styles belong to the current column, elements to the current style.

    /// Creates a style, with which the column draws from then on. One that exists already is taken into use
    /// as well, and then reported as an error. Silently false without a column or a name, and when the host
    /// refuses. The current element stays.
    bool CreateViewStyle(const char* name); ///< "view style create"
    /// Deletes a style with its elements; no other becomes current. Silently false without a current column.
    bool DeleteViewStyle(const char* name); ///< "view style delete"
    /// Makes a style current, and with it its first element, or none. A view must be current, too.
    bool SetCurrentStyle(const char* name); ///< "view style current"
    /// The name of the current style.
    bool GetCurrentStyle(znString& out); ///< "view style current"

    /// The styles of the current column: a braced list.
    bool GetStyleNames(znString& out); ///< "view style names"
    /// Draws an item with the style of the current column that is called as the current style. A null item is
    /// an error.
    bool SetViewItemStyle(znIBrowserViewItem* item); ///< "view style connect"
    /// Creates an element; one that exists already is an error. A null description counts as "".
    bool CreateViewStyleElement(const char* name, const char* description); ///< "view element create"
    /// Deletes an element of the current style; no other becomes current.
    bool DeleteStyleElement(const char* name); ///< "element delete"
    /// Makes an element of the current style current.
    bool SetCurrentStyleElement(const char* name); ///< "element current"
    /// The name of the current element.
    bool GetCurrentStyleElement(znString& out); ///< "element current"

    /// The elements of the current style: a braced list.
    bool GetElementNames(znString& out); ///< "element names"
    /// Set and read the description of the current element.
    bool SetStyleElementDescription(const char* description); ///< "element description"
    bool GetStyleElementDescription(znString& out);           ///< "element description"

    /// Connects the current element to a GUI map; null stands for the current map. A view must be current,
    /// too. A current map that the host no longer knows is passed over: true, and nothing happens.
    bool SetStyleElementMapName(const char* name); ///< "view element connect map"
    /// The GUI map of the current element; "" for none.
    bool GetStyleElementMapName(znString& out);
    /// Connects the current element to a property of the current view; null stands for the current property,
    /// which is passed over when that view has none of its name: true, and nothing happens.
    bool SetStyleElementProperty(const char* name); ///< "view element connect property"

    // ---- View properties ----
    // Named, typed values of the current view. Their values come from data properties, one per data source.

    /// Creates a view property; one that exists already is an error.
    bool CreateViewProperty(const char* name); ///< "view property create"
    /// Deletes a property of the current view; no other becomes current.
    bool DeleteViewProperty(const char* name); ///< "view property delete"
    /// A property of the current view. Null when there is none, which is no error, and also without a current
    /// view, which is one.
    znIBrowserViewProperty* FindViewProperty(const char* name);
    /// Makes a property of the current view current.
    bool UpdateCurrentViewProperty(const char* name); ///< "view property current"
    /// "" when none is current.
    const char* GetCurrentViewPropertyName() const; ///< "view property current"
    /// The properties of the current view: a braced list.
    bool GetViewPropertyNames(znString& out); ///< "view property names"
    /// The field names of the current data item type (the items of the current simple data source): a wide
    /// list, which a null name empties.
    bool GetPropertyNames(znString& out);
    /// Undefined when no property is current.
    ZNBROWSER_DATA_TYPE GetCurrentViewPropertyType() const; ///< "view property type"
    /// Sets the type of the current property by its word, in any letter case: "bool", "integer", "unsigned",
    /// "double" or "string", for arrays with "array" or "arr" behind it, or one of the short words "int",
    /// "uint" and "str", for arrays with "arr". The type that it has already is an error.
    bool SetViewPropertyType(const char* typeName); ///< "view property type"
    /// Sets the scripts of the current property: one takes a changed value, one gives the value. The third
    /// text is the host's.
    /// "view property script"
    bool SetViewPropertyScript(const char* updateScript, const char* getScript, const char* third);
    /// Connects the current property, which needs a type, to a data property in the scheme of its view. The
    /// data source "script" stands for a Tcl procedure, which `dataProperty` names.
    bool ConnectProperty(const char* dataSource, const char* dataProperty); ///< "view property connect"
    /// Connects in the classic scheme: the source is found in the view's data control, and the types must
    /// agree; an array counts as its elements. One connection per source. Silently false for a null property,
    /// and for one whose view uses the new scheme.
    bool CreateViewPropertyConnect(znIBrowserViewProperty* property, const char* dataSource,
                                   const char* dataProperty);
    /// The same in the new scheme: the source is found in the view, and types are not compared.
    bool CreateViewPropertyConnect_NEW(znIBrowserViewProperty* property, const char* dataSource,
                                       const char* dataProperty);
    /// Removes the connection of the current property, which needs a type, to a data source.
    bool DisconnectProperty(const char* dataSource); ///< "view property disconnect"
    /// The same, with or without a type.
    bool DeleteViewPropertyConnect(const char* dataSource);
    /// The connections of the current property, which needs a type: a braced list of "source property" pairs,
    /// in the order made; the source of a connection to a procedure reads "script".
    bool GetConnectionList(znString& out); ///< "view property connected"

    // ---- Free folders ----
    // Settings are those of the current folder; the host keeps them.

    /// Creates a folder under the current one, or takes the one that exists, makes it current and gives it
    /// its parent's group-leafs and style flags. When the host refuses these, the folder is current all the
    /// same. True, and nothing changes, when the host does not know the folder that it made.
    bool CreateFreeFolder(const char* name); ///< "view folder create"
    /// Deletes a child of the current folder, which stays current. The current list goes with it when the
    /// child, or a folder below, shows it and the current folder does not. What `recursive` adds is the
    /// host's.
    bool DestroyFreeFolder(const char* name, bool recursive); ///< "view folder delete"
    /// Makes a child of the current folder current, or the root folder of the current view by its name.
    /// Without a current folder the search starts at the root.
    bool SetCurrentFreeFolder(const char* name); ///< "view folder current"
    /// The name of the current folder.
    bool GetCurrentFreeFolderName(znString& out); ///< "view folder current"

    /// The name of any folder; null is an error.
    bool GetFreeFolderName(znIBrowserViewItemFreeFolder* folder, znString& out);
    /// The folders directly under the current one: a braced list.
    bool GetChildrenFreeFolderNames(znString& out); ///< "view folder children"
    /// The data item types (data sources) configured below the current folder: a braced list.
    bool GetChildrenFreeFolderConfiguredTypes(znString& out); ///< "view folder dataitemtype"
    /// The selected folders below the current one: a braced list, in the order shown.
    bool GetFreeFolderSelected(znString& out); ///< "view folder selected"
    /// The current view property's values of the selected items below the current folder: a quoted list.
    /// Items without a value are left out.
    bool GetFreeFolderSelection(znString& out); ///< "view folder selection"
    /// Expand and collapse the current folder in the current view; with `recursive` also what lies below it.
    bool ExpandFreeFolder(bool recursive);   ///< "view folder expand"
    bool CollapseFreeFolder(bool recursive); ///< "view folder collapse"

    /// Set and read whether items without children stand together.
    bool SetFreeFolderGroupLeafs(bool group);    ///< "view group children"
    bool GetFreeFolderGroupLeafs(znString& out); ///< "view group children"

    /// Set and read whether the folder draws its items with its own style.
    bool SetFreeFolderStyle(bool style);    ///< "view folder style"
    bool GetFreeFolderStyle(znString& out); ///< "view folder style"

    /// Set and read whether trees and lists without items are shown.
    bool SetFreeFolderShowEmptyContainers(bool show);     ///< "empty show"
    bool GetFreeFolderShowEmptyContainers(znString& out); ///< "empty show"

    /// Set and read whether folders without content are shown; with `recursive` also in the folders below.
    bool ShowEmptyFolders(bool show, bool recursive); ///< "view folder empty"
    bool GetShowEmptyFoldersFlag(znString& out);      ///< "view folder empty"

    /// Show how many children the folder has, by its image or as a number; with `recursive` also in the
    /// folders below.
    bool SetFreeFolderShowCountByImage(bool show, bool recursive);  ///< "view folder children count byimage"
    bool SetFreeFolderShowCountByNumber(bool show, bool recursive); ///< "view folder children count bynumber"

    /// Draw the folder's caption in bold or in italics.
    bool SetBoldFlagToFreeFolder(bool bold);     ///< "view folder bold"
    bool SetItalicFlagToFreeFolder(bool italic); ///< "view folder italic"

    /// Set and read whether child folders stay in the order in which they were created.
    /// "view folder keepchildrenfoldersinorderascreated"
    bool SetFreeFolderKeepChildrenFreeFoldersAsCreated(bool keep);
    /// "view folder keepchildrenfoldersinorderascreated"
    bool GetFreeFolderKeepChildrenFreeFoldersAsCreated(znString& out);

    /// Shows the items of a simple source of the current data control expanded, `depth` levels deep, when the
    /// folder is filled.
    bool SetFreeFolderCreateExpandedItem(const char* dataSource, int depth); ///< "view folder createexpanded"
    /// A placeholder: empties the text and is false, without a message; the error state stays.
    bool GetFreeFolderCreateExpandedItem(znString& out);
    /// Exempts the items of a simple source of the current data control from sorting; `value` is the host's.
    bool SetFreeFolderSortingException(const char* dataSource, int value);
    /// A placeholder, as the one above.
    bool GetFreeFolderSortingException(znString& out);
    /// Items dropped on the current folder go to that hierarchical source of the current data control. The
    /// host is not asked whether it agrees.
    /// "view folder dropitem datasource hierarchical"
    bool SetDropItemDataSourceHierarchical(const char* name);

    // ---- Trees and lists of the current folder ----
    // A tree is a hierarchical data source or is built from data references; a list is a simple data source.
    // `second` and `flag` are the host's.

    /// Shows a hierarchical source of the current view as the folder's tree; a second tree is an error. A
    /// data source of either kind must be current, whichever it is.
    bool CreateTree(const char* name); ///< "view tree create"
    /// Takes a tree from the folder. The data source stays current as long as the host has it.
    bool DeleteTree(const char* name); ///< "view tree delete"
    /// The hierarchical sources that the folder shows as trees: a braced list.
    bool GetTreeNames(znString& out); ///< "view tree names"
    /// Shows the items of the current hierarchical source in groups. Without one the message names the list.
    bool SetCurrentTreeGroup(bool group, bool second); ///< "view tree group"
    /// Shows or hides the items of one data source in the folder's tree; null stands for the current simple
    /// source. The name is looked up in the current data control.
    bool SetShowChildType(const char* type, bool show); ///< "view tree show"
    /// The child types that the folder's tree shows: a braced list.
    bool GetShownChildrenTypes(znString& out); ///< "view tree show"
    /// Build the tree from data references: one finds its top items, the other the children of a parent. All
    /// names are looked up in the current data control.
    /// "view folder tree toplevel"
    bool CreateFolderTreeToplevel(const char* dataSource, const char* dataReference);
    /// "view folder tree parentchild"
    bool CreateFolderTreeParentChild(const char* parent, const char* child, const char* dataReference);

    /// The data references by which the tree finds its top items, and its children: braced lists.
    bool GetFolderTreeToplevelNames(znString& out);    ///< "view folder tree toplevel"
    bool GetFolderTreeParentChildNames(znString& out); ///< "view folder tree parentchild"

    /// Has the host bring the folder's tree up to date with a source of the current data control. Silently
    /// false when the host refuses.
    bool UpdateTreeDataSource(const znString& name); ///< "view folder tree update"
    /// Lists a simple source of the current data control in the folder; one that is listed already is an
    /// error. The current list stays.
    bool CreateList(const char* name, bool flag); ///< "view list create"
    /// The same for a source of either kind; whether it may be listed once more, the host decides.
    bool ListAdd(const char* name, bool flag); ///< "view list add"
    /// Takes a list from the folder.
    bool DeleteList(const char* name); ///< "view list delete"
    /// Makes a list of the current folder current.
    bool SetCurrentList(const char* name); ///< "view list current"

    /// The lists of the current folder: a braced list; with `recursive` also those of all folders below, top
    /// to bottom.
    bool GetListNames(znString& out, bool recursive); ///< "view list names"
    /// Sets the caption of the current list in the current folder.
    bool SetCurrentListCaption(const char* caption); ///< "view list caption"
    /// Shows the items of the current list in groups.
    bool SetCurrentListGroup(bool group, bool second); ///< "view list group"
    /// Draws the current list in the current column with the current style, or (false) with the column's own.
    bool SetCurrentListStyle(bool use); ///< "view list style"
    /// Expand and collapse the current list; with `recursive` also what lies below its items.
    bool ExpandFreeFolderList(bool recursive);   ///< "view list expand"
    bool CollapseFreeFolderList(bool recursive); ///< "view list collapse"

    // ---- Selection and data items ----
    // Of the current view; properties are view properties. `select` false deselects. `recursive` means also
    // what lies below the items. Lists of values are quoted, and leave out items without a value.

    /// Deselects everything in the current view.
    bool ClearCurrentViewSelection(); ///< "view selection clear"
    /// Deselects everything in all views; the first that refuses ends it.
    bool ClearAllSelection(); ///< "selection clear"
    /// Let the user of the current window select one item at a time, or many.
    bool SetSingleSelection();   ///< "view selection single"
    bool SetMultipleSelection(); ///< "view selection multiple"

    /// Selects all items of the current simple source.
    bool SelectDataItemSimples(bool select, bool recursive); ///< "view dataitem simple select"
    /// Those that have a value of the current property, which must be connected to the source.
    bool SelectDataItemSimplesByProp(bool select, bool recursive); ///< "view dataitem simple select byprop"
    /// Those whose value of the current property reads so.
    /// "view dataitem simple select bypropval"
    bool SelectDataItemSimplesByPropAndValue(const char* value, bool select, bool recursive);
    /// Those whose value is among the first `count` of `values`.
    /// "view dataitem simple select bypropvals"
    bool SelectDataItemSimplesByPropAndValues(int count, const std::vector<znString>& values, bool select,
                                              bool recursive);
    /// The same four for the current hierarchical source, to which the property need not be connected. The
    /// last two need a current simple source as well, though they do nothing with it.
    bool SelectDataItemHierarchicals(bool select, bool recursive); ///< "view dataitem hierarchical select"
    /// "view dataitem hierarchical select byprop"
    bool SelectDataItemHierarchicalsByProp(bool select, bool recursive);
    /// "view dataitem hierarchical select bypropval"
    bool SelectDataItemHierarchicalsByPropAndValue(const char* value, bool select, bool recursive);
    /// "view dataitem hierarchical select bypropvals"
    bool SelectDataItemHierarchicalsByPropAndValues(int count, const std::vector<znString>& values,
                                                    bool select, bool recursive);

    /// The current property's values of the selected items of the current simple source, to which it must be
    /// connected. `children` and `recursive` mean the same: also what lies below.
    bool DataItemsSelected(znString& out, bool children, bool recursive); ///< "view dataitem selected"
    /// The same for the selected items of all data sources of the view.
    bool DataItemsSelectedAll(znString& out, bool children, bool recursive); ///< "view dataitem selected all"
    /// The simple, and the hierarchical sources that have selected items: braced lists.
    bool DataSourceSimpleSelected(znString& out, bool recursive); ///< "view datasource simple selected"
    /// "view datasource hierarchical selected"
    bool DataSourceHierarchicalSelected(znString& out, bool recursive);

    /// The values of a property of the current view for all selected items.
    bool GetSelectedDataItemValues(const char* property, znString& out);
    /// The same with a second property for items that have no value of the first; one of them may be unknown
    /// or null.
    bool GetSelectedDataItemValues(const char* property, const char* second, znString& out);

    // ---- Sorting and filtering ----
    // Of the current view. A filter is a data source of the view that can be shown or not.

    /// Set and read whether the view sorts its rows.
    bool SetSorting(bool sorting);  ///< "view sort enabled"
    bool GetSorting(znString& out); ///< "view sort"

    /// Sorts by the current column, upwards (true) or downwards; an error when that column may not sort.
    bool SetAscendingOrder(bool ascending); ///< "view sort ascending"
    /// How the current column sorts now: "ascending", "descending" or "unsorted".
    bool GetAscendingOrder(znString& out); ///< "view sort"
    /// Set and read whether the list of filters is shown in groups.
    bool SetViewGroupFilter(bool group);    ///< "view filter group"
    bool GetViewGroupFilter(znString& out); ///< "view filter group"

    /// Shows exactly the named data sources, or all when there are no names. One unknown name, and nothing
    /// changes.
    bool SetCurrentFilter(const std::vector<znString>& names); ///< "view filter dataitemtype current"
    /// The data sources that the view shows: a braced list.
    bool GetCurrentFilter(znString& out); ///< "view filter dataitemtype current"
    /// The data sources that the view could show: a braced list.
    bool GetFilterNames(znString& out);
    /// Rebuilds the list of filters from the data sources that the view has now.
    bool RebuildFilterLists(); ///< "view filter dataitemtype update"
    /// Set and read the text by which the view filters its items.
    bool SetFilterString(const char* pattern); ///< "view filter string current"
    bool GetFilterString(znString& out);       ///< "view filter string current"

    /// Set and read whether that text must match in letter case. `flag` is read by the setter, which leaves
    /// it as it is, and written by the getter.
    bool SetFilterMatchCaseFlag(bool& flag); ///< "view filter option matchcase"
    bool GetFilterMatchCaseFlag(bool& flag); ///< "view filter option matchcase"

    /// The same for whether it must match whole words.
    bool SetFilterMatchWordFlag(bool& flag); ///< "view filter option matchword"
    bool GetFilterMatchWordFlag(bool& flag); ///< "view filter option matchword"

    // ---- View operations ----
    // Named actions of the current view, which run a script.

    /// Creates an operation of the current view; without a view the host is asked all the same.
    bool CreateViewOperation(const char* name); ///< "view operation create"
    /// Makes an operation of the current view current; the message about an unknown one speaks of a
    /// dataoperation.
    bool SetCurrentViewOperation(const char* name); ///< "view operation current"
    /// The name of the current operation.
    bool GetCurrentViewOperation(znString& out); ///< "view operation current"

    /// Lists nothing: gives the error state, which stays.
    bool GetViewOperationNames(); ///< "view operation names"
    /// Sets the Tcl script that the current operation runs.
    bool SetViewOperationScript(const char* script); ///< "view operation script"
    /// Sets whether users may edit the current operation.
    bool SetViewOperationEditable(bool editable); ///< "view operation editable"
    /// Runs the current operation. True whatever its script does; an error that it leaves is forgotten.
    bool PerformViewOperation(); ///< "view operation perform"

    // ---- Windows ----
    // With a window its first find request and that request's first property become current; the current
    // criterion stays. The host hears which window is current.

    /// Creates a window on the current view; one that exists already is an error. Silently false for a null
    /// name, and when the host does not know the window afterwards.
    bool CreateWindowAccess(const char* name); ///< "window create"
    /// Deletes a window with all that lies in it; the first remaining window becomes current, and no part.
    /// The view stays. A null name: true, and nothing happens.
    bool DeleteWindowAccess(const char* name); ///< "window delete"
    /// Makes a window current, and its view as `UpdateCurrentView` does. When it is current already, only the
    /// application's reselection signal is emitted. A null name: true, and nothing happens.
    bool SetCurrentWindowAccess(const char* name); ///< "window current"
    /// The name of the current window, but only while a column is current; else "". Never fails.
    bool GetCurrentWindowAccess(znString& out); ///< "window current"

    /// All windows: a wide list. Never fails.
    bool GetWindowAccessNames(znString& out); ///< "window names"
    /// Puts the current window on the screen (true) or takes it away, which may run scripts. Without a
    /// window: true, and nothing happens.
    bool PostWindowAccess(bool post); ///< "window post"
    /// Whether the current window is on the screen; without a window `posted` stays as it is. Never fails.
    bool IsWindowAccessPosted(bool& posted); ///< "window post"
    /// Sets the background colour of the current window, as the host spells colours; `flag` is the host's.
    bool SetWindowBackgroundColor(const char* color, bool flag); ///< "window background"
    /// The background colour of the current window; without a window `out` stays as it is. Never fails.
    bool GetCurrentWindowBackgroundColor(znString& out); ///< "window background"
    /// Switches the stripes behind the rows on or off: of the current window or, with `all`, of every one,
    /// and then none need be current.
    bool SetWindowStripeDisplay(bool on, bool all); ///< "window stripe"
    /// Whether the current window has stripes; without a window `on` stays as it is. Never fails.
    bool GetCurrentWindowStripeDisplay(bool& on); ///< "window stripe"
    /// Set and read the path of the Tk frame in which the current window stands.
    bool SetCurrentWindowTkFrame(const znString& frame); ///< "window frame"
    bool GetCurrentWindowTkFrame(znString& out);         ///< "window frame"

    /// Collapse and expand the items of the current window: all, or the selected ones.
    bool CollapseAllItems();      ///< "window collapseall"
    bool CollapseSelectedItems(); ///< "window collapseselected"
    bool ExpandAllItems();        ///< "window expandall"
    bool ExpandSelectedItems();   ///< "window expandselected"

    // ---- Window parts, events, callbacks, listeners ----
    // Parts divide the current window; without a current part its main frame, the top level, is meant. A part
    // offers events, an event has callbacks, and listeners are procedures that hear of the window's events.

    /// Creates a part under another part, which must exist; null or "" stands for the top level. Its first
    /// event, or none, becomes current. Silently false for a null name, and when the host does not know the
    /// part afterwards.
    bool CreateWindowPart(const char* name, const char* parent); ///< "window part create"
    /// Deletes a part with all that lies in it; the window's first remaining part and that part's first event
    /// become current, or none. Silently false for a null name.
    bool DeleteWindowPart(const char* name); ///< "window part delete"
    /// Makes a part current, and with it its first event, or none. Silently false for a null name.
    bool SetCurrentWindowPartByName(const char* name); ///< "window part current"
    /// The name of the current part; "" at the top level. Never fails.
    bool GetCurrentWindowPart(znString& out); ///< "window part current"

    /// Moves the current part under another part of the window; null moves it to the top level.
    bool SetCurrentWindowPartParent(znIBrowserWindowPart* parent);
    /// The same by name; null moves the part to the top level.
    bool SetCurrentWindowPartParentByName(const char* name); ///< "window part parent"
    /// The name of the part that holds the current one; "" when that is the top level. At the top level
    /// itself, the name of the window.
    bool GetCurrentWindowPartParent(znString& out); ///< "window part parent"
    /// Set the Tcl procedures that fill and that pack the frame of the current part; `argument` is passed to
    /// them unchanged.
    bool SetWindowPartCreateProc(const char* procedure, const char* argument); ///< "window part createproc"
    bool SetWindowPartPackProc(const char* procedure, const char* argument);   ///< "window part packproc"

    /// Moves the current part among its siblings; `position` is the host's. A refusal has the text of a
    /// missing part.
    bool SetWindowPartPosition(int position); ///< "window part move"
    /// Set and read whether the current part is shown.
    bool SetWindowPartShownState(bool shown);    ///< "window part show"
    bool GetWindowPartShownState(znString& out); ///< "window part show"

    /// The Tk path of the current part's frame.
    bool GetWindowPartFramePath(znString& out); ///< "window part frame"
    /// The parts directly under the current one, or, with `recursive`, all below it: a wide list.
    bool GetWindowPartNames(znString& out, bool recursive); ///< "window part names"
    /// A table of all parts below the current one: a line of headings, then a line for each with its name,
    /// parent, position and frame path, set off by tabs and blanks. For a part without a parent, the name of
    /// the current window and "(Root)" stand in its place.
    bool GetWindowPartInfo(znString& out); ///< "window part info"
    /// The events of the current part: a wide list. Null names are left out.
    bool GetWindowPartEventNames(znString& out); ///< "window part event names"
    /// The window operations that the current part offers: a wide list. Null names are left out.
    bool GetWindowPartOperationNames(znString& out); ///< "window part operation names"
    /// Makes an event of the current part current. The callback stays.
    bool SetCurrentEvent(const char* name); ///< "window part event current"
    /// The name of the current event.
    bool GetCurrentEvent(znString& out); ///< "window part event current"

    /// Attaches a callback to the current event; one that exists already is an error. The type
    /// "WINDOW_OPERATION", in any letter case, makes it a window operation, any other does not. Silently
    /// false for a null name or type, and when the host does not know the callback afterwards.
    bool CreateWindowCallback(const char* name, const char* type); ///< "window part event callback create"
    /// Makes a callback of the current event current.
    bool SetCurrentWindowCallback(const char* name); ///< "window part event callback current"
    /// The name of the current callback.
    bool GetCurrentWindowCallback(znString& out); ///< "window part event callback current"

    /// The callbacks of the current event: a wide list.
    bool GetWindowCallbackNames(znString& out); ///< "window part event callback names"
    /// Set and read the window on which the current callback acts; reading it before it is set is an error.
    /// "window part event callback window"
    bool SetCurrentWindowCallbackActionWindow(const char* windowName);
    bool GetCurrentWindowCallbackActionWindow(znString& out); ///< "window part event callback window"

    /// Sets what the current callback does there: "TREE_AREA_SELECT_PARENT_ITEMS" or
    /// "TREE_AREA_SELECT_CHILDREN_ITEMS", in any letter case; silently false for anything else.
    bool SetCurrentWindowCallbackOperation(const char* operation); ///< "window part event callback operation"
    /// One of those two words, or "UNDEFINED".
    bool GetCurrentWindowCallbackOperation(znString& out); ///< "window part event callback operation"
    /// Add and remove a listener of the current window, by the name of its procedure.
    bool AddWindowListener(const char* name);    ///< "window listener connect"
    bool DeleteWindowListener(const char* name); ///< "window listener disconnect"

    /// The listeners of the current window: a wide list. Null names are left out.
    bool GetWindowListenerNames(znString& out); ///< "window listener names"

    // ---- GUI maps ----
    // Tables from values to what a cell shows for them. They belong to the host, not to a view or window.

    /// Creates a map. One that exists already becomes current, and is then reported as an
    /// error. True when the host refuses: nothing changes then. Silently false for a null name.
    bool CreateGuiMap(const char* name); ///< "window map create"
    /// Deletes a map; the two default maps are refused. The host is not asked whether it agrees.
    bool DeleteGuiMap(const znString& name); ///< "window map delete"
    /// Makes a map current, by name.
    bool UpdateCurrentGuiMap(const char* name); ///< "window map current"
    /// "" when none is current.
    const char* GetCurrentGuiMapName() const; ///< "window map current"
    /// Clears the current map. True when one was current; the error state stays.
    bool ResetCurrentGuiMap();
    /// All maps: a wide list. Never fails.
    bool GetGuiMapNames(znString& out); ///< "window map names"
    /// Undefined when no map is current, and for one without a type.
    ZNBROWSER_GUIMAP_TYPE GetCurrentGuiMapType() const; ///< "window map type"
    /// Sets the type of the current map, in any letter case: from "integer", "double", "unsigned", "bool" or
    /// "string" to "icon", "string" or "rgb", and from "string" also to "button". Other pairs, and the type
    /// that it has already, are errors. The error state is not cleared first.
    bool CreateGuiMappingTypetoType(const char* keyType, const char* shownType); ///< "window map type"
    /// Add a record to the current map: for that key it shows `value`. A null key or value counts as "".
    /// Whether the key fits the map's type is the host's to judge.
    bool CreateGuiMapRecord(bool key, const char* value);         ///< "window map record create"
    bool CreateGuiMapRecord(unsigned int key, const char* value); ///< "window map record create"
    bool CreateGuiMapRecord(double key, const char* value);       ///< "window map record create"
    bool CreateGuiMapRecord(int key, const char* value);          ///< "window map record create"
    bool CreateGuiMapRecord(const char* key, const char* value);  ///< "window map record create"

    /// The same for a record that shows the greyed form of the image file `value`.
    bool CreateGuiMapDisabledRecord(bool key, const char* value); ///< "window map record create disabled"
    /// "window map record create disabled"
    bool CreateGuiMapDisabledRecord(unsigned int key, const char* value);
    bool CreateGuiMapDisabledRecord(double key, const char* value); ///< "window map record create disabled"
    bool CreateGuiMapDisabledRecord(int key, const char* value);    ///< "window map record create disabled"
    /// "window map record create disabled"
    bool CreateGuiMapDisabledRecord(const char* key, const char* value);

    /// Remove the record of that key from the current map; a key without one is an error that names the key,
    /// an unsigned one as if it were signed. A null key counts as "".
    bool DeleteGuiMapRecord(bool key);         ///< "window map record delete"
    bool DeleteGuiMapRecord(unsigned int key); ///< "window map record delete"
    bool DeleteGuiMapRecord(double key);       ///< "window map record delete"
    bool DeleteGuiMapRecord(int key);          ///< "window map record delete"
    bool DeleteGuiMapRecord(const char* key);  ///< "window map record delete"

    /// The records of the current map, key and value in turn, each in braces with a blank before it:
    /// " {1} {red.png} {2} {blue.png}".
    bool GetGuiMapRecordNames(znString& out); ///< "window map record names"

    // ---- Find requests ----
    // The searches of the current window: a request has properties to search on, a property has criteria.
    // Names of properties and criteria are never null here, and their lists leave none out.

    /// Makes a request of the current window current, and with it its first property, or none. The criterion
    /// stays. Silently false for a name without storage.
    bool SetCurrentFindRequest(const znString& name); ///< "window find current"
    /// The name of the current request.
    bool GetCurrentFindRequest(znString& out); ///< "window find current"

    /// The requests of the current window: a wide list.
    bool GetFindRequestNames(znString& out); ///< "window find names"
    /// Sets which matches the current request asks for: "all", "next" or "previous", in exactly these
    /// letters; any other word makes the type unknown. The host is not asked whether it agrees.
    bool SetCurrentFindRequestType(const znString& word); ///< "window find type"
    /// One of those three words, or "unknown".
    bool GetCurrentFindRequestType(znString& out); ///< "window find type"
    /// Performs the current request.
    bool PerformCurrentFindRequest(); ///< "window find perform"
    /// Has the view of the request's window add a property to the current request. The current property
    /// stays. True also when the host refuses.
    bool AddPropertyToCurrentFindRequest(const znString& name); ///< "window find property add"
    /// Makes a property of the current request current, and with it its first criterion, or none.
    bool SetCurrentFindRequestProperty(const znString& name); ///< "window find property current"
    /// The name of the current property.
    bool GetCurrentFindRequestProperty(znString& out); ///< "window find property current"

    /// The properties of the current request: a wide list.
    bool GetFindRequestPropertyNames(znString& out); ///< "window find property names"
    /// Makes a criterion of the current property current.
    /// "window find property criterion current"
    bool SetCurrentFindRequestPropertyCriterion(const znString& name);
    /// The name of the current criterion.
    bool GetCurrentFindRequestPropertyCriterion(znString& out); ///< "window find property criterion current"

    /// The criteria of the current property: a wide list.
    /// "window find property criterion names"
    bool GetCurrentFindRequestPropertyCriteriaNames(znString& out);
    /// Accepts "equalto" alone, and stores nothing: the criterion keeps its type.
    /// "window find property criterion type"
    bool SetCurrentFindRequestPropertyCriterionType(const znString& word);
    /// "morethan", "lessthan", "equalto" or "unknown".
    bool GetCurrentFindRequestPropertyCriterionType(znString& out); ///< "window find property criterion type"
    /// Write and read the text that the current criterion compares with.
    /// "window find property criterion value"
    bool SetCurrentFindRequestPropertyCriterionValue(const znString& value);
    /// "window find property criterion value"
    bool GetCurrentFindRequestPropertyCriterionValue(znString& out);

    /// Whether letter case counts.
    /// "window find property criterion matchcase"
    bool SetCurrentFindRequestPropertyCriterionMatchcase(bool matchCase);
    /// "window find property criterion matchcase"
    bool GetCurrentFindRequestPropertyCriterionMatchcase(bool& matchCase);

    /// Whether only whole words match.
    /// "window find property criterion matchword"
    bool SetCurrentFindRequestPropertyCriterionMatchword(bool matchWord);
    /// "window find property criterion matchword"
    bool GetCurrentFindRequestPropertyCriterionMatchword(bool& matchWord);

    /// Whether the text is a regular expression.
    /// "window find property criterion useregexp"
    bool SetCurrentFindRequestPropertyCriterionUseregexp(bool useRegexp);
    /// "window find property criterion useregexp"
    bool GetCurrentFindRequestPropertyCriterionUseregexp(bool& useRegexp);

    // ---- Events of the Tk tree ----
    // Each makes the named window current, as by name, and hands the event to it. An unknown window is an
    // error; an event that the window does not accept is silently false, and the window is current all the
    // same. Indices are Tk indices, the numbers of the tree's rows.

    /// Expand and collapse a row.
    bool OnTkTreeRequestExpand(const char* window, unsigned int tkIndex);   ///< "OnTkTreeRequestExpand"
    bool OnTkTreeRequestCollapse(const char* window, unsigned int tkIndex); ///< "OnTkTreeRequestCollapse"

    /// The tree moved to `position`; what that counts, the rows scrolled away for one, is the host's.
    bool OnTkTreeSetStatePos(const char* window, int position); ///< "OnTkTreeSetStatePos"
    /// These rows joined, or left, the selection.
    /// "OnTkTreeRequestSelect"
    bool OnTkTreeSelectionAdded(const char* window, const std::vector<unsigned int>& indices);
    /// "OnTkTreeRequestDeselect"
    bool OnTkTreeSelectionRemoved(const char* window, const std::vector<unsigned int>& indices);

    /// Exactly these rows are selected now.
    /// "OnTkTreeRequestSelectionUpdate"
    bool OnTkTreeSelectionUpdate(const char* window, const std::vector<unsigned int>& indices);
    /// A series of such events is over.
    bool OnTkTreeSelectionChangeFinished(const char* window); ///< "OnTkTreeSelectionChangeFinished"
    /// The popup menu opened (true) or closed.
    bool OnTkTreePopupMenu(const char* window, bool on); ///< "OnTkTreePopupMenu"
    /// A check box was clicked; `value` is its new state.
    /// "OnTkTreeCheckBoxClick"
    bool OnTkTreeCheckBoxClick(const char* window, const char* column, const char* element,
                               unsigned int tkIndex, bool value);
    /// A button cell was clicked; `value` is its new text.
    /// "OnTkTreeWindowButtonClick"
    bool OnTkTreeWindowButtonClick(const char* window, const char* column, const char* element,
                                   unsigned int tkIndex, const char* value);
    /// A cell was clicked with the left button.
    /// "OnTkTreeLeftHandClick"
    bool OnTkTreeLeftHandClick(const char* window, const char* column, const char* element,
                               unsigned int tkIndex);
    /// Rows were clicked with the right button, in a column that the window's view must have.
    /// "OnTkTreeRightHandClick"
    bool OnTkTreeRightHandClick(const char* window, const char* column,
                                const std::vector<unsigned int>& indices);
    /// The rows `indices` were dropped on the row `target`.
    /// "OnTkTreeSetDropItem"
    bool OnTkTreeSetDropItem(const char* window, unsigned int target,
                             const std::vector<unsigned int>& indices);
    /// An entry of the popup menu was chosen; what the two texts name is the host's.
    /// "OnTkTreePerformPopupOperation"
    bool OnTkTreePerformPopupOperation(const char* window, const char* first, const char* second);
    /// Only check that the window exists: none becomes current, and the error state stays when it does.
    bool OnTkTreeDispElemsToggleClick(const char* window, int value); ///< "checkbox display elem"
    bool OnTkTreeDispGeomsToggleClick(const char* window, int value); ///< "checkbox display geom"

    /// Events of a window's collector bar: a data source was chosen, as with
    /// `SetCurrentCollectorDataSourceSimple`, or an action, as with `SetCurrentCollectorOption`.
    bool OnTkColListItemSelected(const char* window, const char* dataSource); ///< "OnTkColListItemSelected"
    bool OnTkColOptionItemSelected(const char* window, const char* option);   ///< "OnTkColOptionItemSelected"

    // ---- Data controls ----
    // The containers of all data. The application makes them; scripts choose and connect them.

    /// Makes a data control current, and tells it which view is current.
    bool SetCurrentDataCtrl(const char* name); ///< "datactrl current"
    /// The name of the current data control; "" when there is none.
    const char* GetCurrentDataCtrl() const; ///< "datactrl current"

    /// The names of all data controls: a trailing list. Never fails.
    bool GetDataCtrlNames(znString& out); ///< "datactrl names"
    /// Connects the current data control to the current view, which must have none.
    bool DataCtrlConnect(); ///< "view datactrl connect"
    /// Takes its data control, whichever that is, from the current view. The current one stays.
    bool DataCtrlDisconnect(); ///< "view datactrl disconnect"

    // ---- Simple data sources ----
    // Flat sources of items in the current data control. A base source comes with the control; scripts make
    // custom ones, which take their items from base sources.

    /// Creates a custom source. True even when the host made nothing: what becomes current is the source that
    /// it knows by that name, if any. A null caption counts as ""; the description is not passed on. The
    /// error state stays.
    /// "datasource simple create"
    bool CreateDataSourceSimple(const char* name, const char* caption, const char* description);
    /// Deletes a custom source; one that is a base or connected is refused. True also for an unknown name.
    bool DeleteDataSourceSimple(const char* name); ///< "datasource simple delete"
    /// A source of the current data control, or null; the error state stays.
    znIBrowserDataSourceSimple* FindDataSourceSimple(const char* name) const;
    /// Makes a source of the current data control current. The criteria stay.
    bool SetCurrentDataSourceSimple(const char* name); ///< "datasource simple current"

    /// "" when none is current.
    const char* GetCurrentDataSourceSimple() const; ///< "datasource simple current"
    /// Read and set the caption of the current source. Setting also needs a current data control; silently
    /// false for null, and when the host refuses.
    bool GetCurrentDataSourceSimpleCaption(znString& out);       ///< "datasource simple caption"
    bool SetCurrentDataSourceSimpleCaption(const char* caption); ///< "datasource simple caption"

    /// The same for the caption under which the source stands among the filters.
    bool GetCurrentDataSourceSimpleFilterCaption(znString& out);       ///< "datasource simple filtercaption"
    bool SetCurrentDataSourceSimpleFilterCaption(const char* caption); ///< "datasource simple filtercaption"

    /// Tells the current source which of its base sources is meant; no current object changes.
    bool SetCurrentConnectDataSourceSimple(const char* name); ///< "datasource simple connect current"
    /// Always "".
    const char* GetCurrentConnectDataSourceSimple() const;
    /// Connect a base source to the current source, and disconnect it; the items are rebuilt. Silently
    /// false when the host refuses, and without a current custom source, where the error state stays.
    bool DataSourceSimpleConnect(const char* name);    ///< "datasource simple connect"
    bool DataSourceSimpleDisconnect(const char* name); ///< "datasource simple disconnect"

    /// The base sources of the current source, of a named one, and the simple sources of a view: wide, braced
    /// lists; empty when there is no such source or view. They never fail.
    bool DataSourceSimpleConnected(znString& out); ///< "datasource simple connected"
    bool DataSourceSimpleConnected(const char* name, znString& out);
    /// "view datasource simple connected"
    bool DataSourceSimpleConnected(znIBrowserView* view, znString& out);

    /// Connect a simple source to a view; disconnect a source of either kind. Silently false for a null view
    /// or name, and when the host refuses.
    /// "view datasource simple connect"
    bool DataSourceSimpleConnect(znIBrowserView* view, const char* name);
    /// "view datasource simple disconnect"
    bool DataSourceDisconnect(znIBrowserView* view, const char* name);

    /// The simple sources of the current data control, and the custom ones among them: braced lists.
    bool DataSourceSimpleNames(znString& out);       ///< "datasource simple names"
    bool DataSourceSimpleCustomNames(znString& out); ///< "datasource simple script names"

    /// The data properties of a source of the current data control: a wide list.
    /// "datasource simple property names"
    bool DataSourceSimplePropertyNames(const char* dataSource, znString& out);
    /// The current view property's value of every item of the current source, in double quotes; items without
    /// a value are left out. A view must be current, too, and the property connected to the source.
    bool GetDataItemsFromCurrentDSS(znString& out); ///< "datasource simple dataitem"
    /// The sources of either kind in the current data control: a trailing list.
    bool GetDataSourcesNames(znString& out);
    /// Does nothing. `AboutToDelete` is what a host calls when a source goes away.
    void OnDataSourceDelete(znIBrowserDataSourceSimple* source);

    // ---- Hierarchical data sources ----
    // Simple sources of the current data control, arranged as a parent and its children.

    /// Creates a source; the flags and the texts are the host's, null texts count as "". True even when the
    /// host does not know the source afterwards; that is then in the error state.
    /// "datasource hierarchical create"
    bool CreateDataSourceHierarchical(const char* name, bool first, bool second, const char* text1,
                                      const char* text2);
    /// A source of the current data control, or null; the error state stays.
    znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char* name) const;
    /// Makes a source of the current data control current.
    bool SetCurrentDataSourceHierarchical(const char* name); ///< "datasource hierarchical current"

    /// "" when none is current.
    const char* GetCurrentDataSourceHierarchical() const; ///< "datasource hierarchical current"
    /// Makes a simple source the parent of the current source (`kind` "parent"), or adds it as a child
    /// ("child"); `third` says how that hangs on, by a data reference for one, and counts as "" when null.
    /// Silently false for another kind, a null name and a refusal, and without a current source, where the
    /// error state stays.
    /// "datasource hierarchical connect parent"
    bool DataSourceHierarchicalConnect(const char* kind, const char* name, const char* third);
    /// Removes a child from the current source. Silently false as above.
    bool DataSourceHierarchicalDisconnectSimple(const char* name); ///< "datasource hierarchical disconnect"
    /// The sources of the current data control that are in use, and all of them: wide, braced lists.
    bool DataSourceHierarchicalConnected(znString& out); ///< "datasource hierarchical connected"
    bool DataSourceHierarchicalNames(znString& out);     ///< "datasource hierarchical names"

    /// The parent of the current source; "" when it has none. False without a current source. The error state
    /// stays.
    bool DataSourceHierarchicalParentNames(znString& out); ///< "datasource hierarchical connect parent names"
    /// The children of the current source: a braced list; null names are left out. False without a current
    /// source, where the error state stays.
    /// "datasource hierarchical connect child names"
    bool DataSourceHierarchicalChildrenNames(znString& out);
    /// Connects a hierarchical source to a view. Silently false for a null view or name, and when the host
    /// refuses.
    /// "view datasource hierarchical connect"
    bool DataSourceHierarchicalConnect(znIBrowserView* view, const char* name);
    /// The hierarchical sources of a view, those shared with it included: a wide, braced list, empty for a
    /// null view. Never fails.
    /// "view datasource hierarchical connected"
    bool DataSourceHierarchicalConnected(znIBrowserView* view, znString& out);
    /// The current view property's value of every item of the current source, top to bottom, in double
    /// quotes; items without a value are left out. A view must be current, too; without a source the list is
    /// empty.
    bool GetDataItemsFromCurrentDSH(znString& out); ///< "datasource hierarchical dataitem"
    /// Placeholders: false, and nothing changes; the error state stays.
    bool DataSourceHierarchicalPropertyNames(znString& out);
    bool GetDataSourceHierarchicalCriteriaNames(znString& out);

    // Sharing between views has no words: scripts see only its outcome, in the sources that a view lists.

    /// Shows a hierarchical source of another view in the current view as well. An unknown view or source
    /// leaves its text in the result buffer, and the operation succeeds. Silently false for empty names.
    bool CreateDataSourceHierarchicalShare(const znString& dataSource, const znString& view);
    /// The shares of the current view, after "Shared DSH(s):": for each the source and the other view as
    /// `" SOURCE " with  " VIEW " view`.
    bool GetDataSourceHierarchicalSharedNames(znString& out);
    /// Does nothing. `AboutToDelete` is what a host calls when a source goes away.
    void OnDataSourceDelete(znIBrowserDataSourceHierarchical* source);

    // ---- Criteria and data properties ----
    // Both belong to the current simple data source. Criteria are the filter settings of a custom source.

    /// Creates criteria, or takes those that exist. The source must be custom. A null name: true, and nothing
    /// happens.
    bool CreateDataCriteria(const char* name); ///< "datasource simple criteria create"
    /// Deletes the current criteria, which must be those of the current source.
    bool DeleteDataCriteria(); ///< "datasource simple criteria delete"
    /// Makes criteria of the current source current. A null name: true, and nothing happens.
    bool SetCurrentCriteria(const char* name); ///< "datasource simple criteria current"
    /// The name of the current criteria; "" when there are none. Never fails.
    bool GetCurrentCriteria(znString& out); ///< "datasource simple criteria current"

    /// The criteria of the current source, which must be custom: a trailing list. A null name ends it.
    bool GetDataSourceSimpleCriteriaNames(znString& out); ///< "datasource simple criteria names"
    /// Sets the code of the current criteria, in the host's language; null and a refusal are the same error.
    /// Silently false without current criteria.
    bool SetCriteriaCode(const char* code); ///< "datasource simple criteria code"
    /// Sets the type of the current criteria by its word, as `SetViewPropertyType`. Without current criteria
    /// true, and nothing happens. Silently false for null.
    bool SetCriteriaDataType(const char* typeWord); ///< "datasource simple criteria type"
    /// The name of the type: "Bool", "Unsigned", "Integer", "Double", "String", these with "Array", or
    /// "UNDEFINED".
    bool GetCriteriaDataType(znString& out); ///< "datasource simple criteria type"
    /// The name of the type and the values, a blank before each: the first, or for arrays all. Booleans are
    /// printed inverted, doubles as "%8.3f", strings in double quotes. Without values `out` stays as it is,
    /// and without a type it tells so; both succeed.
    bool GetCriteriaDataParameters(znString& out); ///< "datasource simple criteria data"
    /// Replaces the values of the current criteria, the lists of all five types.
    /// "datasource simple criteria data"
    bool UpdateCriteriaData(const std::vector<bool>& bools, const std::vector<unsigned int>& unsigneds,
                            const std::vector<int>& ints, const std::vector<double>& doubles,
                            const znStlVector<znString>& strings);
    /// Creates a data property whose value a Tcl procedure computes for each item. Null arguments and a
    /// refusal fail with the error text of the data source.
    /// "datasource simple property create"
    bool CreateDataPropertyScripted(const char* name, const char* script);
    /// Creates a data property that reads an attribute of the item; `extra` is the host's. The type may also
    /// be one of the host's own, up to 13. A refusal as above.
    /// "datasource simple property create"
    bool CreateDataPropertyScripted(const char* name, ZNBROWSER_DATA_TYPE type, unsigned int attributeId,
                                    int extra);

    // ---- Data operations ----
    // Named actions of the current data control, which run a script.

    /// Creates an operation.
    bool CreateDataOperation(const char* name); ///< "dataoperation create"
    /// Deletes the current operation.
    bool DeleteDataOperation();
    /// Makes an operation of the current data control current.
    bool SetCurrentDataOperation(const char* name); ///< "dataoperation current"
    /// The name of the current operation.
    bool GetCurrentDataOperation(znString& out); ///< "dataoperation current"

    /// The operations of the current data control. A null name ends the list.
    bool GetDataOperationNames(znString& out); ///< "dataoperation names"
    /// Has the current view operation run the current data operation, too. What is missing is written into
    /// the interpreter result; the error text is empty.
    bool DataOperationConnect(); ///< "view operation connect"
    /// Runs the current operation. Silently false when the host says that it failed.
    bool PerformDataOperation(); ///< "dataoperation perform"
    /// Sets the Tcl script that the current operation runs. Silently false for null, and when refused.
    bool SetDataOperationScript(const char* script); ///< "dataoperation script"

    // ---- Data references ----
    // The links between data sources that a data control keeps. A null name ends a list.

    /// The references of the current data control.
    bool GetDataReferencesNames(znString& out); ///< "datareference names"
    /// Connects a reference of the view's own data control to the current view. A message about the name
    /// follows what the result buffer holds, which is not emptied first.
    bool ConnectDataReference(const znString& name); ///< "view datareference connect"
    /// Disconnects a reference of the current data control from the current view. The message about an
    /// unknown one says "data source", that of a refusal "Cannot create tree".
    bool DisconnectDataReference(const znString& name); ///< "view datareference disconnect"
    /// The references connected to the current view.
    bool GetConnectedDataReferencesNames(znString& out); ///< "view datareference connected"

    // ---- Input fields ----
    // Typed values of the current data control. The application makes the fields; scripts fill them.

    /// Always false: refused while a data control is current, and without one there is nothing to work on.
    bool CreateInputField(const char* name, const char* type); ///< "userinput create"
    bool DeleteInputField();                                   ///< "userinput delete"

    /// Makes a field of the current data control current.
    bool SetCurrentInputField(const char* name); ///< "userinput current"
    /// The name of the current field; `out` stays as it was when none is current. The error state stays, and
    /// is what is returned.
    bool GetCurrentInputField(znString& out); ///< "userinput current"

    /// Always false, as `CreateInputField`.
    bool GetInputFieldNames(znString& out); ///< "userinput names"
    /// The name of the current field's type, as `GetCriteriaDataType` gives it.
    bool GetInputFieldDataType(znString& out); ///< "userinput datatype"
    /// Sets the type of the current field by its word, as `SetViewPropertyType`. Silently false for null.
    bool SetInputFieldDataType(const char* word); ///< "userinput datatype"
    /// The value of the current field: "true" or "false", an integer, a double with six decimals, or a text.
    /// Fields of the other types, unsigned ones included, cannot be read: an error.
    bool GetInputFieldValue(znString& out); ///< "userinput value"
    /// Sets the value of the current field from a text: "true" (all else is false), the number that it begins
    /// with (0 when with none), or the text itself. Arrays are an error. Silently false for null.
    bool SetInputFieldValue(const char* text); ///< "userinput value"
    /// Puts the value of the current field back to its type's zero.
    bool ResetInputFieldValue(); ///< "userinput reset"

    // ---- States ----
    // Saved configurations of windows, kept by the current data control.

    /// Makes a state of the current data control current.
    bool SetCurrentState(const char* name); ///< "state current"
    /// The name of the current state; "" when there is none. Never fails.
    bool GetCurrentState(znString& out); ///< "state current"

    /// The states of the current data control: a trailing list.
    bool GetStateNames(znString& out); ///< "state names"
    /// Save the configuration of the current window into the current state, and bring it back.
    bool SaveCurrentState();    ///< "state save"
    bool RestoreCurrentState(); ///< "state restore"

    /// Add entities to the current state, and take them from it; what an entity is, is the host's.
    bool CurrentStateAddEntities(const std::vector<znString>& entities);    ///< "state entities add"
    bool CurrentStateRemoveEntities(const std::vector<znString>& entities); ///< "state entities remove"

    /// Appends the configuration kept in the current state to `lines`, one line an entry, in eight sections
    /// with a heading each. A section that the state cannot deliver ends it: silently false, and the sections
    /// before it stand in `lines`.
    bool GetConfigData(std::vector<znString>& lines); ///< "state data"

    // ---- The collector ----
    // Picks items of the current view, shows only some of them, and takes each step back. The collection, the
    // display state, the steps and the named collections are the view's; everything else is the collector's.
    // Each needs a host with a collector (`znIBrowserApplication::GetCollector`), which is the first thing
    // that is looked for. The lists here are Tcl lists, whatever the names hold.

    /// The data source whose items are collected, found by its name among those of the current view; null
    /// when none is chosen, and when the view does not have it. The error state stays.
    znIBrowserDataSourceSimple* GetCurrentCollectorDataSourceSimplePtr() const;
    /// Chooses it, among those of `GetCollectorDataSourceSimpleNames`. "none" chooses none, so that items of
    /// every kind are collected, and needs no view. It is kept by name, in the collector helper: a view that
    /// has no data source of that name collects nothing, and says so.
    bool SetCurrentCollectorDataSourceSimple(const char* name);
    /// Its name; "" when none is chosen. One that is deleted through the manager is chosen no more.
    const char* GetCurrentCollectorDataSourceSimple() const;
    /// The same, but "none" when none is chosen.
    bool GetCurrentCollectorDataSourceSimple(znString& out);
    /// The data sources whose items can be collected in the current view.
    bool GetCollectorDataSourceSimpleNames(znString& out);

    /// Collects items of the chosen kind.
    bool ChangeCollectorSelection(ZNBROWSER_COLLECT change, ZNBROWSER_COLLECT_FROM from);
    /// Collects the items of the chosen kind whose value of that view property is one of `values`. For
    /// `ZNBROWSER_COLLECT_TOGGLE` and without values it fails.
    bool ChangeCollectorSelectionByProp(ZNBROWSER_COLLECT change, const char* property,
                                        const std::vector<znString>& values);
    /// Collects nothing any more, whatever the kind.
    bool ClearCollectorSelection();
    /// The data sources that have collected items, each with how many behind its name.
    bool GetCollectorSelectionCount(znString& out);
    /// The value of a view property for each collected item: a quoted list, from which items without a value
    /// are missing. A null `property` stands for the current one.
    bool GetCollectorDataItems(const char* property, znString& out);

    /// Shows and hides items, those collected in particular.
    bool ChangeCollectorDisplay(ZNBROWSER_COLLECTOR_DISPLAY change);

    /// The actions, four of the host's and those of scripts.
    bool GetCollectorOptionNames(znString& out);
    /// Choose an action, which is not performed, and tell which one is chosen.
    bool SetCurrentCollectorOption(const char* name);
    bool GetCurrentCollectorOption(znString& out);
    /// Performs an action in the current view; a null `name` stands for the chosen one.
    bool PerformCollectorOption(const char* name);
    /// Make an action of a Tcl procedure, and delete it again. What the procedure is called with stands at
    /// `znIBrowserCollector::PerformOption`.
    bool CreateCollectorOption(const char* name, const char* procedure);
    bool DeleteCollectorOption(const char* name);

    /// How clicks in windows collect.
    bool SetCollectorClickMode(ZNBROWSER_COLLECTOR_CLICK mode);
    bool GetCollectorClickMode(ZNBROWSER_COLLECTOR_CLICK& mode);
    /// Whether windows scroll to the collected items after an action.
    bool SetCollectorAutofit(bool autofit);
    bool GetCollectorAutofit(bool& autofit);
    /// Whether windows mark the item under the pointer.
    bool SetCollectorPreselector(bool on);
    bool GetCollectorPreselector(bool& on);
    /// The value of a view property for the marked item, as `GetCollectorDataItems` gives it; "" when none is
    /// marked.
    bool GetCollectorPreselectedDataItem(const char* property, znString& out);

    /// Takes back the last step of the current view.
    bool UndoCollectorStep();
    /// Does again the step that was taken back last.
    bool RestoreCollectorStep();
    /// Forgets the steps; what they did stays.
    bool ClearCollectorSteps();
    /// How many steps can be taken back.
    bool GetCollectorStepCount(znString& out);
    /// What they did, the last one last.
    bool GetCollectorStepNames(znString& out);

    /// The named collections of the current view.
    bool GetCollectorPanelCollectionNames(znString& out);
    /// Keeps what is collected under a new name, and makes that current.
    bool CreateCollectorPanelCollection(const char* name);
    /// Collects what a named collection holds, in place of what was collected, and makes it current.
    bool SetCurrentCollectorPanelCollection(const char* name);
    /// The name of the current one; "" when there is none.
    bool GetCurrentCollectorPanelCollection(znString& out);
    /// Deletes one. What is collected stays so.
    bool DeleteCollectorPanelCollection(const char* name);
    /// Adds what is collected to one; a null `name` stands for the current one.
    bool AddToCollectorPanelCollection(const char* name);

    /// Whether the current window has its collector bar.
    bool SetCollectorBarShown(bool shown);
    bool GetCollectorBarShown(bool& shown);
    /// Whether a control stands in that bar, which is shown with it.
    bool SetCollectorControlShown(ZNBROWSER_COLLECTOR_CONTROL control, bool shown);
    bool GetCollectorControlShown(ZNBROWSER_COLLECTOR_CONTROL control, bool& shown);
    /// Whether a control answers to the user.
    bool SetCollectorControlEnabled(ZNBROWSER_COLLECTOR_CONTROL control, bool enabled);
    bool GetCollectorControlEnabled(ZNBROWSER_COLLECTOR_CONTROL control, bool& enabled);

    // ---- Popup menus ----
    // The menus that users get on a right click. With a menu its first item becomes current, or none. A host
    // may have no popup menus: then whatever needs one by name, or all of them, fails and says so.

    /// Creates a menu, which has no items; an empty name and one that exists already are errors.
    bool CreatePopupMenu(const char* name); ///< "view popupmenu create"
    /// Deletes a menu with its items. What showed it shows none.
    bool DeletePopupMenu(const char* name); ///< "view popupmenu delete"
    /// Makes a menu and its first item current.
    bool SetCurrentPopupMenu(const char* name); ///< "view popupmenu current"
    /// Stores the menu; the item stays.
    void SetCurrentPopupMenu(znIBrowserPopupMenu* menu);
    /// The name of the current menu.
    bool GetCurrentPopupMenu(znString& out); ///< "view popupmenu current"
    /// Reads and clears the current menu. The item stays.
    znIBrowserPopupMenu* GetCurrentPopupMenuPtr() const;
    void ResetCurrentPopupMenu();

    /// All menus: a braced list.
    bool GetPopupMenuNames(znString& out); ///< "view popupmenu names"
    /// Set and read the Tcl procedure that is called before the current menu is shown, with the window, the
    /// column and the rows; "" for none. It is not looked for now.
    bool SetPopupMenuPostScript(const char* procedure); ///< "view popupmenu onpost"
    bool GetPopupMenuPostScript(znString& out);         ///< "view popupmenu onpost"

    /// Let the current view, folder or column, or a simple data source of the current data control, show the
    /// current menu in place of any other (true), or none (false). It is an error to disconnect what does not
    /// show the menu.
    bool ConnectPopupMenuToView(bool connect);       ///< "view popupmenu connect view", and disconnect
    bool ConnectPopupMenuToFreeFolder(bool connect); ///< "... folder"
    bool ConnectPopupMenuToColumn(bool connect);     ///< "... column"
    bool ConnectPopupMenuToDataSourceSimple(const char* name, bool connect); ///< "... datasource"

    /// Where the current menu is shown: pairs of a kind ("view", "folder", "column" or "datasource") and a
    /// name, each a braced list in braces, in the order of the kinds. Cascades are not among them.
    bool GetPopupMenuConnections(znString& out); ///< "view popupmenu connected"

    // ---- Popup menu items ----
    // Names are those of items of the current menu; what has no name works on the current item.

    /// Creates an item: at either end of the menu, before the current item (up) or behind it (down). An empty
    /// name and one that exists already are errors.
    bool CreatePopupMenuItem(const char* name, ZNBROWSER_POPUP_PLACE place); ///< "view popupmenuitem create"
    /// Deletes an item.
    bool DeletePopupMenuItem(const char* name); ///< "view popupmenuitem delete"
    /// Makes an item of the current menu current.
    bool SetCurrentPopupMenuItem(const char* name); ///< "view popupmenuitem current"
    /// Stores the item.
    void SetCurrentPopupMenuItem(znIBrowserPopupMenuItem* item);
    /// Makes the first item of that menu current; none for null.
    void UpdateCurrentPopupMenuItem(znIBrowserPopupMenu* menu);
    /// The name of the current item.
    bool GetCurrentPopupMenuItem(znString& out); ///< "view popupmenuitem current"
    /// Reads and clears the current item.
    znIBrowserPopupMenuItem* GetCurrentPopupMenuItemPtr() const;
    void ResetCurrentPopupMenuItem();

    /// The items of the current menu, in the order shown: a braced list.
    bool GetPopupMenuItemNames(znString& out); ///< "view popupmenuitem names"
    /// Moves the item to an end of its menu, or one up or down; one that is there already stays. The current
    /// menu must hold it.
    bool MovePopupMenuItem(ZNBROWSER_POPUP_PLACE place); ///< "view popupmenuitem move", moveup, movedown
    /// Moves the item to a place, counted from 0; one that does not exist is an error.
    bool MovePopupMenuItemTo(int place); ///< "view popupmenuitem moveto"

    /// Set and read what the item's entry says.
    bool SetPopupMenuItemCaption(const char* caption); ///< "view popupmenuitem caption"
    bool GetPopupMenuItemCaption(znString& out);       ///< "view popupmenuitem caption"
    /// Set and read its bubble help; "" for none.
    bool SetPopupMenuItemHelp(const char* help); ///< "view popupmenuitem help"
    bool GetPopupMenuItemHelp(znString& out);    ///< "view popupmenuitem help"
    /// Set and read its description; "" for none.
    bool SetPopupMenuItemDescription(const char* description); ///< "view popupmenuitem description"
    bool GetPopupMenuItemDescription(znString& out);           ///< "view popupmenuitem description"
    /// Set and read the file of its picture; "" for none.
    bool SetPopupMenuItemIcon(const char* file); ///< "view popupmenuitem icon"
    bool GetPopupMenuItemIcon(znString& out);    ///< "view popupmenuitem icon"
    /// Set and read whether it is a line.
    bool SetPopupMenuItemSeparator(bool separator); ///< "view popupmenuitem separator"
    bool GetPopupMenuItemSeparator(znString& out);  ///< "view popupmenuitem separator"
    /// Set and read whether it has a check box. One that has none is not checked.
    bool SetPopupMenuItemCheckable(bool checkable); ///< "view popupmenuitem checkable"
    bool GetPopupMenuItemCheckable(znString& out);  ///< "view popupmenuitem checkable"
    /// Set and read whether its check box is ticked. To tick one that is not checkable is an error.
    bool SetPopupMenuItemChecked(bool checked);  ///< "view popupmenuitem checked"
    bool GetPopupMenuItemChecked(znString& out); ///< "view popupmenuitem checked"
    /// Set and read whether it is switched on, or off: greyed.
    bool SetPopupMenuItemEnabled(bool enabled);   ///< "view popupmenuitem enable"
    bool GetPopupMenuItemEnabled(znString& out);  ///< "view popupmenuitem enable"
    bool SetPopupMenuItemDisabled(bool disabled); ///< "view popupmenuitem disabled"
    bool GetPopupMenuItemDisabled(znString& out); ///< "view popupmenuitem disabled"
    /// Set and read whether it is shown at all.
    bool SetPopupMenuItemVisible(bool visible);  ///< "view popupmenuitem visible"
    bool GetPopupMenuItemVisible(znString& out); ///< "view popupmenuitem visible"
    /// Set and read whether it can be chosen only while exactly one row is selected.
    bool SetPopupMenuItemOnSingleItem(bool single);   ///< "view popupmenuitem onsingleitem"
    bool GetPopupMenuItemOnSingleItem(znString& out); ///< "view popupmenuitem onsingleitem"
    /// Set and read whether it is offered on rows of folders, too.
    bool SetPopupMenuItemShowOnFolder(bool show);     ///< "view popupmenuitem showonfolder"
    bool GetPopupMenuItemShowOnFolder(znString& out); ///< "view popupmenuitem showonfolder"

    /// Set and read the menu that the item opens; null and "" for none. A menu that would come to stand
    /// inside itself, at any depth, is an error, whose text names the way.
    bool SetPopupMenuItemCascade(const char* name); ///< "view popupmenuitem cascade"
    bool GetPopupMenuItemCascade(znString& out);    ///< "view popupmenuitem cascade"
    /// Set and read for which data sources the item stands, one entry each: the simple or the hierarchical
    /// ones of the view, with `all` of the data control. Reads "simple", "simple all", "hierarchical",
    /// "hierarchical all" or "".
    bool SetPopupMenuItemContainer(ZNBROWSER_POPUP_CONTAINER container,
                                   bool all);      ///< "view popupmenuitem container"
    bool GetPopupMenuItemContainer(znString& out); ///< "view popupmenuitem container"
    /// Set and read what choosing the item does, by name: a view operation, a data operation, and a Tcl
    /// procedure that is called with the window, the item, the rows and the value; "" for none. They are
    /// looked for when the item is performed.
    bool SetPopupMenuItemOperation(const char* name);     ///< "view popupmenuitem operation"
    bool GetPopupMenuItemOperation(znString& out);        ///< "view popupmenuitem operation"
    bool SetPopupMenuItemDataOperation(const char* name); ///< "view popupmenuitem dataoperation"
    bool GetPopupMenuItemDataOperation(znString& out);    ///< "view popupmenuitem dataoperation"
    bool SetPopupMenuItemScript(const char* procedure);   ///< "view popupmenuitem script"
    bool GetPopupMenuItemScript(znString& out);           ///< "view popupmenuitem script"
    /// Set and read the Tcl procedure that is called first, in the same way: when it answers false, nothing
    /// is done. "" for none.
    bool SetPopupMenuItemPreOperation(const char* procedure); ///< "view popupmenuitem preoperation"
    bool GetPopupMenuItemPreOperation(znString& out);         ///< "view popupmenuitem preoperation"
    /// Set and read the input fields whose values the user is asked for before the item is performed: a
    /// braced list. They are looked for then.
    bool SetPopupMenuItemUserInput(const std::vector<znString>& fields); ///< "view popupmenuitem userinput"
    bool GetPopupMenuItemUserInput(znString& out);                       ///< "view popupmenuitem userinput"
    /// Performs the item on the selected rows of the current window, as a click on it does, see
    /// `znIBrowserPopupMenuItem::Perform`. `value` is the new check state, the data source of a container, or
    /// what the procedures are to be given; null and "" for none: then a checkable item is turned over. True,
    /// too, when the pre-operation or the user called it off; an error that scripts leave is forgotten.
    bool PerformPopupMenuItem(const char* value); ///< "view popupmenuitem perform"

    // ---- Objects that the host deletes on its own account ----
    // The manager hears of no deletion but those that it asks for. So a host says of each other one, while
    // the object is still whole, that the object is about to go: if it is current, or what is current lies in
    // it, then none of that kind is current any more. With a folder goes the current list, and with a view
    // its folders; with a data control all that it holds. What cannot tell its owner is taken for one that
    // dies. The manager asks the owners of the current objects meanwhile, and runs no script. The error state
    // stays. Null does nothing. Copies of the manager have current objects of their own.

    void AboutToDelete(znIBrowserView* view);
    void AboutToDelete(znIBrowserViewColumn* column);
    void AboutToDelete(znIBrowserStyle* style);
    void AboutToDelete(znIBrowserStyleElement* element);
    void AboutToDelete(znIBrowserViewProperty* property);
    void AboutToDelete(znIBrowserViewOperation* operation);
    void AboutToDelete(znIBrowserViewItemFreeFolder* folder);
    void AboutToDelete(znIBrowserWindowAccess* window);
    void AboutToDelete(znIBrowserWindowPart* part);
    void AboutToDelete(znIBrowserEvent* event);
    void AboutToDelete(znIBrowserWindowCallback* callback);
    void AboutToDelete(znIBrowserFindRequest* request);
    void AboutToDelete(znBrowserProperty* property);
    void AboutToDelete(znBrowserCriterion* criterion);
    void AboutToDelete(znIBrowserGuiMap* map);
    void AboutToDelete(znIBrowserDataCtrl* control);
    void AboutToDelete(znIBrowserDataSourceSimple* source);
    void AboutToDelete(znIBrowserDataSourceHierarchical* source);
    void AboutToDelete(znIBrowserCriteria* criteria);
    void AboutToDelete(znIBrowserDataOperation* operation);
    void AboutToDelete(znIBrowserInputField* field);
    void AboutToDelete(znIBrowserState* state);
    void AboutToDelete(znIBrowserPopupMenu* menu);
    void AboutToDelete(znIBrowserPopupMenuItem* item);

private:
    friend class znBrowserManagerViewTcl;
    friend class znlayer::CurrentAccess;

    /// Gives up this manager's hold on the view helper; the last hold takes the helper with it.
    void LeaveViewHelper();

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
