// A criteria object: what narrows a custom data source.
#ifndef ZN_I_BROWSER_CRITERIA_H
#define ZN_I_BROWSER_CRITERIA_H

#include "host/znutl/znStlVector.h"
#include "host/znutl/znString.h"
#include "znBrowserTypes.h"
#include <vector>

class znIBrowserDataSourceSimple;

/// A named filter setting of a custom data source: a data type, a code, and typed values for it.
class znIBrowserCriteria {
public:
    virtual const char* GetName() const = 0;
    virtual void SetDataType(ZNBROWSER_DATA_TYPE type) = 0;
    virtual bool GetDataType(ZNBROWSER_DATA_TYPE& type) const = 0;
    /// Sets the code, in a language of the host's; false when the host does not accept it.
    virtual bool SetCode(const char* code) = 0;

    // The values, one list per type. Each setter replaces the whole list.
    virtual void SetBoolValues(const std::vector<bool>& values) = 0;
    virtual void SetUnsignedValues(const std::vector<unsigned int>& values) = 0;
    virtual void SetIntValues(const std::vector<int>& values) = 0;
    virtual void SetDoubleValues(const std::vector<double>& values) = 0;
    virtual void SetStringValues(const znStlVector<znString>& values) = 0;

    // The first value of a type, and all of them; false when there is none.
    virtual bool GetBoolValue(bool& value) const = 0;
    virtual bool GetUnsignedValue(unsigned int& value) const = 0;
    virtual bool GetIntValue(int& value) const = 0;
    virtual bool GetDoubleValue(double& value) const = 0;
    virtual bool GetStringValue(znString& value) const = 0;
    virtual bool GetBoolValues(std::vector<bool>& values) const = 0;
    virtual bool GetUnsignedValues(std::vector<unsigned int>& values) const = 0;
    virtual bool GetIntValues(std::vector<int>& values) const = 0;
    virtual bool GetDoubleValues(std::vector<double>& values) const = 0;
    virtual bool GetStringValues(znStlVector<znString>& values) const = 0;

    /// The custom data source that owns the criteria.
    virtual znIBrowserDataSourceSimple* GetDataSource() = 0;

protected:
    ~znIBrowserCriteria() = default;
};

/// The criteria of one custom data source.
class znIBrowserCriteriaContainer {
public:
    /// The criteria of that name, or null.
    virtual znIBrowserCriteria* FindCriteria(const char* name) = 0;
    virtual bool GetCriteria(std::vector<znIBrowserCriteria*>& criteria) = 0;

protected:
    ~znIBrowserCriteriaContainer() = default;
};

#endif
