#include "frame/word_keyword.h"

#include "frame/shared_keywords.h"
#include "frame/word_text.h"

namespace znlayer {

// A keyword is plain data, copied with the word, and the string form is never given up.
const Tcl_ObjType keywordWordType = {"znkeyword", nullptr, nullptr, nullptr, nullptr};

[[gnu::noinline]] ZNBROWSER_TCLAPI_KEYWORD LookUpKeyword(Tcl_Obj* word) {
    const ZNBROWSER_TCLAPI_KEYWORD keyword = SharedKeywords().GetZnBrowserTclApiEnum(WordText(word));
    if (keyword != ZNBROWSER_TCLAPI_KEYWORD::Unknown && !word->typePtr) {
        word->typePtr = &keywordWordType;
        word->internalRep.longValue = static_cast<long>(keyword);
    }
    return keyword;
}

} // namespace znlayer
