#include "store/database.h"

#include "base/text.h"

#include <iterator>

namespace znhost {
namespace {

constexpr std::size_t idleStatements = 64;

} // namespace

std::string_view Database::AskWhyStop() noexcept {
    try {
        return whyStop_ ? whyStop_() : std::string_view();
    } catch (const std::exception&) { // it is asked from inside the engine
        return "out of memory";
    }
}

// ---- Statements

Statement Database::Prepare(std::string_view sql) {
    std::list<PreparedStatement> taken;
    const auto found = idleBySql_.find(sql);
    if (found != idleBySql_.end()) {
        taken.splice(taken.begin(), idle_, found->second);
        idleBySql_.erase(found);
        return Statement(*this, std::move(taken));
    }
    taken.emplace_back();
    return PrepareAnew(sql, std::move(taken));
}

Statement Database::PrepareOnce(std::string_view sql) {
    std::list<PreparedStatement> taken(1);
    taken.front().once = true;
    return PrepareAnew(sql, std::move(taken));
}

Statement Database::PrepareAnew(std::string_view sql, std::list<PreparedStatement>&& taken) {
    std::string error;
    if (!Compile(sql, taken.front(), error)) return Statement(std::move(error));
    return Statement(*this, std::move(taken));
}

bool Database::Compile(std::string_view sql, PreparedStatement& prepared, std::string& error) {
    prepared.sql = sql;
    const std::string text = FromTcl(sql);
    if (text.find('\0') != text.npos) { // an engine would silently run what stands before it
        error = "a NUL character in the SQL statement";
        return false;
    }
    if (text.size() > longestSql) {
        error = "the SQL statement is too long: the limit is " + Limit(longestSql);
        return false;
    }
    prepared.engine = Compile(text, error);
    return prepared.engine != nullptr;
}

void Database::DropStatements() noexcept {
    idleBySql_.clear();
    idle_.clear();
}

void Database::TakeBack(std::list<PreparedStatement>&& prepared) {
    --lent_;
    if (prepared.front().once) {
        prepared.clear();
        return;
    }
    prepared.front().engine->Clear();
    idle_.splice(idle_.begin(), prepared);
    try {
        idleBySql_.emplace(idle_.front().sql, idle_.begin());
    } catch (const std::bad_alloc&) { // then it is not kept: the end of a statement must not fail
        idle_.pop_front();
        return;
    }
    if (idle_.size() <= idleStatements) return;
    const auto oldest = std::prev(idle_.end());
    auto [entry, end] = idleBySql_.equal_range(oldest->sql);
    while (entry != end && entry->second != oldest) ++entry;
    if (entry != end) idleBySql_.erase(entry);
    idle_.erase(oldest);
}

bool Database::Run(std::string_view sql, const std::vector<Value>& values, Rows& rows, std::string& error) {
    rows.clear();
    Statement statement = Prepare(sql);
    const auto count = static_cast<std::size_t>(statement.ParameterCount());
    if (!statement.Failed() && count != values.size()) {
        error = "the SQL statement takes " + std::to_string(count) + (count == 1 ? " value, " : " values, ") +
                std::to_string(values.size()) + (values.size() == 1 ? " is given" : " are given");
        return false;
    }
    for (std::size_t i = 0; i < values.size(); ++i) statement.Bind(static_cast<int>(i + 1), values[i]);
    if (statement.MayUndo()) NoteRollback();
    for (std::size_t bytes = 0; statement.Next();) {
        std::vector<std::string>& row = rows.emplace_back();
        const int columns = statement.ColumnCount();
        row.reserve(static_cast<std::size_t>(columns));
        for (int column = 0; column < columns; ++column)
            bytes += row.emplace_back(statement.Text(column)).size() + 1;
        if (bytes <= largestValue) continue;
        const std::string limit = ": the limit is " + Limit(largestValue);
        error = rows.size() == 1 ? "a text, blob or row is too large" + limit
                                 : "the rows are too large" + limit + ", ask for fewer";
        rows.clear();
        return false;
    }
    return statement.Finish(error);
}

bool Database::Execute(std::string_view sql, std::string& error) {
    Statement statement = Prepare(sql);
    while (statement.Next()) {
    }
    return statement.Finish(error);
}

namespace {

std::string Between(char quote, std::string_view text) {
    std::string quoted(1, quote);
    for (const char character : text) quoted.append(character == quote ? 2 : 1, character);
    return quoted += quote;
}

} // namespace

std::string Database::Quoted(std::string_view name) { return Between('"', name); }

std::string Database::QuotedText(std::string_view text) { return Between('\'', text); }

} // namespace znhost
