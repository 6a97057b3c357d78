#include "store/base_source.h"

#include "store/data_ctrl.h"

namespace znhost {

void BaseSource::SetTable(Schema::TablePtr table) {
    table_ = std::move(table);
    valueSql_.clear();
}

std::vector<RowPart> BaseSource::Parts() {
    if (!LookAgain()) return {};
    if (!table_) {
        FailWith("There is no table \"" + Name() + "\" any more");
        return {};
    }
    std::string error;
    if (!Control().Copies().Refresh(*table_, error)) {
        FailToRead(error);
        return {};
    }
    return {RowPart{0, table_, {}, {}}};
}

DataProperty& BaseSource::PropertyOf(const TableColumn& column) {
    std::shared_ptr<DataProperty>& property = columnProperties_[column.name];
    if (!property) property = std::make_shared<ColumnProperty>(*this, column.name);
    return *property;
}

std::vector<DataProperty*> BaseSource::ColumnProperties() {
    std::vector<DataProperty*> properties;
    if (!table_) return properties;
    for (const TableColumn& column : table_->columns) properties.push_back(&PropertyOf(column));
    return properties;
}

std::vector<DataProperty*> BaseSource::MissingProperties() const {
    std::vector<DataProperty*> missing;
    for (const auto& [name, property] : columnProperties_) {
        const auto column = table_ ? table_->FindColumn(name) : std::nullopt;
        if (!column || table_->columns[*column].name != name) missing.push_back(property.get());
    }
    return missing;
}

DataProperty* BaseSource::FindColumnProperty(std::string_view name) {
    LookAgain(); // the table last known will do
    if (!table_) return nullptr;
    const auto column = table_->FindColumn(name);
    if (!column || table_->columns[*column].name != name) return nullptr;
    return &PropertyOf(table_->columns[*column]);
}

bool BaseSource::TryRead(std::int64_t row, std::size_t column, const std::function<void(Statement&)>& take,
                         bool& found, std::string& error) {
    if (!Control().Copies().Refresh(*table_, error)) return false;
    if (valueSql_.empty()) valueSql_.resize(table_->columns.size() + 1);
    std::string& sql = valueSql_[column];
    if (sql.empty()) {
        const bool isName = column == table_->columns.size();
        sql = "SELECT " + (isName ? table_->naming : Database::Quoted(table_->columns[column].name)) +
              " FROM " + table_->rows + " WHERE " + table_->is;
    }
    Statement statement = Control().Db().Prepare(sql);
    table_->BindRow(statement, 1, row);
    found = statement.Next();
    if (found) take(statement);
    return statement.Finish(error);
}

// The table is taken as it was last seen, which saves a look at the database for each value. When that fails
// it may have changed.
bool BaseSource::ReadValue(std::int64_t row, std::size_t column,
                           const std::function<void(Statement&)>& take) {
    bool found = false;
    std::string error;
    const Schema::TablePtr seen = table_;
    if (seen && column <= seen->columns.size() && TryRead(row, column, take, found, error)) return found;
    Control().Refresh(error);
    if (table_ == seen || !table_ || column > table_->columns.size()) {
        if (!error.empty()) FailToRead(error);
        return false;
    }
    if (!TryRead(row, column, take, found, error)) FailToRead(error);
    return found;
}

} // namespace znhost
