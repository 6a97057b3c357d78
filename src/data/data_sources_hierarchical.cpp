// Hierarchical data sources: made, chosen, put together and listed.
#include "data/data_messages.h"
#include "data/item_values.h"
#include "frame/operation.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "znBrowserManagerTcl.h"

#include <algorithm>
#include <string_view>

using namespace znlayer;
using namespace data_messages;

namespace {

using Sources = std::vector<znIBrowserDataSourceHierarchical*>;

bool GiveNames(znBrowserManagerTcl& manager, const Sources& sources, znString& out) {
    return NameList(EntryForm::Braced, ExtraBlanks::Between).AddNames(sources).Give(manager, out);
}

} // namespace

// The host's answer is not asked for: what counts is whether it knows the source afterwards.
bool znBrowserManagerTcl::CreateDataSourceHierarchical(const char* name, bool first, bool second,
                                                       const char* text1, const char* text2) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    if (name)
        current_.dataCtrl->CreateDataSourceHierarchical(name, first, second, text1 ? text1 : "",
                                                        text2 ? text2 : "");
    SetCurrentDataSourceHierarchical(name);
    return true;
}

znIBrowserDataSourceHierarchical* znBrowserManagerTcl::FindDataSourceHierarchical(const char* name) const {
    return FindNamed(current_.dataCtrl, &znIBrowserDataCtrl::FindDataSourceHierarchical, name);
}

bool znBrowserManagerTcl::SetCurrentDataSourceHierarchical(const char* name) {
    const Operation operation(*this);
    znIBrowserDataSourceHierarchical* const source = FindDataSourceHierarchical(name);
    if (!source) return operation.Fail({unknownDataSource, name});
    UpdateCurrentDataSourceHierarchical(source);
    return GetState();
}

// None of the refusals has a message, and without a source an error that is pending stays.
bool znBrowserManagerTcl::DataSourceHierarchicalConnect(const char* kind, const char* name,
                                                        const char* third) {
    if (!current_.dataSourceHierarchical) return false;
    const Operation operation(*this);
    if (!kind || !name) return false;
    if (kind == std::string_view("parent")) return current_.dataSourceHierarchical->SetParent(name);
    return kind == std::string_view("child") &&
           current_.dataSourceHierarchical->AddChild(name, third ? third : "");
}

bool znBrowserManagerTcl::DataSourceHierarchicalDisconnectSimple(const char* name) {
    if (!current_.dataSourceHierarchical) return false;
    const Operation operation(*this);
    return name && current_.dataSourceHierarchical->RemoveChild(name);
}

bool znBrowserManagerTcl::DataSourceHierarchicalConnected(znString& out) {
    const Operation operation(*this);
    out.clear();
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    Sources sources;
    current_.dataCtrl->GetDataSourcesHierarchical(sources);
    const auto isConnected = [](const znIBrowserDataSourceHierarchical* source) {
        return source && source->IsConnected();
    };
    sources.erase(std::stable_partition(sources.begin(), sources.end(), isConnected), sources.end());
    return GiveNames(*this, sources, out);
}

bool znBrowserManagerTcl::DataSourceHierarchicalNames(znString& out) {
    const Operation operation(*this);
    out.clear();
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    Sources sources;
    current_.dataCtrl->GetDataSourcesHierarchical(sources);
    return GiveNames(*this, sources, out);
}

bool znBrowserManagerTcl::DataSourceHierarchicalParentNames(znString& out) {
    if (!current_.dataSourceHierarchical) return false;
    const znIBrowserDataSourceSimple* const parent = current_.dataSourceHierarchical->GetParent();
    out = parent ? parent->GetName() : "";
    return true;
}

bool znBrowserManagerTcl::DataSourceHierarchicalChildrenNames(znString& out) {
    if (!current_.dataSourceHierarchical) return false;
    const Operation operation(*this);
    std::vector<znIBrowserDataSourceSimple*> children;
    current_.dataSourceHierarchical->GetChildren(children);
    return NameList(EntryForm::Braced).AddNames(children, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::GetDataItemsFromCurrentDSH(znString& out) {
    const Operation operation(*this);
    out.clear();
    if (!current_.view) return operation.Fail(noView);
    if (!current_.viewProperty) return operation.Fail(noViewProperty);
    znBrowserDataItems items;
    if (current_.dataSourceHierarchical)
        current_.dataSourceHierarchical->GetDataItems(nullptr, items, false, true);
    ItemProperty property(*this);
    return GiveItemValues(*this, items, {&property}, out);
}

bool znBrowserManagerTcl::DataSourceHierarchicalPropertyNames(znString&) { return false; }
bool znBrowserManagerTcl::GetDataSourceHierarchicalCriteriaNames(znString&) { return false; }
