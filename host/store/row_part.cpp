#include "store/row_part.h"

namespace znhost {

std::string RowPart::Where(std::string_view more) const {
    if (condition.empty() && more.empty()) return {};
    if (condition.empty()) return " WHERE " + std::string(more);
    return " WHERE " + condition + (more.empty() ? "" : " AND " + std::string(more));
}

int RowPart::Bind(Statement& statement, int position) const {
    for (const Value& value : values) statement.Bind(position++, value);
    return position;
}

} // namespace znhost
