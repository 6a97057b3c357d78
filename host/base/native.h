// Texts and names of files as the system has them: in the system encoding, which the locale names.
#ifndef ZN_HOST_NATIVE_H
#define ZN_HOST_NATIVE_H

#include <string>
#include <string_view>

namespace znhost {

/// What the system gives, such as a word of the command line or a typed line, as Tcl itself converts it:
/// bytes that are no text in the system encoding become other ones.
std::string FromNative(const std::string& bytes);
/// What the system is to show. What its encoding does not have becomes "?".
std::string ToNative(const std::string& text);

/// The bytes under which the system knows the file that a script names, "~" being what it is for Tcl's own
/// commands. @return false, with the reason in `error`, when the system encoding has no such name: another
/// file would be meant.
bool NativeFileName(const std::string& name, std::string& native, std::string& error);

/// The name of a file on the command line, for `NativeFileName` and Tcl's own commands. "~" has no meaning in
/// it. @return false, with the reason in `error`, when another file would be meant.
bool FileOfNative(const std::string& bytes, std::string& name, std::string& error);

/// Whether a word of the command line, or of a script, names a database on a server: "postgresql://...".
/// Passwords may stand in it.
bool IsOnServer(std::string_view name);

} // namespace znhost

#endif
