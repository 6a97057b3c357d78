#include "frame/live_names.h"

#include "frame/current_lifetimes.h"
#include "frame/operation.h"
#include "host/znIBrowserCriteria.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataOperation.h"
#include "host/znIBrowserDataProperty.h"
#include "host/znIBrowserDataReference.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserEvent.h"
#include "host/znIBrowserFindRequest.h"
#include "host/znIBrowserGuiMap.h"
#include "host/znIBrowserInputField.h"
#include "host/znIBrowserState.h"
#include "host/znIBrowserStyle.h"
#include "host/znIBrowserStyleElement.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "host/znIBrowserViewProperty.h"
#include "host/znIBrowserWindowAccess.h"
#include "host/znIBrowserWindowCallback.h"
#include "host/znIBrowserWindowPart.h"

namespace znlayer {
namespace {

using Manager = znBrowserManagerTcl;
using Names = std::vector<std::string>;

void AddName(const char* name, Names& names) {
    if (name) names.emplace_back(name);
}
void AddName(const znString& name, Names& names) { AddName(name.GetText(), names); }

// Host objects tell their names in several shapes.
template <class Object>
auto AddNameOf(Object& object, Names& names, int) -> decltype(object.GetName(), void()) {
    AddName(object.GetName(), names);
}
template <class Object>
auto AddNameOf(Object& object, Names& names, int) -> decltype(object.name, void()) {
    AddName(object.name, names);
}
template <class Object>
void AddNameOf(Object& object, Names& names, long) {
    znString name;
    object.GetName(name);
    AddName(name, names);
}

template <class Object>
void AddAll(const std::vector<Object*>& objects, Names& names) {
    for (Object* const object : objects) {
        if (object) AddNameOf(*object, names, 0);
    }
}

/// The names of what `list` gives of `owner`; further arguments stand behind the list.
template <class Owner, class Interface, class Answer, class Object, class... Parameters, class... Values>
void AddListed(Owner* owner, Answer (Interface::*list)(std::vector<Object*>&, Parameters...), Names& names,
               Values... values) {
    std::vector<Object*> objects;
    if (owner) (owner->*list)(objects, values...);
    AddAll(objects, names);
}

const znBrowserCurrentObjects& CurrentOf(const Manager& manager) { return CurrentAccess::Of(manager); }

void AddViews(const Manager& manager, Names& names) {
    znIBrowser* const browser = BrowserOf(manager);
    AddListed(browser ? browser->GetViewList() : nullptr, &znIBrowserViewList::GetViews, names, 0);
}

void AddWindows(const Manager& manager, Names& names) {
    znIBrowser* const browser = BrowserOf(manager);
    AddListed(browser ? browser->GetWindowAccessList() : nullptr,
              &znIBrowserWindowAccessList::GetWindowAccesses, names, 0);
}

void AddMaps(const Manager& manager, Names& names) {
    znIBrowser* const browser = BrowserOf(manager);
    AddListed(browser ? browser->GetGuiMapList() : nullptr, &znIBrowserGuiMapList::GetGuiMaps, names);
}

void AddCriteria(const Manager& manager, Names& names) {
    znIBrowserDataSourceSimple* const source = CurrentOf(manager).dataSourceSimple;
    AddListed(source ? source->GetCriteriaList() : nullptr, &znIBrowserCriteriaContainer::GetCriteria, names);
}

void AddStates(const Manager& manager, Names& names) {
    znIBrowserDataCtrl* const control = CurrentOf(manager).dataCtrl;
    AddListed(control ? control->GetStateContainer() : nullptr, &znIBrowserStateContainer::GetStates, names);
}

void AddListeners(const Manager& manager, Names& names) {
    std::vector<znString> listeners;
    if (znIBrowserWindowAccess* const window = CurrentOf(manager).windowAccess)
        window->GetListenerNames(listeners);
    for (const znString& listener : listeners) AddName(listener, names);
}

void AddEvents(const Manager& manager, Names& names) {
    const znBrowserCurrentObjects& current = CurrentOf(manager);
    std::vector<znIBrowserEvent*> events;
    if (current.windowAccess && current.windowPart)
        current.windowAccess->GetEvents(current.windowPart, events);
    AddAll(events, names);
}

void AddCallbacks(const Manager& manager, Names& names) {
    znIBrowserEvent* const event = CurrentOf(manager).event;
    znIBrowserWindowAccess* const window = event ? event->GetWindowAccess() : nullptr;
    std::vector<znIBrowserWindowCallback*> callbacks;
    if (window) window->GetCallbacks(event, callbacks);
    AddAll(callbacks, names);
}

void AddCriterions(const Manager& manager, Names& names) {
    if (const znBrowserProperty* const property = CurrentOf(manager).findRequestProperty)
        AddAll(property->criteria, names);
}

} // namespace

void AddLiveNames(const Manager& manager, ArgumentKind kind, Names& names) {
    const znBrowserCurrentObjects& current = CurrentOf(manager);
    switch (kind) {
    case ArgumentKind::Callback: return AddCallbacks(manager, names);
    case ArgumentKind::Column: return AddListed(current.view, &znIBrowserView::GetColumns, names);
    case ArgumentKind::Criteria: return AddCriteria(manager, names);
    case ArgumentKind::Criterion: return AddCriterions(manager, names);
    case ArgumentKind::DataControl:
        return AddListed(manager.GetApplication(), &znIBrowserApplication::GetDataCtrls, names);
    case ArgumentKind::DataOperation:
        return AddListed(current.dataCtrl, &znIBrowserDataCtrl::GetDataOperations, names);
    case ArgumentKind::DataProperty:
        return AddListed(current.dataSourceSimple, &znIBrowserDataSourceSimple::GetDataProperties, names);
    case ArgumentKind::DataSource:
        return AddListed(current.dataCtrl, &znIBrowserDataCtrl::GetDataSourcesSimple, names);
    case ArgumentKind::Element: return AddListed(current.style, &znIBrowserStyle::GetElements, names);
    case ArgumentKind::Event: return AddEvents(manager, names);
    case ArgumentKind::Field: return AddListed(current.dataCtrl, &znIBrowserDataCtrl::GetInputFields, names);
    case ArgumentKind::FindProperty:
        return AddListed(current.findRequest, &znIBrowserFindRequest::GetProperties, names);
    case ArgumentKind::FindRequest:
        return AddListed(current.windowAccess, &znIBrowserWindowAccess::GetFindRequests, names);
    case ArgumentKind::Folder:
        return AddListed(current.freeFolder, &znIBrowserViewItemFreeFolder::GetChildFolders, names);
    case ArgumentKind::Hierarchical:
        return AddListed(current.dataCtrl, &znIBrowserDataCtrl::GetDataSourcesHierarchical, names);
    case ArgumentKind::List:
        return AddListed(current.freeFolder, &znIBrowserViewItemFreeFolder::GetLists, names);
    case ArgumentKind::Listener: return AddListeners(manager, names);
    case ArgumentKind::Map: return AddMaps(manager, names);
    case ArgumentKind::Part:
        return AddListed(current.windowAccess, &znIBrowserWindowAccess::GetWindowParts, names, true);
    case ArgumentKind::Property: return AddListed(current.view, &znIBrowserView::GetViewProperties, names);
    case ArgumentKind::Reference:
        return AddListed(current.dataCtrl, &znIBrowserDataCtrl::GetDataReferences, names);
    case ArgumentKind::State: return AddStates(manager, names);
    case ArgumentKind::Style: return AddListed(current.column, &znIBrowserViewColumn::GetStyles, names);
    case ArgumentKind::Tree:
        return AddListed(current.freeFolder, &znIBrowserViewItemFreeFolder::GetTrees, names);
    case ArgumentKind::View: return AddViews(manager, names);
    case ArgumentKind::Window: return AddWindows(manager, names);
    default: return;
    }
}

} // namespace znlayer
