// A data operation of the embedded host.
#ifndef ZN_HOST_DATA_OPERATION_H
#define ZN_HOST_DATA_OPERATION_H

#include "base/host_call.h"
#include "model/runnable_operation.h"

#include <string>

namespace znhost {

class HostServices;

/// An action that runs a Tcl script.
class DataOperation final : public RunnableOperation, public HostObject {
public:
    DataOperation(HostServices& services, std::string name);

    const std::string& Name() const { return name_; }
    /// Runs the script; an error in it is reported as a background error. The script may delete the
    /// operation. @return false, with an error text, when there is no script or it fails
    bool Run() const override;

    const char* GetName() const override;
    bool SetScript(const char* script) override;

private:
    HostServices& services_;
    const std::string name_;
    std::string script_;
};

} // namespace znhost

#endif
