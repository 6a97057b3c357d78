// What simple data sources are connected to: base sources to custom ones, and sources of either kind to
// views.
#include "data/data_messages.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserView.h"

using namespace znlayer;
using namespace data_messages;

namespace {

using BaseChange = bool (znIBrowserDataSourceSimple::*)(znIBrowserDataSourceSimple*);

/// Connects a base source to the current custom source, or disconnects it.
bool ChangeBase(znBrowserManagerTcl& manager, const char* name, BaseChange change) {
    znIBrowserDataSourceSimple* const custom = manager.GetCurrentDataSourceSimplePtr();
    // A silent refusal: an error that is pending stays.
    if (!custom || !custom->IsCustom()) return false;
    const Operation operation(manager);
    znIBrowserDataSourceSimple* const base = manager.FindDataSourceSimple(name);
    if (!base) return operation.Fail({unknownDataSource, name});
    if (!(custom->*change)(base)) return false;
    custom->Update();
    return manager.GetState();
}

template <class Source>
NameList NamesOf(const std::vector<Source*>& sources) {
    return NameList(EntryForm::Braced, ExtraBlanks::Between).AddNames(sources);
}

} // namespace

bool znBrowserManagerTcl::DataSourceSimpleConnect(const char* name) {
    return ChangeBase(*this, name, &znIBrowserDataSourceSimple::ConnectBase);
}

bool znBrowserManagerTcl::DataSourceSimpleDisconnect(const char* name) {
    return ChangeBase(*this, name, &znIBrowserDataSourceSimple::DisconnectBase);
}

bool znBrowserManagerTcl::SetCurrentConnectDataSourceSimple(const char* name) {
    const Operation operation(*this);
    if (!current_.dataSourceSimple) return operation.Fail(noDataSource);
    znIBrowserDataSourceSimple* const base = FindDataSourceSimple(name);
    if (!base) return operation.Fail({unknownDataSource, name});
    if (!current_.dataSourceSimple->SetCurrentBase(base))
        return operation.Fail("Cannot set the base datasource to custom");
    return GetState();
}

bool znBrowserManagerTcl::DataSourceSimpleConnected(znString& out) {
    const Operation operation(*this);
    std::vector<znIBrowserDataSourceSimple*> bases;
    if (current_.dataSourceSimple) current_.dataSourceSimple->GetBaseDataSources(bases);
    return NamesOf(bases).Give(*this, out);
}

bool znBrowserManagerTcl::DataSourceSimpleConnected(const char* name, znString& out) {
    const Operation operation(*this);
    znIBrowserDataSourceSimple* const source = FindDataSourceSimple(name);
    std::vector<znIBrowserDataSourceSimple*> bases;
    if (source && !source->GetBaseDataSources(bases)) bases.clear();
    return NamesOf(bases).Give(*this, out);
}

bool znBrowserManagerTcl::DataSourceSimpleConnected(znIBrowserView* view, znString& out) {
    const Operation operation(*this);
    std::vector<znIBrowserDataSourceSimple*> sources;
    if (view) view->GetDataSourcesSimple(sources);
    return NamesOf(sources).Give(*this, out);
}

bool znBrowserManagerTcl::DataSourceHierarchicalConnected(znIBrowserView* view, znString& out) {
    const Operation operation(*this);
    std::vector<znIBrowserDataSourceHierarchical*> sources;
    if (view) view->GetDataSourcesHierarchical(sources);
    return NamesOf(sources).Give(*this, out);
}

// The host's answer is passed on as it is, without its text.
bool znBrowserManagerTcl::DataSourceSimpleConnect(znIBrowserView* view, const char* name) {
    const Operation operation(*this);
    znIBrowser* const browser = BrowserOf(*this);
    return browser && view && name && browser->ConnectDataSourceSimple(view, name);
}

bool znBrowserManagerTcl::DataSourceHierarchicalConnect(znIBrowserView* view, const char* name) {
    const Operation operation(*this);
    znIBrowser* const browser = BrowserOf(*this);
    return browser && view && name && browser->ConnectDataSourceHierarchical(view, name);
}

bool znBrowserManagerTcl::DataSourceDisconnect(znIBrowserView* view, const char* name) {
    const Operation operation(*this);
    znIBrowser* const browser = BrowserOf(*this);
    return browser && view && name && browser->DisconnectDataSource(view, name);
}
