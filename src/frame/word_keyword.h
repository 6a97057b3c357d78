// The keyword that a Tcl word stands for.
#ifndef WORD_KEYWORD_H
#define WORD_KEYWORD_H

#include "znBrowserTclKeywords.h"

#include <tcl.h>

namespace znlayer {

/// The type of words whose keyword is known. It keeps the keyword beside the string form, as Tcl keeps
/// numbers and lists, so that a command in a loop looks its words up only once.
extern const Tcl_ObjType keywordWordType;

/// Looks the word up, and keeps a keyword with it where Tcl keeps nothing else.
ZNBROWSER_TCLAPI_KEYWORD LookUpKeyword(Tcl_Obj* word);

/// The keyword of a word; unknown for a null word.
inline ZNBROWSER_TCLAPI_KEYWORD WordKeyword(Tcl_Obj* word) {
    if (word && word->typePtr == &keywordWordType)
        return static_cast<ZNBROWSER_TCLAPI_KEYWORD>(word->internalRep.longValue);
    return LookUpKeyword(word);
}

} // namespace znlayer

#endif
