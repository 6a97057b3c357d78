// `--strict`: error banners as Tcl errors.
#ifndef SHELL_STRICT_H
#define SHELL_STRICT_H

#include <tcl.h>

/// Wraps the registered command `name`: a result that holds an error banner then is a Tcl error with the
/// same text and the errorCode {ZNBROWSER ERROR message}. The wrapper dies with the command.
/// Returns false when there is no such command.
bool MakeStrict(Tcl_Interp* interp, const char* name);

#endif
