// The text of a Tcl word.
#ifndef WORD_TEXT_H
#define WORD_TEXT_H

#include <tcl.h>

#include <string_view>

namespace znlayer {

/// The string form of a word, without a call where the word has it already, as words of a command nearly
/// always do. Its `data()` is a C string: a zero stands behind it. Null data for a null word. Belongs to the
/// word.
inline std::string_view WordText(Tcl_Obj* word) {
    if (!word) return {};
    if (!word->bytes) Tcl_GetString(word);
    return {word->bytes, static_cast<std::size_t>(word->length)};
}

} // namespace znlayer

#endif
