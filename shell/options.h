// The command line of znbrowsersh.
#ifndef SHELL_OPTIONS_H
#define SHELL_OPTIONS_H

#include <optional>
#include <string>
#include <vector>

/// A data control asked for with `--db NAME=FILE`; an empty file means one in memory.
struct DatabaseOption {
    std::string name;
    std::string file;
};

struct Options {
    std::vector<DatabaseOption> databases;
    bool strict = false;
    bool write = false;  /// a browser on a database may change it
    bool tk = false;     /// windows stand on the display, or are drawn as text where there is none
    bool dark = false;   /// the windows are dark
    std::string program; /// as it was called
    std::optional<std::string> script;  /// none: the prompt, or the script on standard input
    std::vector<std::string> arguments; /// what follows the script, for the script alone
    std::string (*page)() = nullptr;    /// to be printed, and nothing else done
};

/// The ways in which the program ends by itself; `exit N` in a script gives any other.
enum ExitCode { EXIT_DONE = 0, EXIT_FAILED = 1, EXIT_USAGE = 2 };

/// Reads the command line. When there is nothing to run (`--help`, `--version`, bad usage) it prints what is
/// due, leaves `options` half filled and returns the exit code; otherwise it returns nothing.
std::optional<ExitCode> ParseOptions(int argc, const char* const* argv, Options& options);

#endif
