// The default answers of `znIBrowserDataProperty`.
#ifndef ZN_BROWSER_DATA_PROPERTY_DEFAULTS_H
#define ZN_BROWSER_DATA_PROPERTY_DEFAULTS_H

#include "../../znBrowserTypes.h"
#include "../znIBrowserDataProperty.h"
#include "../znutl/znString.h"
#include "../znutl/znVariant.h"

/// `znIBrowserDataProperty` for hosts that have a part of it: override what there is.
class znBrowserDataPropertyDefaults : public znIBrowserDataProperty {
public:
    const char* GetName() const override { return nullptr; }
    bool GetValueString(const znBrowserDataItem&, int, znString&) override { return false; }
    ZNBROWSER_DATA_TYPE GetType() const override { return ZNBROWSER_DATA_UNDEFINED; }
    znVariant GetValue(const znBrowserDataItem&) override { return {}; }

protected:
    ~znBrowserDataPropertyDefaults() = default;
};

#endif
