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
    held_ = false;
    on_ = true;
    return true;
}

void Recorder::End() {
    if (held_) Write();
    held_ = false;
    on_ = false;
    file_ = {};
}

void Recorder::Write() {
    if (!path_.empty() && file_.is_open()) file_ << lines_.back() << '\n' << std::flush;
}

// Each line is in the file as soon as it stays: a session may end in any way.
bool Recorder::Add(const std::string& line, const std::string& passing, std::string& error) {
    errno = 0;
    if (held_ && !passing.empty() && lines_.back().compare(0, passing.size(), passing) == 0) {
        lines_.back() = line;
        return true;
    }
    if (held_) Write();
    lines_.push_back(line);
    held_ = !passing.empty();
    if (!held_) Write();
    if (path_.empty() || file_) return true;
    error = "cannot write \"" + path_ + "\": " + std::strerror(errno);
    held_ = false;
    End();
    return false;
}

} // namespace znhost
