// Which items a search leaves: those that match, and those above them.
#ifndef ZN_HOST_ROW_FILTER_H
#define ZN_HOST_ROW_FILTER_H

#include "base/row_set.h"
#include "model/row_source.h"

#include <cstdint>
#include <functional>
#include <map>
#include <unordered_map>
#include <vector>

namespace znhost {

class RowDisplay;

/// The items of some linked sources that fulfil a condition, together with their parents, the parents of
/// these, and so on. Made by one pass over each source, however many items are expanded.
class RowFilter {
public:
    /// Fills in which rows of the source are looked for.
    using Matches = std::function<void(RowSource& source, std::vector<std::int64_t>& rows)>;

    /// The values that conditions look at may come from scripts that delete anything: when `isStopped` tells
    /// so, no more is looked at, and the filter is of no use.
    /// @param display  hidden items match nothing, nor is anything kept above them; null: nothing is hidden
    RowFilter(const std::vector<RowSource*>& sources, const std::vector<RowLink>& links,
              const Matches& matches, const RowDisplay* display, const std::function<bool()>& isStopped);

    bool IsMatch(const RowSource* source, std::int64_t row) const { return Of(matches_, source).Has(row); }
    bool Keeps(const RowSource* source, std::int64_t row) const { return Of(kept_, source).Has(row); }
    /// Whether a kept item lies below `parent` along that link.
    bool KeepsBelow(const RowLink& link, std::int64_t parent) const;
    /// The rows of the source that are kept.
    const RowSet& Kept(const RowSource* source) const { return Of(kept_, source); }
    /// By source: how many rows match.
    std::map<const RowSource*, std::size_t> CountMatches() const;

private:
    using Sets = std::unordered_map<const RowSource*, RowSet>;

    static const RowSet& Of(const Sets& sets, const RowSource* source);
    void KeepParents(RowSource* source, std::vector<std::int64_t> rows, const RowDisplay* display);

    std::vector<RowLink> links_;
    std::vector<RowSet> parents_; ///< by link: the items with something kept below them
    Sets matches_;
    Sets kept_;
};

} // namespace znhost

#endif
