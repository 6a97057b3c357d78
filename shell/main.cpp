// znbrowsersh: a Tcl shell with the command znbrowsermanager on the embedded host.
#include "options.h"
#include "prompt.h"
#include "session.h"

#include <unistd.h>

namespace {

ExitCode Run(const Options& options) {
    Session session;
    if (!session.Start(options)) return EXIT_FAILED;
    if (options.script) return session.RunScript(*options.script);
    if (!isatty(STDIN_FILENO)) return session.RunStandardInput();
    if (options.tk) session.OpenBrowsers();
    session.DrawWindows();
    return Prompt(session).Run();
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    if (const std::optional<ExitCode> done = ParseOptions(argc, argv, options)) return *done;
    Tcl_FindExecutable(argv[0]);
    Tcl_Exit(Run(options));
}
