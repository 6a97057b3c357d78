// A data property: a value that a data source has for each item.
#ifndef ZN_I_BROWSER_DATA_PROPERTY_H
#define ZN_I_BROWSER_DATA_PROPERTY_H

#include "../znBrowserTypes.h"
#include "znutl/znVariant.h"

struct znBrowserDataItem;

/// A named value that a simple data source supplies for each of its items. Scripts may run while a value is
/// computed; the layer goes on to the next item only when the source is still there.
class znIBrowserDataProperty {
public:
    /// The name, unique in the data source; null ends a script's list of names.
    virtual const char* GetName() const = 0;
    /// The value of an item as text. `index` chooses an element of an array type: 0 for the others, and 0 in
    /// every request of the layer.
    /// @return false when the item has no value; the layer passes it over.
    virtual bool GetValueString(const znBrowserDataItem& item, int index, znString& value) = 0;
    /// The type in the numbering of `ZNBROWSER_DATA_TYPE`; 11, 12 and 13 stand for further array forms of
    /// integer, double and string.
    virtual ZNBROWSER_DATA_TYPE GetType() const = 0;
    /// The value of an item with its type; undefined when the item has none. Asked for in views with the new
    /// connection scheme; scripts see only the low 32 bits of a 64-bit integer.
    virtual znVariant GetValue(const znBrowserDataItem& item) = 0;

protected:
    ~znIBrowserDataProperty() = default;
};

#endif
