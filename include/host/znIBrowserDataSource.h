// A data source of either kind.
#ifndef ZN_I_BROWSER_DATA_SOURCE_H
#define ZN_I_BROWSER_DATA_SOURCE_H

#include "znutl/znString.h"
#include <vector>

class znIBrowserDataProperty;
class znIBrowserDataSourceHierarchical;
class znIBrowserDataSourceSimple;
class znIBrowserView;
class znIBrowserViewProperty;

/// A data source seen without regard to its kind. Each simple and each hierarchical source has one of these,
/// always the same, which lives as long as the source: the layer compares the pointers. It is an object
/// beside the source: one class cannot implement both, as `GetName` returns a `znString` here and a C string
/// there.
class znIBrowserDataSource {
public:
    /// The name of the source itself.
    virtual znString GetName() const = 0;
    /// The source itself when it is a simple one, else null.
    virtual znIBrowserDataSourceSimple* GetSimple() = 0;
    /// The source itself when it is a hierarchical one, else null.
    virtual znIBrowserDataSourceHierarchical* GetHierarchical() = 0;
    /// The data property of that name, or null.
    virtual znIBrowserDataProperty* FindDataProperty(const char* name) = 0;

    // Selection. Each works on the items that `view` shows of this source: on them alone, or, with
    // `recursive`, also on what lies below them. `select` false deselects. What else is selected stays so.
    // Values may be computed by scripts, which then run.
    /// All items.
    virtual bool SelectItems(znIBrowserView* view, bool select, bool recursive) = 0;
    /// The items that have a value of that property, of the same view.
    virtual bool SelectItemsByProperty(znIBrowserView* view, znIBrowserViewProperty* property, bool select,
                                       bool recursive) = 0;
    /// The items whose value of that property is `value`.
    virtual bool SelectItemsByValue(znIBrowserView* view, znIBrowserViewProperty* property, const char* value,
                                    bool select, bool recursive) = 0;
    /// The items whose value of that property is one of `values`; there may be none.
    virtual bool SelectItemsByValues(znIBrowserView* view, znIBrowserViewProperty* property,
                                     const std::vector<znString>& values, bool select, bool recursive) = 0;

protected:
    ~znIBrowserDataSource() = default;
};

#endif
