#include "base/tcl_values.h"

#include "base/text.h"

#include <tcl.h>

namespace znhost {

Tcl_Obj* NewText(std::string_view text) {
    constexpr std::size_t longest = 1 << 30;
    if (text.size() > longest) return NewText(Cut(text, longest - 3));
    return Tcl_NewStringObj(text.data(), static_cast<int>(text.size()));
}

Tcl_Obj* NewList(const std::vector<std::string>& words) {
    Tcl_Obj* const list = Tcl_NewListObj(0, nullptr);
    for (const std::string& word : words) Tcl_ListObjAppendElement(nullptr, list, NewText(word));
    return list;
}

std::string ListText(const std::vector<std::string>& words) {
    Tcl_Obj* const list = NewList(words);
    Tcl_IncrRefCount(list);
    std::string text = Tcl_GetString(list);
    Tcl_DecrRefCount(list);
    return text;
}

void Put(Tcl_Obj* dictionary, const char* key, Tcl_Obj* value) {
    Tcl_DictObjPut(nullptr, dictionary, Tcl_NewStringObj(key, -1), value);
}

} // namespace znhost
