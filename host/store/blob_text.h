// What a person reads of a blob.
#ifndef ZN_HOST_BLOB_TEXT_H
#define ZN_HOST_BLOB_TEXT_H

#include <string>
#include <string_view>

namespace znhost {

/// What its first bytes say that it is: "PNG image", "PDF"; "BLOB" where they say nothing.
std::string_view KindOfBlob(std::string_view bytes);

/// Its kind and its size: "PNG image, 12.3 kB".
std::string DescribeBlob(std::string_view bytes);

} // namespace znhost

#endif
