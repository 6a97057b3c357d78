#include "store/schema.h"

#include <algorithm>

namespace znhost {
namespace {

char Folded(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
}

} // namespace

bool SameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                              [](char one, char two) { return Folded(one) == Folded(two); });
}

std::optional<std::size_t> Table::FindColumn(std::string_view column) const {
    auto found = std::find_if(columns.begin(), columns.end(),
                              [column](const TableColumn& one) { return one.name == column; });
    if (found == columns.end()) { // some engines have two that differ by case
        found = std::find_if(columns.begin(), columns.end(),
                             [column](const TableColumn& one) { return SameName(one.name, column); });
    }
    if (found == columns.end()) return std::nullopt;
    return static_cast<std::size_t>(found - columns.begin());
}

std::string Table::ConditionOf(std::int64_t row) const {
    if (copied) return {};
    const std::string literal = keys ? Database::QuotedText(keys->KeyOf(row)) : std::to_string(row);
    std::string condition = is; // a name before it may hold a `?`, too
    return condition.replace(condition.rfind('?'), 1, literal);
}

void Table::FindDisplayColumn() {
    for (const char* const one : {"name", "title", "label", "caption", "number"}) {
        if ((displayColumn = FindColumn(one))) return;
    }
    const auto text =
        std::find_if(columns.begin(), columns.end(), [](const TableColumn& column) { return column.text; });
    if (text != columns.end()) {
        displayColumn = static_cast<std::size_t>(text - columns.begin());
    }
}

const std::vector<Schema::TablePtr>& Schema::Tables() {
    std::string ignored;
    Refresh(ignored);
    return tables_;
}

Schema::TablePtr Schema::Find(std::string_view name) {
    for (const TablePtr& table : Tables()) {
        if (SameName(table->name, name)) return table;
    }
    return nullptr;
}

bool Schema::Refresh(std::string& error) {
    Database::Stamp now;
    if (!database_.ReadStamp(now, error)) return false;
    if (now.SameTables(stamp_)) return true;
    Database::Tables tables;
    if (!database_.ReadTables(tables, error)) return false;
    tables_.assign(tables.begin(), tables.end());
    stamp_ = now;
    return true;
}

} // namespace znhost
