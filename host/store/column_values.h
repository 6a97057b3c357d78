// Values of a column of which only the beginning is read.
#ifndef ZN_HOST_COLUMN_VALUES_H
#define ZN_HOST_COLUMN_VALUES_H

#include <cstddef>
#include <cstdint>
#include <string>

namespace znhost {

/// The texts and blobs of one column, as an engine reads them in parts: the first bytes of a megabyte are had
/// as fast as a short text. It keeps others from writing, so it is to be held for some rows only.
class ColumnValues {
public:
    virtual ~ColumnValues() = default;
    /// The first bytes of the value in that row, at most `most` of them, as the database has them, and how
    /// many there are in all. @return false when it cannot be read so: there is a number or NULL, for example
    virtual bool Read(std::int64_t row, std::size_t most, std::string& beginning, std::size_t& size) = 0;
};

} // namespace znhost

#endif
