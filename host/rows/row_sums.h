// Sums over a row of sizes: where a visible row lies, in logarithmic time.
#ifndef ZN_HOST_ROW_SUMS_H
#define ZN_HOST_ROW_SUMS_H

#include <cstddef>
#include <cstdint>
#include <vector>

namespace znhost {

/// The sizes of a list of things, one after the other, as a binary indexed tree: a size is changed, a sum
/// taken and the thing at a distance found in logarithmic time, in eight bytes a thing.
class RowSums {
public:
    /// Replaces the list by one of `sizes`.
    void Assign(std::vector<std::int64_t> sizes);
    /// Replaces the list by `count` things of size 1.
    void AssignOnes(std::size_t count);
    void Clear();
    bool Empty() const { return tree_.empty(); }

    /// One thing more, behind the others.
    void Append(std::int64_t size);
    void Add(std::size_t place, std::int64_t delta);
    /// The sum of all sizes before `place`.
    std::int64_t Before(std::size_t place) const;
    /// The place of the thing that covers the distance: `Before(place) <= distance < Before(place + 1)`.
    /// `distance` is at least 0 and less than the sum of all.
    std::size_t Find(std::int64_t distance) const;

private:
    std::vector<std::int64_t>
        tree_; ///< [i]: the sum of the sizes that end at i and are as many as i + 1's lowest bit
};

} // namespace znhost

#endif
