#include "store/server_pages.h"

#include "store/asked_rows.h"
#include "store/base_source.h"
#include "store/data_ctrl.h"
#include "store/simple_source.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace znhost {

namespace {

/// Whether a page is found without all rows before it. A row of several tables is known by its place in one.
bool CanBePaged(const RowPart& part) {
    const Table& table = *part.table;
    return table.IsOnServer() && part.condition.empty() && !(table.keys && table.keys->IsByPlace());
}

// Of "(BLOCK,NUMBER)".
std::int64_t BlockOf(std::string_view place) {
    std::int64_t block = 0;
    if (!place.empty()) std::from_chars(place.data() + 1, place.data() + place.size(), block);
    return block;
}
std::string PlaceIn(std::int64_t block) { return "(" + std::to_string(block) + ",0)"; }

std::string Question(const RowPart& part, const std::string& columns, const std::string& condition,
                     const std::string& order) {
    return part.Select(columns, condition) + " ORDER BY " + order + " LIMIT ?";
}

} // namespace

ServerPages::ServerPages(SimpleSource& source, RowPart part, std::size_t size,
                         std::optional<std::int64_t> firstNumber)
    : source_(source.weak_from_this()), part_(std::move(part)), size_(size), firstNumber_(firstNumber) {}

/// How many rows there are, the number of the last one, where they are numbered, and the first page.
struct ServerPages::Beginning {
    bool failed = false;
    std::size_t size = 0;
    std::int64_t last = 0;
    Rows first;

    bool IsWholePage() const {
        return first.size() >= std::min(size, SharedRows::pageSize) && !first.empty();
    }
};

/// @param isNear  the first page lies in the first blocks
ServerPages::Beginning ServerPages::Begin(SimpleSource& source, const RowPart& part, bool isNear) {
    const Table& table = *part.table;
    const auto ask = [&part](const std::string& what) {
        return ", (SELECT " + what + " FROM " + part.From() + ")";
    };
    // Each by itself: so the server counts in several processes, and finds the last one by the index.
    Statement statement = source.Control().Db().Prepare(
        Question(part, ask("COUNT(*)") + (table.keys ? "" : ask("MAX(" + table.key + ")")),
                 isNear ? table.Stands("<") : "", table.order));
    int position = 1;
    if (isNear) statement.Bind(position++, PlaceIn(fewBlocks));
    statement.Bind(position, static_cast<std::int64_t>(SharedRows::pageSize));
    Beginning beginning;
    while (statement.Next()) {
        if (beginning.first.empty()) {
            beginning.size = static_cast<std::size_t>(statement.Integer(1));
            beginning.last = statement.Integer(2);
        }
        beginning.first.push_back(table.RowAt(statement, 0));
    }
    std::string error;
    beginning.failed = !statement.Finish(error);
    if (beginning.failed) source.FailToRead(error);
    return beginning;
}

std::optional<SharedRows> ServerPages::List(SimpleSource& source) {
    const std::vector<RowPart> parts = source.Parts();
    if (parts.size() != 1 || !CanBePaged(parts.front())) return std::nullopt;
    const RowPart& part = parts.front();
    const Table& table = *part.table;
    Beginning found = Begin(source, part, table.inBlocks);
    if (table.inBlocks && !found.failed && !found.IsWholePage()) found = Begin(source, part, false);
    if (found.failed || found.first.empty()) return SharedRows();
    const auto distance =
        static_cast<std::uint64_t>(found.last) - static_cast<std::uint64_t>(found.first.front());
    const bool isNumbered = !table.keys && distance == found.size - 1;
    const auto firstNumber = isNumbered ? std::optional(found.first.front()) : std::nullopt;
    for (std::int64_t& row : found.first) row = source.RowOf({part.slot, row});
    if (found.first.size() >= found.size) return SharedRows(std::move(found.first));
    return SharedRows(std::make_unique<ServerPages>(source, part, found.size, firstNumber), found.size,
                      std::move(found.first));
}

/// Rows numbered without a gap.
RowPages::Rows ServerPages::CountUp(SimpleSource& source, std::size_t first, std::size_t count) const {
    Rows rows(count);
    for (std::size_t i = 0; i < count; ++i)
        rows[i] = source.RowOf({part_.slot, *firstNumber_ + static_cast<std::int64_t>(first + i)});
    return rows;
}

