// One open database, whichever engine it is of: statements, values, transaction state, change detection.
#ifndef ZN_HOST_DATABASE_H
#define ZN_HOST_DATABASE_H

#include "store/column_values.h"
#include "store/statement.h"

#include <functional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace znhost {

struct Table;
struct TableColumn;

/// Where the SQL of the host differs from engine to engine; what differs from table to table stands in the
/// tables.
struct Dialect {
    const char* begin;         ///< begins a transaction in which is written
    const char* ownTables;     ///< what the names of the host's own tables begin with
    const char* hasOwnTables;  ///< gives a row when they are there
    const char* lockOwnTables; ///< keeps others from changing them until the transaction ends; null: need not
    bool isServer;
    /// The rows in the list (see `Database::ListOf`) bound to its `?` as a table `given`, with the place of
    /// each, from 0, as `key` and the row as `value`; null where `Table::among` finds them.
    const char* given;
};

/// Who is told of the rows that change through a connection.
class RowWatcher {
public:
    virtual ~RowWatcher() = default;
    virtual void OnRowChange(std::string_view table, std::int64_t row) noexcept = 0;
    /// Rows that were told may be as they were before.
    virtual void OnRowsUndone() noexcept = 0;
};

/// What the sources, the links and the saved states need of a database; each engine gives it in a folder of
/// its own. Failures come as `false` and the engine's own text. Texts are in Tcl's form on this side of the
/// class, and in the database's on the other. A value has at most 256 MiB, a statement 16 MiB. All objects
/// made from a database must go before it does, unless the program ends in the middle of their use.
class Database {
public:
    using Rows = std::vector<std::vector<std::string>>;
    using Tables = std::vector<std::shared_ptr<Table>>;

    /// What the tables and their rows looked like at one moment. Equal stamps: nothing changed in between.
    struct Stamp {
        std::int64_t schema = -1;   ///< counts changes of the tables, by whomever
        std::int64_t rollbacks = 0; ///< what was rolled back may have been counted, and looked at, before
        std::int64_t foreign = 0;   ///< what other connections commit
        std::int64_t own = 0;       ///< rows changed through this one
        std::int64_t elsewhere = 0; ///< what lies where changes cannot be noticed is another one at each look

        bool SameTables(const Stamp& other) const {
            return schema == other.schema && rollbacks == other.rollbacks;
        }
        bool SameRows(const Stamp& other) const {
            return SameTables(other) && SameElsewhere(other) && foreign == other.foreign && own == other.own;
        }
        bool SameElsewhere(const Stamp& other) const { return elsewhere == other.elsewhere; }
    };

    enum class Access {
        Change,
        Read, ///< nothing is written to the file, and none is made beside it
    };

    /// Opens what a script names: a database on a server ("postgresql://..."), a file, or one in memory ("").
    static std::unique_ptr<Database> Open(const std::string& name, std::string& error, Access access);
    /// Opens the database file, which is created when it is missing and its directory is there, unless it is
    /// only to be read. Null, with a message that names the file and the reason, when it is no regular file,
    /// cannot be opened, holds something else, or is locked.
    static std::unique_ptr<Database> OpenFile(const std::string& path, std::string& error,
                                              Access access = Access::Change);
    /// A new, empty database that lives as long as the connection.
    static std::unique_ptr<Database> OpenMemory(std::string& error);
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    virtual ~Database() = default;

    /// Which file or server it is on, without what is secret; "" for one in memory.
    virtual std::string Place() const = 0;

    // ---- Access ----
    bool MayChange() const { return access_ == Access::Change; }
    /// Opens the same database with that access; what was kept for this connection, such as temporary tables,
    /// may be gone. @return false, with the reason, and the access stays, when that fails or somebody is in
    /// the middle of a statement or a transaction.
    virtual bool Reopen(Access access, std::string& error) = 0;
    /// Looks whether another program has written to a file that was opened without a look at the locks of
    /// others; then it is opened anew. @return false, with the reason, when that fails
    virtual bool FollowFile(std::string& error) = 0;

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
    /// The rows of the table as one value: for `Table::among`.
    virtual std::string ListOf(const Table& table, const std::vector<std::int64_t>& rows) = 0;
    /// Whether the rows of the statement are read from an index alone, which has them in its order.
    virtual bool IsReadFromIndex(const std::string&) { return false; }
    /// Runs any number of statements, such as a shipped script holds. A transaction that a failed script left
    /// open is rolled back.
    virtual bool RunScript(const std::string& script, std::string& error) = 0;

