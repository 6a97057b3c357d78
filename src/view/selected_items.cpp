// What is selected in the current view: the values of its items, and its data sources.
#include "data/item_values.h"
#include "frame/operation.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataSource.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserView.h"
#include "view/view_messages.h"

#include <unordered_set>

using namespace znlayer;
using namespace view_messages;

bool znBrowserManagerTcl::DataItemsSelected(znString& out, bool children, bool recursive) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    znIBrowserDataSource* const source =
        current_.dataSourceSimple ? current_.dataSourceSimple->GetDataSource() : nullptr;
    if (!source) return operation.Fail("Cannot get the current datasource simple");
    if (!current_.viewProperty) return operation.Fail(noPropertyName);
    ItemProperty property(*this);
    if (!property.Of(current_.dataSourceSimple))
        return operation.Fail("Cannot get the data property for current datasource");
    znBrowserDataItems items;
    if (!current_.view->GetSelectedItems(source, children || recursive, items))
        return operation.FailWithHostError();
    return GiveItemValues(*this, items, {&property}, out);
}

bool znBrowserManagerTcl::DataItemsSelectedAll(znString& out, bool children, bool recursive) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    if (!current_.viewProperty) return operation.Fail(noPropertyName);
    znBrowserDataItems items;
    if (!current_.view->GetAllSelectedItems(children || recursive, items))
        return operation.FailWithHostError();
    ItemProperty property(*this);
    return GiveItemValues(*this, items, {&property}, out);
}

bool znBrowserManagerTcl::DataSourceSimpleSelected(znString& out, bool recursive) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    znBrowserDataItems items;
    if (!current_.view->GetAllSelectedItems(recursive, items)) return operation.FailWithHostError();
    NameList names(EntryForm::Braced);
    std::unordered_set<const znIBrowserDataSourceSimple*> seen;
    for (const znBrowserDataItems::Run& run : items.runs) {
        if (run.source && seen.insert(run.source).second) names.Add(run.source->GetName());
    }
    return names.Give(*this, out);
}

bool znBrowserManagerTcl::DataSourceHierarchicalSelected(znString& out, bool recursive) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    std::vector<znIBrowserDataSourceHierarchical*> sources;
    current_.view->GetDataSourcesHierarchical(sources);
    NameList names(EntryForm::Braced);
    znBrowserDataItems items;
    for (znIBrowserDataSourceHierarchical* const source : sources) {
        if (!source) continue;
        items.Clear();
        if (!current_.view->GetSelectedItems(source->GetDataSource(), recursive, items))
            return operation.FailWithHostError();
        if (items.Size() > 0) names.Add(source->GetName());
    }
    return names.Give(*this, out);
}

bool znBrowserManagerTcl::GetSelectedDataItemValues(const char* property, znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    if (!property || !current_.view->FindViewProperty(property))
        return operation.Fail({"Unable to find view property: ", property});
    return GetSelectedDataItemValues(property, nullptr, out);
}

bool znBrowserManagerTcl::GetSelectedDataItemValues(const char* property, const char* second, znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    const auto exists = [this](const char* name) { return name && current_.view->FindViewProperty(name); };
    if (!exists(property) && !exists(second))
        return operation.Fail({"Unable to find view property: ", property, " or ", second});
    znBrowserDataItems items;
    if (!current_.view->GetAllSelectedItems(false, items)) return operation.FailWithHostError();
    ItemProperty first(*this, property);
    ItemProperty other(*this, second);
    return GiveItemValues(*this, items, {&first, &other}, out);
}
