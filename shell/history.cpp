#include "history.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace {

constexpr int MAX_LINES = 1000;

/// The file of the history, its folder made; empty when there is no place for it.
std::string HistoryFile() {
    std::filesystem::path folder;
    const char* const state = std::getenv("XDG_STATE_HOME");
    const char* const home = std::getenv("HOME");
    if (state && *state == '/') {
        folder = state;
    } else if (home && *home) {
        folder = std::filesystem::path(home) / ".local" / "state";
    } else {
        return "";
    }
    folder /= "znbrowsersh";
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    return error ? "" : (folder / "history").string();
}

} // namespace

InputHistory::InputHistory() : history_(Edit().history_init()), file_(HistoryFile()) {
    HistEvent event;
    Edit().history(history_, &event, H_SETSIZE, MAX_LINES);
    Edit().history(history_, &event, H_SETUNIQUE, 1);
    if (!file_.empty()) Edit().history(history_, &event, H_LOAD, file_.c_str());
}

InputHistory::~InputHistory() { Edit().history_end(history_); }

void InputHistory::Add(const std::string& line) {
    if (line.find_first_not_of(" \t\n") == std::string::npos) return;
    HistEvent event;
    Edit().history(history_, &event, H_ENTER, line.c_str());
    if (!file_.empty()) Edit().history(history_, &event, H_SAVE, file_.c_str());
}
