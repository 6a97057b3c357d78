// The values by which rows are sorted.
#ifndef ZN_HOST_SORT_KEYS_H
#define ZN_HOST_SORT_KEYS_H

#include "store/value.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace znhost {

/// A value for each of many rows, in 24 bytes and its text beside them. Nothing comes before numbers, numbers
/// before texts; numbers are ordered as numbers, texts without regard to letter case.
class SortKeys {
public:
    /// @param natural  the numbers in texts are compared as numbers
    explicit SortKeys(bool natural = false) : natural_(natural) {}

    std::size_t Size() const { return keys_.size(); }
    void Clear();

    void AddNothing() { keys_.push_back({}); }
    void AddText(std::string_view text);
    void Add(const Value& value);
    /// The key at `place` becomes the one at `kept`, which is not behind it.
    void Move(std::size_t place, std::size_t kept) { keys_[kept] = keys_[place]; }
    void Resize(std::size_t size) { keys_.resize(size); }

    /// Puts the rows between those places into the order of their keys. Rows of equal keys are ordered by
    /// their numbers, or stay as they are when that is not `byNumber`; also when the order descends.
    /// @param pause  called now and then, as many rows take long; may be empty
    void Sort(std::vector<std::int64_t>& rows, std::size_t begin, std::size_t end, bool descending,
              bool byNumber, const std::function<void()>& pause = {}) const;

private:
    enum Kind : std::uint32_t { Nothing, Integer, Real, Text };

    struct Key {
        std::uint64_t head = 0;   ///< a number; of a text the first eight bytes, the first one on top
        std::size_t rest = 0;     ///< where in `texts_` the rest of a text begins
        std::uint32_t length = 0; ///< of the rest
        Kind kind = Nothing;
    };
    struct Entry;

    int Compare(const Key& a, const Key& b) const;
    void Reverse(std::vector<Entry>& entries) const;
    int CompareTexts(const Key& a, const Key& b) const;

    bool natural_;
    std::vector<Key> keys_;
    std::string texts_;
    std::string folded_; ///< the last text, kept for its memory
};

} // namespace znhost

#endif
