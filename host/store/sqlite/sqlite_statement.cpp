#include "store/sqlite/sqlite_statement.h"

#include "store/sqlite/sqlite_database.h"

#include <sqlite3.h>

namespace znhost {

void FinalizeStatement::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

bool SqliteStatement::Check(int outcome) {
    if (outcome == SQLITE_OK) return true;
    if (outcome == SQLITE_INTERRUPT && !owner_.WhyStopped().empty()) {
        reason_ = owner_.WhyStopped();
        return false;
    }
    // The connection's message tells more than the code, but is about the last call on the connection only.
    const bool described = sqlite3_errcode(owner_.Handle()) == outcome;
    reason_ = described ? owner_.Reason(outcome) : sqlite3_errstr(outcome);
    return false;
}

bool SqliteStatement::Bind(int position, std::int64_t value) {
    return Check(sqlite3_bind_int64(handle_.get(), position, value));
}

bool SqliteStatement::Bind(int position, double value) {
    return Check(sqlite3_bind_double(handle_.get(), position, value));
}

bool SqliteStatement::Bind(int position, std::string_view text) {
    const char* const data = text.data() ? text.data() : ""; // a null pointer would bind NULL
    return Check(
        sqlite3_bind_text64(handle_.get(), position, data, text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

bool SqliteStatement::BindNull(int position) { return Check(sqlite3_bind_null(handle_.get(), position)); }

int SqliteStatement::ParameterCount() const { return sqlite3_bind_parameter_count(handle_.get()); }

EngineStatement::Step SqliteStatement::Next() {
    const int outcome = sqlite3_step(handle_.get());
    if (outcome == SQLITE_ROW) return Step::Row;
    if (outcome != SQLITE_DONE) Check(outcome);
    // Done with: a statement that is not reset keeps its lock on the database.
    sqlite3_reset(handle_.get());
    return outcome == SQLITE_DONE ? Step::Done : Step::Failed;
}

void SqliteStatement::Rewind() { sqlite3_reset(handle_.get()); }

void SqliteStatement::Clear() {
    sqlite3_reset(handle_.get());
    sqlite3_clear_bindings(handle_.get());
}

int SqliteStatement::ColumnCount() const { return sqlite3_column_count(handle_.get()); }

EngineStatement::Kind SqliteStatement::KindOf(int column) const {
    switch (sqlite3_column_type(handle_.get(), column)) {
    case SQLITE_NULL: return Kind::Null;
    case SQLITE_INTEGER: return Kind::Integer;
    case SQLITE_FLOAT: return Kind::Real;
    case SQLITE_BLOB: return Kind::Blob;
    default: return Kind::Text;
    }
}

std::int64_t SqliteStatement::Integer(int column) const {
    return sqlite3_column_int64(handle_.get(), column);
}

double SqliteStatement::Real(int column) const { return sqlite3_column_double(handle_.get(), column); }

std::string_view SqliteStatement::Bytes(int column) const {
    const bool isBlob = sqlite3_column_type(handle_.get(), column) == SQLITE_BLOB;
    const void* const text =
        isBlob ? sqlite3_column_blob(handle_.get(), column) : sqlite3_column_text(handle_.get(), column);
    if (!text) return "";
    const int bytes = sqlite3_column_bytes(handle_.get(), column); // to be asked after the conversion to text
    return {static_cast<const char*>(text), static_cast<std::size_t>(bytes)};
}

// What gives no rows and changes none itself begins or ends transactions.
bool SqliteStatement::MayUndo() const {
    return ColumnCount() == 0 && sqlite3_stmt_readonly(handle_.get()) != 0;
}

} // namespace znhost
