// The items that are collected.
#include "data/item_values.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserView.h"
#include "state/collector/collected_source.h"
#include "state/collector/collector_operation.h"

#include <string>

using namespace znlayer;

namespace {

/// Gives the values of a view property, of the current one for a null name, for the items.
bool GiveValues(znBrowserManagerTcl& manager, const CollectorViewOperation& operation,
                const znBrowserDataItems& items, const char* property, znString& out) {
    if (!property && !manager.GetCurrentViewPropertyPtr())
        return operation.Fail(znBrowserMessages::noCurrentViewProperty);
    if (property && !operation.View()->FindViewProperty(property))
        return operation.Fail({"Unable to find view property: ", property});
    ItemProperty shown = property ? ItemProperty(manager, property) : ItemProperty(manager);
    return GiveItemValues(manager, items, {&shown}, out);
}

} // namespace

bool znBrowserManagerTcl::ChangeCollectorSelection(ZNBROWSER_COLLECT change, ZNBROWSER_COLLECT_FROM from) {
    const CollectorViewOperation operation(*this);
    znIBrowserDataSourceSimple* kind = nullptr;
    return operation && FindCollectedSource(*this, operation, kind) &&
           operation.ChangeView(&znIBrowserCollector::Collect, change, from, kind);
}

bool znBrowserManagerTcl::ChangeCollectorSelectionByProp(ZNBROWSER_COLLECT change, const char* property,
                                                         const std::vector<znString>& values) {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    if (change == ZNBROWSER_COLLECT_TOGGLE || values.empty())
        return operation.Fail("Items can be added, removed or set by values");
    znIBrowserViewProperty* const shown =
        FindNamed(operation.View(), &znIBrowserView::FindViewProperty, property);
    if (!shown) return operation.Fail({"Unable to find view property: ", property});
    znIBrowserDataSourceSimple* kind = nullptr;
    return FindCollectedSource(*this, operation, kind) &&
           operation.ChangeView(&znIBrowserCollector::CollectByValues, change, shown, values, kind);
}

bool znBrowserManagerTcl::ClearCollectorSelection() {
    return CollectorViewOperation(*this).ChangeView(&znIBrowserCollector::ClearCollection);
}

bool znBrowserManagerTcl::GetCollectorSelectionCount(znString& out) {
    const CollectorViewOperation operation(*this);
    std::vector<znBrowserCollectedCount> counts;
    if (!operation.ChangeView(&znIBrowserCollector::GetCollectedCounts, counts)) return false;
    NameList list(EntryForm::Element);
    for (const znBrowserCollectedCount& count : counts) {
        if (count.source && list.Add(count.source->GetName())) list.Add(std::to_string(count.count).c_str());
    }
    return operation.Give(list, out);
}

bool znBrowserManagerTcl::GetCollectorDataItems(const char* property, znString& out) {
    const CollectorViewOperation operation(*this);
    znBrowserDataItems items;
    return operation.ChangeView(&znIBrowserCollector::GetCollectedItems, items) &&
           GiveValues(*this, operation, items, property, out);
}

bool znBrowserManagerTcl::GetCollectorPreselectedDataItem(const char* property, znString& out) {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    znBrowserDataItem item;
    znBrowserDataItems items;
    if (operation.Collector().GetPreselectedItem(operation.View(), item)) items.Append(item.source, item.row);
    return GiveValues(*this, operation, items, property, out);
}
