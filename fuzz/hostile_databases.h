// The databases on which a run may start: the small gearbox, and those that somebody else made.
#ifndef HOSTILE_DATABASES_H
#define HOSTILE_DATABASES_H

#include <cstddef>
#include <string>
#include <vector>

struct sqlite3;

/// A database as the bytes of its file, made once.
class DatabaseImage {
public:
    /// @param mark    the byte with which inputs choose it
    /// @param script  makes it
    /// @param damage  overwrites the last page
    DatabaseImage(char mark, const char* script, bool damage = false);

    char Mark() const { return mark_; }
    /// Whether it holds what no script of the gearbox would: such an input starts in the default browser.
    bool IsHostile() const { return mark_ != '\0'; }
    /// Replaces what the database in memory holds.
    void CopyTo(sqlite3* database) const;

private:
    char mark_;
    std::vector<unsigned char> bytes_;
};

/// All of them; the first is the gearbox.
const std::vector<DatabaseImage>& DatabaseImages();
/// The one that the byte chooses; the gearbox when it chooses none.
const DatabaseImage& DatabaseImageOf(char mark);

/// Ends the process as what the fuzzer found.
[[noreturn]] void Die(const std::string& reason);

#endif
