// An operation of a view.
#ifndef ZN_HOST_VIEW_OPERATION_H
#define ZN_HOST_VIEW_OPERATION_H

#include "base/host_call.h"
#include "host/znIBrowserViewOperation.h"

#include <memory>
#include <string>

namespace znhost {

class Browser;
class View;

/// An action that a view offers: runs a Tcl script, then the data operation connected to it.
class ViewOperation final : public znIBrowserViewOperation,
                            public HostObject,
                            public std::enable_shared_from_this<ViewOperation> {
public:
    ViewOperation(View& view, std::string name);

    const std::string& Name() const { return name_; }
    bool IsEditable() const { return editable_; }
    const std::string& Script() const { return script_; }
    znIBrowserDataOperation* DataOperation() const { return dataOperation_; }
    /// As `Perform`, for the host's own windows.
    bool Run();
    /// The view goes. An operation that runs just now stays until it has ended.
    void Detach();
    void Forget(const znIBrowserDataOperation& operation);

    const char* GetName() const override;
    bool SetEditable(bool editable) override;
    bool SetScript(const char* script) override;
    bool Perform() override;
    bool ConnectDataOperation(znIBrowserDataOperation* operation) override;
    znIBrowserView* GetView() override;

private:
    Browser& browser_;
    View* view_;
    const std::string name_;
    std::string script_;
    bool editable_ = true;
    znIBrowserDataOperation* dataOperation_ = nullptr;
};

} // namespace znhost

#endif
