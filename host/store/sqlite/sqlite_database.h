// A database of SQLite: a file, or in memory.
#ifndef ZN_HOST_SQLITE_DATABASE_H
#define ZN_HOST_SQLITE_DATABASE_H

#include "store/database.h"
#include "store/sqlite/database_file.h"

#include <chrono>

struct sqlite3;

namespace znhost {

/// Closes the connection as soon as no statement is in use any more.
struct CloseConnection {
    void operator()(sqlite3* connection) const;
};

/// Statements that sort or copy have temporary files of at most 1 GiB.
class SqliteDatabase final : public Database {
public:
    /// @param native  the file as the system has it, or ":memory:"
    static std::unique_ptr<Database> Open(const std::string& native, Access access, std::string& error);
    ~SqliteDatabase() override;

    std::string Place() const override;
    bool Reopen(Access access, std::string& error) override;
    bool FollowFile(std::string& error) override;

    std::unique_ptr<ColumnValues> OpenValues(const Table& table, const TableColumn& column) override;
    bool RunScript(const std::string& script, std::string& error) override;
    std::string ListOf(const Table& table, const std::vector<std::int64_t>& rows) override;
    bool ReadStamp(Stamp& stamp, std::string& error) override;
    std::int64_t RowsChanged() const override;
    bool WatchRows(RowWatcher* watcher) override;
    bool InTransaction() const override;
    const Dialect& Sql() const override;
    void Undo(bool part) noexcept override;
    bool IsReadFromIndex(const std::string& select) override;
    bool ReadTables(Tables& tables, std::string& error) override;
    bool CopyRows(const Table& table, std::string& error) override;
    std::string InsertSql(const Table& table) override;
    bool CheckExpression(const Table& table, std::string_view code, int& parameters,
                         std::string& error) override;
    bool MayPass(std::string_view error) const override;
    bool IsTooLarge(std::string_view error) const override;

    // ---- For the other files of this folder ----
    /// The connection.
    sqlite3* Handle() const;
    /// What SQLite tells about the outcome of the last call.
    std::string Reason(int outcome) const;
    /// Why the last statement that was stopped was.
    std::string_view WhyStopped() const { return stopped_; }

private:
    using Connection = std::unique_ptr<sqlite3, CloseConnection>;
    using Clock = std::chrono::steady_clock;

    SqliteDatabase(std::string native, Access access) : Database(access), native_(std::move(native)) {}
    bool Connect(std::string& error);
    void Adopt(Connection connection);
    void SetHooks();
    std::string ReadOnlyUri();

    std::unique_ptr<EngineStatement> Compile(const std::string& sql, std::string& error) override;
    bool EndsAt(const char* tail, const char* end, std::string& error);
    bool IsStopped() noexcept;
    bool WaitForOthers(int tries) noexcept;
    static std::string TooLargeFile();

    const std::string native_; ///< the file, as the system knows it; ":memory:" for none
    bool unlocked_ = false;    ///< opened as a file that nobody else writes to
    FileStamp seen_;           ///< the file when it was opened so
    Connection connection_;
    RowWatcher* watcher_ = nullptr;
    std::string_view stopped_;
    Clock::time_point waitsSince_;
    Clock::time_point gaveUp_; ///< waiting for others
};

} // namespace znhost

#endif
