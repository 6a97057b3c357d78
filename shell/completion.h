// What TAB offers at the prompt. Reads the typed text only: nothing is evaluated.
#ifndef SHELL_COMPLETION_H
#define SHELL_COMPLETION_H

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// The command in which the typing stands: its finished words, and the beginning of the next one.
struct TypedCommand {
    std::vector<std::string> words;
    std::string partial;
};

/// Finds the innermost command at the end of `text`: after the last separator, opening bracket or brace.
TypedCommand FindTypedCommand(std::string_view text);

/// What may stand for the partial word: command words of the shell and of znbrowsermanager, and where
/// these take free arguments, the names that `objectNames` gives, quoted as list elements. Sorted, each once.
std::vector<std::string> FindCompletions(const TypedCommand& typed,
                                         const std::function<std::vector<std::string>()>& objectNames);

/// The longest text with which all of `texts` begin; empty when there are none.
std::string CommonBeginning(const std::vector<std::string>& texts);

#endif
