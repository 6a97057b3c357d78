// The default answers of `znIBrowserDataOperation`.
#ifndef ZN_BROWSER_DATA_OPERATION_DEFAULTS_H
#define ZN_BROWSER_DATA_OPERATION_DEFAULTS_H

#include "../znIBrowserDataOperation.h"

/// `znIBrowserDataOperation` for hosts that have a part of it: override what there is.
class znBrowserDataOperationDefaults : public znIBrowserDataOperation {
public:
    const char* GetName() const override { return nullptr; }
    bool SetScript(const char*) override { return false; }

protected:
    ~znBrowserDataOperationDefaults() = default;
};

#endif
