// Numbers for rows of windows, so that a set of them is a set of bits.
#ifndef ZN_HOST_ROW_NAMES_H
#define ZN_HOST_ROW_NAMES_H

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace znhost {

/// Rows by what they are and in which row they lie, each with a number of its own, counted from 1. The row
/// above has the lower number.
class RowNames {
public:
    struct Name {
        std::uint32_t above = 0; ///< 0: the top
        int kind = 0;            ///< a `RowKind`
        std::string name;        ///< of the folder, or of the data source
        std::int64_t row = 0;    ///< an item's number

        friend bool operator==(const Name&, const Name&) = default;
    };

    /// The number of that row, which may be new.
    std::uint32_t NumberOf(const Name& name) {
        const auto word = words_.try_emplace(name.name, static_cast<std::uint32_t>(texts_.size())).first;
        if (word->second == texts_.size()) texts_.push_back(&word->first);
        const auto [entry, isNew] = numbers_.try_emplace(Key(name.above, name.kind, word->second, name.row),
                                                         static_cast<std::uint32_t>(keys_.size() + 1));
        if (isNew) keys_.push_back(&entry->first);
        return entry->second;
    }
    Name NameOf(std::uint32_t number) const {
        const auto& [above, kind, word, row] = *keys_[number - 1];
        return {above, kind, *texts_[word], row};
    }
    void Clear() noexcept {
        keys_.clear();
        numbers_.clear();
        texts_.clear();
        words_.clear();
    }

private:
    using Key = std::tuple<std::uint32_t, int, std::uint32_t, std::int64_t>;

    std::map<std::string, std::uint32_t> words_;
    std::vector<const std::string*> texts_;
    std::map<Key, std::uint32_t> numbers_;
    std::vector<const Key*> keys_;
};

} // namespace znhost

#endif
