// A connection to a PostgreSQL server.
#ifndef ZN_HOST_PG_CONNECTION_H
#define ZN_HOST_PG_CONNECTION_H

#include "store/postgres/pg_answers.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

struct pg_conn;
struct pg_result;

namespace znhost {

struct PgSql;

struct EndPgConnection {
    void operator()(pg_conn* connection) const;
};

struct ClearPgResult {
    void operator()(pg_result* result) const;
};

using PgResult = std::unique_ptr<pg_result, ClearPgResult>;

/// Asks the server and waits for its answers, ready to stop at any time. A connection that is lost is made
/// anew when the next question is asked, but not in the middle of a transaction: that one is undone then, and
/// nothing is done before it is ended. Texts are the database's own bytes, reasons in Tcl's form.
class PgConnection {
public:
    /// Why what is under way is to stop; "" when it may go on.
    using WhyStop = std::function<std::string_view()>;
    /// Reads at once, into its own memory, what the server still has to tell it.
    class Reader {
    public:
        virtual void ReadRest() noexcept = 0;

    protected:
        ~Reader() = default;
    };
    using Parameters = std::vector<std::optional<std::string>>;

    /// @param url  "postgresql://..."; passwords in it are not shown in any text
    PgConnection(std::string url, WhyStop whyStop) : url_(std::move(url)), whyStop_(std::move(whyStop)) {}

    /// The database without its password.
    std::string Shown() const;
    /// Connects unless it is connected. @return false with the reason
    bool Connect(std::string& reason);

    /// Whether the server is to refuse what writes, from the next connection or `ApplyAccess` on.
    void SetReadOnly(bool readOnly) { readOnly_ = readOnly; }
    bool ApplyAccess(std::string& reason);

    /// Asks one statement; its rows are read one by one by `Next`.
    bool Ask(Reader& reader, const std::string& sql, const Parameters& parameters, std::string& reason);
    /// The same with a statement that the server keeps under that number, in this connection.
    bool AskKept(Reader& reader, std::uint64_t number, const std::string& sql, const Parameters& parameters,
                 std::string& reason);
    /// The tables changed: what the server keeps was prepared for what they were.
    void ForgetKept();
    /// Whether the question is only noted: it is going to be asked.
    bool Notes(const PgSql& sql, const Parameters& parameters);
    void SetNoting(bool noting);
    /// A value that stands for what one of the other questions leaves in that setting.
    static std::string Setting(const std::string& name) { return '\1' + name; }
    /// That was this value.
    void ReplaceNoted(const std::string& setting, const std::string& value) {
        along_.Replace(setting, value);
    }
    /// Asks all that was noted at once. The answers are kept until something else is asked.
    void AskNoted();
    /// The results of one question: some rows each, perhaps none.
    using Answer = std::deque<PgResult>;
    /// The whole answer, when it was kept; else nothing.
    Answer TakeAnswer(const std::string& sql, const Parameters& parameters);
    void ForgetAnswers() { along_.Forget(); }
    /// Any number of statements without parameters. None of their rows is wanted.
    bool Run(const std::string& script, std::string& reason);
    /// The next answer to what is asked: a row, or the end. Null with the reason when it failed: the question
    /// is over then, as it is after the end.
    PgResult Next(std::string& reason);
    /// Ends the connection.
    void Close() noexcept;
    /// Gives up what is asked.
    void Stop() noexcept;
    /// What the reader asked has been read to its end, or it does not want the rest.
    void Leave(Reader& reader) noexcept;

    /// The file of the connection while nothing is asked; -1: there is none.
    int Channel() const;
    /// Whether others have notified the channel "znbrowser" since this was asked last.
    bool TakeNotices();

    bool InTransaction() const { return inTransaction_; }
    /// Ends the memory of a transaction that went with its connection. @return whether there was one
    bool ForgetLostTransaction() { return std::exchange(transactionLost_, false); }
    bool IsTransactionLost() const { return transactionLost_; }
    /// How many rows were changed, and how many statements may have changed anything.
    std::int64_t RowsChanged() const { return rowsChanged_; }
    std::int64_t Changes() const { return changes_; }
    std::int64_t RolledBack() const { return rolledBack_; }
    /// How often it was connected: what the server keeps for a connection goes with it.
    std::uint64_t Generation() const { return generation_; }
    /// How often an answer was waited for.
    std::uint64_t RoundTrips() const { return roundTrips_; }

    static bool IsLoss(std::string_view reason);

private:
    using Clock = std::chrono::steady_clock;

    static std::vector<const char*> Pointers(const Parameters& parameters);
    bool Begin(Reader* reader, std::string& reason);
    bool AskTogether(const std::vector<PgQuestion>& questions, std::vector<Answer>& answers,
                     std::string& reason);
    bool Sent(int sent, std::string& reason);
    bool Prepare(std::uint64_t number, const std::string& sql, std::string& reason);
    std::string NameOf(std::uint64_t number) const;
    bool Await(std::string& reason);
    bool WaitFor(short events, int milliseconds) const;
    bool ConnectAnew(std::string& reason);
    bool AwaitConnection(std::string& reason);
    bool SetUp(std::string& reason);
    PgResult Failed(PgResult result, std::string& reason);
    void NoteDone(pg_result* result);
    void NoteStatus();
    bool Lose(std::string& reason, std::string why = {});
    void TakeNotice(const pg_result* notice) noexcept;
    bool Drain(std::chrono::milliseconds time) noexcept;
    std::string Reason() const;

    const std::string url_;
    const WhyStop whyStop_;
    std::unique_ptr<pg_conn, EndPgConnection> connection_;
    bool readOnly_ = false;
    Reader* reader_ = nullptr; ///< who reads at present
    bool asked_ = false;       ///< something is under way
    PgAnswers<Answer> along_;
    std::string untold_; ///< that the connection was lost, which nobody has heard of
    bool inTransaction_ = false;
    bool transactionLost_ = false;
    bool noTransaction_ = false; ///< the server warned that there is no transaction to end
    std::string whyLost_;
    std::string lastWords_; ///< why the server ends the connection
    std::int64_t rowsChanged_ = 0;
    std::int64_t changes_ = 0;
    std::int64_t rolledBack_ = 0;
    std::uint64_t generation_ = 0;
    std::uint64_t roundTrips_ = 0;
    std::uint64_t rowsSinceQuestion_ = 0;
    std::vector<std::uint64_t> kept_; ///< what the server keeps, sorted
    std::uint64_t forgotten_ = 0;     ///< how often it was told to keep them no longer
    Clock::time_point failedAt_;      ///< when it could not be connected last
    std::string whyNotConnected_;
};

} // namespace znhost

#endif
