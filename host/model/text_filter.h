// What narrows the rows of a view to those with a text.
#ifndef ZN_HOST_TEXT_FILTER_H
#define ZN_HOST_TEXT_FILTER_H

#include <string>

namespace znhost {

struct TextFilter {
    std::string pattern; ///< "" for no filter.
    bool matchCase = false;
    bool matchWord = false;
    bool allColumns = false; ///< whether it is looked for in all columns shown, or in the items' texts only

    friend bool operator==(const TextFilter&, const TextFilter&) = default;
};

} // namespace znhost

#endif
