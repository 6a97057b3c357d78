// What the user of the windows does, as a script that does it again.
#ifndef ZN_HOST_RECORDER_H
#define ZN_HOST_RECORDER_H

#include <fstream>
#include <string>
#include <vector>

namespace znhost {

/// Takes down lines of script: in memory, and in a file when there is one.
class Recorder {
public:
    /// Begins anew. @return false, with the reason, and as it was, when the file cannot be written
    bool Begin(const std::string& file, std::string& error);
    void End();
    bool IsOn() const { return on_; }
    /// @return false, with the reason, and no longer on, when the line cannot be written to the file
    bool Add(const std::string& line, std::string& error);
    /// What was recorded last, or has been so far.
    const std::vector<std::string>& Lines() const { return lines_; }

private:
    bool on_ = false;
    std::string path_;
    std::ofstream file_;
    std::vector<std::string> lines_;
};

} // namespace znhost

#endif
