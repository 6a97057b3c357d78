#include "store/cell_texts.h"

#include "base/text.h"
#include "model/row_source.h"
#include "store/blob_text.h"
#include "store/data_property.h"

namespace znhost {

namespace {

/// From so many bytes on, finding the beginning of a value by itself is faster than reading it whole.
constexpr std::size_t longValue = 4 * longestCell;

/// What a cell shows of the text, which is handed on where nothing has to be changed.
std::string CutInTcl(std::string text) {
    if (text.size() > longestCell) {
        text.resize(Beginning(text, longestCell).size());
        text += "…";
    }
    std::string converted;
    return ToTcl(text, converted).data() == text.data() ? std::move(text) : converted;
}

} // namespace

CellTexts::CellTexts(Database& database, const Table& table,
                     const std::vector<znIBrowserDataProperty*>& properties)
    : database_(database), table_(table), cells_(properties.size()) {
    for (std::size_t i = 0; i < properties.size(); ++i) {
        if (i) sql_ += ", ";
        sql_ += Add(cells_[i], properties[i]);
    }
}

/// What is asked for; NULL when the table has no such column. Of texts and blobs in a column with long ones
/// only the kind is, as a blob that is empty for a text: the statement does not read the values then.
std::string CellTexts::Add(Cell& cell, znIBrowserDataProperty* property) {
    if (!property) return table_.naming;
    const auto column = static_cast<DataProperty*>(property)->ColumnIn(table_);
    if (!column) return "NULL";
    cell.column = &table_.columns[*column];
    const std::string name = Database::Quoted(cell.column->name);
    if (cell.column->hasLong) cell.values = database_.OpenValues(table_, *cell.column);
    if (!cell.values) return name;
    return "CASE typeof(" + name + ") WHEN 'text' THEN x'' WHEN 'blob' THEN x'00' ELSE " + name + " END";
}

void CellTexts::Take(const Statement& statement, int first, std::int64_t row,
                     std::optional<std::string>* texts) {
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        const Cell& cell = cells_[i];
        const int column = first + static_cast<int>(i);
        const Statement::Type type = statement.TypeOf(column);
        if (type == Statement::Type::Null) continue;
        const bool isBlob = type == Statement::Type::Blob;
        if (cell.values && isBlob) {
            texts[i] = TakeLong(cell, !statement.Stored(column).empty(), row);
            continue;
        }
        texts[i] = statement.Shown(column, longestCell);
        if (cell.column && (isBlob || texts[i]->size() > longestCell))
            cell.column->hasLong = cell.column->hasLong || statement.Stored(column).size() > longValue;
    }
}

std::string CellTexts::TakeLong(const Cell& cell, bool isBlob, std::int64_t row) const {
    std::string beginning;
    std::size_t size = 0;
    if (cell.values->Read(row, longestCell + 1, beginning, size))
        return isBlob ? DescribeBlob(beginning, size) : CutInTcl(std::move(beginning));
    Statement whole = database_.Prepare("SELECT " + Database::Quoted(cell.column->name) + " FROM " +
                                        table_.rows + " WHERE " + table_.is);
    table_.BindRow(whole, 1, row);
    return whole.Next() ? whole.Shown(0, longestCell) : std::string();
}

} // namespace znhost
