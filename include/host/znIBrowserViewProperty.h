// A view property: a named, typed value that a view shows.
#ifndef ZN_I_BROWSER_VIEW_PROPERTY_H
#define ZN_I_BROWSER_VIEW_PROPERTY_H

#include "../znBrowserTypes.h"
#include <vector>

class znIBrowserDataProperty;
class znIBrowserDataSource;
class znIBrowserDataSourceSimple;
class znIBrowserView;

/// One connection of a view property: the data source that gives the values, and its data property. A
/// connection to a script has no data source; its data property bears the procedure's name.
struct znBrowserConnection {
    znIBrowserDataSource* dataSource = nullptr;
    znIBrowserDataProperty* dataProperty = nullptr;
};

/// A named, typed value that a view shows in its columns. It has at most one connection per data source. It
/// is changed through `znIBrowser`.
class znIBrowserViewProperty {
public:
    /// The name, unique in the view. Style elements refer to the property by it.
    virtual const char* GetName() const = 0;
    /// The view that owns the property.
    virtual znIBrowserView* GetView() = 0;
    /// The type; undefined until set. Scripts can connect nothing before.
    virtual ZNBROWSER_DATA_TYPE GetType() const = 0;
    /// The connections, in the order made; the one to a script, where there is one, comes last.
    virtual void GetConnections(std::vector<znBrowserConnection>& connections) = 0;
    /// The data property that the view property shows for that source, or null. With a script that gives the
    /// values it is a data property that runs the script.
    virtual znIBrowserDataProperty* GetDataProperty(znIBrowserDataSourceSimple* source) = 0;

protected:
    ~znIBrowserViewProperty() = default;
};

#endif
