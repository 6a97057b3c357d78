// Questions about data sources that the model asks unseen: nothing here is recorded or refused.
#ifndef ZN_HOST_DATA_SOURCES_H
#define ZN_HOST_DATA_SOURCES_H

#include "base/host_call.h"
#include "host/znIBrowserDataSource.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"

#include <algorithm>
#include <vector>

namespace znhost {

using SimpleSources = std::vector<znIBrowserDataSourceSimple*>;

inline znIBrowserDataSourceSimple* SimpleOf(CallLog& log, znIBrowserDataSource* source) {
    const CallLog::Quiet quiet(log);
    return source ? source->GetSimple() : nullptr;
}

inline znIBrowserDataSourceHierarchical* HierarchicalOf(CallLog& log, znIBrowserDataSource* source) {
    const CallLog::Quiet quiet(log);
    return source ? source->GetHierarchical() : nullptr;
}

/// A simple or hierarchical source without regard to its kind; null for null.
template <class Source>
znIBrowserDataSource* AnySource(CallLog& log, Source* source) {
    const CallLog::Quiet quiet(log);
    return source ? source->GetDataSource() : nullptr;
}

/// The children of a hierarchical source.
inline SimpleSources ChildrenOf(CallLog& log, znIBrowserDataSourceHierarchical& source) {
    const CallLog::Quiet quiet(log);
    SimpleSources children;
    source.GetChildren(children);
    return children;
}

/// The parent of a hierarchical source, if it has one, and its children.
inline SimpleSources MembersOf(CallLog& log, znIBrowserDataSourceHierarchical& source) {
    const CallLog::Quiet quiet(log);
    SimpleSources members = ChildrenOf(log, source);
    if (znIBrowserDataSourceSimple* const parent = source.GetParent())
        members.insert(members.begin(), parent);
    return members;
}

/// The simple sources that a source consists of: itself, or the members of a hierarchical one.
inline SimpleSources SimpleSourcesOf(CallLog& log, znIBrowserDataSource* source) {
    if (znIBrowserDataSourceSimple* const simple = SimpleOf(log, source)) return {simple};
    znIBrowserDataSourceHierarchical* const hierarchical = HierarchicalOf(log, source);
    return hierarchical ? MembersOf(log, *hierarchical) : SimpleSources();
}

template <class Pointers, class Pointer>
bool Contains(const Pointers& pointers, const Pointer& pointer) {
    return std::find(pointers.begin(), pointers.end(), pointer) != pointers.end();
}

/// Adds what is not there yet, and keeps the order.
template <class Pointer>
void AddNew(std::vector<Pointer>& pointers, Pointer pointer) {
    if (pointer && !Contains(pointers, pointer)) pointers.push_back(pointer);
}

template <class Pointers, class Pointer>
void RemoveAll(Pointers& pointers, const Pointer& pointer) {
    pointers.erase(std::remove(pointers.begin(), pointers.end(), pointer), pointers.end());
}

template <class Records, class Test>
void RemoveWhere(Records& records, Test&& test) {
    records.erase(std::remove_if(records.begin(), records.end(), test), records.end());
}

/// Replaces what `names` holds by the names of the objects, in order.
template <class Objects>
void CopyNames(CallLog& log, const Objects& objects, std::vector<znString>& names) {
    names.clear();
    names.reserve(objects.size());
    for (auto* const object : objects) names.emplace_back(NameOf(log, object));
}

} // namespace znhost

#endif
