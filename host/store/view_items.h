// Items of a view by how they hang together: those of a source, and what lies below them.
#ifndef ZN_HOST_VIEW_ITEMS_H
#define ZN_HOST_VIEW_ITEMS_H

#include "base/row_set.h"
#include "model/row_source.h"

#include <unordered_map>
#include <vector>

namespace znhost {

class SimpleSource;

/// All items of one source, and if wanted those below them.
class ViewItems {
public:
    explicit ViewItems(SimpleSource& source) : source_(source), sources_{&source} {}

    void AddBelow(const std::vector<RowLink>& links);
    /// The sources that the items belong to.
    const std::vector<SimpleSource*>& Sources() const { return sources_; }
    /// The items of that source among these that fulfil the query.
    std::vector<std::int64_t> List(SimpleSource& source, const RowQuery& query) const;

private:
    SimpleSource& source_;
    std::vector<SimpleSource*> sources_;
    std::unordered_map<const SimpleSource*, RowSet> below_; // of the other sources
};

} // namespace znhost

#endif
