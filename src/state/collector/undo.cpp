// The steps of the current view, taken back and restored.
#include "state/collector/collector_operation.h"

#include <string>

using namespace znlayer;

bool znBrowserManagerTcl::UndoCollectorStep() {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    if (operation.Collector().GetStepCount(operation.View()) == 0)
        return operation.Fail("There is no step to take back");
    return operation.ChangeView(&znIBrowserCollector::Undo);
}

bool znBrowserManagerTcl::RestoreCollectorStep() {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    if (operation.Collector().GetRestorableCount(operation.View()) == 0)
        return operation.Fail("There is no step to restore");
    return operation.ChangeView(&znIBrowserCollector::Restore);
}

bool znBrowserManagerTcl::ClearCollectorSteps() {
    return CollectorViewOperation(*this).ChangeView(&znIBrowserCollector::ClearSteps);
}

bool znBrowserManagerTcl::GetCollectorStepCount(znString& out) {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    out = std::to_string(operation.Collector().GetStepCount(operation.View())).c_str();
    return true;
}

bool znBrowserManagerTcl::GetCollectorStepNames(znString& out) {
    const CollectorViewOperation operation(*this);
    if (!operation) return false;
    std::vector<znString> names;
    operation.Collector().GetStepNames(operation.View(), names);
    return operation.GiveNames(names, out);
}
