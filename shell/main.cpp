// znbrowsersh: a Tcl shell with the command znbrowsermanager on the embedded host.
#include "libedit.h"
#include "options.h"
#include "prompt.h"
#include "session.h"

#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace {

/// Where the environment names no locale, what is typed is UTF-8: in the locale "C" the line editor would
/// swallow all keys beyond ASCII. Tcl and the editor look at the environment when they start.
void ChooseLocaleOfPrompt() {
    for (const char* const name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* const value = std::getenv(name);
        if (value && *value) return;
    }
    setenv("LC_CTYPE", "C.UTF-8", 1);
}

ExitCode Run(const Options& options) {
    Session session;
    if (!session.Start(options)) return EXIT_FAILED;
    if (options.script) return session.RunScript(*options.script);
    if (!isatty(STDIN_FILENO)) return session.RunStandardInput();
    if (options.tk) session.OpenBrowsers();
    session.DrawWindows();
    std::string reason;
    if (LibEdit::Load(reason)) return Prompt(session).Run();
    PrintLine(TCL_STDERR, "znbrowsersh: " + reason);
    return EXIT_FAILED;
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    if (const std::optional<ExitCode> done = ParseOptions(argc, argv, options)) return *done;
    if (!options.script && isatty(STDIN_FILENO)) ChooseLocaleOfPrompt();
    Tcl_FindExecutable(argv[0]);
    if (options.page) {
        std::cout << options.page();
        return EXIT_DONE;
    }
    Tcl_Exit(Run(options));
}
