// A data control: the container of data sources.
#ifndef ZN_I_BROWSER_DATA_CTRL_H
#define ZN_I_BROWSER_DATA_CTRL_H

#include <vector>

class znIBrowserDataOperation;
class znIBrowserDataReference;
class znIBrowserDataSource;
class znIBrowserDataSourceHierarchical;
class znIBrowserDataSourceSimple;
class znIBrowserInputField;
class znIBrowserStateContainer;
class znIBrowserView;

/// A container of data sources, references, operations, input fields and saved states.
class znIBrowserDataCtrl {
public:
    virtual const char* GetName() const = 0;

    // Simple data sources.
    virtual void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) = 0;
    virtual znIBrowserDataSourceSimple* FindDataSourceSimple(const char* name) = 0;
    /// Makes a custom source. `description` may be null. The result is not used: the caller looks the source
    /// up.
    virtual bool CreateDataSourceSimple(const char* name, const char* caption, const char* description) = 0;
    /// Deletes a custom source with all that belongs to it. The result is not used.
    virtual bool DeleteDataSourceSimple(const char* name) = 0;

    // Hierarchical data sources.
    virtual void GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) = 0;
    virtual znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char* name) = 0;
    /// Makes a hierarchical source; the meaning of the two booleans and the two texts is the host's.
    /// The result is not used: the caller looks the source up.
    virtual bool CreateDataSourceHierarchical(const char* name, bool first, bool second, const char* text1,
                                              const char* text2) = 0;

    // Data operations.
    virtual bool CreateDataOperation(const char* name) = 0;
    virtual void GetDataOperations(std::vector<znIBrowserDataOperation*>& operations) = 0;
    virtual znIBrowserDataOperation* FindDataOperation(const char* name) = 0;

    virtual bool SetDataSourceSimpleCaption(znIBrowserDataSourceSimple* source, const char* caption) = 0;
    virtual bool SetDataSourceSimpleFilterCaption(znIBrowserDataSourceSimple* source,
                                                  const char* caption) = 0;

    /// Any data source, simple or hierarchical, usable as a tree parent; null when unknown.
    virtual znIBrowserDataSource* FindDataSource(const char* name) = 0;

    // Data references.
    virtual bool GetDataReferences(std::vector<znIBrowserDataReference*>& references) = 0;
    virtual znIBrowserDataReference* FindDataReference(const char* name) = 0;

    /// All data sources of either kind.
    virtual bool GetDataSources(std::vector<znIBrowserDataSource*>& sources) = 0;
    /// Tells the control which view is current in the scripting layer; null for none.
    virtual void SetCurrentView(znIBrowserView* view) = 0;

    // Input fields.
    /// @param type    the type word as the script gave it.
    /// @param status  out: 0 when the field was made, a code of the host's otherwise.
    /// @return the new field, or null when the host refuses.
    virtual znIBrowserInputField* CreateInputField(const char* name, const char* type, int& status) = 0;
    virtual bool DeleteInputField(const char* name) = 0;
    virtual bool GetInputFields(std::vector<znIBrowserInputField*>& fields) = 0;
    virtual znIBrowserInputField* FindInputField(const char* name) = 0;

    /// The saved states of the control; may be null.
    virtual znIBrowserStateContainer* GetStateContainer() = 0;
    /// Deletes a data operation; false when the control does not hold it.
    virtual bool DeleteDataOperation(znIBrowserDataOperation* operation) = 0;

protected:
    ~znIBrowserDataCtrl() = default;
};

#endif
