// The words of the command language: the number behind each word, and the fixed words of results.
#ifndef ZN_BROWSER_TCL_KEYWORDS_H
#define ZN_BROWSER_TCL_KEYWORDS_H

#include "host/znutl/znString.h"
#include "znBrowserExport.h"
#include "znBrowserTypes.h"

#include <string_view>

/// The keyword that a command word stands for. The numbers are part of the interface; numbers left out
/// have no word. `TrueWord`, `FalseWord` and `NoneWord` are named so because X11's headers make macros
/// of the plain names.
enum class ZNBROWSER_TCLAPI_KEYWORD : int {
    Unknown = 0, ///< a null word, or one that is no keyword
    Data,
    View,
    Window,
    App,
    Frame,
    State,
    DataCtrl,
    ByApplication,
    Configure,
    On,
    Off,
    TrueWord,
    FalseWord,
    Recursive,
    Add,
    Remove,
    Clear,
    NoneWord,
    Enabled,
    Disabled,
    Expand,
    Collapse,
    Display,
    Displayed,
    Elem,
    Geom,
    OnTkTreeBrowserColselect,
    All,
    Attribute,
    Callback,
    Children,
    Count,
    Code,
    Config,
    Connect,
    Criteria,
    Criterion,
    Connected,
    Disconnect,
    Editable,
    Exception,
    Container,
    Create,
    Current,
    Delete,
    Update,
    Description,
    Element,
    Empty,
    Event,
    Ids,
    IdNamePair,
    Get,
    Group,
    Help,
    Hide,
    Info,
    List,
    Map,
    Multiple,
    Name,
    Names,
    Namespace,
    NoFilterForm = 64, ///< no word reads as this; the filter commands keep a case for it
    PreOperation = 66,
    Operation,
    Record,
    Parent,
    Perform,
    Checkable,
    Checked,
    Reset,
    Script = 75,
    Selected,
    Selector,
    Selection,
    Set,
    Shared,
    Show,
    ShowOnFolder,
    Single,
    Tree,
    TopLevel,
    Type,
    UserInput,
    Value,
    Visible,
    Move = 91,
    MoveTo,
    MoveUp,
    MoveDown,
    Left,
    Right,
    RightClick,
    Up,
    Down,
    Save,
    Restore,
    Listener,
    SetAttrib,
    AutoFit = 105,
    Entity,
    Toggle,
    AddToPnlCol,
    PnlCollector,
    Select,
    Deselect,
    Collector,
    EntitySelector,
    OptionSelector,
    Preselector,
    AddRemove,
    ShowHide,
    ShowOnly,
    Isolate,
    IsolateOnly,
    PnlColSelector,
    Undo,
    Option,
    DataSource,
    DataItemType,
    DataField,
    DataOperation,
    Simple,
    Hierarchical,
    DataReference,
    DataType,
    Boolean,
    Double,
    Integer,
    Unsigned,
    String,
    Bold,
    Caption = 139,
    FilterCaption = 141,
    Column,
    Filter,
    Folder,
    Italic,
    Style,
    ViewItem,
    ViewOperation,
    Redraw,
    Flush,
    Property,
    PropertyArea,
    Justify,
    Width,
    CreateExpanded,
    ParentChild,
    Any,
    DataItem,
    DataItemList,
    DataItemSimple,
    DataItemHierarchical,
    Find,
    MatchCase,
    MatchWord,
    UseRegExp,
    AutoScrollWhenFound,
    ByImage,
    ByNumber,
    ByProp,
    ByPropVal,
    ByPropVals,
    Request,
    Ascending,
    Descending,
    Sort,
    ByName,
    ById,
    ByColor,
    BySolverId,
    ByGeometryStyle,
    ByMeshStyle,
    KeepChildrenFoldersInOrderAsCreated,
    Menu,
    Item,
    PopupMenu = 186,
    PopupMenuItem,
    Leaf,
    PopupItem,
    Separator,
    DropItem,
    Cascade,
    OnSingleItem = 194,
    OnPost,
    Beginning,
    Checkbox,
    End = 199,
    Icon,
    Button = 202,
    CollapseAll,
    CollapseSelected,
    ExpandAll,
    ExpandSelected,
    Part,
    CreateProc,
    PackProc,
    Post,
    Stripe,
    Background,
    OnTkTreeRequestCollapse,
    OnTkTreeRequestCollapseAll,
    OnTkTreeRequestDeselect,
    OnTkTreeSelectionChangeFinished,
    OnTkTreeRequestSelectionUpdate,
    OnTkTreeRequestExpand,
    OnTkTreeRequestExpandAll,
    OnTkTreeRequestSelect,
    OnTkTreeSetStatePos,
    OnTkTreeCheckBoxClick,
    OnTkTreeWindowButtonClick,
    OnTkTreeLeftHandClick = 225,
    OnTkTreeRightHandClick,
    OnTkTreePopupMenu,
    OnTkTreePerformPopupOperation = 229,
    OnTkTreeSetDropItem,
    OnTkColListItemSelected = 232,
    OnTkColOptionItemSelected,
    OnTkColPreselButtonClicked,
    Pending = 237,
    Apply,
};

/// Turns command words into keywords, and the words for criterion and find request types into their
/// enumerations and back. All lookups are pure and allocate nothing, but for the texts they return.
class ZN_API znBrowserTclKeywords {
public:
    /// In debug mode the words meant for developers (most abbreviations, and a few full words such as
    /// "app" and "connect") are accepted too. The running system always uses debug mode.
    constexpr explicit znBrowserTclKeywords(bool debugMode) : debugMode_(debugMode) {}

