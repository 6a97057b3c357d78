// A set of row numbers.
#ifndef ZN_HOST_ROW_SET_H
#define ZN_HOST_ROW_SET_H

#include <cstddef>
#include <cstdint>
#include <vector>

namespace znhost {

/// A set of row numbers, in ascending order, kept as bits: 64 neighbouring rows take 16 bytes, and no row an
/// allocation of its own. Changing many rows at once takes one pass over the set.
class RowSet {
public:
    using Row = std::int64_t;

    bool Has(Row row) const;
    std::size_t Size() const { return size_; }
    bool IsEmpty() const { return size_ == 0; }
    void Clear();

    // Each is true when the set changed. `rows` may be in any order and name a row twice.
    bool Add(Row row);
    bool Remove(Row row);
    bool Add(std::vector<Row> rows);
    bool Remove(const std::vector<Row>& rows);

    /// Calls `visit(row)` for each row, from the lowest to the highest.
    template <class Visit>
    void ForEach(Visit&& visit) const {
        for (const Word& word : words_) {
            for (std::uint64_t bits = word.bits; bits != 0; bits &= bits - 1) {
                visit(word.number * rowsPerWord + __builtin_ctzll(bits));
            }
        }
    }

private:
    static constexpr Row rowsPerWord = 64;

    /// The rows from `number` * 64 on. Never without a bit, but while a change runs.
    struct Word {
        Row number;
        std::uint64_t bits;
    };

    static Row NumberOf(Row row) { return row >> 6; }
    static std::uint64_t BitOf(Row row) { return std::uint64_t{1} << (row & (rowsPerWord - 1)); }
    std::vector<Word>::iterator Place(Row number);

    std::vector<Word> words_;
    std::size_t size_ = 0;
};

} // namespace znhost

#endif
