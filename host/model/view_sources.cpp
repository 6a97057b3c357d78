// The data sources and data references of a view, and what it lets go of.
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataReference.h"
#include "model/data_sources.h"
#include "model/view.h"

namespace znhost {

bool View::IsConnected(const znIBrowserDataSource* source) const {
    return Contains(connected_, const_cast<znIBrowserDataSource*>(source));
}

bool View::ConnectSource(znIBrowserDataSource& source) {
    if (IsConnected(&source)) {
        return Fail("The data source \"" + NameOf(log_, &source) + "\" is already connected to the view \"" +
                    Name() + "\"");
    }
    connected_.push_back(&source);
    Changed(VIEW_ROWS);
    return true;
}

bool View::DisconnectSource(znIBrowserDataSource& source) {
    if (!IsConnected(&source)) {
        return Fail("The data source \"" + NameOf(log_, &source) + "\" is not connected to the view \"" +
                    Name() + "\"");
    }
    RemoveAll(connected_, &source);
    Changed(VIEW_ROWS);
    return true;
}

bool View::AddShare(View& other, znIBrowserDataSourceHierarchical& source) {
    const Share share(&source, &other);
    if (Contains(shares_, share)) {
        return Fail("The view \"" + Name() + "\" already shares the data source \"" + NameOf(log_, &source) +
                    "\" with the view \"" + other.Name() + "\"");
    }
    other.sharers_.push_back(weak_from_this());
    shares_.push_back(share);
    Changed(VIEW_ROWS);
    return true;
}

SimpleSources View::ShowableSources() const {
    SimpleSources sources;
    for (FreeFolder* const folder : root_->WithBelow()) {
        for (znIBrowserDataSourceSimple* const source : folder->Sources()) AddNew(sources, source);
    }
    for (znIBrowserDataSource* const connected : connected_) {
        for (znIBrowserDataSourceSimple* const source : SimpleSourcesOf(log_, connected)) {
            AddNew(sources, source);
        }
    }
    return sources;
}

void View::Forget(znIBrowserDataSource& source) {
    TellObservers([&](ViewObserver& observer) { observer.OnDataSourceDeleted(source); });
    for (FreeFolder* const folder : root_->WithBelow()) folder->Forget(source);
    for (const auto& property : properties_) property->Disconnect(source);
    RemoveAll(connected_, &source);
    if (znIBrowserDataSourceHierarchical* const hierarchical = HierarchicalOf(log_, &source)) {
        RemoveWhere(shares_, [&](const Share& share) { return share.first == hierarchical; });
    }
    if (znIBrowserDataSourceSimple* const simple = SimpleOf(log_, &source)) {
        collector_.Forget(simple);
        selection_.Clear(simple);
    }
    Changed(VIEW_ALL);
}

void View::Forget(const znIBrowserDataReference& reference) {
    for (FreeFolder* const folder : root_->WithBelow()) folder->Forget(reference);
    RemoveAll(references_, const_cast<znIBrowserDataReference*>(&reference));
    Changed(VIEW_ROWS);
}

void View::Forget(const znIBrowserDataProperty& property) {
    for (const auto& viewProperty : properties_) viewProperty->Forget(property);
}

void View::Forget(const znIBrowserDataOperation& operation) {
    for (const auto& viewOperation : operations_) viewOperation->Forget(operation);
}

void View::Forget(const View& other) {
    RemoveWhere(shares_, [&](const Share& share) { return share.second == &other; });
}

void View::EndShares() {
    for (const std::weak_ptr<View>& sharer : sharers_) {
        if (const std::shared_ptr<View> view = sharer.lock()) view->Forget(*this);
    }
    sharers_.clear();
}

bool View::Uses(znIBrowserDataSource& source) const {
    if (IsConnected(&source)) return true;
    znIBrowserDataSourceSimple* const simple = SimpleOf(log_, &source);
    znIBrowserDataSourceHierarchical* const hierarchical = HierarchicalOf(log_, &source);
    for (const Share& share : shares_) {
        if (hierarchical && share.first == hierarchical) return true;
    }
    for (FreeFolder* const folder : root_->WithBelow()) {
        if (hierarchical && folder->Tree().source == hierarchical) return true;
        if (simple && Contains(folder->Sources(), simple)) return true;
    }
    for (const auto& property : properties_) {
        for (const znBrowserConnection& connection : property->Connections()) {
            if (connection.dataSource == &source) return true;
        }
    }
    return false;
}

void View::GetDataSourcesSimple(std::vector<znIBrowserDataSourceSimple*>& sources) {
    sources.clear();
    if (Refused("znIBrowserView::GetDataSourcesSimple")) return;
    for (znIBrowserDataSource* const source : connected_) {
        if (znIBrowserDataSourceSimple* const simple = SimpleOf(log_, source)) sources.push_back(simple);
    }
}

void View::GetDataSourcesHierarchical(std::vector<znIBrowserDataSourceHierarchical*>& sources) {
    sources.clear();
    if (Refused("znIBrowserView::GetDataSourcesHierarchical")) return;
    for (znIBrowserDataSource* const source : connected_) AddNew(sources, HierarchicalOf(log_, source));
    for (const Share& share : shares_) AddNew(sources, share.first);
}

znIBrowserDataSourceHierarchical* View::FindDataSourceHierarchical(const char* name) {
    if (Refused("znIBrowserView::FindDataSourceHierarchical", name)) return nullptr;
    const std::string wanted = TextOf(name);
    for (znIBrowserDataSource* const source : connected_) {
        znIBrowserDataSourceHierarchical* const hierarchical = HierarchicalOf(log_, source);
        if (hierarchical && NameOf(log_, hierarchical) == wanted) return hierarchical;
    }
    for (const Share& share : shares_) {
        if (NameOf(log_, share.first) == wanted) return share.first;
    }
    if (newConnections_ || !dataControl_) return nullptr;
    const CallLog::Quiet quiet(log_);
    return dataControl_->FindDataSourceHierarchical(wanted.c_str());
}

znIBrowserDataSource* View::FindDataSource(const char* name) {
    if (Refused("znIBrowserView::FindDataSource", name)) return nullptr;
    const std::string wanted = TextOf(name);
    if (znIBrowserDataSource* const source = FindConnected(wanted)) return source;
    const bool quoted = wanted.size() > 2 && wanted.front() == '"' && wanted.back() == '"';
    return quoted ? FindConnected(wanted.substr(1, wanted.size() - 2)) : nullptr;
}

znIBrowserDataSource* View::FindConnected(const std::string& name) const {
    const auto found = std::find_if(connected_.begin(), connected_.end(), [&](znIBrowserDataSource* source) {
        return NameOf(log_, source) == name;
    });
    return found == connected_.end() ? nullptr : *found;
}

bool View::SetDataSourceConnected(znIBrowserDataSource* source, bool connected) {
    if (Refused("znIBrowserView::SetDataSourceConnected", source, connected)) return false;
    if (!source) return Fail("No data source to connect or disconnect");
    return connected ? ConnectSource(*source) : DisconnectSource(*source);
}

bool View::GetConnectedDataSources(std::vector<znIBrowserDataSource*>& sources) {
    sources.clear();
    if (Refused("znIBrowserView::GetConnectedDataSources")) return false;
    sources = connected_;
    return true;
}

bool View::GetConnectedDataReferences(std::vector<znIBrowserDataReference*>& references) {
    references.clear();
    if (Refused("znIBrowserView::GetConnectedDataReferences")) return false;
    references = references_;
    return true;
}

bool View::ConnectDataReference(znIBrowserDataReference* reference, bool connect) {
    if (Refused("znIBrowserView::ConnectDataReference", reference, connect)) return false;
    if (!reference) return Fail("No data reference to connect or disconnect");
    if (connect == Contains(references_, reference)) {
        return Fail("The data reference \"" + NameOf(log_, reference) + "\" is " +
                    (connect ? "already" : "not") + " connected to the view \"" + Name() + "\"");
    }
    if (connect) {
        references_.push_back(reference);
    } else {
        RemoveAll(references_, reference);
    }
    Changed(VIEW_ROWS);
    return true;
}

} // namespace znhost
