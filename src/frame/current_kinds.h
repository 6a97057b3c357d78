// The kinds of current objects: one table from which everything that concerns all of them is made.
#ifndef CURRENT_KINDS_H
#define CURRENT_KINDS_H

#include "znBrowserCurrentObjects.h"

#include <tuple>
#include <type_traits>

namespace znlayer {

/// One kind of current object: what it is called, where it is kept, and the kinds of objects in which it lies
/// and with which it dies, outermost last. How an object tells its owner stands in `current_lifetimes.cpp`:
/// an owner that is named here and unknown there does not compile.
template <class Kept, class... Owners>
struct CurrentKind {
    using Object = Kept;
    template <class Other>
    static constexpr bool diesWith = std::is_same_v<Other, Kept> || (std::is_same_v<Other, Owners> || ...);

    const char* name;
    Kept* znBrowserCurrentObjects::*member;
};

inline constexpr std::tuple currentKinds{
    CurrentKind<znIBrowserView>{"view", &znBrowserCurrentObjects::view},
    CurrentKind<znIBrowserViewColumn, znIBrowserView>{"column", &znBrowserCurrentObjects::column},
    CurrentKind<znIBrowserStyle, znIBrowserViewColumn, znIBrowserView>{"style",
                                                                       &znBrowserCurrentObjects::style},
    CurrentKind<znIBrowserStyleElement, znIBrowserStyle, znIBrowserViewColumn, znIBrowserView>{
        "style element", &znBrowserCurrentObjects::styleElement},
    CurrentKind<znIBrowserViewProperty, znIBrowserView>{"view property",
                                                        &znBrowserCurrentObjects::viewProperty},
    CurrentKind<znIBrowserViewOperation, znIBrowserView>{"view operation",
                                                         &znBrowserCurrentObjects::viewOperation},
    CurrentKind<znIBrowserViewItemFreeFolder, znIBrowserView>{"free folder",
                                                              &znBrowserCurrentObjects::freeFolder},
    CurrentKind<znIBrowserDataSourceSimple, znIBrowserDataCtrl>{"list", &znBrowserCurrentObjects::list},
    CurrentKind<znIBrowserPopupMenu>{"popup menu", &znBrowserCurrentObjects::popupMenu},
    CurrentKind<znIBrowserPopupMenuItem, znIBrowserPopupMenu>{"popup menu item",
                                                              &znBrowserCurrentObjects::popupMenuItem},
    CurrentKind<znIBrowserWindowAccess>{"window", &znBrowserCurrentObjects::windowAccess},
    CurrentKind<znIBrowserWindowPart, znIBrowserWindowAccess>{"window part",
                                                              &znBrowserCurrentObjects::windowPart},
    CurrentKind<znIBrowserEvent, znIBrowserWindowPart, znIBrowserWindowAccess>{
        "event", &znBrowserCurrentObjects::event},
    CurrentKind<znIBrowserWindowCallback, znIBrowserEvent, znIBrowserWindowPart, znIBrowserWindowAccess>{
        "window callback", &znBrowserCurrentObjects::windowCallback},
    CurrentKind<znIBrowserFindRequest, znIBrowserWindowAccess>{"find request",
                                                               &znBrowserCurrentObjects::findRequest},
    CurrentKind<znBrowserProperty, znIBrowserFindRequest, znIBrowserWindowAccess>{
        "find request property", &znBrowserCurrentObjects::findRequestProperty},
    CurrentKind<znBrowserCriterion, znBrowserProperty, znIBrowserFindRequest, znIBrowserWindowAccess>{
        "find request property criterion", &znBrowserCurrentObjects::findRequestPropertyCriterion},
    CurrentKind<znIBrowserGuiMap>{"GUI map", &znBrowserCurrentObjects::guiMap},
    CurrentKind<znIBrowserDataCtrl>{"data control", &znBrowserCurrentObjects::dataCtrl},
    CurrentKind<znIBrowserDataSourceSimple, znIBrowserDataCtrl>{"data source simple",
                                                                &znBrowserCurrentObjects::dataSourceSimple},
    CurrentKind<znIBrowserDataSourceSimple, znIBrowserDataCtrl>{
        "connect data source simple", &znBrowserCurrentObjects::connectDataSourceSimple},
    CurrentKind<znIBrowserDataSourceHierarchical, znIBrowserDataCtrl>{
        "data source hierarchical", &znBrowserCurrentObjects::dataSourceHierarchical},
    CurrentKind<znIBrowserCriteria, znIBrowserDataSourceSimple, znIBrowserDataCtrl>{
        "criteria", &znBrowserCurrentObjects::criteria},
    CurrentKind<znIBrowserDataOperation, znIBrowserDataCtrl>{"data operation",
                                                             &znBrowserCurrentObjects::dataOperation},
    CurrentKind<znIBrowserInputField, znIBrowserDataCtrl>{"input field",
                                                          &znBrowserCurrentObjects::inputField},
    CurrentKind<znIBrowserState, znIBrowserDataCtrl>{"state", &znBrowserCurrentObjects::state},
};

static_assert(sizeof(znBrowserCurrentObjects) == std::tuple_size_v<decltype(currentKinds)> * sizeof(void*),
              "each current object stands in the table");

/// Calls `visit` with each kind.
template <class Visit>
constexpr void ForEachCurrentKind(Visit visit) {
    std::apply([&](const auto&... kind) { (visit(kind), ...); }, currentKinds);
}

} // namespace znlayer

#endif
