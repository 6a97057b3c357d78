// Numbers for rows that are known by something else.
#ifndef ZN_HOST_ROW_KEYS_H
#define ZN_HOST_ROW_KEYS_H

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace znhost {

/// Rows are numbered from 1 in the order in which their keys are seen, and keep their numbers.
class RowKeys {
public:
    /// @param byPlace  in a list of rows, the last part of a key is enough
    explicit RowKeys(bool byPlace = false) : byPlace_(byPlace) {}

    bool IsByPlace() const { return byPlace_; }
    std::int64_t NumberOf(std::string_view key) {
        const auto found = numbers_.find(key);
        if (found != numbers_.end()) return found->second;
        keys_.emplace_back(key); // where it stays
        return numbers_.emplace(keys_.back(), Greatest()).first->second;
    }
    /// "" when there is no such number.
    const std::string& KeyOf(std::int64_t number) const {
        return number >= 1 && number <= Greatest() ? keys_[static_cast<std::size_t>(number - 1)] : none_;
    }
    /// 0: there are no numbers yet.
    std::int64_t Greatest() const { return static_cast<std::int64_t>(keys_.size()); }

private:
    const bool byPlace_;
    std::deque<std::string> keys_;
    std::unordered_map<std::string_view, std::int64_t> numbers_;
    const std::string none_;
};

} // namespace znhost

#endif
