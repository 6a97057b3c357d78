// The selection of the current view: changed by whole data source, by the current view property or by its
// values.
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserDataSource.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewProperty.h"
#include "host/znIBrowserWindowAccess.h"
#include "view/view_messages.h"
#include "znBrowserManagerTcl.h"

#include <algorithm>

using namespace znlayer;
using namespace view_messages;

namespace {

using Values = std::vector<znString>;

constexpr char noSimpleSource[] = "Cannot get the current datasource simple";
constexpr char noHierarchicalSource[] = "Cannot get the current datasource hierarchical";
constexpr char noWindow[] = "Cannot get handle to the current window access";

/// What a selection works on, and what it has to say about the first thing that is missing. The data source
/// that must be there is not always the one whose items are selected.
struct Selection {
    znIBrowserView* view;
    znIBrowserDataSource* source;
    znIBrowserViewProperty* property;
    const char* missing = nullptr;

    template <class Source>
    Selection(const znBrowserManagerTcl& manager, Source* dataSource, const char* noSource)
        : view(manager.GetCurrentViewPtr()), source(dataSource ? dataSource->GetDataSource() : nullptr),
          property(manager.GetCurrentViewPropertyPtr()) {
        Require(view, noView);
        Require(source, noSource);
    }
    Selection& Require(const void* object, const char* message) {
        if (!object && !missing) missing = message;
        return *this;
    }
};

Selection OfSimple(const znBrowserManagerTcl& manager) {
    return {manager, manager.GetCurrentDataSourceSimplePtr(), noSimpleSource};
}

Selection OfHierarchical(const znBrowserManagerTcl& manager) {
    return {manager, manager.GetCurrentDataSourceHierarchicalPtr(), noHierarchicalSource};
}

Selection OfSimpleByProperty(const znBrowserManagerTcl& manager) {
    return OfSimple(manager).Require(manager.GetCurrentViewPropertyPtr(), noPropertyName);
}

/// The items of the hierarchical source; nevertheless a simple one must be current, and is asked for first.
Selection OfHierarchicalByValue(const znBrowserManagerTcl& manager) {
    Selection selection = OfSimpleByProperty(manager);
    const Selection tree = OfHierarchical(manager);
    selection.source = tree.source;
    return selection.Require(tree.source, noHierarchicalSource);
}

Values FirstValues(int count, const Values& values) {
    const std::size_t wanted = count > 0 ? static_cast<std::size_t>(count) : 0;
    return {values.begin(), values.begin() + static_cast<std::ptrdiff_t>(std::min(wanted, values.size()))};
}

} // namespace

bool znBrowserManagerTcl::ClearCurrentViewSelection() {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail("No current view available");
    return operation.HostAnswer(current_.view->ClearSelection());
}

bool znBrowserManagerTcl::ClearAllSelection() {
    const Operation operation(*this);
    znIBrowser* const browser = BrowserOf(*this);
    if (!browser) return operation.Fail("Cannot get a handle to browser manager");
    std::vector<znIBrowserView*> views;
    if (znIBrowserViewList* const list = browser->GetViewList()) list->GetViews(views, 0);
    for (znIBrowserView* const view : views) {
        if (view && !view->ClearSelection()) return operation.FailWithHostError();
    }
    return true;
}

bool znBrowserManagerTcl::SetSingleSelection() {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noWindow);
    return operation.HostAnswer(current_.windowAccess->SetSingleSelection());
}

bool znBrowserManagerTcl::SetMultipleSelection() {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail(noWindow);
    return operation.HostAnswer(current_.windowAccess->SetMultipleSelection());
}

bool znBrowserManagerTcl::SelectDataItemSimples(bool select, bool recursive) {
    const Operation operation(*this);
    const Selection on = OfSimple(*this);
    return on.missing ? operation.Fail(on.missing)
                      : operation.HostAnswer(on.source->SelectItems(on.view, select, recursive));
}

bool znBrowserManagerTcl::SelectDataItemHierarchicals(bool select, bool recursive) {
    const Operation operation(*this);
    const Selection on = OfHierarchical(*this);
    return on.missing ? operation.Fail(on.missing)
                      : operation.HostAnswer(on.source->SelectItems(on.view, select, recursive));
}

bool znBrowserManagerTcl::SelectDataItemSimplesByProp(bool select, bool recursive) {
    const Operation operation(*this);
    const Selection on = OfSimpleByProperty(*this);
    if (on.missing) return operation.Fail(on.missing);
    if (!on.property->GetDataProperty(current_.dataSourceSimple))
        return operation.Fail("Cannot get data property for current datasource");
    return operation.HostAnswer(on.source->SelectItemsByProperty(on.view, on.property, select, recursive));
}

bool znBrowserManagerTcl::SelectDataItemHierarchicalsByProp(bool select, bool recursive) {
    const Operation operation(*this);
    const Selection on = OfHierarchical(*this).Require(current_.viewProperty, noPropertyName);
    if (on.missing) return operation.Fail(on.missing);
    return operation.HostAnswer(on.source->SelectItemsByProperty(on.view, on.property, select, recursive));
}

bool znBrowserManagerTcl::SelectDataItemSimplesByPropAndValue(const char* value, bool select,
                                                              bool recursive) {
    const Operation operation(*this);
    const Selection on = OfSimpleByProperty(*this);
    if (on.missing) return operation.Fail(on.missing);
    return operation.HostAnswer(
        on.source->SelectItemsByValue(on.view, on.property, value, select, recursive));
}

bool znBrowserManagerTcl::SelectDataItemHierarchicalsByPropAndValue(const char* value, bool select,
                                                                    bool recursive) {
    const Operation operation(*this);
    const Selection on = OfHierarchicalByValue(*this);
    if (on.missing) return operation.Fail(on.missing);
    return operation.HostAnswer(
        on.source->SelectItemsByValue(on.view, on.property, value, select, recursive));
}

bool znBrowserManagerTcl::SelectDataItemSimplesByPropAndValues(int count, const Values& values, bool select,
                                                               bool recursive) {
    const Operation operation(*this);
    const Selection on = OfSimpleByProperty(*this);
    if (on.missing) return operation.Fail(on.missing);
    const Values wanted = FirstValues(count, values);
    return operation.HostAnswer(
        on.source->SelectItemsByValues(on.view, on.property, wanted, select, recursive));
}

bool znBrowserManagerTcl::SelectDataItemHierarchicalsByPropAndValues(int count, const Values& values,
                                                                     bool select, bool recursive) {
    const Operation operation(*this);
    const Selection on = OfHierarchicalByValue(*this);
    if (on.missing) return operation.Fail(on.missing);
    const Values wanted = FirstValues(count, values);
    return operation.HostAnswer(
        on.source->SelectItemsByValues(on.view, on.property, wanted, select, recursive));
}
