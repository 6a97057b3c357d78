#include "base/row_set.h"

#include <algorithm>

namespace znhost {

std::vector<RowSet::Word>::iterator RowSet::Place(Row number) {
    if (words_.empty() || words_.back().number < number) return words_.end();
    return std::lower_bound(words_.begin(), words_.end(), number,
                            [](const Word& word, Row wanted) { return word.number < wanted; });
}

bool RowSet::Has(Row row) const {
    const auto word = const_cast<RowSet*>(this)->Place(NumberOf(row));
    return word != words_.end() && word->number == NumberOf(row) && (word->bits & BitOf(row)) != 0;
}

void RowSet::Clear() {
    words_.clear();
    words_.shrink_to_fit();
    size_ = 0;
}

bool RowSet::Add(Row row) {
    auto word = Place(NumberOf(row));
    if (word == words_.end() || word->number != NumberOf(row)) word = words_.insert(word, {NumberOf(row), 0});
    if (word->bits & BitOf(row)) return false;
    word->bits |= BitOf(row);
    ++size_;
    return true;
}

bool RowSet::Remove(Row row) {
    const auto word = Place(NumberOf(row));
    if (word == words_.end() || word->number != NumberOf(row) || !(word->bits & BitOf(row))) return false;
    word->bits &= ~BitOf(row);
    if (word->bits == 0) words_.erase(word);
    --size_;
    return true;
}

std::vector<RowSet::Row> RowSet::ToVector() const {
    std::vector<Row> rows;
    rows.reserve(size_);
    ForEach([&rows](Row row) { rows.push_back(row); });
    return rows;
}

/// Many rows that lie close together go into an empty set without being sorted.
bool RowSet::AddDense(const std::vector<Row>& rows) {
    constexpr std::size_t few = 1000;
    if (rows.size() < few) return false;
    const auto [least, most] = std::minmax_element(rows.begin(), rows.end());
    const Row first = NumberOf(*least);
    const auto span = static_cast<std::uint64_t>(NumberOf(*most)) - static_cast<std::uint64_t>(first);
    if (span >= rows.size() / 4) return false;
    words_.resize(span + 1);
    for (std::size_t i = 0; i <= span; ++i) words_[i] = {first + static_cast<Row>(i), 0};
    for (const Row row : rows) words_[static_cast<std::size_t>(NumberOf(row) - first)].bits |= BitOf(row);
    std::erase_if(words_, [](const Word& word) { return word.bits == 0; });
    for (const Word& word : words_) size_ += static_cast<std::size_t>(__builtin_popcountll(word.bits));
    return true;
}

bool RowSet::Add(std::vector<Row> rows) {
    if (words_.empty() && AddDense(rows)) return size_ != 0;
    std::sort(rows.begin(), rows.end());
    const std::size_t before = size_;
    std::vector<Word> merged;
    merged.reserve(words_.size() + rows.size() / 8);
    auto old = words_.cbegin();
    for (auto row = rows.cbegin(); row != rows.cend();) {
        const Row number = NumberOf(*row);
        while (old != words_.cend() && old->number < number) merged.push_back(*old++);
        Word word{number, old != words_.cend() && old->number == number ? (old++)->bits : 0};
        const int had = __builtin_popcountll(word.bits);
        for (; row != rows.cend() && NumberOf(*row) == number; ++row) word.bits |= BitOf(*row);
        size_ += static_cast<std::size_t>(__builtin_popcountll(word.bits) - had);
        merged.push_back(word);
    }
    merged.insert(merged.end(), old, words_.cend());
    words_ = std::move(merged);
    return size_ != before;
}

bool RowSet::Remove(const std::vector<Row>& rows) {
    const std::size_t before = size_;
    for (const Row row : rows) {
        const auto word = Place(NumberOf(row));
        if (word == words_.end() || word->number != NumberOf(row) || !(word->bits & BitOf(row))) continue;
        word->bits &= ~BitOf(row);
        --size_;
    }
    if (size_ == before) return false;
    words_.erase(
        std::remove_if(words_.begin(), words_.end(), [](const Word& word) { return word.bits == 0; }),
        words_.end());
    return true;
}

} // namespace znhost
