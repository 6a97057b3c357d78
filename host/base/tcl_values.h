// Values for Tcl.
#ifndef ZN_HOST_TCL_VALUES_H
#define ZN_HOST_TCL_VALUES_H

#include <string>
#include <string_view>
#include <vector>

struct Tcl_Obj;

namespace znhost {

/// A new object, which nobody holds yet, with the text, which is in Tcl's form. Tcl ends the process when a
/// text has more than 2 GiB: one of more than 1 GiB is cut, with "…" at its end.
Tcl_Obj* NewText(std::string_view text);
/// A new list of such texts.
Tcl_Obj* NewList(const std::vector<std::string>& words);
/// The same as a text.
std::string ListText(const std::vector<std::string>& words);
/// Puts a value into a dictionary that nobody else holds.
void Put(Tcl_Obj* dictionary, const char* key, Tcl_Obj* value);

} // namespace znhost

#endif
