#include "store/tree_walk.h"

#include "store/data_ctrl.h"

namespace znhost {

TreeWalk::TreeWalk(HierarchicalSource& source) : top_(source.Top()) {
    for (const RowLink& link : source.Links()) {
        links_[link.parent->GetSource()].push_back({link, LinkReader(link)});
    }
    const auto own = links_.find(top_);
    if (own == links_.end()) return;
    for (const Link& link : own->second) {
        if (link.link.child == link.link.parent) topLink_ = &link.link;
    }
}

void TreeWalk::ListTop(bool recursive, znBrowserDataItems& items) {
    if (!top_) return;
    RowQuery query;
    query.link = topLink_;
    query.top = true;
    Level level;
    level.source = top_;
    top_->List(query, level.rows);
    Walk({std::move(level)}, recursive, items);
}

void TreeWalk::ListBelow(const znBrowserDataItem& parent, bool recursive, znBrowserDataItems& items) {
    if (!HasLinks(parent.source)) return;
    Level level;
    level.parent = parent;
    Walk({std::move(level)}, recursive, items);
}

/// Reads the rows along the next link of the level's parent. @return false when there is none
bool TreeWalk::NextLink(Level& level) {
    const auto found = links_.find(level.parent.source);
    if (found == links_.end() || level.nextLink == found->second.size()) return false;
    Link& link = found->second[level.nextLink++];
    level.source = &SourceOf(*link.link.child);
    level.nextRow = 0;
    link.reader.Children(level.parent.row, level.rows);
    return true;
}

void TreeWalk::Walk(std::vector<Level> levels, bool recursive, znBrowserDataItems& items) {
    std::set<std::pair<const znIBrowserDataSourceSimple*, std::int64_t>> above;
    if (levels.front().parent.source) above.insert({levels.front().parent.source, levels.front().parent.row});
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.nextRow == level.rows.size()) {
            if (NextLink(level)) continue;
            above.erase({level.parent.source, level.parent.row});
            levels.pop_back();
            continue;
        }
        const znBrowserDataItem item{level.source, level.rows[level.nextRow++]};
        if (above.count({item.source, item.row})) continue;
        items.Append(item.source, item.row);
        if (!recursive || !HasLinks(item.source)) continue;
        above.insert({item.source, item.row});
        Level below;
        below.parent = item;
        levels.push_back(std::move(below));
    }
}

} // namespace znhost
