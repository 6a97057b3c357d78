// Columns of views.
#include "model/browser.h"
#include "model/column.h"
#include "model/view.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace znhost {

namespace {

struct JustifyWord {
    std::string_view word;
    Justify value;
};
constexpr JustifyWord justifyWords[] = {
    {"left", Justify::Left}, {"center", Justify::Center}, {"right", Justify::Right}};

/// A number of pixels, with blanks and a plus sign before it or without; false when the text is none.
bool ReadWidth(const std::string& text, int& pixels) {
    const char* const end = text.data() + text.size();
    const char* begin = text.data() + std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size());
    if (begin != end && *begin == '+') ++begin;
    const std::from_chars_result read = std::from_chars(begin, end, pixels);
    return read.ec == std::errc() && read.ptr == end && pixels >= 0;
}

} // namespace

bool Browser::AddColumn(znIBrowserView* view, const char* name, ColumnKind kind, const char* icon) {
    if (!view) return Fail("No view to create a column in");
    View& owner = *static_cast<View*>(view);
    const std::string newName = TextOf(name);
    if (owner.Columns().Find(newName)) {
        return Fail("The view \"" + owner.Name() + "\" already has a column \"" + newName + "\"");
    }
    owner.Columns().Add(std::make_shared<Column>(owner, newName, kind, TextOf(icon)));
    owner.Changed(VIEW_COLUMNS);
    return true;
}

bool Browser::CreateIconColumn(znIBrowserView* view, const char* name, const char* argument,
                               const char* icon) {
    if (Refused("znIBrowser::CreateIconColumn", view, name, argument, icon)) return false;
    return AddColumn(view, name, ColumnKind::Icon, icon);
}

bool Browser::CreateButtonColumn(znIBrowserView* view, const char* name, const char* argument) {
    if (Refused("znIBrowser::CreateButtonColumn", view, name, argument)) return false;
    return AddColumn(view, name, ColumnKind::Button, "");
}

bool Browser::CreateTextBoxColumn(znIBrowserView* view, const char* name, const char* argument) {
    if (Refused("znIBrowser::CreateTextBoxColumn", view, name, argument)) return false;
    return AddColumn(view, name, ColumnKind::TextBox, "");
}

bool Browser::SetColumnJustify(znIBrowserView* view, znIBrowserViewColumn* column, const char* justify) {
    if (Refused("znIBrowser::SetColumnJustify", view, column, justify)) return false;
    if (!column) return Fail("No column to justify");
    const std::string wanted = TextOf(justify);
    for (const JustifyWord& known : justifyWords) {
        if (known.word != wanted) continue;
        static_cast<Column*>(column)->SetJustification(known.value);
        return true;
    }
    return Fail("Unknown justification \"" + wanted + "\": it must be left, center or right");
}

bool Browser::SetColumnWidth(znIBrowserViewColumn* column, const char* width) {
    if (Refused("znIBrowser::SetColumnWidth", column, width)) return false;
    if (!column) return Fail("No column to set the width of");
    int pixels = 0;
    if (!ReadWidth(TextOf(width), pixels)) {
        return Fail("The width \"" + TextOf(width) + "\" is not a number of pixels of at least 0");
    }
    static_cast<Column*>(column)->SetWidth(pixels);
    return true;
}

bool Browser::MoveColumn(znIBrowserView* view, znIBrowserViewColumn* column, int position) {
    if (Refused("znIBrowser::MoveColumn", view, column, position)) return false;
    if (!column) return Fail("No column to move");
    Column& moved = *static_cast<Column*>(column);
    if (moved.Kind() == ColumnKind::BuiltIn) {
        return Fail("The column \"" + moved.Name() + "\" is built in and cannot be moved");
    }
    NamedList<Column>& columns = moved.Owner().Columns();
    if (position < 0 || static_cast<std::size_t>(position) >= columns.Size()) {
        return Fail("The column \"" + moved.Name() + "\" cannot be moved to position " +
                    std::to_string(position) + ": positions are 0 to " + std::to_string(columns.Size() - 1));
    }
    columns.Move(moved, static_cast<std::size_t>(position));
    moved.Owner().Changed(VIEW_COLUMNS);
    return true;
}

bool Browser::DeleteColumn(znIBrowserViewColumn* column) {
    if (Refused("znIBrowser::DeleteColumn", column)) return false;
    if (!column) return Fail("No column to delete");
    Column& doomed = *static_cast<Column*>(column);
    if (doomed.Kind() == ColumnKind::BuiltIn) {
        return Fail("The column \"" + doomed.Name() + "\" is built in and cannot be deleted");
    }
    doomed.Owner().DeleteColumn(doomed);
    return true;
}

bool Browser::SetColumnAscending(znIBrowserViewColumn* column, bool ascending) {
    if (Refused("znIBrowser::SetColumnAscending", column, ascending)) return false;
    if (!column) return Fail("No column to sort by");
    Column& sorted = *static_cast<Column*>(column);
    if (!sorted.MaySort()) return Fail("Sorting is disabled for the column \"" + sorted.Name() + "\"");
    sorted.Owner().SortBy(&sorted, ascending);
    return true;
}

} // namespace znhost
