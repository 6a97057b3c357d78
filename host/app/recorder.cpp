#include "app/recorder.h"

#include <cerrno>
#include <cstring>

namespace znhost {

bool Recorder::Begin(const std::string& file, std::string& error) {
    std::ofstream opened;
    errno = 0;
    if (!file.empty()) opened.open(file, std::ios::trunc);
    if (!file.empty() && !opened) {
        error = "cannot write \"" + file + "\": " + std::strerror(errno);
        return false;
    }
    file_ = std::move(opened);
    path_ = file;
    lines_.clear();
    on_ = true;
    return true;
}

void Recorder::End() {
    on_ = false;
    file_ = {};
}

// Each line is in the file at once: a session may end in any way.
bool Recorder::Add(const std::string& line, std::string& error) {
    lines_.push_back(line);
    if (path_.empty() || !file_.is_open()) return true;
    errno = 0;
    file_ << line << '\n' << std::flush;
    if (file_) return true;
    error = "cannot write \"" + path_ + "\": " + std::strerror(errno);
    End();
    return false;
}

} // namespace znhost
