// The rows that a query asks for.
#ifndef ZN_HOST_ROW_LISTER_H
#define ZN_HOST_ROW_LISTER_H

#include "model/row_source.h"
#include "store/row_part.h"
#include "store/sort_keys.h"
#include "store/wanted_values.h"

#include <optional>

namespace znhost {

class DataProperty;
class SimpleSource;

/// Lists the rows of one query. Conditions and order by columns are read together with the rows; values that
/// have to be computed are asked for afterwards, when no statement is open any more: computing may change
/// the model.
class RowLister {
public:
    RowLister(SimpleSource& source, const RowQuery& query);

    /// @return false, with the reason noted in the source, when the database failed
    bool Run(std::vector<std::int64_t>& rows);
    /// The same for the query's link, without conditions, below each of `parents`.
    bool RunBelow(const std::vector<std::int64_t>& parents, RowGroups& groups);
    /// Puts rows into the query's order, by stored values.
    bool SortRows(std::vector<std::int64_t>& rows);

private:
    /// A value that the query needs of each row.
    struct Field {
        explicit Field(znIBrowserDataProperty* wanted);
        void Hold();

        znIBrowserDataProperty* property; ///< null: the item's text
        DataProperty* column = nullptr;   ///< the property, when it is one that columns hold
        bool computed = false;
        bool number = false;
        std::vector<std::shared_ptr<const void>> holds; ///< what scripts may delete while they compute
        /// The column of that table; none: it has no values.
        std::optional<std::size_t> ColumnIn(const Table& table) const;
    };
    /// A value as it is compared: a number, a text, or nothing.
    using Cell = Value;
    /// Columns of a statement that list a field of each of them.
    static constexpr int noPlace = -1;

    /// How the rows of one part are read.
    struct PartReading {
        std::string columns;     ///< those of the fields, each with a comma before it
        std::vector<int> places; ///< by field: which column of the statement holds it
        std::string condition;   ///< beside that of the part; "" for none
        std::vector<Value> values;
    };

    PartReading ReadingOf(const RowPart& part) const;
    static std::string ServerCondition(const RowCondition& condition, const Field& field,
                                       const TableColumn& column, std::vector<Value>& values);
    void LetServerChoose(const RowPart& part, PartReading& reading) const;
    bool IsSortedByServer(const RowPart& part) const;
    std::string SortedBy(const RowPart& part) const;
    bool ReadsByNumber(const std::vector<RowPart>& parts) const;
    bool ReadPart(const RowPart& part, std::vector<std::int64_t>& rows);
    bool ReadAmongTogether(const RowPart& part, const PartReading& reading, std::vector<std::int64_t>& rows);
    bool ReadAmong(const RowPart& part, const PartReading& reading, std::vector<std::int64_t>& rows);
    void Take(const RowPart& part, const Statement& statement, const PartReading& reading,
              std::vector<std::int64_t>& rows);
    bool IsAmong(std::int64_t row) const { return !query_.among || query_.among->Has(row); }
    bool LookUp(const RowPart& part, const PartReading& reading, std::vector<std::int64_t>& rows);
    bool Find(const RowPart& part, const PartReading& reading, const WantedValues::Lookup& lookup,
              std::vector<std::int64_t>& found) const;
    bool ReadChildren(std::vector<std::int64_t>& rows);
    bool TakesRow(const Statement& statement, const std::vector<int>& places) const;
    void Compute(std::vector<std::int64_t>& rows);
    void Sort(std::vector<std::int64_t>& rows, std::size_t begin, std::size_t end) const;
    bool ReadKeys(const std::vector<std::int64_t>& rows);
    bool ReadKeysOf(const RowPart& part, const std::vector<std::int64_t>& rows,
                    std::vector<Value>& values) const;
    bool ReadKeysTogether(const RowPart& part, const std::vector<std::int64_t>& rows,
                          std::vector<Value>& values) const;
    void AddKey(const Field& field, const Statement& statement, int place);
    bool IsWhole(const RowPart& part) const;
    bool CountUp(const RowPart& part, std::vector<std::int64_t>& rows);
    std::string OrderFor(const RowPart& part, const PartReading& reading) const;
    Cell CellOf(const Field& field, const Statement& statement, int place) const;
    Cell ComputedCell(const Field& field, std::int64_t row) const;
    static Cell CellOfText(const Field& field, std::string_view text);
    static bool Fulfils(const RowCondition& condition, const Field& field, const Cell& cell);
    bool IsSorted() const { return query_.order.sorted && !byKey_; }
    bool IsSortedByKey(const std::vector<RowPart>& parts) const;

    SimpleSource& source_;
    const RowQuery& query_;
    std::vector<Field> fields_; // of the conditions, then of the order
    SortKeys keys_;             // of the rows, as long as they are read together with them
    bool byRow_ = false;        // all fields are still to be read, row by row
    bool sorted_ = false;       // the rows come in the order wanted
    bool byKey_ = false;        // the order is that of the row numbers
    bool byNumber_ = true;      // the order of the source itself is that of the row numbers
};

} // namespace znhost

#endif
