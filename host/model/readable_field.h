// An input field, as the model reads it.
#ifndef ZN_HOST_READABLE_FIELD_H
#define ZN_HOST_READABLE_FIELD_H

#include "host/znIBrowserInputField.h"

#include <string>
#include <vector>

namespace znhost {

/// What every input field of this host is.
class ReadableField : public znIBrowserInputField {
public:
    /// The value of any type as a text that Tcl reads as the same value; "" for none.
    virtual std::string Text() const = 0;
    /// The values that users choose from, as such texts; empty where any value will do.
    virtual const std::vector<std::string>& Choices() const = 0;

protected:
    ~ReadableField() = default;
};

} // namespace znhost

#endif
