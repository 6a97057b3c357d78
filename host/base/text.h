// Texts as Tcl holds them, and as the database does; letters whose case does not count.
#ifndef ZN_HOST_TEXT_H
#define ZN_HOST_TEXT_H

#include <string>
#include <string_view>

namespace znhost {

/// All of the host speaks the form in which Tcl 8.6 holds texts: UTF-8, but a NUL is the bytes C0 80, and a
/// character beyond the basic plane is two surrogates of three bytes each. The database holds UTF-8. A text
/// is converted where it crosses that border, and nowhere else.
///
/// Every text of the database comes back to it byte for byte. A byte there that belongs to no character is
/// the surrogate U+DC00 + byte for Tcl. Any other surrogate that stands alone, which only a script can have
/// made, is kept in the database as its three bytes.
///
/// @param storage where the result lies when it differs from the text; the text itself is returned when not
std::string_view FromTcl(std::string_view text, std::string& storage);
std::string_view ToTcl(std::string_view text, std::string& storage);
std::string FromTcl(std::string_view text);
std::string ToTcl(std::string_view text);
/// Whether the text, in Tcl's form, holds a NUL character.
inline bool HoldsNul(std::string_view text) { return text.find("\xC0\x80") != text.npos; }

// ---- Texts in Tcl's form ----

/// Takes the first character off a text that is not empty. Two surrogates that belong together are one
/// character; a byte that begins no character counts as one.
char32_t TakeCharacter(std::string_view& text);
/// The last character of a text that is not empty; of a character beyond the basic plane its second half.
char32_t LastCharacter(std::string_view text);

/// The lower case letter for a letter; any other character is its own. It is Tcl's lower case, which knows
/// the basic plane only.
char32_t Folded(char32_t character);
/// The text in lower case, in a storage that is used again. Texts are sorted by the bytes of this.
const std::string& Fold(std::string_view text, std::string& folded);
std::string Fold(std::string_view text);
/// The text so that ordering the bytes orders the numbers in it by their values: "row 2" before "row 10".
std::string NaturalKey(std::string_view text);
/// Whether the text begins with the other one, letter case aside.
bool BeginsWithFolded(std::string_view text, std::string_view beginning);

/// Not more than the first `most` bytes of the text, no character cut in two. It is for texts in either form.
std::string_view Beginning(std::string_view text, std::size_t most);
/// The same, and behind it "…" when that is not all.
std::string Cut(std::string_view text, std::size_t most);

} // namespace znhost

#endif
