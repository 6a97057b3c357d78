#include "store/postgres/pg_connection.h"

#include "base/text.h"
#include "store/postgres/libpq.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <future>
#include <memory>
#include <poll.h>
#include <thread>
#include <utility>

namespace znhost {

namespace {

constexpr int pauseBetweenQuestions = 20; // milliseconds
constexpr std::uint64_t rowsBetweenQuestions = 256;
constexpr auto timeToConnect = std::chrono::seconds(10);
constexpr auto timeToStop = std::chrono::milliseconds(1500);
constexpr auto timeForRest = std::chrono::milliseconds(20);
// Who could not connect does not wait for the same again, question after question.
constexpr auto restAfterFailure = std::chrono::seconds(1);
constexpr int oldestServer = 130000;

constexpr std::string_view lost = "the connection to the server is lost";
constexpr std::string_view unreachable = "the server cannot be reached";
constexpr std::string_view undone = "the transaction was undone when the connection to the server was lost";

/// What libpq says; in the lines below it gives advice.
std::string FirstLine(std::string_view text) { return std::string(text.substr(0, text.find('\n'))); }

int NumberOf(std::string_view text) {
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::string FieldOf(const PGresult* result, int field) {
    const char* const text = Pq().PQresultErrorField(result, field);
    return text ? text : "";
}

/// What the server says, and the detail.
std::string ReasonOf(const PGresult* result) {
    std::string reason = FieldOf(result, PG_DIAG_MESSAGE_PRIMARY);
    const std::string detail = FieldOf(result, PG_DIAG_MESSAGE_DETAIL);
    if (reason.empty()) reason = FirstLine(Pq().PQresultErrorMessage(result));
    if (!detail.empty()) reason += ": " + detail;
    return ToTcl(reason);
}

struct FreeOptions {
    void operator()(PQconninfoOption* options) const { Pq().PQconninfoFree(options); }
};
using Options = std::unique_ptr<PQconninfoOption, FreeOptions>;

std::string ValueOf(const Options& options, std::string_view keyword) {
    for (const PQconninfoOption* option = options.get(); option && option->keyword; ++option) {
        if (keyword == option->keyword) return option->val ? option->val : "";
    }
    return {};
}

bool IsChange(std::string_view status) {
    for (const std::string_view harmless :
         {"SELECT", "SHOW", "BEGIN", "SAVEPOINT", "RELEASE", "FETCH", "DEALLOCATE"}) {
        if (status.substr(0, harmless.size()) == harmless) return false;
    }
    return !status.empty(); // a statement that is only prepared has none
}

} // namespace

void EndPgConnection::operator()(pg_conn* connection) const { Pq().PQfinish(connection); }

void ClearPgResult::operator()(pg_result* result) const { Pq().PQclear(result); }

// ---- Connecting

std::string PgConnection::Shown() const {
    std::string reason;
    if (!LibPq::Load(reason)) return "postgresql://";
    const Options options(Pq().PQconninfoParse(url_.c_str(), nullptr));
    std::string shown = "postgresql://";
    const std::string user = ValueOf(options, "user");
    const std::string port = ValueOf(options, "port");
    if (!user.empty()) shown += user + "@";
    shown += ValueOf(options, "host");
    if (!port.empty()) shown += ":" + port;
    return ToTcl(shown + "/" + ValueOf(options, "dbname"));
}

bool PgConnection::IsLoss(std::string_view reason) {
    return reason.substr(0, lost.size()) == lost || reason.substr(0, unreachable.size()) == unreachable;
}

std::string PgConnection::Reason() const { return ToTcl(FirstLine(Pq().PQerrorMessage(connection_.get()))); }

bool PgConnection::Connect(std::string& reason) {
    if (connection_) return true;
    if (generation_ > 0 && Clock::now() - failedAt_ < restAfterFailure) {
        reason = whyNotConnected_;
        return false;
    }
    if (ConnectAnew(reason)) return true;
    connection_.reset();
    failedAt_ = Clock::now();
    whyNotConnected_ = reason;
    return false;
}

bool PgConnection::ConnectAnew(std::string& reason) {
    if (!LibPq::Load(reason)) return false;
    const Options options(Pq().PQconninfoParse(url_.c_str(), nullptr));
    if (!options) { // libpq would tell with parts of the text, perhaps the password
        reason = "the connection string is not of the form postgresql://USER@HOST:PORT/DATABASE?KEY=VALUE";
        return false;
    }
    const char* const keywords[] = {"fallback_application_name", "dbname", "client_encoding", nullptr};
    const char* const values[] = {"znbrowser", url_.c_str(), "UTF8", nullptr};
    connection_.reset(Pq().PQconnectStartParams(keywords, values, 1));
    kept_.clear();
    asked_ = false;
    reader_ = nullptr;
    inTransaction_ = false;
    ++roundTrips_;
    if (!connection_ || !AwaitConnection(reason) || !SetUp(reason)) return false;
    ++generation_;
    ++changes_; // whatever was known is to be looked at again
    return true;
}

bool PgConnection::AwaitConnection(std::string& reason) {
    const Options used(Pq().PQconninfo(connection_.get()));
    const int given = NumberOf(ValueOf(used, "connect_timeout"));
    const auto deadline = Clock::now() + (given > 0 ? std::chrono::seconds(given) : timeToConnect);
    PostgresPollingStatusType next = PGRES_POLLING_WRITING;
    while (Pq().PQstatus(connection_.get()) != CONNECTION_BAD && next != PGRES_POLLING_OK) {
        const std::string_view stop = whyStop_();
        if (!stop.empty()) {
            reason = stop;
            return false;
        }
        if (Clock::now() > deadline) {
            reason = std::string(unreachable) + ": it does not answer";
            return false;
        }
        if (WaitFor(next == PGRES_POLLING_READING ? POLLIN : POLLOUT, pauseBetweenQuestions))
            next = Pq().PQconnectPoll(connection_.get());
        if (next == PGRES_POLLING_FAILED) break;
    }
    if (Pq().PQstatus(connection_.get()) == CONNECTION_OK) return true;
    reason = std::string(unreachable) + ": " + Reason();
    return false;
}

bool PgConnection::SetUp(std::string& reason) {
    if (Pq().PQserverVersion(connection_.get()) < oldestServer) {
        reason = "the server is of version " +
                 std::to_string(Pq().PQserverVersion(connection_.get()) / 10000) +
                 "; it must be of version 13 or later";
        return false;
    }
    Pq().PQsetNoticeReceiver(
        connection_.get(),
        [](void* self, const PGresult* notice) { static_cast<PgConnection*>(self)->TakeNotice(notice); },
        this);
    Pq().PQsetnonblocking(connection_.get(), 1);
    // Values are written so that they read back as the same. Somebody waits for the answers: to compile a
    // statement would take longer than most of them.
    std::string ignored;
    Run("LISTEN znbrowser", ignored); // a standby has no channels
    // Nobody waits for the query of a program that is gone.
    if (Pq().PQserverVersion(connection_.get()) >= 140000)
        Run("SET client_connection_check_interval = '1s'", ignored);
    return Run("SET jit = off; SET datestyle = 'ISO, YMD'; SET intervalstyle = 'postgres'; SET "
               "extra_float_digits = 1; "
               "SET bytea_output = 'hex'; SET standard_conforming_strings = on",
               reason) &&
           (!readOnly_ || ApplyAccess(reason));
}

bool PgConnection::ApplyAccess(std::string& reason) {
    return Run(readOnly_ ? "SET default_transaction_read_only = on" : "RESET default_transaction_read_only",
               reason);
}

/// What the server says beside its answers. Its last words may come while nothing is asked.
void PgConnection::TakeNotice(const pg_result* notice) noexcept {
    try {
        if (FieldOf(notice, PG_DIAG_SQLSTATE) == "25P01") noTransaction_ = true;
        // Where another of its processes has died the server ends all connections with a warning.
        const bool isLast = FieldOf(notice, PG_DIAG_SEVERITY_NONLOCALIZED) == "FATAL" ||
                            FieldOf(notice, PG_DIAG_SQLSTATE) == "57P02";
        if (isLast) lastWords_ = ReasonOf(notice);
    } catch (const std::bad_alloc&) { // through libpq nothing may be thrown
        noTransaction_ = true;
    }
}

bool PgConnection::WaitFor(short events, int milliseconds) const {
    pollfd waiting{Pq().PQsocket(connection_.get()), events, 0};
    return poll(&waiting, 1, milliseconds) > 0;
}

/// The connection has gone. @return false
bool PgConnection::Lose(std::string& reason, std::string why) {
    if (!lastWords_.empty()) why = std::exchange(lastWords_, {});
    if (why.empty() && connection_) why = Reason();
    reason = std::string(lost) + ": " + why;
    whyLost_ = " (" + why + ")";
    transactionLost_ = transactionLost_ || inTransaction_;
    Close();
    return false;
}

// ---- Asking

std::vector<const char*> PgConnection::Pointers(const Parameters& parameters) {
    std::vector<const char*> pointers;
    for (const auto& parameter : parameters) pointers.push_back(parameter ? parameter->c_str() : nullptr);
    return pointers;
}

bool PgConnection::Begin(Reader* reader, std::string& reason) {
    ForgetAnswers();
    if (!untold_.empty()) {
        reason = std::exchange(untold_, {});
        return false;
    }
    if (transactionLost_) {
        reason = std::string(undone) + whyLost_ + "; ROLLBACK ends it";
        return false;
    }
    if (reader_) {
        reader_->ReadRest();
        reader_ = nullptr;
    }
    if (asked_) Stop();
    if (!Connect(reason)) return false;
    reader_ = reader;
    noTransaction_ = false;
    rowsSinceQuestion_ = 0;
    ++roundTrips_;
    return true;
}

bool PgConnection::Sent(int sent, std::string& reason) {
    if (!sent) return Lose(reason);
    asked_ = true;
    return true;
}

bool PgConnection::Ask(Reader& reader, const std::string& sql, const Parameters& parameters,
                       std::string& reason) {
    if (!Begin(&reader, reason)) return false;
    const std::vector<const char*> values = Pointers(parameters);
    if (!Sent(Pq().PQsendQueryParams(connection_.get(), sql.c_str(), static_cast<int>(values.size()), nullptr,
                                     values.data(), nullptr, nullptr, 0),
              reason)) {
        return false;
    }
    Pq().PQsetSingleRowMode(connection_.get());
    return true;
}

bool PgConnection::AskKept(Reader& reader, std::uint64_t number, const std::string& sql,
                           const Parameters& parameters, std::string& reason) {
    if (!Begin(&reader, reason)) return false;
    const bool isKept = std::binary_search(kept_.begin(), kept_.end(), number);
    if (!isKept && !Prepare(number, sql, reason)) return false;
    const std::vector<const char*> values = Pointers(parameters);
    if (!Sent(Pq().PQsendQueryPrepared(connection_.get(), NameOf(number).c_str(),
                                       static_cast<int>(values.size()), values.data(), nullptr, nullptr, 0),
              reason)) {
        return false;
    }
    Pq().PQsetSingleRowMode(connection_.get());
    return true;
}

std::string PgConnection::NameOf(std::uint64_t number) const {
    return "znbrowser_" + std::to_string(number) + "_" + std::to_string(forgotten_);
}

// Where it fails they are left to the connection, under names that are not used again.
void PgConnection::ForgetKept() {
    if (kept_.empty()) return;
    kept_.clear();
    ++forgotten_;
    std::string ignored;
    if (!inTransaction_ && connection_) Run("DEALLOCATE ALL", ignored);
}

bool PgConnection::Prepare(std::uint64_t number, const std::string& sql, std::string& reason) {
    ++roundTrips_;
    Reader* const reader = reader_;
    if (!Sent(Pq().PQsendPrepare(connection_.get(), NameOf(number).c_str(), sql.c_str(), 0, nullptr), reason))
        return false;
    if (!Next(reason)) return false;
    reader_ = reader;
    kept_.insert(std::upper_bound(kept_.begin(), kept_.end(), number), number);
    return true;
}

bool PgConnection::Run(const std::string& script, std::string& reason) {
    if (!Begin(nullptr, reason) || !Sent(Pq().PQsendQuery(connection_.get(), script.c_str()), reason))
        return false;
    while (asked_) {
        if (!Next(reason)) return false;
    }
    return true;
}

/// Waits until an answer can be taken without waiting. @return false when it was stopped, or the connection
/// lost
bool PgConnection::Await(std::string& reason) {
    bool ask = ++rowsSinceQuestion_ % rowsBetweenQuestions == 0;
    for (;;) {
        const std::string_view stop = ask ? whyStop_() : std::string_view();
        if (!stop.empty()) {
            reason = stop;
            Stop();
            return false;
        }
        const int unsent = Pq().PQflush(connection_.get());
        if (unsent < 0) return Lose(reason);
        if (unsent == 0 && !Pq().PQisBusy(connection_.get())) return true;
        ask = !WaitFor(static_cast<short>(unsent > 0 ? POLLIN | POLLOUT : POLLIN), pauseBetweenQuestions);
        if (!ask && !Pq().PQconsumeInput(connection_.get())) return Lose(reason);
    }
}

PgResult PgConnection::Failed(PgResult result, std::string& reason) {
    const ExecStatusType status = Pq().PQresultStatus(result.get());
    if (status == PGRES_COPY_IN) {
        Pq().PQputCopyEnd(connection_.get(), "the browser has no data for it");
        reason = "COPY cannot read from the browser";
    } else if (status == PGRES_COPY_OUT || status == PGRES_COPY_BOTH) {
        Stop();
        reason = "COPY cannot write to the browser";
    } else {
        reason = ReasonOf(result.get());
    }
    result.reset();
    if (connection_ && !Drain(timeToStop)) Lose(reason, reason);
    return nullptr;
}

PgResult PgConnection::Next(std::string& reason) {
    PgResult last;
    for (;;) {
        if (!Await(reason)) return nullptr;
        PgResult result(Pq().PQgetResult(connection_.get()));
        if (!result) break;
        const ExecStatusType status = Pq().PQresultStatus(result.get());
        if (status == PGRES_SINGLE_TUPLE) return result;
        if (status == PGRES_EMPTY_QUERY) continue;
        if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK) return Failed(std::move(result), reason);
        NoteDone(result.get());
        last = std::move(result);
    }
    NoteStatus();
    if (noTransaction_) {
        reason = "there is no transaction in progress";
        return nullptr;
    }
    if (!last) reason = "no SQL statement";
    return last;
}

void PgConnection::NoteDone(pg_result* result) {
    const std::string_view status = Pq().PQcmdStatus(result);
    if (IsChange(status)) ++changes_;
    if (status == "ROLLBACK") ++rolledBack_;
    for (const std::string_view change : {"INSERT", "UPDATE", "DELETE", "MERGE"}) {
        if (status.substr(0, change.size()) == change) rowsChanged_ += NumberOf(Pq().PQcmdTuples(result));
    }
}

/// What was asked is over.
void PgConnection::NoteStatus() {
    asked_ = false;
    reader_ = nullptr;
    const PGTransactionStatusType status = Pq().PQtransactionStatus(connection_.get());
    inTransaction_ = status == PQTRANS_INTRANS || status == PQTRANS_INERROR;
}

// ---- Giving up

namespace {

struct BlockedSignals {
    BlockedSignals() {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_SETMASK, &all, &before);
    }
    ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &before, nullptr); }
    BlockedSignals(const BlockedSignals&) = delete;
    BlockedSignals& operator=(const BlockedSignals&) = delete;

    sigset_t before;
};

