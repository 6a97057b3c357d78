// The values that a view property shows for data items.
#ifndef ITEM_VALUES_H
#define ITEM_VALUES_H

#include "frame/name_list.h"

struct znBrowserDataItems;

/// Ends an operation with the current view property's values of the items, in order, each in double quotes.
/// Items without a value, and items of an unknown data source, are left out. A value may be computed by a
/// script: an error that it leaves is none of the operation's, and when it makes another view property
/// current, or deletes the one that is, the list ends there.
/// @return true
bool GiveCurrentPropertyValues(znBrowserManagerTcl& manager, const znBrowserDataItems& items, znString& out);

#endif
