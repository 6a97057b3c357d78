// The rows of a table of a server, read a page at a time.
#ifndef ZN_HOST_SERVER_PAGES_H
#define ZN_HOST_SERVER_PAGES_H

#include "base/shared_rows.h"
#include "store/row_part.h"

namespace znhost {

class SimpleSource;

/// A page is read from the row before it or behind it on, by the table's key; one that lies elsewhere takes
/// the server a walk along the key's index, from the nearer end. Rows that are numbered without a gap need
/// not be read at all. Of a table without a key only so many blocks are looked at as should hold the page.
class ServerPages final : public RowPages {
public:
    /// All rows of the source. With one question: how many there are, and the first page. Nothing where they
    /// are not those of one table with a primary key on a server, or cannot be read.
    static std::optional<SharedRows> List(SimpleSource& source);

    /// @param firstNumber  the number of the first row in the table, when the others count on from there
    ServerPages(SimpleSource& source, RowPart part, std::size_t size,
                std::optional<std::int64_t> firstNumber);
    Rows Read(const Page& page) override;
    Rows ReadAll() override;
    std::vector<Run> Find(const std::vector<Run>& runs) override;
    Rows InOrder(const Rows& rows) override;
    bool CanExpect() const override;
    std::int64_t Expect(const Page& page, std::size_t first, std::size_t count) override;
    void Came(std::int64_t number, const Rows& rows) override;

private:
    /// Rows of a page that are asked about before it has been read.
    struct Expected {
        std::size_t page; ///< the place of its first row
        std::size_t first;
        std::size_t count;
        std::int64_t number;
    };

    struct Beginning;
    static constexpr std::int64_t fewBlocks = 32;

    static Beginning Begin(SimpleSource& source, const RowPart& part, bool isNear);
    Statement Ask(SimpleSource& source, const Page& page, bool isNear) const;
    std::string PlaceNear(SimpleSource& source, std::int64_t row, bool backwards) const;
    bool IsNear(const Page& page) const;
    void NoteBlocks(SimpleSource& source, const Rows& rows);
    static bool IsBackwards(const Page& page);
    Rows RowsOf(SimpleSource& source, Statement& statement) const;
    Rows CountUp(SimpleSource& source, std::size_t first, std::size_t count) const;
    Run FindNumbered(SimpleSource& source, const Run& run) const;
    std::vector<Run> FindEach(SimpleSource& source, const std::vector<Run>& runs) const;
    std::size_t CountBetween(SimpleSource& source, std::optional<std::int64_t> after,
                             std::int64_t before) const;
    Rows FromTo(SimpleSource& source, std::int64_t first, std::int64_t last) const;
    void Bind(SimpleSource& source, Statement& statement, int position, std::int64_t row) const;

    const std::weak_ptr<SimpleSource> source_; ///< it may be deleted while a window shows it
    const RowPart part_;
    const std::size_t size_;
    const std::optional<std::int64_t> firstNumber_;
    std::optional<Expected> expected_;
    std::int64_t blocks_ = fewBlocks; ///< as many should hold a page
};

} // namespace znhost

#endif
