#include "store/sqlite/sql_guard.h"

#include "base/text.h"
#include "store/schema.h"
#include "store/sqlite/sqlite_statement.h"

#include <sqlite3.h>

namespace znhost {
namespace {

/// Walks over the text as SQL sees it: strings and quoted names are skipped, all else is looked at.
class TextCheck {
public:
    explicit TextCheck(std::string_view code) : code_(code) {}

    bool Passes(std::string& error) {
        while (at_ < code_.size() && reason_.empty()) Step();
        if (reason_.empty() && depth_ > 0) reason_ = "a parenthesis is not closed";
        if (reason_.empty() && code_.find_first_not_of(" \t\r\n\f") == code_.npos) reason_ = "it is empty";
        error = reason_;
        return reason_.empty();
    }

private:
    char Following() const { return at_ + 1 < code_.size() ? code_[at_ + 1] : ' '; }

    void Step() {
        if (IsWordPart(code_[at_])) return SkipWord();
        switch (const char character = code_[at_]) {
        case '\'':
        case '"':
        case '`': SkipTo(character); break;
        case '[': SkipTo(']'); break;
        case '(': ++depth_; break;
        case ')':
            if (--depth_ < 0) reason_ = "a parenthesis is closed that was not opened";
            break;
        case ';': reason_ = "it holds more than one statement"; break;
        case '-':
            if (Following() == '-') reason_ = "it holds a comment";
            break;
        case '/':
            if (Following() == '*') reason_ = "it holds a comment";
            break;
        case '?':
            if (Following() >= '0' && Following() <= '9') reason_ = "parameters have no numbers, use ? alone";
            break;
        case ':':
        case '@':
        case '$':
        case '#': reason_ = "parameters have no names, use ? alone"; break;
        case '\0': reason_ = "it holds a NUL character"; break;
        default: break;
        }
        ++at_;
    }

    static bool IsWordPart(char character) {
        return (character >= '0' && character <= '9') || (character >= 'a' && character <= 'z') ||
               (character >= 'A' && character <= 'Z') || character == '_' || (character & 0x80) != 0;
    }

    void SkipWord() {
        const std::size_t start = at_;
        while (at_ < code_.size() && IsWordPart(code_[at_])) ++at_;
        // It may be recursive, then it need not end; views may be as they like.
        if (SameName(code_.substr(start, at_ - start), "with")) reason_ = "it holds a WITH clause";
    }

    /// To the closing quote. A doubled one closes and opens again, which comes to the same.
    void SkipTo(char quote) {
        at_ = code_.find(quote, at_ + 1);
        if (at_ == code_.npos) {
            at_ = code_.size();
            reason_ = "a quote is not closed";
        } else if (code_.find('\0') < at_) {
            reason_ = "it holds a NUL character";
        }
    }

    std::string_view code_;
    std::size_t at_ = 0;
    int depth_ = 0;
    std::string reason_;
};

/// Watches a statement being prepared: what it would do is allowed or not, the functions it calls are noted.
/// Meanwhile a name in double quotes is a name, and never the text that SQLite takes it for when it is
/// unknown.
class Watch {
public:
    explicit Watch(sqlite3* connection) : connection_(connection) {
        sqlite3_db_config(connection_, SQLITE_DBCONFIG_DQS_DML, -1, &quotedTexts_);
        sqlite3_db_config(connection_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
        sqlite3_set_authorizer(connection_, &Watch::Authorize, this);
    }
    Watch(const Watch&) = delete;
    Watch& operator=(const Watch&) = delete;
    ~Watch() {
        sqlite3_set_authorizer(connection_, nullptr, nullptr);
        sqlite3_db_config(connection_, SQLITE_DBCONFIG_DQS_DML, quotedTexts_, nullptr);
    }

    const std::vector<std::string>& Functions() const { return functions_; }
    bool Refused() const { return refused_; }

private:
    static int Authorize(void* watch, int action, const char*, const char* name, const char*, const char*) {
        return static_cast<Watch*>(watch)->Judge(action, name);
    }

    int Judge(int action, const char* name) {
        // Recursive queries only come from views here.
        if (action == SQLITE_SELECT || action == SQLITE_READ || action == SQLITE_RECURSIVE) return SQLITE_OK;
        if (action == SQLITE_FUNCTION && name) {
            functions_.push_back(ToTcl(name));
            return SQLITE_OK;
        }
        refused_ = true;
        return SQLITE_DENY;
    }

    sqlite3* connection_;
    int quotedTexts_ = 0;
    std::vector<std::string> functions_;
    bool refused_ = false;
};

/// Whether SQLite holds the function harmless wherever it is called: it computes, and has no other effect.
bool IsHarmless(SqliteDatabase& database, const std::string& function, std::string& error) {
    Statement flags = database.Prepare("SELECT 1 FROM pragma_function_list WHERE name = ? COLLATE NOCASE "
                                       "AND flags & 0x200000 LIMIT 1"); // SQLITE_INNOCUOUS
    flags.Bind(1, function);
    if (flags.Next()) return true;
    if (flags.Finish(error)) error = "the function " + function + " is not for conditions";
    return false;
}

} // namespace

bool CheckExpression(SqliteDatabase& database, std::string_view table, std::string_view code, int& parameters,
                     std::string& error) {
    const std::string sql =
        FromTcl("SELECT 1 FROM main." + Database::Quoted(table) + " WHERE (" + std::string(code) + ")");
    if (!TextCheck(FromTcl(code)).Passes(error)) return false;
    std::vector<std::string> functions;
    int count = 0;
    {
        Watch watch(database.Handle());
        sqlite3_stmt* handle = nullptr;
        const int outcome = sqlite3_prepare_v2(database.Handle(), sql.c_str(), -1, &handle, nullptr);
        const SqliteStatement::Handle statement(handle);
        if (outcome != SQLITE_OK || !sqlite3_stmt_readonly(handle)) {
            error = watch.Refused() ? "it would do more than compare values" : database.Reason(outcome);
            return false;
        }
        count = sqlite3_bind_parameter_count(handle);
        functions = watch.Functions();
    }
    for (const std::string& function : functions) {
        if (!IsHarmless(database, function, error)) return false;
    }
    parameters = count;
    return true;
}

} // namespace znhost
