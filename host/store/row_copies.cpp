#include "store/row_copies.h"

namespace znhost {

bool RowCopies::Refresh(const Table& table, std::string& error) {
    if (!table.problem.empty()) {
        error = table.problem;
        return false;
    }
    if (!table.copied) return true;
    Database::Stamp now;
    if (!database_.ReadStamp(now, error)) return false;
    Last& last = last_[table.name];
    if (now.SameRows(last.stamp)) {
        error = last.tooLarge;
        return error.empty();
    }
    const bool filled = database_.CopyRows(table, error);
    if (filled) {
        last = {now, ""};
    } else {
        last = database_.IsTooLarge(error) ? Last{now, error} : Last();
    }
    return filled;
}

} // namespace znhost
