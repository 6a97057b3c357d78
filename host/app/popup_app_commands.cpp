#include "app/popup_app_commands.h"

#include "app/app_commands.h"
#include "app/row_app_commands.h"
#include "base/tcl_values.h"
#include "model/view.h"
#include "window/window.h"

#include <iterator>
#include <limits>
#include <map>
#include <tcl.h>

namespace znhost {

namespace {

/// Makes the values of entries. There may be tens of thousands, alike but for a caption: a value that is the
/// same as that of the entry before is shared, as keys are, and so is a menu that several items open. A list
/// of keys and values costs less than a dictionary, and Tcl makes one of it where a script looks into it.
class EntryValues {
public:
    EntryValues() {
        for (std::size_t i = 0; i < keyCount; ++i) Tcl_IncrRefCount(keys_[i] = Tcl_NewStringObj(keys[i], -1));
    }
    ~EntryValues() {
        for (Tcl_Obj* const key : keys_) Tcl_DecrRefCount(key);
    }
    EntryValues(const EntryValues&) = delete;
    EntryValues& operator=(const EntryValues&) = delete;

    Tcl_Obj* NewList(const PopupEntries& entries) {
        Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
        Tcl_Obj* before[keyCount] = {};
        const PopupEntry* last = nullptr;
        for (const PopupEntry& entry : entries) {
            Tcl_ListObjAppendElement(nullptr, list, NewEntry(entry, last, before));
            last = &entry;
        }
        return list;
    }

private:
    static constexpr const char* keys[] = {"item", "caption", "kind",    "enabled", "checked",
                                           "help", "value",   "entries", "icon",    "description"};
    static constexpr std::size_t keyCount = std::size(keys);

    /// @param before  the values of the entry `last`, which the list holds
    Tcl_Obj* NewEntry(const PopupEntry& entry, const PopupEntry* last, Tcl_Obj** before) {
        std::size_t next = 0;
        const auto take = [&](auto PopupEntry::*part, auto make) {
            if (!last || last->*part != entry.*part) before[next] = make(entry.*part);
            ++next;
        };
        const auto text = [](const std::string& value) { return NewText(value); };
        const auto boolean = [](bool value) { return Tcl_NewBooleanObj(value); };
        take(&PopupEntry::item, text);
        take(&PopupEntry::caption, text);
        take(&PopupEntry::kind, [](PopupEntry::Kind kind) { return NewText(KindName(kind)); });
        take(&PopupEntry::enabled, boolean);
        take(&PopupEntry::checked, boolean);
        take(&PopupEntry::help, text);
        take(&PopupEntry::value, text);
        take(&PopupEntry::entries, [this](const auto& below) { return Below(below.get()); });
        take(&PopupEntry::icon, text);
        take(&PopupEntry::description, text);
        Tcl_Obj* words[2 * keyCount];
        for (std::size_t i = 0; i < keyCount; ++i) {
            words[2 * i] = keys_[i];
            words[2 * i + 1] = before[i];
        }
        return Tcl_NewListObj(2 * keyCount, words);
    }

    /// What a cascade opens.
    Tcl_Obj* Below(const PopupEntries* entries) {
        if (!entries) return Tcl_NewObj();
        const auto known = lists_.find(entries);
        return known != lists_.end() ? known->second : lists_[entries] = NewList(*entries);
    }

    Tcl_Obj* keys_[keyCount];
    std::map<const PopupEntries*, Tcl_Obj*> lists_;
};

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

Tcl_Obj* NewPopupEntries(const PopupEntries& entries) { return EntryValues().NewList(entries); }

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
