// Long values of SQLite, read in parts.
#ifndef ZN_HOST_SQLITE_VALUES_H
#define ZN_HOST_SQLITE_VALUES_H

#include "store/column_values.h"

#include <memory>

struct sqlite3;
struct sqlite3_blob;

namespace znhost {

class SqliteValues final : public ColumnValues {
public:
    /// Of a table with row numbers in the database "main". The names are the database's own.
    SqliteValues(sqlite3* connection, std::string table, std::string column)
        : connection_(connection), table_(std::move(table)), column_(std::move(column)) {}

    bool Read(std::int64_t row, std::size_t most, std::string& beginning, std::size_t& size) override;

private:
    struct Close {
        void operator()(sqlite3_blob* value) const;
    };

    bool Find(std::int64_t row);

    sqlite3* const connection_;
    const std::string table_;
    const std::string column_;
    std::unique_ptr<sqlite3_blob, Close> value_;
};

} // namespace znhost

#endif
