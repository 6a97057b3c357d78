// The default answers of `znIBrowserEvent`.
#ifndef ZN_BROWSER_EVENT_DEFAULTS_H
#define ZN_BROWSER_EVENT_DEFAULTS_H

#include "../znIBrowserEvent.h"
#include "../znutl/znString.h"

/// `znIBrowserEvent` for hosts that have a part of it: override what there is.
class znBrowserEventDefaults : public znIBrowserEvent {
public:
    znIBrowserWindowAccess* GetWindowAccess() override { return nullptr; }
    void GetName(znString&) const override {}
    znIBrowserWindowPart* GetWindowPart() override { return nullptr; }

protected:
    ~znBrowserEventDefaults() = default;
};

#endif