bool ServerPages::IsBackwards(const Page& page) {
    const std::size_t rest = page.size - page.first - page.count;
    return !page.before && (page.behind || rest < page.first);
}

/// Where the block begins that lies a page away from the row.
std::string ServerPages::PlaceNear(SimpleSource& source, std::int64_t row, bool backwards) const {
    const std::int64_t block = BlockOf(part_.table->keys->KeyOf(source.PlaceOf(row).row));
    return PlaceIn(backwards ? std::max<std::int64_t>(block - blocks_, 0) : block + blocks_);
}

/// @param isNear  the page lies in the next blocks
Statement ServerPages::Ask(SimpleSource& source, const Page& page, bool isNear) const {
    const Table& table = *part_.table;
    const bool backwards = IsBackwards(page);
    const bool isExpected = expected_ && expected_->page == page.first;
    const std::optional<std::int64_t>& from = backwards ? page.behind : page.before;
    std::string condition = from ? table.Stands(backwards ? "<" : ">") : "";
    if (isNear) condition += " AND " + table.Stands(backwards ? ">" : "<");
    std::string sql =
        Question(part_, isExpected ? " AS item" : "", condition, backwards ? table.backwards : table.order) +
        (from ? "" : " OFFSET ?");
    Database& database = source.Control().Db();
    if (isExpected) sql = database.ExpectingSql(sql, expected_->number);
    Statement statement = database.Prepare(sql);
    int position = 1;
    if (from) Bind(source, statement, position++, *from);
    if (isNear) statement.Bind(position++, PlaceNear(source, *from, backwards));
    statement.Bind(position++, static_cast<std::int64_t>(page.count));
    const std::size_t skipped = backwards ? page.size - page.first - page.count : page.first;
    if (!from) statement.Bind(position++, static_cast<std::int64_t>(skipped));
    if (!isExpected) return statement;
    const std::size_t first = expected_->first;
    const std::size_t count = expected_->count;
    statement.Bind(position++, static_cast<std::int64_t>(backwards ? page.count - first - count : first));
    statement.Bind(position, static_cast<std::int64_t>(count));
    return statement;
}

RowPages::Rows ServerPages::Read(const Page& page) {
    const std::shared_ptr<SimpleSource> source = source_.lock();
    if (!source) return {};
    if (firstNumber_) return CountUp(*source, page.first, page.count);
    Statement statement = Ask(*source, page, IsNear(page));
    expected_.reset();
    Rows rows = RowsOf(*source, statement);
    if (IsNear(page) && rows.size() < page.count && !statement.Failed()) {
        Statement whole = Ask(*source, page, false);
        rows = RowsOf(*source, whole);
    }
    if (IsBackwards(page)) std::reverse(rows.begin(), rows.end());
    if (part_.table->inBlocks) NoteBlocks(*source, rows);
    return rows;
}

/// Pages of a table that is read by its blocks.
bool ServerPages::IsNear(const Page& page) const {
    return part_.table->inBlocks && (IsBackwards(page) ? page.behind : page.before);
}

/// The next page may lie in blocks that are half as full.
void ServerPages::NoteBlocks(SimpleSource& source, const Rows& rows) {
    if (rows.empty()) return;
    const auto blockOf = [&](std::int64_t row) {
        return BlockOf(part_.table->keys->KeyOf(source.PlaceOf(row).row));
    };
    blocks_ = std::max(fewBlocks, 2 * (blockOf(rows.back()) - blockOf(rows.front()) + 1));
}

// The source of one table takes the number that stands for the rows as it is; others would count it anew.
bool ServerPages::CanExpect() const {
    return !firstNumber_ && dynamic_cast<BaseSource*>(source_.lock().get()) != nullptr;
}

std::int64_t ServerPages::Expect(const Page& page, std::size_t first, std::size_t count) {
    const std::shared_ptr<SimpleSource> source = source_.lock();
    if (!source) return nowhere;
    expected_ = Expected{page.first, first, count, source->Control().Db().ExpectRows()};
    Ask(*source, page, IsNear(page)).Next();
    return expected_->number;
}

void ServerPages::Came(std::int64_t number, const Rows& rows) {
    const std::shared_ptr<SimpleSource> source = source_.lock();
    if (source) source->Control().Db().RowsCame(*part_.table, number, rows);
}

