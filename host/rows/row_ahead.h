// What lies below rows, read before it is asked for.
#ifndef ZN_HOST_ROW_AHEAD_H
#define ZN_HOST_ROW_AHEAD_H

#include "base/row_set.h"
#include "rows/row_tree.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace znhost {

/// The children of many items, which are wanted one after the other: they are read by a statement for
/// thousands of them, together with those of items that will be asked about next. As long as one lives the
/// data are taken not to change.
class RowAhead {
public:
    /// The order in which children along a link are shown below a block; nothing when it takes more than a
    /// look at the database.
    using OrderBelow = std::function<std::optional<RowOrder>(const RowContent& block, const RowLink& link)>;

    /// @param descends  what has been read will be asked about, too: all that lies below is wanted
    RowAhead(bool descends, OrderBelow order) : descends_(descends), order_(std::move(order)) {}

    /// These items of the block will be asked about.
    void Expect(const RowContent& block, const std::vector<std::int64_t>& rows);
    /// The children of an item of the block along a link of its scope. Nothing when they cannot be read in
    /// this way.
    std::optional<std::span<const std::int64_t>> Below(const RowContent& block, const RowLink& link,
                                                       std::int64_t parent);

private:
    /// Rows that stand somewhere in `rows`.
    struct Place {
        std::size_t begin = 0;
        std::size_t end = 0;
    };
    /// What is known of a link within a scope.
    struct Along {
        RowContent block; ///< in which the parents are
        RowLink link;
        std::optional<RowOrder> order;
        std::vector<std::int64_t> rows;
        std::unordered_map<std::int64_t, Place> below; ///< of the parents that have children
        RowSet read;                                   ///< the parents whose children are known
        RowSet expected;                               ///< those that are read, or wait
        std::deque<std::int64_t> waiting;

        void Expect(const std::vector<std::int64_t>& parents);
    };
    using Key = std::tuple<const RowScope*, RowSource*, RowSource*, znIBrowserDataReference*>;

    Along& AlongOf(const RowContent& block, const RowLink& link);
    bool Read(Along& along, std::int64_t parent);

    const bool descends_;
    const OrderBelow order_;
    bool failed_ = false; ///< then each is read when it is asked for, and fails by itself
    std::map<Key, Along> all_;
};

} // namespace znhost

#endif
