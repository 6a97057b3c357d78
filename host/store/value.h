// One value on its way into the database or out of it.
#ifndef ZN_HOST_VALUE_H
#define ZN_HOST_VALUE_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace znhost {

/// NULL, an integer, a real or a text.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// The value that a word of a script stands for: a number when the word is one in the form in which numbers
/// are written back ("-7", "2.5", "1e+20"), else the text. So "007", "1.50", "+1" and "0x10" stay texts, and
/// a word never changes on its way through the database.
Value ValueOfWord(std::string_view word);

/// The number that the text as a whole is; none when it is too large for a real number.
std::optional<double> NumberOfText(std::string_view text);

} // namespace znhost

#endif