void ServerPages::Bind(SimpleSource& source, Statement& statement, int position, std::int64_t row) const {
    part_.table->BindRow(statement, position, source.PlaceOf(row).row);
}

RowPages::Rows ServerPages::RowsOf(SimpleSource& source, Statement& statement) const {
    Rows rows;
    while (statement.Next()) rows.push_back(source.RowOf({part_.slot, part_.table->RowAt(statement, 0)}));
    std::string error;
    if (!statement.Finish(error)) source.FailToRead(error);
    return rows;
}

RowPages::Rows ServerPages::ReadAll() {
    const std::shared_ptr<SimpleSource> source = source_.lock();
    if (source && firstNumber_) return CountUp(*source, 0, size_);
    Rows rows;
    if (source) source->List({}, rows);
    return rows;
}

// ---- Rows of another list

std::size_t ServerPages::CountBetween(SimpleSource& source, std::optional<std::int64_t> after,
                                      std::int64_t before) const {
    const Table& table = *part_.table;
    Statement statement = source.Control().Db().Prepare(
        "SELECT COUNT(*) FROM " + part_.From() + " WHERE " +
        (after ? table.Stands(">") + " AND " : std::string()) + table.Stands("<"));
    int position = 1;
    if (after) Bind(source, statement, position++, *after);
    Bind(source, statement, position, before);
    const std::size_t count = statement.Next() ? static_cast<std::size_t>(statement.Integer(0)) : 0;
    std::string error;
    if (!statement.Finish(error)) source.FailToRead(error);
    return count;
}

RowPages::Rows ServerPages::FromTo(SimpleSource& source, std::int64_t first, std::int64_t last) const {
    const Table& table = *part_.table;
    Statement statement = source.Control().Db().Prepare(
        part_.Select({}, table.Stands(">=") + " AND " + table.Stands("<=")) + " ORDER BY " + table.order);
    Bind(source, statement, 1, first);
    Bind(source, statement, 2, last);
    return RowsOf(source, statement);
}

std::vector<RowPages::Run> ServerPages::FindEach(SimpleSource& source,
                                                 const std::vector<RowPages::Run>& runs) const {
    std::vector<RowPages::Run> found;
    std::optional<std::int64_t> last;
    std::size_t first = 0;
    for (const RowPages::Run& run : runs) {
        first += CountBetween(source, last, run.rows.front());
        last = run.rows.back();
        found.push_back({first, FromTo(source, run.rows.front(), *last)});
        first += found.back().rows.size();
    }
    return found;
}

/// Those of the run that are among the rows numbered without a gap.
RowPages::Run ServerPages::FindNumbered(SimpleSource& source, const RowPages::Run& run) const {
    const std::int64_t lastNumber = *firstNumber_ + static_cast<std::int64_t>(size_) - 1;
    const std::int64_t first = std::max(source.PlaceOf(run.rows.front()).row, *firstNumber_);
    const std::int64_t last = std::min(source.PlaceOf(run.rows.back()).row, lastNumber);
    if (first > last) return {};
    const auto place = static_cast<std::size_t>(first - *firstNumber_);
    return {place, CountUp(source, place, static_cast<std::size_t>(last - first + 1))};
}

std::vector<RowPages::Run> ServerPages::Find(const std::vector<RowPages::Run>& runs) {
    const std::shared_ptr<SimpleSource> source = source_.lock();
    std::vector<RowPages::Run> found;
    if (!source) return found;
    if (firstNumber_) {
        for (const RowPages::Run& run : runs) found.push_back(FindNumbered(*source, run));
        return found;
    }
    const auto ask = [&] { found = FindEach(*source, runs); };
    source->AskAlong(ask);
    ask();
    return found;
}

RowPages::Rows ServerPages::InOrder(const Rows& rows) {
    const std::shared_ptr<SimpleSource> source = source_.lock();
    if (!source) return {};
    Rows found;
    if (firstNumber_) {
        const auto isIn = [&](std::int64_t row) { return !FindNumbered(*source, {0, {row}}).rows.empty(); };
        std::copy_if(rows.begin(), rows.end(), std::back_inserter(found), isIn);
        std::sort(found.begin(), found.end());
        return found;
    }
    const AskedRows asked(*source, part_, rows);
    if (asked.IsEmpty()) return found;
    Statement statement = asked.Ask("", part_.table->order);
    return RowsOf(*source, statement);
}

} // namespace znhost
