// A data control of the embedded host.
#ifndef ZN_HOST_DATA_CTRL_H
#define ZN_HOST_DATA_CTRL_H

#include "host/znIBrowserDataCtrl.h"
#include "model/host_call.h"

#include <memory>
#include <string>
#include <vector>

namespace znhost {

class Application;

class DataCtrl final : public znIBrowserDataCtrl, public HostObject {
public:
    /// Opens the database `file`, made when missing, or one in memory when `file` is "". Null, with the
    /// reason in `error`, when that cannot be done.
    static std::shared_ptr<DataCtrl> Open(Application& application, const std::string& name,
                                          const std::string& file, std::string& error);
    DataCtrl(Application& application, std::string name);

    const std::string& Name() const { return name_; }
    /// Runs one SQL statement, the values bound to its `?`. @return false with SQLite's reason in `error`.
    bool RunSql(const std::string& statement, const std::vector<std::string>& values,
                std::vector<std::vector<std::string>>& rows, std::string& error);

    const char* GetName() const override;
    void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) override;
    znIBrowserDataSourceSimple* FindDataSourceSimple(const char* name) override;
    bool CreateDataSourceSimple(const char* name, const char* caption, const char* description) override;
    bool DeleteDataSourceSimple(const char* name) override;
    void GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) override;
    znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char* name) override;
    bool CreateDataSourceHierarchical(const char* name, bool first, bool second, const char* text1,
                                      const char* text2) override;
    bool CreateDataOperation(const char* name) override;
    void GetDataOperations(std::vector<znIBrowserDataOperation*>& operations) override;
    znIBrowserDataOperation* FindDataOperation(const char* name) override;
    bool SetDataSourceSimpleCaption(znIBrowserDataSourceSimple* source, const char* caption) override;
    bool SetDataSourceSimpleFilterCaption(znIBrowserDataSourceSimple* source, const char* caption) override;
    znIBrowserDataSource* FindDataSource(const char* name) override;
    bool GetDataReferences(std::vector<znIBrowserDataReference*>& references) override;
    znIBrowserDataReference* FindDataReference(const char* name) override;
    bool GetDataSources(std::vector<znIBrowserDataSource*>& sources) override;
    void SetCurrentView(znIBrowserView* view) override;
    znIBrowserInputField* CreateInputField(const char* name, const char* type, int& status) override;
    bool DeleteInputField(const char* name) override;
    bool GetInputFields(std::vector<znIBrowserInputField*>& fields) override;
    znIBrowserInputField* FindInputField(const char* name) override;
    znIBrowserStateContainer* GetStateContainer() override;
    bool DeleteDataOperation(znIBrowserDataOperation* operation) override;

private:
    const std::string name_;
};

} // namespace znhost

#endif
