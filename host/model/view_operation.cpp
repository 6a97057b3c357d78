#include "model/view_operation.h"

#include "base/services.h"
#include "model/browser.h"
#include "model/view.h"

#include "host/znIBrowserDataOperation.h"

namespace znhost {

ViewOperation::ViewOperation(View& view, std::string name)
    : HostObject(view.Log()), browser_(view.Owner()), view_(&view), name_(std::move(name)) {}

// The script may delete the operation and its view, so a hold on the operation and a copy of the script are
// kept. An operation that has lost its view does not go on to its data operation.
bool ViewOperation::Run() {
    const std::shared_ptr<ViewOperation> self = shared_from_this();
    const std::string script = script_;
    const bool ran = script.empty() || browser_.Services().RunScript(script);
    return ran && (!dataOperation_ || browser_.RunDataOperation(*dataOperation_));
}

void ViewOperation::Detach() {
    view_ = nullptr;
    dataOperation_ = nullptr;
}

void ViewOperation::Forget(const znIBrowserDataOperation& operation) {
    if (dataOperation_ == &operation) dataOperation_ = nullptr;
}

const char* ViewOperation::GetName() const {
    if (Refused("znIBrowserViewOperation::GetName")) return nullptr;
    return name_.c_str();
}

bool ViewOperation::SetEditable(bool editable) {
    if (Refused("znIBrowserViewOperation::SetEditable", editable)) return false;
    editable_ = editable;
    return true;
}

bool ViewOperation::SetScript(const char* script) {
    if (Refused("znIBrowserViewOperation::SetScript", script)) return false;
    script_ = TextOf(script);
    return true;
}

bool ViewOperation::Perform() {
    if (Refused("znIBrowserViewOperation::Perform")) return false;
    return Run();
}

bool ViewOperation::ConnectDataOperation(znIBrowserDataOperation* operation) {
    if (Refused("znIBrowserViewOperation::ConnectDataOperation", operation)) return false;
    dataOperation_ = operation;
    return true;
}

znIBrowserView* ViewOperation::GetView() {
    if (Refused("znIBrowserViewOperation::GetView")) return nullptr;
    return view_;
}

} // namespace znhost
