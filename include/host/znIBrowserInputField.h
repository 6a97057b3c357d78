// A user input field.
#ifndef ZN_I_BROWSER_INPUT_FIELD_H
#define ZN_I_BROWSER_INPUT_FIELD_H

#include "host/znutl/znString.h"
#include "znBrowserTypes.h"

/// A named, typed value, kept by a data control, that scripts and dialogs fill in and read back.
class znIBrowserInputField {
public:
    virtual const char* GetName() const = 0;
    virtual ZNBROWSER_DATA_TYPE GetDataType() const = 0;
    virtual void SetDataType(ZNBROWSER_DATA_TYPE type) = 0;
    // Each getter is false when the field holds no value of that type.
    virtual bool GetStringValue(znString& value) const = 0;
    virtual bool GetDoubleValue(double& value) const = 0;
    virtual bool GetIntegerValue(int& value) const = 0;
    virtual bool GetBoolValue(bool& value) const = 0;
    /// Puts the value back to its type's zero.
    virtual void ResetValue() = 0;
    // The results of the setters are not used.
    virtual bool SetStringValue(const char* value) = 0;
    virtual bool SetDoubleValue(double value) = 0;
    virtual bool SetIntegerValue(int value) = 0;
    virtual bool SetUnsignedValue(unsigned int value) = 0;
    virtual bool SetBoolValue(bool value) = 0;

protected:
    ~znIBrowserInputField() = default;
};

#endif
