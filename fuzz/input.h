// One input of the fuzzer: lines, and the words in them.
//
// A line is a command, its words stand between blanks. Most bytes stand for themselves, so a corpus file
// reads like a script. The bytes that UTF-8 never has are escapes: 0xF6 to 0xFA and the byte behind take a
// word from a table, 0xFB grows a word, 0xFC and 0xFD are a blank and a line end inside a word, 0xFE makes
// the word a null pointer. A NUL is what Tcl makes of it, C0 80.
#ifndef FUZZ_INPUT_H
#define FUZZ_INPUT_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// A word of a command. C++ clients may pass null words.
struct Word {
    std::string text;
    bool isNull = false;
};

/// The words of a command.
using Line = std::vector<Word>;

/// The lines of one input, handed out one by one: to the top level, or to a script inside a host call.
class Input {
public:
    explicit Input(std::string_view text) : rest_(text) {}

    bool Ended() const { return rest_.empty(); }
    /// The words of the next line, behind the name of the command.
    Line NextLine();

private:
    char Take();
    const std::string& TakeFrom(const std::vector<std::string>& table);
    void AppendSpecial(Word& word, char byte);

    std::string_view rest_;
};

/// The lines of a text, read once.
std::vector<Line> LinesOf(std::string_view text);

/// Writes what the fuzzer may put into inputs: every command, every word of the tables.
void WriteDictionary(const char* path);

#endif
