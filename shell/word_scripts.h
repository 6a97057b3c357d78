// The examples of the manual: examples/words/*.tcl, embedded when the program is built.
#ifndef SHELL_WORD_SCRIPTS_H
#define SHELL_WORD_SCRIPTS_H

#include <string>
#include <vector>

struct WordScript {
    std::string file; ///< "view_column.tcl" is about "view column"
    std::string text; ///< each line a command, a comment, or empty
};

const std::vector<WordScript>& WordScripts();

#endif
