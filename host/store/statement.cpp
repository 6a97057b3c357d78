#include "store/statement.h"

#include "base/text.h"
#include "store/blob_text.h"
#include "store/database.h"

#include <sqlite3.h>

namespace znhost {

void FinalizeStatement::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Statement::Statement(Database& owner, std::list<PreparedStatement>&& prepared)
    : owner_(&owner), prepared_(std::move(prepared)) {
    ++owner.lent_;
}

Statement::Statement(std::string reason) : error_(std::move(reason)), failed_(true) {}

Statement::~Statement() {
    if (!prepared_.empty()) owner_->TakeBack(std::move(prepared_));
}

void Statement::Check(int resultCode) {
    if (resultCode == SQLITE_OK || failed_) return;
    failed_ = true;
    if (resultCode == SQLITE_INTERRUPT && !owner_->stopped_.empty()) {
        error_ = owner_->stopped_;
        return;
    }
    // The connection's message tells more than the code, but is about the last call on the connection only.
    sqlite3* const connection = sqlite3_db_handle(Handle());
    const bool described = sqlite3_errcode(connection) == resultCode;
    error_ = described ? owner_->Reason(resultCode) : sqlite3_errstr(resultCode);
}

void Statement::Bind(int position, std::int64_t value) {
    if (!failed_) Check(sqlite3_bind_int64(Handle(), position, value));
}

void Statement::Bind(int position, double value) {
    if (!failed_) Check(sqlite3_bind_double(Handle(), position, value));
}

void Statement::Bind(int position, std::string_view text) {
    if (failed_) return;
    text = FromTcl(text, converted_);
    const char* const data = text.data() ? text.data() : ""; // a null pointer would bind NULL
    Check(sqlite3_bind_text64(Handle(), position, data, text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Statement::Bind(int position, const Value& value) {
    if (const auto* const integer = std::get_if<std::int64_t>(&value)) return Bind(position, *integer);
    if (const auto* const real = std::get_if<double>(&value)) return Bind(position, *real);
    if (const auto* const text = std::get_if<std::string>(&value)) return Bind(position, *text);
    if (!failed_) Check(sqlite3_bind_null(Handle(), position));
}

int Statement::ParameterCount() const { return sqlite3_bind_parameter_count(Handle()); }

bool Statement::Next() {
    if (failed_ || finished_) return false;
    const int outcome = sqlite3_step(Handle());
    if (outcome == SQLITE_ROW) return true;
    finished_ = true;
    if (outcome != SQLITE_DONE) Check(outcome);
    // Done with: a statement that is not reset keeps its lock on the database. What failed stays failed.
    sqlite3_reset(Handle());
    return false;
}

void Statement::Rewind() {
    if (failed_) return;
    sqlite3_reset(Handle());
    finished_ = false;
}

int Statement::ColumnCount() const { return sqlite3_column_count(Handle()); }

bool Statement::IsNull(int column) const { return sqlite3_column_type(Handle(), column) == SQLITE_NULL; }

std::int64_t Statement::Integer(int column) const { return sqlite3_column_int64(Handle(), column); }

double Statement::Real(int column) const { return sqlite3_column_double(Handle(), column); }

std::string_view Statement::Text(int column) const { return ToTcl(Bytes(column), converted_); }

std::string Statement::TextUpTo(int column, std::size_t most) const {
    const std::string_view bytes = Bytes(column);
    return bytes.size() <= most ? std::string(ToTcl(bytes, converted_)) : ToTcl(Cut(bytes, most));
}

Statement::Type Statement::TypeOf(int column) const {
    switch (sqlite3_column_type(Handle(), column)) {
    case SQLITE_NULL: return Type::Null;
    case SQLITE_INTEGER: return Type::Integer;
    case SQLITE_FLOAT: return Type::Real;
    case SQLITE_BLOB: return Type::Blob;
    default: return Type::Text;
    }
}

std::string_view Statement::Stored(int column) const {
    if (TypeOf(column) != Type::Blob) return Bytes(column);
    const auto* const bytes = static_cast<const char*>(sqlite3_column_blob(Handle(), column));
    return bytes ? std::string_view(bytes, static_cast<std::size_t>(sqlite3_column_bytes(Handle(), column)))
                 : "";
}

std::string Statement::Shown(int column, std::size_t most) const {
    return TypeOf(column) == Type::Blob ? DescribeBlob(Stored(column)) : TextUpTo(column, most);
}

std::string_view Statement::Bytes(int column) const {
    const unsigned char* const text = sqlite3_column_text(Handle(), column);
    if (!text) return "";
    const int bytes = sqlite3_column_bytes(Handle(), column); // to be asked after the conversion to text
    return {reinterpret_cast<const char*>(text), static_cast<std::size_t>(bytes)};
}

Value Statement::Get(int column) const {
    switch (sqlite3_column_type(Handle(), column)) {
    case SQLITE_NULL: return {};
    case SQLITE_INTEGER: return Integer(column);
    case SQLITE_FLOAT: return Real(column);
    default: return std::string(Text(column));
    }
}

bool Statement::Finish(std::string& error) const {
    if (failed_) error = error_;
    return !failed_;
}

bool Statement::IsReadOnly() const { return sqlite3_stmt_readonly(Handle()) != 0; }

} // namespace znhost
