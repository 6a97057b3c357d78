// Letter case by hand. The C library's comparison follows the locale, which Tcl sets: under a Turkish
// one "ITEM" and "item" would differ.
#ifndef ASCII_H
#define ASCII_H

#include <cstddef>
#include <string_view>

namespace znlayer {

/// The lower-case form of an ASCII capital; every other byte as it is.
constexpr char FoldAscii(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

/// True when two texts are the same but for the case of ASCII letters.
constexpr bool EqualsIgnoringCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (FoldAscii(a[i]) != FoldAscii(b[i])) return false;
    }
    return true;
}

} // namespace znlayer

#endif
