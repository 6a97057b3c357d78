// The rows of a simple data source as time goes by: how many there are, and which are new.
#include "store/data_ctrl.h"
#include "store/simple_source.h"
#include "store/wanted_values.h"

#include <limits>

namespace znhost {

namespace {

/// Of a table that has no rows, or was not there.
constexpr std::int64_t noRow = std::numeric_limits<std::int64_t>::min();

std::int64_t GreatestOf(const RowMark& mark, std::size_t slot) {
    return slot < mark.greatest.size() ? mark.greatest[slot] : noRow;
}

} // namespace

bool SimpleSource::HasMoreThan(std::size_t count) {
    for (const RowPart& part : Parts()) {
        Statement statement =
            control_.Db().Prepare("SELECT COUNT(*) FROM (" + part.Select() + " LIMIT ?) AS found");
        statement.Bind(part.Bind(statement), static_cast<std::int64_t>(count) + 1);
        const std::size_t found = statement.Next() ? static_cast<std::size_t>(statement.Integer(0)) : 0;
        std::string error;
        if (!statement.Finish(error)) return FailToRead(error);
        if (found > count) return true;
        count -= found;
    }
    return false;
}

// All rows of the table count, also those that the source does not take: the greatest is found at once.
RowMark SimpleSource::Mark() {
    RowMark mark;
    for (const RowPart& part : Parts()) {
        if (mark.greatest.size() <= part.slot) mark.greatest.resize(part.slot + 1, noRow);
        const Table& table = *part.table;
        // Keys are numbered when they are seen: all that are there are looked at.
        Statement statement = control_.Db().Prepare(
            "SELECT " + (table.keys ? table.key : "MAX(" + table.key + ")") + " FROM " + part.From());
        if (table.keys) {
            while (statement.Next()) table.RowAt(statement, 0);
            mark.greatest[part.slot] = table.keys->Greatest();
        }
        if (statement.Next() && !statement.IsNull(0)) mark.greatest[part.slot] = statement.Integer(0);
        std::string error;
        if (!statement.Finish(error)) FailToRead(error);
    }
    return mark;
}

void SimpleSource::NewRows(const RowMark& since, std::vector<std::int64_t>& rows) {
    rows.clear();
    for (const RowPart& part : Parts()) {
        const std::int64_t greatest = GreatestOf(since, part.slot);
        const std::string& key = part.table->key;
        const std::shared_ptr<RowKeys>& keys = part.table->keys;
        const bool all = greatest == noRow || keys;
        Statement statement = control_.Db().Prepare(part.Select({}, all ? "" : key + " > ?"));
        const int position = part.Bind(statement);
        if (!all) statement.Bind(position, greatest);
        while (statement.Next()) {
            const std::int64_t row = part.table->RowAt(statement, 0);
            if (!keys || row > greatest) rows.push_back(RowOf({part.slot, row}));
        }
        std::string error;
        if (!statement.Finish(error)) FailToRead(error);
    }
}

RowCondition SimpleSource::OneOf(znIBrowserDataProperty& property, const std::vector<znString>& values) {
    const CallLog::Quiet quiet(log_);
    RowCondition condition;
    condition.property = &property;
    const auto wanted = std::make_shared<WantedValues>(values, IsNumber(property.GetType()));
    condition.accept = [wanted](std::string_view text) { return wanted->Has(text); };
    condition.wanted = wanted;
    return condition;
}

} // namespace znhost
