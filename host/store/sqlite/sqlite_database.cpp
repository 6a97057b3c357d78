#include "store/sqlite/sqlite_database.h"

#include "base/text.h"
#include "store/schema.h"
#include "store/sqlite/database_file.h"
#include "store/sqlite/sql_guard.h"
#include "store/sqlite/sqlite_copies.h"
#include "store/sqlite/sqlite_schema.h"
#include "store/sqlite/sqlite_statement.h"
#include "store/sqlite/sqlite_values.h"
#include "store/sqlite/temporary_files.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
// Tells both numbers of a row that got another one, and of rows that others replaced.
#define SQLITE_ENABLE_PREUPDATE_HOOK
#include <sqlite3.h>

namespace znhost {
namespace {

// A window is waiting. Who waited in vain does not wait for the same again, statement after statement.
constexpr auto busyTimeout = std::chrono::milliseconds(250);
constexpr auto restAfterWaiting = std::chrono::seconds(1);
constexpr int pauseWhileWaiting = 5; // milliseconds

constexpr int stepsBetweenQuestions = 4096; // of the database's machine: a fraction of a millisecond

} // namespace

std::string SqliteDatabase::TooLargeFile() {
    return "it needs too large a temporary file: the limit is " +
           Limit(static_cast<std::size_t>(TemporaryFiles::Limit()));
}

std::unique_ptr<Database> Database::OpenFile(const std::string& path, std::string& error, Access access) {
    std::string reason;
    std::string native;
    std::unique_ptr<Database> database;
    if (FindDatabaseFile(path, native, reason)) {
        if (access == Access::Read && !FileExists(native)) reason = "there is no such file";
        if (reason.empty()) database = SqliteDatabase::Open(native, access, reason);
    }
    if (!database) error = "cannot open the database \"" + path + "\": " + reason;
    return database;
}

std::unique_ptr<Database> Database::OpenMemory(std::string& error) {
    return SqliteDatabase::Open(":memory:", Access::Change, error);
}

std::unique_ptr<Database> SqliteDatabase::Open(const std::string& native, Access access, std::string& error) {
    std::unique_ptr<SqliteDatabase> database(new SqliteDatabase(native, access));
    return database->Connect(error) ? std::move(database) : nullptr;
}

/// The file as one that is only read. A log that is not there would be made: then SQLite must take the file
/// for one that nobody changes, and `FollowFile` looks whether that is still so.
std::string SqliteDatabase::ReadOnlyUri() {
    constexpr std::string_view plain = "/._-";
    std::string uri = "file:";
    for (const char character : native_) {
        std::array<char, 4> escaped{};
        const auto byte = static_cast<unsigned char>(character);
        if ((byte < 0x80 && std::isalnum(byte)) || plain.find(character) != plain.npos) {
            uri += character;
        } else {
            std::snprintf(escaped.data(), escaped.size(), "%%%02X", byte);
            uri += escaped.data();
        }
    }
    unlocked_ = IsQuietWithLog(native_);
    seen_ = StampOfFile(native_);
    return uri + (unlocked_ ? "?immutable=1" : "?mode=ro");
}

/// In place of the connection that was there, if it succeeds.
bool SqliteDatabase::Connect(std::string& error) {
    unlocked_ = false;
    const bool writes = MayChange();
    const std::string path = writes ? native_ : ReadOnlyUri();
    const int flags =
        writes ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE : SQLITE_OPEN_READONLY | SQLITE_OPEN_URI;
    sqlite3* handle = nullptr;
    const int outcome = sqlite3_open_v2(path.c_str(), &handle, flags, TemporaryFiles::Vfs());
    Connection connection(handle); // there is one even when it could not be opened
    if (outcome != SQLITE_OK) {
        error = ToTcl(handle ? sqlite3_errmsg(handle) : sqlite3_errstr(outcome));
        return false;
    }
    Adopt(std::move(connection));
    // SQLite looks into the file only when it must.
    return Execute("SELECT 1 FROM sqlite_schema", error);
}

std::string SqliteDatabase::Place() const { return ToTcl(sqlite3_db_filename(Handle(), "main")); }

bool SqliteDatabase::Reopen(Access access, std::string& error) {
    if (native_ == ":memory:") return true;
    if (IsLent() || InTransaction()) {
        error = "the database is in use";
        return false;
    }
    const Access before = TheAccess();
    SetAccess(access);
    DropStatements();
    NoteRollback(); // nothing that was found with the old connection holds for the new one
    ForgetCounts();
    if (Connect(error)) {
        // SQLite takes a file that may not be written for one that is only read.
        if (access == Access::Read || sqlite3_db_readonly(Handle(), "main") == 0) return true;
        error = "the file may not be written";
    }
    SetAccess(before);
    DropStatements();
    std::string ignored;
    Connect(ignored);
    return false;
}

bool SqliteDatabase::FollowFile(std::string& error) {
    if (!unlocked_ || IsLent() || StampOfFile(native_) == seen_) return true;
    return Reopen(TheAccess(), error);
}

// The program may end in the middle of a statement: then the connection stays until that has gone, too.
void CloseConnection::operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }

