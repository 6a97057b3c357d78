// Whether a piece of SQL that a script gives is a condition on the rows of a table of a server.
#ifndef ZN_HOST_PG_GUARD_H
#define ZN_HOST_PG_GUARD_H

#include "store/schema.h"

namespace znhost {

/// As `Database::CheckExpression`. Functions that may do more than compute are those that the server holds
/// for volatile.
bool CheckPgExpression(Database& database, const Table& table, std::string_view code, int& parameters,
                       std::string& error);

} // namespace znhost

#endif
