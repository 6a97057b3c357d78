#include "tk/tk_words.h"

#include "app/application.h"
#include "app/popup_app_commands.h"
#include "app/row_app_commands.h"
#include "base/tcl_values.h"
#include "base/text.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "model/popup_menu.h"
#include "model/view.h"
#include "tk/tk_collector.h"
#include "tk/tk_windows.h"
#include "window/browser_windows.h"
#include "window/collector.h"
#include "window/window.h"

#include <tcl.h>

#include <algorithm>
#include <unordered_map>

namespace znhost {

namespace {

// ---- Values for Tcl ----

Tcl_Obj* ListOf(std::initializer_list<Tcl_Obj*> objects) {
    return Tcl_NewListObj(static_cast<int>(objects.size()), objects.begin());
}

void Append(Tcl_Obj* list, Tcl_Obj* object) { Tcl_ListObjAppendElement(nullptr, list, object); }

Tcl_Obj* NewIndices(const std::vector<std::uint32_t>& indices) {
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const std::uint32_t index : indices) Append(list, Tcl_NewWideIntObj(index));
    return list;
}

const char* KindName(CellElement::Kind kind) {
    switch (kind) {
    case CellElement::Icon: return "icon";
    case CellElement::DisabledIcon: return "disabled";
    case CellElement::CheckBox: return "check";
    case CellElement::Button: return "button";
    case CellElement::Null: return "null";
    case CellElement::Text: break;
    }
    return "text";
}

const char* KindName(RowChange::Kind kind) {
    switch (kind) {
    case RowChange::Filled: return "filled";
    case RowChange::Refreshed: return "refreshed";
    case RowChange::AllFilled: return "allFilled";
    case RowChange::AllCells: return "allCells";
    case RowChange::Selection: return "selection";
    case RowChange::Collector: return "collector";
    case RowChange::Shown: break;
    }
    return "shown";
}

const char* JustifyName(Justify justify) {
    return justify == Justify::Right ? "right" : justify == Justify::Center ? "center" : "left";
}

// ---- Rows and columns ----

using ColumnNumbers = std::unordered_map<const Column*, int>;

ColumnNumbers NumberColumns(const Window& window) {
    ColumnNumbers numbers;
    if (!window.ShownView()) return numbers;
    for (const auto& column : window.ShownView()->Columns())
        numbers.emplace(column.get(), static_cast<int>(numbers.size()));
    return numbers;
}

Tcl_Obj* NewCell(const RowCell& cell, int column) {
    Tcl_Obj* const list = ListOf({Tcl_NewIntObj(column)});
    for (const CellElement& element : cell.elements) {
        Append(list, ListOf({NewText(KindName(element.kind)), NewText(element.text), NewText(element.colour),
                             NewText(element.name)}));
    }
    return list;
}

Tcl_Obj* NewRow(const RowLook& look, const ColumnNumbers& columns) {
    Tcl_Obj* const cells = Tcl_NewListObj(0, nullptr);
    for (const RowCell& cell : look.cells) {
        const auto column = columns.find(cell.column);
        if (column != columns.end()) Append(cells, NewCell(cell, column->second));
    }
    return ListOf({Tcl_NewWideIntObj(look.index), Tcl_NewWideIntObj(look.parent),
                   Tcl_NewWideIntObj(look.depth), NewText(KindName(look.kind)), NewText(look.text),
                   Tcl_NewBooleanObj(look.expanded), Tcl_NewBooleanObj(look.selected),
                   Tcl_NewBooleanObj(look.hasRows), Tcl_NewBooleanObj(look.bold),
                   Tcl_NewBooleanObj(look.italic), NewText(look.icon), cells,
                   Tcl_NewBooleanObj(look.collected), NewText(look.source)});
}

Tcl_Obj* NewColumn(const View& view, const Column& column) {
    Tcl_Obj* const dictionary = Tcl_NewDictObj();
    const bool sorts = view.SortColumn() == &column;
    Put(dictionary, "name", NewText(column.Name()));
    Put(dictionary, "caption", NewText(column.Caption()));
    Put(dictionary, "width", Tcl_NewIntObj(column.Width()));
    Put(dictionary, "justify", NewText(JustifyName(column.Justification())));
    Put(dictionary, "shown", Tcl_NewBooleanObj(column.IsShown()));
    Put(dictionary, "italic", Tcl_NewBooleanObj(column.IsItalic()));
    Put(dictionary, "tree", Tcl_NewBooleanObj(column.Kind() == ColumnKind::BuiltIn));
    Put(dictionary, "sorts", Tcl_NewBooleanObj(column.MaySort()));
    Put(dictionary, "filter", column.Filter().IsSet() ? NewList(WordsOf(column.Filter())) : Tcl_NewObj());
    Put(dictionary, "natural", Tcl_NewBooleanObj(column.SortsNaturally()));
    Put(dictionary, "order", NewText(!sorts ? "" : view.SortsAscending() ? "ascending" : "descending"));
    Put(dictionary, "menu", NewText(column.Popup() ? column.Popup()->Name() : std::string()));
    return dictionary;
}

void PutView(Tcl_Obj* dictionary, const View& view) {
    Tcl_Obj* const columns = Tcl_NewListObj(0, nullptr);
    for (const auto& column : view.Columns()) Append(columns, NewColumn(view, *column));
    Tcl_Obj* const operations = Tcl_NewListObj(0, nullptr);
    for (const auto& operation : view.Operations()) Append(operations, NewText(operation->Name()));
    Put(dictionary, "view", NewText(view.Name()));
    Put(dictionary, "control", NewText(NameOf(view.Log(), view.DataControl())));
    Put(dictionary, "columns", columns);
    Put(dictionary, "operations", operations);
    Put(dictionary, "filter", NewText(view.Filter().pattern));
    Put(dictionary, "matchcase", Tcl_NewBooleanObj(view.Filter().matchCase));
    Put(dictionary, "matchword", Tcl_NewBooleanObj(view.Filter().matchWord));
    Put(dictionary, "allcolumns", Tcl_NewBooleanObj(view.Filter().allColumns));
    Put(dictionary, "filtered", Tcl_NewBooleanObj(view.IsFiltered()));
}

// ---- The words ----

/// A question about a window.
struct Question {
    Window& window;
    std::vector<Tcl_WideInt> numbers;
    std::string text;
};

Tcl_Obj* Position(const Question& question) {
    const Tcl_WideInt index = question.numbers[0];
    return Tcl_NewWideIntObj(question.window.Rows().PositionOf(static_cast<std::uint32_t>(index)));
}

Tcl_Obj* Indices(const Question& question) {
    return NewIndices(question.window.Rows().IndicesFrom(question.numbers[0], question.numbers[1]));
}

Tcl_Obj* Selected(const Question& question) { return NewIndices(question.window.Rows().SelectedRows()); }

Tcl_Obj* Page(const Question& question) {
    const RowModel::Answering answering(question.window.Rows());
    Tcl_Obj* const rows = Tcl_NewListObj(0, nullptr);
    const std::vector<RowLook> looks = question.window.Rows().Read(question.numbers[0], question.numbers[1]);
    const ColumnNumbers columns = NumberColumns(question.window);
    for (const RowLook& look : looks) Append(rows, NewRow(look, columns));
    return rows;
}

Tcl_Obj* Look(const Question& question) {
    Window& window = question.window;
    const RowModel::Answering answering(window.Rows());
    Tcl_Obj* const dictionary = Tcl_NewDictObj();
    Put(dictionary, "rows", Tcl_NewWideIntObj(window.Rows().Count()));
    Put(dictionary, "selected", Tcl_NewWideIntObj(window.Rows().CountSelected()));
    Put(dictionary, "stripes", Tcl_NewBooleanObj(window.HasStripes()));
    Put(dictionary, "background", NewText(window.Background()));
    Put(dictionary, "single", Tcl_NewBooleanObj(window.Rows().IsSingle()));
    Put(dictionary, "scroll", Tcl_NewIntObj(window.ScrollPosition()));
    Put(dictionary, "details", Tcl_NewBooleanObj(window.IsOpen(Window::Aid::Details)));
    Put(dictionary, "chooser", Tcl_NewBooleanObj(window.IsOpen(Window::Aid::Chooser)));
    Put(dictionary, "uncounted", Tcl_NewBooleanObj(window.Rows().IsUncounted()));
    if (window.ShownView()) PutView(dictionary, *window.ShownView());
    return dictionary;
}

/// So long a key has to wait for an answer at most, drawing aside.
constexpr auto slice = std::chrono::milliseconds(12);

/// Looks for a beginning of a text, for a moment: the position, and where to go on; -1 for none.
Tcl_Obj* FindBeginning(const Question& question) {
    const auto found = question.window.Rows().FindBeginning(question.text, question.numbers[0], slice);
    return ListOf({Tcl_NewWideIntObj(found.position), Tcl_NewWideIntObj(found.next)});
}

/// Begins to look for what the view's filter would leave with that text.
Tcl_Obj* BeginSearch(const Question& question) {
    if (const View* const view = question.window.ShownView()) {
        TextFilter filter = view->Filter();
        filter.pattern = question.text;
        question.window.Rows().BeginSearch(filter);
    }
    return Tcl_NewObj();
}

/// Goes on with it for a moment: whether that was all, how many rows were looked at, and how many are found.
Tcl_Obj* GoOnSearching(const Question& question) {
    const SearchProgress progress = question.window.Rows().GoOnSearching(slice);
    return ListOf({Tcl_NewBooleanObj(progress.done), Tcl_NewWideIntObj(progress.looked),
                   Tcl_NewWideIntObj(progress.found)});
}

Tcl_Obj* Matches(const Question& question) {
    return Tcl_NewWideIntObj(question.window.Rows().CountMatches());
}

Tcl_Obj* FirstSelected(const Question& question) {
    return Tcl_NewWideIntObj(question.window.Rows().FirstSelected());
}

Tcl_Obj* PathOf(const Question& question) {
    return NewList(question.window.Rows().PathOf(static_cast<std::uint32_t>(question.numbers[0])));
}

Tcl_Obj* AboutCollector(const Question& question) { return NewCollectorBar(question.window); }

/// The item under the pointer; no row has the index 0.
Tcl_Obj* Preselect(const Question& question) {
    Window& window = question.window;
    znBrowserDataItem item;
    window.Rows().GetItem(static_cast<std::uint32_t>(question.numbers[0]), item);
    if (window.ShownView()) window.Owner().VirtualCollector().Preselect(*window.ShownView(), item);
    return Tcl_NewObj();
}

/// Goes on counting what took too long: whether there is more of it.
Tcl_Obj* Count(const Question& question) {
    question.window.Rows().CountMore();
    return Tcl_NewBooleanObj(question.window.Rows().IsUncounted());
}

/// The entries of the popup menu that is open.
Tcl_Obj* Popup(const Question& question) { return NewPopupEntries(question.window.Popup().Entries()); }

/// A right click beside all rows.
Tcl_Obj* ClickAside(const Question& question) {
    question.window.Popup().SetClick({});
    return Tcl_NewObj();
}

/// The item that a row stands for: the name of its data source, and its number there. Empty for other rows.
Tcl_Obj* Item(const Question& question) {
    RowModel& rows = question.window.Rows();
    const RowModel::Answering answering(rows);
    znBrowserDataItem item;
    const auto index = static_cast<std::uint32_t>(question.numbers[0]);
    if (!rows.Has(index) || !rows.GetItem(index, item)) return Tcl_NewObj();
    return ListOf({NewText(item.source->GetName()), Tcl_NewWideIntObj(item.row)});
}

/// Why a text is no value of a type.
Tcl_Obj* Refusal(const Question& question) {
    return NewText(WhyNoValue(static_cast<ZNBROWSER_DATA_TYPE>(question.numbers[0]), question.text));
}

Tcl_Obj* Trouble(const Question& question) { return NewText(question.window.Rows().TakeTrouble()); }

struct TkWord {
    const char* word;
    const char* arguments;
    std::size_t numbers; ///< how many arguments behind the window are whole numbers
    bool text;           ///< whether a text follows them
    Tcl_Obj* (*answer)(const Question& question);
};

constexpr TkWord tkWords[] = {
    {"aside", "NUMBER", 0, false, ClickAside},
    {"collector", "NUMBER", 0, false, AboutCollector},
    {"count", "NUMBER", 0, false, Count},
    {"find", "NUMBER FIRST TEXT", 1, true, FindBeginning},
    {"firstselected", "NUMBER", 0, false, FirstSelected},
    {"indices", "NUMBER FIRST COUNT", 2, false, Indices},
    {"item", "NUMBER INDEX", 1, false, Item},
    {"look", "NUMBER", 0, false, Look},
    {"matches", "NUMBER", 0, false, Matches},
    {"page", "NUMBER FIRST COUNT", 2, false, Page},
    {"path", "NUMBER INDEX", 1, false, PathOf},
    {"popup", "NUMBER", 0, false, Popup},
    {"position", "NUMBER INDEX", 1, false, Position},
    {"preselect", "NUMBER INDEX", 1, false, Preselect},
    {"refusal", "NUMBER TYPE TEXT", 1, true, Refusal},
    {"search", "NUMBER TEXT", 0, true, BeginSearch},
    {"searchmore", "NUMBER", 0, false, GoOnSearching},
    {"selected", "NUMBER", 0, false, Selected},
    {"trouble", "NUMBER", 0, false, Trouble},
};

int Fail(Tcl_Interp* interp, const std::string& message) {
    Tcl_SetObjResult(interp, NewText(message));
    return TCL_ERROR;
}

// ---- Words that need no window to be there

Tcl_Obj* LastError(TkWindows& windows, int) {
    CallLog& log = windows.App().Log();
    Tcl_Obj* const text = NewText(log.Error());
    log.SetError("");
    return text;
}

Tcl_Obj* Begin(TkWindows& windows, int window) {
    windows.Work().Begin(window, TkWork::Panel::Shown);
    return Tcl_NewObj();
}

/// As `begin`, for what somebody started by typing, and goes on typing.
Tcl_Obj* BeginQuietly(TkWindows& windows, int window) {
    windows.Work().Begin(window, TkWork::Panel::None);
    return Tcl_NewObj();
}

/// As `begin`, for what nobody waits for.
Tcl_Obj* BeginMeanwhile(TkWindows& windows, int window) {
    windows.Work().Begin(window, TkWork::Panel::Yields);
    return Tcl_NewObj();
}

Tcl_Obj* End(TkWindows& windows, int) { return Tcl_NewBooleanObj(windows.Work().End()); }

Tcl_Obj* SetTime(TkWindows& windows, int milliseconds) {
    windows.Work().SetTime(milliseconds);
    return Tcl_NewObj();
}

Tcl_Obj* Cancel(TkWindows& windows, int) {
    windows.Work().Cancel();
    return Tcl_NewObj();
}

Tcl_Obj* IsBusy(TkWindows& windows, int) { return Tcl_NewBooleanObj(windows.Work().IsServing()); }

Tcl_Obj* IsRecording(TkWindows& windows, int) { return Tcl_NewBooleanObj(windows.App().Recording().IsOn()); }

Tcl_Obj* Changes(TkWindows& windows, int window) {
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const auto& [kind, index] : windows.TakeChanges(static_cast<unsigned>(window))) {
        Append(list, NewText(KindName(kind)));
        Append(list, Tcl_NewWideIntObj(index));
    }
    return list;
}

