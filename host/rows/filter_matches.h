// Which rows of a source the filter of a view lets through.
#ifndef ZN_HOST_FILTER_MATCHES_H
#define ZN_HOST_FILTER_MATCHES_H

#include "base/row_set.h"
#include "model/row_source.h"
#include "model/text_filter.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <vector>

class znIBrowserDataProperty;

namespace znhost {

class TextMatcher;

/// Whose values of a source's rows are searched: of stored properties, of the item's text (null), and of
/// others, which scripts compute.
using SearchedProperties = std::vector<znIBrowserDataProperty*>;

/// A source that is to be searched.
struct SearchTask {
    RowSource* source = nullptr;
    SearchedProperties properties;
};

/// How far a search has come.
struct SearchProgress {
    bool done = false;
    std::int64_t looked = 0; ///< rows looked at
    std::int64_t found = 0;
};

/// The rows that hold a text, by source. What was found is kept, as long as the rows are the same: the same
/// text is not searched for again, and one that only adds to it is searched for among what was found. A
/// search can be made ahead, a slice at a time; who asks for its rows meanwhile is given those found so far.
class FilterMatches {
public:
    using Clock = std::chrono::steady_clock;
    /// What scripts that compute values may have changed meanwhile.
    struct Asked {
        /// Whether no more is to be looked at: what is being searched was deleted, or nobody waits any
        /// longer.
        std::function<bool()> stopped;
        /// What is to be searched now.
        std::function<SearchedProperties(RowSource& source)> properties;
    };

    /// Rows, values or sources changed. A search under way must be begun again.
    void Forget() {
        known_.clear();
        tasks_.clear();
        stale_ = searching_;
    }

    /// The rows of the source with the text. Not all of them while a search for it is under way, and when
    /// `stopped` tells so or the database cannot be read; of the last two trouble is noted.
    const RowSet& Of(RowSource& source, const TextFilter& filter, const Asked& asked);

    /// Begins a search, instead of the one that may be under way. What it finds is kept for `Of`.
    void Begin(TextFilter filter, std::vector<SearchTask> tasks);
    SearchProgress GoOn(Clock::time_point until, const Asked& asked);
    /// Whether a search for that text is under way.
    bool IsSearching(const TextFilter& filter) const { return searching_ && filter == wanted_; }
    bool IsStale() const { return stale_; }
    const TextFilter& Wanted() const { return wanted_; }

private:
    struct Known;
    using Results = std::list<Known>; ///< the newest first

    Known& Find(RowSource& source, const TextFilter& filter, const SearchedProperties& properties);
    static void Run(RowSource& source, Known& known, Clock::time_point until, const Asked& asked);
    static void Compute(RowSource& source, Known& known, std::vector<std::int64_t> rows,
                        std::vector<std::int64_t>& found, const Asked& asked);

    std::map<RowSource*, Results> known_;
    bool searching_ = false;
    bool stale_ = false;
    TextFilter wanted_;
    std::vector<SearchTask> tasks_;
};

/// What was found for one text, or has been so far.
struct FilterMatches::Known {
    TextFilter filter;
    SearchedProperties properties;
    std::uint64_t version = 0;
    std::shared_ptr<const RowSet> among; ///< what a text found that this one adds to
    std::shared_ptr<RowSet> rows;
    RowScan scan;
    SearchedProperties computed;
    bool broken = false; ///< memory ran out: not all that was looked at is noted
};

/// Whether whatever holds the text of `narrow` also holds that of `wide`.
bool AddsTo(const TextFilter& narrow, const TextFilter& wide);

} // namespace znhost

#endif
