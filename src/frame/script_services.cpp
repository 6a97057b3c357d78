// The services by which the host reaches Tcl scripts, and the requests that the manager passes on to the
// host.
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserApplication.h"
#include "host/znIBrowserView.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserMessages.h"

#include <tcl.h>

#include <string_view>

using namespace znlayer;

namespace {

/// A text as it stands between double quotes in a script: what runs the script reads exactly this text.
znString InQuotes(std::string_view text) {
    std::string quoted;
    for (const char character : text) {
        if (std::string_view("\\\"$[").find(character) != std::string_view::npos) quoted += '\\';
        quoted += character;
    }
    return znString(quoted.c_str());
}

} // namespace

const char* znBrowserManagerTcl::GetCurrentView() const {
    return current_.view ? current_.view->GetName().c_str() : "";
}

bool znBrowserManagerTcl::EvalTclScript(const char* script) {
    const Operation operation(*this, Operation::State::Kept);
    if (!script) return operation.Fail("NULL pointer found");
    if (Tcl_Eval(GetTclInterp(), script) == TCL_OK) return true;
    return operation.Fail("Error while executing TCL script");
}

bool znBrowserManagerTcl::GetStringFromScript(const char* procName, znString& result, znString argument) {
    const Operation operation(*this);
    if (!procName) return GetState();
    AppendToBuff(procName, false, false);
    if (!argument.empty()) AppendToBuffWithQuotes(InQuotes(argument.View()).c_str(), true, false);
    // The script may use the command, and so the buffer.
    const znString script = buffer_;
    if (EvalTclScript(script.c_str())) result = Tcl_GetStringResult(GetTclInterp());
    return GetState();
}

bool znBrowserManagerTcl::UpdateTclInputScript(const char* script) {
    const Operation operation(*this);
    if (!script) return true;
    const znString quoted = InQuotes(script);
    for (const char* const piece : {"::znbrowser::UpdatePopupInputScript \"", quoted.c_str(), "\""})
        AppendToBuff(piece, true, false);
    const znString call = buffer_;
    EvalTclScript(call.c_str());
    return GetState();
}

bool znBrowserManagerTcl::UpdateTclFreeFolderSelection(
    const std::vector<znIBrowserViewItemFreeFolder*>& folders) {
    const Operation operation(*this);
    if (!EvalTclScript("::znbrowser::ResetSelectedFreeFoldersArray")) return false;
    // Whatever error the commands of that procedure left: it did run.
    if (folders.empty()) return true;
    for (znIBrowserViewItemFreeFolder* const folder : folders) {
        znString name;
        if (!GetFreeFolderName(folder, name)) break;
        ResetBuff();
        for (const char* const piece : {"::znbrowser::AddToSelectedFreeFoldersArray ", "\""})
            AppendToBuff(piece, true, false);
        if (!name.empty()) AppendToBuff(InQuotes(name.View()).c_str(), true, false);
        AppendToBuff("\"", true, false);
        const znString call = buffer_;
        if (!EvalTclScript(call.c_str())) break;
    }
    return GetState();
}

bool znBrowserManagerTcl::GetTclNameSpace(znString& out) {
    const Operation operation(*this);
    out = application_->GetTclNameSpace();
    return true;
}

bool znBrowserManagerTcl::SetFlushFlag(bool flush) {
    if (znIBrowser* const browser = BrowserOf(*this)) browser->SetFlushFlag(flush);
    return GetState();
}

bool znBrowserManagerTcl::ApplyPendingChanges() {
    const Operation operation(*this, Operation::State::Kept);
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    if (current_.freeFolder) {
        znIBrowser* const browser = BrowserOf(*this);
        return browser && browser->ApplyPendingChanges(current_.freeFolder);
    }
    // Whatever the buffer still holds goes in front of the message.
    return operation.FailBehindBuffer({"Cannot find current freefolder"});
}

void znBrowserManagerTcl::TemporaryTestFunction() {
    if (!current_.dataCtrl) return;
    if (!current_.freeFolder && current_.view) current_.freeFolder = current_.view->GetRootFreeFolder();
    znIBrowser* const browser = BrowserOf(*this);
    if (current_.freeFolder && browser) browser->ApplyPendingChanges(current_.freeFolder);
}
