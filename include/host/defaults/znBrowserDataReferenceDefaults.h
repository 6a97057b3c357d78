// The default answers of `znIBrowserDataReference`.
#ifndef ZN_BROWSER_DATA_REFERENCE_DEFAULTS_H
#define ZN_BROWSER_DATA_REFERENCE_DEFAULTS_H

#include "../znIBrowserDataReference.h"

/// `znIBrowserDataReference` for hosts that have a part of it: override what there is.
class znBrowserDataReferenceDefaults : public znIBrowserDataReference {
public:
    const char* GetName() const override { return nullptr; }

protected:
    ~znBrowserDataReferenceDefaults() = default;
};

#endif
