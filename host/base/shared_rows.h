// Long lists of row numbers that several windows show.
#ifndef ZN_HOST_SHARED_ROWS_H
#define ZN_HOST_SHARED_ROWS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace znhost {

/// A list of row numbers, of which copies cost nothing until one is changed.
class SharedRows {
public:
    using Rows = std::vector<std::int64_t>;

    SharedRows() = default;
    SharedRows(Rows rows) : rows_(std::make_shared<Rows>(std::move(rows))) {}

    operator const Rows&() const { return Get(); }
    const Rows& Get() const {
        static const Rows none;
        return rows_ ? *rows_ : none;
    }
    std::size_t size() const { return Get().size(); }
    bool empty() const { return Get().empty(); }
    std::int64_t operator[](std::size_t place) const { return (*rows_)[place]; }
    Rows::const_iterator begin() const { return Get().begin(); }
    Rows::const_iterator end() const { return Get().end(); }
    /// The list, to be changed: no other has it.
    Rows& Own() {
        if (!rows_ || rows_.use_count() > 1) rows_ = std::make_shared<Rows>(Get());
        return *rows_;
    }

private:
    friend class RowLists;

    std::shared_ptr<Rows> rows_; ///< null: none
};

/// The long lists that the windows of a view show: those that are equal are one.
class RowLists {
public:
    SharedRows Share(SharedRows::Rows&& rows) {
        SharedRows shared(std::move(rows));
        if (shared.size() < longEnough) return shared;
        lists_.erase(
            std::remove_if(lists_.begin(), lists_.end(), [](const auto& list) { return list.expired(); }),
            lists_.end());
        for (const std::weak_ptr<SharedRows::Rows>& list : lists_) {
            const std::shared_ptr<SharedRows::Rows> known = list.lock();
            if (*known != *shared.rows_) continue;
            shared.rows_ = known;
            return shared;
        }
        shared.rows_->shrink_to_fit();
        lists_.push_back(shared.rows_);
        return shared;
    }

private:
    static constexpr std::size_t longEnough = 1000;

    std::vector<std::weak_ptr<SharedRows::Rows>> lists_;
};

} // namespace znhost

#endif
