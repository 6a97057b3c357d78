// Temporary copies of the rows of views and other tables of SQLite whose rows have no numbers of their own.
#ifndef ZN_HOST_SQLITE_COPIES_H
#define ZN_HOST_SQLITE_COPIES_H

#include "store/database.h"

namespace znhost {

/// Makes the copy of a table that is `copied`, or brings it up to date. The user's database is not touched.
bool CopySqliteRows(Database& database, const Table& table, std::string& error);

} // namespace znhost

#endif
