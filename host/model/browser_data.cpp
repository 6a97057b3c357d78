// The data sources of a view: connecting, sharing, refreshing.
#include "host/znIBrowserDataCtrl.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "model/runnable_operation.h"
#include "model/view.h"

namespace znhost {

bool Browser::ConnectByName(znIBrowserView* view, const char* name, bool hierarchical) {
    if (!view) return Fail("No view to connect a data source to");
    View& owner = *static_cast<View*>(view);
    if (!owner.DataControl()) return Fail("The view \"" + owner.Name() + "\" has no data control");
    const CallLog::Quiet quiet(log_);
    znIBrowserDataSource* const source =
        hierarchical ? AnySource(log_, owner.DataControl()->FindDataSourceHierarchical(name))
                     : AnySource(log_, owner.DataControl()->FindDataSourceSimple(name));
    if (source) return owner.ConnectSource(*source);
    return Fail("The data control \"" + NameOf(log_, owner.DataControl()) + "\" has no " +
                (hierarchical ? "hierarchical" : "simple") + " data source \"" + TextOf(name) + "\"");
}

bool Browser::ConnectDataSourceSimple(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowser::ConnectDataSourceSimple", view, name)) return false;
    return ConnectByName(view, name, false);
}

bool Browser::ConnectDataSourceHierarchical(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowser::ConnectDataSourceHierarchical", view, name)) return false;
    return ConnectByName(view, name, true);
}

bool Browser::DisconnectDataSource(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowser::DisconnectDataSource", view, name)) return false;
    if (!view) return Fail("No view to disconnect a data source from");
    View& owner = *static_cast<View*>(view);
    for (znIBrowserDataSource* const source : owner.ConnectedSources()) {
        if (NameOf(log_, source) == TextOf(name)) return owner.DisconnectSource(*source);
    }
    return Fail("The data source \"" + TextOf(name) + "\" is not connected to the view \"" + owner.Name() +
                "\"");
}

bool Browser::GetSharedDataSourcesHierarchical(znIBrowserView* view, std::vector<Share>& shares) {
    shares.clear();
    if (Refused("znIBrowser::GetSharedDataSourcesHierarchical", view)) return false;
    if (!view) return Fail("No view to list the shares of");
    shares = static_cast<View*>(view)->Shares();
    return true;
}

bool Browser::ShareDataSourceHierarchical(znIBrowserView* view, znIBrowserView* other,
                                          znIBrowserDataSourceHierarchical* source) {
    if (Refused("znIBrowser::ShareDataSourceHierarchical", view, other, source)) return false;
    if (!view || !other || !source) return Fail("A share needs two views and a hierarchical data source");
    return static_cast<View*>(view)->AddShare(*static_cast<View*>(other), *source);
}

bool Browser::UpdateTreeDataSource(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source) {
    if (Refused("znIBrowser::UpdateTreeDataSource", folder, source)) return false;
    if (!folder || !source) return Fail("No folder and data source to refresh");
    View& owner = static_cast<FreeFolder*>(folder)->Owner();
    owner.Changed(VIEW_ROWS | VIEW_CELLS);
    return true;
}

bool Browser::PerformDataOperation(znIBrowserDataOperation* operation) {
    if (Refused("znIBrowser::PerformDataOperation", operation)) return false;
    if (!operation) return Fail("No data operation to perform");
    return RunDataOperation(*operation);
}

bool Browser::RunDataOperation(znIBrowserDataOperation& operation) {
    return static_cast<RunnableOperation&>(operation).Run();
}

} // namespace znhost
