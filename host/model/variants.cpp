#include "model/variants.h"

#include <charconv>
#include <tcl.h>

namespace znhost {

bool IsNumber(const znVariant& value) {
    return value.GetType() != znVariant::Undefined && value.GetType() != znVariant::String;
}

double RealOf(const znVariant& value) {
    switch (value.GetType()) {
    case znVariant::Boolean: return value.GetBoolean() ? 1 : 0;
    case znVariant::Float:
    case znVariant::Double: return value.GetDouble();
    default: return static_cast<double>(value.GetLong64());
    }
}

bool IsTrue(const znVariant& value) {
    int truth = 0;
    if (value.GetType() == znVariant::String) {
        return Tcl_GetBoolean(nullptr, value.GetString().c_str(), &truth) == TCL_OK && truth;
    }
    return RealOf(value) != 0;
}

std::string ValueText(double number) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, number);
    return {text, end.ptr};
}

std::string ValueText(const znVariant& value) {
    switch (value.GetType()) {
    case znVariant::String: return value.GetString().Str();
    case znVariant::Boolean: return value.GetBoolean() ? "true" : "false";
    case znVariant::Float:
    case znVariant::Double: return ValueText(value.GetDouble());
    case znVariant::Undefined: return {};
    default: return std::to_string(value.GetLong64());
    }
}

namespace {

template <class Number>
bool ReadWhole(const std::string& text, Number& number) {
    const char* const end = text.data() + text.size();
    const auto [last, code] = std::from_chars(text.data(), end, number);
    return code == std::errc() && last == end;
}

} // namespace

znVariant ReadValue(const std::string& text, ZNBROWSER_DATA_TYPE type) {
    std::int64_t whole = 0;
    double real = 0;
    int truth = 0;
    const bool isWhole = type == ZNBROWSER_DATA_INT || type == ZNBROWSER_DATA_UNSIGNED;
    if (isWhole && ReadWhole(text, whole)) return whole;
    if ((isWhole || type == ZNBROWSER_DATA_DOUBLE) && ReadWhole(text, real)) return real;
    if (type == ZNBROWSER_DATA_BOOL && Tcl_GetBoolean(nullptr, text.c_str(), &truth) == TCL_OK)
        return truth != 0;
    return znString(text);
}

} // namespace znhost
