#include "options.h"

#include "base/native.h"
#include "reference.h"
#include "znBrowserVersion.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace {

const char* const FOOTER = R"(
With a SCRIPT, znbrowsersh runs it, with ARG ... in "argv". Without one it gives a
prompt, or runs the script that is piped into its standard input. "--" ends the
options: the word behind it is the SCRIPT even when it begins with "-". A file that
begins as an SQLite database is opened as one: as with --db, named after the file.

With --tk the windows that a script posts stand on the display, and the program stays
until the last one is closed. When there is nothing to run, it opens a browser on each
database, which is only read, unless --write says that it may be changed. Without a
display it says so and draws the rows of the windows as text.

Exit codes: 0 done, 1 the script failed, or it or a database cannot be opened, 2 bad
usage; "exit N" in a script gives N.)";

/// The script and its arguments are no option that the parser knows of; the help names them all the same.
class HelpFormatter : public CLI::Formatter {
    std::string make_usage(const CLI::App*, std::string) const override {
        return "Usage: znbrowsersh [OPTIONS] [FILE.db ...] [SCRIPT [ARG ...]]\n";
    }
};

std::vector<DatabaseOption> SplitDatabases(const std::vector<std::string>& words) {
    std::vector<DatabaseOption> databases;
    for (const std::string& word : words) {
        if (znhost::IsOnServer(word)) { // it may hold a password
            throw CLI::ValidationError("--db", "expected NAME=postgresql://...");
        }
        const std::size_t equals = word.find('=');
        if (equals == std::string::npos || equals == 0) {
            throw CLI::ValidationError("--db", "expected NAME=FILE but got \"" + word + "\"");
        }
        databases.push_back({word.substr(0, equals), word.substr(equals + 1)});
    }
    return databases;
}

/// What bad usage prints. The parser's own words for a value that is missing, or is one too many, are
/// obscure; they begin with the option.
std::string DescribeFailure(const CLI::App*, const CLI::Error& error) {
    std::string text = error.what();
    if (error.get_name() == "ArgumentMismatch") {
        const std::string option = text.substr(0, text.find_first_of(": "));
        text = option == "--db" ? "--db: expected NAME=FILE" : "--" + option + " takes no value";
    }
    return "znbrowsersh: " + text + "\nRun with --help for more information.\n";
}

/// What follows the options: the script and its arguments. A word that still looks like an option is none
/// that we know, unless "--" stands before it.
void SplitScript(std::vector<std::string> words, Options& options) {
    const bool endOfOptions = !words.empty() && words.front() == "--";
    if (endOfOptions) words.erase(words.begin());
    if (words.empty()) return;
    if (!endOfOptions && words.front().size() > 1 && words.front().front() == '-') {
        throw CLI::ValidationError("unknown option \"" + words.front() + "\"");
    }
    options.script = words.front();
    options.arguments.assign(words.begin() + 1, words.end());
}

bool IsDatabase(const std::string& file) {
    constexpr std::string_view beginning{"SQLite format 3", 16}; // with the NUL behind it
    char found[beginning.size()] = {};
    std::ifstream(file, std::ios::binary).read(found, sizeof found);
    return beginning == std::string_view(found, sizeof found);
}

/// The name of a data control on a file: the file's, without what stands behind the point.
std::string ControlName(const std::string& file, const std::vector<DatabaseOption>& others) {
    const std::string stem = std::filesystem::path(file).stem().string();
    std::string name = stem;
    const auto isTaken = [&](const DatabaseOption& other) { return other.name == name; };
    for (int number = 2; std::any_of(others.begin(), others.end(), isTaken); ++number)
        name = stem + "-" + std::to_string(number);
    return name;
}

/// Databases that are named where the script stands are opened; the first other file is the script.
void TakeDatabases(Options& options) {
    while (options.script && IsDatabase(*options.script)) {
        options.databases.push_back({ControlName(*options.script, options.databases), *options.script});
        options.script.reset();
        if (options.arguments.empty()) return;
        options.script = options.arguments.front();
        options.arguments.erase(options.arguments.begin());
    }
}

void AddPage(CLI::App& app, Options& options, const char* option, std::string (*page)(), const char* help) {
    app.add_flag_callback(
        option, [&options, page] { options.page = page; }, help);
}

} // namespace

std::optional<ExitCode> ParseOptions(int argc, const char* const* argv, Options& options) {
    std::vector<std::string> databases;
    CLI::App app(
        "The shell of znBrowserScripting: Tcl with the command znbrowsermanager on an embedded host.",
        "znbrowsersh");
    app.formatter(std::make_shared<HelpFormatter>());
    app.footer(FOOTER);
    app.failure_message(DescribeFailure);
    app.add_option("--db", databases,
                   "Add the data control NAME on a SQLite file, created when missing, or on "
                   "postgresql://...; NAME= is in memory")
        ->type_name("NAME=FILE")
        ->allow_extra_args(false);
    app.add_flag("--strict", options.strict,
                 "Make each error banner a Tcl error, errorCode {ZNBROWSER ERROR ...}")
        ->disable_flag_override();
    app.add_flag("--tk", options.tk,
                 "Open windows on the display; with nothing to run, a browser on each database")
        ->disable_flag_override();
    app.add_flag("--write", options.write, "Let a browser that is opened on a database change it")
        ->disable_flag_override();
    app.add_flag("--dark", options.dark, "Light text on dark in the windows on the display")
        ->disable_flag_override();
    AddPage(app, options, "--reference", Reference, "Print all words of the command, as Markdown, and end");
    AddPage(app, options, "--manual", Manual, "Print the same as a manual page for man, and end");
    app.set_version_flag("--version", "znbrowsersh " ZN_BROWSER_VERSION);
    app.prefix_command(); // stop at the script: the options behind it are the script's own
    options.program = argv[0];
    try {
        app.parse(argc, argv);
        options.databases = SplitDatabases(databases);
        SplitScript(app.remaining(), options);
        TakeDatabases(options);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? EXIT_DONE : EXIT_USAGE;
    }
    return std::nullopt;
}
