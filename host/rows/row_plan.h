// What belongs into a container, as the view and the data have it now.
#ifndef ZN_HOST_ROW_PLAN_H
#define ZN_HOST_ROW_PLAN_H

#include "rows/filter_matches.h"
#include "rows/row_ahead.h"
#include "rows/row_display.h"
#include "rows/row_filter.h"
#include "rows/row_tree.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace znhost {

class Column;
struct ColumnFilter;
class ReadTrouble;
class Style;
class View;
class ViewProperty;

/// What holds for everything below one tree, one list, or a tree that a folder ties together itself.
struct RowScope {
    znIBrowserDataSourceHierarchical* tree = nullptr;
    RowSource* top = nullptr;   ///< whose items are not below others
    std::vector<RowLink> links; ///< only those whose children are shown
    bool groups = false;        ///< children stand together by source, below a row for each source
    bool groupsLeafs = false;   ///< those do that have no children themselves
    std::shared_ptr<const RowDisplay> display; ///< null: nothing is hidden
    std::shared_ptr<const RowFilter> filter;   ///< null: there is none; it knows of what is hidden, too

    bool HasLinksBelow(const RowSource* source) const;
};

/// Reads from a view what its windows show. Nothing is kept but what a text filter and the display state
/// found.
class RowPlan {
public:
    explicit RowPlan(View& view) : view_(view) {}

    /// Forgets what was found: the view or the data changed.
    void Forget() {
        filters_.clear();
        display_.reset();
    }
    /// Rows or values changed: what the filter searched is out of date.
    void ForgetMatches() { matches_.Forget(); }
    /// Lets who computes values tell when to stop.
    void SetStopped(std::function<bool()> stopped) { stopped_ = std::move(stopped); }

    /// While one lives the children of many items are wanted, and read together. Of several the outermost
    /// counts.
    class Ahead {
    public:
        /// @param descends  all that lies below is wanted
        Ahead(RowPlan& plan, bool descends);
        ~Ahead() { plan_.ahead_ = outer_; }
        Ahead(const Ahead&) = delete;
        Ahead& operator=(const Ahead&) = delete;

        /// These items of the block will be asked about.
        void Expect(const RowContent& block, const std::vector<std::int64_t>& rows) {
            plan_.ahead_->Expect(block, rows);
        }

    private:
        RowPlan& plan_;
        RowAhead ahead_;
        RowAhead* const outer_;
    };

    /// What stands in a folder, tree or list, in order.
    std::vector<RowContent> Below(const RowContent& container) const;
    /// What stands below an item of that block.
    std::vector<RowContent> Below(const RowContent& block, std::int64_t row) const;
    /// The order in which the rows of a block are shown.
    RowOrder OrderOf(const RowContent& block) const;
    /// The rows of a block, in order.
    std::vector<std::int64_t> List(const RowContent& block) const;
    /// The same for a window, which looks at some of them only.
    SharedRows ListToShow(const RowContent& block) const;
    /// Those that fulfil a condition, in the order of the source, hidden ones too.
    static std::vector<std::int64_t> ListFulfilling(const RowContent& block, RowCondition condition);
    /// Those of them that are in the set.
    std::vector<std::int64_t> List(const RowContent& block, const RowSet& among) const;

    /// Whether nothing is filtered or hidden.
    bool IsWhole() const;

    // Whether there is anything below, and how many rows directly below. What cannot be read may be there.
    bool HasRows(const RowContent& container) const;
    bool HasRows(const RowContent& block, std::int64_t row) const { return HaveRows(block, {row})[0]; }
    std::vector<bool> HaveRows(const RowContent& block, const std::vector<std::int64_t>& rows) const;
    std::int64_t Count(const RowContent& container) const;
    std::int64_t Count(const RowContent& block, std::int64_t row) const;
    /// How many rows there would be directly in a container if nothing were hidden or filtered; nothing when
    /// nothing is hidden that could stand in it.
    std::optional<std::int64_t> CountWhole(const RowContent& container) const;

