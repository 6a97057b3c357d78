#include "model/script_value.h"

#include "model/application.h"
#include "znIBrowserManagerTcl.h"

#include <tcl.h>

namespace znhost {

namespace {

/// A list of the words, in the form in which it stands between double quotes: nothing in it is substituted.
std::string QuotedList(const std::vector<std::string>& words) {
    std::vector<const char*> texts;
    for (const std::string& word : words) texts.push_back(word.c_str());
    char* const list = Tcl_Merge(static_cast<int>(texts.size()), texts.data());
    std::string quoted;
    for (const char* character = list; *character; ++character) {
        if (std::string_view("\\\"$[").find(*character) != std::string_view::npos) quoted += '\\';
        quoted += *character;
    }
    Tcl_Free(list);
    return quoted;
}

} // namespace

bool CallScript(Application& application, const std::string& procedure, const std::vector<std::string>& item,
                std::string& value) {
    Tcl_Interp* const interp = application.Interp();
    znIBrowserManagerTcl* const manager = application.Manager();
    if (!manager || Tcl_InterpDeleted(interp)) return false;
    const Tcl_InterpState state = Tcl_SaveInterpState(interp, TCL_OK);
    Tcl_ResetResult(interp);
    znString result;
    const bool called = manager->GetStringFromScript(procedure.c_str(), result, QuotedList(item));
    if (called) {
        value = result.Str();
    } else {
        Tcl_BackgroundException(interp, TCL_ERROR);
    }
    Tcl_RestoreInterpState(interp, state);
    return called;
}

} // namespace znhost
