#include "store/link_reader.h"

#include "base/row_set.h"
#include "store/asked_rows.h"
#include "store/data_ctrl.h"

#include <algorithm>
#include <limits>

namespace znhost {

namespace {

/// Above so many rows one look at all pairs is cheaper than a question for each, unless there are this many
/// times more pairs.
constexpr std::size_t manyRows = 256;
constexpr std::size_t farMore = 64;

LinkEnd Opposite(LinkEnd end) { return end == LINK_PARENT ? LINK_CHILD : LINK_PARENT; }

std::string Columns(const std::vector<std::string>& names) {
    std::string columns;
    for (const std::string& name : names) columns += (columns.empty() ? "" : ", ") + Database::Quoted(name);
    return columns;
}

/// The columns as one operand of a comparison.
std::string Operand(const std::vector<std::string>& names) {
    return names.size() == 1 ? Columns(names) : "(" + Columns(names) + ")";
}

/// True for a child at the top: one without a parent, or, where the parent holds the key, one that has any. A
/// server joins by EXISTS; a long list behind IN it would go through for each child.
std::string IsAtTop(const LinkJoint& joint, bool isOnServer) {
    const std::string child = Operand(joint.columns[LINK_CHILD]);
    const RowPart& part = joint.part[LINK_PARENT];
    const std::string parents =
        "(SELECT " + Columns(joint.columns[LINK_PARENT]) + " FROM " + part.From() + part.Where() + ")";
    if (!isOnServer) return "(" + child + " IN " + parents + ")" + (joint.childHolds ? " IS NOT TRUE" : "");
    std::vector<std::string> keys; // names that no column of the child has
    for (std::size_t i = 0; i < joint.columns[LINK_PARENT].size(); ++i)
        keys.push_back("znbrowser_" + std::to_string(i));
    return std::string(joint.childHolds ? "NOT " : "") + "EXISTS (SELECT 1 FROM " + parents +
           " AS znbrowser_parents (" + Columns(keys) + ") WHERE " + Operand(keys) + " = " + child + ")";
}

/// The rows of one end with their columns under plain names: item, c0, c1, ...
std::string PairSide(const LinkJoint& joint, LinkEnd end, std::string_view more = {},
                     std::string columns = {}) {
    for (std::size_t i = 0; i < joint.columns[end].size(); ++i) {
        columns += ", " + Database::Quoted(joint.columns[end][i]) + " AS c" + std::to_string(i);
    }
    return "(" + joint.part[end].Select(" AS item" + columns, more) + ")";
}

/// The columns of both ends, under their plain names, have equal values.
std::string PairCondition(const LinkJoint& joint, const char* left, const char* right) {
    std::string sql;
    for (std::size_t i = 0; i < joint.columns[LINK_CHILD].size(); ++i) {
        const std::string column = ".c" + std::to_string(i);
        sql.append(i == 0 ? "" : " AND ").append(left).append(column);
        sql.append(" = ").append(right).append(column);
    }
    return sql;
}

std::string PairsSql(const LinkJoint& joint) {
    return "SELECT p.item, c.item FROM " + PairSide(joint, LINK_PARENT) + " AS p JOIN " +
           PairSide(joint, LINK_CHILD) + " AS c ON " + PairCondition(joint, "p", "c");
}

/// Where the row number itself is what the other end refers to, the row need not be looked at.
bool IsRowNumber(const LinkJoint& joint, LinkEnd end) {
    const Table& table = *joint.part[end].table;
    const std::vector<std::string>& columns = joint.columns[end];
    return table.rowidColumn && columns.size() == 1 && table.FindColumn(columns.front()) == table.rowidColumn;
}

/// The rows below those given, each by its place among them; in the order of the places.
std::string BelowSql(const LinkJoint& joint, const Dialect& dialect) {
    const std::string from = "SELECT given.key, c.item FROM " + std::string(dialect.given) + " CROSS JOIN ";
    const std::string to = PairSide(joint, LINK_CHILD) + " AS c ON ";
    if (IsRowNumber(joint, LINK_PARENT)) return from + to + "c.c0 = given.value";
    LinkJoint parents = joint;
    parents.part[LINK_PARENT].condition.clear();
    return from + PairSide(parents, LINK_PARENT) + " AS p ON p.item = given.value CROSS JOIN " + to +
           PairCondition(joint, "c", "p");
}

/// The same for a server: each with the row that it is below, in the order of the source.
std::string BelowTogetherSql(const LinkJoint& joint) {
    LinkJoint parents = joint;
    parents.part[LINK_PARENT].condition.clear();
    return "SELECT p.item, c.item FROM " +
           PairSide(parents, LINK_PARENT, joint.part[LINK_PARENT].table->among) + " AS p JOIN " +
           PairSide(joint, LINK_CHILD, {}, ", (" + joint.part[LINK_CHILD].table->order + ") AS place") +
           " AS c ON " + PairCondition(joint, "c", "p") + " ORDER BY c.place";
}

/// The rows at that end that are linked to others of those at the other end, each once. The `?` are those of
/// the part at that end, then those of the other.
std::string LinkedSql(const LinkJoint& joint, LinkEnd end, std::string_view ofThese,
                      std::string_view toThese) {
    std::string sql = "SELECT p.item FROM " + PairSide(joint, end, ofThese) +
                      " AS p WHERE EXISTS (SELECT 1 FROM " + PairSide(joint, Opposite(end), toThese) +
                      " AS c WHERE ";
    return sql + PairCondition(joint, "p", "c") + ")";
}

/// Which end of the reference the tables are; none when they are not linked by it.
std::optional<bool> ChildHolds(const std::string& parent, const std::string& child,
                               const DataReference& reference) {
    if (!reference.IsThere()) return std::nullopt;
    if (child == reference.HoldingTable() && parent == reference.Key().table) return true;
    if (parent == reference.HoldingTable() && child == reference.Key().table) return false;
    return std::nullopt;
}

} // namespace

bool CanLink(SimpleSource& parent, SimpleSource& child, const DataReference& reference) {
    for (const BaseSource* const above : parent.Bases()) {
        for (const BaseSource* const below : child.Bases()) {
            if (ChildHolds(above->Name(), below->Name(), reference)) return true;
        }
    }
    return false;
}

LinkReader::LinkReader(const RowLink& link)
    : link_(link), source_{&SourceOf(*link.parent), &SourceOf(*link.child)},
      reference_(static_cast<const DataReference*>(link.reference)) {
    const std::vector<RowPart> parents = source_[LINK_PARENT]->Parts();
    const std::vector<RowPart> children = link.parent == link.child ? parents : source_[LINK_CHILD]->Parts();
    for (const RowPart& parent : parents) {
        for (const RowPart& child : children) {
            const auto childHolds = ChildHolds(parent.table->name, child.table->name, *reference_);
            if (!childHolds) continue;
            const ForeignKey& key = reference_->Key();
            joints_.push_back({{parent, child},
                               {*childHolds ? key.to : key.from, *childHolds ? key.from : key.to},
                               *childHolds});
        }
    }
}

bool LinkReader::NeedsIndex(LinkEnd end) const {
    return std::any_of(joints_.begin(), joints_.end(), [end](const LinkJoint& joint) {
        const Table& table = *joint.part[end].table;
        const auto column = table.FindColumn(joint.columns[end].front());
        if (table.IsOnServer()) return false; // it finds them
        return !column || !table.columns[*column].indexed;
    });
}

template <class Visit>
bool LinkReader::ForEachPair(Visit&& visit) {
    DataCtrl& control = source_[LINK_CHILD]->Control();
    for (const LinkJoint& joint : joints_) {
        const RowPart& parent = joint.part[LINK_PARENT];
        const RowPart& child = joint.part[LINK_CHILD];
        Statement statement = control.Db().Prepare(PairsSql(joint));
        child.Bind(statement, parent.Bind(statement));
        while (statement.Next()) {
            visit(source_[LINK_PARENT]->RowOf({parent.slot, parent.table->RowAt(statement, 0)}),
                  source_[LINK_CHILD]->RowOf({child.slot, child.table->RowAt(statement, 1)}));
        }
        std::string error;
        if (!statement.Finish(error)) return source_[LINK_CHILD]->FailToRead(error);
    }
    return true;
}

bool LinkReader::FillIndex(LinkEnd end, LinkIndexes::Pairs& pairs) {
    const bool down = end == LINK_CHILD;
    const bool filled = ForEachPair([&](std::int64_t parent, std::int64_t child) {
        pairs.emplace_back(down ? parent : child, down ? child : parent);
    });
    std::sort(pairs.begin(), pairs.end());
    return filled;
}

// A reader keeps the index that it began with: the rows of one walk through a tree fit together.
bool LinkReader::RelatedByIndex(LinkEnd end, std::int64_t other, Rows& rows) {
    if (!index_[end]) {
        DataCtrl& control = source_[end]->Control();
        Database::Stamp now;
        std::string error;
        if (!control.Db().ReadStamp(now, error)) return source_[end]->FailToRead(error);
        index_[end] = control.Indexes().Find(link_, end == LINK_CHILD, now);
        if (!index_[end]) {
            const auto pairs = std::make_shared<LinkIndexes::Pairs>();
            if (!FillIndex(end, *pairs)) return false;
            control.Indexes().Keep(link_, end == LINK_CHILD, now, pairs);
            index_[end] = pairs;
        }
    }
    constexpr std::int64_t lowest = std::numeric_limits<std::int64_t>::min();
    for (auto pair = std::lower_bound(index_[end]->begin(), index_[end]->end(), std::pair(other, lowest));
         pair != index_[end]->end() && pair->first == other; ++pair) {
        rows.push_back(pair->second);
    }
    return true;
}

/// The rows at that end that are linked to the row `?` at the other end.
std::string LinkReader::RelatedSql(const LinkJoint& joint, LinkEnd end) const {
    const LinkEnd otherEnd = Opposite(end);
    const RowPart& from = joint.part[otherEnd];
    const RowPart& to = joint.part[end];
    const std::vector<std::string>& columns = joint.columns[otherEnd];
    const std::string value =
        "(SELECT " + Columns(columns) + " FROM " + from.From() + " WHERE " + from.table->is + ")";
    return to.Select({}, Operand(joint.columns[end]) + " = " +
                             (IsRowNumber(joint, otherEnd) ? from.table->number : value)) +
           " ORDER BY " + to.table->order;
}

bool LinkReader::RelatedBySql(LinkEnd end, std::int64_t other, Rows& rows, bool firstOnly) {
    const LinkEnd otherEnd = Opposite(end);
    const RowPlace place = source_[otherEnd]->PlaceOf(other);
    DataCtrl& control = source_[end]->Control();
    for (const LinkJoint& joint : joints_) {
        const RowPart& from = joint.part[otherEnd];
        const RowPart& to = joint.part[end];
        if (from.slot != place.slot) continue;
        Statement statement = control.Db().Prepare(RelatedSql(joint, end));
        from.table->BindRow(statement, to.Bind(statement), place.row);
        while (statement.Next()) {
            rows.push_back(source_[end]->RowOf({to.slot, to.table->RowAt(statement, 0)}));
            if (firstOnly) return true;
        }
        std::string error;
        if (!statement.Finish(error)) return source_[end]->FailToRead(error);
    }
    return true;
}

bool LinkReader::Related(LinkEnd end, std::int64_t other, Rows& rows, bool firstOnly) {
    rows.clear();
    return NeedsIndex(end) ? RelatedByIndex(end, other, rows) : RelatedBySql(end, other, rows, firstOnly);
}

bool LinkReader::IsOnServer() const {
    return !joints_.empty() && joints_.front().part[LINK_PARENT].table->IsOnServer();
}

bool LinkReader::HasChildren(std::int64_t parent) {
    if (IsOnServer()) {
        std::vector<bool> have;
        return HaveChildren({parent}, have) && have[0];
    }
    Rows rows;
    return Related(LINK_CHILD, parent, rows, true) && !rows.empty();
}

bool LinkReader::HaveChildren(const Rows& parents, std::vector<bool>& have) {
    have.assign(parents.size(), false);
    if (IsOnServer()) {
        Rows found;
        if (!LinkedTogether(LINK_PARENT, parents, true, found)) return false;
        RowSet withChildren;
        withChildren.Add(std::move(found));
        for (std::size_t i = 0; i < parents.size(); ++i) have[i] = withChildren.Has(parents[i]);
        return true;
    }
    if (NeedsIndex(LINK_CHILD)) {
        for (std::size_t i = 0; i < parents.size(); ++i) have[i] = HasChildren(parents[i]);
        return true;
    }
    for (const LinkJoint& joint : joints_) {
        const RowPart& children = joint.part[LINK_CHILD];
        Statement statement = source_[LINK_CHILD]->Control().Db().Prepare(RelatedSql(joint, LINK_CHILD));
        const int parameter = children.Bind(statement);
        for (std::size_t i = 0; i < parents.size(); ++i) {
            const RowPlace place = source_[LINK_PARENT]->PlaceOf(parents[i]);
            if (have[i] || place.slot != joint.part[LINK_PARENT].slot) continue;
            joint.part[LINK_PARENT].table->BindRow(statement, parameter, place.row);
            have[i] = statement.Next();
            statement.Rewind();
        }
        std::string error;
        if (!statement.Finish(error)) return source_[LINK_CHILD]->FailToRead(error);
    }
    return true;
}

/// The rows at that end that are linked at all and among those given, or linked to one of those given; with
/// one question for each pair of tables.
bool LinkReader::LinkedTogether(LinkEnd end, const Rows& given, bool areThese, Rows& rows) {
    const LinkEnd givenEnd = areThese ? end : Opposite(end);
    Database& database = source_[end]->Control().Db();
    for (const LinkJoint& joint : joints_) {
        const RowPart& of = joint.part[end];
        const RowPart& to = joint.part[Opposite(end)];
        const RowPart& part = joint.part[givenEnd];
        Rows inPart;
        for (const std::int64_t row : given) {
            const RowPlace place = source_[givenEnd]->PlaceOf(row);
            if (place.slot == part.slot) inPart.push_back(place.row);
        }
        if (inPart.empty()) continue;
        const std::string& among = part.table->among;
        Statement statement = database.Prepare(
            LinkedSql(joint, end, areThese ? among : std::string(), areThese ? std::string() : among));
        int position = of.Bind(statement);
        if (areThese) statement.Bind(position++, database.ListOf(*part.table, inPart));
        position = to.Bind(statement, position);
        if (!areThese) statement.Bind(position, database.ListOf(*part.table, inPart));
        while (statement.Next())
            rows.push_back(source_[end]->RowOf({of.slot, of.table->RowAt(statement, 0)}));
        std::string error;
        if (!statement.Finish(error)) return source_[end]->FailToRead(error);
    }
    return true;
}

/// Appends what lies below those of the rows that are in the joint's table.
bool LinkReader::ReadBelow(const LinkJoint& joint, const Rows& parents, std::vector<Placed>& found) {
    std::vector<std::size_t> places;
    Rows given;
    for (std::size_t i = 0; i < parents.size(); ++i) {
        const RowPlace place = source_[LINK_PARENT]->PlaceOf(parents[i]);
        if (place.slot != joint.part[LINK_PARENT].slot) continue;
        places.push_back(i);
        given.push_back(place.row);
    }
    if (places.empty()) return true;
    Database& database = source_[LINK_CHILD]->Control().Db();
    const RowPart& children = joint.part[LINK_CHILD];
    const std::size_t before = found.size();
    Statement statement = database.Prepare(BelowSql(joint, database.Sql()));
    statement.Bind(1, database.ListOf(*joint.part[LINK_PARENT].table, given));
    children.Bind(statement, 2);
    while (statement.Next()) {
        found.emplace_back(places[static_cast<std::size_t>(statement.Integer(0))],
                           source_[LINK_CHILD]->RowOf({children.slot, statement.Integer(1)}));
    }
    // An index may have the rows of one value in an order of its own.
    const auto first = found.begin() + static_cast<std::ptrdiff_t>(before);
    if (!std::is_sorted(first, found.end())) std::sort(first, found.end());
    std::string error;
    return statement.Finish(error) || source_[LINK_CHILD]->FailToRead(error);
}

/// The same with one question to a server.
bool LinkReader::ReadBelowTogether(const LinkJoint& joint, const Rows& parents, std::vector<Placed>& found) {
    const AskedRows asked(*source_[LINK_PARENT], joint.part[LINK_PARENT], parents);
    if (asked.IsEmpty()) return true;
    const RowPart& children = joint.part[LINK_CHILD];
    const std::size_t before = found.size();
    Statement statement = source_[LINK_CHILD]->Control().Db().Prepare(BelowTogetherSql(joint));
    children.Bind(statement, asked.Bind(statement, 1));
    while (statement.Next()) {
        const std::int64_t row =
            source_[LINK_CHILD]->RowOf({children.slot, children.table->RowAt(statement, 1)});
        asked.ForEachPlace(statement, [&](std::size_t place) { found.emplace_back(place, row); });
    }
    std::stable_sort(found.begin() + static_cast<std::ptrdiff_t>(before), found.end(), IsPlacedBefore);
    std::string error;
    return statement.Finish(error) || source_[LINK_CHILD]->FailToRead(error);
}

bool LinkReader::Children(const Rows& parents, RowGroups& groups) {
    groups.rows.clear();
    groups.ends.assign(parents.size(), 0);
    if (NeedsIndex(LINK_CHILD)) {
        for (std::size_t i = 0; i < parents.size(); ++i) {
            if (!RelatedByIndex(LINK_CHILD, parents[i], groups.rows)) return false;
            groups.ends[i] = groups.rows.size();
        }
        return true;
    }
    std::vector<Placed> found;
    for (const LinkJoint& joint : joints_) {
        const bool read =
            IsOnServer() ? ReadBelowTogether(joint, parents, found) : ReadBelow(joint, parents, found);
        if (!read) return false;
    }
    if (joints_.size() > 1) std::stable_sort(found.begin(), found.end(), IsPlacedBefore);
    groups.rows.reserve(found.size());
    for (const Placed& row : found) {
        groups.rows.push_back(row.second);
        groups.ends[row.first] = groups.rows.size();
    }
    for (std::size_t i = 1; i < parents.size(); ++i)
        groups.ends[i] = std::max(groups.ends[i], groups.ends[i - 1]);
    return true;
}

bool LinkReader::RelatedToAny(LinkEnd end, const Rows& others, Rows& rows) {
    Rows all;
    const std::size_t many = others.size() * farMore;
    if (IsOnServer()) {
        if (!LinkedTogether(end, others, false, all)) return false;
    } else if (others.size() <= manyRows || source_[LINK_PARENT]->HasMoreThan(many) ||
               source_[LINK_CHILD]->HasMoreThan(many)) {
        Rows some;
        for (const std::int64_t other : others) {
            if (!Related(end, other, some, false)) return false;
            all.insert(all.end(), some.begin(), some.end());
        }
    } else {
        RowSet wanted;
        wanted.Add(others);
        const bool read = ForEachPair([&](std::int64_t parent, std::int64_t child) {
            if (wanted.Has(end == LINK_CHILD ? parent : child)) {
                all.push_back(end == LINK_CHILD ? child : parent);
            }
        });
        if (!read) return false;
    }
    RowSet found;
    found.Add(std::move(all));
    rows = found.ToVector();
    return true;
}

std::string LinkReader::TopCondition(const RowPart& part, std::vector<Value>& values) const {
    std::string condition;
    for (const LinkJoint& joint : joints_) {
        const RowPart& parent = joint.part[LINK_PARENT];
        if (joint.part[LINK_CHILD].slot != part.slot) continue;
        if (!condition.empty()) condition += joint.childHolds ? " AND " : " OR ";
        condition += IsAtTop(joint, IsOnServer());
        values.insert(values.end(), parent.values.begin(), parent.values.end());
    }
    if (!condition.empty()) return "(" + condition + ")";
    const bool parentHolds = reference_->IsThere() && part.table->name == reference_->Key().table &&
                             part.table->name != reference_->HoldingTable();
    return parentHolds ? "FALSE" : "";
}

} // namespace znhost
