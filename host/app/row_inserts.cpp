#include "app/row_inserts.h"

#include "host/znBrowserDataItems.h"
#include "rows/row_model.h"
#include "store/base_source.h"
#include "store/data_ctrl.h"

namespace znhost {

bool RowInserts::Make(std::uint32_t index, std::string& line, std::string& error) {
    line.clear();
    znBrowserDataItem item;
    auto* const source = rows_.GetItem(index, item) ? dynamic_cast<SimpleSource*>(item.source) : nullptr;
    if (!source) return true;
    const RowPlace place = source->PlaceOf(item.row);
    BaseSource* const base = source->BaseAt(place.slot);
    const Schema::TablePtr table = base ? base->Table() : nullptr;
    if (!table) return true;
    const auto [known, isNew] = sources_.try_emplace(table.get());
    if (isNew) known->second = {table, base->Control().Db().InsertSql(*table)};
    Statement statement = base->Control().Db().Prepare(known->second.select);
    table->BindRow(statement, 1, place.row);
    if (statement.Next()) line = std::string(statement.Text(0)) + "\n";
    return statement.Finish(error);
}

} // namespace znhost
