// Settings of the collector: how clicks collect, autofit and the preselector.
#include "state/collector/collector_operation.h"

using namespace znlayer;

namespace {

template <class Value>
bool Read(znBrowserManagerTcl& manager, Value (znIBrowserCollector::*getter)() const, Value& value) {
    const CollectorOperation operation(manager);
    if (!operation) return false;
    value = (operation.Collector().*getter)();
    return true;
}

} // namespace

bool znBrowserManagerTcl::SetCollectorClickMode(ZNBROWSER_COLLECTOR_CLICK mode) {
    return CollectorOperation(*this).Change(&znIBrowserCollector::SetClickMode, mode);
}

bool znBrowserManagerTcl::GetCollectorClickMode(ZNBROWSER_COLLECTOR_CLICK& mode) {
    return Read(*this, &znIBrowserCollector::GetClickMode, mode);
}

bool znBrowserManagerTcl::SetCollectorAutofit(bool autofit) {
    return CollectorOperation(*this).Change(&znIBrowserCollector::SetAutofit, autofit);
}

bool znBrowserManagerTcl::GetCollectorAutofit(bool& autofit) {
    return Read(*this, &znIBrowserCollector::GetAutofit, autofit);
}

bool znBrowserManagerTcl::SetCollectorPreselector(bool on) {
    return CollectorOperation(*this).Change(&znIBrowserCollector::SetPreselector, on);
}

bool znBrowserManagerTcl::GetCollectorPreselector(bool& on) {
    return Read(*this, &znIBrowserCollector::GetPreselector, on);
}
