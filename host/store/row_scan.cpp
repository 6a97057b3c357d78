// Searching all rows of a source, a slice at a time.
#include "base/text.h"
#include "model/row_source.h"
#include "store/data_ctrl.h"
#include "store/data_property.h"
#include "store/simple_source.h"

#include <algorithm>

namespace znhost {

namespace {

using Clock = std::chrono::steady_clock;

/// The clock is asked once for so many rows.
constexpr std::int64_t rowsBetweenLooks = 128;

/// What is read of a table for the search: its key, and a column for each property that it has.
std::string ColumnsFor(const RowScan& scan, const Table& table, std::vector<std::size_t>& places) {
    std::string columns;
    for (std::size_t place = 0; place < scan.properties.size(); ++place) {
        DataProperty* const property = static_cast<DataProperty*>(scan.properties[place]);
        std::optional<std::size_t> column = property ? property->ColumnIn(table) : table.displayColumn;
        if (property && !column) continue;
        columns += ", " + (column ? Database::Quoted(table.columns[*column].name) : table.key);
        places.push_back(place);
    }
    return columns;
}

bool Takes(const RowScan& scan, const Statement& statement, const std::vector<std::size_t>& places) {
    for (std::size_t i = 0; i < places.size(); ++i) {
        const int column = static_cast<int>(i) + 1;
        if (!statement.IsNull(column) && scan.accept(places[i], statement.Text(column))) return true;
    }
    return false;
}

} // namespace

/// The search through one table of the source.
class SimpleSource::PartScan {
public:
    PartScan(SimpleSource& source, const RowPart& part, RowScan& scan, Found& found)
        : source_(source), part_(part), scan_(scan), found_(found),
          columns_(ColumnsFor(scan, *part.table, places_)) {}

    /// @return false when there was no time for all of it
    bool Run(Clock::time_point until) {
        if (scan_.among && scan_.among->Size() <= mostLookups) return RunAmong(until);
        return part_.table->IsOnServer() ? RunSlices(until) : RunThrough(until);
    }

private:
    /// Up to so many rows are looked up one by one.
    static constexpr std::size_t mostLookups = 20000;
    static constexpr std::ptrdiff_t rowsTogether = 1000;
    /// A server is asked about so many at once.
    static constexpr std::int64_t rowsInSlice = 50000;

    bool RunThrough(Clock::time_point until) {
        const Table& table = *part_.table;
        Statement statement = source_.control_.Db().Prepare(
            part_.Select(columns_, scan_.inPart ? table.Stands(">") : std::string()) + " ORDER BY " +
            table.order);
        const int position = part_.Bind(statement);
        if (scan_.inPart) table.BindRow(statement, position, scan_.row);
        for (std::int64_t count = 1; statement.Next(); ++count) {
            Take(statement);
            if (count % rowsBetweenLooks == 0 && Clock::now() >= until) return false;
        }
        return Finish(statement);
    }

    bool RunAmong(Clock::time_point until) {
        std::vector<std::int64_t> keys;
        scan_.among->ForEach([&](std::int64_t row) {
            const RowPlace place = source_.PlaceOf(row);
            if (place.slot == part_.slot && (!scan_.inPart || place.row > scan_.row))
                keys.push_back(place.row);
        });
        if (!std::is_sorted(keys.begin(), keys.end())) std::sort(keys.begin(), keys.end());
        if (part_.table->IsOnServer()) return RunTogether(keys, until);
        Statement statement = source_.control_.Db().Prepare(part_.Select(columns_, part_.table->is));
        const int position = part_.Bind(statement);
        std::int64_t count = 0;
        for (const std::int64_t key : keys) {
            statement.Bind(position, key);
            if (statement.Next()) Take(statement);
            statement.Rewind();
            if (++count % rowsBetweenLooks == 0 && Clock::now() >= until) return false;
        }
        return Finish(statement);
    }

    /// Asks a server for many of the rows at once.
    bool RunTogether(const std::vector<std::int64_t>& keys, Clock::time_point until) {
        Database& database = source_.control_.Db();
        Statement statement = database.Prepare(part_.Select(columns_, part_.table->among));
        const int position = part_.Bind(statement);
        for (auto first = keys.begin(); first != keys.end() && !statement.Failed();) {
            const auto end = first + std::min<std::ptrdiff_t>(keys.end() - first, rowsTogether);
            statement.Bind(position, database.ListOf(*part_.table, {first, end}));
            while (statement.Next()) Take(statement);
            statement.Rewind();
            scan_.row = *(end - 1);
            scan_.inPart = true;
            first = end;
            if (Clock::now() >= until && first != keys.end()) return false;
        }
        return Finish(statement);
    }

