// The default answers of `znIBrowserWindowCallback`.
#ifndef ZN_BROWSER_WINDOW_CALLBACK_DEFAULTS_H
#define ZN_BROWSER_WINDOW_CALLBACK_DEFAULTS_H

#include "../../znBrowserTypes.h"
#include "../znIBrowserWindowCallback.h"

/// `znIBrowserWindowCallback` for hosts that have a part of it: override what there is.
class znBrowserWindowCallbackDefaults : public znIBrowserWindowCallback {
public:
    const char* GetName() const override { return nullptr; }
    znIBrowserWindowAccess* GetActionWindow() override { return nullptr; }
    ZNBROWSER_CALLBACK_OPERATION GetOperation() const override { return ZNBROWSER_CALLBACK_UNDEFINED; }
    znIBrowserEvent* GetEvent() override { return nullptr; }

protected:
    ~znBrowserWindowCallbackDefaults() = default;
};

#endif
