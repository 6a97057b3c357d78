#include "app/row_inserts.h"

#include "host/znBrowserDataItems.h"
#include "rows/row_model.h"
#include "store/base_source.h"
#include "store/data_ctrl.h"

#include <algorithm>

namespace znhost {

namespace {

constexpr std::size_t mostAtOnce = 1000;
constexpr std::size_t mostBytes = std::size_t{1} << 23;

} // namespace

bool RowInserts::Make(const std::vector<std::uint32_t>& indices, const Take& take, std::string& error) {
    std::vector<Wanted> wanted;
    for (const std::uint32_t index : indices) {
        Wanted one{};
        if (Find(index, one)) wanted.push_back(one);
    }
    for (std::size_t next = 0; next < wanted.size();) {
        const auto& [source, row] = wanted[next];
        const auto line = source->lines.find(row);
        if (!source->table->IsOnServer()) {
            if (!ReadOne(wanted[next++], take, error)) return false;
        } else if (line == source->lines.end()) {
            if (!ReadFrom(wanted, next, error)) return false;
        } else {
            if (!line->second.empty() && !take(line->second)) return false;
            ++next;
        }
    }
    return true;
}

bool RowInserts::ReadOne(const Wanted& wanted, const Take& take, std::string& error) {
    std::string line;
    {
        Statement statement = wanted.source->database.Prepare(wanted.source->select);
        wanted.source->table->BindRow(statement, 1, wanted.row);
        if (statement.Next()) line = std::string(statement.Text(1)) + "\n";
        if (!statement.Finish(error)) return false;
    }
    return line.empty() || take(line);
}

/// @return false when it is no row of a table
bool RowInserts::Find(std::uint32_t index, Wanted& wanted) {
    znBrowserDataItem item;
    auto* const source = rows_.GetItem(index, item) ? dynamic_cast<SimpleSource*>(item.source) : nullptr;
    if (!source) return false;
    const RowPlace place = source->PlaceOf(item.row);
    BaseSource* const base = source->BaseAt(place.slot);
    const Schema::TablePtr table = base ? base->Table() : nullptr;
    if (!table) return false;
    auto known = sources_.find(table.get());
    if (known == sources_.end()) {
        Database& database = base->Control().Db();
        known =
            sources_.try_emplace(table.get(), Source{table, database, database.InsertSql(*table), {}}).first;
    }
    wanted = {&known->second, place.row};
    return true;
}

/// Holds the lines of some rows from `first` on, and no others.
bool RowInserts::ReadFrom(const std::vector<Wanted>& wanted, std::size_t first, std::string& error) {
    const std::size_t end = std::min(first + atOnce_, wanted.size());
    for (auto& [table, source] : sources_) source.lines.clear();
    bytes_ = 0;
    isFull_ = false;
    std::map<Source*, std::vector<std::int64_t>> asked;
    for (std::size_t i = first; i < end; ++i) {
        if (wanted[i].source->table->IsOnServer()) asked[wanted[i].source].push_back(wanted[i].row);
    }
    for (const auto& [source, rows] : asked) {
        if (!Read(*source, rows, error)) return false;
    }
    if (isFull_)
        atOnce_ = std::max<std::size_t>(atOnce_ / 2, 1);
    else if (bytes_ < mostBytes / 4)
        atOnce_ = std::min(atOnce_ * 2, mostAtOnce);
    return true;
}

bool RowInserts::Read(Source& source, const std::vector<std::int64_t>& rows, std::string& error) {
    const Table& table = *source.table;
    for (const std::int64_t row : rows) source.lines.try_emplace(row);
    Statement statement = source.database.Prepare(source.select);
    statement.Bind(1, source.database.ListOf(table, rows));
    while (statement.Next()) {
        const auto line = source.lines.find(table.RowAt(statement, 0));
        if (line == source.lines.end()) continue;
        isFull_ = bytes_ >= mostBytes;
        if (isFull_) {
            source.lines.erase(line);
        } else {
            line->second = std::string(statement.Text(1)) + "\n";
            bytes_ += line->second.size();
        }
    }
    return statement.Finish(error);
}

} // namespace znhost
