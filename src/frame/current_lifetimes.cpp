#include "frame/current_lifetimes.h"

#include "frame/current_kinds.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserApplication.h"
#include "host/znIBrowserCriteria.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserEvent.h"
#include "host/znIBrowserFindRequest.h"
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
znIBrowserEvent* OwnerOf(znIBrowserWindowCallback* callback, const znIBrowserEvent*) {
    return callback->GetEvent();
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
znIBrowserDataCtrl* OwnerOf(znIBrowserDataSourceSimple* source, const znIBrowserDataCtrl*) {
    return source->GetDataCtrl();
}
znIBrowserDataCtrl* OwnerOf(znIBrowserDataSourceHierarchical* source, const znIBrowserDataCtrl*) {
    return source->GetDataCtrl();
}
znIBrowserDataCtrl* OwnerOf(znIBrowserCriteria* criteria, const znIBrowserDataCtrl*) {
    znIBrowserDataSourceSimple* const source = criteria->GetDataSource();
    return source ? source->GetDataCtrl() : nullptr;
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

// ---- What names no owner: it is safe while another than the dying one holds it ----

template <class T>
bool Contains(const std::vector<T*>& list, const T* object) {
    return std::find(list.begin(), list.end(), object) != list.end();
}

bool IsHeld(const znBrowserProperty* property, const znBrowserProperty& candidate) {
    return &candidate == property;
}
bool IsHeld(const znBrowserCriterion* criterion, const znBrowserProperty& candidate) {
    return Contains<znBrowserCriterion>(candidate.criteria, criterion);
}

/// Whether a find request, of a window that passes, holds the property or the criterion.
template <class Record, class Passes>
bool AnyRequestHolds(const Manager& manager, const Record* record, Passes passes) {
    std::vector<znIBrowserWindowAccess*> windows;
    std::vector<znIBrowserFindRequest*> requests;
    std::vector<znBrowserProperty*> properties;
    znIBrowser* const browser = manager.GetApplication()->GetBrowser();
    znIBrowserWindowAccessList* const list = browser ? browser->GetWindowAccessList() : nullptr;
    if (list) list->GetWindowAccesses(windows, 0);
    for (znIBrowserWindowAccess* const window : windows) {
        requests.clear();
        if (window) window->GetFindRequests(requests);
        for (znIBrowserFindRequest* const request : requests) {
            if (!request || !passes(window, request)) continue;
            properties.clear();
            request->GetProperties(properties);
            for (const znBrowserProperty* const candidate : properties)
                if (candidate && IsHeld(record, *candidate)) return true;
        }
    }
    return false;
}

template <class Record>
bool MayRecordLieIn(const Record* record, const znIBrowserWindowAccess* dying, const Manager& manager) {
    return !AnyRequestHolds(manager, record, [&](auto* window, auto*) { return window != dying; });
}
template <class Record>
bool MayRecordLieIn(const Record* record, const znIBrowserFindRequest* dying, const Manager& manager) {
    return !AnyRequestHolds(manager, record, [&](auto*, auto* request) { return request != dying; });
}

template <class Dying>
bool MayLieIn(znBrowserProperty* property, Dying* dying, const Manager& manager) {
    if constexpr (std::is_same_v<Dying, znBrowserProperty>)
        return property == dying;
    else
        return MayRecordLieIn(property, dying, manager);
}
template <class Dying>
bool MayLieIn(znBrowserCriterion* criterion, Dying* dying, const Manager& manager) {
    if constexpr (std::is_same_v<Dying, znBrowserCriterion>)
        return criterion == dying;
    else if constexpr (std::is_same_v<Dying, znBrowserProperty>)
        return IsHeld(criterion, *dying);
    else
        return MayRecordLieIn(criterion, dying, manager);
}

void ListIn(znIBrowserDataCtrl& control, std::vector<znIBrowserDataOperation*>& operations) {
    control.GetDataOperations(operations);
}
void ListIn(znIBrowserDataCtrl& control, std::vector<znIBrowserInputField*>& fields) {
    control.GetInputFields(fields);
}
void ListIn(znIBrowserDataCtrl& control, std::vector<znIBrowserState*>& states) {
    if (znIBrowserStateContainer* const container = control.GetStateContainer()) container->GetStates(states);
}

template <class Object>
bool OtherControlHolds(const Manager& manager, const znIBrowserDataCtrl* dying, const Object* object) {
    std::vector<znIBrowserDataCtrl*> controls;
    manager.GetApplication()->GetDataCtrls(controls);
    return std::any_of(controls.begin(), controls.end(), [&](znIBrowserDataCtrl* control) {
        std::vector<Object*> held;
        if (control && control != dying) ListIn(*control, held);
        return Contains<Object>(held, object);
    });
}

bool MayLieIn(znIBrowserDataOperation* operation, znIBrowserDataCtrl* dying, const Manager& manager) {
    return !OtherControlHolds(manager, dying, operation);
}
bool MayLieIn(znIBrowserInputField* field, znIBrowserDataCtrl* dying, const Manager& manager) {
    return !OtherControlHolds(manager, dying, field);
}
bool MayLieIn(znIBrowserState* state, znIBrowserDataCtrl* dying, const Manager& manager) {
    return !OtherControlHolds(manager, dying, state);
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
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserStyle*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserStyleElement*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserViewProperty*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserViewOperation*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserViewItemFreeFolder*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserWindowAccess*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserWindowPart*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserEvent*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserWindowCallback*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserFindRequest*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znBrowserProperty*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znBrowserCriterion*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserGuiMap*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserDataCtrl*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserDataSourceSimple*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&,
                                                znIBrowserDataSourceHierarchical*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserCriteria*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserDataOperation*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserInputField*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserState*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserPopupMenu*);
template znBrowserCurrentObjects CurrentsInside(const znBrowserManagerTcl&, znIBrowserPopupMenuItem*);

void Forget(znBrowserManagerTcl& manager, const znBrowserCurrentObjects& doomed) {
    znBrowserCurrentObjects& current = CurrentAccess::Of(manager);
    ForEachCurrentKind([&](const auto& kind) {
        auto* const dead = doomed.*kind.member;
        if (dead && current.*kind.member == dead) current.*kind.member = nullptr;
    });
}

} // namespace znlayer
