// A database on a PostgreSQL server.
#ifndef ZN_HOST_PG_DATABASE_H
#define ZN_HOST_PG_DATABASE_H

#include "store/database.h"
#include "store/postgres/pg_connection.h"
#include "store/postgres/pg_schema.h"

#include <optional>

namespace znhost {

/// What others commit is noticed by counting the transactions that the server has done with: one question,
/// however many rows there are. Tables of other servers are taken for changed at each look.
class PgDatabase final : public Database {
public:
    /// @param url  "postgresql://..."
    static std::unique_ptr<Database> Open(const std::string& url, std::string& error, Access access);
    ~PgDatabase() override { DropStatements(); }

    std::string Place() const override { return connection_.Shown(); }
    bool Reopen(Access access, std::string& error) override;
    bool FollowFile(std::string&) override { return true; }
    bool RunScript(const std::string& script, std::string& error) override;
    std::string ListOf(const Table& table, const std::vector<std::int64_t>& rows) override;
    bool ReadStamp(Stamp& stamp, std::string& error) override;
    void LookAgain() override { seen_.reset(); }
    void AskAlong(const std::function<void()>& ask) override;
    std::int64_t ExpectRows() override;
    std::string ExpectingSql(const std::string& page, std::int64_t number) override;
    void RowsCame(const Table& table, std::int64_t number, const std::vector<std::int64_t>& rows) override;
    std::int64_t RowsChanged() const override { return connection_.RowsChanged(); }
    bool InTransaction() const override {
        return connection_.InTransaction() || connection_.IsTransactionLost();
    }
    const Dialect& Sql() const override;
    void Undo(bool part) noexcept override;
    bool ReadTables(Tables& tables, std::string& error) override;
    bool CopyRows(const Table& table, std::string& error) override;
    std::string InsertSql(const Table& table) override;
    int Channel() const override { return connection_.Channel(); }
    bool TakeNotices() override { return connection_.TakeNotices(); }
    bool CheckExpression(const Table& table, std::string_view code, int& parameters,
                         std::string& error) override;
    bool MayPass(std::string_view error) const override { return PgConnection::IsLoss(error); }
    bool IsTooLarge(std::string_view) const override { return false; }
    std::uint64_t RoundTrips() const override { return connection_.RoundTrips(); }

private:
    PgDatabase(const std::string& url, Access access);

    std::unique_ptr<EngineStatement> Compile(const std::string& sql, std::string& error) override;
    Statement StampStatement();
    bool AskStamp(Stamp& stamp, std::string& error);
    void NoteTables(std::string fingerprint);

    PgConnection connection_;
    PgSchema schema_;
    // As of the last look.
    std::optional<Stamp> seen_;
    Stamp known_;                      ///< the last one, of whichever look
    Stamp tablesAt_;                   ///< when the tables were read
    std::uint64_t alongIn_ = 0;        ///< in which look questions were asked together
    bool asksAlong_ = false;           ///< questions are only noted at present
    std::int64_t expected_ = 0;        ///< how many lists of rows are expected from them
    std::uint64_t seenIn_ = 0;         ///< which look that was
    std::int64_t seenChanges_ = 0;     ///< own changes by then
    std::uint64_t seenGeneration_ = 0; ///< of the connection
    std::int64_t completed_ = -1;      ///< transactions of all
    std::string path_;                 ///< where names are looked for, and by whom
    std::string fingerprint_;          ///< of the tables
    std::int64_t schemaNumber_ = 0;
    std::int64_t statementsFor_ = 0; ///< the tables that the statements kept were prepared for
    std::int64_t looksAtOthers_ = 0; ///< while there are tables of other servers
    std::int64_t looksInside_ = 0;   ///< inside a transaction that has written
    // What the copies did.
    std::int64_t ownTransactions_ = 0;
    std::int64_t ownChanges_ = 0;
    std::int64_t ownRollbacks_ = 0;
};

} // namespace znhost

#endif
