// What a window changes in the rows of a data source. Each change is one transaction.
#include "base/row_set.h"
#include "store/data_ctrl.h"
#include "store/link_reader.h"
#include "store/simple_source.h"
#include "store/transaction.h"

#include <algorithm>

namespace znhost {

namespace {

constexpr const char* gone = "the item does not exist any more";

std::string UpdateOf(const Table& table, const std::string& assignment) {
    return "UPDATE " + table.original + " SET " + assignment + " WHERE " + table.inTable;
}

const RowPart* PartAt(const std::vector<RowPart>& parts, std::size_t slot) {
    const auto part =
        std::find_if(parts.begin(), parts.end(), [slot](const RowPart& one) { return one.slot == slot; });
    return part == parts.end() ? nullptr : &*part;
}

/// The values of the columns in the table's own row. @return false, with the reason, when they cannot be read
bool ReadOwnRow(Database& database, const Table& table, const std::string& columns, std::int64_t row,
                std::vector<Value>& values, std::string& error) {
    Statement statement =
        database.Prepare("SELECT " + columns + " FROM " + table.original + " WHERE " + table.inTable);
    table.BindRow(statement, 1, row);
    const bool found = statement.Next();
    for (int i = 0; found && i < statement.ColumnCount(); ++i) values.push_back(statement.Get(i));
    if (!statement.Finish(error)) return false;
    if (!found) error = gone;
    return found;
}

std::string OnlyRead(const DataCtrl& control) {
    return "\"" + control.Name() + "\" is only read: changes must be allowed first";
}

/// Runs a statement that changes one row. @return false with the reason when it did not
bool ChangeRow(Database& database, Statement& statement, std::string& error) {
    const std::int64_t before = database.RowsChanged();
    while (statement.Next()) {
    }
    if (!statement.Finish(error)) return false;
    if (database.RowsChanged() == before) error = gone;
    return database.RowsChanged() != before;
}

} // namespace

bool SimpleSource::WriteBoolean(znIBrowserDataProperty& property, std::int64_t row, bool value,
                                std::string& error) {
    const RowPlace place = PlaceOf(row);
    const std::vector<RowPart> parts = Parts();
    if (parts.empty()) { // and why stands in the source's error text
        error = error_;
        return false;
    }
    const RowPart* const part = PartAt(parts, place.slot);
    const DataProperty* const own = dynamic_cast<const DataProperty*>(&property);
    const auto column = part && own ? own->ColumnIn(*part->table) : std::nullopt;
    if (!column || part->table->inTable.empty()) {
        error = "only a column of a table can be changed";
        return FailWith(error);
    }
    if (!control_.MayChange()) return FailWith(error = OnlyRead(control_));
    const std::string name = Database::Quoted(part->table->columns[*column].name);
    const std::string update = UpdateOf(*part->table, name + " = ?");
    std::vector<Value> undo;
    Transaction transaction(control_.Db());
    if (!transaction.Begin(error) || !ReadOwnRow(control_.Db(), *part->table, name, place.row, undo, error)) {
        return FailWith(error);
    }
    {
        Statement statement = control_.Db().Prepare(update);
        statement.Bind(1, value ? 1 : 0);
        part->table->BindRow(statement, 2, place.row);
        if (!ChangeRow(control_.Db(), statement, error)) return FailWith(error);
    }
    if (!transaction.Commit(error)) return FailWith(error);
    undo.insert(undo.end(), {part->table->ValueOf(place.row), std::int64_t{value}});
    control_.Changes().Add(
        {part->table->name + ": " + part->table->columns[*column].name + " = " + (value ? "1" : "0"),
         {{update + " AND " + name + " IS NOT DISTINCT FROM ?", std::move(undo)}}});
    control_.RowsChanged();
    return true;
}

namespace {

std::string Repeated(std::string_view text, std::size_t times) {
    std::string all;
    while (times--) all += text;
    return all;
}

/// Puts rows below another by their foreign keys.
class Mover {
public:
    Mover(const RowLink& link, std::int64_t parent)
        : reader_(link), parentSource_(SourceOf(*link.parent)), childSource_(SourceOf(*link.child)),
          isSelf_(link.parent == link.child), parent_(parent), parentPlace_(parentSource_.PlaceOf(parent)) {}

