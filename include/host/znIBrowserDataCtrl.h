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

/// A container of data sources, references, operations, input fields and saved states. The host makes and
/// deletes data controls itself, and says so before it deletes one (`znBrowserManagerTcl::AboutToDelete`):
/// what is current in it is none then. Names of data sources are unique among both kinds. The layer never
/// reads the text of a refusal here: it has texts of its own, or only looks at what is there afterwards.
class znIBrowserDataCtrl {
public:
    /// The name, unique in the application; null ends a script's list of names.
    virtual const char* GetName() const = 0;

    // Simple data sources.
    /// All simple data sources, base and custom ones, in the host's order.
    virtual void GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) = 0;
    /// The simple data source of that name, or null. The layer also asks it whether a source that it knows is
    /// still alive.
    virtual znIBrowserDataSourceSimple* FindDataSourceSimple(const char* name) = 0;
    /// Makes a custom source. `caption` is "" when the script gave none; `description` is always null from
    /// the layer. The result is not used: the caller looks the source up.
    virtual bool CreateDataSourceSimple(const char* name, const char* caption, const char* description) = 0;
    /// Deletes a custom source with all that belongs to it. Never asked for a base or a connected one, but
    /// also for a name that does not exist. The result is not used: the caller looks whether it is gone.
    virtual bool DeleteDataSourceSimple(const char* name) = 0;

    // Hierarchical data sources.
    /// All hierarchical data sources, in the host's order.
    virtual void GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) = 0;
    /// The hierarchical data source of that name, or null.
    virtual znIBrowserDataSourceHierarchical* FindDataSourceHierarchical(const char* name) = 0;
    /// Makes a hierarchical source; the meaning of the two booleans and the two texts is the host's. The
    /// texts are "" when the script gave none. The result is not used: the caller looks the source up.
    virtual bool CreateDataSourceHierarchical(const char* name, bool first, bool second, const char* text1,
                                              const char* text2) = 0;

    // Data operations.
    /// Makes a data operation, without a script.
    virtual bool CreateDataOperation(const char* name) = 0;
    /// All data operations, in the host's order.
    virtual void GetDataOperations(std::vector<znIBrowserDataOperation*>& operations) = 0;
    /// The data operation of that name, or null.
    virtual znIBrowserDataOperation* FindDataOperation(const char* name) = 0;

    /// Sets what people read as the name of a source, base or custom. The current source may belong to
    /// another data control; a host need not refuse that.
    virtual bool SetDataSourceSimpleCaption(znIBrowserDataSourceSimple* source, const char* caption) = 0;
    /// Sets what people read for the source in a list of filters; in the same way.
    virtual bool SetDataSourceSimpleFilterCaption(znIBrowserDataSourceSimple* source,
                                                  const char* caption) = 0;

    /// Any data source, simple or hierarchical, usable as a tree parent; null when unknown.
    virtual znIBrowserDataSource* FindDataSource(const char* name) = 0;

    // Data references.
    /// All data references, in the host's order.
    virtual bool GetDataReferences(std::vector<znIBrowserDataReference*>& references) = 0;
    /// The data reference of that name, or null.
    virtual znIBrowserDataReference* FindDataReference(const char* name) = 0;

    /// All data sources of either kind.
    virtual bool GetDataSources(std::vector<znIBrowserDataSource*>& sources) = 0;
    /// Tells the control, when a script chooses it, which view is current in the scripting layer; null for
    /// none. It is not told again when the current view changes.
    virtual void SetCurrentView(znIBrowserView* view) = 0;

    // Input fields. The layer finds them, but never creates, deletes or lists any: its commands for that are
    // always refused, and the host makes the fields that its scripts use.
    /// Makes an input field.
    /// @param type    the type word as the script gave it.
    /// @param status  out: 0 when the field was made, a code of the host's otherwise.
    /// @return the new field, or null when the host refuses.
    virtual znIBrowserInputField* CreateInputField(const char* name, const char* type, int& status) = 0;
    /// Deletes the input field of that name.
    virtual bool DeleteInputField(const char* name) = 0;
    /// All input fields, in the host's order.
    virtual bool GetInputFields(std::vector<znIBrowserInputField*>& fields) = 0;
    /// The input field of that name, or null.
    virtual znIBrowserInputField* FindInputField(const char* name) = 0;

    /// The saved states of the control; may be null: then there are none, and none can be saved.
    virtual znIBrowserStateContainer* GetStateContainer() = 0;
    /// Deletes a data operation; false when the control does not hold it. View operations that run it let go
    /// of it.
    virtual bool DeleteDataOperation(znIBrowserDataOperation* operation) = 0;

protected:
    ~znIBrowserDataCtrl() = default;
};

#endif
