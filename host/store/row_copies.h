// Copies of the rows of views and other tables whose rows have no numbers of their own.
#ifndef ZN_HOST_ROW_COPIES_H
#define ZN_HOST_ROW_COPIES_H

#include "store/schema.h"

namespace znhost {

/// The temporary copies that `Table::rows` names where a table is `copied`. The user's database is not
/// touched.
class RowCopies {
public:
    explicit RowCopies(Database& database) : database_(database) {}

    /// Makes the rows of the table ready to be read; to be called before each reading. Does nothing for a
    /// table that is not copied, and next to nothing when nothing in the database changed; else it reads the
    /// table once. A table whose copy would be too large is not read again before something changed.
    /// @return false with the database's reason when the table cannot be read
    bool Refresh(const Table& table, std::string& error);

private:
    Database& database_;
    struct Last {
        Database::Stamp stamp;
        std::string tooLarge; ///< why the rows cannot be copied, as they are now; "" when they are
    };
    std::unordered_map<std::string, Last> last_; // the last copy, by table name
};

} // namespace znhost

#endif
