// One open SQLite connection: statements, values, transaction state, change detection.
#ifndef ZN_HOST_DATABASE_H
#define ZN_HOST_DATABASE_H

#include "store/database_file.h"
#include "store/statement.h"

#include <chrono>
#include <functional>
#include <unordered_map>
#include <vector>

struct sqlite3;

namespace znhost {

/// Closes the connection as soon as no statement is in use any more.
struct CloseConnection {
    void operator()(sqlite3* connection) const;
};

/// A connection to a database file, or to a database in memory. Failures come as `false` and SQLite's own
/// text. Texts are in Tcl's form on this side of the class, and in the database's on the other. A value has
/// at most 256 MiB, a statement 16 MiB, a temporary file 1 GiB. All objects made from a database must go
/// before it does, unless the program ends in the middle of their use.
class Database {
public:
    using Rows = std::vector<std::vector<std::string>>;

    /// What the tables and their rows looked like at one moment. Equal stamps: nothing changed in between.
    struct Stamp {
        std::int64_t schema = -1;   ///< counts changes of the tables, by whomever
        std::int64_t rollbacks = 0; ///< what was rolled back may have been counted, and looked at, before
        std::int64_t foreign = 0;   ///< what other connections commit
        std::int64_t own = 0;       ///< rows changed through this one

        bool SameTables(const Stamp& other) const {
            return schema == other.schema && rollbacks == other.rollbacks;
        }
        bool SameRows(const Stamp& other) const {
            return SameTables(other) && foreign == other.foreign && own == other.own;
        }
    };

    enum class Access {
        Change,
        Read, ///< nothing is written to the file, and none is made beside it
    };

    /// Opens the database file, which is created when it is missing and its directory is there, unless it is
    /// only to be read. Null, with a message that names the file and the reason, when it is no regular file,
    /// cannot be opened, holds something else, or is locked.
    static std::unique_ptr<Database> OpenFile(const std::string& path, std::string& error,
                                              Access access = Access::Change);
    /// A new, empty database that lives as long as the connection.
    static std::unique_ptr<Database> OpenMemory(std::string& error);
    ~Database();

    // ---- Access ----
    bool MayChange() const { return access_ == Access::Change; }
    /// Opens the same file with that access; what was kept for this connection, such as temporary tables, is
    /// gone. @return false, with the reason, and the access stays, when that fails or somebody is in the
    /// middle of a statement or a transaction.
    bool Reopen(Access access, std::string& error);
    /// Looks whether another program has written to a file that was opened without a look at the locks of
    /// others; then it is opened anew. @return false, with the reason, when that fails
    bool FollowFile(std::string& error);

    // ---- Statements ----
    /// The statement, taken from those prepared before when it is among them and not in use. More than one
    /// statement in `sql`, or none, is a failure.
    Statement Prepare(std::string_view sql);
    /// The same for a text that will hardly come again, such as one with a name in it: it is not kept.
    Statement PrepareOnce(std::string_view sql);
    /// Runs one statement with a value for each of its `?`, and gives its rows as texts (a NULL as an empty
    /// one). Rows of more than 256 MiB in all are a failure.
    bool Run(std::string_view sql, const std::vector<Value>& values, Rows& rows, std::string& error);
    /// Runs one statement and drops its rows.
    bool Execute(std::string_view sql, std::string& error);
    /// Runs any number of statements, such as a shipped script holds. A transaction that a failed script left
    /// open is rolled back.
    bool RunScript(const std::string& script, std::string& error);

    // ---- What happened ----
    /// @return false when the database cannot be read at present (it is locked, for example)
    bool ReadStamp(Stamp& stamp, std::string& error);
    /// The rows changed through this connection so far.
    std::int64_t RowsChanged() const;
    /// Does not count that many changed rows: they lie in temporary tables of the host's own.
    void DisregardChanges(std::int64_t rows) { disregarded_ += rows; }
    /// Notes that changes may have been rolled back. `RowsChanged` does not go down then: equal counts no
    /// longer mean equal rows, so stamps taken before differ from those taken after.
    void NoteRollback() { ++rollbacks_; }
    bool InTransaction() const;
    std::int64_t LastInsertedRow() const;

    // ---- What takes long ----
    /// Why what is under way is to stop; "" as long as it may go on. The text lives on.
    using WhyStop = std::function<std::string_view()>;
    /// Asked again and again while a statement runs, also in the middle of a step, and while it waits for
    /// the lock of another connection: a statement that is to stop fails with that text. What is asked must
    /// not use the database.
    void SetWhyStop(WhyStop whyStop) { whyStop_ = std::move(whyStop); }
    /// Whether a failure with this text may pass by itself: others use the database at present.
    static bool MayPass(std::string_view error);
    /// Whether a failure with this text comes again, after as long a wait, as long as nothing changed: it
    /// took all the temporary space that a statement may have.
    static bool IsTooLarge(std::string_view error);

    // ---- For the other files of this folder ----
    /// The connection.
    sqlite3* Handle() const;
    /// What SQLite tells about the outcome of the last call.
    std::string Reason(int outcome) const;

    /// A name as an identifier in SQL: in double quotes, those inside doubled.
    static std::string Quoted(std::string_view name);

private:
    friend class Statement;
    using Connection = std::unique_ptr<sqlite3, CloseConnection>;
    using Clock = std::chrono::steady_clock;

    Database(std::string native, Access access) : native_(std::move(native)), access_(access) {}
    bool Connect(std::string& error);
    void Adopt(Connection connection);
    std::string ReadOnlyUri();

    Statement PrepareAnew(std::string_view sql, std::list<PreparedStatement>&& taken);
    bool Compile(std::string_view sql, PreparedStatement& prepared, std::string& error);
    bool EndsAt(const char* tail, const char* end, std::string& error);
    void TakeBack(std::list<PreparedStatement>&& prepared);
    bool IsStopped() noexcept;
    bool WaitForOthers(int tries) noexcept;

    const std::string native_; ///< the file, as the system knows it; ":memory:" for none
    Access access_;
    bool unlocked_ = false; ///< opened as a file that nobody else writes to
    FileStamp seen_;        ///< the file when it was opened so
    std::size_t lent_ = 0;  ///< statements in use
    Connection connection_; // closed last: the statements below need it
    // The statements not in use, the latest first. The same text may be there more than once: a statement
    // used inside a loop over its own rows needs a second one.
    std::list<PreparedStatement> idle_;
    std::unordered_multimap<std::string_view, std::list<PreparedStatement>::iterator> idleBySql_;
    std::int64_t rollbacks_ = 0;
    std::int64_t disregarded_ = 0;
    WhyStop whyStop_;
    std::string_view stopped_; ///< why the last statement that was stopped was
    Clock::time_point waitsSince_;
    Clock::time_point gaveUp_; ///< waiting for others
};

} // namespace znhost

#endif
