// What the current view shows: its filters by data source and by text.
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserView.h"
#include "view/view_messages.h"

#include <unordered_set>

using namespace znlayer;
using namespace view_messages;

namespace {

constexpr char noFilterList[] = "Cannot get list of filters for view :";

/// The first of the names that is not in the list, or null.
const znString* FindUnknown(const std::vector<znString>& names, const std::vector<znString>& list) {
    std::unordered_set<std::string_view> known;
    for (const znString& entry : list) known.insert(entry.View());
    for (const znString& name : names) {
        if (known.count(name.View()) == 0) return &name;
    }
    return nullptr;
}

} // namespace

bool znBrowserManagerTcl::SetViewGroupFilter(bool group) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    return operation.HostAnswer(current_.view->SetGroupFilter(group));
}

bool znBrowserManagerTcl::GetViewGroupFilter(znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    return operation.GiveBool(current_.view->GetGroupFilter(), out);
}

bool znBrowserManagerTcl::SetCurrentFilter(const std::vector<znString>& names) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    std::vector<znString> all;
    if (!current_.view->GetFilterNames(all))
        return operation.Fail({noFilterList, current_.view->GetName().c_str()});
    if (const znString* const unknown = FindUnknown(names, all))
        return operation.Fail({"Cannot find data source : ", unknown->c_str()});
    return operation.HostAnswer(current_.view->SetShownFilters(names.empty() ? all : names));
}

bool znBrowserManagerTcl::GetCurrentFilter(znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    std::vector<znString> names;
    if (!current_.view->GetShownFilters(names))
        return operation.Fail({noFilterList, current_.view->GetName().c_str()});
    return NameList(EntryForm::Braced).AddTexts(names).Give(*this, out);
}

bool znBrowserManagerTcl::GetFilterNames(znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    std::vector<znString> names;
    if (!current_.view->GetFilterNames(names))
        return operation.Fail({noFilterList, current_.view->GetName().c_str()});
    return NameList(EntryForm::Braced).AddTexts(names).Give(*this, out);
}

bool znBrowserManagerTcl::RebuildFilterLists() {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewName);
    return operation.HostAnswer(current_.view->RebuildFilterLists());
}

bool znBrowserManagerTcl::SetFilterString(const char* pattern) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewHandle);
    return operation.HostAnswer(current_.view->SetFilterString(pattern));
}

bool znBrowserManagerTcl::GetFilterString(znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewHandle);
    out = current_.view->GetFilterString();
    return true;
}

bool znBrowserManagerTcl::SetFilterMatchCaseFlag(bool& flag) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    return operation.HostAnswer(current_.view->SetFilterMatchCase(flag));
}

bool znBrowserManagerTcl::GetFilterMatchCaseFlag(bool& flag) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    flag = current_.view->GetFilterMatchCase();
    return true;
}

bool znBrowserManagerTcl::SetFilterMatchWordFlag(bool& flag) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    return operation.HostAnswer(current_.view->SetFilterMatchWord(flag));
}

bool znBrowserManagerTcl::GetFilterMatchWordFlag(bool& flag) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    flag = current_.view->GetFilterMatchWord();
    return true;
}
