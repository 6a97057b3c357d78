// A base data source: a table or a view of the database.
#ifndef ZN_HOST_BASE_SOURCE_H
#define ZN_HOST_BASE_SOURCE_H

#include "store/simple_source.h"

#include <unordered_map>

namespace znhost {

/// A table or a view. Each of its columns is an attribute property from the start, named as the column. When
/// the table is dropped all that is made of the source lets go of it. The object itself stays, without rows,
/// and comes to life again with a table of that name.
class BaseSource final : public SimpleSource {
public:
    BaseSource(DataCtrl& control, std::string name) : SimpleSource(control, std::move(name)) {}

    /// The table as it was when the control last looked; null while there is none.
    const Schema::TablePtr& Table() const { return table_; }
    void SetTable(Schema::TablePtr table);
    /// The properties of columns that the table had once and has not now.
    std::vector<DataProperty*> MissingProperties() const;
    /// As `ReadColumn` of the source; a place in its own table.
    bool ReadValue(std::int64_t row, std::size_t column, const std::function<void(Statement&)>& take);

    bool IsOfView() override { return table_ && table_->view; }
    std::vector<RowPart> Parts() override;
    BaseSource* BaseAt(std::size_t) override { return this; }
    std::vector<BaseSource*> Bases() override { return {this}; }
    std::int64_t RowOf(RowPlace place) override { return place.row; }
    RowPlace PlaceOf(std::int64_t row) override { return {0, row}; }

protected:
    bool IsCustomSource() const override { return false; }
    Schema::TablePtr TableOfAttributes() override { return table_; }
    std::vector<DataProperty*> ColumnProperties() override;
    DataProperty* FindColumnProperty(std::string_view name) override;

private:
    DataProperty& PropertyOf(const TableColumn& column);
    bool TryRead(std::int64_t row, std::size_t column, const std::function<void(Statement&)>& take,
                 bool& found, std::string& error);

    Schema::TablePtr table_;
    std::vector<std::string> valueSql_; // by column, made when first needed
    // Those of columns that have gone are kept, for when these come back.
    std::unordered_map<std::string, std::shared_ptr<DataProperty>> columnProperties_;
};

} // namespace znhost

#endif
