// Data controls: the current one, their names, and the one that a view shows.
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znIBrowserApplication.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserView.h"
#include "znBrowserManagerTcl.h"

bool znBrowserManagerTcl::SetCurrentDataCtrl(const char* name) {
    BeginOperation();
    if (!name) return Fail("Cannot set current data control to NULL");
    znIBrowserDataCtrl* const control = application_->FindDataCtrl(name);
    if (!control) return FailWith({"Cannot not find data control : ", name});
    current_.dataCtrl = control;
    control->SetCurrentView(current_.view);
    return GetState();
}

bool znBrowserManagerTcl::GetDataCtrlNames(znString& out) {
    BeginOperation();
    std::vector<znIBrowserDataCtrl*> controls;
    application_->GetDataCtrls(controls);
    return NameList(EntryForm::Plain, ExtraBlanks::After).AddNames(controls).Give(*this, out);
}

bool znBrowserManagerTcl::DataCtrlConnect() {
    BeginOperation();
    if (!current_.view) return Fail(messages::noCurrentView);
    if (!current_.dataCtrl) return Fail(messages::noCurrentDataCtrl);
    if (znIBrowserDataCtrl* const connected = current_.view->GetDataCtrl())
        return FailWith(
            {"Need to disconnect currently connected DataControl: ", connected->GetName(), " first."});
    current_.view->SetDataCtrl(current_.dataCtrl);
    return GetState();
}

bool znBrowserManagerTcl::DataCtrlDisconnect() {
    BeginOperation();
    if (!current_.view) return Fail(messages::noCurrentView);
    current_.view->SetDataCtrl(nullptr);
    return GetState();
}
