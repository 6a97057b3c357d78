#include "store/postgres/pg_statement.h"

#include "store/postgres/libpq.h"

#include <charconv>

namespace znhost {

namespace {

// As the server numbers its own types, for good.
enum Type : Oid {
    BOOLEAN = 16,
    BIGINT = 20,
    SMALLINT = 21,
    INTEGER = 23,
    OBJECT = 26,
    REAL = 700,
    DOUBLE = 701,
    NUMERIC = 1700
};

std::uint64_t NextNumber() {
    static std::uint64_t last = 0;
    return ++last;
}

} // namespace

PgStatement::PgStatement(PgConnection& connection, std::string_view sql)
    : connection_(connection), sql_(sql), number_(NextNumber()),
      parameters_(static_cast<std::size_t>(sql_.parameters)) {}

// ---- Binding

bool PgStatement::Bind(int position, std::string_view text) {
    if (position < 1 || position > sql_.parameters) {
        reason_ = "the SQL statement has no value " + std::to_string(position);
        return false;
    }
    if (text.find('\0') != text.npos) {
        reason_ = "a NUL character in a value: the server takes none";
        return false;
    }
    parameters_[static_cast<std::size_t>(position - 1)] = std::string(text);
    return true;
}

bool PgStatement::Bind(int position, std::int64_t value) { return Bind(position, std::to_string(value)); }

bool PgStatement::Bind(int position, double value) {
    char buffer[32];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    return Bind(position, std::string_view(buffer, static_cast<std::size_t>(end - buffer)));
}

bool PgStatement::BindNull(int position) {
    if (!Bind(position, std::string_view())) return false;
    parameters_[static_cast<std::size_t>(position - 1)].reset();
    return true;
}

// ---- Running

/// The end of a transaction that went with its connection.
EngineStatement::Step PgStatement::EndLostTransaction() {
    connection_.ForgetLostTransaction();
    if (sql_.firstWord == "rollback" || sql_.firstWord == "abort") { // also to a savepoint: it went, too
        state_ = State::Ended;
        return Step::Done;
    }
    reason_ = "nothing is committed: the transaction was undone when the connection to the server was lost";
    return Fail();
}

EngineStatement::Step PgStatement::Start() {
    const bool ends = sql_.firstWord == "rollback" || sql_.firstWord == "abort" ||
                      sql_.firstWord == "commit" || sql_.firstWord == "end";
    if (ends && connection_.IsTransactionLost()) return EndLostTransaction();
    if (connection_.Notes(sql_, parameters_)) {
        state_ = State::Ended;
        return Step::Done;
    }
    rest_ = connection_.TakeAnswer(sql_.text, parameters_);
    state_ = rest_.empty() ? State::Reading : State::Ended;
    if (!rest_.empty()) return Step::Row;
    const bool asked = wasRun_ ? connection_.AskKept(*this, number_, sql_.text, parameters_, reason_)
                               : connection_.Ask(*this, sql_.text, parameters_, reason_);
    if (!asked) return Fail();
    wasRun_ = true;
    return Step::Row;
}

EngineStatement::Step PgStatement::Next() {
    if (state_ == State::Idle) {
        const Step step = Start();
        if (step != Step::Row) return step;
    }
    if (row_ && ++at_ < Pq().PQntuples(row_.get())) return Step::Row;
    at_ = 0;
    row_.reset();
    while (!rest_.empty()) {
        row_ = std::move(rest_.front());
        rest_.pop_front();
        if (Pq().PQntuples(row_.get()) > 0) return Step::Row;
    }
    row_.reset();
    if (state_ == State::Ended) return restFailed_ ? Step::Failed : Step::Done;
    row_ = connection_.Next(reason_);
    if (!row_) return Fail();
    if (Pq().PQntuples(row_.get()) == 1) return Step::Row;
    row_.reset();
    state_ = State::Ended;
    return Step::Done;
}

void PgStatement::ReadRest() noexcept {
    try {
        while (state_ == State::Reading) {
            PgResult row = connection_.Next(reason_);
            restFailed_ = !row;
            if (!row || Pq().PQntuples(row.get()) != 1) state_ = State::Ended;
            if (row && Pq().PQntuples(row.get()) == 1) rest_.push_back(std::move(row));
        }
    } catch (const std::bad_alloc&) {
        connection_.Stop();
        state_ = State::Ended;
        restFailed_ = true;
    }
}

void PgStatement::Rewind() {
    if (state_ == State::Reading) connection_.Leave(*this);
    row_.reset();
    at_ = 0;
    rest_.clear();
    restFailed_ = false;
    state_ = State::Idle;
}

void PgStatement::Clear() {
    Rewind();
    for (auto& parameter : parameters_) parameter.reset();
}

// ---- The present row

bool PgStatement::HasColumn(int column) const {
    return row_ && column >= 0 && column < Pq().PQnfields(row_.get()) &&
           !Pq().PQgetisnull(row_.get(), at_, column);
}

int PgStatement::ColumnCount() const { return row_ ? Pq().PQnfields(row_.get()) : 0; }

EngineStatement::Kind PgStatement::KindOf(int column) const {
    if (!HasColumn(column)) return Kind::Null;
    switch (Pq().PQftype(row_.get(), column)) {
    case BOOLEAN:
    case BIGINT:
    case SMALLINT:
    case INTEGER:
    case OBJECT: return Kind::Integer;
    case REAL:
    case DOUBLE:
    case NUMERIC: return Kind::Real;
    default: return Kind::Text;
    }
}

// Booleans read as in every other database of the host.
std::string_view PgStatement::Bytes(int column) const {
    if (!HasColumn(column)) return "";
    const std::string_view bytes(Pq().PQgetvalue(row_.get(), at_, column),
                                 static_cast<std::size_t>(Pq().PQgetlength(row_.get(), at_, column)));
    if (Pq().PQftype(row_.get(), column) == BOOLEAN) return bytes == "t" ? "1" : "0";
    return bytes;
}

std::int64_t PgStatement::Integer(int column) const {
    const std::string_view text = Bytes(column);
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

double PgStatement::Real(int column) const {
    const std::string_view text = Bytes(column);
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

} // namespace znhost
