// Simple data sources: made, chosen, captioned and listed.
#include "data/data_messages.h"
#include "data/item_values.h"
#include "frame/current_lifetimes.h"
#include "frame/operation.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserCriteria.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataProperty.h"
#include "host/znIBrowserDataSource.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "state/collector/collected_source.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserMessages.h"

#include <algorithm>
#include <cstring>

using namespace znlayer;
using namespace data_messages;

namespace {

constexpr char noCurrentSource[] = "Cannot get handle to current datasource simple";

/// The source of that name among the current objects: a host may fail to find one that it has.
znIBrowserDataSourceSimple* FindAmongCurrents(const znBrowserCurrentObjects& current, const char* name) {
    znIBrowserDataSourceSimple* const ofCriteria =
        current.criteria ? current.criteria->GetDataSource() : nullptr;
    for (znIBrowserDataSourceSimple* const source : {current.dataSourceSimple, current.list, ofCriteria}) {
        const char* const ownName = source ? source->GetName() : nullptr;
        if (ownName && name && std::strcmp(ownName, name) == 0 && source->GetDataCtrl() == current.dataCtrl)
            return source;
    }
    return nullptr;
}

} // namespace

// The host's answer is not asked for: what counts is whether it knows the source afterwards.
bool znBrowserManagerTcl::CreateDataSourceSimple(const char* name, const char* caption, const char*) {
    const Operation operation(*this, Operation::State::Kept);
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    if (name) current_.dataCtrl->CreateDataSourceSimple(name, caption ? caption : "", nullptr);
    UpdateCurrentDataSourceSimple(FindDataSourceSimple(name));
    return true;
}

// Unknown names go to the host, too, and its answer is not asked for.
bool znBrowserManagerTcl::DeleteDataSourceSimple(const char* name) {
    const Operation operation(*this);
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    znIBrowserDataSourceSimple* const source = FindDataSourceSimple(name);
    if (source && source->IsBase()) return operation.Fail({"Cannot delete datasource: ", name});
    if (source && source->IsConnected())
        return operation.Fail({"Cannot delete connected datasource: ", name});
    znIBrowserDataSourceSimple* const dying = source ? source : FindAmongCurrents(current_, name);
    const znBrowserCurrentObjects doomed = dying ? CurrentsInside(*this, dying) : znBrowserCurrentObjects();
    const auto deletion = [&] {
        if (name) current_.dataCtrl->DeleteDataSourceSimple(name);
        return FindDataSourceSimple(name) != dying;
    };
    if (DeleteAndForget(*this, doomed, deletion)) ForgetCollectorDataSource(*this, name);
    return GetState();
}

znIBrowserDataSourceSimple* znBrowserManagerTcl::FindDataSourceSimple(const char* name) const {
    return FindNamed(current_.dataCtrl, &znIBrowserDataCtrl::FindDataSourceSimple, name);
}

bool znBrowserManagerTcl::SetCurrentDataSourceSimple(const char* name) {
    const Operation operation(*this);
    znIBrowserDataSourceSimple* const source = FindDataSourceSimple(name);
    if (!source) return operation.Fail({unknownDataSource, name});
    UpdateCurrentDataSourceSimple(source);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentDataSourceSimpleCaption(znString& out) {
    const Operation operation(*this);
    if (!current_.dataSourceSimple) return operation.Fail(noCurrentSource);
    out = current_.dataSourceSimple->GetCaption();
    return GetState();
}

bool znBrowserManagerTcl::SetCurrentDataSourceSimpleCaption(const char* caption) {
    const Operation operation(*this);
    if (!caption) return false;
    if (!current_.dataSourceSimple) return operation.Fail(noCurrentSource);
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    return current_.dataCtrl->SetDataSourceSimpleCaption(current_.dataSourceSimple, caption);
}

bool znBrowserManagerTcl::GetCurrentDataSourceSimpleFilterCaption(znString& out) {
    const Operation operation(*this);
    if (!current_.dataSourceSimple) return operation.Fail(noCurrentSource);
    out = current_.dataSourceSimple->GetFilterCaption();
    return GetState();
}

bool znBrowserManagerTcl::SetCurrentDataSourceSimpleFilterCaption(const char* caption) {
    const Operation operation(*this);
    if (!caption) return false;
    if (!current_.dataSourceSimple) return operation.Fail(noCurrentSource);
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    return current_.dataCtrl->SetDataSourceSimpleFilterCaption(current_.dataSourceSimple, caption);
}

bool znBrowserManagerTcl::DataSourceSimpleNames(znString& out) {
    const Operation operation(*this);
    out.clear();
    if (!current_.dataCtrl) return operation.Fail("Cannot get current Data Control");
    std::vector<znIBrowserDataSourceSimple*> sources;
    current_.dataCtrl->GetDataSourcesSimple(sources);
    return NameList(EntryForm::Braced).AddNames(sources).Give(*this, out);
}

bool znBrowserManagerTcl::DataSourceSimpleCustomNames(znString& out) {
    const Operation operation(*this);
    out.clear();
    if (!current_.dataCtrl) return operation.Fail(noDataCtrl);
    std::vector<znIBrowserDataSourceSimple*> sources;
    current_.dataCtrl->GetDataSourcesSimple(sources);
    const auto isCustom = [](const znIBrowserDataSourceSimple* source) {
        return source && source->IsCustom();
    };
    sources.erase(std::stable_partition(sources.begin(), sources.end(), isCustom), sources.end());
    return NameList(EntryForm::Braced).AddNames(sources).Give(*this, out);
}

bool znBrowserManagerTcl::DataSourceSimplePropertyNames(const char* dataSource, znString& out) {
    const Operation operation(*this);
    out.clear();
    znIBrowserDataSourceSimple* const source = FindDataSourceSimple(dataSource);
    if (!source) return operation.Fail({unknownDataSource, dataSource});
    std::vector<znIBrowserDataProperty*> properties;
    source->GetDataProperties(properties);
    return NameList(EntryForm::Plain, ExtraBlanks::Between).AddNames(properties).Give(*this, out);
}

bool znBrowserManagerTcl::GetDataSourcesNames(znString& out) {
    const Operation operation(*this);
    out.clear();
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    std::vector<znIBrowserDataSource*> sources;
    if (!current_.dataCtrl->GetDataSources(sources)) return operation.Fail("Cannot get data sources names");
    return NameList(EntryForm::Plain, ExtraBlanks::After).AddNames(sources).Give(*this, out);
}

bool znBrowserManagerTcl::GetDataItemsFromCurrentDSS(znString& out) {
    const Operation operation(*this);
    out.clear();
    if (!current_.view) return operation.Fail(noView);
    // One message for both: scripts know it so.
    if (!current_.viewProperty || !current_.dataSourceSimple) return operation.Fail(noViewProperty);
    ItemProperty property(*this);
    if (!property.Of(current_.dataSourceSimple))
        return operation.Fail("Cannot get data property for current datasource");
    znBrowserDataItems items;
    current_.dataSourceSimple->GetDataItems(items);
    return GiveItemValues(*this, items, {&property}, out);
}
