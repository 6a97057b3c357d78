// The file of a database, before it is opened.
#ifndef ZN_HOST_DATABASE_FILE_H
#define ZN_HOST_DATABASE_FILE_H

#include <string>

namespace znhost {

/// The system's own name for the file that a person means by `name`: a regular file, or one that can be made
/// in a directory that is there. @return false, with the reason in `error`, for anything else. Names that
/// mean something else to SQLite, such as a URI, are refused too.
bool FindDatabaseFile(const std::string& name, std::string& native, std::string& error);

} // namespace znhost

#endif
