// A property of a view.
#ifndef ZN_HOST_VIEW_PROPERTY_H
#define ZN_HOST_VIEW_PROPERTY_H

#include "base/host_call.h"
#include "host/znIBrowserDataProperty.h"
#include "host/znIBrowserViewProperty.h"

#include <memory>
#include <string>
#include <vector>

namespace znhost {

class View;
class ViewProperty;

/// The values of a view property that come from a Tcl procedure. The procedure is called with the name of the
/// item's data source and the item's row number, and returns the value.
class ScriptedValue final : public znIBrowserDataProperty, public HostObject {
public:
    explicit ScriptedValue(const ViewProperty& property);

    const char* GetName() const override;
    bool GetValueString(const znBrowserDataItem& item, int index, znString& value) override;
    ZNBROWSER_DATA_TYPE GetType() const override;
    znVariant GetValue(const znBrowserDataItem& item) override;

    const ViewProperty& Property() const { return property_; }

private:
    bool Compute(const znBrowserDataItem& item, std::string& value) const;

    const ViewProperty& property_;
};

/// A named, typed value that a view shows, connected to at most one data property per data source.
class ViewProperty final : public znIBrowserViewProperty,
                           public HostObject,
                           public std::enable_shared_from_this<ViewProperty> {
public:
    ViewProperty(View& view, std::string name);

    const std::string& Name() const { return name_; }
    View& Owner() const { return view_; }
    ZNBROWSER_DATA_TYPE Type() const { return type_; }
    void SetType(ZNBROWSER_DATA_TYPE type);
    const std::vector<znBrowserConnection>& Connections() const { return connections_; }
    /// The data property that gives the values for the items of that source: the connected one, else the
    /// procedure that scripts set; null when there is neither.
    znIBrowserDataProperty* DataProperty(const znIBrowserDataSourceSimple* source);

    /// False, and nothing changes, when the source is connected already.
    bool Connect(znIBrowserDataSource& source, znIBrowserDataProperty& dataProperty);
    /// False when the source is not connected.
    bool Disconnect(const znIBrowserDataSource& source);
    void Forget(const znIBrowserDataProperty& dataProperty);
    /// It was deleted. Whoever still holds it finds no values any more.
    void Detach();

    // The scripts: a procedure that gives a value, and one that is told a changed value.
    const std::string& GetScript() const { return getScript_; }
    const std::string& UpdateScript() const { return updateScript_; }
    const std::string& ThirdScript() const { return thirdScript_; }
    void SetScripts(std::string update, std::string get, std::string third);
    void SetGetScript(std::string script);
    /// Tells the update script the changed value of an item: the procedure is called with the name of the
    /// data source, the row number and the value. @return false, with an error text, when it fails.
    bool Update(const znBrowserDataItem& item, const std::string& value) const;

    const char* GetName() const override;
    znIBrowserView* GetView() override;
    ZNBROWSER_DATA_TYPE GetType() const override;
    void GetConnections(std::vector<znBrowserConnection>& connections) override;
    znIBrowserDataProperty* GetDataProperty(znIBrowserDataSourceSimple* source) override;

private:
    friend class ScriptedValue;
    void Changed() const;

    View& view_;
    const std::string name_;
    ZNBROWSER_DATA_TYPE type_ = ZNBROWSER_DATA_UNDEFINED;
    std::vector<znBrowserConnection> connections_;
    std::string getScript_;
    std::string updateScript_;
    std::string thirdScript_;
    ScriptedValue scripted_;
};

} // namespace znhost

#endif
