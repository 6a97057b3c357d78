// A statement of SQLite.
#ifndef ZN_HOST_SQLITE_STATEMENT_H
#define ZN_HOST_SQLITE_STATEMENT_H

#include "store/statement.h"

struct sqlite3_stmt;

namespace znhost {

class SqliteDatabase;

struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const;
};

class SqliteStatement final : public EngineStatement {
public:
    using Handle = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

    SqliteStatement(const SqliteDatabase& owner, Handle handle) : owner_(owner), handle_(std::move(handle)) {}

    bool Bind(int position, std::int64_t value) override;
    bool Bind(int position, double value) override;
    bool Bind(int position, std::string_view text) override;
    bool BindNull(int position) override;
    int ParameterCount() const override;
    Step Next() override;
    void Rewind() override;
    void Clear() override;
    int ColumnCount() const override;
    Kind KindOf(int column) const override;
    std::int64_t Integer(int column) const override;
    double Real(int column) const override;
    std::string_view Bytes(int column) const override;
    bool MayUndo() const override;
    const std::string& Reason() const override { return reason_; }

private:
    bool Check(int outcome);

    const SqliteDatabase& owner_;
    const Handle handle_;
    std::string reason_;
};

} // namespace znhost

#endif
