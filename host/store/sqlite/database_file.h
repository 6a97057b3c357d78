// The file of a database, before it is opened.
#ifndef ZN_HOST_DATABASE_FILE_H
#define ZN_HOST_DATABASE_FILE_H

#include <cstdint>
#include <string>

namespace znhost {

/// The system's own name for the file that a person means by `name`: a regular file, or one that can be made
/// in a directory that is there. @return false, with the reason in `error`, for anything else. Names that
/// mean something else to SQLite, such as a URI, are refused too.
bool FindDatabaseFile(const std::string& name, std::string& native, std::string& error);

/// What the system tells of a database file and of the log beside it. Where two differ, somebody wrote.
struct FileStamp {
    std::int64_t time = 0;
    std::int64_t size = 0;
    std::int64_t logTime = 0;
    std::int64_t logSize = 0;

    friend bool operator==(const FileStamp& a, const FileStamp& b) {
        return a.time == b.time && a.size == b.size && a.logTime == b.logTime && a.logSize == b.logSize;
    }
};

bool FileExists(const std::string& native);
FileStamp StampOfFile(const std::string& native);

/// Whether the database keeps a log beside its file while it is in use, and there is none: nobody uses it.
/// Whoever opened it in the usual way, only to read, would make that log.
bool IsQuietWithLog(const std::string& native);

} // namespace znhost

#endif
