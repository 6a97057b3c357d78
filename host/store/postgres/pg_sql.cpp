#include "store/postgres/pg_sql.h"

#include <algorithm>

namespace znhost {

namespace {

bool IsLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           character == '_' || (character & 0x80) != 0;
}

bool IsWordPart(char character) {
    return IsLetter(character) || (character >= '0' && character <= '9') || character == '$';
}

} // namespace

std::size_t PgSkipper::Skip(std::size_t at) const {
    const std::string_view two = sql_.substr(at, 2);
    if (two == "--") return Behind("\n", at);
    if (two == "/*") return BehindComment(at);
    if (sql_[at] == '\'' || sql_[at] == '"') return BehindQuote(at, EscapesAt(at));
    return sql_[at] == '$' ? BehindDollars(at) : at;
}

std::size_t PgSkipper::Behind(std::string_view end, std::size_t from) const {
    const std::size_t found = sql_.find(end, from);
    return found == sql_.npos ? sql_.size() : found + end.size();
}

/// A comment may hold comments.
std::size_t PgSkipper::BehindComment(std::size_t at) const {
    int depth = 0;
    while (at < sql_.size()) {
        const std::string_view two = sql_.substr(at, 2);
        if (two == "/*" || two == "*/") {
            depth += two == "/*" ? 1 : -1;
            at += 2;
            if (depth == 0) return at;
        } else {
            ++at;
        }
    }
    return at;
}

/// Whether a backslash escapes in the string that begins there: E'...'.
bool PgSkipper::EscapesAt(std::size_t at) const {
    return sql_[at] == '\'' && at > 0 && (sql_[at - 1] == 'e' || sql_[at - 1] == 'E') &&
           (at == 1 || !IsWordPart(sql_[at - 2]));
}

/// A doubled quote closes and opens again, which comes to the same.
std::size_t PgSkipper::BehindQuote(std::size_t at, bool escapes) const {
    const char quote = sql_[at++];
    while (at < sql_.size() && sql_[at] != quote) at += escapes && sql_[at] == '\\' ? 2 : 1;
    return std::min(at + 1, sql_.size());
}

/// $$...$$ or $word$...$word$
std::size_t PgSkipper::BehindDollars(std::size_t at) const {
    if (at > 0 && IsWordPart(sql_[at - 1])) return at;
    std::size_t end = at + 1;
    while (end < sql_.size() && sql_[end] != '$' && IsWordPart(sql_[end])) ++end;
    const bool isTag = end < sql_.size() && sql_[end] == '$' && (end == at + 1 || IsLetter(sql_[at + 1]));
    return isTag ? Behind(sql_.substr(at, end + 1 - at), end + 1) : at;
}

PgSql::PgSql(std::string_view sql) {
    const PgSkipper skipper(sql);
    bool inFirstWord = true;
    for (std::size_t at = 0; at < sql.size();) {
        const std::size_t behind = skipper.Skip(at);
        if (behind > at) {
            inFirstWord = inFirstWord && firstWord.empty();
            text.append(sql.substr(at, behind - at));
            at = behind;
            continue;
        }
        const char character = sql[at++];
        if (inFirstWord && IsLetter(character)) {
            firstWord += static_cast<char>(character | 0x20);
        } else if (!firstWord.empty()) {
            inFirstWord = false;
        }
        if (character != '?') {
            text += character;
        } else if (at < sql.size() && sql[at] == '?') {
            text += '?';
            ++at;
        } else {
            places.push_back(text.size());
            text += "$" + std::to_string(++parameters);
        }
    }
}

std::string PgArray(const std::vector<std::string>& elements) {
    std::string array = "{";
    for (const std::string& element : elements) {
        if (array.size() > 1) array += ',';
        array += '"';
        for (const char character : element) {
            if (character == '"' || character == '\\') array += '\\';
            array += character;
        }
        array += '"';
    }
    return array += '}';
}

std::vector<std::string> PgElements(std::string_view array) {
    std::vector<std::string> elements;
    bool quoted = false;
    for (std::size_t at = 1; at + 1 < array.size(); ++at) { // between the braces
        if (elements.empty()) elements.emplace_back();
        if (array[at] == '"') {
            quoted = !quoted;
        } else if (array[at] == ',' && !quoted) {
            elements.emplace_back();
        } else {
            if (array[at] == '\\') ++at;
            elements.back() += array[at];
        }
    }
    return elements;
}

} // namespace znhost