void SqliteDatabase::Adopt(Connection connection) {
    connection_ = std::move(connection);
    // No statement may damage the database file itself.
    sqlite3_db_config(Handle(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_limit(Handle(), SQLITE_LIMIT_LENGTH, static_cast<int>(largestValue));
    sqlite3_limit(Handle(), SQLITE_LIMIT_SQL_LENGTH, static_cast<int>(longestSql));
    const auto isStopped = [](void* self) -> int { return static_cast<SqliteDatabase*>(self)->IsStopped(); };
    sqlite3_progress_handler(Handle(), stepsBetweenQuestions, isStopped, this);
    const auto waits = [](void* self, int tries) -> int {
        return static_cast<SqliteDatabase*>(self)->WaitForOthers(tries);
    };
    sqlite3_busy_handler(Handle(), waits, this);
    if (watcher_) SetHooks();
}

SqliteDatabase::~SqliteDatabase() {
    DropStatements();
    if (!connection_) return; // it could not be opened
    sqlite3_progress_handler(Handle(), 0, nullptr, nullptr);
    sqlite3_busy_handler(Handle(), nullptr, nullptr);
}

sqlite3* SqliteDatabase::Handle() const { return connection_.get(); }

// ---- What takes long

bool SqliteDatabase::IsStopped() noexcept {
    stopped_ = AskWhyStop();
    return !stopped_.empty();
}

/// Another connection holds a lock: whether to try once more.
bool SqliteDatabase::WaitForOthers(int tries) noexcept {
    const Clock::time_point now = Clock::now();
    if (tries == 0) waitsSince_ = now;
    if (now - gaveUp_ < restAfterWaiting) return false;
    if (now - waitsSince_ >= busyTimeout) {
        gaveUp_ = now;
        return false;
    }
    if (IsStopped()) return false;
    sqlite3_sleep(pauseWhileWaiting);
    return true;
}

bool SqliteDatabase::MayPass(std::string_view error) const {
    return error == sqlite3_errstr(SQLITE_BUSY) || error == sqlite3_errstr(SQLITE_LOCKED);
}

bool SqliteDatabase::IsTooLarge(std::string_view error) const { return error == TooLargeFile(); }

// ---- Statements

std::string SqliteDatabase::Reason(int outcome) const {
    if (outcome == SQLITE_TOOBIG)
        return "a text, blob or row is too large: the limit is " + Limit(largestValue);
    if (outcome == SQLITE_FULL && TemporaryFiles::TakeRefusal()) return TooLargeFile();
    return ToTcl(sqlite3_errmsg(Handle()));
}

std::unique_ptr<EngineStatement> SqliteDatabase::Compile(const std::string& sql, std::string& error) {
    sqlite3_stmt* handle = nullptr;
    const char* tail = nullptr;
    const int outcome =
        sqlite3_prepare_v3(Handle(), sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &handle, &tail);
    SqliteStatement::Handle owned(handle);
    if (outcome != SQLITE_OK) {
        error = Reason(outcome);
        return nullptr;
    }
    if (!handle) {
        error = "no SQL statement in \"" + ToTcl(sql) + "\"";
        return nullptr;
    }
    if (!EndsAt(tail, sql.c_str() + sql.size(), error)) return nullptr;
    return std::make_unique<SqliteStatement>(*this, std::move(owned));
}

/// Whether nothing but blanks and comments follows the first statement.
bool SqliteDatabase::EndsAt(const char* tail, const char* end, std::string& error) {
    while (tail != end) {
        sqlite3_stmt* second = nullptr;
        const char* rest = end;
        const int outcome = sqlite3_prepare_v2(Handle(), tail, -1, &second, &rest);
        sqlite3_finalize(second);
        if (second || outcome != SQLITE_OK) {
            const std::string_view text(tail, static_cast<std::size_t>(end - tail));
            const std::size_t first = std::min(text.find_first_not_of(" \t\r\n\f;"), text.size());
            error = "one SQL statement at a time; this follows the first: " + ToTcl(text.substr(first));
            return false;
        }
        tail = rest; // behind a lone semicolon
    }
    return true;
}

bool SqliteDatabase::RunScript(const std::string& script, std::string& error) {
    const bool inTransaction = InTransaction();
    NoteRollback();
    const int outcome = sqlite3_exec(Handle(), FromTcl(script).c_str(), nullptr, nullptr, nullptr);
    if (outcome == SQLITE_OK) return true;
    error = Reason(outcome);
    std::string ignored; // the script's error is the one to tell
    if (!inTransaction && InTransaction()) Execute("ROLLBACK", ignored);
    return false;
}

bool SqliteDatabase::ReadStamp(Stamp& stamp, std::string& error) {
    Statement schema = Prepare("PRAGMA main.schema_version");
    if (schema.Next()) stamp.schema = schema.Integer(0);
    Statement data = Prepare("PRAGMA main.data_version");
    if (data.Next()) stamp.foreign = data.Integer(0);
    stamp.rollbacks = Rollbacks();
    stamp.own = RowsChanged() - Disregarded();
    return schema.Finish(error) && data.Finish(error);
}

std::int64_t SqliteDatabase::RowsChanged() const { return sqlite3_total_changes64(Handle()); }

bool SqliteDatabase::WatchRows(RowWatcher* watcher) {
    watcher_ = watcher;
    SetHooks();
    return true;
}

void SqliteDatabase::SetHooks() {
    const auto note = [](void* self, sqlite3*, int, const char* database, const char* table,
                         sqlite3_int64 before, sqlite3_int64 after) {
        RowWatcher& watcher = *static_cast<RowWatcher*>(self);
        if (std::string_view(database) == "temp") return; // there lie the host's own copies
        watcher.OnRowChange(table, before);
        if (after != before) watcher.OnRowChange(table, after);
    };
    const auto undone = [](void* self) { static_cast<RowWatcher*>(self)->OnRowsUndone(); };
    sqlite3_preupdate_hook(Handle(), watcher_ ? +note : nullptr, watcher_);
    sqlite3_rollback_hook(Handle(), watcher_ ? +undone : nullptr, watcher_);
}

bool SqliteDatabase::InTransaction() const { return sqlite3_get_autocommit(Handle()) == 0; }

const Dialect& SqliteDatabase::Sql() const {
    static constexpr Dialect dialect{
        "BEGIN IMMEDIATE", "znbrowser_", "SELECT 1 FROM main.sqlite_schema WHERE name = 'znbrowser_schema'",
        nullptr,           false,        "json_each(?) AS given"};
    return dialect;
}

void SqliteDatabase::Undo(bool part) noexcept {
    sqlite3_exec(Handle(), part ? "ROLLBACK TO znbrowser; RELEASE znbrowser" : "ROLLBACK", nullptr, nullptr,
                 nullptr);
}

// ---- Tables

std::string SqliteDatabase::ListOf(const Table&, const std::vector<std::int64_t>& rows) {
    std::string list;
    for (const std::int64_t row : rows) list += (list.empty() ? "[" : ",") + std::to_string(row);
    return list.empty() ? "[]" : list + "]";
}

bool SqliteDatabase::IsReadFromIndex(const std::string& select) {
    Statement plan = Prepare("EXPLAIN QUERY PLAN " + select);
    bool byIndex = false;
    while (plan.Next()) {
        const std::string_view step = plan.Text(3);
        if (step.find("TEMP B-TREE") != step.npos) return false;
        byIndex = byIndex || step.find("COVERING INDEX") != step.npos;
    }
    return byIndex;
}

std::unique_ptr<ColumnValues> SqliteDatabase::OpenValues(const Table& table, const TableColumn& column) {
    if (!table.inParts) return nullptr;
    return std::make_unique<SqliteValues>(Handle(), FromTcl(table.name), FromTcl(column.name));
}

bool SqliteDatabase::ReadTables(Tables& tables, std::string& error) {
    return ReadSqliteTables(*this, tables, error);
}

bool SqliteDatabase::CopyRows(const Table& table, std::string& error) {
    const std::int64_t before = RowsChanged();
    const bool filled = CopySqliteRows(*this, table, error);
    DisregardChanges(RowsChanged() - before);
    return filled;
}

// A text may hold a NUL, at which `quote` would stop.
std::string SqliteDatabase::InsertSql(const Table& table) {
    std::string columns, values;
    for (const TableColumn& column : table.columns) {
        const std::string name = Quoted(column.name);
        Statement computed =
            Prepare("SELECT 1 FROM pragma_table_xinfo(?1) WHERE name = ?2 AND hidden IN (2, 3)");
        computed.Bind(1, table.name);
        computed.Bind(2, column.name);
        if (computed.Next()) continue;
        columns += (columns.empty() ? "" : ", ") + name;
        values += (values.empty() ? "" : " || ', ' || ") +
                  ("CASE WHEN typeof(" + name + ") = 'text' AND instr(" + name +
                   ", char(0)) THEN 'CAST(' || quote(CAST(" + name + " AS BLOB)) || ' AS TEXT)' ELSE quote(" +
                   name + ") END");
    }
    const std::string begin = "INSERT INTO " + Quoted(table.name) + " (" + columns + ") VALUES (";
    return "SELECT " + table.key + ", " + QuotedText(begin) + " || " + values + " || ');' FROM " +
           table.rows + " WHERE " + table.is;
}

bool SqliteDatabase::CheckExpression(const Table& table, std::string_view code, int& parameters,
                                     std::string& error) {
    return znhost::CheckExpression(*this, table.name, code, parameters, error);
}

} // namespace znhost
