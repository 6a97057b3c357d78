// What "help WORD ..." answers at the prompt.
#ifndef SHELL_HELP_H
#define SHELL_HELP_H

#include <string>
#include <vector>

/// Tells of the words behind "znbrowsermanager": of the command that they make its arguments and what it
/// does, then the same of each word that may follow, and last what the kinds of arguments mean that stand
/// there. For words that are none, which one is unknown.
std::string HelpOn(const std::vector<std::string>& words);

#endif
