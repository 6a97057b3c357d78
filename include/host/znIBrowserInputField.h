// A user input field.
#ifndef ZN_I_BROWSER_INPUT_FIELD_H
#define ZN_I_BROWSER_INPUT_FIELD_H

#include "../znBrowserTypes.h"
#include "znutl/znString.h"

/// A named, typed value, kept by a data control, that scripts and dialogs fill in and read back. The layer
/// calls the getter and the setter that fit `GetDataType`. There are none for the array types, and scripts
/// can set an unsigned value but not read it.
class znIBrowserInputField {
public:
    /// The name, unique in the data control.
    virtual const char* GetName() const = 0;
    /// The type of the value.
    virtual ZNBROWSER_DATA_TYPE GetDataType() const = 0;
    /// Sets the type, any but undefined. What becomes of the value is the host's: the embedded host puts it
    /// to the new type's zero.
    virtual void SetDataType(ZNBROWSER_DATA_TYPE type) = 0;
    // Each getter is false when the field holds no value of that type. The text of a refusal is not read.
    /// The value of a text field.
    virtual bool GetStringValue(znString& value) const = 0;
    /// The value of a field of doubles.
    virtual bool GetDoubleValue(double& value) const = 0;
    /// The value of a field of integers.
    virtual bool GetIntegerValue(int& value) const = 0;
    /// The value of a field of booleans.
    virtual bool GetBoolValue(bool& value) const = 0;
    /// Puts the value back to its type's zero.
    virtual void ResetValue() = 0;
    // The results of the setters are not used. The layer makes numbers of the script's text without checking
    // it: what does not begin with one counts as 0.
    /// Sets the value of a text field.
    virtual bool SetStringValue(const char* value) = 0;
    /// Sets the value of a field of doubles.
    virtual bool SetDoubleValue(double value) = 0;
    /// Sets the value of a field of integers.
    virtual bool SetIntegerValue(int value) = 0;
    /// Sets the value of a field of unsigned numbers.
    virtual bool SetUnsignedValue(unsigned int value) = 0;
    /// Sets the value of a field of booleans: true only for the script's word "true".
    virtual bool SetBoolValue(bool value) = 0;

protected:
    ~znIBrowserInputField() = default;
};

#endif
