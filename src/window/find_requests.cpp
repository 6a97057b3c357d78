// Find requests: what a window searches for, and how. The records of properties and criteria are the host's,
// and are read and written here directly.
#include "frame/name_list.h"
#include "frame/operation.h"
#include "frame/shared_keywords.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserFindRequest.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserWindowAccess.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserMessages.h"

using namespace znlayer;

namespace {

constexpr char noRequest[] = "Cannot get handle to current find request";
constexpr char noProperty[] = "Cannot get handle to current find request property";
constexpr char noCriterion[] = "Cannot get handle to current criterion";

/// The names of records, in order.
template <class Record>
NameList NamesOf(const std::vector<Record*>& records) {
    NameList names(EntryForm::Plain, ExtraBlanks::Between);
    for (const Record* const record : records) names.Add(record->name);
    return names;
}

/// Begins the reading or writing of a field of the current criterion; null, and an error, when there is none.
znBrowserCriterion* BeginField(znBrowserManagerTcl& manager) {
    const Operation operation(manager);
    znBrowserCriterion* const criterion = manager.GetCurrentFindRequestPropertyCriterionPtr();
    if (!criterion) operation.Fail("Cannot get handle to current property criterion");
    return criterion;
}

template <class Field>
bool WriteField(znBrowserManagerTcl& manager, Field znBrowserCriterion::*field, const Field& value) {
    znBrowserCriterion* const criterion = BeginField(manager);
    if (criterion) criterion->*field = value;
    return criterion != nullptr;
}

template <class Field>
bool ReadField(znBrowserManagerTcl& manager, Field znBrowserCriterion::*field, Field& value) {
    const znBrowserCriterion* const criterion = BeginField(manager);
    if (criterion) value = criterion->*field;
    return criterion != nullptr;
}

} // namespace

// ---- Requests ----
bool znBrowserManagerTcl::SetCurrentFindRequest(const znString& name) {
    const Operation operation(*this);
    if (name.IsNull()) return false;
    if (!current_.windowAccess) return operation.Fail("Please set current window access first.");
    znIBrowserFindRequest* const request = current_.windowAccess->FindFindRequest(name.c_str());
    if (!request) return operation.Fail({"Cannot find request: ", name.c_str()});
    SetCurrentFindRequestByPtr(request);
    UpdateCurrentFindRequestProperty(request);
    return true;
}

bool znBrowserManagerTcl::GetCurrentFindRequest(znString& out) {
    const Operation operation(*this);
    if (!current_.findRequest) return operation.Fail(znBrowserMessages::noCurrentFindRequest);
    out = current_.findRequest->GetName();
    return true;
}

bool znBrowserManagerTcl::GetFindRequestNames(znString& out) {
    const Operation operation(*this);
    if (!current_.windowAccess) return operation.Fail("Cannot get handle to the current windowaccess");
    std::vector<znIBrowserFindRequest*> requests;
    current_.windowAccess->GetFindRequests(requests);
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddNames(requests).Give(*this, out);
}

bool znBrowserManagerTcl::SetCurrentFindRequestType(const znString& word) {
    const Operation operation(*this);
    if (!current_.findRequest) return operation.Fail(noRequest);
    znIBrowser* const browser = BrowserOf(*this);
    if (!browser) return operation.FailWithHostError();
    browser->SetFindRequestType(current_.findRequest, SharedKeywords().GetFindRequestTypeEnum(word));
    return true;
}

bool znBrowserManagerTcl::GetCurrentFindRequestType(znString& out) {
    const Operation operation(*this);
    if (!current_.findRequest) return operation.Fail(noRequest);
    out = SharedKeywords().GetFindRequestTypeString(current_.findRequest->GetType());
    return true;
}

bool znBrowserManagerTcl::PerformCurrentFindRequest() {
    const Operation operation(*this);
    if (!current_.findRequest) return operation.Fail(noRequest);
    znIBrowser* const browser = BrowserOf(*this);
    return operation.HostAnswer(browser && browser->PerformFindRequest(current_.findRequest));
}

// ---- Properties ----
bool znBrowserManagerTcl::AddPropertyToCurrentFindRequest(const znString& name) {
    const Operation operation(*this);
    if (!current_.findRequest) return operation.Fail("Please set current window find request first.");
    znIBrowserWindowAccess* const window = current_.findRequest->GetWindowAccess();
    znIBrowserView* const view = window ? window->GetView() : nullptr;
    if (view) view->AddFindRequestProperty(current_.findRequest, name.c_str());
    return true;
}

