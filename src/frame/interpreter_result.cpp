#include "frame/interpreter_result.h"

#include <tcl.h>

namespace znlayer {

void AppendToInterpreterResult(Tcl_Interp* interp, const char* text) {
    Tcl_AppendResult(interp, text, static_cast<char*>(nullptr));
}

} // namespace znlayer
