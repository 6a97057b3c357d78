// The default answers of `znIBrowserViewOperation`.
#ifndef ZN_BROWSER_VIEW_OPERATION_DEFAULTS_H
#define ZN_BROWSER_VIEW_OPERATION_DEFAULTS_H

#include "../znIBrowserViewOperation.h"

/// `znIBrowserViewOperation` for hosts that have a part of it: override what there is.
class znBrowserViewOperationDefaults : public znIBrowserViewOperation {
public:
    const char* GetName() const override { return nullptr; }
    bool SetEditable(bool) override { return false; }
    bool SetScript(const char*) override { return false; }
    bool Perform() override { return false; }
    bool ConnectDataOperation(znIBrowserDataOperation*) override { return false; }
    znIBrowserView* GetView() override { return nullptr; }

protected:
    ~znBrowserViewOperationDefaults() = default;
};

#endif
