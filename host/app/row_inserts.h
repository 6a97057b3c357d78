// The rows of a window as SQL statements that insert them.
#ifndef ZN_HOST_ROW_INSERTS_H
#define ZN_HOST_ROW_INSERTS_H

#include "store/schema.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace znhost {

class Database;
class RowModel;

/// Makes the statements. They name every column that can be written, and every value is exactly what is
/// stored.
class RowInserts {
public:
    using Take = std::function<bool(std::string_view line)>;

    explicit RowInserts(RowModel& rows) : rows_(rows) {}

    /// Hands the statements for the rows of those Tk indices to `take`, each with a line break; nothing for
    /// what is no row of a table. A server is asked for many at once; of those not many bytes are held.
    /// @return false when a row cannot be read, or `take` says so
    bool Make(const std::vector<std::uint32_t>& indices, const Take& take, std::string& error);

private:
    struct Source {
        Schema::TablePtr table; ///< holds the key
        Database& database;
        const std::string select; ///< the statement that answers it
        // Of the rows that were asked for together, by their numbers; "": there is no such row.
        std::unordered_map<std::int64_t, std::string> lines;
    };
    struct Wanted {
        Source* source;
        std::int64_t row; ///< in its table
    };

    bool Find(std::uint32_t index, Wanted& wanted);
    bool ReadOne(const Wanted& wanted, const Take& take, std::string& error);
    bool ReadFrom(const std::vector<Wanted>& wanted, std::size_t first, std::string& error);
    bool Read(Source& source, const std::vector<std::int64_t>& rows, std::string& error);

    RowModel& rows_;
    std::map<const Table*, Source> sources_;
    std::size_t atOnce_ = 125; ///< how many rows a server is asked for
    std::size_t bytes_ = 0;    ///< of the lines that are held
    bool isFull_ = false;      ///< some are not, for they were too many
};

} // namespace znhost

#endif
