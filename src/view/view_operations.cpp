// Operations of the current view.
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewOperation.h"
#include "view/ask_browser.h"
#include "view/view_messages.h"

namespace {

constexpr char noOperationName[] = "Cannot get name of the current view operation";
constexpr char noOperationHandle[] = "Cannot get handle to the current view operation";

} // namespace

bool znBrowserManagerTcl::CreateViewOperation(const char* name) {
    BeginOperation();
    if (!name) return Fail(view_messages::nullName);
    return AskBrowser(*this, &znIBrowser::CreateViewOperation, current_.view, name) &&
           SetCurrentViewOperation(name);
}

bool znBrowserManagerTcl::SetCurrentViewOperation(const char* name) {
    BeginOperation();
    if (!current_.view) return Fail(view_messages::noViewName);
    znIBrowserViewOperation* const operation = name ? current_.view->FindViewOperation(name) : nullptr;
    if (!operation) return FailWith({"Cannot find dataoperation named: ", name});
    SetCurrentViewOperation(operation);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentViewOperation(znString& out) {
    BeginOperation();
    if (!current_.viewOperation) return Fail(noOperationName);
    out = current_.viewOperation->GetName();
    return true;
}

bool znBrowserManagerTcl::GetViewOperationNames() { return GetState(); }

bool znBrowserManagerTcl::SetViewOperationScript(const char* script) {
    BeginOperation();
    if (!current_.viewOperation) return Fail(noOperationHandle);
    return HostAnswer(current_.viewOperation->SetScript(script));
}

bool znBrowserManagerTcl::SetViewOperationEditable(bool editable) {
    BeginOperation();
    if (!current_.viewOperation) return Fail(noOperationName);
    return HostAnswer(current_.viewOperation->SetEditable(editable));
}

bool znBrowserManagerTcl::PerformViewOperation() {
    BeginOperation();
    if (!current_.viewOperation) return Fail(noOperationHandle);
    // Its script may delete everything, the operation included, and may leave an error behind: neither
    // counts.
    current_.viewOperation->Perform();
    SetOk();
    return true;
}
