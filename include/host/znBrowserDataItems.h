// Data items: which rows of which data sources.
#ifndef ZN_BROWSER_DATA_ITEMS_H
#define ZN_BROWSER_DATA_ITEMS_H

#include <cstddef>
#include <cstdint>
#include <vector>

class znIBrowserDataSourceSimple;

/// One data item: a simple data source and the item's number in it. The source may be null (unknown): the
/// scripting layer passes such an item over. The numbers are the host's; the layer only hands them back.
struct znBrowserDataItem {
    znIBrowserDataSourceSimple* source = nullptr;
    std::int64_t row = 0;

    friend bool operator==(const znBrowserDataItem& a, const znBrowserDataItem& b) {
        return a.source == b.source && a.row == b.row;
    }
};

/// A list of data items in order, held as row numbers and the runs of rows that share a data source: a
/// million items of one source cost eight bytes each. A host fills it with `Append`.
struct znBrowserDataItems {
    /// Rows from `first` up to the next run's `first` (or the end) belong to `source`.
    struct Run {
        znIBrowserDataSourceSimple* source;
        std::size_t first;
    };

    std::vector<std::int64_t> rows; ///< the item numbers, in order
    std::vector<Run> runs;          ///< by `first`, none of them empty

    /// Empties the list; its storage is kept.
    void Clear() {
        rows.clear();
        runs.clear();
    }
    /// How many items there are.
    std::size_t Size() const { return rows.size(); }
    /// Adds an item at the end, also one that is in the list already; `source` may be null.
    void Append(znIBrowserDataSourceSimple* source, std::int64_t row) {
        if (runs.empty() || runs.back().source != source) runs.push_back({source, rows.size()});
        rows.push_back(row);
    }
    /// Calls `visit(const znBrowserDataItem&)` for each item in order. The list must not change during the
    /// visit.
    template <class Visit>
    void ForEach(Visit&& visit) const {
        for (std::size_t run = 0; run < runs.size(); ++run) {
            const std::size_t end = run + 1 < runs.size() ? runs[run + 1].first : rows.size();
            for (std::size_t i = runs[run].first; i < end; ++i)
                visit(znBrowserDataItem{runs[run].source, rows[i]});
        }
    }
};

#endif
