// A criteria object: what narrows a custom data source.
#ifndef ZN_I_BROWSER_CRITERIA_H
#define ZN_I_BROWSER_CRITERIA_H

#include "../znBrowserTypes.h"
#include "znutl/znStlVector.h"
#include "znutl/znString.h"
#include <vector>

class znIBrowserDataSourceSimple;

/// A named filter setting of a custom data source: a data type, a code, and typed values for it. The type
/// decides which values scripts can read back. The texts of refusals are not read.
class znIBrowserCriteria {
public:
    /// The name, unique in the data source; null ends a script's list of names.
    virtual const char* GetName() const = 0;
    /// Sets the type, one of those from `ZNBROWSER_DATA_BOOL` to `ZNBROWSER_DATA_STRING_ARRAY`. The values
    /// stay.
    virtual void SetDataType(ZNBROWSER_DATA_TYPE type) = 0;
    /// The type, undefined until set; false when the host cannot tell.
    virtual bool GetDataType(ZNBROWSER_DATA_TYPE& type) const = 0;
    /// Sets the code, in a language of the host's; false when the host does not accept it. In the embedded
    /// host it is an SQL condition, with a "?" for each value.
    virtual bool SetCode(const char* code) = 0;

    // The values, one list per type. Each setter replaces the whole list. The layer calls all five, in this
    // order and with empty lists too; a host refuses nothing here.
    /// Sets the booleans.
    virtual void SetBoolValues(const std::vector<bool>& values) = 0;
    /// Sets the unsigned numbers.
    virtual void SetUnsignedValues(const std::vector<unsigned int>& values) = 0;
    /// Sets the integers.
    virtual void SetIntValues(const std::vector<int>& values) = 0;
    /// Sets the doubles.
    virtual void SetDoubleValues(const std::vector<double>& values) = 0;
    /// Sets the texts.
    virtual void SetStringValues(const znStlVector<znString>& values) = 0;

    // The first value of a type, and all of them; false when there is none. The layer asks for the one that
    // fits the data type: an array type for all of them.
    /// The first boolean, as it was set. The layer prints booleans inverted: that is no matter of the host's.
    virtual bool GetBoolValue(bool& value) const = 0;
    /// The first unsigned number.
    virtual bool GetUnsignedValue(unsigned int& value) const = 0;
    /// The first integer.
    virtual bool GetIntValue(int& value) const = 0;
    /// The first double.
    virtual bool GetDoubleValue(double& value) const = 0;
    /// The first text.
    virtual bool GetStringValue(znString& value) const = 0;
    /// All booleans, in the order set.
    virtual bool GetBoolValues(std::vector<bool>& values) const = 0;
    /// All unsigned numbers, in the order set.
    virtual bool GetUnsignedValues(std::vector<unsigned int>& values) const = 0;
    /// All integers, in the order set.
    virtual bool GetIntValues(std::vector<int>& values) const = 0;
    /// All doubles, in the order set.
    virtual bool GetDoubleValues(std::vector<double>& values) const = 0;
    /// All texts, in the order set.
    virtual bool GetStringValues(znStlVector<znString>& values) const = 0;

    /// The custom data source that owns the criteria.
    virtual znIBrowserDataSourceSimple* GetDataSource() = 0;

protected:
    ~znIBrowserCriteria() = default;
};

/// The criteria of one custom data source, which owns them and this list.
class znIBrowserCriteriaContainer {
public:
    /// The criteria of that name, or null.
    virtual znIBrowserCriteria* FindCriteria(const char* name) = 0;
    /// All criteria, in the host's order. The text of a refusal is not read.
    virtual bool GetCriteria(std::vector<znIBrowserCriteria*>& criteria) = 0;

protected:
    ~znIBrowserCriteriaContainer() = default;
};

#endif
