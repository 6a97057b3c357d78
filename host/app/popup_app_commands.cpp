#include "app/popup_app_commands.h"

#include "app/app_commands.h"
#include "app/row_app_commands.h"
#include "base/tcl_values.h"
#include "model/view.h"
#include "window/window.h"

#include <limits>
#include <map>
#include <tcl.h>

namespace znhost {

namespace {

/// A menu that several items open is one value, which they share.
using NewLists = std::map<const PopupEntries*, Tcl_Obj*>;

Tcl_Obj* NewEntries(const PopupEntries& entries, NewLists& lists);

Tcl_Obj* NewEntry(const PopupEntry& entry, NewLists& lists) {
    Tcl_Obj* const dictionary = Tcl_NewDictObj();
    Put(dictionary, "item", NewText(entry.item));
    Put(dictionary, "caption", NewText(entry.caption));
    Put(dictionary, "kind", NewText(KindName(entry.kind)));
    Put(dictionary, "enabled", Tcl_NewBooleanObj(entry.enabled));
    Put(dictionary, "checked", Tcl_NewBooleanObj(entry.checked));
    Put(dictionary, "help", NewText(entry.help));
    Put(dictionary, "value", NewText(entry.value));
    Put(dictionary, "entries", entry.entries ? NewEntries(*entry.entries, lists) : Tcl_NewObj());
    Put(dictionary, "icon", NewText(entry.icon));
    Put(dictionary, "description", NewText(entry.description));
    return dictionary;
}

Tcl_Obj* NewEntries(const PopupEntries& entries, NewLists& lists) {
    Tcl_Obj*& list = lists[&entries];
    if (list) return list;
    list = Tcl_NewListObj(0, nullptr);
    Tcl_Obj* const made = list; // what stands below may move the place where it is noted
    for (const PopupEntry& entry : entries) Tcl_ListObjAppendElement(nullptr, made, NewEntry(entry, lists));
    return made;
}

/// What the arguments say was clicked. False, and the error stands in the interpreter, when that is not
/// there.
bool ReadClick(const AppCall& call, Window& window, PopupClick& click) {
    const View& view = *window.ShownView();
    const std::string column = call.Text(1);
    Column* const found = view.Columns().Find(column);
    if (!column.empty() && !found) {
        call.Fail("there is no column \"" + column + "\" in the view \"" + view.Name() + "\"", "COLUMN",
                  column);
        return false;
    }
    if (found) click.column = found->weak_from_this();
    for (std::size_t i = 2; i < call.Count(); ++i) {
        std::size_t index = 0;
        if (!call.Number(i, "INDEX", index)) return false;
        if (index > std::numeric_limits<std::uint32_t>::max() ||
            !window.Rows().Has(static_cast<std::uint32_t>(index))) {
            call.Fail("the window \"" + window.Name() + "\" has no row " + call.Text(i), "INDEX",
                      call.Text(i));
            return false;
        }
        click.rows.push_back(static_cast<std::uint32_t>(index));
    }
    return true;
}

} // namespace

Tcl_Obj* NewPopupEntries(const PopupEntries& entries) {
    NewLists lists;
    return NewEntries(entries, lists);
}

int AnswerPopup(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    if (!window) return TCL_ERROR;
    if (!window->ShownView())
        return call.Fail("the window \"" + window->Name() + "\" shows no view", "WINDOW", window->Name());
    PopupClick click;
    if (!ReadClick(call, *window, click)) return TCL_ERROR;
    PopupMenus shown;
    PopupMenu* const menu = ChooseMenu(*window, click);
    return call.Answer(NewPopupEntries(menu ? MakeEntries(*window, click, *menu, shown) : PopupEntries()));
}

} // namespace znhost
