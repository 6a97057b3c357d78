// The line editor of the prompt: libedit, with our own waiting and our own completion.
#ifndef SHELL_LINE_EDITOR_H
#define SHELL_LINE_EDITOR_H

#include "completion.h"
#include "history.h"

#include "libedit.h"

#include <functional>
#include <string>
#include <vector>

class LineEditor {
public:
    enum class Outcome { Line, Interrupted, End };

    /// What the prompt lends to the editor.
    struct Services {
        /// Waits until standard input can be read (true) or the user interrupts (false).
        std::function<bool()> wait;
        /// What may be typed next after `text`.
        std::function<Completion(const std::string& text)> complete;
    };

    explicit LineEditor(Services services);
    ~LineEditor();
    LineEditor(const LineEditor&) = delete;
    LineEditor& operator=(const LineEditor&) = delete;

    /// Shows `prompt` and reads a line, its newline included. `line` is set for Outcome::Line alone.
    Outcome Read(const std::string& prompt, std::string& line);

private:
    static LineEditor& Self(EditLine* editor);
    static char* ShowPrompt(EditLine* editor);
    static int ReadCharacter(EditLine* editor, wchar_t* character);
    static unsigned char Complete(EditLine* editor, int key);

    Services services_;
    InputHistory history_;
    std::string prompt_;
    EditLine* editor_;
};

#endif
