#include "tk/browse.h"

#include "base/kept_result.h"
#include "base/tcl_values.h"
#include "tk/tk_scripts.h"

#include <tcl.h>

#include <algorithm>
#include <vector>

namespace znhost {

namespace {

constexpr const char* script = "default_browser.tcl";
constexpr const char* procedure = "::znbrowser::any::browse";
/// How many columns of a browser fit a terminal; a window has a scroll bar.
constexpr const char* textColumns = "8";

int LoadScript(Tcl_Interp* interp) {
    const auto& scripts = TkScripts();
    const auto found =
        std::find_if(scripts.begin(), scripts.end(), [](const auto& one) { return one.file == script; });
    const std::string_view text = found->text;
    return Tcl_EvalEx(interp, text.data(), static_cast<int>(text.size()), TCL_EVAL_GLOBAL);
}

int Browse(Tcl_Interp* interp, const std::string& dataCtrl, bool asText) {
    std::vector<std::string> words{procedure, dataCtrl};
    if (asText) words.emplace_back(textColumns);
    Tcl_Obj* const command = NewList(words);
    Tcl_IncrRefCount(command);
    const int code = Tcl_EvalObjEx(interp, command, TCL_EVAL_GLOBAL);
    Tcl_DecrRefCount(command);
    return code;
}

} // namespace

bool OpenDefaultBrowser(Tcl_Interp* interp, const std::string& dataCtrl, bool asText, std::string& error) {
    const KeptResult kept(interp);
    if (LoadScript(interp) == TCL_OK && Browse(interp, dataCtrl, asText) == TCL_OK) return true;
    error = Tcl_GetStringResult(interp);
    return false;
}

} // namespace znhost
