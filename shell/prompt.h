// The interactive prompt.
#ifndef SHELL_PROMPT_H
#define SHELL_PROMPT_H

#include "line_editor.h"
#include "session.h"

/// Reads commands from the terminal, over several lines where they need them, and prints their results.
/// Errors are printed and never end the session. While Tk is loaded its events are served between keys.
class Prompt {
public:
    explicit Prompt(Session& session);
    ~Prompt();
    Prompt(const Prompt&) = delete;
    Prompt& operator=(const Prompt&) = delete;

    /// Runs until the end of the input (Ctrl-D). `exit` in a command ends the program by itself.
    ExitCode Run();

private:
    void Execute(const std::string& command);
    bool AnswerHelp(const std::string& command) const;
    bool WaitForInput();
    bool WaitWithEvents();
    static int CancelCommand(ClientData prompt, Tcl_Interp* interp, int code);

    Session& session_;
    Tcl_Interp* interp_;
    LineEditor editor_;
    bool executing_ = false;
};

#endif
