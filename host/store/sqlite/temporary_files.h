// How much room the temporary files of databases may take.
#ifndef ZN_HOST_TEMPORARY_FILES_H
#define ZN_HOST_TEMPORARY_FILES_H

#include <cstdint>

struct sqlite3_file;

namespace znhost {

/// SQLite keeps in temporary files what it sorts, groups or copies and what does not fit its caches. A view
/// that never ends would fill the disk with them. Databases that are opened by `Vfs` write at most `Limit`
/// bytes to each of those files; what wants more fails with SQLITE_FULL.
class TemporaryFiles {
public:
    /// The name to open a database with, known to SQLite from the first call on; null when SQLite has no
    /// files at all.
    static const char* Vfs();
    /// In bytes, for one file.
    static std::int64_t Limit() { return limit; }
    /// For tests; 1 GiB otherwise.
    static void SetLimit(std::int64_t bytes) { limit = bytes; }
    /// Whether the limit, not the disk, is why a write failed since this was asked last.
    static bool TakeRefusal();

private:
    static int Write(sqlite3_file* file, const void* data, int bytes, long long offset);

    static std::int64_t limit;
    static bool refused;
};

} // namespace znhost

#endif