bool znBrowserManagerTcl::SetCurrentFindRequestProperty(const znString& name) {
    const Operation operation(*this);
    if (!current_.findRequest) return operation.Fail("Please set current find request first.");
    if (name.empty()) return operation.Fail("Name cannot be empty string");
    znBrowserProperty* const property = current_.findRequest->FindProperty(name.c_str());
    if (!property) return operation.Fail({"Cannot find property: ", name.c_str()});
    SetCurrentFindRequestPropertyByPtr(property);
    UpdateCurrentFindRequestPropertyCriterion(property);
    return true;
}

bool znBrowserManagerTcl::GetCurrentFindRequestProperty(znString& out) {
    const Operation operation(*this);
    if (!current_.findRequestProperty) return operation.Fail(noProperty);
    out = current_.findRequestProperty->name;
    return true;
}

bool znBrowserManagerTcl::GetFindRequestPropertyNames(znString& out) {
    const Operation operation(*this);
    if (!current_.findRequest) return operation.Fail(noRequest);
    std::vector<znBrowserProperty*> properties;
    current_.findRequest->GetProperties(properties);
    return NamesOf(properties).Give(*this, out);
}

// ---- Criteria ----
bool znBrowserManagerTcl::SetCurrentFindRequestPropertyCriterion(const znString& name) {
    const Operation operation(*this);
    if (!current_.findRequestProperty) return operation.Fail(noProperty);
    for (znBrowserCriterion* const criterion : current_.findRequestProperty->criteria) {
        if (criterion->name != name) continue;
        SetCurrentFindRequestPropertyCriterionByPtr(criterion);
        return true;
    }
    return operation.Fail({"Cannot find criterion : ", name.c_str()});
}

bool znBrowserManagerTcl::GetCurrentFindRequestPropertyCriterion(znString& out) {
    const Operation operation(*this);
    if (!current_.findRequestPropertyCriterion) return operation.Fail(noCriterion);
    out = current_.findRequestPropertyCriterion->name;
    return true;
}

bool znBrowserManagerTcl::GetCurrentFindRequestPropertyCriteriaNames(znString& out) {
    const Operation operation(*this);
    if (!current_.findRequestProperty) return operation.Fail(noProperty);
    return NamesOf(current_.findRequestProperty->criteria).Give(*this, out);
}

// Only "equalto" is supported. As it is the only one, the criterion has no field in which it could be stored.
bool znBrowserManagerTcl::SetCurrentFindRequestPropertyCriterionType(const znString& word) {
    const Operation operation(*this);
    if (!current_.findRequestPropertyCriterion) return operation.Fail(noCriterion);
    const bool supported = SharedKeywords().GetCriterionTypeEnum(word) == ZNBROWSER_CRITERION_EQUAL_TO;
    return supported || operation.Fail("Only 'equalto' type currently supported");
}

bool znBrowserManagerTcl::GetCurrentFindRequestPropertyCriterionType(znString& out) {
    const Operation operation(*this);
    if (!current_.findRequestPropertyCriterion) return operation.Fail(noCriterion);
    out = SharedKeywords().GetCriterionTypeString(current_.findRequestPropertyCriterion->type);
    return true;
}

bool znBrowserManagerTcl::SetCurrentFindRequestPropertyCriterionValue(const znString& value) {
    return WriteField(*this, &znBrowserCriterion::value, value);
}

bool znBrowserManagerTcl::GetCurrentFindRequestPropertyCriterionValue(znString& out) {
    return ReadField(*this, &znBrowserCriterion::value, out);
}

bool znBrowserManagerTcl::SetCurrentFindRequestPropertyCriterionMatchcase(bool matchCase) {
    return WriteField(*this, &znBrowserCriterion::matchcase, matchCase);
}

bool znBrowserManagerTcl::GetCurrentFindRequestPropertyCriterionMatchcase(bool& matchCase) {
    return ReadField(*this, &znBrowserCriterion::matchcase, matchCase);
}

bool znBrowserManagerTcl::SetCurrentFindRequestPropertyCriterionMatchword(bool matchWord) {
    return WriteField(*this, &znBrowserCriterion::matchword, matchWord);
}

bool znBrowserManagerTcl::GetCurrentFindRequestPropertyCriterionMatchword(bool& matchWord) {
    return ReadField(*this, &znBrowserCriterion::matchword, matchWord);
}

bool znBrowserManagerTcl::SetCurrentFindRequestPropertyCriterionUseregexp(bool useRegexp) {
    return WriteField(*this, &znBrowserCriterion::useregexp, useRegexp);
}

bool znBrowserManagerTcl::GetCurrentFindRequestPropertyCriterionUseregexp(bool& useRegexp) {
    return ReadField(*this, &znBrowserCriterion::useregexp, useRegexp);
}
