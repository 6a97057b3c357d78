#include "store/statement.h"

#include "base/text.h"
#include "store/blob_text.h"
#include "store/database.h"

namespace znhost {

namespace {

/// In place of a statement that could not be prepared.
class NoStatement final : public EngineStatement {
public:
    bool Bind(int, std::int64_t) override { return true; }
    bool Bind(int, double) override { return true; }
    bool Bind(int, std::string_view) override { return true; }
    bool BindNull(int) override { return true; }
    int ParameterCount() const override { return 0; }
    Step Next() override { return Step::Done; }
    void Rewind() override {}
    void Clear() override {}
    int ColumnCount() const override { return 0; }
    Kind KindOf(int) const override { return Kind::Null; }
    std::int64_t Integer(int) const override { return 0; }
    double Real(int) const override { return 0; }
    std::string_view Bytes(int) const override { return ""; }
    bool MayUndo() const override { return false; }
    const std::string& Reason() const override { return nothing_; }

private:
    const std::string nothing_;
};

NoStatement noStatement;

} // namespace

Statement::Statement(Database& owner, std::list<PreparedStatement>&& prepared)
    : owner_(&owner), prepared_(std::move(prepared)), engine_(prepared_.front().engine.get()) {
    ++owner.lent_;
}

Statement::Statement(std::string reason) : engine_(&noStatement), error_(std::move(reason)), failed_(true) {}

Statement::~Statement() {
    if (!prepared_.empty()) owner_->TakeBack(std::move(prepared_));
}

void Statement::Check(bool done) {
    if (done || failed_) return;
    failed_ = true;
    error_ = engine_->Reason();
}

void Statement::Bind(int position, std::int64_t value) {
    if (!failed_) Check(engine_->Bind(position, value));
}

void Statement::Bind(int position, double value) {
    if (!failed_) Check(engine_->Bind(position, value));
}

void Statement::Bind(int position, std::string_view text) {
    if (!failed_) Check(engine_->Bind(position, FromTcl(text, converted_)));
}

void Statement::Bind(int position, const Value& value) {
    if (const auto* const integer = std::get_if<std::int64_t>(&value)) return Bind(position, *integer);
    if (const auto* const real = std::get_if<double>(&value)) return Bind(position, *real);
    if (const auto* const text = std::get_if<std::string>(&value)) return Bind(position, *text);
    if (!failed_) Check(engine_->BindNull(position));
}

bool Statement::Next() {
    if (failed_ || finished_) return false;
    const EngineStatement::Step step = engine_->Next();
    if (step == EngineStatement::Step::Row) {
        ++owner_->rowsRead_;
        return true;
    }
    finished_ = true;
    Check(step == EngineStatement::Step::Done);
    return false;
}

void Statement::Rewind() {
    if (failed_) return;
    engine_->Rewind();
    finished_ = false;
}

std::string_view Statement::Text(int column) const { return ToTcl(engine_->Bytes(column), converted_); }

std::string Statement::TextUpTo(int column, std::size_t most) const {
    const std::string_view bytes = engine_->Bytes(column);
    return bytes.size() <= most ? std::string(ToTcl(bytes, converted_)) : ToTcl(Cut(bytes, most));
}

std::string Statement::Shown(int column, std::size_t most) const {
    return TypeOf(column) == Type::Blob ? DescribeBlob(Stored(column)) : TextUpTo(column, most);
}

Value Statement::Get(int column) const {
    switch (engine_->KindOf(column)) {
    case EngineStatement::Kind::Null: return {};
    case EngineStatement::Kind::Integer: return Integer(column);
    case EngineStatement::Kind::Real: return Real(column);
    default: return std::string(Text(column));
    }
}

bool Statement::Finish(std::string& error) const {
    if (failed_) error = error_;
    return !failed_;
}

} // namespace znhost
