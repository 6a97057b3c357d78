#include "app/find_app_commands.h"

#include "app/app_commands.h"
#include "app/row_app_commands.h"
#include "base/tcl_values.h"
#include "model/view.h"
#include "window/window.h"

#include <optional>
#include <tcl.h>

namespace znhost {

namespace {

View* ViewOf(const AppCall& call) {
    View* const view = call.App().Model().Views().Find(call.Text(0));
    if (!view) call.Fail("there is no view \"" + call.Text(0) + "\"", "VIEW", call.Text(0));
    return view;
}

Column* ColumnOf(const AppCall& call) {
    View* const view = ViewOf(call);
    Column* const column = view ? view->Columns().Find(call.Text(1)) : nullptr;
    if (view && !column)
        call.Fail("the view \"" + view->Name() + "\" has no column \"" + call.Text(1) + "\"", "COLUMN",
                  call.Text(1));
    return column;
}

} // namespace

// ---- Filters ----

int AppFilterScope(AppCall& call) {
    View* const view = ViewOf(call);
    if (!view) return TCL_ERROR;
    const std::string scope = call.Text(1);
    if (call.Count() > 1 && scope != "name" && scope != "shown")
        return call.Fail("bad scope \"" + scope + "\": must be name or shown", "SCOPE", scope);
    if (call.Count() > 1) view->SetFilterAllColumns(scope == "shown");
    return call.Answer(view->Filter().allColumns ? "shown" : "name");
}

int AppFilterColumn(AppCall& call) {
    Column* const column = ColumnOf(call);
    if (!column) return TCL_ERROR;
    if (call.Count() == 2) return call.Answer(WordsOf(column->Filter()));
    std::vector<std::string> words;
    for (std::size_t i = 2; i < call.Count(); ++i) words.push_back(call.Text(i));
    ColumnFilter filter;
    if (!ReadColumnFilter(words, filter)) {
        return call.Fail("bad filter \"" + ListText(words) +
                             "\": must be none, null, contains TEXT, equals VALUE or between LOW HIGH",
                         "FILTER", words[0]);
    }
    column->SetFilter(filter);
    return call.Answer(WordsOf(filter));
}

int AppSortNatural(AppCall& call) {
    Column* const column = ColumnOf(call);
    int naturally = 0;
    if (!column) return TCL_ERROR;
    if (call.Count() > 2) {
        if (Tcl_GetBooleanFromObj(nullptr, call.Word(2), &naturally) != TCL_OK)
            return call.Fail("bad boolean \"" + call.Text(2) + "\": must be true or false", "BOOLEAN",
                             call.Text(2));
        column->SetSortsNaturally(naturally != 0);
    }
    return call.Answer(column->SortsNaturally() ? "true" : "false");
}

// ---- Rows by names ----

namespace {

/// The names of a path. None, and the error stands in the interpreter, when the word is no list.
std::optional<std::vector<std::string>> PathIn(const AppCall& call, std::size_t position) {
    int count = 0;
    Tcl_Obj** steps = nullptr;
    if (Tcl_ListObjGetElements(call.App().Interp(), call.Word(position), &count, &steps) != TCL_OK)
        return std::nullopt;
    std::vector<std::string> path;
    path.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) path.emplace_back(Tcl_GetString(steps[i]));
    return path;
}

/// @param wrong  the place of the step that leads nowhere
void FailAt(const AppCall& call, const std::vector<std::string>& path, std::size_t wrong) {
    if (path.empty()) {
        call.Fail("the path of the row is empty: must be the names on the way to it", "ROW");
        return;
    }
    const std::string above =
        wrong == 0 ? "at the top" : "below \"" + path[wrong - 1] + "\", which must be expanded";
    call.Fail("the window \"" + call.Text(0) + "\" shows no row \"" + path[wrong] + "\" " + above, "ROW",
              path[wrong]);
}

/// The index of the row at the end of a path. None, and the error stands in the interpreter, when there is no
/// such row.
std::optional<std::uint32_t> RowAt(const AppCall& call, RowModel& rows, std::size_t position) {
    const auto path = PathIn(call, position);
    if (!path) return std::nullopt;
    std::size_t wrong = 0;
    if (const std::uint32_t index = rows.FindPath(*path, wrong)) return index;
    FailAt(call, *path, wrong);
    return std::nullopt;
}

/// The same; of a row that is gone the last on the way to it that is there.
std::optional<std::uint32_t> RowTowards(const AppCall& call, RowModel& rows, std::size_t position) {
    auto path = PathIn(call, position);
    if (!path) return std::nullopt;
    std::size_t wrong = 0;
    std::uint32_t index = rows.FindPath(*path, wrong);
    if (!index && wrong > 0) {
        path->resize(wrong);
        index = rows.FindPath(*path, wrong);
    }
    if (index) return index;
    FailAt(call, *path, wrong);
    return std::nullopt;
}

} // namespace

int AppRow(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    if (!window) return TCL_ERROR;
    RowModel& rows = window->Rows();
    const RowModel::Answering answering(rows);
    const auto first = RowAt(call, rows, 1);
    if (!first) return TCL_ERROR;
    if (call.Count() == 2) return call.Answer(Tcl_NewWideIntObj(*first));
    const auto last = RowAt(call, rows, 2);
    if (!last) return TCL_ERROR;
    const std::int64_t from = rows.PositionOf(*first);
    const std::int64_t to = rows.PositionOf(*last);
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const std::uint32_t index : rows.IndicesFrom(from, to - from + 1))
        Tcl_ListObjAppendElement(nullptr, list, Tcl_NewWideIntObj(index));
    return call.Answer(list);
}

int AppPath(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    std::size_t index = 0;
    if (!window || !call.Number(1, "INDEX", index)) return TCL_ERROR;
    const std::vector<std::string> path = window->Rows().PathOf(static_cast<std::uint32_t>(index));
    if (!path.empty()) return call.Answer(path);
    return call.Fail("the window \"" + call.Text(0) + "\" shows no row with the index " + call.Text(1), "ROW",
                     call.Text(1));
}

int AppScroll(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    if (!window) return TCL_ERROR;
    RowModel& rows = window->Rows();
    const RowModel::Answering answering(rows);
    if (call.Count() > 1) {
        const auto index = RowTowards(call, rows, 1);
        if (!index) return TCL_ERROR;
        window->ScrollTo(static_cast<int>(rows.PositionOf(*index)));
        rows.Tell(RowChange::Refreshed);
    }
    const std::vector<std::uint32_t> first = rows.IndicesFrom(window->ScrollPosition(), 1);
    return call.Answer(first.empty() ? std::vector<std::string>() : rows.PathOf(first[0]));
}

int AppPrune(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    if (!window) return TCL_ERROR;
    window->Rows().CollapseButSelected();
    return call.Answer("");
}

int AppSelectAll(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    if (!window) return TCL_ERROR;
    return call.Answer(window->Rows().SelectAll() ? "true" : "false");
}

// ---- Recording ----

int AppRecord(AppCall& call) { return call.Answer(call.App().Recording().Lines()); }

int AppRecordOn(AppCall& call) {
    std::string error;
    if (!call.App().Recording().Begin(call.Text(0), error)) return call.Fail(error, "FILE", call.Text(0));
    return call.Answer("");
}

int AppRecordOff(AppCall& call) {
    call.App().Recording().End();
    return call.Answer("");
}

} // namespace znhost
