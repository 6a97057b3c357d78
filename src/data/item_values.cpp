#include "data/item_values.h"

#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataProperty.h"
#include "host/znIBrowserViewProperty.h"

bool GiveCurrentPropertyValues(znBrowserManagerTcl& manager, const znBrowserDataItems& items, znString& out) {
    NameList values(EntryForm::Quoted);
    znString value;
    znIBrowserViewProperty* const viewProperty = manager.GetCurrentViewPropertyPtr();
    items.ForEach([&](const znBrowserDataItem& item) {
        // Each item asks anew: the script that computed the value before may have deleted what there was.
        if (!viewProperty || manager.GetCurrentViewPropertyPtr() != viewProperty || !item.source) return;
        znIBrowserDataProperty* const property = viewProperty->GetDataProperty(item.source);
        if (property && property->GetValueString(item, 0, value)) values.Add(value.c_str());
    });
    manager.SetOk();
    return values.Give(manager, out);
}