    /// The values of a column of the table as they are read in parts; null where the engine, or this table,
    /// has them whole only.
    virtual std::unique_ptr<ColumnValues> OpenValues(const Table&, const TableColumn&) { return nullptr; }

    // ---- What happened ----
    /// @return false when the database cannot be read at present (it is locked, for example)
    virtual bool ReadStamp(Stamp& stamp, std::string& error) = 0;
    /// The next stamp is read anew. Otherwise an engine whose answers take long may give the last one again
    /// as long as it is the same look, by the number that `whichLook` gives; 0: each is a look of its own.
    virtual void LookAgain() {}
    void SetWhichLook(std::function<std::uint64_t()> whichLook) { whichLook_ = std::move(whichLook); }
    /// `ask` is going to ask several questions in this look: an engine whose answers take long lets it ask
    /// them once without an answer (no rows), and then waits for all answers, and for the stamp, at once.
    /// When they are asked again in the same look, and nothing else before, they are answered so. `ask` keeps
    /// nothing of what it is told.
    virtual void AskAlong(const std::function<void()>& ask) { (void)ask; }
    // Rows that one of those questions finds can be asked about in others of them.
    /// A number that stands for such rows in `ListOf`, where it is to be the only one.
    virtual std::int64_t ExpectRows() { return 0; }
    /// The question with which they are found: that for a page of rows, `item`, some of which are expected.
    /// Its last two `?` are how many of the page come before those, and how many those are.
    virtual std::string ExpectingSql(const std::string& page, std::int64_t number) {
        return (void)number, page;
    }
    /// They were these rows of the table: the questions are asked again with them.
    virtual void RowsCame(const Table&, std::int64_t, const std::vector<std::int64_t>&) {}
    /// What becomes readable when others may have something to tell, outside of all questions; -1: nothing.
    /// It is another one after the connection was made anew.
    virtual int Channel() const { return -1; }
    /// Whether others told that something has changed, since this was asked last.
    virtual bool TakeNotices() { return false; }
    /// How often a server was waited for.
    virtual std::uint64_t RoundTrips() const { return 0; }
    /// The rows changed through this connection so far.
    virtual std::int64_t RowsChanged() const = 0;
    /// Does not count that many changed rows: they lie in temporary tables of the host's own.
    void DisregardChanges(std::int64_t rows) { disregarded_ += rows; }
    /// Notes that changes may have been rolled back. `RowsChanged` does not go down then: equal counts no
    /// longer mean equal rows, so stamps taken before differ from those taken after.
    void NoteRollback() { ++rollbacks_; }
    /// Tells of each row that changes from now on, before it does; null: nobody is told. @return false when
    /// the engine cannot tell
    virtual bool WatchRows(RowWatcher*) { return false; }
    virtual bool InTransaction() const = 0;
    virtual const Dialect& Sql() const = 0;
    /// Undoes the transaction, or the innermost one of its parts, if there still is one. It needs no memory.
    virtual void Undo(bool part) noexcept = 0;

    // ---- Tables ----
    /// All tables and views in name order, but for those of the engine and of the browser itself.
    virtual bool ReadTables(Tables& tables, std::string& error) = 0;
    /// Makes the copy of the rows of a table that is `copied` anew. What it writes does not count as changed.
    virtual bool CopyRows(const Table& table, std::string& error) = 0;
    /// Accepts one expression over the columns of the table, to stand in parentheses behind WHERE. It may
    /// have `?` parameters and subqueries that read. Refused are: anything that leaves the parentheses,
    /// comments, a second statement, named and numbered parameters, unknown columns, WITH clauses (recursive
    /// ones may never end), and functions that do more than compute.
    /// @param parameters the number of `?`, when accepted
    /// @param error why it is refused, else
    virtual bool CheckExpression(const Table& table, std::string_view code, int& parameters,
                                 std::string& error) = 0;

