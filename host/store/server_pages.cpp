#include "store/server_pages.h"

#include "store/data_ctrl.h"
#include "store/simple_source.h"

namespace znhost {

namespace {

/// Whether the rows stand in the order of an index.
bool HasKey(const RowPart& part) {
    return part.table->IsOnServer() && !part.table->copied && !part.table->inTable.empty() &&
           part.condition.empty();
}

std::string Question(const RowPart& part, const std::string& columns, const std::string& condition,
                     const std::string& order) {
    return part.Select(columns, condition) + " ORDER BY " + order + " LIMIT ?";
}

} // namespace

ServerPages::ServerPages(SimpleSource& source, RowPart part)
    : source_(source.weak_from_this()), part_(std::move(part)) {}

std::optional<SharedRows> ServerPages::List(SimpleSource& source) {
    const std::vector<RowPart> parts = source.Parts();
    if (parts.size() != 1 || !HasKey(parts.front())) return std::nullopt;
    const RowPart& part = parts.front();
    const Table& table = *part.table;
    const auto ask = [&part](const std::string& what) {
        return ", (SELECT " + what + " FROM " + part.From() + ")";
    };
    // Each by itself: so the server counts in several processes, and finds the last one by the index.
    Statement statement = source.Control().Db().Prepare(
        Question(part, ask("COUNT(*)") + (table.keys ? "" : ask("MAX(" + table.key + ")")), "", table.order));
    statement.Bind(1, static_cast<std::int64_t>(SharedRows::pageSize));
    std::size_t size = 0;
    std::int64_t last = 0;
    Rows first;
    while (statement.Next()) {
        if (first.empty()) {
            size = static_cast<std::size_t>(statement.Integer(1));
            last = statement.Integer(2);
        }
        first.push_back(table.RowAt(statement, 0));
    }
    std::string error;
    if (!statement.Finish(error)) {
        source.FailToRead(error);
        return SharedRows();
    }
    const bool hasGaps = table.keys || (!first.empty() && static_cast<std::uint64_t>(last) -
                                                                  static_cast<std::uint64_t>(first.front()) !=
                                                              size - 1);
    while (!hasGaps && first.size() < size) first.push_back(first.back() + 1);
    for (std::int64_t& row : first) row = source.RowOf({part.slot, row});
    if (first.size() >= size) return SharedRows(std::move(first));
    return SharedRows(std::make_unique<ServerPages>(source, part), size, std::move(first));
}

RowPages::Rows ServerPages::Read(const Page& page) {
    const std::shared_ptr<SimpleSource> source = source_.lock();
    if (!source) return {};
    const Table& table = *part_.table;
    const std::size_t rest = page.size - page.first - page.count;
    const bool backwards = !page.before && (page.behind || rest < page.first);
    const std::optional<std::int64_t>& from = backwards ? page.behind : page.before;
    const std::string& condition = backwards ? table.before : table.after;
    Statement statement = source->Control().Db().Prepare(
        Question(part_, "", from ? condition : "", backwards ? table.backwards : table.order) +
        (from ? "" : " OFFSET ?"));
    int position = 1;
    if (from) table.BindRow(statement, position++, source->PlaceOf(*from).row);
    statement.Bind(position++, static_cast<std::int64_t>(page.count));
    if (!from) statement.Bind(position, static_cast<std::int64_t>(backwards ? rest : page.first));
    Rows rows = Run(*source, statement);
    if (backwards) std::reverse(rows.begin(), rows.end());
    return rows;
}

RowPages::Rows ServerPages::Run(SimpleSource& source, Statement& statement) const {
    Rows rows;
    while (statement.Next()) rows.push_back(source.RowOf({part_.slot, part_.table->RowAt(statement, 0)}));
    std::string error;
    if (!statement.Finish(error)) source.FailToRead(error);
    return rows;
}

RowPages::Rows ServerPages::ReadAll() {
    Rows rows;
    if (const std::shared_ptr<SimpleSource> source = source_.lock()) source->List({}, rows);
    return rows;
}

} // namespace znhost
