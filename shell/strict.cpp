#include "strict.h"

#include <string>
#include <string_view>

namespace {

constexpr std::string_view BANNER_START = "[Command] ";
constexpr std::string_view BANNER_MESSAGE = "\n\t[Error] ";

/// The command as it was before: what the wrapper calls, and what it releases when the command goes.
struct Wrapped {
    Tcl_CmdInfo info;
};

std::string_view TextOf(Tcl_Obj* object) {
    int length = 0;
    const char* const text = Tcl_GetStringFromObj(object, &length);
    return {text, static_cast<std::size_t>(length)};
}

/// Where the banner's message begins in `result`; npos without a banner. The banner names the words of
/// this call; one that opens the result may name those of a call made from within it.
std::size_t FindMessage(std::string_view result, int objc, Tcl_Obj* const objv[]) {
    if (result.find(BANNER_MESSAGE) == std::string_view::npos) return std::string_view::npos;
    std::string banner(BANNER_START);
    for (int i = 0; i < objc; ++i) banner.append(i ? " " : "").append(TextOf(objv[i]));
    banner.append(BANNER_MESSAGE);
    if (const std::size_t found = result.find(banner); found != std::string_view::npos) {
        return found + banner.size();
    }
    if (result.substr(0, BANNER_START.size()) != BANNER_START) return std::string_view::npos;
    return result.find(BANNER_MESSAGE) + BANNER_MESSAGE.size();
}

int StrictCommand(ClientData clientData, Tcl_Interp* interp, int objc, Tcl_Obj* const objv[]) {
    const Tcl_CmdInfo info = static_cast<Wrapped*>(clientData)->info; // the call may delete the command
    const int code = info.objProc(info.objClientData, interp, objc, objv);
    if (code != TCL_OK) return code;
    const std::string_view result = TextOf(Tcl_GetObjResult(interp));
    const std::size_t start = FindMessage(result, objc, objv);
    if (start == std::string_view::npos) return TCL_OK;
    const std::string message(result.substr(start));
    Tcl_SetErrorCode(interp, "ZNBROWSER", "ERROR", message.c_str(), nullptr);
    return TCL_ERROR;
}

void DeleteWrapped(ClientData clientData) {
    Wrapped* const wrapped = static_cast<Wrapped*>(clientData);
    if (wrapped->info.deleteProc) wrapped->info.deleteProc(wrapped->info.deleteData);
    delete wrapped;
}

} // namespace

bool MakeStrict(Tcl_Interp* interp, const char* name) {
    Tcl_CmdInfo info;
    if (!Tcl_GetCommandInfo(interp, name, &info)) return false;
    Wrapped* const wrapped = new Wrapped{info};
    info.objProc = StrictCommand;
    info.objClientData = wrapped;
    info.deleteProc = DeleteWrapped;
    info.deleteData = wrapped;
    return Tcl_SetCommandInfo(interp, name, &info) != 0;
}
