// What can go wrong with a word, found by trying: its example is run where something is missing.
#ifndef SHELL_MISHAPS_H
#define SHELL_MISHAPS_H

#include "examples.h"

#include <string>
#include <vector>

struct Mishap {
    std::string words;  ///< "view column caption"
    std::string when;   ///< "there is no such COLUMN"
    std::string answer; ///< without the banner before it
};

/// What goes wrong with the words that an example is about. Not told is that the usage text answers what
/// cannot be read.
const std::vector<Mishap>& MishapsIn(const Example& example);

#endif
