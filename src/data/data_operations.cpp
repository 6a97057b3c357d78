// Data operations: named actions of a data control, which run a script.
#include "data/data_messages.h"
#include "frame/deletion.h"
#include "frame/interpreter_result.h"
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataOperation.h"
#include "host/znIBrowserViewOperation.h"

using namespace data_messages;

namespace {

constexpr char noControl[] = "No current datacontrol is available";
constexpr char noOperation[] = "Cannot get handle to the current data operation";

} // namespace

bool znBrowserManagerTcl::CreateDataOperation(const char* name) {
    BeginOperation();
    if (!current_.dataCtrl) return Fail(noDataCtrl);
    if (!name || !current_.dataCtrl->CreateDataOperation(name))
        return Fail("dataoperation couldn't be created in current data control");
    if (znIBrowserDataOperation* const operation = current_.dataCtrl->FindDataOperation(name))
        current_.dataOperation = operation;
    return GetState();
}

bool znBrowserManagerTcl::DeleteDataOperation() {
    BeginOperation();
    if (!current_.dataCtrl) return Fail(noControl);
    znIBrowserDataOperation* const operation = current_.dataOperation;
    if (!operation) return Fail("Cannot get name of the current dataoperation");
    const auto deletion = [&] { return current_.dataCtrl->DeleteDataOperation(operation); };
    const auto forget = [&] {
        if (current_.dataOperation == operation) current_.dataOperation = nullptr;
    };
    if (!DeleteAndForget(deletion, forget))
        return Fail("dataoperation couldn't found in current data control to delete");
    return GetState();
}

bool znBrowserManagerTcl::SetCurrentDataOperation(const char* name) {
    BeginOperation();
    if (!current_.dataCtrl) return Fail(messages::noCurrentDataCtrl);
    znIBrowserDataOperation* const operation = name ? current_.dataCtrl->FindDataOperation(name) : nullptr;
    if (!operation) return FailWith({"Cannot find dataoperation named: ", name});
    current_.dataOperation = operation;
    return GetState();
}

bool znBrowserManagerTcl::GetDataOperationNames(znString& out) {
    BeginOperation();
    if (!current_.dataCtrl) return Fail(noControl);
    std::vector<znIBrowserDataOperation*> operations;
    current_.dataCtrl->GetDataOperations(operations);
    return NameList().AddNames(operations, NullName::EndsList).Give(*this, out);
}

// What is missing goes straight into the interpreter result, and is no error text.
bool znBrowserManagerTcl::DataOperationConnect() {
    BeginOperation();
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
    BeginOperation();
    if (!current_.dataOperation) return Fail(noOperation);
    znIBrowser* const browser = GetBrowser();
    return browser && browser->PerformDataOperation(current_.dataOperation);
}

bool znBrowserManagerTcl::SetDataOperationScript(const char* script) {
    BeginOperation();
    if (!current_.dataOperation) return Fail(noOperation);
    return script && current_.dataOperation->SetScript(script);
}
