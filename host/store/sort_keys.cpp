#include "store/sort_keys.h"

#include "base/text.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace znhost {

namespace {

template <class Number>
int CompareNumbers(Number a, Number b) {
    return a < b ? -1 : b < a ? 1 : 0;
}

/// Exactly: a large integer has no equal among the real numbers that can be told apart.
int CompareNumbers(std::int64_t integer, double real) {
    constexpr double beyond = 9223372036854775808.0; // 2 to the power of 63
    if (real >= beyond) return -1;
    if (real < -beyond) return 1;
    const double whole = std::floor(real);
    if (const int order = CompareNumbers(integer, static_cast<std::int64_t>(whole))) return order;
    return whole < real ? -1 : 0;
}

} // namespace

struct SortKeys::Entry {
    Key key;
    std::size_t place;
    std::int64_t row;
};

void SortKeys::Clear() {
    keys_.clear();
    texts_.clear();
}

void SortKeys::AddText(std::string_view text) {
    Fold(text, folded_);
    if (natural_) folded_ = NaturalKey(folded_);
    Key key;
    key.kind = Text;
    // No text holds a NUL, and in natural order no key begins another one: zeros may stand for what a short
    // one has not.
    char head[sizeof key.head] = {};
    const std::size_t length = std::min(folded_.size(), sizeof head);
    std::memcpy(head, folded_.data(), length);
    for (const char byte : head) key.head = key.head << 8 | static_cast<unsigned char>(byte);
    key.rest = texts_.size();
    key.length = static_cast<std::uint32_t>(folded_.size() - length);
    texts_.append(folded_, length);
    keys_.push_back(key);
}

void SortKeys::Add(const Value& value) {
    if (const std::string* const text = std::get_if<std::string>(&value)) return AddText(*text);
    Key key;
    if (const std::int64_t* const integer = std::get_if<std::int64_t>(&value)) {
        key.kind = Integer;
        key.head = std::bit_cast<std::uint64_t>(*integer);
    } else if (const double* const real = std::get_if<double>(&value)) {
        key.kind = Real;
        key.head = std::bit_cast<std::uint64_t>(*real);
    }
    keys_.push_back(key);
}

int SortKeys::CompareTexts(const Key& a, const Key& b) const {
    if (a.head != b.head) return a.head < b.head ? -1 : 1;
    const char* const texts = texts_.data();
    const int order = std::memcmp(texts + a.rest, texts + b.rest, std::min(a.length, b.length));
    return order != 0 ? order : CompareNumbers(a.length, b.length);
}

int SortKeys::Compare(const Key& a, const Key& b) const {
    if (a.kind == Text && b.kind == Text) return CompareTexts(a, b);
    const auto rank = [](const Key& key) { return key.kind == Real ? Integer : key.kind; };
    if (rank(a) != rank(b)) return rank(a) < rank(b) ? -1 : 1;
    if (a.kind == Nothing) return 0;
    const auto integer = [](const Key& key) { return std::bit_cast<std::int64_t>(key.head); };
    const auto real = [](const Key& key) { return std::bit_cast<double>(key.head); };
    if (a.kind == b.kind) {
        return a.kind == Real ? CompareNumbers(real(a), real(b)) : CompareNumbers(integer(a), integer(b));
    }
    return a.kind == Integer ? CompareNumbers(integer(a), real(b)) : -CompareNumbers(integer(b), real(a));
}

/// What an index gave is in order already: then it is in the opposite one now, rows of equal keys as they
/// were.
void SortKeys::Reverse(std::vector<Entry>& entries) const {
    if (Compare(entries.front().key, entries.back().key) >= 0) return;
    std::reverse(entries.begin(), entries.end());
    for (auto first = entries.begin(); first != entries.end();) {
        const auto last = std::find_if(
            first, entries.end(), [&](const Entry& entry) { return Compare(entry.key, first->key) != 0; });
        std::reverse(first, last);
        first = last;
    }
}

void SortKeys::Sort(std::vector<std::int64_t>& rows, std::size_t begin, std::size_t end, bool descending,
                    bool byNumber, const std::function<void()>& pause) const {
    constexpr std::size_t stepsBetweenPauses = 1U << 16;
    if (end - begin < 2) return;
    std::vector<Entry> entries;
    entries.reserve(end - begin);
    for (std::size_t place = begin; place < end; ++place)
        entries.push_back({keys_[place], place, rows[place]});
    std::size_t steps = 0;
    const auto comesBefore = [&](const Entry& a, const Entry& b) {
        if (++steps % stepsBetweenPauses == 0 && pause) pause();
        const int order = descending ? Compare(b.key, a.key) : Compare(a.key, b.key);
        if (order != 0) return order < 0;
        return byNumber ? a.row < b.row : a.place < b.place;
    };
    if (descending) Reverse(entries);
    if (!std::is_sorted(entries.begin(), entries.end(), comesBefore))
        std::sort(entries.begin(), entries.end(), comesBefore);
    for (std::size_t place = begin; place < end; ++place) rows[place] = entries[place - begin].row;
}

} // namespace znhost
