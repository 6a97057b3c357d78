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
    /// Stands for a row that has not been read, or could not be.
    static constexpr std::int64_t nowhere = std::numeric_limits<std::int64_t>::min();

    struct Page {
        std::size_t first = 0; ///< the place of its first row
        std::size_t count = 0;
        std::size_t size = 0;               ///< of the whole list
        std::optional<std::int64_t> before; ///< the row that stands before it, when that is known
        std::optional<std::int64_t> behind; ///< the one behind it
    };
    /// Rows that stand one behind the other.
    struct Run {
        std::size_t first = 0; ///< the place of its first row
        Rows rows;
    };

    virtual ~RowPages() = default;
    /// The rows of that page, in order. Fewer, or none, when they cannot be read any more; that is noted.
    virtual Rows Read(const Page& page) = 0;
    /// All rows.
    virtual Rows ReadAll() = 0;
    /// Where the rows of these runs of another list, in the order of the rows, stand in this one: from the
    /// first row of each to its last, without those that are not there, and with what stands between.
    virtual std::vector<Run> Find(const std::vector<Run>& runs) = 0;
    /// Those of the rows that are in the list, in its order.
    virtual Rows InOrder(const Rows& rows) = 0;
    /// Whether a page can be asked for along with what its rows show.
    virtual bool CanExpect() const = 0;
    /// Asks for the page; `Read` gives it later. @return a number that stands, in what else is asked along,
    /// for `count` of its rows from the row `first` of the page on
    virtual std::int64_t Expect(const Page& page, std::size_t first, std::size_t count) = 0;
    /// Those were these rows.
    virtual void Came(std::int64_t number, const Rows& rows) = 0;
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
        if (!IsRead(place)) list_->ReadPage(place / pageSize);
        return list_->rows[place];
    }
    Rows::const_iterator begin() const { return Get().begin(); }
    Rows::const_iterator end() const { return Get().end(); }
    /// Whether both are the same, as far as the other one has been read, and this one followed it.
    bool Continues(const SharedRows& other) const;
    /// Whether the row at that place can be asked for along with what it shows: see `RowPages::Expect`.
    bool IsToCome(std::size_t place) const { return !IsRead(place) && list_->pages->CanExpect(); }
    std::int64_t Expect(std::size_t place, std::size_t count) const {
        const RowPages::Page page = list_->PageAt(place / pageSize);
        return list_->pages->Expect(page, place - page.first, count);
    }
    void Came(std::int64_t number, const Rows& rows) const { list_->pages->Came(number, rows); }
    /// Reads the rows that were read of an earlier list, wherever they stand now.
    void Follow(const SharedRows& other) const;
    /// Reads these rows, as far as they are in the list: `Known` has them then, unless the list is another
    /// one by now.
    void Look(const Rows& rows) const;
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

        RowPages::Page PageAt(std::size_t page) const;
        void ReadPage(std::size_t page);
        void ReadAll();
        void Take(const std::vector<RowPages::Run>& runs);
    };

    bool IsRead(std::size_t place) const {
        return !list_->pages || list_->rows[place] != RowPages::nowhere || list_->isRead[place / pageSize];
    }

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
