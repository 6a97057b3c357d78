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
    bool Add(const RowSet& rows) {
        return Combine(rows, [](auto own, auto other) { return own | other; });
    }
    bool Remove(const RowSet& rows) {
        return Combine(rows, [](auto own, auto other) { return own & ~other; });
    }
    /// Keeps only the rows that are in the other set too.
    bool Narrow(const RowSet& rows) {
        return Combine(rows, [](auto own, auto other) { return own & other; });
    }
    /// Adds those of the rows that are not in the set, and removes the others. Doing it twice changes
    /// nothing.
    bool Toggle(const RowSet& rows) {
        return Combine(rows, [](auto own, auto other) { return own ^ other; });
    }

    /// All rows in ascending order.
    std::vector<Row> ToVector() const;

    friend bool operator==(const RowSet& a, const RowSet& b) { return a.words_ == b.words_; }

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

        friend bool operator==(const Word&, const Word&) = default;
    };

    static Row NumberOf(Row row) { return row >> 6; }
    static std::uint64_t BitOf(Row row) { return std::uint64_t{1} << (row & (rowsPerWord - 1)); }
    std::vector<Word>::iterator Place(Row number);
    bool AddDense(const std::vector<Row>& rows);
    template <class Operation>
    bool Combine(const RowSet& other, Operation&& combine);

    std::vector<Word> words_;
    std::size_t size_ = 0;
};

/// One pass over both sets. Nothing has changed when memory runs out.
template <class Operation>
bool RowSet::Combine(const RowSet& other, Operation&& combine) {
    std::vector<Word> combined;
    combined.reserve(words_.size() + other.words_.size());
    std::size_t size = 0;
    auto own = words_.cbegin();
    auto others = other.words_.cbegin();
    while (own != words_.cend() || others != other.words_.cend()) {
        const bool ownFirst =
            others == other.words_.cend() || (own != words_.cend() && own->number <= others->number);
        const Row number = ownFirst ? own->number : others->number;
        const std::uint64_t mine = ownFirst ? (own++)->bits : 0;
        const bool both = others != other.words_.cend() && others->number == number;
        const std::uint64_t bits = combine(mine, both ? (others++)->bits : 0);
        if (bits == 0) continue;
        combined.push_back({number, bits});
        size += static_cast<std::size_t>(__builtin_popcountll(bits));
    }
    if (combined == words_) return false;
    words_ = std::move(combined);
    size_ = size;
    return true;
}

} // namespace znhost

#endif
