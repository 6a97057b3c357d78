#include "prompt.h"

#include "completion.h"
#include "help.h"

#include <poll.h>
#include <unistd.h>

#include <iterator>
#include <sstream>

namespace {

const char* const HELP = R"(znbrowsersh is Tcl with one command more.

  znbrowsermanager            its action words; every level of words answers with its usage
  znbrowsermanager app help   the words of the embedded host: databases, rows, journal
  help ?WORD ...?             this text, or what "znbrowsermanager WORD ..." is and which words may follow
  exit ?CODE?                 ends the session, as Ctrl-D does

TAB completes command words and object names, the arrow keys recall earlier lines, Ctrl-R searches
them, Ctrl-C drops the line or stops the running command.)";

void MarkReadable(ClientData flag, int) { *static_cast<bool*>(flag) = true; }

} // namespace

Prompt::Prompt(Session& session)
    : session_(session), interp_(session.GetInterp()), interrupts_(session.GetInterrupts()),
      editor_({[this] { return WaitForInput(); },
               [this](const std::string& text) {
                   return CompleteTyped(text,
                                        [this](const std::string& kind) { return session_.GetNames(kind); });
               }}) {
    Tcl_SetVar2Ex(interp_, "tcl_interactive", nullptr, Tcl_NewIntObj(1), TCL_GLOBAL_ONLY);
}

ExitCode Prompt::Run() {
    std::string command;
    while (isatty(STDIN_FILENO)) { // a command may close it, and open something else in its place
        std::string line;
        switch (editor_.Read(command.empty() ? "% " : "> ", line)) {
        case LineEditor::Outcome::End: PrintLine(TCL_STDOUT, ""); return EXIT_DONE;
        case LineEditor::Outcome::Interrupted:
            PrintLine(TCL_STDOUT, "^C");
            command.clear();
            break;
        case LineEditor::Outcome::Line:
            command += line;
            if (!Tcl_CommandComplete(command.c_str())) break;
            if (!AnswerHelp(command)) Execute(command);
            command.clear();
            break;
        }
    }
    return EXIT_DONE;
}

void Prompt::Execute(const std::string& command) {
    interrupts_.Take();
    {
        const Interrupts::Running running(interrupts_);
        const int code = Tcl_RecordAndEval(interp_, command.c_str(), TCL_EVAL_GLOBAL);
        Tcl_Obj* const result = Tcl_GetObjResult(interp_);
        int length = 0;
        Tcl_GetStringFromObj(result, &length);
        if (length > 0) PrintLine(code == TCL_OK ? TCL_STDOUT : TCL_STDERR, result);
        session_.ServePending();
    }
    interrupts_.Take();
}

// "help" is a word of the prompt, not a command: a script may define its own, which then is the one called.
bool Prompt::AnswerHelp(const std::string& command) const {
    std::istringstream text(command);
    std::vector<std::string> words{std::istream_iterator<std::string>(text), {}};
    if (words.empty() || words.front() != "help") return false;
    if (Tcl_FindCommand(interp_, "help", nullptr, TCL_GLOBAL_ONLY)) return false;
    if (words.size() == 1) {
        PrintLine(TCL_STDOUT, HELP);
        return true;
    }
    words.erase(words.begin());
    PrintLine(TCL_STDOUT, HelpOn(words));
    return true;
}

bool Prompt::WaitForInput() {
    const bool tkLoaded = Tcl_FindCommand(interp_, "winfo", nullptr, TCL_GLOBAL_ONLY) != nullptr;
    if (tkLoaded) return WaitWithEvents();
    pollfd sources[] = {{STDIN_FILENO, POLLIN, 0}, {interrupts_.WakeDescriptor(), POLLIN, 0}};
    while (poll(sources, 2, -1) < 0) {
    }
    return !interrupts_.Take();
}

bool Prompt::WaitWithEvents() {
    bool typed = false;
    bool woken = false;
    Tcl_CreateFileHandler(STDIN_FILENO, TCL_READABLE, MarkReadable, &typed);
    const int wake = interrupts_.WakeDescriptor();
    Tcl_CreateFileHandler(wake, TCL_READABLE, MarkReadable, &woken);
    while (!typed && !woken) Tcl_DoOneEvent(TCL_ALL_EVENTS);
    Tcl_DeleteFileHandler(wake);
    Tcl_DeleteFileHandler(STDIN_FILENO);
    return !interrupts_.Take();
}
