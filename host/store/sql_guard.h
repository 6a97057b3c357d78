// Whether a piece of SQL that a script gives is a condition on the rows of a table, and nothing else.
#ifndef ZN_HOST_SQL_GUARD_H
#define ZN_HOST_SQL_GUARD_H

#include "store/database.h"

namespace znhost {

/// Accepts one expression over the columns of the table, to stand in parentheses behind WHERE. It may have
/// `?` parameters and subqueries that read. Refused are: anything that leaves the parentheses, comments, a
/// second statement, named and numbered parameters, unknown columns, WITH clauses (recursive ones may never
/// end), and functions that do more than compute.
/// @param parameters the number of `?`, when accepted
/// @param error why it is refused, else
bool CheckExpression(Database& database, std::string_view table, std::string_view code, int& parameters,
                     std::string& error);

} // namespace znhost

#endif
