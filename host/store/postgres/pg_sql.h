// SQL as the host writes it, for PostgreSQL.
#ifndef ZN_HOST_PG_SQL_H
#define ZN_HOST_PG_SQL_H

#include <string>
#include <string_view>
#include <vector>

namespace znhost {

/// Finds where what is no code ends: a string, a quoted name, a comment.
class PgSkipper {
public:
    explicit PgSkipper(std::string_view sql) : sql_(sql) {}

    /// Behind what begins at that place; the place itself when it is code.
    std::size_t Skip(std::size_t at) const;

private:
    std::size_t Behind(std::string_view end, std::size_t from) const;
    std::size_t BehindComment(std::size_t at) const;
    bool EscapesAt(std::size_t at) const;
    std::size_t BehindQuote(std::size_t at, bool escapes) const;
    std::size_t BehindDollars(std::size_t at) const;

    std::string_view sql_;
};

/// The statement with `$1`, `$2`, ... in place of its `?`. Strings, quoted names and comments are left as
/// they are; `??` stands for an operator `?`.
struct PgSql {
    explicit PgSql(std::string_view sql);

    std::string text;
    int parameters = 0;
    std::vector<std::size_t> places; ///< of the parameters in the text
    std::string firstWord;           ///< in lower case
};

/// The texts as one array value.
std::string PgArray(const std::vector<std::string>& elements);
/// The elements of an array of texts without NULL.
std::vector<std::string> PgElements(std::string_view array);

} // namespace znhost

#endif
