// A full disk for the server of a test, which loads this library before any other (LD_PRELOAD): as long as
// the link that ZN_FULL_DISK names is there, no file in the folder to which it leads, or below, can grow.
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

std::string LinkedTo(const char* link) {
    char path[PATH_MAX];
    const ssize_t length = link ? readlink(link, path, sizeof path) : -1;
    return std::string(path, length > 0 ? static_cast<std::size_t>(length) : 0);
}

/// Whether there is no room for the file to have so many bytes.
bool IsFull(int file, off_t bytes) {
    const std::string folder = LinkedTo(std::getenv("ZN_FULL_DISK"));
    struct stat now;
    if (folder.empty() || fstat(file, &now) != 0 || !S_ISREG(now.st_mode) || bytes <= now.st_size)
        return false;
    return LinkedTo(("/proc/self/fd/" + std::to_string(file)).c_str()).rfind(folder + "/", 0) == 0;
}

ssize_t Refuse() {
    errno = ENOSPC;
    return -1;
}

off_t Sum(const iovec* parts, int count) {
    off_t bytes = 0;
    for (int i = 0; i < count; ++i) bytes += static_cast<off_t>(parts[i].iov_len);
    return bytes;
}

/// The function of that name that would be called without this library.
template <class Function>
Function* Next(Function&, const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

ssize_t write(int file, const void* bytes, size_t count) {
    static auto* const next = Next(write, "write");
    const off_t at = lseek(file, 0, SEEK_CUR);
    return at >= 0 && IsFull(file, at + static_cast<off_t>(count)) ? Refuse() : next(file, bytes, count);
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t at) {
    static auto* const next = Next(pwrite, "pwrite");
    return IsFull(file, at + static_cast<off_t>(count)) ? Refuse() : next(file, bytes, count, at);
}

ssize_t pwritev(int file, const iovec* parts, int count, off_t at) {
    static auto* const next = Next(pwritev, "pwritev");
    return IsFull(file, at + Sum(parts, count)) ? Refuse() : next(file, parts, count, at);
}

int posix_fallocate(int file, off_t at, off_t count) {
    static auto* const next = Next(posix_fallocate, "posix_fallocate");
    return IsFull(file, at + count) ? ENOSPC : next(file, at, count);
}
}
