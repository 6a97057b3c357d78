// What the current view shows.
#include "state/collector/collector_operation.h"

using namespace znlayer;

bool znBrowserManagerTcl::ChangeCollectorDisplay(ZNBROWSER_COLLECTOR_DISPLAY change) {
    return CollectorViewOperation(*this).ChangeView(&znIBrowserCollector::ChangeDisplay, change);
}