    /// Every link along which the view shows items below others, each once.
    std::vector<RowLink> AllLinks() const;
    /// The rows of a source with that text, whatever is shown: `FilterMatches`.
    const RowSet& Matches(RowSource& source, const TextFilter& filter) const;
    /// Begins to look for what that filter would leave, and goes on with it: `FilterMatches`.
    void BeginSearch(const TextFilter& filter);
    SearchProgress GoOnSearching(std::chrono::milliseconds time);
    bool IsSearching(const TextFilter& filter) const { return matches_.IsSearching(filter); }
    /// How many items the filter found, those in collapsed rows too.
    std::int64_t CountMatches() const;

    /// The view property that a column shows first when it draws with that style (null: none); null when it
    /// shows something else.
    ViewProperty* PropertyOf(const Column& column, const Style* style) const;

private:
    bool HasRows(const RowContent& block, const RowLink& link, std::int64_t row) const;
    bool HasRowsAlongAny(const RowContent& block, std::int64_t row) const;
    bool Stands(const RowContent& container, bool showsEmpty) const;
    bool Hides(const RowContent& container) const;
    std::shared_ptr<const RowDisplay> Display() const;
    RowContent Whole(RowContent container) const;
    const ReadTrouble& Trouble() const;
    std::vector<RowContent> InFolder(const RowContent& folder) const;
    void AddChildFolders(const RowContent& folder, std::vector<RowContent>& contents) const;
    void AddTopItems(const RowContent& folder, std::vector<RowContent>& contents) const;
    void AddLists(const RowContent& folder, std::vector<RowContent>& contents) const;
    bool IsShown(RowSource* source) const;
    bool HidesEmpty(bool shows) const;
    void AddFolderLinks(const FreeFolder& folder, RowScope& scope) const;
    std::shared_ptr<RowScope> MakeScope(FreeFolder& folder, const std::vector<RowSource*>& tops,
                                        const void* what) const;
    void AddTreeLinks(FreeFolder& folder, RowScope& scope) const;
    std::shared_ptr<RowScope> TreeScope(FreeFolder& folder) const;
    void Filter(RowScope& scope, const std::vector<RowSource*>& tops, const FreeFolder& folder,
                const void* what) const;
    void Match(RowSource& source, std::vector<std::int64_t>& rows) const;
    std::optional<RowSet> Fulfilling(RowSource& source) const;
    static RowCondition ConditionFor(const ColumnFilter& filter, znIBrowserDataProperty* property);
    FilterMatches::Asked Asked(const TextFilter& filter) const;
    SearchedProperties SearchedIn(RowSource& source, const TextFilter& filter) const;
    void AddShownProperties(const FreeFolder& folder, RowSource& source, SearchedProperties& all) const;
    bool IsStopped() const { return stopped_ && stopped_(); }
    std::optional<RowOrder> OrderBelow(const RowContent& block, const RowLink& link) const;
    std::optional<std::vector<std::int64_t>> KnownBelow(const RowContent& block, const RowLink& link,
                                                        std::int64_t parent) const;
    static void Narrow(const RowContent& block, std::vector<std::int64_t>& rows);
    static std::vector<std::int64_t> List(const RowContent& block, const RowOrder& order,
                                          const RowSet* among = nullptr);
    static std::int64_t CountRows(const RowContent& block);

    View& view_;
    RowAhead* ahead_ = nullptr; ///< null: each is read when it is asked for
    bool whole_ = false;        ///< as if nothing were hidden or filtered
    std::function<bool()> stopped_;
    mutable FilterMatches matches_;
    mutable std::shared_ptr<const RowDisplay> display_;
    /// By folder and by what stands in it.
    mutable std::map<std::pair<const FreeFolder*, const void*>, std::shared_ptr<const RowFilter>> filters_;
};

} // namespace znhost

#endif