struct PlainWord {
    const char* word;
    Tcl_Obj* (*answer)(TkWindows& windows, int number);
};

constexpr PlainWord plainWords[] = {
    {"begin", Begin},
    {"busy", IsBusy},
    {"cancel", Cancel},
    {"changes", Changes},
    {"end", End},
    {"error", LastError},
    {"meanwhile", BeginMeanwhile},
    {"quietly", BeginQuietly},
    {"recording", IsRecording},
    {"time", SetTime},
};

template <class Word, std::size_t count>
const Word* FindWord(const Word (&words)[count], std::string_view word) {
    const auto found = std::find_if(std::begin(words), std::end(words),
                                    [word](const Word& row) { return word == row.word; });
    return found == std::end(words) ? nullptr : found;
}

/// The arguments behind the word and the window. False, and the error stands in the interpreter, when they
/// do not fit.
bool ReadArguments(Tcl_Interp* interp, const TkWord& word, int objc, Tcl_Obj* const objv[],
                   Question& question) {
    const std::size_t count = word.numbers + (word.text ? 1 : 0);
    if (static_cast<std::size_t>(objc) != 3 + count) {
        Tcl_WrongNumArgs(interp, 2, objv, word.arguments);
        return false;
    }
    for (std::size_t i = 0; i < word.numbers; ++i) {
        Tcl_WideInt number = 0;
        if (Tcl_GetWideIntFromObj(interp, objv[3 + i], &number) != TCL_OK) return false;
        question.numbers.push_back(number);
    }
    if (word.text) question.text = Tcl_GetString(objv[objc - 1]);
    return true;
}

