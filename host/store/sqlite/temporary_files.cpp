#include "store/sqlite/temporary_files.h"

#include <sqlite3.h>

#include <utility>

namespace znhost {

std::int64_t TemporaryFiles::limit = std::int64_t{1} << 30;
bool TemporaryFiles::refused = false;

namespace {

sqlite3_vfs* original = nullptr;
const sqlite3_io_methods* originalMethods = nullptr; ///< of temporary files, which all have the same
sqlite3_io_methods limitedMethods;

} // namespace

int TemporaryFiles::Write(sqlite3_file* file, const void* data, int bytes, sqlite3_int64 offset) {
    if (offset > limit - bytes) {
        refused = true;
        return SQLITE_FULL;
    }
    return originalMethods->xWrite(file, data, bytes, offset);
}

bool TemporaryFiles::TakeRefusal() { return std::exchange(refused, false); }

// The file stays one of the original's own; only what writes to it is another function.
const char* TemporaryFiles::Vfs() {
    static sqlite3_vfs limited = [] {
        original = sqlite3_vfs_find(nullptr);
        sqlite3_vfs vfs = original ? *original : sqlite3_vfs{};
        vfs.zName = "znbrowser";
        vfs.pNext = nullptr;
        vfs.xOpen = [](sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
            const int outcome = original->xOpen(original, name, file, flags, outFlags);
            if (outcome != SQLITE_OK || !(flags & SQLITE_OPEN_DELETEONCLOSE)) return outcome;
            if (!originalMethods) {
                limitedMethods = *file->pMethods;
                limitedMethods.xWrite = Write;
                originalMethods = file->pMethods;
            }
            if (file->pMethods == originalMethods) file->pMethods = &limitedMethods;
            return outcome;
        };
        return vfs;
    }();
    static const bool known = original && sqlite3_vfs_register(&limited, 0) == SQLITE_OK;
    return known ? limited.zName : nullptr;
}

} // namespace znhost
