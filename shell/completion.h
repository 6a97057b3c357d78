// What TAB and help offer at the prompt. Reads the typed text only: nothing is evaluated.
#ifndef SHELL_COMPLETION_H
#define SHELL_COMPLETION_H

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Gives the names that may stand for an argument of a kind ("COLUMN"), and for "" those of everything.
using ObjectNames = std::function<std::vector<std::string>(const std::string& kind)>;

/// What TAB does to the typed text.
struct Completion {
    /// The end of the typed text: the word begun, with its opening quote or brace and its backslashes.
    std::string replaced;
    /// What stands in its place; empty when nothing more is certain.
    std::string replacement;
    /// What the word may be, as list elements, sorted, each once; empty when nothing is known of it.
    std::vector<std::string> choices;
};

/// Completes the last word of `text`, a word of the command that is still open there: command words of the
/// shell, of znbrowsermanager and of the host, and behind these the names.
Completion CompleteTyped(std::string_view text, const ObjectNames& objectNames);

/// Whether the word is the one behind which the host's own words stand.
bool IsHostWord(const std::string& word);

/// The words that may follow "znbrowsermanager WORD ...", the host's own words included; empty where free
/// arguments stand, or where the words lead nowhere.
std::vector<std::string> FindNextWords(const std::vector<std::string>& words);

/// The first of the words behind "znbrowsermanager" that is none; nothing when all are, or stand where free
/// arguments do.
std::optional<std::string> FindUnknownWord(const std::vector<std::string>& words);

#endif
