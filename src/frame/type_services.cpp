// The type conversions that the manager offers to the host.
#include "frame/data_types.h"
#include "frame/word_text.h"
#include "znBrowserManagerTcl.h"

using namespace znlayer;

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
    const auto count = static_cast<unsigned int>(objc > 0 ? objc : 0);
    for (unsigned int i = first; i < count; ++i) {
        if (const char* const text = WordText(objv[i]).data()) list.emplace_back(text);
    }
}
