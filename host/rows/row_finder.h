// Searching what a window shows, and what it would show if everything were expanded.
#ifndef ZN_HOST_ROW_FINDER_H
#define ZN_HOST_ROW_FINDER_H

#include "host/znBrowserDataItems.h"
#include "host/znIBrowserFindRequest.h"
#include "rows/row_model.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace znhost {

class HostServices;
class View;

/// What is searched for: the name of a view property, or of the built-in column, and how its value matches.
struct FindCriterion {
    std::string property;
    znBrowserCriterion criterion;

    friend bool operator==(const FindCriterion& a, const FindCriterion& b);
};

/// The items that match, in the order in which a fully expanded window would show them. Sources are searched
/// as a whole; then only what leads to a match is walked.
class RowFinder {
public:
    RowFinder(View& view, RowModel& model, std::vector<FindCriterion> criteria);

    /// Empty; or why it cannot be searched.
    const std::string& GetError() const { return error_; }
    /// Whether a new search for `criteria` would find the same.
    bool IsUpToDate(const std::vector<FindCriterion>& criteria) const;

    std::size_t Size() const { return hits_.size(); }
    znBrowserDataItem Item(std::size_t hit) const;
    std::vector<RowStep> PathTo(std::size_t hit) const;
    /// The hit after or before the one given last, while that is still selected; else the one next to the
    /// first selected item that leads to hits. Goes round at the ends. There must be a hit.
    std::size_t Next(bool forward, const View& view);
    /// Goes on from the hit that an earlier search for the same gave last, if it is still there.
    void GoOnFrom(const RowFinder& earlier);
    bool IsFor(const std::vector<FindCriterion>& criteria) const { return criteria_ == criteria; }

private:
    /// A row on the way to a match: the place where it stands, and its number.
    struct Entry {
        std::uint32_t above; ///< the entry that it lies in; its own number at the top
        std::uint32_t content;
        std::int64_t row;
    };
    /// A container, or an item, whose content is being walked.
    struct Frame {
        std::uint32_t above;
        std::vector<RowContent> contents;
        std::size_t next = 0;
        std::vector<std::int64_t> rows; ///< of the block that is being walked
        std::size_t nextRow = 0;
        std::uint32_t content = 0;
        std::shared_ptr<const RowFilter> filter;
        std::pair<const RowSource*, std::int64_t> item{nullptr, 0};
    };

    std::size_t NextToSelected(bool forward, const View& view) const;
    bool Prepare(const View& view);
    bool ConditionsFor(RowSource& source, std::vector<RowCondition>& conditions) const;
    void Match(RowSource& source, std::vector<std::int64_t>& rows) const;
    std::optional<TextFilter> AsFilter() const;
    void Walk(const HostServices& services);
    void WalkRow(Frame& frame);
    void WalkContent(Frame& frame);
    std::uint32_t AddEntry(std::uint32_t above, std::uint32_t content, std::int64_t row);
    std::shared_ptr<const RowFilter> FilterFor(const RowContent& block);

    RowModel& model_;
    const std::vector<FindCriterion> criteria_;
    std::uint64_t revision_;
    std::string error_;
    /// Per criterion: the condition without its property, and the view property; null for the item's text.
    std::vector<std::pair<RowCondition, std::shared_ptr<ViewProperty>>> tests_;
    std::vector<RowContent> contents_;
    std::vector<Entry> entries_;
    std::vector<std::uint32_t> hits_; ///< entries, in order
    std::size_t last_ = 0;            ///< the hit given last
    bool hasLast_ = false;
    // While it walks:
    std::vector<Frame> frames_;
    std::set<std::pair<const RowSource*, std::int64_t>> way_;
    std::map<std::pair<const RowScope*, const RowSource*>, std::shared_ptr<const RowFilter>> filters_;
};

} // namespace znhost

#endif
