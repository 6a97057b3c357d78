// The values that a popup menu item asks for.
#ifndef ZN_HOST_POPUP_INPUT_H
#define ZN_HOST_POPUP_INPUT_H

#include "znBrowserTypes.h"

#include <string>
#include <vector>

class znIBrowserDataCtrl;
class znIBrowserInputField;

namespace znhost {

class CallLog;

/// A value of an input field, as a text.
struct InputValue {
    std::string field;
    ZNBROWSER_DATA_TYPE type = ZNBROWSER_DATA_UNDEFINED;
    std::string text;
    std::vector<std::string> choices; ///< what it must be one of; empty for any value of its type
};
using InputValues = std::vector<InputValue>;

/// Why a text is no value of that type: "" when it is one. Numbers and booleans are read as Tcl does.
std::string WhyNoValue(ZNBROWSER_DATA_TYPE type, const std::string& text);
/// The same for a value that may have to be one of several.
std::string WhyNoValue(const InputValue& value);

/// The field of that name; null when there is none. The call is not recorded.
znIBrowserInputField* FindField(CallLog& log, znIBrowserDataCtrl* control, const std::string& name);

/// The present value of a field.
InputValue ReadField(CallLog& log, znIBrowserInputField& field);
/// Sets a value that is one of its type. @return false, with an error text, when the field has got another
/// type
bool WriteField(CallLog& log, znIBrowserInputField& field, const InputValue& value);

/// The values as `znIBrowserManagerTcl::UpdateTclInputScript` takes them: a Tcl list of a name, a type and a
/// value each.
std::string InputScript(const InputValues& values);

} // namespace znhost

#endif
