// The rows of a query as far as a server filters and sorts them. What it lets through is looked at here, too:
// it may be more than is meant, never less.
#include "base/text.h"
#include "store/asked_rows.h"
#include "store/data_ctrl.h"
#include "store/row_lister.h"

#include <algorithm>
#include <cmath>

namespace znhost {

namespace {

/// No number that is shown differs by more from the one that is stored.
double Margin(double number) { return std::abs(number) * 1e-13; }

void Add(std::string& condition, const std::string& more) {
    condition += (condition.empty() ? "" : " AND ") + more;
}

} // namespace

/// The SQL that is true of all values that fulfil the condition; "" when a server cannot tell.
std::string RowLister::ServerCondition(const RowCondition& condition, const Field& field,
                                       const TableColumn& column, std::vector<Value>& values) {
    using Compare = RowCondition::Compare;
    const bool isBoolean = column.type == ZNBROWSER_DATA_BOOL;
    const std::string name = Database::Quoted(column.name) + (isBoolean ? "::integer" : "");
    if (condition.compare == Compare::Null) return name + " IS NULL";
    if (condition.compare == Compare::Accept || (condition.compare == Compare::Equal && !field.number)) {
        const std::string held =
            condition.compare == Compare::Accept ? condition.holds : Fold(condition.value);
        if (held.empty() || column.holds.empty() || HoldsNul(held)) return {};
        values.emplace_back(held);
        return column.holds;
    }
    const auto number = field.number && column.numeric ? NumberOfText(condition.value) : std::nullopt;
    if (!number || !std::isfinite(*number) || !std::isfinite(*number * 2)) return {};
    const Value low = *number - Margin(*number);
    const Value high = *number + Margin(*number);
    const bool isBelow = condition.compare == Compare::Less || condition.compare == Compare::AtMost;
    if (!isBelow) values.push_back(low);
    if (isBelow || condition.compare == Compare::Equal) values.push_back(high);
    if (condition.compare == Compare::Equal) return name + " BETWEEN ?::numeric AND ?::numeric";
    return name + (isBelow ? " <= ?::numeric" : " >= ?::numeric");
}

void RowLister::LetServerChoose(const RowPart& part, PartReading& reading) const {
    for (std::size_t i = 0; i < query_.conditions.size(); ++i) {
        const auto column = reading.places[i] == noPlace ? std::nullopt : fields_[i].ColumnIn(*part.table);
        if (!column || *column == part.table->columns.size()) continue;
        const std::string condition =
            ServerCondition(query_.conditions[i], fields_[i], part.table->columns[*column], reading.values);
        if (!condition.empty()) Add(reading.condition, condition);
    }
}

bool RowLister::ReadAmongTogether(const RowPart& part, const PartReading& reading,
                                  std::vector<std::int64_t>& rows) {
    std::vector<std::int64_t> asked;
    query_.among->ForEach([&](std::int64_t row) {
        const RowPlace place = source_.PlaceOf(row);
        if (place.slot == part.slot) asked.push_back(place.row);
    });
    if (asked.empty()) return true;
    Database& database = source_.Control().Db();
    std::string condition = reading.condition;
    Add(condition, part.table->among);
    Statement statement = database.Prepare(part.Select(reading.columns, condition) + OrderFor(part, reading));
    int position = part.Bind(statement);
    for (const Value& value : reading.values) statement.Bind(position++, value);
    statement.Bind(position, database.ListOf(*part.table, asked));
    while (statement.Next()) Take(part, statement, reading, rows);
    std::string error;
    return statement.Finish(error) || source_.FailToRead(error);
}

/// Whether the server sorts the rows as they are sorted here: numbers, or texts in ASCII, all read from one
/// column.
bool RowLister::IsSortedByServer(const RowPart& part) const {
    if (!IsSorted() || !part.table->IsOnServer()) return false;
    const auto isRead = [&part](const Field& field) {
        return !field.computed && field.ColumnIn(*part.table);
    };
    if (!std::all_of(fields_.begin(), fields_.end(), isRead)) return false;
    if (fields_.back().number) return true;
    const auto column = fields_.back().ColumnIn(*part.table);
    if (query_.order.natural || *column == part.table->columns.size()) return false;
    const std::string& beyond = part.table->columns[*column].beyond;
    if (beyond.empty()) return false;
    Statement others = source_.Control().Db().Prepare("SELECT EXISTS (SELECT 1 FROM " + part.From() +
                                                      part.Where(beyond) + ")");
    part.Bind(others);
    return others.Next() && others.Integer(0) == 0;
}

/// What stands behind ORDER BY.
std::string RowLister::SortedBy(const RowPart& part) const {
    const std::size_t column = *fields_.back().ColumnIn(*part.table);
    if (column == part.table->columns.size()) return part.table->key;
    const TableColumn& sorted = part.table->columns[column];
    return fields_.back().number ? Database::Quoted(sorted.name) : sorted.folded;
}

bool RowLister::ReadKeysTogether(const RowPart& part, const std::vector<std::int64_t>& rows,
                                 std::vector<Value>& values) const {
    const PartReading reading = ReadingOf(part);
    const AskedRows asked(source_, part, rows);
    if (reading.places.back() == noPlace || asked.IsEmpty()) return true;
    Statement statement = asked.Ask(reading.columns);
    while (statement.Next()) {
        asked.ForEachPlace(statement, [&](std::size_t place) {
            values[place] = CellOf(fields_.back(), statement, reading.places.back());
        });
    }
    std::string error;
    return statement.Finish(error) || source_.FailToRead(error);
}

} // namespace znhost
