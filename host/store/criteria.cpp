#include "store/criteria.h"

#include "store/custom_source.h"
#include "store/data_ctrl.h"

namespace znhost {

namespace {

template <class List, class One>
bool First(const List& list, One& value) {
    if (list.empty()) return false;
    value = list.front();
    return true;
}

template <class List>
bool All(const List& list, List& values) {
    values = list;
    return !list.empty();
}

} // namespace

Criteria::Criteria(CustomSource& owner, std::string name)
    : HostObject(owner.Log()), owner_(owner), name_(std::move(name)) {}

const Criteria::Checked& Criteria::Check(const std::string& code, const Schema::TablePtr& table) {
    if (code != code_) checked_.clear();
    Checked& checked = checked_[table->name];
    if (checked.table == table) return checked;
    checked.table = table;
    checked.passed = owner_.Control().Db().CheckExpression(*table, code, checked.parameters, checked.error);
    return checked;
}

std::vector<Value> Criteria::Values() const {
    std::vector<Value> values;
    for (const bool value : bools_) values.emplace_back(std::int64_t{value});
    for (const unsigned int value : unsigneds_) values.emplace_back(std::int64_t{value});
    for (const int value : ints_) values.emplace_back(std::int64_t{value});
    for (const double value : doubles_) values.emplace_back(value);
    for (const znString& value : strings_) values.emplace_back(value.Str());
    return values;
}

bool Criteria::Narrow(const BaseSource& base, RowPart& part, std::string& error) {
    if (code_.empty() || (base_ && base_ != &base)) return true;
    const Checked& checked = Check(code_, part.table);
    const std::vector<Value> values = Values();
    if (!checked.passed) {
        error = "The criteria \"" + name_ + "\" does not fit \"" + base.Name() + "\": " + checked.error;
    } else if (static_cast<std::size_t>(checked.parameters) != values.size()) {
        error = "The criteria \"" + name_ + "\" takes " + std::to_string(checked.parameters) +
                (checked.parameters == 1 ? " value, but has " : " values, but has ") +
                std::to_string(values.size());
    } else {
        part.condition += (part.condition.empty() ? "(" : " AND (") + code_ + ")";
        part.values.insert(part.values.end(), values.begin(), values.end());
        return true;
    }
    return false;
}

template <class List>
void Criteria::Set(List& list, const List& values) {
    list = values;
    owner_.Control().ItemsChanged();
}

const char* Criteria::GetName() const {
    if (Refused("znIBrowserCriteria::GetName")) return nullptr;
    return name_.c_str();
}

void Criteria::SetDataType(ZNBROWSER_DATA_TYPE type) {
    if (Refused("znIBrowserCriteria::SetDataType", type)) return;
    type_ = type;
}

bool Criteria::GetDataType(ZNBROWSER_DATA_TYPE& type) const {
    if (Refused("znIBrowserCriteria::GetDataType")) return false;
    type = type_;
    return true;
}

bool Criteria::SetCode(const char* code) {
    if (Refused("znIBrowserCriteria::SetCode", code)) return false;
    const std::string newCode = TextOf(code);
    const std::vector<BaseSource*> bases = owner_.BasesOfSettings();
    if (bases.empty()) {
        return owner_.FailWith("The data source \"" + owner_.Name() +
                               "\" has no base data source whose columns the code could be about");
    }
    for (const BaseSource* const base : bases) {
        if (!base->Table()) continue;
        const Checked checked = Check(newCode, base->Table());
        if (!checked.passed) {
            checked_.clear();
            return owner_.FailWith("The criteria \"" + name_ + "\" does not fit \"" + base->Name() +
                                   "\": " + checked.error);
        }
    }
    code_ = newCode;
    base_ = owner_.ChosenBase();
    owner_.Control().ItemsChanged();
    return true;
}

void Criteria::SetBoolValues(const std::vector<bool>& values) {
    if (!Refused("znIBrowserCriteria::SetBoolValues", values)) Set(bools_, values);
}

void Criteria::SetUnsignedValues(const std::vector<unsigned int>& values) {
    if (!Refused("znIBrowserCriteria::SetUnsignedValues", values)) Set(unsigneds_, values);
}

void Criteria::SetIntValues(const std::vector<int>& values) {
    if (!Refused("znIBrowserCriteria::SetIntValues", values)) Set(ints_, values);
}

void Criteria::SetDoubleValues(const std::vector<double>& values) {
    if (!Refused("znIBrowserCriteria::SetDoubleValues", values)) Set(doubles_, values);
}

void Criteria::SetStringValues(const znStlVector<znString>& values) {
    if (!Refused("znIBrowserCriteria::SetStringValues", values)) Set(strings_, values);
}

bool Criteria::GetBoolValue(bool& value) const {
    return !Refused("znIBrowserCriteria::GetBoolValue") && First(bools_, value);
}

bool Criteria::GetUnsignedValue(unsigned int& value) const {
    return !Refused("znIBrowserCriteria::GetUnsignedValue") && First(unsigneds_, value);
}

bool Criteria::GetIntValue(int& value) const {
    return !Refused("znIBrowserCriteria::GetIntValue") && First(ints_, value);
}

bool Criteria::GetDoubleValue(double& value) const {
    return !Refused("znIBrowserCriteria::GetDoubleValue") && First(doubles_, value);
}

bool Criteria::GetStringValue(znString& value) const {
    return !Refused("znIBrowserCriteria::GetStringValue") && First(strings_, value);
}

bool Criteria::GetBoolValues(std::vector<bool>& values) const {
    return !Refused("znIBrowserCriteria::GetBoolValues") && All(bools_, values);
}

bool Criteria::GetUnsignedValues(std::vector<unsigned int>& values) const {
    return !Refused("znIBrowserCriteria::GetUnsignedValues") && All(unsigneds_, values);
}

bool Criteria::GetIntValues(std::vector<int>& values) const {
    return !Refused("znIBrowserCriteria::GetIntValues") && All(ints_, values);
}

bool Criteria::GetDoubleValues(std::vector<double>& values) const {
    return !Refused("znIBrowserCriteria::GetDoubleValues") && All(doubles_, values);
}

bool Criteria::GetStringValues(znStlVector<znString>& values) const {
    return !Refused("znIBrowserCriteria::GetStringValues") && All(strings_, values);
}

znIBrowserDataSourceSimple* Criteria::GetDataSource() {
    if (Refused("znIBrowserCriteria::GetDataSource")) return nullptr;
    return &owner_;
}

znIBrowserCriteria* CriteriaList::FindCriteria(const char* name) {
    if (Refused("znIBrowserCriteriaContainer::FindCriteria", name)) return nullptr;
    return criteria_.Find(TextOf(name));
}

bool CriteriaList::GetCriteria(std::vector<znIBrowserCriteria*>& criteria) {
    criteria.clear();
    if (Refused("znIBrowserCriteriaContainer::GetCriteria")) return false;
    criteria_.CopyTo(criteria);
    return true;
}

} // namespace znhost
