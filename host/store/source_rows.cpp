// The rows of a simple data source: listed, counted, linked, named.
#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "model/browser.h"
#include "store/asked_rows.h"
#include "store/cell_texts.h"
#include "store/data_ctrl.h"
#include "store/data_property.h"
#include "store/link_reader.h"
#include "store/row_lister.h"
#include "store/server_pages.h"
#include "store/simple_source.h"

#include <algorithm>
#include <map>

namespace znhost {

// Computing a value may delete the source, so it is held as long.
void SimpleSource::List(const RowQuery& query, std::vector<std::int64_t>& rows) {
    const std::shared_ptr<SimpleSource> self = shared_from_this();
    RowLister(*this, query).Run(rows);
}

SharedRows SimpleSource::ListAll() {
    if (std::optional<SharedRows> paged = ServerPages::List(*this)) return std::move(*paged);
    std::vector<std::int64_t> rows;
    List({}, rows);
    return SharedRows(std::move(rows));
}

void SimpleSource::AskAlong(const std::function<void()>& ask) {
    const std::vector<BaseSource*> bases = Bases();
    const auto isHere = [](const BaseSource* base) { return base->Table() && !base->Table()->copied; };
    if (std::all_of(bases.begin(), bases.end(), isHere)) control_.Db().AskAlong(ask);
}

bool SimpleSource::ListBelow(const RowLink& link, const std::vector<std::int64_t>& parents,
                             const RowOrder& order, RowGroups& groups) {
    RowQuery query;
    query.link = &link;
    query.order = order;
    return RowLister(*this, query).RunBelow(parents, groups);
}

bool SimpleSource::ChangedRows(std::uint64_t since, std::vector<std::int64_t>& rows) {
    rows.clear();
    const RowJournal& journal = control_.Journal();
    if (journal.IsQuiet(since)) return true;
    // Rows of others may be decided upon by what stands in any table.
    const BaseSource* const base = dynamic_cast<const BaseSource*>(this);
    return base && base->Table() && !base->Table()->copied && journal.Read(since, base->Table()->name, rows);
}

bool SimpleSource::SortRows(const RowOrder& order, std::vector<std::int64_t>& rows) {
    RowQuery query;
    query.order = order;
    return dynamic_cast<BaseSource*>(this) && RowLister(*this, query).SortRows(rows);
}

std::int64_t SimpleSource::Count(const RowQuery& query) {
    if (query.link || !query.conditions.empty()) {
        RowQuery unsorted = query;
        unsorted.order = {};
        std::vector<std::int64_t> rows;
        List(unsorted, rows);
        return static_cast<std::int64_t>(rows.size());
    }
    std::int64_t count = 0;
    for (const RowPart& part : Parts()) {
        Statement statement = control_.Db().Prepare("SELECT COUNT(*) FROM " + part.From() + part.Where());
        part.Bind(statement);
        if (statement.Next()) count += statement.Integer(0);
        std::string error;
        if (!statement.Finish(error)) FailToRead(error);
    }
    return count;
}

bool SimpleSource::HasChildren(const RowLink& link, std::int64_t parent) {
    return LinkReader(link).HasChildren(parent);
}

void SimpleSource::HaveChildren(const RowLink& link, const std::vector<std::int64_t>& parents,
                                std::vector<bool>& have) {
    LinkReader(link).HaveChildren(parents, have);
}

void SimpleSource::Parents(const RowLink& link, const std::vector<std::int64_t>& children,
                           std::vector<std::int64_t>& parents) {
    parents.clear();
    LinkReader(link).RelatedToAny(LINK_PARENT, children, parents);
}

void SimpleSource::Children(const RowLink& link, const std::vector<std::int64_t>& parents,
                            std::vector<std::int64_t>& children) {
    children.clear();
    LinkReader(link).RelatedToAny(LINK_CHILD, parents, children);
}

bool SimpleSource::HasRow(std::int64_t row) {
    const RowPlace place = PlaceOf(row);
    for (const RowPart& part : Parts()) {
        if (part.slot != place.slot) continue;
        Statement statement = control_.Db().Prepare(part.Select({}, part.table->is));
        part.table->BindRow(statement, part.Bind(statement), place.row);
        const bool found = statement.Next();
        std::string error;
        return statement.Finish(error) ? found : FailToRead(error);
    }
    return false;
}

namespace {

/// A row of a table, and which of the rows asked for it is.
using AskedRow = std::pair<std::int64_t, std::size_t>;

/// Rows this near to each other are read in one go, with what lies between.
constexpr std::uint64_t nearby = 16;

bool AreNear(const AskedRow& a, const AskedRow& b) {
    return static_cast<std::uint64_t>(b.first) - static_cast<std::uint64_t>(a.first) <= nearby;
}

/// Marks those of `asked`, which ascend, that the part has. @return false when the database failed
bool MarkFound(Database& database, const RowPart& part, const std::vector<AskedRow>& asked,
               std::vector<bool>& found) {
    const std::string& key = part.table->key;
    Statement statement = database.Prepare(part.Select({}, key + " BETWEEN ? AND ?") + " ORDER BY " + key);
    const int bounds = part.Bind(statement);
    for (std::size_t i = 0; i < asked.size() && !statement.Failed();) {
        std::size_t end = i + 1;
        while (end < asked.size() && AreNear(asked[end - 1], asked[end])) ++end;
        statement.Bind(bounds, asked[i].first);
        statement.Bind(bounds + 1, asked[end - 1].first);
        while (statement.Next()) {
            const std::int64_t row = statement.Integer(0);
            while (asked[i].first < row) ++i;
            if (asked[i].first == row) found[asked[i].second] = true;
        }
        statement.Rewind();
        i = end;
    }
    std::string error;
    return statement.Finish(error);
}

/// The most rows that a server is asked for at once.
constexpr std::size_t mostTogether = 10'000;

/// The same for a table that a server has: a question for many rows.
bool MarkFoundTogether(Database& database, const RowPart& part, const std::vector<AskedRow>& asked,
                       std::vector<bool>& found) {
    const Table& table = *part.table;
    Statement statement = database.Prepare(part.Select({}, table.among));
    const int list = part.Bind(statement);
    for (std::size_t begin = 0; begin < asked.size(); begin += mostTogether) {
        std::vector<std::int64_t> rows;
        for (std::size_t i = begin; i < std::min(begin + mostTogether, asked.size()); ++i)
            rows.push_back(asked[i].first);
        statement.Bind(list, database.ListOf(table, rows));
        while (statement.Next()) {
            const AskedRow row(table.RowAt(statement, 0), 0);
            for (auto one = std::lower_bound(asked.begin(), asked.end(), row);
                 one != asked.end() && one->first == row.first; ++one) {
                found[one->second] = true;
            }
        }
        statement.Rewind();
    }
    std::string error;
    return statement.Finish(error);
}

} // namespace

std::vector<std::int64_t> SimpleSource::Missing(const std::vector<std::int64_t>& rows) {
    std::string error;
    if (!control_.Refresh(error)) return {};
    std::map<std::size_t, std::vector<AskedRow>> asked; // by slot
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const RowPlace place = PlaceOf(rows[i]);
        asked[place.slot].emplace_back(place.row, i);
    }
    std::vector<bool> found(rows.size(), false);
    for (const RowPart& part : Parts()) {
        std::vector<AskedRow>& inPart = asked[part.slot];
        std::sort(inPart.begin(), inPart.end());
        const auto mark = part.table->IsOnServer() ? MarkFoundTogether : MarkFound;
        if (!mark(control_.Db(), part, inPart, found)) return {};
    }
    std::vector<std::int64_t> missing;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (!found[i]) missing.push_back(rows[i]);
    }
    return missing;
}

