// The items of a hierarchical data source in the order of its tree.
#ifndef ZN_HOST_TREE_WALK_H
#define ZN_HOST_TREE_WALK_H

#include "host/znBrowserDataItems.h"
#include "store/link_reader.h"

#include <map>
#include <set>

namespace znhost {

class HierarchicalSource;

/// Walks through the tree once, with the tables as they are when the walk is made. Items that lie below
/// themselves are entered once on the way down: circles in the data end there.
class TreeWalk {
public:
    explicit TreeWalk(HierarchicalSource& source);

    void ListTop(bool recursive, znBrowserDataItems& items);
    void ListBelow(const znBrowserDataItem& parent, bool recursive, znBrowserDataItems& items);

private:
    struct Link {
        RowLink link;
        LinkReader reader;
    };
    /// The items below one item that are still to be visited.
    struct Level {
        znBrowserDataItem parent;
        std::size_t nextLink = 0;
        SimpleSource* source = nullptr; // of the rows
        std::vector<std::int64_t> rows;
        std::size_t nextRow = 0;
    };

    void Walk(std::vector<Level> levels, bool recursive, znBrowserDataItems& items);
    bool NextLink(Level& level);
    bool HasLinks(const znIBrowserDataSourceSimple* source) const { return links_.count(source) != 0; }

    SimpleSource* top_;
    const RowLink* topLink_ = nullptr; // the one along which the top source nests
    std::map<const znIBrowserDataSourceSimple*, std::vector<Link>> links_; // by parent
};

} // namespace znhost

#endif
