// Data references: the links that a data control keeps, and those that a view uses.
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataReference.h"
#include "host/znIBrowserView.h"

namespace {

using References = std::vector<znIBrowserDataReference*>;

} // namespace

bool znBrowserManagerTcl::GetDataReferencesNames(znString& out) {
    BeginOperation();
    out.clear();
    if (!current_.dataCtrl) return Fail(messages::noCurrentDataCtrl);
    References references;
    if (!current_.dataCtrl->GetDataReferences(references)) return Fail("Cannot get data references names");
    return NameList().AddNames(references, NullName::EndsList).Give(*this, out);
}

// Connecting looks in the view's data control, disconnecting in the current one. Connecting does not empty
// the result buffer: its messages follow what stands there.
bool znBrowserManagerTcl::ConnectDataReference(const znString& name) {
    SetOk();
    znIBrowserDataCtrl* const control = current_.view ? current_.view->GetDataCtrl() : nullptr;
    if (!control) return Fail(messages::noCurrentView);
    znIBrowserDataReference* const reference = control->FindDataReference(name.c_str());
    if (!reference) return FailWith({"Cannot find data reference : ", name.c_str()});
    if (!current_.view->ConnectDataReference(reference, true))
        return FailWith({"Could not connect Data Reference : ", name.c_str()});
    return GetState();
}

bool znBrowserManagerTcl::DisconnectDataReference(const znString& name) {
    BeginOperation();
    if (!current_.view) return Fail(messages::noCurrentView);
    if (!current_.dataCtrl) return Fail(messages::noCurrentDataCtrl);
    znIBrowserDataReference* const reference = current_.dataCtrl->FindDataReference(name.c_str());
    if (!reference) return FailWith({"Cannot find data source : ", name.c_str()});
    if (!current_.view->ConnectDataReference(reference, false)) return Fail("Cannot create tree");
    return GetState();
}

bool znBrowserManagerTcl::GetConnectedDataReferencesNames(znString& out) {
    BeginOperation();
    if (!current_.view) return Fail("Current view is not set");
    References references;
    if (!current_.view->GetConnectedDataReferences(references))
        return Fail("Cannot get list of connected data sources");
    return NameList().AddNames(references, NullName::EndsList).Give(*this, out);
}
