// Sets of items: row numbers by data source.
#ifndef ZN_HOST_ITEM_SETS_H
#define ZN_HOST_ITEM_SETS_H

#include "base/row_set.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

struct znBrowserDataItems;
class znIBrowserDataSourceSimple;

namespace znhost {

/// A set of items. No source stands in it without an item.
class ItemSets {
public:
    using Source = znIBrowserDataSourceSimple;
    using Sets = std::map<Source*, RowSet>;

    ItemSets() = default;
    explicit ItemSets(const znBrowserDataItems& items);

    bool IsEmpty() const { return sets_.empty(); }
    std::size_t Size() const;
    bool Has(const Source* source, RowSet::Row row) const;
    /// The items of a source; null when there are none.
    const RowSet* Of(const Source* source) const;
    const Sets& All() const { return sets_; }

    void Set(Source* source, RowSet rows);
    void Add(Source* source, const RowSet& rows);
    void Add(const ItemSets& other);
    void Remove(const ItemSets& other);
    /// Adds the items that are not in the set, and removes the others. Doing it twice changes nothing.
    void Toggle(Source* source, const RowSet& rows);
    void Toggle(const ItemSets& other);
    /// Removes what is of another source; null: nothing is.
    void KeepOnly(const Source* source);
    // Lets go of what does not exist any more.
    void Forget(const Source* source) noexcept;
    void Forget(Source* source, const RowSet& rows);

    friend bool operator==(const ItemSets& a, const ItemSets& b) { return a.sets_ == b.sets_; }

private:
    template <class Change>
    void Combine(Source* source, Change&& change);

    Sets sets_;
};

/// Those of a source's rows that do not exist any more. All did at that moment of `ChangeCount`; 0: perhaps
/// not.
std::vector<RowSet::Row> MissingOf(znIBrowserDataSourceSimple* source, const RowSet& rows,
                                   std::uint64_t since);

} // namespace znhost

#endif
