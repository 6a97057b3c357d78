// The collector bar of the current window, and the controls in it.
#include "state/collector/collector_operation.h"

using namespace znlayer;

namespace {

/// One on the current window.
class BarOperation : public CollectorOperation {
public:
    explicit BarOperation(znBrowserManagerTcl& manager)
        : CollectorOperation(manager), window_(manager.GetCurrentWindowAccessPtr()) {
        if (End() && !window_) Fail(znBrowserMessages::noCurrentWindow);
    }

    template <class... Parameters, class... Arguments>
    bool ChangeBar(bool (znIBrowserCollector::*request)(znIBrowserWindowAccess*, Parameters...),
                   Arguments... arguments) const {
        return End() && Change(request, window_, arguments...);
    }
    template <class... Parameters, class... Arguments>
    bool ReadBar(bool& value, bool (znIBrowserCollector::*getter)(znIBrowserWindowAccess*, Parameters...),
                 Arguments... arguments) const {
        if (End()) value = (Collector().*getter)(window_, arguments...);
        return End();
    }

private:
    znIBrowserWindowAccess* const window_;
};

} // namespace

bool znBrowserManagerTcl::SetCollectorBarShown(bool shown) {
    return BarOperation(*this).ChangeBar(&znIBrowserCollector::SetBarShown, shown);
}

bool znBrowserManagerTcl::GetCollectorBarShown(bool& shown) {
    return BarOperation(*this).ReadBar(shown, &znIBrowserCollector::IsBarShown);
}

bool znBrowserManagerTcl::SetCollectorControlShown(ZNBROWSER_COLLECTOR_CONTROL control, bool shown) {
    return BarOperation(*this).ChangeBar(&znIBrowserCollector::SetControlShown, control, shown);
}

bool znBrowserManagerTcl::GetCollectorControlShown(ZNBROWSER_COLLECTOR_CONTROL control, bool& shown) {
    return BarOperation(*this).ReadBar(shown, &znIBrowserCollector::IsControlShown, control);
}

bool znBrowserManagerTcl::SetCollectorControlEnabled(ZNBROWSER_COLLECTOR_CONTROL control, bool enabled) {
    return BarOperation(*this).ChangeBar(&znIBrowserCollector::SetControlEnabled, control, enabled);
}

bool znBrowserManagerTcl::GetCollectorControlEnabled(ZNBROWSER_COLLECTOR_CONTROL control, bool& enabled) {
    return BarOperation(*this).ReadBar(enabled, &znIBrowserCollector::IsControlEnabled, control);
}
