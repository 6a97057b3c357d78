// A prepared statement, borrowed from its database for as long as it is needed.
#ifndef ZN_HOST_STATEMENT_H
#define ZN_HOST_STATEMENT_H

#include "store/value.h"

#include <list>
#include <memory>
#include <string>
#include <string_view>

namespace znhost {

class Database;

/// A statement as an engine runs it; `Statement` tells what its operations do. Texts are the database's own
/// bytes here. What answers false, or that it failed, leaves the reason to be asked for.
class EngineStatement {
public:
    enum class Step { Row, Done, Failed };
    enum class Kind { Null, Integer, Real, Text, Blob };

    virtual ~EngineStatement() = default;

    virtual bool Bind(int position, std::int64_t value) = 0;
    virtual bool Bind(int position, double value) = 0;
    virtual bool Bind(int position, std::string_view text) = 0;
    virtual bool BindNull(int position) = 0;
    virtual int ParameterCount() const = 0;

    /// To the next row. After the last one, and after a failure, the statement holds nothing of the database
    /// any more.
    virtual Step Next() = 0;
    /// Ready for another run with what is bound.
    virtual void Rewind() = 0;
    /// Ready for another run with nothing bound.
    virtual void Clear() = 0;

    /// Before the first row some engines know of no columns.
    virtual int ColumnCount() const = 0;
    virtual Kind KindOf(int column) const = 0;
    virtual std::int64_t Integer(int column) const = 0;
    virtual double Real(int column) const = 0;
    /// Of a blob what it holds, of anything else the text.
    virtual std::string_view Bytes(int column) const = 0;

    /// Whether it may undo what was done before: it ends a transaction, say.
    virtual bool MayUndo() const = 0;
    /// Of the last failure, in Tcl's form.
    virtual const std::string& Reason() const = 0;
};

/// A statement with the text that it was prepared from.
struct PreparedStatement {
    std::string sql;
    std::unique_ptr<EngineStatement> engine;
    bool once = false; ///< not worth keeping: its text will hardly come again
};

/// One run of one SQL statement: bind, read the rows, ask for the outcome.
///
///     Statement parts = database.Prepare("SELECT name FROM part WHERE mass > ?");
///     parts.Bind(1, 2.5);
///     while (parts.Next()) Show(parts.Text(0));
///     return parts.Finish(error);
///
/// The first failure is kept; from then on every call is harmless and does nothing, so that one look at the
/// end suffices. Texts, names and errors are in Tcl's form here, and the database's behind. On destruction
/// the statement goes back to the database, ready for its next use. It must not outlive the database.
class Statement {
public:
    Statement(Statement&& other) noexcept = default;
    Statement& operator=(Statement&&) = delete;
    ~Statement();

    /// The `?` in their order, the first one is 1. What is not bound is NULL. Texts are copied.
    void Bind(int position, std::int64_t value);
    void Bind(int position, double value);
    void Bind(int position, std::string_view text);
    void Bind(int position, const Value& value);
    void Bind(int position, int value) { Bind(position, std::int64_t{value}); }
    void Bind(int position, const std::string& text) { Bind(position, std::string_view(text)); }
    void Bind(int position, const char* text) { Bind(position, std::string_view(text ? text : "")); }
    int ParameterCount() const { return engine_->ParameterCount(); }

    /// Steps to the next row: false when there are no more, and on failure. A statement that gives no rows is
    /// run by its first `Next`.
    bool Next();
    /// Ready for another run: what is bound stays bound.
    void Rewind();

    /// The present row, the first column is 0. A value of another type is converted as the database does;
    /// NULL, and a column that is not there, read as 0 and "". A text is valid until the next call.
    int ColumnCount() const { return engine_->ColumnCount(); }
    bool IsNull(int column) const { return engine_->KindOf(column) == EngineStatement::Kind::Null; }
    std::int64_t Integer(int column) const { return engine_->Integer(column); }
    double Real(int column) const { return engine_->Real(column); }
    std::string_view Text(int column) const;
    /// At most so many bytes of the text as it is stored, with "…" behind them when there are more.
    std::string TextUpTo(int column, std::size_t most) const;
    /// What a reader sees of the value: a blob by its type and size, anything else as `TextUpTo`.
    std::string Shown(int column, std::size_t most) const;
    using Type = EngineStatement::Kind;
    /// How the value is stored.
    Type TypeOf(int column) const { return engine_->KindOf(column); }
    /// The bytes of a blob, or of the text of any other value, as they are stored.
    std::string_view Stored(int column) const { return engine_->Bytes(column); }
    /// The value as it is stored; the bytes of a blob as a text.
    Value Get(int column) const;

    bool Failed() const { return failed_; }
    /// Whether everything went well; if not, `error` is the database's reason.
    bool Finish(std::string& error) const;
    bool MayUndo() const { return engine_->MayUndo(); }

private:
    friend class Database;
    Statement(Database& owner, std::list<PreparedStatement>&& prepared);
    explicit Statement(std::string reason);

    void Check(bool done);

    Database* owner_ = nullptr;
    std::list<PreparedStatement> prepared_; // one, or none after a failed preparation
    EngineStatement* engine_;               // that one, or one that does nothing
    mutable std::string converted_; // the text last bound or given, when it differs from the database's
    std::string error_;
    bool failed_ = false;
    bool finished_ = false;
};

} // namespace znhost

#endif
