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
    /// @param passing  how a line begins that the next one which begins so replaces; empty: none does
    /// @return false, with the reason, and no longer on, when the line cannot be written to the file
    bool Add(const std::string& line, const std::string& passing, std::string& error);
    /// What was recorded last, or has been so far.
    const std::vector<std::string>& Lines() const { return lines_; }

private:
    void Write();

    bool on_ = false;
    bool held_ = false; ///< the last line may be replaced, and is not written yet
    std::string path_;
    std::ofstream file_;
    std::vector<std::string> lines_;
};

} // namespace znhost

#endif
