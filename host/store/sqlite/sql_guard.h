// Whether a piece of SQL that a script gives is a condition on the rows of a table, and nothing else.
#ifndef ZN_HOST_SQL_GUARD_H
#define ZN_HOST_SQL_GUARD_H

#include "store/sqlite/sqlite_database.h"

namespace znhost {

/// As `Database::CheckExpression`.
bool CheckExpression(SqliteDatabase& database, std::string_view table, std::string_view code, int& parameters,
                     std::string& error);

} // namespace znhost

#endif