    bool CheckAll(const std::vector<std::int64_t>& rows, std::string& error) {
        if (!parentSource_.HasRow(parent_)) {
            error = "the item to move below does not exist any more";
        } else if (isSelf_ && IsBelow(rows)) {
            error = "an item cannot be moved below itself";
        } else {
            return true;
        }
        return false;
    }

    bool Move(std::int64_t row, std::string& error) {
        const RowPlace place = childSource_.PlaceOf(row);
        const LinkJoint* const joint = JointOf(place.slot);
        if (!joint) {
            error = "the items do not refer to those that they are moved below";
            return false;
        }
        const RowPart& parent = joint->part[LINK_PARENT];
        const Table& child = *joint->part[LINK_CHILD].table;
        std::string from;
        std::string to;
        for (std::size_t i = 0; i < joint->columns[LINK_CHILD].size(); ++i) {
            from += (i == 0 ? "" : ", ") + Database::Quoted(joint->columns[LINK_PARENT][i]);
            to += (i == 0 ? "" : ", ") + Database::Quoted(joint->columns[LINK_CHILD][i]);
        }
        const bool single = joint->columns[LINK_CHILD].size() == 1;
        Database& database = childSource_.Control().Db();
        std::vector<Value> undo;
        if (!ReadOwnRow(database, child, to, place.row, undo, error)) return false;
        const std::string values = single ? "?" : "(?" + Repeated(", ?", undo.size() - 1) + ")";
        undo.push_back(child.ValueOf(place.row));
        undo_.push_back({UpdateOf(child, (single ? to : "(" + to + ")") + " = " + values), std::move(undo)});
        Statement statement = database.Prepare(
            UpdateOf(child, (single ? to : "(" + to + ")") + " = (SELECT " + from + " FROM " + parent.From() +
                                " WHERE " + parent.table->is + ")"));
        parent.table->BindRow(statement, 1, parentPlace_.row);
        child.BindRow(statement, 2, place.row);
        return ChangeRow(database, statement, error);
    }

    std::vector<ChangeLog::Step>& Undo() { return undo_; }

private:
    const LinkJoint* JointOf(std::size_t childSlot) const {
        for (const LinkJoint& joint : reader_.Joints()) {
            if (joint.childHolds && joint.part[LINK_CHILD].slot == childSlot &&
                joint.part[LINK_PARENT].slot == parentPlace_.slot &&
                !joint.part[LINK_CHILD].table->inTable.empty()) {
                return &joint;
            }
        }
        return nullptr;
    }

    /// Whether the new parent is one of the rows or lies below one.
    bool IsBelow(const std::vector<std::int64_t>& rows) {
        RowSet moved;
        moved.Add(rows);
        RowSet seen; // the items above may go round in a circle
        std::vector<std::int64_t> above{parent_};
        while (!above.empty() && seen.Add(above.front())) {
            if (moved.Has(above.front())) return true;
            reader_.RelatedToAny(LINK_PARENT, {above.front()}, above);
        }
        return false;
    }

    LinkReader reader_;
    SimpleSource& parentSource_;
    SimpleSource& childSource_;
    const bool isSelf_;
    const std::int64_t parent_;
    const RowPlace parentPlace_;
    std::vector<ChangeLog::Step> undo_;
};

} // namespace

bool SimpleSource::MoveBelow(const RowLink& link, const std::vector<std::int64_t>& rows, std::int64_t parent,
                             std::string& error) {
    if (link.child != static_cast<RowSource*>(this)) {
        error = "the items belong to another data source";
        return FailWith(error);
    }
    if (!control_.MayChange()) return FailWith(error = OnlyRead(control_));
    Transaction transaction(control_.Db());
    if (!transaction.Begin(error)) return FailWith(error);
    Mover mover(link, parent);
    if (!mover.CheckAll(rows, error)) return FailWith(error);
    for (const std::int64_t row : rows) {
        if (!mover.Move(row, error)) return FailWith(error);
    }
    if (!transaction.Commit(error)) return FailWith(error);
    control_.Changes().Add({name_ + ": " + std::to_string(rows.size()) + " moved", std::move(mover.Undo())});
    control_.RowsChanged();
    return true;
}

} // namespace znhost
