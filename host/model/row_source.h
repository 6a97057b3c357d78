// What the row model asks of the store: which rows, in which order, and the few changes that a tree makes.
#ifndef ZN_HOST_ROW_SOURCE_H
#define ZN_HOST_ROW_SOURCE_H

#include "base/row_set.h"
#include "base/shared_rows.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znutl/znString.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class znIBrowserDataProperty;
class znIBrowserDataReference;
class znIBrowserDataSourceHierarchical;

namespace znhost {

class RowSource;
class WantedValues;

/// The most bytes of a text in a cell; nobody looks at more of it, and Tcl cannot hold many that are larger.
/// The whole text is had with `GetValueString`.
constexpr std::size_t longestCell = 1 << 12;

/// How the items of one source hang below those of another: along a data reference. Either the child's table
/// holds the foreign key (an item has any number of children), or the parent's does (it has at most one
/// child: the item that it refers to). When both could be meant, the child's is. Parent and child are the
/// same source where a table refers to itself; the child's table holds the key then.
struct RowLink {
    RowSource* parent = nullptr;
    RowSource* child = nullptr;
    znIBrowserDataReference* reference = nullptr;

    friend bool operator==(const RowLink& a, const RowLink& b) {
        return a.parent == b.parent && a.child == b.child && a.reference == b.reference;
    }
};

/// One condition on the items.
struct RowCondition {
    enum class Compare {
        Accept,  ///< `accept` takes the value's text; an item without a value is not taken.
        Equal,   ///< The value equals `value`: as a number where the property is a number, else as a text,
                 ///< letter case aside.
        Less,    ///< The value is less than `value`, compared in the same way.
        More,    ///< The value is more than `value`.
        AtLeast, ///< The value is `value` or more.
        AtMost,  ///< The value is `value` or less.
        Null,    ///< There is no value.
    };

    /// The property whose value is tested; null: the item's text.
    znIBrowserDataProperty* property = nullptr;
    Compare compare = Compare::Accept;
    std::string value;
    /// Never changes the model, may be slow, does not throw. NUL may occur inside the text.
    std::function<bool(std::string_view text)> accept;
    /// What each text that `accept` takes holds, letter case aside; "" for nothing known.
    std::string holds;
    /// May be given beside `accept`: all that it takes, for an index to find.
    std::shared_ptr<const WantedValues> wanted;
};

/// The order of the rows: the source's own (by row number), or by the value of a property.
struct RowOrder {
    bool sorted = false;
    /// Null: by the item's text. Numbers are ordered as numbers, texts without regard to (ASCII) case; items
    /// without a value come first; items of equal value keep the source's own order in either direction.
    znIBrowserDataProperty* property = nullptr;
    bool descending = false;
    bool natural = false; ///< The numbers in texts are compared as numbers.
};

/// Which rows of a source are meant: all, or
struct RowQuery {
    /// - those along this link, whose child is the source asked (else nothing is found):
    const RowLink* link = nullptr;
    /// the children of the item `parent`, or with `top` the items that have no parent: their key is null or
    /// leads nowhere. `top` of a link whose parent's table holds the key: the items that some parent refers
    /// to.
    std::int64_t parent = 0;
    bool top = false;
    /// - of these, the ones that fulfil every condition,
    std::vector<RowCondition> conditions;
    /// - and are in this set; null: whatever they are.
    const RowSet* among = nullptr;
    RowOrder order;
};

/// A search through all rows of a source, a slice at a time: what is looked for, and how far it has come.
struct RowScan {
    /// Whose values are looked at, all of them stored; null: the item's text.
    std::vector<znIBrowserDataProperty*> properties;
    /// Takes the text of a value of `properties[place]`; an item without a value there is not asked about.
    std::function<bool(std::size_t place, std::string_view text)> accept;
    /// What each text that is taken holds, letter case aside; "" for nothing known.
    std::string holds;
    /// Only these rows are looked at; null: all.
    const RowSet* among = nullptr;

    std::size_t part = 0; ///< of the source's tables the one to go on with,
    std::int64_t row = 0; ///< behind that row of it,
    bool inPart = false;  ///< unless it is still to be begun
    bool done = false;
    bool failed = false;     ///< not all could be read; the reason is noted
    std::int64_t looked = 0; ///< how many rows have been looked at
};

/// Rows in groups: those of the first group, those of the second, and so on.
struct RowGroups {
    std::vector<std::int64_t> rows;
    std::vector<std::size_t> ends; ///< by group: the place behind its last row
};

/// How far the rows of a source are numbered at some moment: rows that come later are known by it.
struct RowMark {
    std::vector<std::int64_t> greatest; ///< by table; the lowest number of all for a table without rows
};

/// The rows of one simple data source, as the row model needs them. Every call reads what the database holds
/// at that moment. None throws; a database error reads as "no rows" and is noted among the application's
/// `ReadTrouble`, and is a refusal with its text from the two operations that write. Row numbers are those of
/// `znBrowserDataItem`: opaque here, stable while the item exists.
class RowSource {
public:
    virtual znIBrowserDataSourceSimple* GetSource() = 0;
    /// Whether the rows are those that a view of the database computes.
    virtual bool IsOfView() { return false; }

