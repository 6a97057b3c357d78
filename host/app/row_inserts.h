// The rows of a window as SQL statements that insert them.
#ifndef ZN_HOST_ROW_INSERTS_H
#define ZN_HOST_ROW_INSERTS_H

#include "store/schema.h"

#include <cstdint>
#include <map>
#include <string>

namespace znhost {

class RowModel;

/// Makes the statements. They name every column that can be written, and every value is exactly what is
/// stored.
class RowInserts {
public:
    explicit RowInserts(RowModel& rows) : rows_(rows) {}

    /// The statement for the row of that Tk index, and a line break; "" for what is no row of a table.
    /// @return false when the row cannot be read
    bool Make(std::uint32_t index, std::string& line, std::string& error);

private:
    struct Source {
        Schema::TablePtr table; ///< holds the key
        std::string select;     ///< the statement that answers it
    };

    RowModel& rows_;
    std::map<const Table*, Source> sources_;
};

} // namespace znhost

#endif
