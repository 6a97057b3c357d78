// The values that a view property shows for data items.
#ifndef ITEM_VALUES_H
#define ITEM_VALUES_H

#include "frame/name_list.h"

#include <cstdint>
#include <initializer_list>

struct znBrowserDataItem;
struct znBrowserDataItems;
class znIBrowserDataProperty;
class znIBrowserDataSourceSimple;
class znIBrowserViewProperty;

namespace znlayer {

/// The data properties that a view property shows, for the items of one data source after another. Each is
/// asked for once for all items of a source in a row, and again when a script has used the command in
/// between: it may have deleted anything.
class ItemProperty {
public:
    /// The current view property. It shows nothing more once a script makes another one current or deletes
    /// it.
    explicit ItemProperty(const znBrowserManagerTcl& manager);
    /// The property of that name in the current view; none of a null name.
    ItemProperty(const znBrowserManagerTcl& manager, const char* name);

    /// The data property for the items of a source; null when there is none.
    znIBrowserDataProperty* Of(znIBrowserDataSourceSimple* source);

private:
    znIBrowserViewProperty* Find() const;

    const znBrowserManagerTcl& manager_;
    znIBrowserViewProperty* const current_;
    const znString name_;
    znIBrowserDataSourceSimple* source_ = nullptr;
    znIBrowserDataProperty* property_ = nullptr;
    std::uint64_t asked_ = 0;
};

/// Reads the value of an item. @return false when it has none
using ReadValue = bool (*)(znIBrowserDataProperty& property, const znBrowserDataItem& item, znString& value);

/// The value as the data property gives it as text.
bool ReadValueString(znIBrowserDataProperty& property, const znBrowserDataItem& item, znString& value);

/// Ends an operation with the values of the items, in order, each in double quotes: for each item the first
/// value that one of the properties has. Items without a value, and items of an unknown data source, are left
/// out. A value may be computed by a script: an error that it leaves is none of the operation's, and the
/// items of data sources that it deletes are left out from then on.
/// @return true
bool GiveItemValues(znBrowserManagerTcl& manager, const znBrowserDataItems& items,
                    std::initializer_list<ItemProperty*> properties, znString& out,
                    ReadValue read = ReadValueString);

} // namespace znlayer

#endif
