// Structures of the store's own for links along columns that the database has no index for.
#ifndef ZN_HOST_LINK_INDEX_H
#define ZN_HOST_LINK_INDEX_H

#include "model/row_source.h"
#include "store/database.h"

#include <memory>
#include <utility>
#include <vector>

namespace znhost {

/// Lists of linked rows, 16 bytes a pair, kept until the rows change.
class LinkIndexes {
public:
    /// The row that is given, the row that is looked for; sorted.
    using Pairs = std::vector<std::pair<std::int64_t, std::int64_t>>;

    /// The pairs that lead down (or up) along the link; null when there are none that are up to date.
    std::shared_ptr<const Pairs> Find(const RowLink& link, bool down, const Database::Stamp& now) const {
        for (const Entry& entry : entries_) {
            if (entry.link == link && entry.down == down && entry.stamp.SameRows(now)) return entry.pairs;
        }
        return nullptr;
    }
    void Keep(const RowLink& link, bool down, const Database::Stamp& now,
              std::shared_ptr<const Pairs> pairs) {
        for (Entry& entry : entries_) {
            if (!(entry.link == link) || entry.down != down) continue;
            entry.stamp = now;
            entry.pairs = std::move(pairs);
            return;
        }
        entries_.push_back({link, down, now, std::move(pairs)});
    }
    /// To be called when sources have other rows although the database did not change.
    void Clear() { entries_.clear(); }

private:
    struct Entry {
        RowLink link;
        bool down;
        Database::Stamp stamp;
        std::shared_ptr<const Pairs> pairs;
    };

    std::vector<Entry> entries_;
};

} // namespace znhost

#endif
