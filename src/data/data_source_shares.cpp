// Shares: hierarchical data sources that one view shows together with another.
#include "frame/operation.h"
#include "host/znIBrowser.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserView.h"
#include "znBrowserManagerTcl.h"
#include "znBrowserMessages.h"

using namespace znlayer;

namespace {

constexpr char noView[] = "Cannot get handle to the current view";

void AppendPieces(const znBrowserManagerTcl& manager, std::initializer_list<const char*> pieces) {
    for (const char* const piece : pieces) manager.AppendToBuff(piece, true, false);
}

} // namespace

// An unknown view or source is no failure: its text is left in the result buffer for the caller.
bool znBrowserManagerTcl::CreateDataSourceHierarchicalShare(const znString& dataSource,
                                                            const znString& view) {
    const Operation operation(*this);
    if (dataSource.empty() || view.empty()) return false;
    if (!current_.view) return operation.Fail(noView);
    znIBrowserView* const other = FindView(*this, view.c_str());
    if (!other) {
        AppendPieces(*this, {"View: \"", view.c_str(), "\" does not exist"});
        return true;
    }
    znIBrowserDataCtrl* const control = other->GetDataCtrl();
    if (!control) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    znIBrowserDataSourceHierarchical* const source = control->FindDataSourceHierarchical(dataSource.c_str());
    if (!source) {
        AppendPieces(*this, {"Data Source Hierarchical: \"", dataSource.c_str(), "\" does not exist"});
        return true;
    }
    znIBrowser* const browser = BrowserOf(*this);
    return operation.HostAnswer(browser &&
                                browser->ShareDataSourceHierarchical(current_.view, other, source));
}

bool znBrowserManagerTcl::GetDataSourceHierarchicalSharedNames(znString& out) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noView);
    znIBrowser* const browser = current_.view->GetBrowser();
    std::vector<znIBrowser::Share> shares;
    if (!browser || !browser->GetSharedDataSourcesHierarchical(current_.view, shares))
        return operation.Fail("Cannot get the list of shared data sources");
    AppendToBuff("Shared DSH(s): ", false, false);
    for (const auto& [source, view] : shares) {
        AppendPieces(*this, {"\"", source ? source->GetName() : nullptr, "\" with ", "\"",
                             view ? view->GetName().c_str() : nullptr, "\" view"});
    }
    return operation.GiveBuffer(out);
}
