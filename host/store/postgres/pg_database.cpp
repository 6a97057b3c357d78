#include "store/postgres/pg_database.h"

#include "base/shared_rows.h"
#include "base/text.h"
#include "store/postgres/pg_guard.h"
#include "store/postgres/pg_statement.h"

#include <set>

namespace znhost {

std::unique_ptr<Database> PgDatabase::Open(const std::string& url, std::string& error, Access access) {
    std::unique_ptr<PgDatabase> database(new PgDatabase(FromTcl(url), access));
    std::string reason;
    if (database->connection_.Connect(reason)) return database;
    error = "cannot open the database \"" + database->connection_.Shown() + "\": " + reason;
    return nullptr;
}

PgDatabase::PgDatabase(const std::string& url, Access access)
    : Database(access), connection_(url, [this] { return AskWhyStop(); }), schema_(*this) {
    connection_.SetReadOnly(access == Access::Read);
}

// The server itself refuses what would write.
bool PgDatabase::Reopen(Access access, std::string& error) {
    if (IsLent() || InTransaction()) {
        error = "the database is in use";
        return false;
    }
    connection_.SetReadOnly(access == Access::Read);
    if (!connection_.ApplyAccess(error)) {
        connection_.SetReadOnly(!MayChange());
        return false;
    }
    SetAccess(access);
    return true;
}

std::unique_ptr<EngineStatement> PgDatabase::Compile(const std::string& sql, std::string&) {
    return std::make_unique<PgStatement>(connection_, sql);
}

bool PgDatabase::RunScript(const std::string& script, std::string& error) {
    const bool wasInTransaction = InTransaction();
    NoteRollback();
    if (connection_.Run(FromTcl(script), error)) return true;
    if (!wasInTransaction && InTransaction()) Undo(false);
    return false;
}

const Dialect& PgDatabase::Sql() const {
    static constexpr Dialect dialect{"BEGIN",
                                     "znbrowser.",
                                     "SELECT 1 FROM pg_class c JOIN pg_namespace n ON n.oid = c.relnamespace "
                                     "WHERE n.nspname = 'znbrowser' AND c.relname = 'schema'",
                                     "SELECT pg_advisory_xact_lock(hashtext('znbrowser'))",
                                     true,
                                     nullptr};
    return dialect;
}

void PgDatabase::Undo(bool part) noexcept {
    if (connection_.ForgetLostTransaction()) return;
    if (!connection_.InTransaction()) return;
    try {
        std::string ignored;
        connection_.Run(part ? "ROLLBACK TO znbrowser; RELEASE znbrowser" : "ROLLBACK", ignored);
    } catch (const std::bad_alloc&) {
        connection_.Close(); // the server undoes it then
    }
}

// ---- What happened

namespace {

/// How many transactions the server is done with, whether this one has written, where names are looked for;
/// and what the tables are like, unless the number is the one given.
constexpr char stampSql[] =
    "SELECT completed, written, path, CASE WHEN completed = ? AND NOT written THEN NULL ELSE concat_ws('/', "
    "(SELECT concat(count(*), ' ', sum((c.xmin::text::bigint + c.cmin::text::bigint + 1) * (c.oid::bigint % "
    "1009 + 1))) "
    "FROM pg_class c WHERE c.oid >= 16384 AND c.relpersistence <> 't' AND c.relkind IN "
    "('r','p','v','m','f')), "
    "(SELECT concat(count(*), ' ', sum((a.xmin::text::bigint + a.cmin::text::bigint + 1) * "
    "(a.attrelid::bigint % 1009 + a.attnum))) "
    "FROM pg_attribute a JOIN pg_class c ON c.oid = a.attrelid WHERE c.oid >= 16384 "
    "AND c.relpersistence <> 't' AND c.relkind IN ('r','p','v','m','f') AND a.attnum > 0), "
    "(SELECT concat(count(*), ' ', sum((k.xmin::text::bigint + 1) * (k.oid::bigint % 1009 + 1))) "
    "FROM pg_constraint k WHERE k.oid >= 16384 AND k.contype IN ('p','f'))) END "
    "FROM (SELECT CASE WHEN pg_is_in_recovery() THEN (pg_last_wal_replay_lsn() - '0/0')::bigint "
    "ELSE pg_snapshot_xmax(s)::text::bigint - (SELECT count(*) FROM pg_snapshot_xip(s)) END AS completed, "
    "pg_current_xact_id_if_assigned() IS NOT NULL AS written, "
    "concat(current_user, ' ', current_schemas(false)) AS path FROM pg_current_snapshot() AS s) AS now";

} // namespace

/// @param fingerprint  "" when the tables are those of the last look
void PgDatabase::NoteTables(std::string fingerprint) {
    if (fingerprint.empty() || fingerprint == fingerprint_) return;
    fingerprint_ = std::move(fingerprint);
    ++schemaNumber_;
}

Statement PgDatabase::StampStatement() {
    if (connection_.Generation() != seenGeneration_) completed_ = -1;
    Statement now = Prepare(stampSql);
    now.Bind(1, completed_);
    return now;
}

bool PgDatabase::AskStamp(Stamp& stamp, std::string& error) {
    Statement now = StampStatement();
    if (now.Next()) {
        completed_ = now.Integer(0);
        const bool written = now.Integer(1) != 0;
        if (path_ != now.Text(2)) {
            path_ = now.Text(2);
            ++schemaNumber_;
        }
        NoteTables(std::string(now.Text(3)));
        if (written) ++looksInside_;
        now.Next();
    }
    if (!now.Finish(error)) return false;
    if (statementsFor_ != schemaNumber_) connection_.ForgetKept();
    statementsFor_ = schemaNumber_;
    if (schema_.HasOtherServers()) ++looksAtOthers_;
    stamp.schema = schemaNumber_;
    stamp.rollbacks = Rollbacks() + connection_.RolledBack() - ownRollbacks_;
    stamp.foreign = completed_ - ownTransactions_;
    stamp.elsewhere = looksAtOthers_;
    stamp.own = connection_.Changes() - ownChanges_ + looksInside_;
    return true;
}

// One look at the server serves all questions of one command.
bool PgDatabase::ReadStamp(Stamp& stamp, std::string& error) {
    const std::uint64_t look = WhichLook();
    if (asksAlong_) {
        stamp = known_;
        return true;
    }
    if (look != alongIn_) connection_.ForgetAnswers();
    if (seen_ && look != 0 && look == seenIn_ && seenChanges_ == connection_.Changes()) {
        stamp = *seen_;
        return true;
    }
    seen_.reset();
    if (!AskStamp(stamp, error)) return false;
    seen_ = known_ = stamp;
    seenIn_ = look;
    seenChanges_ = connection_.Changes();
    seenGeneration_ = connection_.Generation();
    return true;
}

// What a look finds changes the tables, or the copies of views, before anything is asked of them: where that
// may happen, and in a transaction, each question waits for its answer.
void PgDatabase::AskAlong(const std::function<void()>& ask) {
    if (asksAlong_) return ask();
    const std::uint64_t look = WhichLook();
    if (look == 0 || InTransaction() || !known_.SameTables(tablesAt_)) return;
    const auto note = [this](bool on) {
        asksAlong_ = on;
        connection_.SetNoting(on);
    };
    struct Noting {
        const decltype(note)& set;
        explicit Noting(const decltype(note)& how) : set(how) { set(true); }
        ~Noting() { set(false); }
    };
    {
        const Noting noting(note);
        expected_ = 0;
        const bool isLookedAt = seen_ && look == seenIn_ && seenChanges_ == connection_.Changes();
        if (!isLookedAt) StampStatement().Next();
        ask();
    }
    alongIn_ = look;
    connection_.AskNoted();
}

// The rows are left in a setting that ends with the questions.

std::int64_t PgDatabase::ExpectRows() { return RowPages::nowhere + ++expected_; }

namespace {

bool IsExpected(const std::vector<std::int64_t>& rows, std::int64_t count) {
    return rows.size() == 1 && rows[0] > RowPages::nowhere && rows[0] <= RowPages::nowhere + count;
}

std::string SettingOf(std::int64_t number) {
    return "znbrowser.rows" + std::to_string(number - RowPages::nowhere);
}

} // namespace

std::string PgDatabase::ExpectingSql(const std::string& page, std::int64_t number) {
    return "WITH page AS MATERIALIZED (" + page + ") SELECT item, (SELECT set_config('" + SettingOf(number) +
           "', coalesce(array_agg(item)::text, '{}'), true) IS NULL FROM (SELECT item FROM page OFFSET ? "
           "LIMIT ?) "
           "AS expected) FROM page";
}

void PgDatabase::RowsCame(const Table& table, std::int64_t number, const std::vector<std::int64_t>& rows) {
    connection_.ReplaceNoted(PgConnection::Setting(SettingOf(number)), ListOf(table, rows));
}

// ---- Tables

std::string PgDatabase::ListOf(const Table& table, const std::vector<std::int64_t>& rows) {
    if (asksAlong_ && IsExpected(rows, expected_)) return PgConnection::Setting(SettingOf(rows[0]));
    if (!table.keys) {
        std::string list = "{";
        for (const std::int64_t row : rows) list += (list.size() > 1 ? "," : "") + std::to_string(row);
        return list + "}";
    }
    std::vector<std::string> keys;
    for (const std::int64_t row : rows) {
        const std::string& key = table.keys->KeyOf(row);
        if (key.empty()) continue;
        keys.push_back(table.keys->IsByPlace() ? PgElements(key).back() : key);
    }
    return PgArray(keys);
}

bool PgDatabase::ReadTables(Tables& tables, std::string& error) {
    if (!schema_.Read(tables, error)) return false;
    tablesAt_ = known_;
    return true;
}

bool PgDatabase::CopyRows(const Table& table, std::string& error) {
    const bool inside = InTransaction();
    const std::int64_t before = connection_.Changes();
    const std::int64_t rolledBack = connection_.RolledBack();
    const std::string sql =
        FromTcl("DROP TABLE IF EXISTS " + table.rows + "; CREATE TEMP TABLE " + table.rows +
                " AS SELECT row_number() OVER () AS " + table.key + ", * FROM " + table.original +
                "; CREATE UNIQUE INDEX ON " + table.rows + " (" + table.key + "); ANALYZE " + table.rows);
    // From its number on the transaction counts, however it ends.
    const char* const begin =
        inside ? "SAVEPOINT znbrowser" : "BEGIN READ WRITE; SELECT pg_current_xact_id()";
    const bool begun = connection_.Run(begin, error);
    const bool done = begun && connection_.Run(sql + (inside ? "; RELEASE znbrowser" : "; COMMIT"), error);
    if (!done) Undo(inside);
    if (begun && !inside) ++ownTransactions_;
    ownChanges_ += connection_.Changes() - before;
    ownRollbacks_ += connection_.RolledBack() - rolledBack;
    return done;
}

// A `?` in a name, or in the text, is no parameter there. Only a number that is written without quotes
// everywhere stands without them.
std::string PgDatabase::InsertSql(const Table& table) {
    std::string columns, values;
    const bool isFound = table.original.find("." + Quoted(table.name)) != table.original.npos;
    const char* overriding = "";
    std::set<std::string, std::less<>> computed;
    Statement made =
        Prepare("SELECT attname, attgenerated <> '' FROM pg_attribute WHERE attrelid = ?::regclass "
                "AND (attgenerated <> '' OR attidentity = 'a')");
    made.Bind(1, table.original);
    while (made.Next()) {
        if (made.Integer(1) != 0)
            computed.emplace(made.Text(0));
        else
            overriding = "OVERRIDING SYSTEM VALUE ";
    }
    for (const TableColumn& column : table.columns) {
        if (computed.count(column.name) != 0) continue;
        const std::string name = Quoted(column.name);
        const std::string text = name + "::text";
        columns += (columns.empty() ? "" : ", ") + name;
        values += values.empty() ? "" : " || ', ' || ";
        values += column.numeric && column.type != ZNBROWSER_DATA_BOOL
                      ? "CASE WHEN " + text + " ~ '^[-.0-9]+$' THEN " + text + " ELSE quote_nullable(" +
                            text + ") END"
                      : "quote_nullable(" + text + ")";
    }
    const std::string begin = "INSERT INTO " + (isFound ? Quoted(table.name) : table.original) + " (" +
                              columns + ") " + overriding + "VALUES (";
    return "SELECT " + table.key + ", " + QuotedText(begin) + " || " + values + " || ');' FROM " +
           table.rows + " WHERE " + table.among;
}

bool PgDatabase::CheckExpression(const Table& table, std::string_view code, int& parameters,
                                 std::string& error) {
    return CheckPgExpression(*this, table, code, parameters, error);
}

} // namespace znhost
