// The interactive prompt.
#ifndef SHELL_PROMPT_H
#define SHELL_PROMPT_H

#include "interrupts.h"
#include "line_editor.h"
#include "session.h"

/// Reads commands from the terminal, over several lines where they need them, and prints their results.
/// Errors are printed and never end the session. While Tk is loaded its events are served between keys.
class Prompt {
public:
    explicit Prompt(Session& session);
    Prompt(const Prompt&) = delete;
    Prompt& operator=(const Prompt&) = delete;

    /// Runs until the end of the input (Ctrl-D). `exit` in a command ends the program by itself.
    ExitCode Run();

private:
    void Execute(const std::string& command);
    bool AnswerHelp(const std::string& command) const;
    bool WaitForInput();
    bool WaitWithEvents();

    Session& session_;
    Tcl_Interp* interp_;
    Interrupts& interrupts_;
    LineEditor editor_;
};

#endif
