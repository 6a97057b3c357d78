// Names of files: as scripts write them, and as the system knows them.
#ifndef ZN_HOST_FILE_NAME_H
#define ZN_HOST_FILE_NAME_H

#include <string>

namespace znhost {

/// The bytes under which the system knows the file that a script names, "~" being what it is for Tcl's own
/// commands. @return false, with the reason in `error`, when the system encoding has no such name: another
/// file would be meant.
bool NativeFileName(const std::string& name, std::string& native, std::string& error);

/// A word of the command line as Tcl holds it, as Tcl itself converts such words: bytes that are no text in
/// the system encoding become other ones.
std::string FromNative(const std::string& bytes);

/// The name of a file on the command line, for `NativeFileName` and Tcl's own commands. "~" has no meaning in
/// it. @return false, with the reason in `error`, when another file would be meant.
bool FileOfNative(const std::string& bytes, std::string& name, std::string& error);

} // namespace znhost

#endif
