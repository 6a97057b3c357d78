#include "store/data_ctrl.h"

#include "host/znIBrowserDataOperation.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserView.h"
#include "model/application.h"

namespace znhost {

std::shared_ptr<DataCtrl> DataCtrl::Open(Application& application, const std::string& name,
                                         const std::string& file, std::string& error) {
    if (!file.empty()) {
        error = "no database can be opened";
        return nullptr;
    }
    return std::make_shared<DataCtrl>(application, name);
}

DataCtrl::DataCtrl(Application& application, std::string name)
    : HostObject(application.Log()), name_(std::move(name)) {}

bool DataCtrl::RunSql(const std::string& /*statement*/, const std::vector<std::string>& /*values*/,
                      std::vector<std::vector<std::string>>& rows, std::string& error) {
    rows.clear();
    error = "The data control \"" + name_ + "\" has no database";
    return false;
}

const char* DataCtrl::GetName() const {
    if (Refused("znIBrowserDataCtrl::GetName")) return nullptr;
    return name_.c_str();
}

void DataCtrl::GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) {
    sources.clear();
    static_cast<void>(Refused("znIBrowserDataCtrl::GetDataSourcesSimple"));
}

znIBrowserDataSourceSimple* DataCtrl::FindDataSourceSimple(const char* name) {
    static_cast<void>(Refused("znIBrowserDataCtrl::FindDataSourceSimple", name));
    return nullptr;
}

bool DataCtrl::CreateDataSourceSimple(const char* name, const char* caption, const char* description) {
    if (Refused("znIBrowserDataCtrl::CreateDataSourceSimple", name, caption, description)) return false;
    return Fail("The data control \"" + name_ + "\" has no database");
}

bool DataCtrl::DeleteDataSourceSimple(const char* name) {
    if (Refused("znIBrowserDataCtrl::DeleteDataSourceSimple", name)) return false;
    return Fail("The data control \"" + name_ + "\" has no database");
}

void DataCtrl::GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) {
    sources.clear();
    static_cast<void>(Refused("znIBrowserDataCtrl::GetDataSourcesHierarchical"));
}

znIBrowserDataSourceHierarchical* DataCtrl::FindDataSourceHierarchical(const char* name) {
    static_cast<void>(Refused("znIBrowserDataCtrl::FindDataSourceHierarchical", name));
    return nullptr;
}

bool DataCtrl::CreateDataSourceHierarchical(const char* name, bool first, bool second, const char* text1,
                                            const char* text2) {
    if (Refused("znIBrowserDataCtrl::CreateDataSourceHierarchical", name, first, second, text1, text2))
        return false;
    return Fail("The data control \"" + name_ + "\" has no database");
}

bool DataCtrl::CreateDataOperation(const char* name) {
    if (Refused("znIBrowserDataCtrl::CreateDataOperation", name)) return false;
    return Fail("The data control \"" + name_ + "\" has no database");
}

void DataCtrl::GetDataOperations(std::vector<znIBrowserDataOperation*>& operations) {
    operations.clear();
    static_cast<void>(Refused("znIBrowserDataCtrl::GetDataOperations"));
}

znIBrowserDataOperation* DataCtrl::FindDataOperation(const char* name) {
    static_cast<void>(Refused("znIBrowserDataCtrl::FindDataOperation", name));
    return nullptr;
}

bool DataCtrl::SetDataSourceSimpleCaption(znIBrowserDataSourceSimple* source, const char* caption) {
    if (Refused("znIBrowserDataCtrl::SetDataSourceSimpleCaption", source, caption)) return false;
    return Fail("The data control \"" + name_ + "\" has no database");
}

bool DataCtrl::SetDataSourceSimpleFilterCaption(znIBrowserDataSourceSimple* source, const char* caption) {
    if (Refused("znIBrowserDataCtrl::SetDataSourceSimpleFilterCaption", source, caption)) return false;
    return Fail("The data control \"" + name_ + "\" has no database");
}

znIBrowserDataSource* DataCtrl::FindDataSource(const char* name) {
    static_cast<void>(Refused("znIBrowserDataCtrl::FindDataSource", name));
    return nullptr;
}

bool DataCtrl::GetDataReferences(std::vector<znIBrowserDataReference*>& references) {
    references.clear();
    if (Refused("znIBrowserDataCtrl::GetDataReferences")) return false;
    return true;
}

znIBrowserDataReference* DataCtrl::FindDataReference(const char* name) {
    static_cast<void>(Refused("znIBrowserDataCtrl::FindDataReference", name));
    return nullptr;
}

bool DataCtrl::GetDataSources(std::vector<znIBrowserDataSource*>& sources) {
    sources.clear();
    if (Refused("znIBrowserDataCtrl::GetDataSources")) return false;
    return true;
}

void DataCtrl::SetCurrentView(znIBrowserView* view) {
    static_cast<void>(Refused("znIBrowserDataCtrl::SetCurrentView", view));
}

znIBrowserInputField* DataCtrl::CreateInputField(const char* name, const char* type, int& status) {
    status = 1;
    static_cast<void>(Refused("znIBrowserDataCtrl::CreateInputField", name, type));
    return nullptr;
}

bool DataCtrl::DeleteInputField(const char* name) {
    if (Refused("znIBrowserDataCtrl::DeleteInputField", name)) return false;
    return Fail("The data control \"" + name_ + "\" has no database");
}

bool DataCtrl::GetInputFields(std::vector<znIBrowserInputField*>& fields) {
    fields.clear();
    if (Refused("znIBrowserDataCtrl::GetInputFields")) return false;
    return true;
}

znIBrowserInputField* DataCtrl::FindInputField(const char* name) {
    static_cast<void>(Refused("znIBrowserDataCtrl::FindInputField", name));
    return nullptr;
}

znIBrowserStateContainer* DataCtrl::GetStateContainer() {
    static_cast<void>(Refused("znIBrowserDataCtrl::GetStateContainer"));
    return nullptr;
}

bool DataCtrl::DeleteDataOperation(znIBrowserDataOperation* operation) {
    if (Refused("znIBrowserDataCtrl::DeleteDataOperation", operation)) return false;
    return Fail("The data control \"" + name_ + "\" has no database");
}

} // namespace znhost