/// Has the server stop what was asked. libpq waits until it has heard of it, however long that is: a server
/// that stands still is left to a thread, which takes no signals. @return false when it has not heard in time
bool Cancel(PGcancel* cancel) noexcept {
    if (!cancel) return false;
    const auto free = [](PGcancel* one) { Pq().PQfreeCancel(one); };
    try {
        const std::shared_ptr<PGcancel> shared(cancel, free);
        std::packaged_task<void()> ask([shared] {
            char ignored[256];
            Pq().PQcancel(shared.get(), ignored, sizeof ignored);
        });
        const std::future<void> heard = ask.get_future();
        const BlockedSignals blocked;
        std::thread(std::move(ask)).detach();
        return heard.wait_for(timeToStop) == std::future_status::ready;
    } catch (const std::exception&) { // there is no memory, or no thread, for it
        return false;
    }
}

} // namespace

/// Takes what the server still has to tell. @return false when it does not come to an end in time
bool PgConnection::Drain(std::chrono::milliseconds time) noexcept {
    const auto deadline = Clock::now() + time;
    for (;;) {
        if (Pq().PQflush(connection_.get()) < 0 || Clock::now() > deadline) return false;
        while (Pq().PQisBusy(connection_.get())) {
            if (Clock::now() > deadline) return false;
            if (WaitFor(POLLIN, pauseBetweenQuestions) && !Pq().PQconsumeInput(connection_.get())) break;
        }
        const PgResult result(Pq().PQgetResult(connection_.get()));
        const bool isOneOfSeveral = Pq().PQpipelineStatus(connection_.get()) != PQ_PIPELINE_OFF;
        if (!result && isOneOfSeveral && Pq().PQstatus(connection_.get()) != CONNECTION_BAD) continue;
        if (!result) break;
        const ExecStatusType status = Pq().PQresultStatus(result.get());
        if (status == PGRES_PIPELINE_SYNC) Pq().PQexitPipelineMode(connection_.get());
        if (status == PGRES_COPY_OUT || status == PGRES_COPY_BOTH) return false;
    }
    if (Pq().PQstatus(connection_.get()) == CONNECTION_BAD) return false;
    NoteStatus();
    return true;
}

void PgConnection::Stop() noexcept {
    if (!connection_ || !asked_) return;
    ++changes_; // it may have done a part
    if (Cancel(Pq().PQgetCancel(connection_.get())) && Drain(timeToStop)) return;
    transactionLost_ = transactionLost_ || inTransaction_;
    Close();
}

void PgConnection::Close() noexcept {
    inTransaction_ = false;
    asked_ = false;
    reader_ = nullptr;
    connection_.reset();
}

void PgConnection::Leave(Reader& reader) noexcept {
    if (reader_ != &reader) return;
    if (asked_ && !Drain(timeForRest)) Stop(); // mostly the rest has come already
    reader_ = nullptr;
}

} // namespace znhost
