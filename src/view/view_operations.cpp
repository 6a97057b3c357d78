// Operations of the current view.
#include "frame/operation.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewOperation.h"
#include "view/view_messages.h"

using namespace znlayer;

namespace {

constexpr char noOperationName[] = "Cannot get name of the current view operation";
constexpr char noOperationHandle[] = "Cannot get handle to the current view operation";

} // namespace

bool znBrowserManagerTcl::CreateViewOperation(const char* name) {
    const Operation operation(*this);
    if (!name) return operation.Fail(view_messages::nullName);
    return operation.Ask(&znIBrowser::CreateViewOperation, current_.view, name) &&
           SetCurrentViewOperation(name);
}

bool znBrowserManagerTcl::SetCurrentViewOperation(const char* name) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(view_messages::noViewName);
    znIBrowserViewOperation* const found = FindNamed(current_.view, &znIBrowserView::FindViewOperation, name);
    if (!found) return operation.Fail({"Cannot find dataoperation named: ", name});
    SetCurrentViewOperation(found);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentViewOperation(znString& out) {
    const Operation operation(*this);
    if (!current_.viewOperation) return operation.Fail(noOperationName);
    out = current_.viewOperation->GetName();
    return true;
}

bool znBrowserManagerTcl::GetViewOperationNames() { return GetState(); }

bool znBrowserManagerTcl::SetViewOperationScript(const char* script) {
    const Operation operation(*this);
    if (!current_.viewOperation) return operation.Fail(noOperationHandle);
    return operation.HostAnswer(current_.viewOperation->SetScript(script));
}

bool znBrowserManagerTcl::SetViewOperationEditable(bool editable) {
    const Operation operation(*this);
    if (!current_.viewOperation) return operation.Fail(noOperationName);
    return operation.HostAnswer(current_.viewOperation->SetEditable(editable));
}

bool znBrowserManagerTcl::PerformViewOperation() {
    const Operation operation(*this);
    if (!current_.viewOperation) return operation.Fail(noOperationHandle);
    // Its script may delete everything, the operation included, and may leave an error behind: neither
    // counts.
    current_.viewOperation->Perform();
    SetOk();
    return true;
}
