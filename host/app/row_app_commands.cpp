#include "app/row_app_commands.h"

#include "app/app_commands.h"
#include "base/tcl_values.h"
#include "window/row_drawing.h"
#include "window/window_list.h"

#include <limits>
#include <tcl.h>

namespace znhost {

const char* KindName(RowKind kind) {
    switch (kind) {
    case RowKind::Folder: return "folder";
    case RowKind::Tree: return "tree";
    case RowKind::List: return "list";
    case RowKind::Item: break;
    }
    return "item";
}

std::shared_ptr<Window> WindowOf(AppCall& call) {
    Window* const window = call.App().Model().Windows().All().Find(call.Text(0));
    if (window) return window->shared_from_this();
    call.Fail("there is no window \"" + call.Text(0) + "\"", "WINDOW", call.Text(0));
    return nullptr;
}

namespace {

/// Of the texts of all rows asked for at once: Tcl ends the process above 2 GiB, and writing a list of such
/// texts may double them for each level of the list.
constexpr std::size_t mostBytes = std::size_t{1} << 27;

/// @param bytes grows by the bytes of the row's texts
Tcl_Obj* NewRow(const RowLook& look, std::size_t& bytes) {
    Tcl_Obj* const cells = Tcl_NewDictObj();
    bytes += look.text.size();
    for (const RowCell& cell : look.cells) {
        const std::string text = cell.Text();
        bytes += text.size();
        Tcl_DictObjPut(nullptr, cells, NewText(cell.column->Name()), NewText(text));
    }
    Tcl_Obj* const row = Tcl_NewDictObj();
    Put(row, "index", Tcl_NewWideIntObj(look.index));
    Put(row, "parent", Tcl_NewWideIntObj(look.parent));
    Put(row, "depth", Tcl_NewWideIntObj(look.depth));
    Put(row, "kind", NewText(KindName(look.kind)));
    Put(row, "source", NewText(look.source));
    Put(row, "text", NewText(look.text));
    Put(row, "cells", cells);
    Put(row, "expanded", Tcl_NewBooleanObj(look.expanded));
    Put(row, "selected", Tcl_NewBooleanObj(look.selected));
    Put(row, "collected", Tcl_NewBooleanObj(look.collected));
    Put(row, "children", Tcl_NewWideIntObj(look.below));
    return row;
}

/// Appends the rows from `first` on to the list, as long as they are not too large.
void AddRows(RowModel& rows, std::int64_t first, std::int64_t count, Tcl_Obj* list, std::size_t& bytes) {
    const RowModel::Answering answering(rows);
    constexpr std::int64_t atOnce = 1000;
    for (; count > 0; first += atOnce, count -= atOnce) {
        const std::vector<RowLook> looks = rows.Read(first, std::min(count, atOnce), true);
        if (looks.empty()) return;
        for (const RowLook& look : looks) {
            Tcl_ListObjAppendElement(nullptr, list, NewRow(look, bytes));
            if (bytes > mostBytes) return;
        }
    }
}

/// Whether the look met with changes of others: all that changed is listed then. Rows tell what of it cannot
/// be read.
bool LooksAgain(AppCall& call, Window& window) {
    if (!call.App().FollowNews()) return false;
    window.Rows().Count();
    window.Rows().TakeTrouble();
    return true;
}

} // namespace

int AnswerRows(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    std::size_t first = 0;
    std::size_t count = std::numeric_limits<std::int64_t>::max();
    if (!window) return TCL_ERROR;
    if (call.Count() > 1 && !call.Number(1, "FIRST", first)) return TCL_ERROR;
    if (call.Count() > 2 && !call.Number(2, "COUNT", count)) return TCL_ERROR;
    window->Rows().TakeTrouble();
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    const auto read = [&] {
        std::size_t bytes = 0;
        Tcl_SetListObj(list, 0, nullptr);
        AddRows(window->Rows(), static_cast<std::int64_t>(first), static_cast<std::int64_t>(count), list,
                bytes);
        return bytes;
    };
    std::size_t bytes = read();
    if (LooksAgain(call, *window)) bytes = read();
    const std::string trouble = window->Rows().TakeTrouble();
    if (trouble.empty() && bytes <= mostBytes) return call.Answer(list);
    Tcl_DecrRefCount(list);
    if (!trouble.empty()) return call.Fail("the rows cannot be read: " + trouble, "READ");
    return call.Fail("the rows are too large: the limit is " + std::to_string(mostBytes) +
                         " bytes, ask for fewer with FIRST and COUNT",
                     "ROWS", call.Text(0));
}

namespace {

/// What a window has switched on or off: tells it, or sets it.
template <class Is, class Set>
int AnswerSwitch(AppCall& call, Is is, Set set) {
    const std::shared_ptr<Window> window = WindowOf(call);
    int on = 0;
    if (!window) return TCL_ERROR;
    if (call.Count() > 1) {
        if (Tcl_GetBooleanFromObj(call.App().Interp(), call.Word(1), &on) != TCL_OK) return TCL_ERROR;
        set(*window, on != 0);
    }
    return call.Answer(is(*window) ? "true" : "false");
}

int AnswerAid(AppCall& call, Window::Aid aid) {
    return AnswerSwitch(
        call, [aid](const Window& window) { return window.IsOpen(aid); },
        [aid](Window& window, bool open) { window.SetOpen(aid, open); });
}

} // namespace

int AnswerFlat(AppCall& call) {
    return AnswerSwitch(
        call, [](Window& window) { return window.Rows().IsFlat(); },
        [](Window& window, bool flat) { window.Rows().SetFlat(flat); });
}

int AnswerDetails(AppCall& call) { return AnswerAid(call, Window::Aid::Details); }

int AnswerChooser(AppCall& call) { return AnswerAid(call, Window::Aid::Chooser); }

int AnswerDraw(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    if (!window) return TCL_ERROR;
    std::string drawn = DrawRows(*window);
    if (LooksAgain(call, *window)) drawn = DrawRows(*window);
    return call.Answer(drawn);
}

} // namespace znhost
