// The Tcl side of the windows: host/tk/*.tcl, embedded when the library is built.
#ifndef ZN_HOST_TK_SCRIPTS_H
#define ZN_HOST_TK_SCRIPTS_H

#include <string_view>
#include <vector>

namespace znhost {

struct TkScript {
    std::string_view file; ///< the name of the file that it was, for error messages
    std::string_view text;
};

/// All scripts. They define procedures, and may be evaluated in any order.
const std::vector<TkScript>& TkScripts();

} // namespace znhost

#endif