    /// SELECT of the key, and of the INSERT statement that makes the row bound to its `?` again, every value
    /// exactly as it is stored, in all columns that take one; where `Table::among` finds rows, of those in
    /// the list that is bound.
    virtual std::string InsertSql(const Table& table) = 0;

    // ---- What takes long ----
    /// Why what is under way is to stop; "" as long as it may go on. The text lives on.
    using WhyStop = std::function<std::string_view()>;
    /// Asked again and again while a statement runs, also in the middle of a step, and while it waits for
    /// the lock of another connection: a statement that is to stop fails with that text. What is asked must
    /// not use the database.
    void SetWhyStop(WhyStop whyStop) { whyStop_ = std::move(whyStop); }
    /// How many rows statements have given since this was asked last.
    std::uint64_t TakeRowsRead() { return std::exchange(rowsRead_, 0); }
    /// Whether a failure with this text may pass by itself: others use the database at present.
    virtual bool MayPass(std::string_view error) const = 0;
    /// Whether a failure with this text comes again, after as long a wait, as long as nothing changed: it
    /// took all the temporary space that a statement may have.
    virtual bool IsTooLarge(std::string_view error) const = 0;

    /// A name as an identifier in SQL: in double quotes, those inside doubled.
    static std::string Quoted(std::string_view name);
    /// A text as one in SQL: in single quotes.
    static std::string QuotedText(std::string_view text);

protected:
    /// The most bytes of one value, and of all rows that are asked for at once. Tcl ends the process above
    /// 2 GiB, and writing a list of such texts may double them for each level of the list.
    static constexpr std::size_t largestValue = 1 << 28;
    static constexpr std::size_t longestSql = 1 << 24;

    explicit Database(Access access) : access_(access) {}
    Access TheAccess() const { return access_; }
    void SetAccess(Access access) { access_ = access; }
    /// Whether a statement is in use.
    bool IsLent() const { return lent_ > 0; }
    /// What is counted of the connection begins anew.
    void ForgetCounts() { disregarded_ = 0; }
    /// Null, with the reason, when the engine refuses the text, which is the database's here: it holds no
    /// NUL, and is not too long.
    virtual std::unique_ptr<EngineStatement> Compile(const std::string& sql, std::string& error) = 0;
    /// To be called by each engine while its connection is still there.
    void DropStatements() noexcept;
    /// Why what is under way is to stop; "" when it may go on. Throws nothing.
    std::string_view AskWhyStop() noexcept;
    std::uint64_t WhichLook() const { return whichLook_ ? whichLook_() : 0; }
    std::int64_t Rollbacks() const { return rollbacks_; }
    std::int64_t Disregarded() const { return disregarded_; }

    static std::string Limit(std::size_t bytes) { return std::to_string(bytes) + " bytes"; }

private:
    friend class Statement;

    Statement PrepareAnew(std::string_view sql, std::list<PreparedStatement>&& taken);
    bool Compile(std::string_view sql, PreparedStatement& prepared, std::string& error);
    void TakeBack(std::list<PreparedStatement>&& prepared);

    // The statements not in use, the latest first. The same text may be there more than once: a statement
    // used inside a loop over its own rows needs a second one.
    std::list<PreparedStatement> idle_;
    std::unordered_multimap<std::string_view, std::list<PreparedStatement>::iterator> idleBySql_;
    Access access_;
    std::size_t lent_ = 0;
    std::int64_t rollbacks_ = 0;
    std::int64_t disregarded_ = 0;
    std::uint64_t rowsRead_ = 0;
    WhyStop whyStop_;
    std::function<std::uint64_t()> whichLook_;
};

} // namespace znhost

#endif
