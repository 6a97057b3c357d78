// Reading a value of any type as another.
#ifndef ZN_HOST_VARIANTS_H
#define ZN_HOST_VARIANTS_H

#include "host/znutl/znVariant.h"

#include "znBrowserTypes.h"

#include <string>

namespace znhost {

/// Whether the value is a boolean or a number.
bool IsNumber(const znVariant& value);
/// A boolean counts as 1 or 0; a text as 0.
double RealOf(const znVariant& value);
/// A number that is not 0, or a text that Tcl takes for true.
bool IsTrue(const znVariant& value);
/// Booleans as "true" and "false", real numbers so that they read back as the same.
std::string ValueText(const znVariant& value);
std::string ValueText(double number);
/// The value of that type that a text stands for; the text itself where it is none.
znVariant ReadValue(const std::string& text, ZNBROWSER_DATA_TYPE type);

} // namespace znhost

#endif
