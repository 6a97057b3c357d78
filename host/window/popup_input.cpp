#include "window/popup_input.h"

#include "base/host_call.h"
#include "base/tcl_values.h"
#include "host/znIBrowserDataCtrl.h"
#include "model/readable_field.h"

#include <algorithm>
#include <limits>
#include <tcl.h>

namespace znhost {

namespace {

/// A text as a Tcl value, for as long as this lives.
class Value {
public:
    explicit Value(const std::string& text) : object_(NewText(text)) { Tcl_IncrRefCount(object_); }
    ~Value() { Tcl_DecrRefCount(object_); }
    Value(const Value&) = delete;
    Value& operator=(const Value&) = delete;

    bool Read(bool& value) const {
        int read = 0;
        if (Tcl_GetBooleanFromObj(nullptr, object_, &read) != TCL_OK) return false;
        value = read != 0;
        return true;
    }
    bool Read(double& value) const { return Tcl_GetDoubleFromObj(nullptr, object_, &value) == TCL_OK; }
    template <class Number>
    bool Read(Number& value) const {
        Tcl_WideInt read = 0;
        if (Tcl_GetWideIntFromObj(nullptr, object_, &read) != TCL_OK) return false;
        if (read < std::numeric_limits<Number>::min() || read > std::numeric_limits<Number>::max())
            return false;
        value = static_cast<Number>(read);
        return true;
    }

private:
    Tcl_Obj* const object_;
};

template <class Type>
bool Fits(const std::string& text) {
    Type value{};
    return Value(text).Read(value);
}

template <class Type>
Type ReadAs(const std::string& text) {
    Type value{};
    Value(text).Read(value);
    return value;
}

const char* TypeWord(ZNBROWSER_DATA_TYPE type) {
    switch (type) {
    case ZNBROWSER_DATA_BOOL: return "bool";
    case ZNBROWSER_DATA_UNSIGNED:
    case ZNBROWSER_DATA_INT: return "int";
    case ZNBROWSER_DATA_DOUBLE: return "double";
    default: return "string";
    }
}

} // namespace

std::string WhyNoValue(ZNBROWSER_DATA_TYPE type, const std::string& text) {
    switch (type) {
    case ZNBROWSER_DATA_BOOL: return Fits<bool>(text) ? "" : "it must be true or false";
    case ZNBROWSER_DATA_UNSIGNED:
        return Fits<unsigned int>(text) ? "" : "it must be a whole number from 0 to 4294967295";
    case ZNBROWSER_DATA_INT:
        return Fits<int>(text) ? "" : "it must be a whole number from -2147483648 to 2147483647";
    case ZNBROWSER_DATA_DOUBLE: return Fits<double>(text) ? "" : "it must be a number";
    case ZNBROWSER_DATA_STRING: return "";
    default: return "the field has a type of which no values are kept";
    }
}

std::string WhyNoValue(const InputValue& value) {
    const std::string reason = WhyNoValue(value.type, value.text);
    if (!reason.empty() || value.choices.empty()) return reason;
    const bool isChoice =
        std::find(value.choices.begin(), value.choices.end(), value.text) != value.choices.end();
    return isChoice ? "" : "it must be one of the list";
}

znIBrowserInputField* FindField(CallLog& log, znIBrowserDataCtrl* control, const std::string& name) {
    const CallLog::Quiet quiet(log);
    return control ? control->FindInputField(name.c_str()) : nullptr;
}

InputValue ReadField(CallLog& log, znIBrowserInputField& field) {
    const CallLog::Quiet quiet(log);
    const auto& readable = static_cast<ReadableField&>(field);
    return {TextOf(field.GetName()), field.GetDataType(), readable.Text(), readable.Choices()};
}

bool WriteField(CallLog& log, znIBrowserInputField& field, const InputValue& value) {
    const CallLog::Quiet quiet(log);
    switch (value.type) {
    case ZNBROWSER_DATA_BOOL: return field.SetBoolValue(ReadAs<bool>(value.text));
    case ZNBROWSER_DATA_UNSIGNED: return field.SetUnsignedValue(ReadAs<unsigned int>(value.text));
    case ZNBROWSER_DATA_INT: return field.SetIntegerValue(ReadAs<int>(value.text));
    case ZNBROWSER_DATA_DOUBLE: return field.SetDoubleValue(ReadAs<double>(value.text));
    default: return field.SetStringValue(value.text.c_str());
    }
}

std::string InputScript(const InputValues& values) {
    std::vector<std::string> words;
    for (const InputValue& value : values) {
        words.insert(words.end(), {value.field, TypeWord(value.type), value.text});
    }
    Tcl_Obj* const list = NewList(words);
    Tcl_IncrRefCount(list);
    const std::string script = Tcl_GetString(list);
    Tcl_DecrRefCount(list);
    return script;
}

} // namespace znhost
