#include "store/sqlite/sqlite_values.h"

#include <sqlite3.h>

#include <algorithm>

namespace znhost {

void SqliteValues::Close::operator()(sqlite3_blob* value) const { sqlite3_blob_close(value); }

/// One that was opened moves on to the next row in a fifth of the time. After a failure it is of no use any
/// more.
bool SqliteValues::Find(std::int64_t row) {
    if (value_) {
        if (sqlite3_blob_reopen(value_.get(), row) == SQLITE_OK) return true;
        value_.reset();
        return false;
    }
    sqlite3_blob* opened = nullptr;
    const int outcome =
        sqlite3_blob_open(connection_, "main", table_.c_str(), column_.c_str(), row, 0, &opened);
    value_.reset(opened);
    return outcome == SQLITE_OK;
}

bool SqliteValues::Read(std::int64_t row, std::size_t most, std::string& beginning, std::size_t& size) {
    if (!Find(row)) return false;
    size = static_cast<std::size_t>(sqlite3_blob_bytes(value_.get()));
    beginning.resize(std::min(size, most));
    return sqlite3_blob_read(value_.get(), beginning.data(), static_cast<int>(beginning.size()), 0) ==
           SQLITE_OK;
}

} // namespace znhost
