// Which current objects die with an object that the host deletes.
//
// The host never tells when an object dies. An operation that deletes one asks before, through the owners
// that objects name, which of the current objects lie in it, and clears those after the deletion. An object
// whose owner the host cannot tell counts as lying in the one that dies: no current object is safer than a
// dead one.
#include "host/znIBrowser.h"
#include "host/znIBrowserCriteria.h"
#include "host/znIBrowserEvent.h"
#include "host/znIBrowserFindRequest.h"
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

namespace {

using Currents = znBrowserCurrentObjects;

template <class T>
void ClearIfDoomed(T*& current, const T* doomed) {
    if (doomed && current == doomed) current = nullptr;
}

template <class T>
bool MayBe(const T* owner, const T* dying) {
    return !owner || owner == dying;
}

template <class T>
bool HasAncestor(T* object, const T* ancestor) {
    while (object && object != ancestor) object = object->GetParent();
    return object != nullptr;
}

/// Asked from both ends, so that one question that the host leaves unanswered does not hide a dying part.
bool MayLieIn(znIBrowserWindowPart* part, znIBrowserWindowPart* dying) {
    if (!part || HasAncestor(part, dying)) return true;
    std::vector<znIBrowserWindowPart*> below;
    dying->GetChildParts(below, true);
    return std::find(below.begin(), below.end(), part) != below.end();
}

znIBrowserView* ViewOf(znIBrowserStyle* style) {
    znIBrowserViewColumn* const column = style ? style->GetColumn() : nullptr;
    return column ? column->GetView() : nullptr;
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
bool OtherWindowHolds(znIBrowser* browser, const znIBrowserWindowAccess* dying,
                      const znBrowserProperty* property, const znBrowserCriterion* criterion) {
    std::vector<znIBrowserWindowAccess*> windows;
    znIBrowserWindowAccessList* const list = browser ? browser->GetWindowAccessList() : nullptr;
    if (list) list->GetWindowAccesses(windows, 0);
    return std::any_of(windows.begin(), windows.end(), [&](znIBrowserWindowAccess* window) {
        return window && window != dying && Holds(window, property, criterion);
    });
}

} // namespace

Currents znBrowserManagerTcl::CurrentsInside(znIBrowserView* view) const {
    Currents doomed;
    const auto dies = [view](auto* object) { return object && MayBe(object->GetView(), view); };
    if (current_.view == view) doomed.view = view;
    if (dies(current_.column)) doomed.column = current_.column;
    if (dies(current_.viewProperty)) doomed.viewProperty = current_.viewProperty;
    if (dies(current_.viewOperation)) doomed.viewOperation = current_.viewOperation;
    if (dies(current_.freeFolder)) doomed.freeFolder = current_.freeFolder;
    if (current_.style && MayBe(ViewOf(current_.style), view)) doomed.style = current_.style;
    if (current_.styleElement && MayBe(ViewOf(current_.styleElement->GetStyle()), view))
        doomed.styleElement = current_.styleElement;
    return doomed;
}

Currents znBrowserManagerTcl::CurrentsInside(znIBrowserViewColumn* column) const {
    Currents doomed;
    if (current_.column == column) doomed.column = column;
    if (current_.style && MayBe(current_.style->GetColumn(), column)) doomed.style = current_.style;
    znIBrowserStyle* const style = current_.styleElement ? current_.styleElement->GetStyle() : nullptr;
    if (current_.styleElement && (!style || MayBe(style->GetColumn(), column)))
        doomed.styleElement = current_.styleElement;
    return doomed;
}

Currents znBrowserManagerTcl::CurrentsInside(znIBrowserStyle* style) const {
    Currents doomed;
    if (current_.style == style) doomed.style = style;
    if (current_.styleElement && MayBe(current_.styleElement->GetStyle(), style))
        doomed.styleElement = current_.styleElement;
    return doomed;
}

Currents znBrowserManagerTcl::CurrentsInside(znIBrowserViewItemFreeFolder* folder) const {
    Currents doomed;
    if (HasAncestor(current_.freeFolder, folder)) doomed.freeFolder = current_.freeFolder;
    return doomed;
}

Currents znBrowserManagerTcl::CurrentsInside(znIBrowserWindowAccess* window) const {
    Currents doomed;
    const auto dies = [window](auto* object) { return object && MayBe(object->GetWindowAccess(), window); };
    if (current_.windowAccess == window) doomed.windowAccess = window;
    if (dies(current_.windowPart)) doomed.windowPart = current_.windowPart;
    if (dies(current_.event)) doomed.event = current_.event;
    znIBrowserEvent* const event = current_.windowCallback ? current_.windowCallback->GetEvent() : nullptr;
    if (current_.windowCallback && (!event || dies(event))) doomed.windowCallback = current_.windowCallback;
    if (dies(current_.findRequest)) doomed.findRequest = current_.findRequest;
    if (current_.findRequestProperty &&
        !OtherWindowHolds(GetBrowser(), window, current_.findRequestProperty, nullptr))
        doomed.findRequestProperty = current_.findRequestProperty;
    if (current_.findRequestPropertyCriterion &&
        !OtherWindowHolds(GetBrowser(), window, nullptr, current_.findRequestPropertyCriterion))
        doomed.findRequestPropertyCriterion = current_.findRequestPropertyCriterion;
    return doomed;
}

Currents znBrowserManagerTcl::CurrentsInside(znIBrowserWindowPart* part) const {
    Currents doomed;
    const auto dies = [part](znIBrowserEvent* event) {
        return !event || MayLieIn(event->GetWindowPart(), part);
    };
    if (current_.windowPart && MayLieIn(current_.windowPart, part)) doomed.windowPart = current_.windowPart;
    if (current_.event && dies(current_.event)) doomed.event = current_.event;
    if (current_.windowCallback && dies(current_.windowCallback->GetEvent()))
        doomed.windowCallback = current_.windowCallback;
    return doomed;
}

Currents znBrowserManagerTcl::CurrentsInside(znIBrowserDataSourceSimple* source) const {
    Currents doomed;
    if (current_.dataSourceSimple == source) doomed.dataSourceSimple = source;
    if (current_.list == source) doomed.list = source;
    if (current_.criteria && MayBe(current_.criteria->GetDataSource(), source))
        doomed.criteria = current_.criteria;
    return doomed;
}

void znBrowserManagerTcl::Forget(const Currents& doomed) {
    ClearIfDoomed(current_.view, doomed.view);
    ClearIfDoomed(current_.column, doomed.column);
    ClearIfDoomed(current_.style, doomed.style);
    ClearIfDoomed(current_.styleElement, doomed.styleElement);
    ClearIfDoomed(current_.viewProperty, doomed.viewProperty);
    ClearIfDoomed(current_.viewOperation, doomed.viewOperation);
    ClearIfDoomed(current_.freeFolder, doomed.freeFolder);
    ClearIfDoomed(current_.windowAccess, doomed.windowAccess);
    ClearIfDoomed(current_.windowPart, doomed.windowPart);
    ClearIfDoomed(current_.event, doomed.event);
    ClearIfDoomed(current_.windowCallback, doomed.windowCallback);
    ClearIfDoomed(current_.findRequest, doomed.findRequest);
    ClearIfDoomed(current_.findRequestProperty, doomed.findRequestProperty);
    ClearIfDoomed(current_.findRequestPropertyCriterion, doomed.findRequestPropertyCriterion);
    ClearIfDoomed(current_.dataSourceSimple, doomed.dataSourceSimple);
    ClearIfDoomed(current_.list, doomed.list);
    ClearIfDoomed(current_.criteria, doomed.criteria);
}
