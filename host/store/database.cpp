#include "store/database.h"

#include "base/text.h"
#include "store/temporary_files.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <iterator>
#include <sqlite3.h>
#include <utility>

namespace znhost {
namespace {

// A window is waiting. Who waited in vain does not wait for the same again, statement after statement.
constexpr auto busyTimeout = std::chrono::milliseconds(250);
constexpr auto restAfterWaiting = std::chrono::seconds(1);
constexpr int pauseWhileWaiting = 5; // milliseconds

constexpr int stepsBetweenQuestions = 4096; // of the database's machine: a fraction of a millisecond
constexpr std::size_t idleStatements = 64;

/// The most bytes of one value, and of all rows that are asked for at once. Tcl ends the process above 2 GiB,
/// and writing a list of such texts may double them for each level of the list.
constexpr std::size_t largestValue = 1 << 28;
constexpr std::size_t longestSql = 1 << 24;

std::string Limit(std::size_t bytes) { return std::to_string(bytes) + " bytes"; }

std::string TooLargeFile() {
    return "it needs too large a temporary file: the limit is " +
           Limit(static_cast<std::size_t>(TemporaryFiles::Limit()));
}

} // namespace

std::unique_ptr<Database> Database::OpenFile(const std::string& path, std::string& error, Access access) {
    std::string reason;
    std::string native;
    std::unique_ptr<Database> database;
    if (FindDatabaseFile(path, native, reason)) {
        if (access == Access::Read && !FileExists(native)) reason = "there is no such file";
        if (reason.empty()) database.reset(new Database(native, access));
        if (database && !database->Connect(reason)) database.reset();
    }
    if (!database) error = "cannot open the database \"" + path + "\": " + reason;
    return database;
}

std::unique_ptr<Database> Database::OpenMemory(std::string& error) {
    std::unique_ptr<Database> database(new Database(":memory:", Access::Change));
    return database->Connect(error) ? std::move(database) : nullptr;
}

/// The file as one that is only read. A log that is not there would be made: then SQLite must take the file
/// for one that nobody changes, and `FollowFile` looks whether that is still so.
std::string Database::ReadOnlyUri() {
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
bool Database::Connect(std::string& error) {
    unlocked_ = false;
    const bool writes = access_ == Access::Change;
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

bool Database::Reopen(Access access, std::string& error) {
    if (native_ == ":memory:") return true;
    if (lent_ || InTransaction()) {
        error = "the database is in use";
        return false;
    }
    const Access before = std::exchange(access_, access);
    idleBySql_.clear();
    idle_.clear();
    NoteRollback(); // nothing that was found with the old connection holds for the new one
    disregarded_ = 0;
    if (Connect(error)) {
        // SQLite takes a file that may not be written for one that is only read.
        if (access == Access::Read || sqlite3_db_readonly(Handle(), "main") == 0) return true;
        error = "the file may not be written";
    }
    access_ = before;
    idleBySql_.clear();
    idle_.clear();
    std::string ignored;
    Connect(ignored);
    return false;
}

bool Database::FollowFile(std::string& error) {
    if (!unlocked_ || lent_ || StampOfFile(native_) == seen_) return true;
    return Reopen(access_, error);
}

// The program may end in the middle of a statement: then the connection stays until that has gone, too.
void CloseConnection::operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }

void Database::Adopt(Connection connection) {
    connection_ = std::move(connection);
    // No statement may damage the database file itself.
    sqlite3_db_config(Handle(), SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_limit(Handle(), SQLITE_LIMIT_LENGTH, static_cast<int>(largestValue));
    sqlite3_limit(Handle(), SQLITE_LIMIT_SQL_LENGTH, static_cast<int>(longestSql));
    const auto isStopped = [](void* self) -> int { return static_cast<Database*>(self)->IsStopped(); };
    sqlite3_progress_handler(Handle(), stepsBetweenQuestions, isStopped, this);
    const auto waits = [](void* self, int tries) -> int {
        return static_cast<Database*>(self)->WaitForOthers(tries);
    };
    sqlite3_busy_handler(Handle(), waits, this);
}

Database::~Database() {
    if (!connection_) return; // it could not be opened
    sqlite3_progress_handler(Handle(), 0, nullptr, nullptr);
    sqlite3_busy_handler(Handle(), nullptr, nullptr);
}

sqlite3* Database::Handle() const { return connection_.get(); }

// ---- What takes long

bool Database::IsStopped() noexcept {
    try {
        stopped_ = whyStop_ ? whyStop_() : std::string_view();
    } catch (const std::exception&) { // nothing may be thrown through SQLite
        stopped_ = "out of memory";
    }
    return !stopped_.empty();
}

/// Another connection holds a lock: whether to try once more.
bool Database::WaitForOthers(int tries) noexcept {
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

bool Database::MayPass(std::string_view error) {
    return error == sqlite3_errstr(SQLITE_BUSY) || error == sqlite3_errstr(SQLITE_LOCKED);
}

bool Database::IsTooLarge(std::string_view error) { return error == TooLargeFile(); }

// ---- Statements

std::string Database::Reason(int outcome) const {
    if (outcome == SQLITE_TOOBIG)
        return "a text, blob or row is too large: the limit is " + Limit(largestValue);
    if (outcome == SQLITE_FULL && TemporaryFiles::TakeRefusal()) return TooLargeFile();
    return ToTcl(sqlite3_errmsg(Handle()));
}

Statement Database::Prepare(std::string_view sql) {
    std::list<PreparedStatement> taken;
    const auto found = idleBySql_.find(sql);
    if (found != idleBySql_.end()) {
        taken.splice(taken.begin(), idle_, found->second);
        idleBySql_.erase(found);
        return Statement(*this, std::move(taken));
    }
    taken.emplace_back();
    return PrepareAnew(sql, std::move(taken));
}

Statement Database::PrepareOnce(std::string_view sql) {
    std::list<PreparedStatement> taken(1);
    taken.front().once = true;
    return PrepareAnew(sql, std::move(taken));
}

Statement Database::PrepareAnew(std::string_view sql, std::list<PreparedStatement>&& taken) {
    std::string error;
    if (!Compile(sql, taken.front(), error)) return Statement(std::move(error));
    return Statement(*this, std::move(taken));
}

bool Database::Compile(std::string_view sql, PreparedStatement& prepared, std::string& error) {
    prepared.sql = sql;
    const std::string text = FromTcl(sql);
    if (text.find('\0') != text.npos) { // SQLite would silently run what stands before it
        error = "a NUL character in the SQL statement";
        return false;
    }
    if (text.size() > longestSql) {
        error = "the SQL statement is too long: the limit is " + Limit(longestSql);
        return false;
    }
    sqlite3_stmt* handle = nullptr;
    const char* tail = nullptr;
    const int outcome =
        sqlite3_prepare_v3(Handle(), text.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &handle, &tail);
    prepared.handle.reset(handle);
    if (outcome != SQLITE_OK) {
        error = Reason(outcome);
        return false;
    }
    if (!handle) {
        error = "no SQL statement in \"" + prepared.sql + "\"";
        return false;
    }
    return EndsAt(tail, text.c_str() + text.size(), error);
}

/// Whether nothing but blanks and comments follows the first statement.
bool Database::EndsAt(const char* tail, const char* end, std::string& error) {
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

void Database::TakeBack(std::list<PreparedStatement>&& prepared) {
    --lent_;
    if (prepared.front().once) {
        prepared.clear();
        return;
    }
    sqlite3_stmt* const handle = prepared.front().handle.get();
    sqlite3_reset(handle);
    sqlite3_clear_bindings(handle);
    idle_.splice(idle_.begin(), prepared);
    try {
        idleBySql_.emplace(idle_.front().sql, idle_.begin());
    } catch (const std::bad_alloc&) { // then it is not kept: the end of a statement must not fail
        idle_.pop_front();
        return;
    }
    if (idle_.size() <= idleStatements) return;
    const auto oldest = std::prev(idle_.end());
    auto [entry, end] = idleBySql_.equal_range(oldest->sql);
    while (entry != end && entry->second != oldest) ++entry;
    if (entry != end) idleBySql_.erase(entry);
    idle_.erase(oldest);
}

bool Database::Run(std::string_view sql, const std::vector<Value>& values, Rows& rows, std::string& error) {
    rows.clear();
    Statement statement = Prepare(sql);
    const auto count = static_cast<std::size_t>(statement.ParameterCount());
    if (!statement.Failed() && count != values.size()) {
        error = "the SQL statement takes " + std::to_string(count) + (count == 1 ? " value, " : " values, ") +
                std::to_string(values.size()) + (values.size() == 1 ? " is given" : " are given");
        return false;
    }
    for (std::size_t i = 0; i < values.size(); ++i) statement.Bind(static_cast<int>(i + 1), values[i]);
    const int columns = statement.ColumnCount();
    // What gives no rows and changes none itself begins or ends transactions.
    if (columns == 0 && statement.IsReadOnly()) NoteRollback();
    for (std::size_t bytes = 0; statement.Next();) {
        std::vector<std::string>& row = rows.emplace_back();
        row.reserve(static_cast<std::size_t>(columns));
        for (int column = 0; column < columns; ++column)
            bytes += row.emplace_back(statement.Text(column)).size() + 1;
        if (bytes <= largestValue) continue;
        rows.clear();
        error = "the rows are too large: the limit is " + Limit(largestValue) + ", ask for fewer";
        return false;
    }
    return statement.Finish(error);
}

bool Database::Execute(std::string_view sql, std::string& error) {
    Statement statement = Prepare(sql);
    while (statement.Next()) {
    }
    return statement.Finish(error);
}

bool Database::RunScript(const std::string& script, std::string& error) {
    const bool inTransaction = InTransaction();
    NoteRollback();
    const int outcome = sqlite3_exec(Handle(), FromTcl(script).c_str(), nullptr, nullptr, nullptr);
    if (outcome == SQLITE_OK) return true;
    error = Reason(outcome);
    std::string ignored; // the script's error is the one to tell
    if (!inTransaction && InTransaction()) Execute("ROLLBACK", ignored);
    return false;
}

bool Database::ReadStamp(Stamp& stamp, std::string& error) {
    Statement schema = Prepare("PRAGMA main.schema_version");
    if (schema.Next()) stamp.schema = schema.Integer(0);
    Statement data = Prepare("PRAGMA main.data_version");
    if (data.Next()) stamp.foreign = data.Integer(0);
    stamp.rollbacks = rollbacks_;
    stamp.own = RowsChanged() - disregarded_;
    return schema.Finish(error) && data.Finish(error);
}

std::int64_t Database::RowsChanged() const { return sqlite3_total_changes64(Handle()); }

bool Database::InTransaction() const { return sqlite3_get_autocommit(Handle()) == 0; }

std::int64_t Database::LastInsertedRow() const { return sqlite3_last_insert_rowid(Handle()); }

std::string Database::Quoted(std::string_view name) {
    std::string quoted = "\"";
    for (const char character : name) quoted.append(character == '"' ? 2 : 1, character);
    return quoted += '"';
}

} // namespace znhost
