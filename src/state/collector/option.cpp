// The actions of the collector, those of scripts included.
#include "state/collector/collector_operation.h"

using namespace znlayer;

namespace {

constexpr char unknownOption[] = "Cannot find collector option : ";

bool HasOption(const CollectorOperation& operation, const char* name) {
    std::vector<znString> names;
    operation.Collector().GetOptionNames(names);
    return CollectorOperation::Lists(names, name);
}

} // namespace

bool znBrowserManagerTcl::GetCollectorOptionNames(znString& out) {
    const CollectorOperation operation(*this);
    if (!operation) return false;
    std::vector<znString> names;
    operation.Collector().GetOptionNames(names);
    return operation.GiveNames(names, out);
}

bool znBrowserManagerTcl::SetCurrentCollectorOption(const char* name) {
    const CollectorOperation operation(*this);
    if (!operation) return false;
    if (!HasOption(operation, name)) return operation.Fail({unknownOption, name});
    return operation.Change(&znIBrowserCollector::SetCurrentOption, name);
}

bool znBrowserManagerTcl::GetCurrentCollectorOption(znString& out) {
    const CollectorOperation operation(*this);
    if (!operation) return false;
    out = operation.Collector().GetCurrentOption();
    return true;
}

bool znBrowserManagerTcl::PerformCollectorOption(const char* name) {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    const znString performed(name ? name : operation.Collector().GetCurrentOption());
    if (!HasOption(operation, performed.GetText()))
        return operation.Fail({unknownOption, performed.GetText()});
    return operation.ChangeView(&znIBrowserCollector::PerformOption, performed.c_str());
}

bool znBrowserManagerTcl::CreateCollectorOption(const char* name, const char* procedure) {
    const CollectorOperation operation(*this);
    if (!operation) return false;
    if (!name || !procedure) return operation.Fail(znBrowserMessages::nullPointer);
    if (HasOption(operation, name)) return operation.Fail({"Collector option already exists : ", name});
    return operation.Change(&znIBrowserCollector::CreateOption, name, procedure);
}

bool znBrowserManagerTcl::DeleteCollectorOption(const char* name) {
    const CollectorOperation operation(*this);
    if (!operation) return false;
    if (!HasOption(operation, name)) return operation.Fail({unknownOption, name});
    return operation.Change(&znIBrowserCollector::DeleteOption, name);
}
