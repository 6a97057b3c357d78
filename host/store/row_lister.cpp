#include "store/row_lister.h"

#include "base/services.h"
#include "base/text.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataProperty.h"
#include "model/view.h"
#include "store/data_ctrl.h"
#include "store/link_reader.h"

#include <algorithm>

namespace znhost {

namespace {

double RealOf(const Value& value) {
    const std::int64_t* const integer = std::get_if<std::int64_t>(&value);
    return integer ? static_cast<double>(*integer) : std::get<double>(value);
}

bool IsText(const Value& value) { return std::holds_alternative<std::string>(value); }

bool IsNothing(const Value& value) { return std::holds_alternative<std::monostate>(value); }

/// Of keys: nothing before numbers, numbers before texts.
bool ComesBefore(const Value& a, const Value& b) {
    const int kindOfA = IsNothing(a) ? 0 : IsText(a) ? 2 : 1;
    const int kindOfB = IsNothing(b) ? 0 : IsText(b) ? 2 : 1;
    if (kindOfA != kindOfB) return kindOfA < kindOfB;
    if (kindOfA == 0) return false;
    if (kindOfA == 2) return std::get<std::string>(a) < std::get<std::string>(b);
    if (a.index() == b.index() && std::holds_alternative<std::int64_t>(a)) {
        return std::get<std::int64_t>(a) < std::get<std::int64_t>(b);
    }
    return RealOf(a) < RealOf(b);
}

/// What a value is sorted by.
Value KeyOf(Value value) {
    if (std::string* const text = std::get_if<std::string>(&value)) *text = Fold(*text);
    return value;
}

/// Up to so many rows are looked up one by one rather than found on the way through the table.
constexpr std::size_t mostLookups = 20000;

} // namespace

RowLister::Field::Field(znIBrowserDataProperty* wanted) : property(wanted) {
    if (!property) return;
    DataProperty* const own = dynamic_cast<DataProperty*>(property);
    computed = !own || own->IsComputed();
    if (!computed) column = own;
    number = own && IsNumber(own->Type());
    Hold();
}

void RowLister::Field::Hold() {
    if (DataProperty* const own = dynamic_cast<DataProperty*>(property)) {
        holds.push_back(own->shared_from_this());
    } else if (const ScriptedValue* const script = dynamic_cast<const ScriptedValue*>(property)) {
        holds.push_back(script->Property().Owner().shared_from_this());
        holds.push_back(script->Property().shared_from_this());
    }
}

std::optional<std::size_t> RowLister::Field::ColumnIn(const Table& table) const {
    if (column) return column->ColumnIn(table);
    if (property) return std::nullopt;
    return table.displayColumn ? *table.displayColumn : table.columns.size();
}

RowLister::RowLister(SimpleSource& source, const RowQuery& query)
    : source_(source), query_(query), keys_(query.order.natural) {
    for (const RowCondition& condition : query.conditions) fields_.emplace_back(condition.property);
    if (IsSorted()) fields_.emplace_back(query.order.property);
    const CallLog::Quiet quiet(source.Log());
    for (Field& field : fields_) {
        if (field.computed) field.number = IsNumber(field.property->GetType());
    }
}

bool RowLister::Run(std::vector<std::int64_t>& rows) {
    rows.clear();
    if (query_.link && query_.link->child != static_cast<RowSource*>(&source_)) return true;
    bool read = true;
    if (query_.link && !query_.top) {
        byRow_ = true;
        read = ReadChildren(rows);
    } else {
        const std::vector<RowPart> parts = source_.Parts();
        byKey_ = IsSortedByKey(parts);
        if (byKey_) fields_.pop_back();
        byNumber_ = ReadsByNumber(parts);
        sorted_ = parts.size() == 1 && IsSortedByServer(parts.front());
        for (const RowPart& part : parts) read = ReadPart(part, rows) && read;
    }
    if (!read) {
        rows.clear();
        return false;
    }
    Compute(rows);
    if (IsSorted() && !sorted_) Sort(rows, 0, rows.size());
    if (byKey_ && query_.order.descending) std::reverse(rows.begin(), rows.end());
    return true;
}

/// Whether the order of the source itself is that of the row numbers.
bool RowLister::ReadsByNumber(const std::vector<RowPart>& parts) const {
    return parts.size() == 1 && !parts.front().table->keys && dynamic_cast<BaseSource*>(&source_);
}

/// Whether the rows are to be sorted by what is their number.
bool RowLister::IsSortedByKey(const std::vector<RowPart>& parts) const {
    if (!query_.order.sorted || !ReadsByNumber(parts)) return false;
    const Table& table = *parts.front().table;
    return fields_.back().number && table.rowidColumn && fields_.back().ColumnIn(table) == table.rowidColumn;
}

bool RowLister::ReadChildren(std::vector<std::int64_t>& rows) {
    LinkReader reader(*query_.link);
    if (!reader.Children(query_.parent, rows)) return false;
    std::erase_if(rows, [this](std::int64_t row) { return !IsAmong(row); });
    return true;
}

RowLister::PartReading RowLister::ReadingOf(const RowPart& part) const {
    PartReading reading;
    int count = 0;
    for (const Field& field : fields_) {
        const auto column = field.computed ? std::nullopt : field.ColumnIn(*part.table);
        reading.places.push_back(column ? ++count : noPlace);
        if (!column) continue;
        const bool isRowNumber = *column == part.table->columns.size();
        reading.columns +=
            ", " + (isRowNumber ? part.table->key : Database::Quoted(part.table->columns[*column].name));
    }
    if (query_.link) reading.condition = LinkReader(*query_.link).TopCondition(part, reading.values);
    if (part.table->IsOnServer()) LetServerChoose(part, reading);
    return reading;
}

bool RowLister::ReadPart(const RowPart& part, std::vector<std::int64_t>& rows) {
    const PartReading reading = ReadingOf(part);
    if (LookUp(part, reading, rows)) return true;
    if (query_.among && query_.among->Size() <= mostLookups)
        return part.table->IsOnServer() ? ReadAmongTogether(part, reading, rows)
                                        : ReadAmong(part, reading, rows);
    if (IsWhole(part) && reading.condition.empty() && CountUp(part, rows)) return true;
    Statement statement = source_.Control().Db().Prepare(part.Select(reading.columns, reading.condition) +
                                                         OrderFor(part, reading));
    int position = part.Bind(statement);
    for (const Value& value : reading.values) statement.Bind(position++, value);
    while (statement.Next()) Take(part, statement, reading, rows);
    std::string error;
    return statement.Finish(error) || source_.FailToRead(error);
}

/// The row on which the statement stands, if it is one of those meant.
void RowLister::Take(const RowPart& part, const Statement& statement, const PartReading& reading,
                     std::vector<std::int64_t>& rows) {
    const std::int64_t row = source_.RowOf({part.slot, part.table->RowAt(statement, 0)});
    if (!IsAmong(row) || !TakesRow(statement, reading.places)) return;
    rows.push_back(row);
    if (IsSorted() && !sorted_) AddKey(fields_.back(), statement, reading.places.back());
}

/// Reads each of a few rows by its key, in the order of the table.
bool RowLister::ReadAmong(const RowPart& part, const PartReading& reading, std::vector<std::int64_t>& rows) {
    std::vector<std::int64_t> keys;
    query_.among->ForEach([&](std::int64_t row) {
        const RowPlace place = source_.PlaceOf(row);
        if (place.slot == part.slot) keys.push_back(place.row);
    });
    if (!std::is_sorted(keys.begin(), keys.end())) std::sort(keys.begin(), keys.end());
    const std::string condition =
        reading.condition + (reading.condition.empty() ? "" : " AND ") + part.table->is;
    Statement statement = source_.Control().Db().Prepare(part.Select(reading.columns, condition));
    int position = part.Bind(statement);
    for (const Value& value : reading.values) statement.Bind(position++, value);
    for (const std::int64_t key : keys) {
        statement.Bind(position, key);
        if (statement.Next()) Take(part, statement, reading, rows);
        statement.Rewind();
    }
    std::string error;
    return statement.Finish(error) || source_.FailToRead(error);
}

/// Whether all rows of the table are wanted, and nothing of them but their numbers.
bool RowLister::IsWhole(const RowPart& part) const {
    return fields_.empty() && !query_.among && part.condition.empty() && !part.table->copied &&
           !part.table->keys;
}

/// Where the rows of a whole table are numbered without a gap they need not be looked at. @return false, and
/// `rows` is as it was, when they are not, or the database failed
bool RowLister::CountUp(const RowPart& part, std::vector<std::int64_t>& rows) {
    const auto ask = [&part](const std::string& what) {
        return "(SELECT " + what + " FROM " + part.From() + ")";
    };
    const std::string& key = part.table->key;
    // Each by itself: so the database counts without looking at rows.
    Statement statement = source_.Control().Db().Prepare(
        "SELECT " + ask("COUNT(*)") + ", " + ask("MIN(" + key + ")") + ", " + ask("MAX(" + key + ")"));
    if (!statement.Next()) return false;
    const std::int64_t count = statement.Integer(0);
    const std::int64_t first = statement.Integer(1);
    const auto distance =
        static_cast<std::uint64_t>(statement.Integer(2)) - static_cast<std::uint64_t>(first);
    if (count < 1 || distance != static_cast<std::uint64_t>(count) - 1) return false;
    rows.reserve(rows.size() + static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i) rows.push_back(source_.RowOf({part.slot, first + i}));
    return true;
}

/// Sorted rows are read by an index of their column, where there is one: it holds all that is needed, and
/// often has them in order. Others are read as they stand.
std::string RowLister::OrderFor(const RowPart& part, const PartReading& reading) const {
    const std::string own = " ORDER BY " + part.table->order;
    if (sorted_) {
        return " ORDER BY " + SortedBy(part) +
               (query_.order.descending ? " DESC NULLS LAST, " : " NULLS FIRST, ") + part.table->order;
    }
    if (!IsSorted() || !byNumber_ || fields_.size() != 1 || reading.places.back() == noPlace) return own;
    const auto column = fields_.back().ColumnIn(*part.table);
    if (*column == part.table->columns.size() || !part.table->columns[*column].indexed) return own;
    const std::string order = " ORDER BY " + Database::Quoted(part.table->columns[*column].name);
    const std::string select = part.Select(reading.columns, reading.condition) + order;
    return source_.Control().Db().IsReadFromIndex(select) ? order : own;
}

/// Reads the part by an index, if one of the conditions can be answered so. @return false, and `rows` is as
/// it was, when all rows have to be looked at
bool RowLister::LookUp(const RowPart& part, const PartReading& reading, std::vector<std::int64_t>& rows) {
    if (IsSorted()) return false;
    std::vector<WantedValues::Lookup> lookups;
    for (std::size_t i = 0; lookups.empty() && i < query_.conditions.size(); ++i) {
        if (!query_.conditions[i].wanted || reading.places[i] == noPlace) continue;
        const auto column = fields_[i].ColumnIn(*part.table);
        if (*column == part.table->columns.size()) continue;
        lookups = query_.conditions[i].wanted->LookupsIn(part.table->columns[*column]);
    }
    if (lookups.empty()) return false;
    std::vector<std::int64_t> found; // by their numbers in the table
    for (const WantedValues::Lookup& lookup : lookups) {
        if (!Find(part, reading, lookup, found)) return false;
    }
    if (!std::is_sorted(found.begin(), found.end())) std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    for (const std::int64_t key : found) {
        const std::int64_t row = source_.RowOf({part.slot, key});
        if (IsAmong(row)) rows.push_back(row);
    }
    return true;
}

bool RowLister::Find(const RowPart& part, const PartReading& reading, const WantedValues::Lookup& lookup,
                     std::vector<std::int64_t>& found) const {
    const std::string condition = reading.condition + (reading.condition.empty() ? "" : " AND ") + lookup.sql;
    Statement statement = source_.Control().Db().Prepare(part.Select(reading.columns, condition));
    int first = part.Bind(statement);
    for (const Value& value : reading.values) statement.Bind(first++, value);
    for (const std::vector<Value>& run : lookup.runs) {
        int position = first;
        for (const Value& value : run) statement.Bind(position++, value);
        while (statement.Next()) {
            if (TakesRow(statement, reading.places)) found.push_back(part.table->RowAt(statement, 0));
        }
        statement.Rewind();
    }
    return !statement.Failed();
}

RowLister::Cell RowLister::CellOf(const Field& field, const Statement& statement, int place) const {
    if (place == noPlace || statement.IsNull(place)) return {};
    if (field.number) return statement.Get(place);
    return std::string(statement.Text(place));
}

/// The key of the row on which the statement stands. Texts are not copied.
void RowLister::AddKey(const Field& field, const Statement& statement, int place) {
    if (place == noPlace || statement.IsNull(place)) return keys_.AddNothing();
    if (!field.number) return keys_.AddText(statement.Text(place));
    keys_.Add(statement.Get(place));
}

RowLister::Cell RowLister::CellOfText(const Field& field, std::string_view text) {
    const auto number = field.number ? NumberOfText(text) : std::nullopt;
    return number ? Cell(*number) : Cell(std::string(text));
}

bool RowLister::TakesRow(const Statement& statement, const std::vector<int>& places) const {
    for (std::size_t i = 0; i < query_.conditions.size(); ++i) {
        const RowCondition& condition = query_.conditions[i];
        const Field& field = fields_[i];
        if (field.computed) continue;
        if (condition.compare == RowCondition::Compare::Accept) {
            const bool has = places[i] != noPlace && !statement.IsNull(places[i]);
            if (!has || !condition.accept(statement.Text(places[i]))) return false;
        } else if (!Fulfils(condition, field, CellOf(field, statement, places[i]))) {
            return false;
        }
    }
    return true;
}

bool RowLister::Fulfils(const RowCondition& condition, const Field& field, const Cell& cell) {
    if (condition.compare == RowCondition::Compare::Null) return IsNothing(cell);
    if (IsNothing(cell)) return false;
    const Cell wanted = CellOfText(field, condition.value);
    if (IsText(cell) != IsText(wanted)) return false;
    switch (condition.compare) {
    case RowCondition::Compare::Less: return ComesBefore(KeyOf(cell), KeyOf(wanted));
    case RowCondition::Compare::More: return ComesBefore(KeyOf(wanted), KeyOf(cell));
    case RowCondition::Compare::AtLeast: return !ComesBefore(KeyOf(cell), KeyOf(wanted));
    case RowCondition::Compare::AtMost: return !ComesBefore(KeyOf(wanted), KeyOf(cell));
    default: return IsText(cell) ? KeyOf(cell) == KeyOf(wanted) : RealOf(cell) == RealOf(wanted);
    }
}

RowLister::Cell RowLister::ComputedCell(const Field& field, std::int64_t row) const {
    znString value;
    std::string text;
    bool has = false;
    if (!field.property) {
        has = source_.GetText(row, text);
    } else if (DataProperty* const own = dynamic_cast<DataProperty*>(field.property)) {
        has = own->ReadText(row, text);
    } else {
        const CallLog::Quiet quiet(source_.Log());
        has = field.property->GetValueString({&source_, row}, 0, value);
        text = value.Str();
    }
    return has ? CellOfText(field, text) : Cell();
}

/// What was not read together with the rows.
void RowLister::Compute(std::vector<std::int64_t>& rows) {
    const auto isLeft = [this](const Field& field) { return byRow_ || field.computed; };
    if (std::none_of(fields_.begin(), fields_.end(), isLeft)) return;
    SortKeys computed(query_.order.natural);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        bool takes = true;
        for (std::size_t c = 0; takes && c < query_.conditions.size(); ++c) {
            if (!isLeft(fields_[c])) continue;
            const RowCondition& condition = query_.conditions[c];
            const Cell cell = ComputedCell(fields_[c], rows[i]);
            takes = condition.compare == RowCondition::Compare::Accept
                        ? IsText(cell) && condition.accept(std::get<std::string>(cell))
                        : Fulfils(condition, fields_[c], cell);
        }
        if (!takes) continue;
        rows[kept] = rows[i];
        if (IsSorted()) {
            if (isLeft(fields_.back())) {
                computed.Add(ComputedCell(fields_.back(), rows[i]));
            } else {
                keys_.Move(i, kept);
            }
        }
        ++kept;
    }
    rows.resize(kept);
    if (!IsSorted()) return;
    keys_.Resize(kept);
    if (isLeft(fields_.back())) keys_ = std::move(computed);
}

