// The type conversions that the manager offers to the host.
#include "frame/data_types.h"
#include "znBrowserManagerTcl.h"

#include <tcl.h>

ZNBROWSER_DATA_TYPE znBrowserManagerTcl::ConvertStringToViewPropertyType(const char* word) {
    return word ? ViewPropertyTypeFromWord(word) : ZNBROWSER_DATA_UNDEFINED;
}

const char* znBrowserManagerTcl::ConvertViewPropertyTypeToString(ZNBROWSER_DATA_TYPE type) {
    return ViewPropertyTypeName(type);
}

bool znBrowserManagerTcl::GetZnBrowserDataTypeString(ZNBROWSER_DATA_TYPE type, znString& out) {
    out = KeywordTypeName(type);
    return true;
}

void znBrowserManagerTcl::GetStringListFromTclArgs(int objc, Tcl_Obj* const objv[], unsigned int first,
                                                   std::vector<znString> list) {
    list.clear();
    for (int i = static_cast<int>(first); i < objc; ++i) list.emplace_back(Tcl_GetString(objv[i]));
}
