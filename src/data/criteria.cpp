// Criteria: the named filter settings of a custom data source.
#include "data/data_messages.h"
#include "frame/current_lifetimes.h"
#include "frame/data_types.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserCriteria.h"
#include "host/znIBrowserDataSourceSimple.h"

#include <cstdio>
#include <utility>

using namespace znlayer;
using namespace data_messages;

namespace {

constexpr char noSource[] = "Cannot get handle to the current data source";
constexpr char noType[] = "Cannot get type of the current criteria";

znIBrowserCriteria* FindIn(znIBrowserDataSourceSimple* source, const char* name) {
    znIBrowserCriteriaContainer* const container = source->GetCriteriaList();
    return container ? container->FindCriteria(name) : nullptr;
}

template <class Number>
void AppendFormatted(const char* format, Number number, znString& out) {
    char text[330]; // The largest double has 309 digits before the point.
    std::snprintf(text, sizeof text, format, number);
    out += text;
}

// Booleans are printed inverted: scripts have come to rely on it.
void AppendValue(bool value, znString& out) {
    out += value ? znBrowserTclKeywords::KEYWORD_FALSE : znBrowserTclKeywords::KEYWORD_TRUE;
}
void AppendValue(unsigned int value, znString& out) { AppendFormatted("%u", value, out); }
void AppendValue(int value, znString& out) { AppendFormatted("%d", value, out); }
void AppendValue(double value, znString& out) { AppendFormatted("%8.3f", value, out); }
void AppendValue(const znString& value, znString& out) {
    out += '"';
    out += value;
    out += '"';
}

/// Appends the first value of a type, a blank before it.
template <class Value>
bool AppendOne(const znIBrowserCriteria& criteria, bool (znIBrowserCriteria::*get)(Value&) const,
               znString& out) {
    Value value{};
    if (!(criteria.*get)(value)) return false;
    out += ' ';
    AppendValue(value, out);
    return true;
}

/// Appends all values of a type, a blank before each.
template <class Values>
bool AppendAll(const znIBrowserCriteria& criteria, bool (znIBrowserCriteria::*get)(Values&) const,
               znString& out) {
    Values values;
    if (!(criteria.*get)(values)) return false;
    for (const auto& value : std::as_const(values)) {
        out += ' ';
        AppendValue(value, out);
    }
    return true;
}

bool AppendValues(const znIBrowserCriteria& criteria, ZNBROWSER_DATA_TYPE type, znString& out) {
    switch (type) {
    case ZNBROWSER_DATA_BOOL: return AppendOne(criteria, &znIBrowserCriteria::GetBoolValue, out);
    case ZNBROWSER_DATA_UNSIGNED: return AppendOne(criteria, &znIBrowserCriteria::GetUnsignedValue, out);
    case ZNBROWSER_DATA_INT: return AppendOne(criteria, &znIBrowserCriteria::GetIntValue, out);
    case ZNBROWSER_DATA_DOUBLE: return AppendOne(criteria, &znIBrowserCriteria::GetDoubleValue, out);
    case ZNBROWSER_DATA_STRING: return AppendOne(criteria, &znIBrowserCriteria::GetStringValue, out);
    case ZNBROWSER_DATA_BOOL_ARRAY: return AppendAll(criteria, &znIBrowserCriteria::GetBoolValues, out);
    case ZNBROWSER_DATA_UNSIGNED_ARRAY:
        return AppendAll(criteria, &znIBrowserCriteria::GetUnsignedValues, out);
    case ZNBROWSER_DATA_INT_ARRAY: return AppendAll(criteria, &znIBrowserCriteria::GetIntValues, out);
    case ZNBROWSER_DATA_DOUBLE_ARRAY: return AppendAll(criteria, &znIBrowserCriteria::GetDoubleValues, out);
    case ZNBROWSER_DATA_STRING_ARRAY: return AppendAll(criteria, &znIBrowserCriteria::GetStringValues, out);
    default: return false;
    }
}

} // namespace

bool znBrowserManagerTcl::CreateDataCriteria(const char* name) {
    const Operation operation(*this);
    if (!name) return GetState();
    znIBrowserDataSourceSimple* const source = current_.dataSourceSimple;
    if (!source) return operation.Fail(noSource);
    if (!source->GetCriteriaList()) return operation.Fail("Current datasource is not an scripted datasource");
    if (!FindIn(source, name) && !source->CreateCriteria(name))
        return operation.Fail({"Could not create criteria: ", name});
    if (znIBrowserCriteria* const criteria = FindIn(source, name)) current_.criteria = criteria;
    return GetState();
}

