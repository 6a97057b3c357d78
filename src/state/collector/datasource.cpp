// The data source whose items the collector collects. It is kept by name: nothing tells when one dies.
#include "frame/collector_helper.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "state/collector/collected_source.h"
#include "state/collector/collector_operation.h"

#include <cstring>

using namespace znlayer;

namespace {

constexpr char unknownSource[] = "The collector cannot find datasource : ";

znIBrowserDataSourceSimple* FindKind(const std::vector<znIBrowserDataSourceSimple*>& kinds,
                                     const char* name) {
    for (znIBrowserDataSourceSimple* const kind : kinds) {
        const char* const ownName = kind ? kind->GetName() : nullptr;
        if (ownName && std::strcmp(ownName, name) == 0) return kind;
    }
    return nullptr;
}

/// The data source of that name in the view of an operation; null, and an error, when there is none.
znIBrowserDataSourceSimple* RequireKind(const CollectorViewOperation& operation, const char* name) {
    std::vector<znIBrowserDataSourceSimple*> kinds;
    if (!operation) return nullptr;
    if (!operation.Collector().GetKinds(operation.View(), kinds)) {
        operation.FailWithHostError();
        return nullptr;
    }
    znIBrowserDataSourceSimple* const kind = name ? FindKind(kinds, name) : nullptr;
    if (!kind) operation.Fail({unknownSource, name});
    return kind;
}

/// Chooses a data source that exists, or none for "". The helper keeps it as soon as the host has taken it.
bool ChooseKind(znBrowserManagerTcl& manager, const CollectorOperation& operation, const char* name) {
    manager.CreateBrowserManagerCollectorTcl();
    znString chosen(name);
    if (!operation.Change(&znIBrowserCollector::SetKind, name)) return false;
    // A host may have destroyed it meanwhile.
    if (znBrowserManagerCollectorTcl* const helper = manager.GetBrowserManagerCollectorTcl())
        helper->DataSourceName() = std::move(chosen);
    return true;
}

} // namespace

bool znlayer::FindCollectedSource(const znBrowserManagerTcl& manager, const CollectorViewOperation& operation,
                                  znIBrowserDataSourceSimple*& source) {
    const char* const name = manager.GetCurrentCollectorDataSourceSimple();
    source = name[0] ? RequireKind(operation, name) : nullptr;
    return operation.End();
}

void znlayer::ForgetCollectorDataSource(znBrowserManagerTcl& manager, const char* name) {
    const char* const chosen = manager.GetCurrentCollectorDataSourceSimple();
    if (!chosen[0] || std::strcmp(chosen, name) != 0) return;
    if (manager.GetCurrentCollectorDataSourceSimplePtr()) return;
    manager.GetBrowserManagerCollectorTcl()->DataSourceName().clear();
    if (znIBrowserCollector* const collector = manager.GetApplication()->GetCollector())
        collector->SetKind("");
}

znIBrowserDataSourceSimple* znBrowserManagerTcl::GetCurrentCollectorDataSourceSimplePtr() const {
    znIBrowserCollector* const collector = application_->GetCollector();
    const char* const name = GetCurrentCollectorDataSourceSimple();
    std::vector<znIBrowserDataSourceSimple*> kinds;
    if (!collector || !current_.view || !name[0]) return nullptr;
    return collector->GetKinds(current_.view, kinds) ? FindKind(kinds, name) : nullptr;
}

bool znBrowserManagerTcl::SetCurrentCollectorDataSourceSimple(const char* name) {
    if (name && std::strcmp(name, znBrowserTclKeywords::KEYWORD_NONE) == 0)
        return ChooseKind(*this, CollectorOperation(*this), "");
    const CollectorViewOperation operation(*this);
    return RequireKind(operation, name) && ChooseKind(*this, operation, name);
}

const char* znBrowserManagerTcl::GetCurrentCollectorDataSourceSimple() const {
    znBrowserManagerCollectorTcl* const helper = GetBrowserManagerCollectorTcl();
    return helper ? helper->DataSourceName().c_str() : "";
}

bool znBrowserManagerTcl::GetCurrentCollectorDataSourceSimple(znString& out) {
    const CollectorOperation operation(*this);
    const char* const name = GetCurrentCollectorDataSourceSimple();
    out = name[0] ? name : znBrowserTclKeywords::KEYWORD_NONE;
    return operation.End();
}

bool znBrowserManagerTcl::GetCollectorDataSourceSimpleNames(znString& out) {
    const CollectorViewOperation operation(*this);
    std::vector<znIBrowserDataSourceSimple*> kinds;
    if (!operation) return false;
    if (!operation.Collector().GetKinds(operation.View(), kinds)) return operation.FailWithHostError();
    return operation.Give(NameList(EntryForm::Element).AddNames(kinds, NullName::IsLeftOut), out);
}
