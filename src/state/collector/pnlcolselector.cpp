// The named collections of the current view.
#include "state/collector/collector_operation.h"

using namespace znlayer;

namespace {

constexpr char unknownCollection[] = "Cannot find panel collection : ";

bool HasCollection(const CollectorViewOperation& operation, const char* name) {
    std::vector<znString> names;
    operation.Collector().GetNamedCollections(operation.View(), names);
    return CollectorOperation::Lists(names, name);
}

/// A change of a collection that must exist.
bool ChangeExisting(const CollectorViewOperation& operation,
                    bool (znIBrowserCollector::*request)(znIBrowserView*, const char*), const char* name) {
    if (!operation) return false;
    if (!HasCollection(operation, name)) return operation.Fail({unknownCollection, name});
    return operation.ChangeView(request, name);
}

} // namespace

bool znBrowserManagerTcl::GetCollectorPanelCollectionNames(znString& out) {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    std::vector<znString> names;
    operation.Collector().GetNamedCollections(operation.View(), names);
    return operation.GiveNames(names, out);
}

bool znBrowserManagerTcl::CreateCollectorPanelCollection(const char* name) {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    if (!name) return operation.Fail(znBrowserMessages::nullPointer);
    if (HasCollection(operation, name)) return operation.Fail({"Panel collection already exists : ", name});
    return operation.ChangeView(&znIBrowserCollector::CreateNamedCollection, name);
}

bool znBrowserManagerTcl::SetCurrentCollectorPanelCollection(const char* name) {
    return ChangeExisting(CollectorViewOperation(*this), &znIBrowserCollector::SetCurrentNamedCollection,
                          name);
}

bool znBrowserManagerTcl::GetCurrentCollectorPanelCollection(znString& out) {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    out = operation.Collector().GetCurrentNamedCollection(operation.View());
    return true;
}

bool znBrowserManagerTcl::DeleteCollectorPanelCollection(const char* name) {
    return ChangeExisting(CollectorViewOperation(*this), &znIBrowserCollector::DeleteNamedCollection, name);
}

bool znBrowserManagerTcl::AddToCollectorPanelCollection(const char* name) {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    const znString current(name ? nullptr
                                : operation.Collector().GetCurrentNamedCollection(operation.View()));
    if (!name && current.empty()) return operation.Fail("No panel collection is current");
    return ChangeExisting(operation, &znIBrowserCollector::AddToNamedCollection,
                          name ? name : current.c_str());
}