bool znBrowserManagerTcl::DeleteDataCriteria() {
    const Operation operation(*this);
    znIBrowserCriteria* const criteria = current_.criteria;
    if (!criteria) return operation.Fail(noCriteria);
    znIBrowserDataSourceSimple* const source = current_.dataSourceSimple;
    const auto deletion = [&] { return source && source->DeleteCriteria(criteria); };
    if (!DeleteAndForget(*this, CurrentsInside(*this, criteria), deletion))
        return operation.Fail({"Could not delete criteria: ", criteria->GetName()});
    return GetState();
}

bool znBrowserManagerTcl::SetCurrentCriteria(const char* name) {
    const Operation operation(*this);
    if (!current_.dataSourceSimple) return operation.Fail(noSource);
    if (!name) return GetState();
    znIBrowserCriteria* const criteria = FindIn(current_.dataSourceSimple, name);
    if (!criteria) return operation.Fail({"Unable to find criteria: ", name});
    current_.criteria = criteria;
    return GetState();
}

bool znBrowserManagerTcl::GetDataSourceSimpleCriteriaNames(znString& out) {
    const Operation operation(*this);
    if (!current_.dataSourceSimple)
        return operation.Fail("Cannot get handle to the current data source simple");
    znIBrowserCriteriaContainer* const container = current_.dataSourceSimple->GetCriteriaList();
    std::vector<znIBrowserCriteria*> criteria;
    if (!container || !container->GetCriteria(criteria))
        return operation.Fail("Cannot get list of the data source simple criteria names");
    return NameList(EntryForm::Plain, ExtraBlanks::After)
        .AddNames(criteria, NullName::EndsList)
        .Give(*this, out);
}

bool znBrowserManagerTcl::SetCriteriaCode(const char* code) {
    const Operation operation(*this);
    if (!current_.criteria) return false;
    if (!code || !current_.criteria->SetCode(code)) return operation.Fail("Invalid criteria code specified");
    return GetState();
}

// Without current criteria a good type word is accepted, and nothing happens.
bool znBrowserManagerTcl::SetCriteriaDataType(const char* typeWord) {
    const Operation operation(*this);
    if (!typeWord) return false;
    const ZNBROWSER_DATA_TYPE type = DataTypeFromWord(typeWord);
    if (type == ZNBROWSER_DATA_UNDEFINED) return operation.Fail("Invalid criteria type specified");
    if (current_.criteria) current_.criteria->SetDataType(type);
    return GetState();
}

bool znBrowserManagerTcl::GetCriteriaDataType(znString& out) {
    const Operation operation(*this);
    ZNBROWSER_DATA_TYPE type = ZNBROWSER_DATA_UNDEFINED;
    if (!current_.criteria) return operation.Fail(noCriteria);
    if (!current_.criteria->GetDataType(type)) return operation.Fail(noType);
    out = DataTypeName(type);
    return GetState();
}

bool znBrowserManagerTcl::GetCriteriaDataParameters(znString& out) {
    const Operation operation(*this);
    ZNBROWSER_DATA_TYPE type = ZNBROWSER_DATA_UNDEFINED;
    if (!current_.criteria) return operation.Fail(noCriteria);
    if (!current_.criteria->GetDataType(type)) return operation.Fail(noType);
    if (type < ZNBROWSER_DATA_BOOL || type > ZNBROWSER_DATA_STRING_ARRAY) {
        out = "Cannot get parameters of the current criteria"; // An answer here, and no error.
        return GetState();
    }
    znString text = DataTypeName(type);
    if (AppendValues(*current_.criteria, type, text)) out = text;
    return GetState();
}

bool znBrowserManagerTcl::UpdateCriteriaData(const std::vector<bool>& bools,
                                             const std::vector<unsigned int>& unsigneds,
                                             const std::vector<int>& ints, const std::vector<double>& doubles,
                                             const znStlVector<znString>& strings) {
    const Operation operation(*this);
    if (!current_.criteria) return operation.Fail(noCriteria);
    current_.criteria->SetBoolValues(bools);
    current_.criteria->SetUnsignedValues(unsigneds);
    current_.criteria->SetIntValues(ints);
    current_.criteria->SetDoubleValues(doubles);
    current_.criteria->SetStringValues(strings);
    return GetState();
}
