// The interpreter result, for the few operations that write into it themselves.
#ifndef INTERPRETER_RESULT_H
#define INTERPRETER_RESULT_H

struct Tcl_Interp;

namespace znlayer {

void AppendToInterpreterResult(Tcl_Interp* interp, const char* text);

} // namespace znlayer

#endif
