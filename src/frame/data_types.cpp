#include "frame/data_types.h"

#include "frame/ascii.h"
#include "znBrowserTclKeywords.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace znlayer {

namespace {

struct TypeWord {
    std::string_view word;
    ZNBROWSER_DATA_TYPE type;
};

constexpr TypeWord dataTypeWords[] = {
    {"bool", ZNBROWSER_DATA_BOOL},
    {"boolarray", ZNBROWSER_DATA_BOOL_ARRAY},
    {"boolarr", ZNBROWSER_DATA_BOOL_ARRAY},
    {"integer", ZNBROWSER_DATA_INT},
    {"int", ZNBROWSER_DATA_INT},
    {"integerarray", ZNBROWSER_DATA_INT_ARRAY},
    {"integerarr", ZNBROWSER_DATA_INT_ARRAY},
    {"intarr", ZNBROWSER_DATA_INT_ARRAY},
    {"unsigned", ZNBROWSER_DATA_UNSIGNED},
    {"uint", ZNBROWSER_DATA_UNSIGNED},
    {"unsignedarray", ZNBROWSER_DATA_UNSIGNED_ARRAY},
    {"unsignedarr", ZNBROWSER_DATA_UNSIGNED_ARRAY},
    {"uintarr", ZNBROWSER_DATA_UNSIGNED_ARRAY},
    {"double", ZNBROWSER_DATA_DOUBLE},
    {"doublearray", ZNBROWSER_DATA_DOUBLE_ARRAY},
    {"doublearr", ZNBROWSER_DATA_DOUBLE_ARRAY},
    {"string", ZNBROWSER_DATA_STRING},
    {"str", ZNBROWSER_DATA_STRING},
    {"stringarray", ZNBROWSER_DATA_STRING_ARRAY},
    {"stringarr", ZNBROWSER_DATA_STRING_ARRAY},
    {"strarr", ZNBROWSER_DATA_STRING_ARRAY},
};

constexpr TypeWord viewPropertyTypeWords[] = {
    {"integer", ZNBROWSER_DATA_INT},   {"double", ZNBROWSER_DATA_DOUBLE},
    {"string", ZNBROWSER_DATA_STRING}, {"unsigned", ZNBROWSER_DATA_UNSIGNED},
    {"bool", ZNBROWSER_DATA_BOOL},
};

/// Names of an enumeration; the position is the value, and 0 is the name of every value without one.
constexpr const char* dataTypeNames[] = {"UNDEFINED",    "Bool",        "Unsigned",   "Integer",
                                         "Double",       "String",      "BoolArray",  "UnsignedArray",
                                         "IntegerArray", "DoubleArray", "StringArray"};
constexpr const char* callbackOperationNames[] = {"UNDEFINED", "TREE_AREA_SELECT_PARENT_ITEMS",
                                                  "TREE_AREA_SELECT_CHILDREN_ITEMS"};

struct GuiMapRow {
    const char* name;
    std::string_view keyWord;
    std::string_view shownWord;
};

constexpr GuiMapRow guiMapRows[] = {
    {"UNDEFINED", "", ""},
    {"INT_TO_ICON", "integer", "icon"},
    {"INT_TO_STRING", "integer", "string"},
    {"INT_TO_RGB", "integer", "rgb"},
    {"DOUBLE_TO_ICON", "double", "icon"},
    {"DOUBLE_TO_STRING", "double", "string"},
    {"DOUBLE_TO_RGB", "double", "rgb"},
    {"UINT_TO_ICON", "unsigned", "icon"},
    {"UINT_TO_STRING", "unsigned", "string"},
    {"UINT_TO_RGB", "unsigned", "rgb"},
    {"BOOL_TO_ICON", "bool", "icon"},
    {"BOOL_TO_STRING", "bool", "string"},
    {"BOOL_TO_RGB", "bool", "rgb"},
    {"STRING_TO_ICON", "string", "icon"},
    {"STRING_TO_STRING", "string", "string"},
    {"STRING_TO_RGB", "string", "rgb"},
    {"STRING_TO_BUTTON", "string", "button"},
};

template <std::size_t count>
ZNBROWSER_DATA_TYPE TypeFromWord(const TypeWord (&words)[count], std::string_view word) {
    for (const TypeWord& row : words) {
        if (EqualsIgnoringCase(row.word, word)) return row.type;
    }
    return ZNBROWSER_DATA_UNDEFINED;
}

/// The row of an enumeration's value, the first one for a value outside the table.
template <class Row, std::size_t count>
const Row& RowOf(const Row (&rows)[count], int value) {
    const auto position = static_cast<std::size_t>(value);
    return rows[position < count ? position : 0];
}

/// The `printf` form of a number; the longest is a double of 309 digits before the point.
template <class Number>
void Format(const char* format, Number number, znString& text) {
    char buffer[352];
    std::snprintf(buffer, sizeof buffer, format, number);
    text.assign(buffer);
}

} // namespace