    /// Read and change that mode.
    bool GetDebugMode() const { return debugMode_; }
    void SetDebugMode(bool debugMode) { debugMode_ = debugMode; }

    /// The keyword of a word, in any mixture of ASCII letter case, whatever the locale; `Unknown` for a
    /// null word and for a word that is none. Where a word has two meanings the older one holds.
    ZNBROWSER_TCLAPI_KEYWORD GetZnBrowserTclApiEnum(const char* word) const;
    /// The same for a word whose length is known.
    ZNBROWSER_TCLAPI_KEYWORD GetZnBrowserTclApiEnum(std::string_view word) const;

    /// The plain full spelling of a keyword ("create" and not "cr"), for help and completion; null for
    /// a keyword without spelling and for a number out of range. The text is static.
    static const char* GetSpelling(ZNBROWSER_TCLAPI_KEYWORD keyword);

    /// "morethan", "lessthan" or "equalto", in exactly these letters; anything else is unknown.
    ZNBROWSER_CRITERION_TYPE GetCriterionTypeEnum(const znString& word) const;
    /// The word for a criterion type, "unknown" for any other value.
    znString GetCriterionTypeString(ZNBROWSER_CRITERION_TYPE type) const;

    /// "all", "next" or "previous", in exactly these letters; anything else is unknown.
    ZNBROWSER_FIND_REQUEST_TYPE GetFindRequestTypeEnum(const znString& word) const;
    /// The word for a find request type, "unknown" for any other value.
    znString GetFindRequestTypeString(ZNBROWSER_FIND_REQUEST_TYPE type) const;

    /// Fixed words that results print.
    static constexpr const char* KEYWORD_UNKNOWN = "unknown";
    static constexpr const char* KEYWORD_UNSORTED = "unsorted";
    static constexpr const char* KEYWORD_ALL = "all";
    static constexpr const char* KEYWORD_NEXT = "next";
    static constexpr const char* KEYWORD_PREVIOUS = "previous";
    static constexpr const char* KEYWORD_ASCENDING = "ascending";
    static constexpr const char* KEYWORD_DESCENDING = "descending";
    static constexpr const char* KEYWORD_ENABLED = "enabled";
    static constexpr const char* KEYWORD_DISABLED = "disabled";
    static constexpr const char* KEYWORD_EXPAND = "expand";
    static constexpr const char* KEYWORD_COLLAPSE = "collapse";
    static constexpr const char* KEYWORD_CALLBACK = "callback";
    static constexpr const char* KEYWORD_NONE = "none";
    static constexpr const char* KEYWORD_ON = "on";
    static constexpr const char* KEYWORD_OFF = "off";
    static constexpr const char* KEYWORD_TRUE = "true";
    static constexpr const char* KEYWORD_FALSE = "false";
    static constexpr const char* KEYWORD_BOOLEAN = "boolean";
    static constexpr const char* KEYWORD_INTEGER = "integer";
    static constexpr const char* KEYWORD_UNSIGNED = "unsigned";
    static constexpr const char* KEYWORD_DOUBLE = "double";
    static constexpr const char* KEYWORD_STRING = "string";
    static constexpr const char* KEYWORD_RECURSIVE = "recursive";
    static constexpr const char* KEYWORD_AUTOFIT = "autofit";
    static constexpr const char* KEYWORD_AUTOCOLORVISMODE = "autocolorvismode";
    static constexpr const char* KEYWORD_AUTOSCROLLWHENFOUND = "autoscrollwhenfound";
    static constexpr const char* KEYWORD_STRIPE =
        "stripedisplay"; ///< printed; the command word itself is "stripe"
    static constexpr const char* KEYWORD_DATA = "data";
    static constexpr const char* KEYWORD_VIEW = "view";
    static constexpr const char* KEYWORD_WINDOW = "window";
    static constexpr const char* KEYWORD_FRAME = "frame";
    static constexpr const char* KEYWORD_STATE = "state";
    static constexpr const char* KEYWORD_DATACTRL = "datactrl";
    static constexpr const char* KEYWORD_SAVE = "save";
    static constexpr const char* KEYWORD_RESTORE = "restore";
    static constexpr const char* KEYWORD_POST = "post";
    static constexpr const char* KEYWORD_EVENT = "event";
    static constexpr const char* KEYWORD_CAPTION = "caption";
    static constexpr const char* KEYWORD_BUBBLEHELP = "bubblehelp";
    static constexpr const char* KEYWORD_FILTERCAPTION = "filtercaption";
    static constexpr const char* KEYWORD_SCOPE = "scope";
    static constexpr const char* KEYWORD_DONE = "Done"; ///< capitalised, as results show it
    static constexpr const char* KEYWORD_CRITERION = "criterion";
    static constexpr const char* KEYWORD_LESS_THAN = "lessthan";
    static constexpr const char* KEYWORD_MORE_THAN = "morethan";
    static constexpr const char* KEYWORD_EQUAL_TO = "equalto";
    static constexpr const char* KEYWORD_LISTENER = "listener";
    static constexpr const char* KEYWORD_EXCEPTION = "exception";
    static constexpr const char* KEYWORD_CREATEEXPANDED = "createexpanded";
    static constexpr const char* KEYWORD_CONFIG = "config";
    static constexpr const char* KEYWORD_PARENTCHILD = "parentchild";
    static constexpr const char* KEYWORD_TOPLEVEL = "toplevel";
    static constexpr const char* KEYWORD_DATAREFERENCE = "datareference";
    static constexpr const char* KEYWORD_PENDING = "pending";
    static constexpr const char* KEYWORD_APPLY = "apply";

private:
    bool debugMode_;
};

#endif
