// Which rows of a database changed.
#ifndef ZN_HOST_ROW_JOURNAL_H
#define ZN_HOST_ROW_JOURNAL_H

#include "base/change_count.h"
#include "store/database.h"

namespace znhost {

/// The rows that were changed of late through a connection, each with the number of its change. When there
/// are too many, or others changed something, that is forgotten: what changed is not known then.
class RowJournal final : public RowWatcher {
public:
    explicit RowJournal(Database& database);
    ~RowJournal() override;
    RowJournal(const RowJournal&) = delete;
    RowJournal& operator=(const RowJournal&) = delete;

    /// False: the engine does not tell which rows change.
    bool IsTold() const { return isTold_; }
    /// Forgets: anything may have changed.
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
    void OnRowChange(std::string_view table, std::int64_t row) noexcept override;
    void OnRowsUndone() noexcept override { Forget(); }

    Database& database_;
    const bool isTold_;
    std::vector<Entry> entries_;
    std::uint64_t forgotten_; ///< what happened up to this change is not known
};

} // namespace znhost

#endif
