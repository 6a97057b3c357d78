// The criteria of a custom data source.
#ifndef ZN_HOST_CRITERIA_H
#define ZN_HOST_CRITERIA_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserCriteria.h"
#include "store/row_part.h"

#include <map>

namespace znhost {

class BaseSource;
class CustomSource;

/// A condition on the items of a custom source. The code is a boolean SQL expression over the columns of the
/// base table; its `?` take the values: the booleans, then the unsigned numbers, integers, doubles, strings.
/// A code that was set while a base was chosen narrows the items of that base only, any other code all items.
/// A criteria without a code narrows nothing; one whose code does not fit a table, or has not as many `?` as
/// there are values, lets no item of that table pass, and the source's error text tells why.
class Criteria final : public znIBrowserCriteria, public HostObject {
public:
    Criteria(CustomSource& owner, std::string name);

    const std::string& Name() const { return name_; }
    /// Adds the condition to the part, which is one of that base. @return false, with the reason, when none
    /// of its items passes.
    bool Narrow(const BaseSource& base, RowPart& part, std::string& error);

    const char* GetName() const override;
    void SetDataType(ZNBROWSER_DATA_TYPE type) override;
    bool GetDataType(ZNBROWSER_DATA_TYPE& type) const override;
    bool SetCode(const char* code) override;
    void SetBoolValues(const std::vector<bool>& values) override;
    void SetUnsignedValues(const std::vector<unsigned int>& values) override;
    void SetIntValues(const std::vector<int>& values) override;
    void SetDoubleValues(const std::vector<double>& values) override;
    void SetStringValues(const znStlVector<znString>& values) override;
    bool GetBoolValue(bool& value) const override;
    bool GetUnsignedValue(unsigned int& value) const override;
    bool GetIntValue(int& value) const override;
    bool GetDoubleValue(double& value) const override;
    bool GetStringValue(znString& value) const override;
    bool GetBoolValues(std::vector<bool>& values) const override;
    bool GetUnsignedValues(std::vector<unsigned int>& values) const override;
    bool GetIntValues(std::vector<int>& values) const override;
    bool GetDoubleValues(std::vector<double>& values) const override;
    bool GetStringValues(znStlVector<znString>& values) const override;
    znIBrowserDataSourceSimple* GetDataSource() override;

private:
    /// What came of checking the code against a table.
    struct Checked {
        Schema::TablePtr table;
        bool passed = false;
        int parameters = 0;
        std::string error;
    };

    const Checked& Check(const std::string& code, const Schema::TablePtr& table);
    std::vector<Value> Values() const;
    template <class List>
    void Set(List& list, const List& values);

    CustomSource& owner_;
    const std::string name_;
    ZNBROWSER_DATA_TYPE type_ = ZNBROWSER_DATA_UNDEFINED;
    std::string code_;
    const BaseSource* base_ = nullptr;       // whose items the code narrows; null: all
    std::map<std::string, Checked> checked_; // of the present code, by table name
    std::vector<bool> bools_;
    std::vector<unsigned int> unsigneds_;
    std::vector<int> ints_;
    std::vector<double> doubles_;
    znStlVector<znString> strings_;
};

/// The criteria of one source, in the order created.
class CriteriaList final : public znIBrowserCriteriaContainer, public HostObject {
public:
    explicit CriteriaList(CallLog& log) : HostObject(log) {}

    NamedList<Criteria>& All() { return criteria_; }

    znIBrowserCriteria* FindCriteria(const char* name) override;
    bool GetCriteria(std::vector<znIBrowserCriteria*>& criteria) override;

private:
    NamedList<Criteria> criteria_;
};

} // namespace znhost

#endif
