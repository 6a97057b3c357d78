// The default answers of `znIBrowserFindRequest`.
#ifndef ZN_BROWSER_FIND_REQUEST_DEFAULTS_H
#define ZN_BROWSER_FIND_REQUEST_DEFAULTS_H

#include "../../znBrowserTypes.h"
#include "../znIBrowserFindRequest.h"

#include <vector>

/// `znIBrowserFindRequest` for hosts that have a part of it: override what there is.
class znBrowserFindRequestDefaults : public znIBrowserFindRequest {
public:
    const char* GetName() const override { return nullptr; }
    znIBrowserWindowAccess* GetWindowAccess() override { return nullptr; }
    void GetProperties(std::vector<znBrowserProperty*>& properties) override { properties.clear(); }
    znBrowserProperty* FindProperty(const char*) override { return nullptr; }
    ZNBROWSER_FIND_REQUEST_TYPE GetType() const override { return ZNBROWSER_FIND_REQUEST_UNKNOWN; }

protected:
    ~znBrowserFindRequestDefaults() = default;
};

#endif
