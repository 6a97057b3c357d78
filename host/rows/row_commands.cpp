#include "rows/row_commands.h"

#include "model/app_commands.h"
#include "model/window_list.h"
#include "rows/row_drawing.h"

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

namespace {

/// The window that the first argument names, held; null, and the error stands in the interpreter, when there
/// is none.
std::shared_ptr<Window> WindowOf(AppCall& call) {
    Window* const window = call.App().Model().Windows().All().Find(call.Text(0));
    if (window) return window->shared_from_this();
    call.Fail("there is no window \"" + call.Text(0) + "\"", "WINDOW", call.Text(0));
    return nullptr;
}

Tcl_Obj* NewText(const std::string& text) {
    return Tcl_NewStringObj(text.data(), static_cast<int>(text.size()));
}

void Put(Tcl_Obj* dictionary, const char* key, Tcl_Obj* value) {
    Tcl_DictObjPut(nullptr, dictionary, Tcl_NewStringObj(key, -1), value);
}

Tcl_Obj* NewRow(RowModel& rows, const RowLook& look) {
    Tcl_Obj* const cells = Tcl_NewDictObj();
    for (const RowCell& cell : look.cells) {
        Tcl_DictObjPut(nullptr, cells, NewText(cell.column->Name()), NewText(cell.Text()));
    }
    Tcl_Obj* const row = Tcl_NewDictObj();
    Put(row, "index", Tcl_NewWideIntObj(look.index));
    Put(row, "parent", Tcl_NewWideIntObj(look.parent));
    Put(row, "depth", Tcl_NewWideIntObj(look.depth));
    Put(row, "kind", NewText(KindName(look.kind)));
    Put(row, "text", NewText(look.text));
    Put(row, "cells", cells);
    Put(row, "expanded", Tcl_NewBooleanObj(look.expanded));
    Put(row, "selected", Tcl_NewBooleanObj(look.selected));
    Put(row, "children", Tcl_NewWideIntObj(rows.CountBelow(look.index)));
    return row;
}

} // namespace

int AnswerRows(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    std::size_t first = 0;
    std::size_t count = std::numeric_limits<std::int64_t>::max();
    if (!window) return TCL_ERROR;
    if (call.Count() > 1 && !call.Number(1, "FIRST", first)) return TCL_ERROR;
    if (call.Count() > 2 && !call.Number(2, "COUNT", count)) return TCL_ERROR;
    const RowModel::Answering answering(window->Rows());
    window->Rows().TakeTrouble();
    const std::vector<RowLook> looks =
        window->Rows().Read(static_cast<std::int64_t>(first), static_cast<std::int64_t>(count));
    const std::string trouble = window->Rows().TakeTrouble();
    if (!trouble.empty()) return call.Fail("the rows cannot be read: " + trouble, "READ");
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const RowLook& look : looks) {
        Tcl_ListObjAppendElement(nullptr, list, NewRow(window->Rows(), look));
    }
    return call.Answer(list);
}

int AnswerDraw(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    return window ? call.Answer(DrawRows(*window)) : TCL_ERROR;
}

} // namespace znhost
