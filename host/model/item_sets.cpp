#include "model/item_sets.h"

#include "model/row_source.h"

#include "host/znBrowserDataItems.h"

#include <utility>
#include <vector>

namespace znhost {

ItemSets::ItemSets(const znBrowserDataItems& items) {
    std::map<Source*, std::vector<RowSet::Row>> rows;
    items.ForEach([&rows](const znBrowserDataItem& item) {
        if (item.source) rows[item.source].push_back(item.row);
    });
    for (auto& [source, own] : rows) sets_[source].Add(std::move(own));
}

std::size_t ItemSets::Size() const {
    std::size_t size = 0;
    for (const auto& entry : sets_) size += entry.second.Size();
    return size;
}

const RowSet* ItemSets::Of(const Source* source) const {
    const auto found = sets_.find(const_cast<Source*>(source));
    return found == sets_.end() ? nullptr : &found->second;
}

bool ItemSets::Has(const Source* source, RowSet::Row row) const {
    const RowSet* const rows = Of(source);
    return rows && rows->Has(row);
}

/// Nothing has changed when memory runs out.
template <class Change>
void ItemSets::Combine(Source* source, Change&& change) {
    const RowSet* const own = Of(source);
    RowSet changed = own ? *own : RowSet();
    change(changed);
    if (changed.IsEmpty()) {
        sets_.erase(source);
    } else {
        sets_[source] = std::move(changed);
    }
}

void ItemSets::Set(Source* source, RowSet rows) {
    Combine(source, [&rows](RowSet& own) { own = std::move(rows); });
}

void ItemSets::Add(Source* source, const RowSet& rows) {
    Combine(source, [&rows](RowSet& own) { own.Add(rows); });
}

void ItemSets::Add(const ItemSets& other) {
    for (const auto& [source, rows] : other.sets_) Add(source, rows);
}

void ItemSets::Remove(const ItemSets& other) {
    for (const auto& [source, rows] : other.sets_) Forget(source, rows);
}

void ItemSets::Toggle(Source* source, const RowSet& rows) {
    Combine(source, [&rows](RowSet& own) { own.Toggle(rows); });
}

void ItemSets::Toggle(const ItemSets& other) {
    for (const auto& [source, rows] : other.sets_) Toggle(source, rows);
}

void ItemSets::KeepOnly(const Source* source) {
    if (source) std::erase_if(sets_, [source](const auto& entry) { return entry.first != source; });
}

void ItemSets::Forget(const Source* source) noexcept { sets_.erase(const_cast<Source*>(source)); }

void ItemSets::Forget(Source* source, const RowSet& rows) {
    if (Of(source)) Combine(source, [&rows](RowSet& own) { own.Remove(rows); });
}

std::vector<RowSet::Row> MissingOf(znIBrowserDataSourceSimple* source, const RowSet& rows,
                                   std::uint64_t since) {
    RowSource& items = *GetRowSource(source);
    std::vector<RowSet::Row> changed;
    if (since == 0 || !items.ChangedRows(since, changed)) return items.Missing(rows.ToVector());
    std::erase_if(changed, [&rows](RowSet::Row row) { return !rows.Has(row); });
    return changed.empty() ? changed : items.Missing(changed);
}

} // namespace znhost
