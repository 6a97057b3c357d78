// The words of the command language, as a tree.
#ifndef ZN_BROWSER_TCL_COMMAND_TREE_H
#define ZN_BROWSER_TCL_COMMAND_TREE_H

#include "znBrowserExport.h"

#include <string>
#include <vector>

class znBrowserManagerTcl;

/// What is known of one word: help, completion and the reference show it.
struct znBrowserTclCommand {
    std::string word; ///< its plain spelling
    std::string
        arguments; ///< "NAME ?TEXT?": capitals stand for a kind, others for themselves, "?" for optional
    std::string summary;  ///< one sentence
    bool leadsOn = false; ///< whether more words may follow, which `GetCommands` lists
    std::string answer;   ///< what it answers, in the same notation; empty where it answers nothing
};

/// A kind of argument: the word that stands for it in `znBrowserTclCommand::arguments`, and what it means.
struct znBrowserTclArgumentKind {
    std::string word;
    std::string meaning;
};

/// What may stand at one place of a command.
struct znBrowserTclExpectation {
    std::vector<std::string> words; ///< command words, and words that stand for themselves
    std::vector<std::string> kinds; ///< kinds of arguments, by their words
};

/// Tells which words may follow others: for completion and for help. It reads the tables that the command
/// itself works with, and evaluates nothing. Words are the complete ones behind "znbrowsermanager", in any
/// spelling that the command accepts. An out parameter replaces what it held; it is empty where the words
/// lead nowhere.
class ZN_API znBrowserTclCommandTree {
public:
    /// The command words that may come next, plain, in the order in which the usage text lists them. Empty
    /// where only arguments stand.
    static void GetNextWords(const std::vector<std::string>& words, std::vector<std::string>& next);
    /// The same, with what is known of each.
    static void GetCommands(const std::vector<std::string>& words,
                            std::vector<znBrowserTclCommand>& commands);
    /// What is known of the command that the words make.
    /// @return false when they are no command, or when arguments are among them
    static bool GetCommand(const std::vector<std::string>& words, znBrowserTclCommand& command);
    /// What may come next: command words, or an argument.
    static void GetExpected(const std::vector<std::string>& words, znBrowserTclExpectation& expected);

    /// All kinds of arguments.
    static void GetArgumentKinds(std::vector<znBrowserTclArgumentKind>& kinds);
    /// The names that may stand for an argument of that kind, as the host lists them now: of what lies in the
    /// current objects. Empty for kinds that are not names of something. The host is only asked, through the
    /// operations of its interfaces that list; the manager's error state and result buffer stay.
    static void GetNames(const znBrowserManagerTcl& manager, const std::string& kind,
                         std::vector<std::string>& names);
};

#endif
