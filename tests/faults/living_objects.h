// Whether the manager's current objects are among those that live in the host.
#ifndef LIVING_OBJECTS_H
#define LIVING_OBJECTS_H

#include "app/application.h"
#include "app/embedded_host.h"
#include "base/host_call.h"
#include "frame/current_kinds.h"
#include "frame/current_lifetimes.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "model/browser.h"
#include "model/gui_map_list.h"
#include "model/view.h"
#include "state/state_container.h"
#include "store/data_ctrl.h"
#include "window/window_list.h"
#include "znBrowserManagerTcl.h"

#include <set>
#include <string>
#include <utility>
#include <vector>

/// The addresses of all objects of a host, each as the interface by which the manager knows it.
class LivingObjects {
public:
    explicit LivingObjects(znhost::EmbeddedHost& host) {
        const znhost::CallLog::Quiet quiet(host.Calls());
        znhost::BrowserStates& browser = host.App().Model();
        for (const auto& view : browser.Views()) AddView(*view);
        for (const auto& window : browser.Windows().All()) AddWindow(*window);
        std::vector<znIBrowserGuiMap*> maps;
        browser.GuiMaps().GetGuiMaps(maps);
        AddAll(maps);
        if (znIBrowserPopupMenuList* const menus = browser.GetPopupMenuList()) AddPopupMenus(*menus);
        for (const auto& control : host.App().DataControls()) AddDataCtrl(*control);
    }
    template <class Interface>
    bool Has(const Interface* object) const {
        return !object || living_.count(object) > 0;
    }

private:
    template <class Interface>
    void Add(const Interface* object) {
        living_.insert(object);
    }
    template <class Interface>
    void AddAll(const std::vector<Interface*>& objects) {
        for (const Interface* const object : objects) Add(object);
    }

    void AddView(znhost::View& view) {
        Add<znIBrowserView>(&view);
        for (const auto& property : view.Properties()) Add<znIBrowserViewProperty>(property.get());
        for (const auto& operation : view.Operations()) Add<znIBrowserViewOperation>(operation.get());
        for (const auto* const folder : view.RootFolder().WithBelow())
            Add<znIBrowserViewItemFreeFolder>(folder);
        for (const auto& column : view.Columns()) {
            Add<znIBrowserViewColumn>(column.get());
            for (const auto& style : column->Styles()) {
                Add<znIBrowserStyle>(style.get());
                for (const auto& element : style->Elements()) Add<znIBrowserStyleElement>(element.get());
            }
        }
    }

    void AddPopupMenus(znIBrowserPopupMenuList& list) {
        std::vector<znIBrowserPopupMenu*> menus;
        std::vector<znIBrowserPopupMenuItem*> items;
        list.GetPopupMenus(menus);
        AddAll(menus);
        for (znIBrowserPopupMenu* const menu : menus) {
            menu->GetItems(items);
            AddAll(items);
        }
    }

    void AddWindow(znhost::Window& window) {
        Add<znIBrowserWindowAccess>(&window);
        std::vector<znIBrowserWindowPart*> parts;
        window.GetWindowParts(parts, true);
        AddAll(parts);
        for (znIBrowserWindowPart* const part : parts) {
            std::vector<znIBrowserEvent*> events;
            window.GetEvents(part, events);
            AddAll(events);
            for (znIBrowserEvent* const event : events) {
                std::vector<znIBrowserWindowCallback*> callbacks;
                window.GetCallbacks(event, callbacks);
                AddAll(callbacks);
            }
        }
        std::vector<znIBrowserFindRequest*> requests;
        window.GetFindRequests(requests);
        AddAll(requests);
        for (znIBrowserFindRequest* const request : requests) {
            std::vector<znBrowserProperty*> properties;
            request->GetProperties(properties);
            AddAll(properties);
            for (const znBrowserProperty* const property : properties) AddAll(property->criteria);
        }
    }

    void AddDataCtrl(znhost::DataCtrl& control) {
        Add<znIBrowserDataCtrl>(&control);
        std::vector<znIBrowserDataSourceSimple*> sources;
        control.GetDataSourcesSimple(sources);
        AddAll(sources);
        for (znIBrowserDataSourceSimple* const source : sources) {
            std::vector<znIBrowserCriteria*> criteria;
            if (auto* const list = source->GetCriteriaList()) list->GetCriteria(criteria);
            AddAll(criteria);
        }
        std::vector<znIBrowserDataSourceHierarchical*> trees;
        control.GetDataSourcesHierarchical(trees);
        AddAll(trees);
        std::vector<znIBrowserDataOperation*> operations;
        control.GetDataOperations(operations);
        AddAll(operations);
        std::vector<znIBrowserInputField*> fields;
        control.GetInputFields(fields);
        AddAll(fields);
        std::vector<znIBrowserState*> states;
        control.GetStateContainer()->GetStates(states);
        AddAll(states);
    }

    std::set<const void*> living_;
};

/// Calls `visit(kind, pointer)` for each of the manager's current objects.
template <class Visit>
void VisitCurrents(const znBrowserManagerTcl& m, Visit visit) {
    const znBrowserCurrentObjects& current = znlayer::CurrentAccess::Of(m);
    znlayer::ForEachCurrentKind([&](const auto& kind) { visit(kind.name, current.*kind.member); });
}

/// The kinds of the manager's current objects that are dead; "" when all live.
inline std::string DeadCurrents(znhost::EmbeddedHost& host) {
    const LivingObjects living(host);
    std::string dead;
    VisitCurrents(host.Manager(), [&](const char* kind, const auto* current) {
        if (!living.Has(current)) dead += std::string(kind) + "; ";
    });
    return dead;
}

#endif
