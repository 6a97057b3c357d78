// Reading a value of any type as another.
#ifndef ZN_HOST_VARIANTS_H
#define ZN_HOST_VARIANTS_H

#include "host/znutl/znVariant.h"

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

} // namespace znhost

#endif
