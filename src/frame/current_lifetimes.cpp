#include "frame/current_lifetimes.h"

#include "frame/current_kinds.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserApplication.h"
#include "host/znIBrowserCriteria.h"
#include "host/znIBrowserEvent.h"
#include "host/znIBrowserFindRequest.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
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
#include "znBrowserManagerTcl.h"

#include <algorithm>
#include <type_traits>

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;

// ---- How an object tells the owner of a kind; null when it cannot ----

znIBrowserView* OwnerOf(znIBrowserViewColumn* column, const znIBrowserView*) { return column->GetView(); }
znIBrowserView* OwnerOf(znIBrowserViewProperty* property, const znIBrowserView*) {
    return property->GetView();
}
znIBrowserView* OwnerOf(znIBrowserViewOperation* operation, const znIBrowserView*) {
    return operation->GetView();
}
znIBrowserView* OwnerOf(znIBrowserViewItemFreeFolder* folder, const znIBrowserView*) {
    return folder->GetView();
}

znIBrowserViewColumn* OwnerOf(znIBrowserStyle* style, const znIBrowserViewColumn*) {
    return style->GetColumn();
}
znIBrowserView* OwnerOf(znIBrowserStyle* style, const znIBrowserView*) {
    znIBrowserViewColumn* const column = style->GetColumn();
    return column ? column->GetView() : nullptr;
}

znIBrowserStyle* OwnerOf(znIBrowserStyleElement* element, const znIBrowserStyle*) {
    return element->GetStyle();
}
template <class Owner>
Owner* OwnerOf(znIBrowserStyleElement* element, const Owner* kind) {
    znIBrowserStyle* const style = element->GetStyle();
    return style ? OwnerOf(style, kind) : nullptr;
}

znIBrowserWindowAccess* OwnerOf(znIBrowserWindowPart* part, const znIBrowserWindowAccess*) {
    return part->GetWindowAccess();
}
znIBrowserWindowAccess* OwnerOf(znIBrowserEvent* event, const znIBrowserWindowAccess*) {
    return event->GetWindowAccess();
}
znIBrowserWindowAccess* OwnerOf(znIBrowserWindowCallback* callback, const znIBrowserWindowAccess*) {
    znIBrowserEvent* const event = callback->GetEvent();
    return event ? event->GetWindowAccess() : nullptr;
}
znIBrowserWindowAccess* OwnerOf(znIBrowserFindRequest* request, const znIBrowserWindowAccess*) {
    return request->GetWindowAccess();
}

znIBrowserPopupMenu* OwnerOf(znIBrowserPopupMenuItem* item, const znIBrowserPopupMenu*) {
    return item->GetMenu();
}

znIBrowserDataSourceSimple* OwnerOf(znIBrowserCriteria* criteria, const znIBrowserDataSourceSimple*) {
    return criteria->GetDataSource();
}

// ---- Whether an object lies in a dying one ----

template <class T>
bool HasAncestor(T* object, const T* ancestor) {
    while (object && object != ancestor) object = object->GetParent();
    return object != nullptr;
}

/// Whatever has one owner of that kind.
template <class Object, class Dying>
bool MayLieIn(Object* object, Dying* dying, const Manager&) {
    if constexpr (std::is_same_v<Object, Dying>) {
        return object == dying;
    } else {
        Dying* const owner = OwnerOf(object, dying);
        return !owner || owner == dying;
    }
}

bool MayLieIn(znIBrowserViewItemFreeFolder* folder, znIBrowserViewItemFreeFolder* dying, const Manager&) {
    return HasAncestor(folder, dying);
}

/// Asked from both ends, so that one question that the host leaves unanswered does not hide a dying part.
bool MayLieIn(znIBrowserWindowPart* part, znIBrowserWindowPart* dying, const Manager&) {
    if (!part || HasAncestor(part, dying)) return true;
    std::vector<znIBrowserWindowPart*> below;
    dying->GetChildParts(below, true);
    return std::find(below.begin(), below.end(), part) != below.end();
}

bool MayLieIn(znIBrowserEvent* event, znIBrowserWindowPart* dying, const Manager& manager) {
    return !event || MayLieIn(event->GetWindowPart(), dying, manager);
}

bool MayLieIn(znIBrowserWindowCallback* callback, znIBrowserWindowPart* dying, const Manager& manager) {
    return MayLieIn(callback->GetEvent(), dying, manager);
}

bool Holds(znIBrowserWindowAccess* window, const znBrowserProperty* property,
           const znBrowserCriterion* criterion) {
    std::vector<znIBrowserFindRequest*> requests;
    std::vector<znBrowserProperty*> properties;
    window->GetFindRequests(requests);
    for (znIBrowserFindRequest* const request : requests) {
        properties.clear();
        if (request) request->GetProperties(properties);
        for (const znBrowserProperty* const candidate : properties) {
            if (!candidate) continue;
            if (property && candidate == property) return true;
            const auto& criteria = candidate->criteria;
            if (criterion && std::find(criteria.begin(), criteria.end(), criterion) != criteria.end())
                return true;
        }
    }
    return false;
}

/// The records of find requests name no owner: one is safe when a window other than the dying one holds it.
bool OtherWindowHolds(const Manager& manager, const znIBrowserWindowAccess* dying,
                      const znBrowserProperty* property, const znBrowserCriterion* criterion) {
    std::vector<znIBrowserWindowAccess*> windows;
    znIBrowser* const browser = manager.GetApplication()->GetBrowser();
    znIBrowserWindowAccessList* const list = browser ? browser->GetWindowAccessList() : nullptr;
    if (list) list->GetWindowAccesses(windows, 0);
    return std::any_of(windows.begin(), windows.end(), [&](znIBrowserWindowAccess* window) {
        return window && window != dying && Holds(window, property, criterion);
    });
}

bool MayLieIn(znBrowserProperty* property, znIBrowserWindowAccess* dying, const Manager& manager) {
    return !OtherWindowHolds(manager, dying, property, nullptr);
}

bool MayLieIn(znBrowserCriterion* criterion, znIBrowserWindowAccess* dying, const Manager& manager) {
    return !OtherWindowHolds(manager, dying, nullptr, criterion);
}

} // namespace

znBrowserCurrentObjects& CurrentAccess::Of(znBrowserManagerTcl& manager) { return manager.current_; }

const znBrowserCurrentObjects& CurrentAccess::Of(const znBrowserManagerTcl& manager) {
    return manager.current_;
}

template <class Dying>
znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl& manager, Dying* dying) {
    const znBrowserCurrentObjects& current = CurrentAccess::Of(manager);
    znBrowserCurrentObjects doomed;
    ForEachCurrentKind([&](const auto& kind) {
        if constexpr (std::decay_t<decltype(kind)>::template diesWith<Dying>) {
            auto* const object = current.*kind.member;
            if (object && MayLieIn(object, dying, manager)) doomed.*kind.member = object;
        }
    });
    return doomed;
}

template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserView*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserViewColumn*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserViewProperty*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserStyle*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserStyleElement*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserViewItemFreeFolder*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserPopupMenu*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserPopupMenuItem*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserWindowAccess*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserWindowPart*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserDataSourceSimple*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserCriteria*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserDataOperation*);

void Forget(znBrowserManagerTcl& manager, const znBrowserCurrentObjects& doomed) {
    znBrowserCurrentObjects& current = CurrentAccess::Of(manager);
    ForEachCurrentKind([&](const auto& kind) {
        auto* const dead = doomed.*kind.member;
        if (dead && current.*kind.member == dead) current.*kind.member = nullptr;
    });
}

} // namespace znlayer