bool SimpleSource::GetText(std::int64_t row, std::string& text) {
    const RowPlace place = PlaceOf(row);
    const BaseSource* const base = BaseAt(place.slot);
    if (!base || !base->Table()) return false;
    return ReadColumn(place, base->Table()->columns.size(),
                      [&text](Statement& statement) { text = statement.Shown(0, std::string::npos); });
}

bool SimpleSource::IsStored(znIBrowserDataProperty* property) {
    const ColumnProperty* const column = dynamic_cast<ColumnProperty*>(property);
    return !property || (column && &column->Owner() == this);
}

/// Those of the rows that are in the part, with one question.
bool SimpleSource::ReadTextsTogether(const RowPart& part, const std::vector<std::int64_t>& rows,
                                     CellTexts& cells, std::size_t count,
                                     std::vector<std::optional<std::string>>& texts) {
    const AskedRows asked(*this, part, rows);
    if (asked.IsEmpty()) return true;
    Statement statement = asked.Ask(", " + cells.Sql());
    while (statement.Next()) {
        asked.ForEachPlace(statement, [&](std::size_t place) {
            cells.Take(statement, 1, rows[place], &texts[place * count]);
        });
    }
    std::string error;
    return statement.Finish(error) || FailToRead(error);
}

void SimpleSource::ReadTexts(const std::vector<std::int64_t>& rows,
                             const std::vector<znIBrowserDataProperty*>& properties,
                             std::vector<std::optional<std::string>>& texts) {
    texts.assign(rows.size() * properties.size(), std::nullopt);
    if (properties.empty()) return;
    for (const RowPart& part : Parts()) {
        CellTexts cells(control_.Db(), *part.table, properties);
        if (part.table->IsOnServer()) {
            ReadTextsTogether(part, rows, cells, properties.size(), texts);
            continue;
        }
        Statement statement = control_.Db().Prepare("SELECT " + cells.Sql() + " FROM " + part.table->rows +
                                                    " WHERE " + part.table->is);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const RowPlace place = PlaceOf(rows[i]);
            if (place.slot != part.slot) continue;
            part.table->BindRow(statement, 1, place.row);
            if (statement.Next()) cells.Take(statement, 0, place.row, &texts[i * properties.size()]);
            statement.Rewind();
        }
        std::string error;
        if (!statement.Finish(error)) FailToRead(error);
    }
}

void SimpleSource::GetDataItems(znBrowserDataItems& items) {
    items.Clear();
    if (Refused("znIBrowserDataSourceSimple::GetDataItems")) return;
    const ReadTrouble::Watch watch(control_.Services().Trouble());
    List({}, items.rows);
    if (watch.Seen()) control_.Services().ReportError(watch.Text());
    if (!items.rows.empty()) items.runs.push_back({this, 0});
}

} // namespace znhost
