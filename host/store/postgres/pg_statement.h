// A statement of a PostgreSQL server.
#ifndef ZN_HOST_PG_STATEMENT_H
#define ZN_HOST_PG_STATEMENT_H

#include "store/postgres/pg_connection.h"
#include "store/postgres/pg_sql.h"
#include "store/statement.h"

#include <deque>

namespace znhost {

/// The server keeps a statement from its second run on. Rows come one by one; when something else is asked
/// before the last one, the rest is read into memory.
class PgStatement final : public EngineStatement, private PgConnection::Reader {
public:
    PgStatement(PgConnection& connection, std::string_view sql);
    ~PgStatement() override { connection_.Leave(*this); }
    PgStatement(const PgStatement&) = delete;
    PgStatement& operator=(const PgStatement&) = delete;

    bool Bind(int position, std::int64_t value) override;
    bool Bind(int position, double value) override;
    bool Bind(int position, std::string_view text) override;
    bool BindNull(int position) override;
    int ParameterCount() const override { return sql_.parameters; }
    Step Next() override;
    void Rewind() override;
    void Clear() override;
    int ColumnCount() const override;
    Kind KindOf(int column) const override;
    std::int64_t Integer(int column) const override;
    double Real(int column) const override;
    std::string_view Bytes(int column) const override;
    bool MayUndo() const override { return false; } // the connection counts that
    const std::string& Reason() const override { return reason_; }

private:
    enum class State { Idle, Reading, Ended };

    void ReadRest() noexcept override;
    Step Start();
    Step EndLostTransaction();
    Step Fail() {
        state_ = State::Ended;
        return Step::Failed;
    }
    bool HasColumn(int column) const;

    PgConnection& connection_;
    const PgSql sql_;
    const std::uint64_t number_;
    PgConnection::Parameters parameters_;
    State state_ = State::Idle;
    bool wasRun_ = false;
    PgResult row_;
    int at_ = 0; ///< which row of it: there may be several when the answer came with others
    PgConnection::Answer rest_;
    bool restFailed_ = false;
    std::string reason_;
};

} // namespace znhost

#endif
