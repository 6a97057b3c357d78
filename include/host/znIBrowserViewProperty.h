// A view property: a named, typed value that a view shows.
#ifndef ZN_I_BROWSER_VIEW_PROPERTY_H
#define ZN_I_BROWSER_VIEW_PROPERTY_H

#include "znBrowserTypes.h"
#include <vector>

class znIBrowserDataProperty;
class znIBrowserDataSource;
class znIBrowserDataSourceSimple;
class znIBrowserView;

/// One connection of a view property: the data source that gives the values, and its data property.
struct znBrowserConnection {
    znIBrowserDataSource* dataSource = nullptr;
    znIBrowserDataProperty* dataProperty = nullptr;
};

/// A named, typed value that a view shows in its columns. It has at most one connection per data source.
class znIBrowserViewProperty {
public:
    virtual const char* GetName() const = 0;
    /// The view that owns the property.
    virtual znIBrowserView* GetView() = 0;
    virtual ZNBROWSER_DATA_TYPE GetType() const = 0;
    /// The connections, in the order made.
    virtual void GetConnections(std::vector<znBrowserConnection>& connections) = 0;
    /// The data property that the view property shows for that source, or null.
    virtual znIBrowserDataProperty* GetDataProperty(znIBrowserDataSourceSimple* source) = 0;

protected:
    ~znIBrowserViewProperty() = default;
};

#endif
