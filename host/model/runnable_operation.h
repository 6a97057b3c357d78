// A data operation, as the model runs it.
#ifndef ZN_HOST_RUNNABLE_OPERATION_H
#define ZN_HOST_RUNNABLE_OPERATION_H

#include "host/znIBrowserDataOperation.h"

namespace znhost {

/// What every data operation of this host is.
class RunnableOperation : public znIBrowserDataOperation {
public:
    /// @return false, with an error text, when it failed.
    virtual bool Run() const = 0;

protected:
    ~RunnableOperation() = default;
};

} // namespace znhost

#endif
