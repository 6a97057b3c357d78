#include "store/value.h"

#include <charconv>
#include <cmath>

namespace znhost {
namespace {

template <class Number>
bool ReadWhole(std::string_view word, Number& number) {
    const char* const end = word.data() + word.size();
    const auto [last, failure] = std::from_chars(word.data(), end, number);
    return failure == std::errc() && last == end;
}

/// Whether the shortest way to write the number is the word; a real may end in ".0".
template <class Number, class... Format>
bool WritesAs(std::string_view word, Number number, Format... format) {
    char buffer[400]; // the longest real without an exponent has some 330 characters
    const auto [end, failure] = std::to_chars(buffer, buffer + sizeof buffer, number, format...);
    if (failure != std::errc()) return false;
    const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
    if (word == text) return true;
    return std::is_same_v<Number, double> && text.find_first_of(".e") == text.npos &&
           word.size() == text.size() + 2 && word.substr(0, text.size()) == text &&
           word.substr(text.size()) == ".0";
}

} // namespace

Value ValueOfWord(std::string_view word) {
    std::int64_t integer = 0;
    if (ReadWhole(word, integer) && WritesAs(word, integer)) return integer;
    double real = 0;
    if (word.find_first_of(".e") != word.npos && ReadWhole(word, real) && std::isfinite(real) &&
        (WritesAs(word, real) || WritesAs(word, real, std::chars_format::fixed))) {
        return real;
    }
    return std::string(word);
}

std::optional<double> NumberOfText(std::string_view text) {
    double number = 0;
    return ReadWhole(text, number) ? std::optional(number) : std::nullopt;
}

} // namespace znhost
