// Data controls: the current one, their names, and the one that a view shows.
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserApplication.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserView.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserMessages.h"

using namespace znlayer;

bool znBrowserManagerTcl::SetCurrentDataCtrl(const char* name) {
    const Operation operation(*this);
    if (!name) return operation.Fail("Cannot set current data control to NULL");
    znIBrowserDataCtrl* const control = application_->FindDataCtrl(name);
    if (!control) return operation.Fail({"Cannot not find data control : ", name});
    current_.dataCtrl = control;
    control->SetCurrentView(current_.view);
    return GetState();
}

bool znBrowserManagerTcl::GetDataCtrlNames(znString& out) {
    const Operation operation(*this);
    std::vector<znIBrowserDataCtrl*> controls;
    application_->GetDataCtrls(controls);
    return NameList(EntryForm::Plain, ExtraBlanks::After).AddNames(controls).Give(*this, out);
}

bool znBrowserManagerTcl::DataCtrlConnect() {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(znBrowserMessages::noCurrentView);
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    if (znIBrowserDataCtrl* const connected = current_.view->GetDataCtrl())
        return operation.Fail(
            {"Need to disconnect currently connected DataControl: ", connected->GetName(), " first."});
    current_.view->SetDataCtrl(current_.dataCtrl);
    return GetState();
}

bool znBrowserManagerTcl::DataCtrlDisconnect() {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(znBrowserMessages::noCurrentView);
    current_.view->SetDataCtrl(nullptr);
    return GetState();
}
