// How a piece of text joins a text that is being built: the rule behind messages and lists.
#ifndef TEXT_PIECE_H
#define TEXT_PIECE_H

#include "host/znutl/znString.h"

#include <cstring>

namespace znlayer {

/// Appends a piece to `text`. `separate` puts a blank before it unless the text is empty, `braceIfBlank`
/// braces a piece that holds a blank, and `quoted` puts double quotes around all of it. Nothing is escaped.
/// @return false, and nothing is appended, for a null piece
inline bool AppendPiece(znString& text, const char* piece, bool quoted, bool separate, bool braceIfBlank) {
    if (!piece) return false;
    if (separate && !text.empty()) text += ' ';
    if (quoted) text += '"';
    const bool braced = braceIfBlank && std::strchr(piece, ' ');
    if (braced) text += '{';
    text += piece;
    if (braced) text += '}';
    if (quoted) text += '"';
    return true;
}

/// Appends an element of a Tcl list, quoted where it must be, behind a blank unless the text is empty.
void AppendElement(znString& text, const char* element);

} // namespace znlayer

#endif
