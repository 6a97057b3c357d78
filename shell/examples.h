// The examples of the manual: the commands of examples/words, and what they answer.
#ifndef SHELL_EXAMPLES_H
#define SHELL_EXAMPLES_H

#include <string>
#include <vector>

/// A line of an example.
struct ExampleLine {
    std::string command; ///< as it is written; a comment begins with "#"
    std::string words;   ///< the word of the manual that it uses: "view column caption"; or ""
    std::string answer;
};

struct Example {
    std::string words;              ///< the family that it shows: "view column"; "" for words without one
    std::vector<ExampleLine> lines; ///< not yet answered
};

/// What comes before each example.
const Example& ExampleOpening();
const std::vector<Example>& Examples();
/// The example of the family that the words belong to most closely.
const Example& ExampleAbout(const std::string& words);

/// The lines of an example, with what a new host answers.
std::vector<ExampleLine> Answered(const Example& example);
/// Lines as they look at a prompt: "% command", and the answer below.
std::string AsTyped(const std::vector<ExampleLine>& lines);

#endif