/// "record LINE ?PASSING?": what its user did in a window; a line after it that begins so replaces it.
int Record(TkWindows& open, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    std::string error;
    if (objc != 3 && objc != 4) {
        Tcl_WrongNumArgs(interp, 2, objv, "LINE ?PASSING?");
        return TCL_ERROR;
    }
    if (!open.App().Recording().Add(Tcl_GetString(objv[2]), objc == 4 ? Tcl_GetString(objv[3]) : "", error))
        return Fail(interp, error);
    return TCL_OK;
}

int Answer(TkWindows& open, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    int number = 0;
    if (objc < 2) {
        Tcl_WrongNumArgs(interp, 1, objv, "WORD ?NUMBER ...?");
        return TCL_ERROR;
    }
    const std::string_view word = Tcl_GetString(objv[1]);
    if (word == "record") return Record(open, interp, objc, objv);
    if (objc > 2 && Tcl_GetIntFromObj(interp, objv[2], &number) != TCL_OK) return TCL_ERROR;
    if (const PlainWord* const plain = FindWord(plainWords, word)) {
        Tcl_SetObjResult(interp, plain->answer(open, number));
        return TCL_OK;
    }
    const TkWord* const known = FindWord(tkWords, word);
    if (!known) return Fail(interp, "unknown word \"" + std::string(word) + "\"");
    if (open.Work().IsServing()) return Fail(interp, "the browser is busy");
    const std::shared_ptr<Window> window = open.Find(static_cast<unsigned>(number));
    if (!window) return Fail(interp, "there is no open window " + std::to_string(number));
    Question question{*window, {}, {}};
    if (!ReadArguments(interp, *known, objc, objv, question)) return TCL_ERROR;
    Tcl_SetObjResult(interp, known->answer(question));
    return TCL_OK;
}

} // namespace

int AnswerTkWord(void* windows, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    try {
        TkWindows& shown = *static_cast<TkWindows*>(windows);
        const HostServices::OneLook look(shown.App());
        return Answer(shown, interp, objc, objv);
    } catch (const std::exception& failure) { // memory ran out: Tcl knows no exceptions
        Tcl_SetObjResult(interp, Tcl_NewStringObj(failure.what(), -1));
        return TCL_ERROR;
    }
}

} // namespace znhost