/// The keys of rows that were found otherwise, each in a column.
bool RowLister::ReadKeys(const std::vector<std::int64_t>& rows) {
    std::vector<Value> values(rows.size());
    for (const RowPart& part : source_.Parts()) {
        const bool read =
            part.table->IsOnServer() ? ReadKeysTogether(part, rows, values) : ReadKeysOf(part, rows, values);
        if (!read) return false;
    }
    for (const Value& value : values) keys_.Add(value);
    return true;
}

bool RowLister::ReadKeysOf(const RowPart& part, const std::vector<std::int64_t>& rows,
                           std::vector<Value>& values) const {
    const PartReading reading = ReadingOf(part);
    if (reading.places.back() == noPlace) return true;
    std::vector<std::size_t> places;
    std::vector<std::int64_t> given;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const RowPlace place = source_.PlaceOf(rows[i]);
        if (place.slot != part.slot) continue;
        places.push_back(i);
        given.push_back(place.row);
    }
    Database& database = source_.Control().Db();
    Statement statement =
        database.Prepare("SELECT given.key, c.value FROM " + std::string(database.Sql().given) +
                         " CROSS JOIN (SELECT " + part.table->key + " AS item" + reading.columns +
                         " AS value FROM " + part.From() + ") AS c ON c.item = given.value");
    statement.Bind(1, database.ListOf(*part.table, given));
    while (statement.Next())
        values[places[static_cast<std::size_t>(statement.Integer(0))]] = CellOf(fields_.back(), statement, 1);
    std::string error;
    return statement.Finish(error) || source_.FailToRead(error);
}

bool RowLister::RunBelow(const std::vector<std::int64_t>& parents, RowGroups& groups) {
    if (!LinkReader(*query_.link).Children(parents, groups)) return false;
    if (!IsSorted()) return true;
    if (!ReadKeys(groups.rows)) return false;
    byNumber_ = false; // in each group they are as the source has them
    std::size_t begin = 0;
    for (const std::size_t end : groups.ends) {
        Sort(groups.rows, begin, end);
        begin = end;
    }
    return true;
}

bool RowLister::SortRows(std::vector<std::int64_t>& rows) {
    if (!ReadsByNumber(source_.Parts()) || !ReadKeys(rows)) return false;
    Sort(rows, 0, rows.size());
    return true;
}

void RowLister::Sort(std::vector<std::int64_t>& rows, std::size_t begin, std::size_t end) const {
    keys_.Sort(rows, begin, end, query_.order.descending, byNumber_,
               [this] { source_.Control().Services().WhyStop(); });
}

} // namespace znhost
