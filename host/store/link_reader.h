// Which items hang below which, along a data reference.
#ifndef ZN_HOST_LINK_READER_H
#define ZN_HOST_LINK_READER_H

#include "model/row_source.h"
#include "store/link_index.h"
#include "store/row_part.h"

namespace znhost {

class DataReference;
class SimpleSource;

/// How the rows of one table hang below those of another: where these columns have equal values.
struct LinkJoint {
    RowPart part[2];                     ///< by `LinkEnd`
    std::vector<std::string> columns[2]; ///< by `LinkEnd`, pair by pair
    bool childHolds = false;             ///< the child's table holds the key
};

enum LinkEnd { LINK_PARENT = 0, LINK_CHILD = 1 };

/// Whether items of the one source can hang below those of the other along the reference.
bool CanLink(SimpleSource& parent, SimpleSource& child, const DataReference& reference);

/// Reads one link, with the tables as they are when the reader is made. Each operation replaces what `rows`
/// holds, and answers false when the database failed: the reason is then noted in the source.
class LinkReader {
public:
    using Rows = std::vector<std::int64_t>;

    explicit LinkReader(const RowLink& link);

    /// The rows below one row, in the order of the source.
    bool Children(std::int64_t parent, Rows& rows) { return Related(LINK_CHILD, parent, rows, false); }
    /// The same for many rows at once: a group for each.
    bool Children(const Rows& parents, RowGroups& groups);
    bool HasChildren(std::int64_t parent);
    /// An answer for each: `HasChildren`, with one statement for all.
    bool HaveChildren(const Rows& parents, std::vector<bool>& have);
    /// The rows at that end that are linked to one of `others` at the other end; each once, in any order.
    bool RelatedToAny(LinkEnd end, const Rows& others, Rows& rows);

    const std::vector<LinkJoint>& Joints() const { return joints_; }
    /// SQL for: the row of that part of the child source has no parent; or, where the parent's table holds
    /// the key: it has one. "" for all rows. The values of its `?` are appended.
    std::string TopCondition(const RowPart& part, std::vector<Value>& values) const;

private:
    bool Related(LinkEnd end, std::int64_t other, Rows& rows, bool firstOnly);
    bool RelatedByIndex(LinkEnd end, std::int64_t other, Rows& rows);
    bool RelatedBySql(LinkEnd end, std::int64_t other, Rows& rows, bool firstOnly);
    std::string RelatedSql(const LinkJoint& joint, LinkEnd end) const;
    bool NeedsIndex(LinkEnd end) const;
    bool IsOnServer() const;
    bool LinkedTogether(LinkEnd end, const Rows& given, bool areThese, Rows& rows);
    /// A row below another, by the place of that among those asked for.
    using Placed = std::pair<std::size_t, std::int64_t>;
    static bool IsPlacedBefore(const Placed& a, const Placed& b) { return a.first < b.first; }
    bool ReadBelow(const LinkJoint& joint, const Rows& parents, std::vector<Placed>& found);
    bool ReadBelowTogether(const LinkJoint& joint, const Rows& parents, std::vector<Placed>& found);
    /// Calls `visit(parent, child)` for each pair of linked rows.
    template <class Visit>
    bool ForEachPair(Visit&& visit);
    bool FillIndex(LinkEnd end, LinkIndexes::Pairs& pairs);

    RowLink link_;
    SimpleSource* source_[2]; // by `LinkEnd`
    const DataReference* reference_;
    std::vector<LinkJoint> joints_;
    std::shared_ptr<const LinkIndexes::Pairs> index_[2]; // of the end that is looked for
};

} // namespace znhost

#endif
