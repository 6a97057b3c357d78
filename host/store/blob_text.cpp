#include "store/blob_text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>

namespace znhost {

namespace {

using namespace std::string_view_literals;

struct Signature {
    std::string_view bytes;
    std::size_t offset;
    std::string_view kind;
};

constexpr Signature signatures[] = {
    {"\x89PNG\r\n\x1A\n"sv, 0, "PNG image"},
    {"GIF8"sv, 0, "GIF image"},
    {"\xFF\xD8\xFF"sv, 0, "JPEG image"},
    {"WEBP"sv, 8, "WebP image"},
    {"II*\0"sv, 0, "TIFF image"},
    {"MM\0*"sv, 0, "TIFF image"},
    {"%PDF-"sv, 0, "PDF"},
    {"PK\x03\x04"sv, 0, "ZIP archive"},
    {"\x1F\x8B"sv, 0, "gzip"},
    {"SQLite format 3\0"sv, 0, "SQLite database"},
    {"OggS"sv, 0, "Ogg"},
    {"WAVE"sv, 8, "WAV sound"},
    {"bplist"sv, 0, "property list"},
};

std::string SizeText(std::size_t bytes) {
    constexpr std::array<const char*, 3> units{"kB", "MB", "GB"};
    if (bytes < 1000) return std::to_string(bytes) + (bytes == 1 ? " byte" : " bytes");
    double size = static_cast<double>(bytes) / 1000;
    std::size_t unit = 0;
    for (; size >= 999.95 && unit + 1 < units.size(); ++unit) size /= 1000;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f %s", size, units.at(unit));
    return text.data();
}

} // namespace

std::string_view KindOfBlob(std::string_view bytes) {
    const auto* const known =
        std::find_if(std::begin(signatures), std::end(signatures), [bytes](const Signature& signature) {
            return bytes.size() > signature.offset &&
                   bytes.substr(signature.offset, signature.bytes.size()) == signature.bytes;
        });
    return known == std::end(signatures) ? "BLOB"sv : known->kind;
}

std::string DescribeBlob(std::string_view bytes) { return DescribeBlob(bytes, bytes.size()); }

std::string DescribeBlob(std::string_view beginning, std::size_t size) {
    return std::string(KindOfBlob(beginning)) + ", " + SizeText(size);
}

} // namespace znhost
