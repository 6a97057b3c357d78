// The words of the command language, as a tree.
#ifndef ZN_BROWSER_TCL_COMMAND_TREE_H
#define ZN_BROWSER_TCL_COMMAND_TREE_H

#include "znBrowserExport.h"

#include <string>
#include <vector>

/// Tells which words may follow others: for completion and for help. It reads the tables that the command
/// itself works with, and evaluates nothing.
class ZN_API znBrowserTclCommandTree {
public:
    /// The words that may come next.
    /// @param words  the complete words behind "znbrowsermanager", in any spelling the command accepts
    /// @param next   out: their plain spellings, in the order in which the usage text lists them. Replaces
    ///               what it held; empty where free arguments stand, or where the words lead nowhere
    static void GetNextWords(const std::vector<std::string>& words, std::vector<std::string>& next);
};

#endif
