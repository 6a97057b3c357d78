#include "store/postgres/pg_guard.h"

#include "base/text.h"
#include "store/postgres/pg_sql.h"
#include "store/transaction.h"

namespace znhost {

namespace {

bool IsWordPart(char character) {
    return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'z') ||
           (character >= 'A' && character <= 'Z') || character == '_' || (character & 0x80) != 0;
}

/// Walks over the text as the server sees it, and notes the names that an opening parenthesis follows.
class TextCheck {
public:
    explicit TextCheck(std::string_view code) : code_(code), skipper_(code) {}

    bool Passes(std::string& error) {
        while (at_ < code_.size() && reason_.empty()) Step();
        if (reason_.empty() && depth_ > 0) reason_ = "a parenthesis is not closed";
        if (reason_.empty() && code_.find_first_not_of(" \t\r\n\f") == code_.npos) reason_ = "it is empty";
        error = reason_;
        return reason_.empty();
    }
    const std::vector<std::string>& Called() const { return called_; }

private:
    void Step() {
        const char character = code_[at_];
        const std::size_t behind = skipper_.Skip(at_);
        if (behind > at_) return TakeSkipped(behind);
        if (IsWordPart(character)) return TakeWord();
        switch (character) {
        case '(':
            ++depth_;
            if (!lastName_.empty()) called_.push_back(lastName_);
            break;
        case ')':
            if (--depth_ < 0) reason_ = "a parenthesis is closed that was not opened";
            break;
        case ';': reason_ = "it holds more than one statement"; break;
        case '$': reason_ = "parameters have no numbers, use ? alone"; break;
        case '\0': reason_ = "it holds a NUL character"; break;
        default: break;
        }
        if (character != ' ' && character != '\t' && character != '\r' && character != '\n' &&
            character != '\f') {
            lastName_.clear();
        }
        ++at_;
    }

    void TakeSkipped(std::size_t behind) {
        const std::string_view skipped = code_.substr(at_, behind - at_);
        const bool closed = skipped.size() > 1 && skipped.back() == skipped.front();
        if (skipped.front() == '-' || skipped.front() == '/')
            reason_ = "it holds a comment";
        else if (!closed)
            reason_ = "a quote is not closed";
        lastName_.clear();
        if (skipped.front() == '"' && closed) lastName_ = Unquoted(skipped);
        at_ = behind;
    }

    static std::string Unquoted(std::string_view quoted) {
        std::string name;
        for (std::size_t i = 1; i + 1 < quoted.size(); ++i) {
            name += quoted[i];
            if (quoted[i] == '"') ++i;
        }
        return name;
    }

    void TakeWord() {
        const std::size_t start = at_;
        while (at_ < code_.size() && (IsWordPart(code_[at_]) || code_[at_] == '$')) ++at_;
        lastName_ = code_.substr(start, at_ - start);
        for (char& character : lastName_) {
            if (character >= 'A' && character <= 'Z') character = static_cast<char>(character | 0x20);
        }
        if (lastName_ == "with") reason_ = "it holds a WITH clause";
        if (lastName_ == "update" || lastName_ == "share") reason_ = "it would do more than compare values";
    }

    std::string_view code_;
    const PgSkipper skipper_;
    std::size_t at_ = 0;
    int depth_ = 0;
    std::string lastName_;
    std::vector<std::string> called_;
    std::string reason_;
};

/// Whether no function of those names may do more than compute.
bool AreHarmless(Database& database, const std::vector<std::string>& functions, std::string& error) {
    if (functions.empty()) return true;
    Statement effects = database.Prepare(
        "SELECT proname FROM pg_proc WHERE proname = ANY(?::name[]) AND provolatile = 'v' LIMIT 1");
    effects.Bind(1, ToTcl(PgArray(functions)));
    const bool found = effects.Next();
    if (found) error = "the function " + std::string(effects.Text(0)) + " is not for conditions";
    return !found && effects.Finish(error);
}

} // namespace

// An operator or a cast of the user's own may call a function, too; those are the database's business, as its
// views are.
bool CheckPgExpression(Database& database, const Table& table, std::string_view code, int& parameters,
                       std::string& error) {
    const std::string text = FromTcl(code);
    TextCheck check(text);
    if (!check.Passes(error) || !AreHarmless(database, check.Called(), error)) return false;
    std::optional<Transaction> part; // a failure would end what a script has begun
    if (database.InTransaction() && !part.emplace(database).Begin(error)) return false;
    // The rows that would be looked at are none, and the condition is understood all the same.
    Statement trial =
        database.PrepareOnce("SELECT 1 FROM " + table.original + " AS " + Database::Quoted(table.name) +
                             " WHERE FALSE AND (" + std::string(code) + ")");
    trial.Next();
    if (!trial.Finish(error)) return false;
    parameters = trial.ParameterCount();
    return true;
}

} // namespace znhost
