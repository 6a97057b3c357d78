// Data operations, and the data control's list of them.
#include "store/data_operation.h"

#include "base/services.h"
#include "model/browser.h"
#include "store/data_ctrl.h"

namespace znhost {

DataOperation::DataOperation(HostServices& services, std::string name)
    : HostObject(services.Log()), services_(services), name_(std::move(name)) {}

bool DataOperation::Run() const {
    if (script_.empty()) return Fail("The data operation \"" + name_ + "\" has no script");
    const std::string script = script_; // it may replace itself
    return services_.RunScript(script);
}

const char* DataOperation::GetName() const {
    if (Refused("znIBrowserDataOperation::GetName")) return nullptr;
    return name_.c_str();
}

bool DataOperation::SetScript(const char* script) {
    if (Refused("znIBrowserDataOperation::SetScript", script)) return false;
    script_ = TextOf(script);
    return true;
}

bool DataCtrl::CreateDataOperation(const char* name) {
    if (Refused("znIBrowserDataCtrl::CreateDataOperation", name)) return false;
    const std::string newName = TextOf(name);
    if (newName.empty()) return Fail("A data operation needs a name");
    if (operations_.Find(newName)) {
        return Fail("The data control \"" + name_ + "\" already has a data operation \"" + newName + "\"");
    }
    operations_.Add(std::make_shared<DataOperation>(Services(), newName));
    return true;
}

void DataCtrl::GetDataOperations(std::vector<znIBrowserDataOperation*>& operations) {
    operations.clear();
    if (Refused("znIBrowserDataCtrl::GetDataOperations")) return;
    operations_.CopyTo(operations);
}

znIBrowserDataOperation* DataCtrl::FindDataOperation(const char* name) {
    if (Refused("znIBrowserDataCtrl::FindDataOperation", name)) return nullptr;
    return operations_.Find(TextOf(name));
}

bool DataCtrl::DeleteDataOperation(znIBrowserDataOperation* operation) {
    if (Refused("znIBrowserDataCtrl::DeleteDataOperation", operation)) return false;
    DataOperation* const doomed = static_cast<DataOperation*>(operation);
    const std::shared_ptr<DataOperation> hold = doomed ? operations_.Remove(*doomed) : nullptr;
    if (!hold) return Fail("The data control \"" + name_ + "\" does not hold that data operation");
    Model().Forget(*hold);
    return true;
}

} // namespace znhost
