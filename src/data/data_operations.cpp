// Data operations: named actions of a data control, which run a script.
#include "data/data_messages.h"
#include "frame/current_lifetimes.h"
#include "frame/interpreter_result.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataOperation.h"
#include "host/znIBrowserViewOperation.h"
#include "znBrowserMessages.h"

using namespace znlayer;
using namespace data_messages;

namespace {

constexpr char noControl[] = "No current datacontrol is available";
constexpr char noOperation[] = "Cannot get handle to the current data operation";

} // namespace

bool znBrowserManagerTcl::CreateDataOperation(const char* name) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    if (!name || !current_.dataCtrl->CreateDataOperation(name))
        return operation.Fail("dataoperation couldn't be created in current data control");
    if (znIBrowserDataOperation* const created = current_.dataCtrl->FindDataOperation(name))
        current_.dataOperation = created;
    return GetState();
}

bool znBrowserManagerTcl::DeleteDataOperation() {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(noControl);
    znIBrowserDataOperation* const doomed = current_.dataOperation;
    if (!doomed) return operation.Fail("Cannot get name of the current dataoperation");
    const auto deletion = [&] { return current_.dataCtrl->DeleteDataOperation(doomed); };
    if (!DeleteAndForget(*this, CurrentsInside(*this, doomed), deletion))
        return operation.Fail("dataoperation couldn't found in current data control to delete");
    return GetState();
}

bool znBrowserManagerTcl::SetCurrentDataOperation(const char* name) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    znIBrowserDataOperation* const found =
        FindNamed(current_.dataCtrl, &znIBrowserDataCtrl::FindDataOperation, name);
    if (!found) return operation.Fail({"Cannot find dataoperation named: ", name});
    current_.dataOperation = found;
    return GetState();
}

bool znBrowserManagerTcl::GetDataOperationNames(znString& out) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(noControl);
    std::vector<znIBrowserDataOperation*> operations;
    current_.dataCtrl->GetDataOperations(operations);
    return NameList().AddNames(operations, NullName::EndsList).Give(*this, out);
}

// What is missing goes straight into the interpreter result, and is no error text.
bool znBrowserManagerTcl::DataOperationConnect() {
    const Operation operation(*this);
    if (!current_.viewOperation) {
        AppendToInterpreterResult(GetTclInterp(), "No current view operation available");
        return false;
    }
    if (!current_.dataOperation) {
        AppendToInterpreterResult(GetTclInterp(), "No current datasource operation available");
        return false;
    }
    current_.viewOperation->ConnectDataOperation(current_.dataOperation);
    return GetState();
}

// The script of the operation may delete it: nothing is touched after the call.
bool znBrowserManagerTcl::PerformDataOperation() {
    const Operation operation(*this);
    if (!current_.dataOperation) return operation.Fail(noOperation);
    znIBrowser* const browser = BrowserOf(*this);
    return browser && browser->PerformDataOperation(current_.dataOperation);
}

bool znBrowserManagerTcl::SetDataOperationScript(const char* script) {
    const Operation operation(*this);
    if (!current_.dataOperation) return operation.Fail(noOperation);
    return script && current_.dataOperation->SetScript(script);
}
