// The default answers of `znIBrowserInputField`.
#ifndef ZN_BROWSER_INPUT_FIELD_DEFAULTS_H
#define ZN_BROWSER_INPUT_FIELD_DEFAULTS_H

#include "../../znBrowserTypes.h"
#include "../znIBrowserInputField.h"
#include "../znutl/znString.h"

/// `znIBrowserInputField` for hosts that have a part of it: override what there is.
class znBrowserInputFieldDefaults : public znIBrowserInputField {
public:
    const char* GetName() const override { return nullptr; }
    ZNBROWSER_DATA_TYPE GetDataType() const override { return ZNBROWSER_DATA_UNDEFINED; }
    void SetDataType(ZNBROWSER_DATA_TYPE) override {}
    bool GetStringValue(znString&) const override { return false; }
    bool GetDoubleValue(double&) const override { return false; }
    bool GetIntegerValue(int&) const override { return false; }
    bool GetBoolValue(bool&) const override { return false; }
    void ResetValue() override {}
    bool SetStringValue(const char*) override { return false; }
    bool SetDoubleValue(double) override { return false; }
    bool SetIntegerValue(int) override { return false; }
    bool SetUnsignedValue(unsigned int) override { return false; }
    bool SetBoolValue(bool) override { return false; }

protected:
    ~znBrowserInputFieldDefaults() = default;
};

#endif
