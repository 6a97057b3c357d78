// Input fields: named, typed values of a data control.
#include "frame/data_types.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserInputField.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

using namespace znlayer;

namespace {

// The data type and the value name the field in two spellings.
constexpr char noField[] = "Cannot get name of the current inputfield";
constexpr char noFieldForValue[] = "Cannot get name of the current input field";
constexpr int lastHostType = 13;

/// The value of a field of a type that can be read, as text.
bool ReadValue(const znIBrowserInputField& field, znString& out) {
    char text[330]; // The largest double has 309 digits before the point.
    bool truth = false;
    int integer = 0;
    double real = 0;
    switch (field.GetDataType()) {
    case ZNBROWSER_DATA_BOOL:
        if (!field.GetBoolValue(truth)) return false;
        out = truth ? znBrowserTclKeywords::KEYWORD_TRUE : znBrowserTclKeywords::KEYWORD_FALSE;
        return true;
    case ZNBROWSER_DATA_INT:
        if (!field.GetIntegerValue(integer)) return false;
        std::snprintf(text, sizeof text, "%d", integer);
        out = text;
        return true;
    case ZNBROWSER_DATA_DOUBLE:
        if (!field.GetDoubleValue(real)) return false;
        std::snprintf(text, sizeof text, "%f", real);
        out = text;
        return true;
    default: return field.GetStringValue(out);
    }
}

// Unsigned values can be written, but not read back.
bool CanRead(ZNBROWSER_DATA_TYPE type) {
    return type == ZNBROWSER_DATA_BOOL || type == ZNBROWSER_DATA_INT || type == ZNBROWSER_DATA_DOUBLE ||
           type == ZNBROWSER_DATA_STRING;
}

/// Whole numbers as the C library reads them; those that are too large keep their low bits.
template <class Number>
Number ReadNumber(const char* text) {
    return static_cast<Number>(std::strtol(text, nullptr, 10));
}

/// Hands a value to a field, whose answer is not asked for. @return false for a type that takes no text
bool WriteValue(znIBrowserInputField& field, const char* text) {
    switch (field.GetDataType()) {
    case ZNBROWSER_DATA_BOOL: field.SetBoolValue(text == std::string_view("true")); return true;
    case ZNBROWSER_DATA_UNSIGNED: field.SetUnsignedValue(ReadNumber<unsigned int>(text)); return true;
    case ZNBROWSER_DATA_INT: field.SetIntegerValue(ReadNumber<int>(text)); return true;
    case ZNBROWSER_DATA_DOUBLE: field.SetDoubleValue(std::strtod(text, nullptr)); return true;
    case ZNBROWSER_DATA_STRING: field.SetStringValue(text); return true;
    default: return false;
    }
}

} // namespace

// Creating, deleting and listing fields is refused while a data control is current, and without one there is
// nothing to work on. So it is always refused: applications make their input fields themselves.
bool znBrowserManagerTcl::CreateInputField(const char*, const char*) {
    const Operation operation(*this);
    return operation.Fail("Cannot get the current data control");
}

bool znBrowserManagerTcl::DeleteInputField() {
    const Operation operation(*this);
    return operation.Fail("Current Data Control object is not set");
}

bool znBrowserManagerTcl::GetInputFieldNames(znString&) {
    const Operation operation(*this);
    return operation.Fail("Cannot get the current data control");
}

bool znBrowserManagerTcl::SetCurrentInputField(const char* name) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail("No current available data control");
    znIBrowserInputField* const field =
        FindNamed(current_.dataCtrl, &znIBrowserDataCtrl::FindInputField, name);
    if (!field) return operation.Fail({"Cannot find inputfield named: ", name});
    current_.inputField = field;
    return GetState();
}

bool znBrowserManagerTcl::GetInputFieldDataType(znString& out) {
    const Operation operation(*this);
    if (!current_.inputField) return operation.Fail(noField);
    out = DataTypeName(current_.inputField->GetDataType());
    return GetState();
}

bool znBrowserManagerTcl::SetInputFieldDataType(const char* word) {
    const Operation operation(*this);
    if (!current_.inputField) return operation.Fail(noField);
    if (!word) return false;
    const ZNBROWSER_DATA_TYPE type = DataTypeFromWord(word);
    if (type < ZNBROWSER_DATA_BOOL || type > lastHostType)
        return operation.Fail("Invalid criteria type specified");
    current_.inputField->SetDataType(type);
    return GetState();
}

bool znBrowserManagerTcl::GetInputFieldValue(znString& out) {
    const Operation operation(*this);
    if (!current_.inputField) return operation.Fail(noFieldForValue);
    if (!CanRead(current_.inputField->GetDataType()))
        return operation.Fail("Cannot get type of the current input field");
    if (!ReadValue(*current_.inputField, out))
        return operation.Fail("Cannot get value of the current input field");
    return GetState();
}

bool znBrowserManagerTcl::SetInputFieldValue(const char* text) {
    const Operation operation(*this);
    if (!current_.inputField) return operation.Fail(noFieldForValue);
    if (!text) return false;
    if (!WriteValue(*current_.inputField, text))
        return operation.Fail("Current Input field data type is not defined/supported yet...");
    return GetState();
}

bool znBrowserManagerTcl::ResetInputFieldValue() {
    const Operation operation(*this);
    if (!current_.inputField) return operation.Fail(noFieldForValue);
    current_.inputField->ResetValue();
    return GetState();
}
