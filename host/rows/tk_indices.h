// The numbers by which a Tk tree knows the rows.
#ifndef ZN_HOST_TK_INDICES_H
#define ZN_HOST_TK_INDICES_H

#include <cstdint>
#include <map>

namespace znhost {

struct RowBlock;
struct RowNode;

/// Hands out Tk indices and finds whose they are. A container takes one, a block of items a range: a million
/// items are one entry here. An index that was given back is not handed out again before all others had their
/// turn.
class TkIndices {
public:
    /// What an index belongs to: a container, or a slot of a block; or nothing.
    struct Owner {
        RowNode* node = nullptr;
        RowBlock* block = nullptr;
        std::uint32_t slot = 0;
    };

    /// Takes `count` indices in a row for `owner`, whose slots begin with `owner.slot`.
    /// @return the first one; 0, which is never an index, when so many are not free.
    std::uint32_t Take(std::uint32_t count, const Owner& owner);
    /// Gives back what `Take` returned; 0 is allowed.
    void Release(std::uint32_t first) { ranges_.erase(first); }
    /// Takes all back.
    void ReleaseAll() noexcept { ranges_.clear(); }
    Owner Find(std::uint32_t index) const;

private:
    struct Range {
        std::uint32_t count;
        Owner owner;
    };

    std::uint32_t FreeFrom(std::uint64_t start, std::uint32_t count) const;

    std::map<std::uint32_t, Range> ranges_; ///< by first index
    std::uint64_t next_ = 1;
};

} // namespace znhost

#endif
