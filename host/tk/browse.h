// The default browser, which shows any database without a script of its own.
#ifndef ZN_HOST_TK_BROWSE_H
#define ZN_HOST_TK_BROWSE_H

#include <string>

struct Tcl_Interp;

namespace znhost {

/// Opens it on the data control of that name.
/// @param asText  its rows are going to be read as a text, which has no room for many columns
/// @return false, with the reason in `error`
bool OpenDefaultBrowser(Tcl_Interp* interp, const std::string& dataCtrl, bool asText, std::string& error);

} // namespace znhost

#endif
