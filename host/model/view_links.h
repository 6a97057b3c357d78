// How the items of a view hang together.
#ifndef ZN_HOST_VIEW_LINKS_H
#define ZN_HOST_VIEW_LINKS_H

#include "model/row_source.h"

#include <algorithm>
#include <vector>

namespace znhost {

class View;

/// Adds a link that is not there yet.
inline void AddNewLink(std::vector<RowLink>& links, const RowLink& link) {
    if (std::find(links.begin(), links.end(), link) == links.end()) links.push_back(link);
}

/// The links of all trees that the view has, each once.
std::vector<RowLink> LinksOf(const View& view);

} // namespace znhost

#endif
