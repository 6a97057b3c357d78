#include "frame/text_piece.h"

#include <tcl.h>

#include <string>

namespace znlayer {

void AppendElement(znString& text, const char* element) {
    int flags = 0;
    std::string quoted(static_cast<std::size_t>(Tcl_ScanElement(element, &flags)), '\0');
    // A "#" begins a comment only where the list is evaluated, and its first element begins it.
    if (!text.empty()) flags |= TCL_DONT_QUOTE_HASH;
    quoted.resize(static_cast<std::size_t>(Tcl_ConvertElement(element, quoted.data(), flags)));
    AppendPiece(text, quoted.c_str(), false, true, false);
}

} // namespace znlayer
