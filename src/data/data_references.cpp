// Data references: the links that a data control keeps, and those that a view uses.
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataReference.h"
#include "host/znIBrowserView.h"
#include "znBrowserMessages.h"

using namespace znlayer;

namespace {

using References = std::vector<znIBrowserDataReference*>;

} // namespace

bool znBrowserManagerTcl::GetDataReferencesNames(znString& out) {
    const Operation operation(*this);
    out.clear();
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    References references;
    if (!current_.dataCtrl->GetDataReferences(references))
        return operation.Fail("Cannot get data references names");
    return NameList().AddNames(references, NullName::EndsList).Give(*this, out);
}

// Connecting looks in the view's data control, disconnecting in the current one. Connecting does not empty
// the result buffer: its messages follow what stands there.
bool znBrowserManagerTcl::ConnectDataReference(const znString& name) {
    SetOk();
    const Operation operation(*this, Operation::State::Kept);
    znIBrowserDataCtrl* const control = current_.view ? current_.view->GetDataCtrl() : nullptr;
    if (!control) return operation.Fail(znBrowserMessages::noCurrentView);
    znIBrowserDataReference* const reference = control->FindDataReference(name.c_str());
    if (!reference) return operation.FailBehindBuffer({"Cannot find data reference : ", name.c_str()});
    if (!current_.view->ConnectDataReference(reference, true))
        return operation.FailBehindBuffer({"Could not connect Data Reference : ", name.c_str()});
    return GetState();
}

bool znBrowserManagerTcl::DisconnectDataReference(const znString& name) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(znBrowserMessages::noCurrentView);
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    znIBrowserDataReference* const reference = current_.dataCtrl->FindDataReference(name.c_str());
    if (!reference) return operation.Fail({"Cannot find data source : ", name.c_str()});
    if (!current_.view->ConnectDataReference(reference, false)) return operation.Fail("Cannot create tree");
    return GetState();
}

bool znBrowserManagerTcl::GetConnectedDataReferencesNames(znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail("Current view is not set");
    References references;
    if (!current_.view->GetConnectedDataReferences(references))
        return operation.Fail("Cannot get list of connected data sources");
    return NameList().AddNames(references, NullName::EndsList).Give(*this, out);
}
