// What a person reads of a blob.
#ifndef ZN_HOST_BLOB_TEXT_H
#define ZN_HOST_BLOB_TEXT_H

#include <cstddef>
#include <string>
#include <string_view>

namespace znhost {

/// What its first bytes say that it is: "PNG image", "PDF"; "BLOB" where they say nothing.
std::string_view KindOfBlob(std::string_view bytes);

/// Its kind and its size: "PNG image, 12.3 kB".
std::string DescribeBlob(std::string_view bytes);
/// The same of one of that many bytes, of which these are the first.
std::string DescribeBlob(std::string_view beginning, std::size_t size);

} // namespace znhost

#endif
