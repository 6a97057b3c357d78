#include "store/asked_rows.h"

#include "store/data_ctrl.h"
#include "store/simple_source.h"

namespace znhost {

AskedRows::AskedRows(SimpleSource& source, const RowPart& part, const std::vector<std::int64_t>& rows)
    : source_(source), part_(part) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const RowPlace place = source.PlaceOf(rows[i]);
        if (place.slot != part.slot) continue;
        rows_.push_back(place.row);
        places_.emplace(place.row, i);
    }
}

int AskedRows::Bind(Statement& statement, int position) const {
    statement.Bind(position, source_.Control().Db().ListOf(*part_.table, rows_));
    return position + 1;
}

Statement AskedRows::Ask(const std::string& columns, const std::string& order) const {
    const Table& table = *part_.table;
    Statement statement =
        source_.Control().Db().Prepare("SELECT " + table.key + columns + " FROM " + part_.From() + " WHERE " +
                                       table.among + (order.empty() ? "" : " ORDER BY " + order));
    Bind(statement, 1);
    return statement;
}

} // namespace znhost
