// The tables and views of a database of SQLite.
#ifndef ZN_HOST_SQLITE_SCHEMA_H
#define ZN_HOST_SQLITE_SCHEMA_H

#include "store/database.h"
#include "znBrowserTypes.h"

namespace znhost {

bool ReadSqliteTables(Database& database, Database::Tables& tables, std::string& error);

/// The data type of a column declared so.
ZNBROWSER_DATA_TYPE TypeOfDeclaration(std::string_view declaredType);

} // namespace znhost

#endif
