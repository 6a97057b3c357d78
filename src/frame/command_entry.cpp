#include "frame/command_entry.h"

#include "frame/call.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserMessages.h"

#include <tcl.h>

#include <algorithm>
#include <exception>
#include <vector>

namespace znlayer {

namespace {

/// Turns what the host threw into the answer of the command: the error banner, as for any other refusal.
int AnswerException(znIBrowserManagerTcl& manager, const char* message) noexcept {
    Tcl_Interp* const interp = manager.GetTclInterp();
    try {
        auto& reporter = static_cast<znBrowserManagerTcl&>(manager);
        reporter.SetError(message);
        Tcl_SetObjResult(interp, Tcl_NewStringObj(reporter.GetError(), -1));
    } catch (...) {
        Tcl_SetResult(interp, const_cast<char*>("[Command] znbrowsermanager\n\t[Error] out of memory"),
                      TCL_STATIC);
    }
    return TCL_OK;
}

/// "app" moves the words within their array, and Tcl must find its own as it was: it gets a copy. Apart, so
/// that the other commands do not pay for it.
[[gnu::noinline]] int EvalCopy(znIBrowserManagerTcl& manager, int objc, Tcl_Obj* const objv[]) {
    return manager.EvalTclCommand(objc, std::vector<Tcl_Obj*>(objv, objv + objc).data());
}

int Eval(znIBrowserManagerTcl& manager, int objc, Tcl_Obj* const objv[]) {
    if (objc >= 2 && WordKeyword(objv[1]) == Keyword::App) return EvalCopy(manager, objc, objv);
    return manager.EvalTclCommand(objc, objv);
}

} // namespace

int CommandProcedure(void* clientData, Tcl_Interp*, int objc, Tcl_Obj* const objv[]) {
    znIBrowserManagerTcl& manager = *static_cast<znIBrowserManagerTcl*>(clientData);
    try {
        return Eval(manager, objc, objv);
    } catch (const std::exception& error) {
        return AnswerException(manager, error.what());
    } catch (const znString& text) {
        return AnswerException(manager, text.c_str());
    } catch (const char* text) {
        return AnswerException(manager, text);
    } catch (...) {
        return AnswerException(manager, znBrowserMessages::unexpectedError);
    }
}

} // namespace znlayer
