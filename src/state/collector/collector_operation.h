// What the operations of the collector have in common.
#ifndef COLLECTOR_OPERATION_H
#define COLLECTOR_OPERATION_H

#include "frame/operation.h"
#include "host/znIBrowserCollector.h"
#include "znBrowserMessages.h"

#include <algorithm>
#include <string_view>

namespace znlayer {

/// One operation on the host's collector. It begins with the collector and, where it works on one, with the
/// current view or window; when any is missing it has failed.
class CollectorOperation : public Operation {
public:
    explicit CollectorOperation(znBrowserManagerTcl& manager)
        : Operation(manager), collector_(manager.GetApplication()->GetCollector()), manager_(manager) {
        if (!collector_) Fail("The host has no collector");
    }

    explicit operator bool() const { return End(); }
    znIBrowserCollector& Collector() const { return *collector_; }

    /// Asks the collector for a change. Scripts may run there, and an error that they leave behind is none of
    /// the operation's. @return false, with the host's reason, when it is refused
    template <class... Parameters, class... Arguments>
    bool Change(bool (znIBrowserCollector::*request)(Parameters...), Arguments&&... arguments) const {
        if (!collector_) return false;
        if (!(collector_->*request)(arguments...)) return FailWithHostError();
        manager_.SetOk();
        return true;
    }

    /// Whether `name` is among the names that the host lists. A null name is not.
    static bool Lists(const std::vector<znString>& names, const char* name) {
        const auto isIt = [name](const znString& other) {
            return other.GetText() && other.View() == std::string_view(name);
        };
        return name && std::any_of(names.begin(), names.end(), isIt);
    }

    /// Gives the names that the host lists.
    bool GiveNames(const std::vector<znString>& names, znString& out) const {
        return Give(NameList(EntryForm::Element).AddTexts(names), out);
    }

protected:
    znBrowserManagerTcl& Manager() const { return manager_; }

private:
    znIBrowserCollector* const collector_;
    znBrowserManagerTcl& manager_;
};

/// One on the current view.
class CollectorViewOperation : public CollectorOperation {
public:
    explicit CollectorViewOperation(znBrowserManagerTcl& manager)
        : CollectorOperation(manager), view_(manager.GetCurrentViewPtr()) {
        if (End() && !view_) Fail(znBrowserMessages::noCurrentView);
    }

    znIBrowserView* View() const { return view_; }

    /// As `Change`, in the view.
    template <class... Parameters, class... Arguments>
    bool ChangeView(bool (znIBrowserCollector::*request)(znIBrowserView*, Parameters...),
                    Arguments&&... arguments) const {
        return End() && Change(request, view_, arguments...);
    }

private:
    znIBrowserView* const view_;
};

} // namespace znlayer

#endif
