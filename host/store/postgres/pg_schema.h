// The tables and views of a database on a PostgreSQL server.
#ifndef ZN_HOST_PG_SCHEMA_H
#define ZN_HOST_PG_SCHEMA_H

#include "store/schema.h"

#include <unordered_map>

namespace znhost {

/// Tables, views, materialized views, partitioned and foreign tables that the user may see, but for the
/// partitions, which are parts of others. A table that the search path does not find bears the name of its
/// schema before its own: "stock.part".
class PgSchema {
public:
    explicit PgSchema(Database& database) : database_(database) {}

    bool Read(Database::Tables& tables, std::string& error);
    /// Whether some rows lie on other servers, of whose changes this one knows nothing.
    bool HasOtherServers() const { return hasOtherServers_; }

private:
    /// By the number that the server gives the table.
    using Found = std::unordered_map<std::int64_t, struct PgTable>;

    bool ReadList(Found& found, std::string& error);
    bool ReadColumns(Found& found, std::string& error);
    bool ReadPrimaryKeys(Found& found, std::string& error);
    bool ReadForeignKeys(Found& found, std::string& error);
    void NumberRows(struct PgTable& table);

    Database& database_;
    bool hasOtherServers_ = false;
    /// By table and key: the numbers stay when tables are read again.
    std::unordered_map<std::string, std::shared_ptr<RowKeys>> keys_;
};

} // namespace znhost

#endif
