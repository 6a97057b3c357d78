// Values that Tcl procedures of the user compute.
#ifndef ZN_HOST_SCRIPT_VALUE_H
#define ZN_HOST_SCRIPT_VALUE_H

#include <string>
#include <vector>

namespace znhost {

class Application;

/// Calls a Tcl procedure by the manager's script service, with one argument: `item` as a list. The
/// interpreter's result and error state are put back afterwards. An error goes to the interpreter's
/// background error handler. @return false, and `value` is as it was, when the procedure failed
bool CallScript(Application& application, const std::string& procedure, const std::vector<std::string>& item,
                std::string& value);

} // namespace znhost

#endif
