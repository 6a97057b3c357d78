// The words by which scripts name types, the words by which results print them, and host values as text.
// Pure functions: no error state is touched. Words are matched without regard to ASCII letter case; the
// names returned are static.
#ifndef DATA_TYPES_H
#define DATA_TYPES_H

#include "host/znutl/znString.h"
#include "host/znutl/znVariant.h"
#include "znBrowserTypes.h"

#include <string_view>

namespace znlayer {

/// The data type that a script's word names, with all its short forms ("int", "uintarr"); undefined for
/// any other word. Note that "boolean" is a keyword but no type word: only "bool" is.
ZNBROWSER_DATA_TYPE DataTypeFromWord(std::string_view word);

/// The canonical name of a data type ("Integer", "BoolArray"); "UNDEFINED" for any value without one.
const char* DataTypeName(ZNBROWSER_DATA_TYPE type);

/// The type a host's word names for a view property: the five scalar types, in full words only.
ZNBROWSER_DATA_TYPE ViewPropertyTypeFromWord(std::string_view word);

/// As `DataTypeName`, but the array types are "UNDEFINED" too: view properties are scalar.
const char* ViewPropertyTypeName(ZNBROWSER_DATA_TYPE type);

/// The type as a keyword: "boolean", "integer", "double" or "string". Any other type is "unknown", the
/// unsigned one included: existing hosts rely on it.
const char* KeywordTypeName(ZNBROWSER_DATA_TYPE type);

/// The GUI map type for a key type word and a shown type word; undefined for a pair that does not exist.
ZNBROWSER_GUIMAP_TYPE GuiMapTypeFromWords(std::string_view keyWord, std::string_view shownWord);

/// The name of a GUI map type ("INT_TO_ICON"); "UNDEFINED" for any value without one.
const char* GuiMapTypeName(ZNBROWSER_GUIMAP_TYPE type);

/// The window callback operation that a text names; undefined for any other text.
ZNBROWSER_CALLBACK_OPERATION CallbackOperationFromText(std::string_view text);

/// The text of a window callback operation; "UNDEFINED" for any value without one.
const char* CallbackOperationName(ZNBROWSER_CALLBACK_OPERATION operation);

/// Writes a host value as text. False, and `text` unchanged, for a value of a type that has no text form.
/// Of a 64-bit integer only the low 32 bits are shown.
bool VariantToText(const znVariant& value, znString& text);

} // namespace znlayer

#endif
