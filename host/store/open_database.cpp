// Which engine a database is of.
#include "base/native.h"
#include "store/database.h"
#ifdef ZN_POSTGRES
#include "store/postgres/pg_database.h"
#endif

namespace znhost {

std::unique_ptr<Database> Database::Open(const std::string& name, std::string& error, Access access) {
    if (!IsOnServer(name)) return name.empty() ? OpenMemory(error) : OpenFile(name, error, access);
#ifdef ZN_POSTGRES
    return PgDatabase::Open(name, error, access);
#else
    error = "this program was built without PostgreSQL: it opens files only";
    return nullptr;
#endif
}

} // namespace znhost
