// The default answers of `znIBrowserCriteria`.
#ifndef ZN_BROWSER_CRITERIA_DEFAULTS_H
#define ZN_BROWSER_CRITERIA_DEFAULTS_H

#include "../znIBrowserCriteria.h"
#include "../znutl/znStlVector.h"
#include "../znutl/znString.h"

#include <vector>

/// `znIBrowserCriteria` for hosts that have a part of it: override what there is.
class znBrowserCriteriaDefaults : public znIBrowserCriteria {
public:
    const char* GetName() const override { return nullptr; }
    void SetDataType(ZNBROWSER_DATA_TYPE) override {}
    bool GetDataType(ZNBROWSER_DATA_TYPE&) const override { return false; }
    bool SetCode(const char*) override { return false; }
    void SetBoolValues(const std::vector<bool>&) override {}
    void SetUnsignedValues(const std::vector<unsigned int>&) override {}
    void SetIntValues(const std::vector<int>&) override {}
    void SetDoubleValues(const std::vector<double>&) override {}
    void SetStringValues(const znStlVector<znString>&) override {}
    bool GetBoolValue(bool&) const override { return false; }
    bool GetUnsignedValue(unsigned int&) const override { return false; }
    bool GetIntValue(int&) const override { return false; }
    bool GetDoubleValue(double&) const override { return false; }
    bool GetStringValue(znString&) const override { return false; }
    bool GetBoolValues(std::vector<bool>& values) const override {
        values.clear();
        return false;
    }
    bool GetUnsignedValues(std::vector<unsigned int>& values) const override {
        values.clear();
        return false;
    }
    bool GetIntValues(std::vector<int>& values) const override {
        values.clear();
        return false;
    }
    bool GetDoubleValues(std::vector<double>& values) const override {
        values.clear();
        return false;
    }
    bool GetStringValues(znStlVector<znString>& values) const override {
        values.clear();
        return false;
    }
    znIBrowserDataSourceSimple* GetDataSource() override { return nullptr; }

protected:
    ~znBrowserCriteriaDefaults() = default;
};

/// `znIBrowserCriteriaContainer` for hosts that have a part of it: override what there is.
class znBrowserCriteriaContainerDefaults : public znIBrowserCriteriaContainer {
public:
    znIBrowserCriteria* FindCriteria(const char*) override { return nullptr; }
    bool GetCriteria(std::vector<znIBrowserCriteria*>& criteria) override {
        criteria.clear();
        return true;
    }

protected:
    ~znBrowserCriteriaContainerDefaults() = default;
};

#endif
