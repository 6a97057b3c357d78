#include "app/item_app_commands.h"

#include "app/app_commands.h"
#include "app/row_app_commands.h"
#include "base/tcl_values.h"
#include "base/text.h"
#include "host/znBrowserDataItems.h"
#include "rows/row_path.h"
#include "store/base_source.h"
#include "store/blob_text.h"
#include "store/data_ctrl.h"
#include "store/data_reference.h"
#include "window/window.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <tcl.h>

namespace znhost {

namespace {

/// So much of a text or a blob is enough for anybody to look at, unless a script asks for more.
constexpr std::size_t usualBytes = std::size_t{1} << 20;
constexpr std::size_t mostBytes = std::size_t{1} << 28;

/// An item of a window, and where it stands.
struct AskedItem {
    std::shared_ptr<Window> window; ///< holds the source
    SimpleSource* source = nullptr;
    std::int64_t row = 0;
    RowPlace place;
    BaseSource* base = nullptr; ///< of the table in which the row lies
};

/// The item that the first two arguments name. Nothing, and the error stands in the interpreter, when there
/// is none.
std::optional<AskedItem> ItemOf(AppCall& call) {
    AskedItem asked;
    asked.window = WindowOf(call);
    std::size_t index = 0;
    if (!asked.window || !call.Number(1, "INDEX", index)) return std::nullopt;
    RowModel& rows = asked.window->Rows();
    const RowModel::Answering answering(rows);
    znBrowserDataItem item;
    const bool found = index <= std::numeric_limits<std::uint32_t>::max() &&
                       rows.GetItem(static_cast<std::uint32_t>(index), item);
    asked.source = found ? dynamic_cast<SimpleSource*>(item.source) : nullptr;
    if (asked.source) {
        asked.row = item.row;
        asked.place = asked.source->PlaceOf(item.row);
        asked.base = asked.source->BaseAt(asked.place.slot);
    }
    if (asked.base && asked.base->Table()) return asked;
    call.Fail("the window \"" + call.Text(0) + "\" has no item " + call.Text(1), "ITEM", call.Text(1));
    return std::nullopt;
}

Tcl_Obj* NewDict(std::initializer_list<std::pair<const char*, Tcl_Obj*>> entries) {
    Tcl_Obj* const dictionary = Tcl_NewDictObj();
    for (const auto& [key, value] : entries) Put(dictionary, key, value);
    return dictionary;
}

void Append(Tcl_Obj* list, Tcl_Obj* object) { Tcl_ListObjAppendElement(nullptr, list, object); }

// ---- The values

const char* TypeName(Statement::Type type) {
    switch (type) {
    case Statement::Type::Integer: return "integer";
    case Statement::Type::Real: return "real";
    case Statement::Type::Text: return "text";
    case Statement::Type::Blob: return "blob";
    case Statement::Type::Null: break;
    }
    return "null";
}

Tcl_Obj* NewColumn(const TableColumn& column, const Statement& statement, int place, std::size_t most) {
    const Statement::Type type = statement.TypeOf(place);
    const bool isBlob = type == Statement::Type::Blob;
    const std::string_view bytes = statement.Stored(place);
    const std::size_t size = bytes.size();
    Tcl_Obj* const value = isBlob ? Tcl_NewByteArrayObj(reinterpret_cast<const unsigned char*>(bytes.data()),
                                                        static_cast<int>(std::min(size, most)))
                                  : nullptr;
    const std::string shown = isBlob ? DescribeBlob(bytes) : statement.TextUpTo(place, most);
    return NewDict({{"column", NewText(column.name)},
                    {"declared", NewText(column.declaredType)},
                    {"key", Tcl_NewBooleanObj(column.primaryKey > 0)},
                    {"stored", NewText(TypeName(type))},
                    {"size", Tcl_NewWideIntObj(static_cast<Tcl_WideInt>(size))},
                    {"text", NewText(shown)},
                    {"value", value ? value : NewText(shown)}});
}

// ---- References

Tcl_Obj* NewReference(const DataReference& reference, const std::vector<std::string>& columns,
                      const std::string& table) {
    return NewDict(
        {{"reference", NewText(reference.Name())}, {"columns", NewList(columns)}, {"table", NewText(table)}});
}

/// Calls `take` for each reference of the item's table, in either direction, with the link along which the
/// items at its other end are found.
template <class Take>
void ForEachLink(const AskedItem& item, bool outwards, Take take) {
    DataCtrl& control = item.base->Control();
    const CallLog::Quiet quiet(control.Log());
    for (DataReference* const reference : control.References()) {
        const std::string& holder = reference->HoldingTable();
        const std::string& target = reference->Key().table;
        if (!SameName(outwards ? holder : target, item.base->Name())) continue;
        SimpleSource* const other = control.FindSimple(outwards ? target : holder);
        if (!other) continue;
        const RowLink link =
            outwards ? RowLink{other, item.base, reference} : RowLink{item.base, other, reference};
        take(*reference, *other, link);
    }
}

void PutItem(Tcl_Obj* dictionary, SimpleSource& source, std::int64_t row) {
    std::string text;
    source.GetText(row, text);
    Put(dictionary, "row", Tcl_NewWideIntObj(row));
    Put(dictionary, "text", NewText(Cut(text, usualBytes)));
}

} // namespace

int AnswerItem(AppCall& call) {
    const std::optional<AskedItem> item = ItemOf(call);
    std::size_t most = usualBytes;
    if (!item || (call.Count() > 2 && !call.Number(2, "BYTES", most))) return TCL_ERROR;
    most = std::min(most, mostBytes);
    Database& database = item->base->Control().Db();
    const Schema::TablePtr table = item->base->Table();
    std::string columns;
    for (const TableColumn& column : table->columns)
        columns += (columns.empty() ? "" : ", ") + Database::Quoted(column.name);
    static_cast<void>(item->base->Parts()); // a copy of the rows is brought up to date
    Statement statement =
        database.Prepare("SELECT " + columns + " FROM " + table->rows + " WHERE " + table->is);
    table->BindRow(statement, 1, item->place.row);
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    const bool found = statement.Next();
    for (std::size_t i = 0; found && i < table->columns.size(); ++i)
        Append(list, NewColumn(table->columns[i], statement, static_cast<int>(i), most));
    std::string error;
    if (!statement.Finish(error)) {
        Tcl_DecrRefCount(list);
        return call.Fail("the item cannot be read: " + error, "READ");
    }
    return call.Answer(NewDict({{"source", NewText(item->source->Name())},
                                {"row", Tcl_NewWideIntObj(item->row)},
                                {"table", NewText(table->name)},
                                {"number", Tcl_NewWideIntObj(item->place.row)},
                                {"where", NewText(table->ConditionOf(item->place.row))},
                                {"columns", list}}));
}

int AnswerReferences(AppCall& call) {
    const std::optional<AskedItem> item = ItemOf(call);
    if (!item) return TCL_ERROR;
    const RowModel::Answering answering(item->window->Rows());
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    ForEachLink(*item, true, [&](const DataReference& reference, SimpleSource& other, const RowLink& link) {
        std::vector<std::int64_t> rows;
        item->base->Parents(link, {item->place.row}, rows);
        if (rows.empty()) return;
        Tcl_Obj* const entry = NewReference(reference, reference.Key().from, other.Name());
        PutItem(entry, other, rows.front());
        Append(list, entry);
    });
    return call.Answer(list);
}

namespace {

RowQuery BelowItem(const RowLink& link, std::int64_t row) {
    RowQuery query;
    query.link = &link;
    query.parent = row;
    return query;
}

/// How many items refer to the item along each reference; -1 where that takes too long.
int CountReferring(const AppCall& call, const AskedItem& item) {
    constexpr auto timeToCount = std::chrono::milliseconds(150);
    const HostServices::Hurry hurry(call.App(), timeToCount);
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    ForEachLink(item, false, [&](const DataReference& reference, SimpleSource& other, const RowLink& link) {
        const ReadTrouble::Watch watch(call.App().Trouble());
        const std::int64_t count = other.Count(BelowItem(link, item.place.row));
        if (count == 0 && !watch.Seen()) return;
        Tcl_Obj* const entry = NewReference(reference, reference.Key().from, other.Name());
        Put(entry, "count", Tcl_NewWideIntObj(watch.Seen() ? -1 : count));
        Append(list, entry);
    });
    return call.Answer(list);
}

} // namespace

int AnswerReferring(AppCall& call) {
    const std::optional<AskedItem> item = ItemOf(call);
    if (!item) return TCL_ERROR;
    const RowModel::Answering answering(item->window->Rows());
    if (call.Count() == 2) return CountReferring(call, *item);
    std::size_t most = std::numeric_limits<std::size_t>::max();
    if (call.Count() > 3 && !call.Number(3, "MOST", most)) return TCL_ERROR;
    const std::string wanted = call.Text(2);
    bool known = false;
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    ForEachLink(*item, false, [&](const DataReference& reference, SimpleSource& other, const RowLink& link) {
        if (reference.Name() != wanted) return;
        known = true;
        std::vector<std::int64_t> rows;
        other.List(BelowItem(link, item->place.row), rows);
        if (rows.size() > most) rows.resize(most);
        for (const std::int64_t row : rows) {
            Tcl_Obj* const entry = NewDict({{"table", NewText(other.Name())}});
            PutItem(entry, other, row);
            Append(list, entry);
        }
    });
    if (known) return call.Answer(list);
    Tcl_DecrRefCount(list);
    return call.Fail("no reference \"" + wanted + "\" leads to the table of the item", "REFERENCE", wanted);
}

int AnswerReveal(AppCall& call) {
    const std::shared_ptr<Window> window = WindowOf(call);
    Tcl_WideInt row = 0;
    if (!window) return TCL_ERROR;
    if (Tcl_GetWideIntFromObj(nullptr, call.Word(2), &row) != TCL_OK)
        return call.Fail("ROW must be a whole number, but is \"" + call.Text(2) + "\"", "NUMBER",
                         call.Text(2));
    const std::vector<RowStep> path = PathToItem(window->Rows(), call.Text(1), row);
    return call.Answer(!path.empty() && window->Rows().Reveal(path) ? "true" : "false");
}

} // namespace znhost
