#include "frame/live_names.h"

#include "frame/current_lifetimes.h"
#include "frame/operation.h"
#include "host/znIBrowserCollector.h"
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
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "host/znIBrowserState.h"
#include "host/znIBrowserStyle.h"
#include "host/znIBrowserStyleElement.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "host/znIBrowserViewOperation.h"
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

void AddPopupMenus(const Manager& manager, Names& names) {
    znIBrowser* const browser = BrowserOf(manager);
    AddListed(browser ? browser->GetPopupMenuList() : nullptr, &znIBrowserPopupMenuList::GetPopupMenus,
              names);
}

void AddCriteria(const Manager& manager, Names& names) {
    znIBrowserDataSourceSimple* const source = CurrentOf(manager).dataSourceSimple;
    AddListed(source ? source->GetCriteriaList() : nullptr, &znIBrowserCriteriaContainer::GetCriteria, names);
}

void AddStates(const Manager& manager, Names& names) {
    znIBrowserDataCtrl* const control = CurrentOf(manager).dataCtrl;
    AddListed(control ? control->GetStateContainer() : nullptr, &znIBrowserStateContainer::GetStates, names);
}

void AddTexts(const std::vector<znString>& texts, Names& names) {
    for (const znString& text : texts) AddName(text, names);
}

void AddListeners(const Manager& manager, Names& names) {
    std::vector<znString> listeners;
    if (znIBrowserWindowAccess* const window = CurrentOf(manager).windowAccess)
        window->GetListenerNames(listeners);
    AddTexts(listeners, names);
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

void AddDataControls(const Manager& manager, Names& names) {
    AddListed(manager.GetApplication(), &znIBrowserApplication::GetDataCtrls, names);
}

void AddParts(const Manager& manager, Names& names) {
    AddListed(CurrentOf(manager).windowAccess, &znIBrowserWindowAccess::GetWindowParts, names, true);
}

void AddCollections(const Manager& manager, Names& names) {
    znIBrowserCollector* const collector = manager.GetApplication()->GetCollector();
    std::vector<znString> collections;
    if (collector && CurrentOf(manager).view)
        collector->GetNamedCollections(CurrentOf(manager).view, collections);
    AddTexts(collections, names);
}

void AddCollectorKinds(const Manager& manager, Names& names) {
    znIBrowserCollector* const collector = manager.GetApplication()->GetCollector();
    std::vector<znIBrowserDataSourceSimple*> kinds;
    if (collector && CurrentOf(manager).view) collector->GetKinds(CurrentOf(manager).view, kinds);
    AddAll(kinds, names);
}

void AddCollectorOptions(const Manager& manager, Names& names) {
    std::vector<znString> options;
    if (znIBrowserCollector* const collector = manager.GetApplication()->GetCollector())
        collector->GetOptionNames(options);
    AddTexts(options, names);
}

/// What a current object lists.
template <auto member, auto list>
void AddOf(const Manager& manager, Names& names) {
    AddListed(CurrentOf(manager).*member, list, names);
}

using Currents = znBrowserCurrentObjects;

struct NamesOfKind {
    ArgumentKind kind;
    void (*add)(const Manager& manager, Names& names);
};

constexpr NamesOfKind namesOfKinds[] = {
    {ArgumentKind::Callback, AddCallbacks},
    {ArgumentKind::Collection, AddCollections},
    {ArgumentKind::CollectorKind, AddCollectorKinds},
    {ArgumentKind::CollectorOption, AddCollectorOptions},
    {ArgumentKind::Column, AddOf<&Currents::view, &znIBrowserView::GetColumns>},
    {ArgumentKind::Criteria, AddCriteria},
    {ArgumentKind::Criterion, AddCriterions},
    {ArgumentKind::DataControl, AddDataControls},
    {ArgumentKind::DataOperation, AddOf<&Currents::dataCtrl, &znIBrowserDataCtrl::GetDataOperations>},
    {ArgumentKind::DataProperty,
     AddOf<&Currents::dataSourceSimple, &znIBrowserDataSourceSimple::GetDataProperties>},
    {ArgumentKind::DataSource, AddOf<&Currents::dataCtrl, &znIBrowserDataCtrl::GetDataSourcesSimple>},
    {ArgumentKind::Element, AddOf<&Currents::style, &znIBrowserStyle::GetElements>},
    {ArgumentKind::Event, AddEvents},
    {ArgumentKind::Field, AddOf<&Currents::dataCtrl, &znIBrowserDataCtrl::GetInputFields>},
    {ArgumentKind::FindProperty, AddOf<&Currents::findRequest, &znIBrowserFindRequest::GetProperties>},
    {ArgumentKind::FindRequest, AddOf<&Currents::windowAccess, &znIBrowserWindowAccess::GetFindRequests>},
    {ArgumentKind::Folder, AddOf<&Currents::freeFolder, &znIBrowserViewItemFreeFolder::GetChildFolders>},
    {ArgumentKind::Hierarchical, AddOf<&Currents::dataCtrl, &znIBrowserDataCtrl::GetDataSourcesHierarchical>},
    {ArgumentKind::List, AddOf<&Currents::freeFolder, &znIBrowserViewItemFreeFolder::GetLists>},
    {ArgumentKind::Listener, AddListeners},
    {ArgumentKind::Map, AddMaps},
    {ArgumentKind::Part, AddParts},
    {ArgumentKind::PopupMenu, AddPopupMenus},
    {ArgumentKind::PopupMenuItem, AddOf<&Currents::popupMenu, &znIBrowserPopupMenu::GetItems>},
    {ArgumentKind::Property, AddOf<&Currents::view, &znIBrowserView::GetViewProperties>},
    {ArgumentKind::Reference, AddOf<&Currents::dataCtrl, &znIBrowserDataCtrl::GetDataReferences>},
    {ArgumentKind::State, AddStates},
    {ArgumentKind::Style, AddOf<&Currents::column, &znIBrowserViewColumn::GetStyles>},
    {ArgumentKind::Tree, AddOf<&Currents::freeFolder, &znIBrowserViewItemFreeFolder::GetTrees>},
    {ArgumentKind::View, AddViews},
    {ArgumentKind::ViewOperation, AddOf<&Currents::view, &znIBrowserView::GetViewOperations>},
    {ArgumentKind::Window, AddWindows},
};

} // namespace

void AddLiveNames(const Manager& manager, ArgumentKind kind, Names& names) {
    for (const NamesOfKind& row : namesOfKinds) {
        if (row.kind == kind) row.add(manager, names);
    }
}

} // namespace znlayer
