// The lines typed at the prompt, kept between sessions.
#ifndef SHELL_HISTORY_H
#define SHELL_HISTORY_H

#include "libedit.h"

#include <string>

/// The history lies in $XDG_STATE_HOME/znbrowsersh/history (by default below ~/.local/state). A file that
/// cannot be read or written costs the memory of earlier sessions and nothing else.
class InputHistory {
public:
    InputHistory();
    ~InputHistory();
    InputHistory(const InputHistory&) = delete;
    InputHistory& operator=(const InputHistory&) = delete;

    /// Adds a line and writes the file: the session may end at any command. Blank lines are not kept.
    void Add(const std::string& line);
    History* Get() const { return history_; }

private:
    History* history_;
    std::string file_;
};

#endif
