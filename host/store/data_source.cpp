#include "store/data_source.h"

#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "model/view.h"
#include "model/view_links.h"
#include "store/data_ctrl.h"
#include "store/view_items.h"

#include <algorithm>

namespace znhost {

namespace {

/// Whether the source still exists: a script may have deleted it.
bool IsThere(SimpleSource& source) { return source.Control().FindSimple(source.Name()) == &source; }

} // namespace

DataSource::DataSource(SimpleSource& simple)
    : HostObject(simple.Log()), simple_(&simple), hierarchical_(nullptr) {}

DataSource::DataSource(HierarchicalSource& hierarchical)
    : HostObject(hierarchical.Log()), simple_(nullptr), hierarchical_(&hierarchical) {}

const std::string& DataSource::Name() const { return simple_ ? simple_->Name() : hierarchical_->Name(); }

znString DataSource::GetName() const {
    if (Refused("znIBrowserDataSource::GetName")) return {};
    return Name();
}

znIBrowserDataSourceSimple* DataSource::GetSimple() {
    if (Refused("znIBrowserDataSource::GetSimple")) return nullptr;
    return simple_;
}

znIBrowserDataSourceHierarchical* DataSource::GetHierarchical() {
    if (Refused("znIBrowserDataSource::GetHierarchical")) return nullptr;
    return hierarchical_;
}

znIBrowserDataProperty* DataSource::FindDataProperty(const char* name) {
    if (Refused("znIBrowserDataSource::FindDataProperty", name)) return nullptr;
    if (simple_) return simple_->FindProperty(TextOf(name));
    for (SimpleSource* const member : hierarchical_->Members()) {
        if (DataProperty* const property = member->FindProperty(TextOf(name))) return property;
    }
    return nullptr;
}

bool DataSource::Select(znIBrowserView* view, bool select, bool recursive, const Conditions& conditions) {
    if (!view) return Fail("No view to select items in");
    View& owner = *static_cast<View*>(view);
    SimpleSource* const source = simple_ ? simple_ : hierarchical_->Top();
    if (!source) return Fail("The data source \"" + Name() + "\" has no parent");
    if (!Contains(owner.ShowableSources(), static_cast<znIBrowserDataSourceSimple*>(source))) {
        return Fail("The view \"" + owner.Name() + "\" does not show the data source \"" + Name() + "\"");
    }
    ViewItems items(*source);
    if (recursive) items.AddBelow(hierarchical_ ? hierarchical_->Links() : LinksOf(owner));
    std::vector<std::shared_ptr<SimpleSource>> sources;
    for (SimpleSource* const each : items.Sources()) sources.push_back(each->shared_from_this());
    znBrowserDataItems chosen;
    for (const std::shared_ptr<SimpleSource>& each : sources) {
        RowQuery query;
        if (!IsThere(*each) || !conditions(*each, query.conditions)) continue;
        const std::vector<std::int64_t> rows = items.List(*each, query);
        for (const std::int64_t row : rows) chosen.Append(each.get(), row);
    }
    const auto isGone = [](const auto& each) { return !IsThere(*each); };
    if (std::any_of(sources.begin(), sources.end(), isGone)) {
        return Fail("A script deleted the data source whose items were to be selected");
    }
    if (select) {
        owner.Selected().Select(chosen);
    } else {
        owner.Selected().Deselect(chosen);
    }
    return true;
}

bool DataSource::SelectByProperty(znIBrowserView* view, znIBrowserViewProperty* property, bool select,
                                  bool recursive, const std::vector<znString>* values) {
    if (!property) return Fail("No view property to select items by");
    ViewProperty& shown = *static_cast<ViewProperty*>(property);
    // A script that computes values may delete what is at work here.
    const std::shared_ptr<View> holdView = shown.Owner().shared_from_this();
    const std::shared_ptr<ViewProperty> holdProperty = shown.shared_from_this();
    return Select(view, select, recursive, [&](SimpleSource& source, std::vector<RowCondition>& conditions) {
        znIBrowserDataProperty* const dataProperty = shown.DataProperty(&source);
        if (!dataProperty) return false;
        if (values) {
            conditions.push_back(source.OneOf(*dataProperty, *values));
            return true;
        }
        RowCondition any;
        any.property = dataProperty;
        any.accept = [](std::string_view) { return true; };
        conditions.push_back(std::move(any));
        return true;
    });
}

bool DataSource::SelectItems(znIBrowserView* view, bool select, bool recursive) {
    if (Refused("znIBrowserDataSource::SelectItems", view, select, recursive)) return false;
    return Select(view, select, recursive, [](SimpleSource&, std::vector<RowCondition>&) { return true; });
}

bool DataSource::SelectItemsByProperty(znIBrowserView* view, znIBrowserViewProperty* property, bool select,
                                       bool recursive) {
    if (Refused("znIBrowserDataSource::SelectItemsByProperty", view, property, select, recursive))
        return false;
    return SelectByProperty(view, property, select, recursive, nullptr);
}

bool DataSource::SelectItemsByValue(znIBrowserView* view, znIBrowserViewProperty* property, const char* value,
                                    bool select, bool recursive) {
    if (Refused("znIBrowserDataSource::SelectItemsByValue", view, property, value, select, recursive))
        return false;
    const std::vector<znString> values{znString(TextOf(value))};
    return SelectByProperty(view, property, select, recursive, &values);
}

bool DataSource::SelectItemsByValues(znIBrowserView* view, znIBrowserViewProperty* property,
                                     const std::vector<znString>& values, bool select, bool recursive) {
    if (Refused("znIBrowserDataSource::SelectItemsByValues", view, property, values, select, recursive))
        return false;
    return SelectByProperty(view, property, select, recursive, &values);
}

} // namespace znhost
