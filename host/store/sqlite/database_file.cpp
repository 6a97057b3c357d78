#include "store/sqlite/database_file.h"

#include "base/native.h"

#include <array>
#include <filesystem>
#include <fstream>

namespace znhost {

namespace {

using std::filesystem::file_type;

const char* WhyNoDatabase(file_type type) {
    switch (type) {
    case file_type::directory: return "it is a directory";
    case file_type::block:
    case file_type::character: return "it is a device";
    case file_type::fifo: return "it is a pipe";
    case file_type::socket: return "it is a socket";
    default: return "it is no regular file";
    }
}

/// Why no file of that name can be made, where there is none; empty when nothing speaks against it.
std::string WhyNotMade(const std::filesystem::path& path) {
    std::error_code failure;
    if (std::filesystem::is_symlink(std::filesystem::symlink_status(path, failure)))
        return "it is a link to a file that does not exist";
    const std::filesystem::path folder = path.parent_path();
    if (folder.empty() || std::filesystem::is_directory(folder, failure)) return "";
    return "its directory does not exist";
}

std::string WhyRefused(const std::string& native) {
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(native, failure);
    switch (status.type()) {
    case file_type::regular: return "";
    case file_type::not_found: return WhyNotMade(native);
    case file_type::none: return failure.message();
    default: return WhyNoDatabase(status.type());
    }
}

} // namespace

namespace {

std::int64_t Ticks(const std::filesystem::path& path) {
    std::error_code failure;
    const auto time = std::filesystem::last_write_time(path, failure);
    return failure ? 0 : static_cast<std::int64_t>(time.time_since_epoch().count());
}

std::int64_t SizeOf(const std::filesystem::path& path) {
    std::error_code failure;
    const auto size = std::filesystem::file_size(path, failure);
    return failure ? 0 : static_cast<std::int64_t>(size);
}

} // namespace

bool FileExists(const std::string& native) {
    std::error_code failure;
    return std::filesystem::exists(native, failure);
}

FileStamp StampOfFile(const std::string& native) {
    const std::string log = native + "-wal";
    return {Ticks(native), SizeOf(native), Ticks(log), SizeOf(log)};
}

bool IsQuietWithLog(const std::string& native) {
    constexpr std::size_t writeVersion = 18; // in the header of a database file; 2: it has a log beside it
    std::array<char, writeVersion + 1> header{};
    std::ifstream(native, std::ios::binary).read(header.data(), header.size());
    return header[writeVersion] == 2 && SizeOf(native + "-wal") == 0;
}

bool FindDatabaseFile(const std::string& name, std::string& native, std::string& error) {
    if (name.empty()) { // it would be a nameless database that vanishes when it is closed
        error = "the file name is empty";
    } else if (name.substr(0, 5) == "file:") {
        error = "a URI is no file name; a file of that name is \"./" + name + "\"";
    } else if (name == ":memory:") {
        error = "a database in memory has no file name: leave it out";
    } else if (name.back() == '/') {
        error = "it is the name of a directory";
    } else if (NativeFileName(name, native, error)) {
        error = WhyRefused(native);
    }
    return error.empty();
}

} // namespace znhost
