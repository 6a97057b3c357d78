// Which items a search leaves: those that match, and those above them.
#ifndef ZN_HOST_ROW_FILTER_H
#define ZN_HOST_ROW_FILTER_H

#include "base/row_set.h"
#include "model/row_source.h"

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

namespace znhost {

class RowDisplay;

/// The items of some linked sources that fulfil a condition, together with their parents, the parents of
/// these, and so on. Made by one pass over each source, however many items are expanded.
class RowFilter {
public:
    /// Fills in what an item of the source must fulfil; false when none of its items can.
    using Conditions = std::function<bool(RowSource& source, std::vector<RowCondition>& conditions)>;

    /// The values that conditions look at may come from scripts that delete anything: when `isStopped` tells
    /// so, no more is looked at, and the filter is of no use.
    /// @param display  hidden items match nothing, nor is anything kept above them; null: nothing is hidden
    RowFilter(const std::vector<RowSource*>& sources, const std::vector<RowLink>& links,
              const Conditions& conditions, const RowDisplay* display,
              const std::function<bool()>& isStopped);

    bool IsMatch(const RowSource* source, std::int64_t row) const { return Has(matches_, source, row); }
    bool Keeps(const RowSource* source, std::int64_t row) const { return Has(kept_, source, row); }
    /// Whether a kept item lies below `parent` along that link.
    bool KeepsBelow(const RowLink& link, std::int64_t parent) const;
    /// Takes out of `rows` what is not kept.
    void Narrow(const RowSource* source, std::vector<std::int64_t>& rows) const;

private:
    using Sets = std::unordered_map<const RowSource*, RowSet>;

    static bool Has(const Sets& sets, const RowSource* source, std::int64_t row);
    void KeepParents(RowSource* source, std::vector<std::int64_t> rows, const RowDisplay* display);

    std::vector<RowLink> links_;
    std::vector<RowSet> parents_; ///< by link: the items with something kept below them
    Sets matches_;
    Sets kept_;
};

} // namespace znhost

#endif
