// Long lists of row numbers that several windows show.
#ifndef ZN_HOST_SHARED_ROWS_H
#define ZN_HOST_SHARED_ROWS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

namespace znhost {

/// Where a long list is read from, a page at a time, as its rows are looked at.
class RowPages {
public:
    using Rows = std::vector<std::int64_t>;
    /// Stands for a row that could not be read.
    static constexpr std::int64_t nowhere = std::numeric_limits<std::int64_t>::min();

    struct Page {
        std::size_t first = 0; ///< the place of its first row
        std::size_t count = 0;
        std::size_t size = 0;               ///< of the whole list
        std::optional<std::int64_t> before; ///< the row that stands before it, when that is known
        std::optional<std::int64_t> behind; ///< the one behind it
    };

    virtual ~RowPages() = default;
    /// The rows of that page, in order. Fewer, or none, when they cannot be read any more; that is noted.
    virtual Rows Read(const Page& page) = 0;
    /// All rows.
    virtual Rows ReadAll() = 0;
};

/// A list of row numbers, of which copies cost nothing until one is changed. It may be long and not read yet:
/// looking at one row reads its page, looking at the list reads it whole.
class SharedRows {
public:
    using Rows = RowPages::Rows;
    static constexpr std::size_t pageSize = 1000;

    SharedRows() = default;
    SharedRows(Rows rows) : list_(std::make_shared<List>()) { list_->rows = std::move(rows); }
    /// @param first  the rows of the first page
    SharedRows(std::unique_ptr<RowPages> pages, std::size_t size, Rows first);

    operator const Rows&() const { return Get(); }
    const Rows& Get() const {
        if (list_ && list_->pages) list_->ReadAll();
        return Known();
    }
    /// The list as far as it has been read: `RowPages::nowhere` stands for other rows.
    const Rows& Known() const {
        static const Rows none;
        return list_ ? list_->rows : none;
    }
    /// Whether some rows may not have been read.
    bool IsPaged() const { return list_ && list_->pages; }
    std::size_t size() const { return Known().size(); }
    bool empty() const { return Known().empty(); }
    std::int64_t operator[](std::size_t place) const {
        if (list_->pages && !list_->isRead[place / pageSize]) list_->ReadPage(place / pageSize);
        return list_->rows[place];
    }
    Rows::const_iterator begin() const { return Get().begin(); }
    Rows::const_iterator end() const { return Get().end(); }
    /// Whether both are the same, as far as the other one has been read.
    bool Continues(const SharedRows& other) const;
    /// The list, to be changed: no other has it.
    Rows& Own() {
        if (!list_ || list_.use_count() > 1) *this = SharedRows(Get());
        Get();
        return list_->rows;
    }

private:
    friend class RowLists;

    struct List {
        Rows rows;
        std::unique_ptr<RowPages> pages; ///< null: all have been read
        std::vector<bool> isRead;        ///< by page

        void ReadPage(std::size_t page);
        void ReadAll();
    };

    std::shared_ptr<List> list_; ///< null: none
};

/// The long lists that the windows of a view show: those that are equal are one.
class RowLists {
public:
    SharedRows Share(SharedRows shared) {
        if (shared.size() < longEnough || shared.IsPaged()) return shared;
        lists_.erase(
            std::remove_if(lists_.begin(), lists_.end(), [](const auto& list) { return list.expired(); }),
            lists_.end());
        for (const std::weak_ptr<SharedRows::List>& list : lists_) {
            const std::shared_ptr<SharedRows::List> known = list.lock();
            if (known->rows != shared.Get()) continue;
            shared.list_ = known;
            return shared;
        }
        shared.list_->rows.shrink_to_fit();
        lists_.push_back(shared.list_);
        return shared;
    }

private:
    static constexpr std::size_t longEnough = 1000;

    std::vector<std::weak_ptr<SharedRows::List>> lists_;
};

} // namespace znhost

#endif
