#include "model/selection.h"

#include "host/znBrowserDataItems.h"

#include <algorithm>

namespace znhost {

Selection::Part* Selection::Find(const Source* source) {
    const auto found = std::find_if(parts_.begin(), parts_.end(),
                                    [source](const Part& part) { return part.source == source; });
    return found == parts_.end() ? nullptr : &*found;
}

RowSet& Selection::RowsFor(Source* source) {
    if (Part* const part = Find(source)) return part->rows;
    return parts_.emplace_back(Part{source, {}}).rows;
}

const RowSet* Selection::Rows(const Source* source) const {
    const Part* const part = const_cast<Selection*>(this)->Find(source);
    return part && !part->rows.IsEmpty() ? &part->rows : nullptr;
}

bool Selection::Announce(bool changed) {
    if (changed && onChange_) onChange_();
    return changed;
}

/// Work on many items may be half done when memory runs out: that is announced, too.
template <class Work>
bool Selection::AnnounceWhatDid(Work work) {
    bool changed = false;
    try {
        changed = work();
    } catch (...) {
        Announce(true);
        throw;
    }
    return Announce(changed);
}

bool Selection::Select(Source* source, Row row) { return source && Announce(RowsFor(source).Add(row)); }

bool Selection::Select(Source* source, std::vector<Row> rows) {
    return source && Announce(RowsFor(source).Add(std::move(rows)));
}

bool Selection::Deselect(Source* source, Row row) {
    Part* const part = Find(source);
    return part && Announce(part->rows.Remove(row));
}

bool Selection::Deselect(Source* source, const std::vector<Row>& rows) {
    Part* const part = Find(source);
    return part && Announce(part->rows.Remove(rows));
}

bool Selection::Change(const znBrowserDataItems& items, bool select) {
    bool changed = false;
    for (std::size_t i = 0; i < items.runs.size(); ++i) {
        const std::size_t end = i + 1 < items.runs.size() ? items.runs[i + 1].first : items.rows.size();
        std::vector<Row> rows(items.rows.begin() + static_cast<std::ptrdiff_t>(items.runs[i].first),
                              items.rows.begin() + static_cast<std::ptrdiff_t>(end));
        Source* const source = items.runs[i].source;
        if (!source) continue;
        if (select) {
            changed = RowsFor(source).Add(std::move(rows)) || changed;
        } else if (Part* const part = Find(source)) {
            changed = part->rows.Remove(rows) || changed;
        }
    }
    return changed;
}

bool Selection::Select(const znBrowserDataItems& items) {
    return AnnounceWhatDid([&] { return Change(items, true); });
}

bool Selection::Deselect(const znBrowserDataItems& items) {
    return AnnounceWhatDid([&] { return Change(items, false); });
}

bool Selection::Replace(const znBrowserDataItems& items) {
    return AnnounceWhatDid([&] {
        const bool had = !IsEmpty();
        parts_.clear();
        return Change(items, true) || had;
    });
}

/// The sources keep their order.
Selection Selection::With(const ItemSets& items) const {
    Selection other(nullptr);
    for (const Part& part : parts_) {
        const RowSet* const rows = items.Of(part.source);
        other.parts_.push_back({part.source, rows ? *rows : RowSet()});
    }
    for (const auto& [source, rows] : items.All()) other.RowsFor(source) = rows;
    return other;
}

ItemSets Selection::Items() const {
    ItemSets items;
    for (const Part& part : parts_) items.Set(part.source, part.rows);
    return items;
}

bool Selection::Clear() {
    const bool had = !IsEmpty();
    parts_.clear();
    return Announce(had);
}

bool Selection::Clear(const Source* source) {
    const bool had = Rows(source) != nullptr;
    parts_.erase(std::remove_if(parts_.begin(), parts_.end(),
                                [source](const Part& part) { return part.source == source; }),
                 parts_.end());
    return Announce(had);
}

bool Selection::Forget(const std::function<std::vector<Row>(Source*, const RowSet&)>& missing) {
    return AnnounceWhatDid([&] {
        bool changed = false;
        for (Part& part : parts_) {
            if (part.rows.IsEmpty()) continue;
            const std::vector<Row> gone = missing(part.source, part.rows);
            if (!gone.empty()) changed = part.rows.Remove(gone) || changed;
        }
        return changed;
    });
}

bool Selection::IsSelected(const Source* source, Row row) const {
    const RowSet* const rows = Rows(source);
    return rows && rows->Has(row);
}

bool Selection::IsSelected(const znBrowserDataItem& item) const { return IsSelected(item.source, item.row); }

std::size_t Selection::Size() const {
    std::size_t size = 0;
    for (const Part& part : parts_) size += part.rows.Size();
    return size;
}

void Selection::AppendTo(znBrowserDataItems& items) const {
    for (const Part& part : parts_) AppendTo(items, part.source);
}

void Selection::AppendTo(znBrowserDataItems& items, Source* source) const {
    const RowSet* const rows = Rows(source);
    if (!rows) return;
    items.rows.reserve(items.rows.size() + rows->Size());
    rows->ForEach([&](Row row) { items.Append(source, row); });
}

} // namespace znhost
