// The selected items of a view.
#ifndef ZN_HOST_SELECTION_H
#define ZN_HOST_SELECTION_H

#include "base/row_set.h"
#include "model/item_sets.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

struct znBrowserDataItem;
struct znBrowserDataItems;
class znIBrowserDataSourceSimple;

namespace znhost {

/// Which items of which data sources are selected: a set of row numbers per source, the sources in the order
/// in which they were first selected. Each change is announced once, however many items it is about.
class Selection {
public:
    using Source = znIBrowserDataSourceSimple;
    using Row = RowSet::Row;

    /// @param onChange  called after each call that changed something.
    explicit Selection(std::function<void()> onChange) : onChange_(std::move(onChange)) {}

    // Selecting. Each returns whether anything changed. A null source changes nothing.
    bool Select(Source* source, Row row);
    bool Select(Source* source, std::vector<Row> rows);
    bool Deselect(Source* source, Row row);
    bool Deselect(Source* source, const std::vector<Row>& rows);
    bool Select(const znBrowserDataItems& items);
    bool Deselect(const znBrowserDataItems& items);
    /// Exactly these items are selected now.
    bool Replace(const znBrowserDataItems& items);
    bool Clear();
    /// Takes memory for exactly these items; to `Exchange` them for what is selected takes none, and
    /// announces nothing.
    Selection With(const ItemSets& items) const;
    void Exchange(Selection& other) noexcept { parts_.swap(other.parts_); }
    /// Deselects everything of that source.
    bool Clear(const Source* source);
    /// Deselects what does not exist any more: `missing(source, rows)` gives those of a source's selected
    /// rows that do not.
    bool Forget(const std::function<std::vector<Row>(Source*, const RowSet&)>& missing);

    bool IsSelected(const Source* source, Row row) const;
    bool IsSelected(const znBrowserDataItem& item) const;
    bool IsEmpty() const { return Size() == 0; }
    std::size_t Size() const;
    /// The selected rows of a source; null when none is.
    const RowSet* Rows(const Source* source) const;

    ItemSets Items() const;
    /// Appends the selected items: of all sources, or of one; by ascending row number.
    void AppendTo(znBrowserDataItems& items) const;
    void AppendTo(znBrowserDataItems& items, Source* source) const;

private:
    struct Part {
        Source* source;
        RowSet rows;
    };

    Part* Find(const Source* source);
    RowSet& RowsFor(Source* source);
    bool Announce(bool changed);
    template <class Work>
    bool AnnounceWhatDid(Work work);
    bool Change(const znBrowserDataItems& items, bool select);

    std::vector<Part> parts_;
    std::function<void()> onChange_;
};

} // namespace znhost

#endif
