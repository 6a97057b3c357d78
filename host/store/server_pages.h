// The rows of a table of a server, read a page at a time.
#ifndef ZN_HOST_SERVER_PAGES_H
#define ZN_HOST_SERVER_PAGES_H

#include "base/shared_rows.h"
#include "store/row_part.h"

namespace znhost {

class SimpleSource;

/// A page is read from the row before it or behind it on, by the table's key; one that lies elsewhere takes
/// the server a walk along the key's index, from the nearer end.
class ServerPages final : public RowPages {
public:
    /// All rows of the source. With one question: how many there are, and the first page. Nothing where they
    /// are not those of one table with a primary key on a server, or cannot be read.
    static std::optional<SharedRows> List(SimpleSource& source);

    ServerPages(SimpleSource& source, RowPart part);
    Rows Read(const Page& page) override;
    Rows ReadAll() override;

private:
    Rows Run(SimpleSource& source, Statement& statement) const;

    const std::weak_ptr<SimpleSource> source_; ///< it may be deleted while a window shows it
    const RowPart part_;
};

} // namespace znhost

#endif