    /// Replaces what `rows` holds by the rows of `query`, in order: one pass, nothing else is kept.
    virtual void List(const RowQuery& query, std::vector<std::int64_t>& rows) = 0;
    /// All rows in the source's own order. A source whose rows are far away may read them as they are looked
    /// at.
    virtual SharedRows ListAll() = 0;
    /// Goes on with a search until that time, or to its end. Appends the rows with a value that is taken, in
    /// ascending order of each table, to `found`, and the others to `others`, unless that is null.
    virtual void Scan(RowScan& scan, std::chrono::steady_clock::time_point until,
                      std::vector<std::int64_t>& found, std::vector<std::int64_t>* others) = 0;
    /// Another number as soon as rows of the database may be others than before.
    virtual std::uint64_t Version() = 0;
    /// The same for many items at once: replaces what `groups` holds by the children of each of `parents`
    /// along the link, in that order, by a statement for thousands of them. The order's property is a stored
    /// one. False when the database failed.
    virtual bool ListBelow(const RowLink& link, const std::vector<std::int64_t>& parents,
                           const RowOrder& order, RowGroups& groups) = 0;
    /// How many rows `List` would give.
    virtual std::int64_t Count(const RowQuery& query) = 0;
    /// What `ask` asks of sources is about to be asked: see `Database::AskAlong`.
    virtual void AskAlong(const std::function<void()>& ask) = 0;
    /// Whether the item `parent` of the link's parent source has a child along `link`. Answered from an
    /// index, or from a structure of the store's own where the table has none; the user's database is never
    /// changed.
    virtual bool HasChildren(const RowLink& link, std::int64_t parent) = 0;
    /// `HasChildren` for many items at once: replaces what `have` holds by an answer for each.
    virtual void HaveChildren(const RowLink& link, const std::vector<std::int64_t>& parents,
                              std::vector<bool>& have) = 0;
    /// Replaces what `parents` holds by the rows of the link's parent source that have one of `children`
    /// (rows of this source) below them; in any order, each once.
    virtual void Parents(const RowLink& link, const std::vector<std::int64_t>& children,
                         std::vector<std::int64_t>& parents) = 0;
    /// The same downwards: the rows of this source, the link's child, that lie below one of `parents`.
    virtual void Children(const RowLink& link, const std::vector<std::int64_t>& parents,
                          std::vector<std::int64_t>& children) = 0;
    /// Whether the source has more rows than that; no more are looked at.
    virtual bool HasMoreThan(std::size_t count) = 0;

    /// Replaces what `rows` holds by the rows that came, went or changed since that moment of `ChangeCount`,
    /// a few of them. False when it is not known which those are.
    virtual bool ChangedRows(std::uint64_t since, std::vector<std::int64_t>& rows) = 0;
    /// Puts some rows of the source into that order, by stored values. False when the source's own order is
    /// not that of the row numbers, or the database failed.
    virtual bool SortRows(const RowOrder& order, std::vector<std::int64_t>& rows) = 0;
    /// How far the rows are numbered now.
    virtual RowMark Mark() = 0;
    /// Replaces what `rows` holds by the rows that have come since: those numbered beyond the mark.
    virtual void NewRows(const RowMark& since, std::vector<std::int64_t>& rows) = 0;
    /// The condition that the value of a property is one of these: as a number where the property is one, as
    /// a text else; an index is of use where there is one.
    virtual RowCondition OneOf(znIBrowserDataProperty& property, const std::vector<znString>& values) = 0;

    /// Whether the row still exists and belongs to the source.
    virtual bool HasRow(std::int64_t row) = 0;
    /// Those of `rows` that do not exist any more, or no longer belong to the source; none while the database
    /// cannot be read. One pass over `rows`, by the index of the table.
    virtual std::vector<std::int64_t> Missing(const std::vector<std::int64_t>& rows) = 0;
    /// The item's text: what the built-in column "Name" shows of it (the display column of the table: its
    /// "name" column, else its first text column; where that is empty, and else, its row number). False when
    /// there is no such row.
    virtual bool GetText(std::int64_t row, std::string& text) = 0;
    /// Whether the values of the property stand in the database; else something computes them, and may do
    /// anything meanwhile. The item's text (null) does.
    virtual bool IsStored(znIBrowserDataProperty* property) = 0;
    /// Replaces what `texts` holds by the values of stored properties, row by row, as `GetValueString` and
    /// `GetText` give them, and none where an item has no value: a page of a window, with one look at each
    /// row. A text of more than `longestCell` bytes is cut.
    virtual void ReadTexts(const std::vector<std::int64_t>& rows,
                           const std::vector<znIBrowserDataProperty*>& properties,
                           std::vector<std::optional<std::string>>& texts) = 0;

    /// Writes a boolean value, in a transaction. False with the reason in `error` when the property is not a
    /// column of a table (scripted, a column of a database view, ...) or the database refuses.
    virtual bool WriteBoolean(znIBrowserDataProperty& property, std::int64_t row, bool value,
                              std::string& error) = 0;
    /// Puts `rows` of this source, the link's child, below `parent` by writing their foreign keys: all in one
    /// transaction or none. Refused with the reason in `error` when the child's table does not hold the key,
    /// when the database refuses, or when an item would come to lie below itself.
    virtual bool MoveBelow(const RowLink& link, const std::vector<std::int64_t>& rows, std::int64_t parent,
                           std::string& error) = 0;

protected:
    ~RowSource() = default;
};

/// The rows of a simple data source of this host, each of which is a row source; null for null.
inline RowSource* GetRowSource(znIBrowserDataSourceSimple* source) {
    return dynamic_cast<RowSource*>(source);
}

/// How a hierarchical source hangs together: every link of it, those from a source to itself included, in the
/// order in which children are shown. The top items are those of its parent source: all of them or, where
/// that source is linked to itself, the `top` ones of that link.
std::vector<RowLink> GetRowLinks(znIBrowserDataSourceHierarchical& source);

} // namespace znhost

#endif
