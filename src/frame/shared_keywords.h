// The one keyword lookup that all dispatchers share.
#ifndef SHARED_KEYWORDS_H
#define SHARED_KEYWORDS_H

#include "znBrowserTclKeywords.h"

namespace znlayer {

/// The shared lookup, in debug mode: the running system accepts every word of the table. A constant, so
/// it exists before any other object and costs no guard.
inline const znBrowserTclKeywords& SharedKeywords() {
    static constexpr znBrowserTclKeywords keywords(true);
    return keywords;
}

} // namespace znlayer

#endif
