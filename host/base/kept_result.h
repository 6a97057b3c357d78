// The result of a command in whose course something else is evaluated.
#ifndef ZN_HOST_KEPT_RESULT_H
#define ZN_HOST_KEPT_RESULT_H

#include <tcl.h>

namespace znhost {

/// Keeps the interpreter's result and error state, and puts them back at the end, whatever happens.
class KeptResult {
public:
    explicit KeptResult(Tcl_Interp* interp) : interp_(interp), state_(Tcl_SaveInterpState(interp, TCL_OK)) {}
    ~KeptResult() { Tcl_RestoreInterpState(interp_, state_); }
    KeptResult(const KeptResult&) = delete;
    KeptResult& operator=(const KeptResult&) = delete;

private:
    Tcl_Interp* const interp_;
    const Tcl_InterpState state_;
};

} // namespace znhost

#endif