    /// What a server is asked of so many rows: only those that may be taken, and how many it looked at, are
    /// sent. The values are what is held, for each column, those of the part, and the row behind which it
    /// goes on.
    std::string SliceSql() const {
        const Table& table = *part_.table;
        std::string holds;
        for (const std::size_t column : HeldBy())
            holds += (holds.empty() ? "" : " OR ") + table.columns[column].holds;
        if (holds.empty()) holds = "TRUE";
        return "SELECT * FROM (SELECT *, row_number() OVER () AS znbrowser_place, count(*) OVER () AS "
               "znbrowser_count FROM (" +
               part_.Select(columns_ + ", " + holds + " AS znbrowser_held",
                            scan_.inPart ? table.Stands(">") : std::string()) +
               " ORDER BY " + table.order + " LIMIT " + std::to_string(rowsInSlice) +
               ") AS slice) AS numbered WHERE znbrowser_held OR znbrowser_place = znbrowser_count";
    }

    /// The columns in which the server looks for what each text holds that is taken; none when it cannot in
    /// all.
    std::vector<std::size_t> HeldBy() const {
        const Table& table = *part_.table;
        std::vector<std::size_t> columns;
        if (scan_.holds.empty() || HoldsNul(scan_.holds) || found_.others) return columns;
        for (const std::size_t place : places_) {
            DataProperty* const property = static_cast<DataProperty*>(scan_.properties[place]);
            const auto column = property ? property->ColumnIn(table) : table.displayColumn;
            if (!column || table.columns[*column].holds.empty()) return {};
            columns.push_back(*column);
        }
        return columns;
    }

    /// Lets a server look for what is searched.
    bool RunSlices(Clock::time_point until) {
        const int count = static_cast<int>(places_.size()) + 3;
        for (;;) {
            Statement statement = source_.control_.Db().Prepare(SliceSql());
            int position = 1;
            for (std::size_t i = HeldBy().size(); i > 0; --i) statement.Bind(position++, scan_.holds);
            position = part_.Bind(statement, position);
            if (scan_.inPart) part_.table->BindRow(statement, position, scan_.row);
            const std::int64_t before = scan_.looked;
            std::int64_t looked = 0;
            while (statement.Next()) {
                looked = statement.Integer(count);
                Take(statement);
            }
            scan_.looked = before + looked;
            if (statement.Failed() || looked < rowsInSlice) return Finish(statement);
            if (Clock::now() >= until) return false;
        }
    }

    void Take(const Statement& statement) {
        scan_.row = part_.table->RowAt(statement, 0);
        scan_.inPart = true;
        ++scan_.looked;
        const std::int64_t row = source_.RowOf({part_.slot, scan_.row});
        if (scan_.among && !scan_.among->Has(row)) return;
        if (Takes(scan_, statement, places_)) {
            found_.rows.push_back(row);
        } else if (found_.others) {
            found_.others->push_back(row);
        }
    }

    bool Finish(const Statement& statement) {
        std::string error;
        if (!statement.Finish(error)) scan_.failed = !source_.FailToRead(error);
        return true;
    }

    SimpleSource& source_;
    const RowPart& part_;
    RowScan& scan_;
    Found& found_;
    std::vector<std::size_t> places_;
    const std::string columns_;
};

void SimpleSource::Scan(RowScan& scan, Clock::time_point until, std::vector<std::int64_t>& rows,
                        std::vector<std::int64_t>* others) {
    const std::shared_ptr<SimpleSource> self = shared_from_this();
    const std::vector<RowPart> parts = Parts();
    Found found{rows, others};
    while (scan.part < parts.size()) {
        if (!PartScan(*this, parts[scan.part], scan, found).Run(until)) return;
        scan.inPart = false;
        ++scan.part;
    }
    scan.done = true;
}

std::uint64_t SimpleSource::Version() { return control_.Version(); }

} // namespace znhost