ZNBROWSER_DATA_TYPE DataTypeFromWord(std::string_view word) { return TypeFromWord(dataTypeWords, word); }

const char* DataTypeName(ZNBROWSER_DATA_TYPE type) { return RowOf(dataTypeNames, type); }

ZNBROWSER_DATA_TYPE ViewPropertyTypeFromWord(std::string_view word) {
    return TypeFromWord(viewPropertyTypeWords, word);
}

const char* ViewPropertyTypeName(ZNBROWSER_DATA_TYPE type) {
    return DataTypeName(type <= ZNBROWSER_DATA_STRING ? type : ZNBROWSER_DATA_UNDEFINED);
}

const char* KeywordTypeName(ZNBROWSER_DATA_TYPE type) {
    switch (type) {
    case ZNBROWSER_DATA_BOOL: return znBrowserTclKeywords::KEYWORD_BOOLEAN;
    case ZNBROWSER_DATA_INT: return znBrowserTclKeywords::KEYWORD_INTEGER;
    case ZNBROWSER_DATA_DOUBLE: return znBrowserTclKeywords::KEYWORD_DOUBLE;
    case ZNBROWSER_DATA_STRING: return znBrowserTclKeywords::KEYWORD_STRING;
    default: return znBrowserTclKeywords::KEYWORD_UNKNOWN;
    }
}

ZNBROWSER_GUIMAP_TYPE GuiMapTypeFromWords(std::string_view keyWord, std::string_view shownWord) {
    int type = ZNBROWSER_GUIMAP_UNDEFINED;
    for (const GuiMapRow& row : guiMapRows) {
        if (EqualsIgnoringCase(row.keyWord, keyWord) && EqualsIgnoringCase(row.shownWord, shownWord)) {
            return static_cast<ZNBROWSER_GUIMAP_TYPE>(type);
        }
        ++type;
    }
    return ZNBROWSER_GUIMAP_UNDEFINED;
}

const char* GuiMapTypeName(ZNBROWSER_GUIMAP_TYPE type) { return RowOf(guiMapRows, type).name; }

ZNBROWSER_CALLBACK_OPERATION CallbackOperationFromText(std::string_view text) {
    for (const auto operation : {ZNBROWSER_CALLBACK_TREE_AREA_SELECT_PARENT_ITEMS,
                                 ZNBROWSER_CALLBACK_TREE_AREA_SELECT_CHILDREN_ITEMS}) {
        if (EqualsIgnoringCase(CallbackOperationName(operation), text)) return operation;
    }
    return ZNBROWSER_CALLBACK_UNDEFINED;
}

const char* CallbackOperationName(ZNBROWSER_CALLBACK_OPERATION operation) {
    return RowOf(callbackOperationNames, operation);
}

bool VariantToText(const znVariant& value, znString& text) {
    switch (value.GetType()) {
    case znVariant::Boolean:
        text.assign(value.GetBoolean() ? znBrowserTclKeywords::KEYWORD_TRUE
                                       : znBrowserTclKeywords::KEYWORD_FALSE);
        return true;
    case znVariant::Integer: Format("%d", value.GetInteger(), text); return true;
    case znVariant::Long64: // truncated: scripts have always seen the low 32 bits only
        Format("%d", static_cast<int>(static_cast<std::uint32_t>(value.GetLong64())), text);
        return true;
    case znVariant::Float:
    case znVariant::Double: Format("%lf", value.GetDouble(), text); return true;
    case znVariant::String: text.assign(value.GetString().View()); return true;
    default: return false;
    }
}

} // namespace znlayer
