// Which rows of a database changed.
#ifndef ZN_HOST_ROW_JOURNAL_H
#define ZN_HOST_ROW_JOURNAL_H

#include "base/change_count.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace znhost {

class Database;

/// The rows that were changed of late through a connection, each with the number of its change. When there
/// are too many, or others changed something, that is forgotten: what changed is not known then.
class RowJournal {
public:
    explicit RowJournal(Database& database);
    ~RowJournal();
    RowJournal(const RowJournal&) = delete;
    RowJournal& operator=(const RowJournal&) = delete;

    /// Forgets: anything may have changed. From now on the connection that the database has at present is
    /// watched.
    void Forget() noexcept;
    /// Appends the rows of the table that came, went or changed since that change. False when that is not
    /// known.
    bool Read(std::uint64_t since, std::string_view table, std::vector<std::int64_t>& rows) const;
    /// Whether nothing changed since.
    bool IsQuiet(std::uint64_t since) const;

private:
    struct Entry {
        std::uint64_t number;
        std::string table;
        std::int64_t row;
    };
    void Note(std::string_view database, const char* table, std::int64_t row) noexcept;

    void Watch() noexcept;
    void Lose() noexcept;

    Database& database_;
    std::vector<Entry> entries_;
    std::uint64_t forgotten_; ///< what happened up to this change is not known
};

} // namespace znhost

#endif
