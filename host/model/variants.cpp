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

} // namespace znhost
