// Where popup menus are shown.
#include "data/data_messages.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewColumn.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/view_messages.h"
#include "window/popup_messages.h"
#include "znBrowserMessages.h"

using namespace znlayer;

namespace {

using Manager = znBrowserManagerTcl;

/// Lets an object show the current menu, or no menu any more where it shows that one. Without an object the
/// message is `missing`.
template <class Place>
bool Connect(Manager& manager, Place* place, const char* missing, bool connect) {
    const Operation operation(manager, Operation::State::Kept);
    znIBrowserPopupMenu* const menu = manager.GetCurrentPopupMenuPtr();
    if (!menu) return operation.Fail(popup_messages::noMenu);
    if (!place) return operation.Fail(missing);
    const char* const name = menu->GetName();
    if (!name) return operation.FailWithHostError();
    if (!connect && place->GetPopupMenu() != menu)
        return operation.Fail({"Popup menu is not connected there: ", name});
    return operation.HostAnswer(place->SetPopupMenu(connect ? name : ""));
}

bool ConnectDataSource(Manager& manager, const char* name, bool connect) {
    const Operation operation(manager);
    znIBrowserDataCtrl* const control = manager.GetCurrentDataCtrlPtr();
    if (!manager.GetCurrentPopupMenuPtr()) return operation.Fail(popup_messages::noMenu);
    if (!control) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    znIBrowserDataSourceSimple* const source =
        FindNamed(control, &znIBrowserDataCtrl::FindDataSourceSimple, name);
    if (!source) return operation.Fail({data_messages::unknownDataSource, name});
    return Connect(manager, source, nullptr, connect);
}

/// The places that show a menu, as pairs of the kind and the name.
class Places {
public:
    explicit Places(const znIBrowserPopupMenu* menu) : menu_(menu) {}

    template <class Place>
    void Add(const char* kind, Place& place) {
        if (place.GetPopupMenu() != menu_) return;
        const znString name = place.GetName();
        if (name.IsNull()) return;
        znString pair = kind;
        AppendPiece(pair, name.c_str(), false, true, true);
        pairs_.Add(pair);
    }
    template <class Place>
    void AddAll(const char* kind, const std::vector<Place*>& places) {
        for (Place* const place : places) {
            if (place) Add(kind, *place);
        }
    }
    NameList& Pairs() { return pairs_; }

private:
    const znIBrowserPopupMenu* menu_;
    NameList pairs_{EntryForm::Braced};
};

using Views = std::vector<znIBrowserView*>;

Views AllViews(const Manager& manager) {
    Views views;
    znIBrowser* const browser = BrowserOf(manager);
    znIBrowserViewList* const list = browser ? browser->GetViewList() : nullptr;
    if (list) list->GetViews(views, 0);
    return views;
}

/// @return false when a list of folders is refused
bool AddFolders(znIBrowserView& view, Places& places) {
    std::vector<znIBrowserViewItemFreeFolder*> waiting{view.GetRootFreeFolder()};
    std::vector<znIBrowserViewItemFreeFolder*> children;
    while (!waiting.empty()) {
        znIBrowserViewItemFreeFolder* const folder = waiting.back();
        waiting.pop_back();
        if (!folder) continue;
        places.Add("folder", *folder);
        if (!folder->GetChildFolders(children)) return false;
        waiting.insert(waiting.end(), children.rbegin(), children.rend());
    }
    return true;
}

bool AddColumns(znIBrowserView& view, Places& places) {
    std::vector<znIBrowserViewColumn*> columns;
    if (!view.GetColumns(columns)) return false;
    places.AddAll("column", columns);
    return true;
}

void AddDataSources(const Manager& manager, Places& places) {
    std::vector<znIBrowserDataCtrl*> controls;
    std::vector<znIBrowserDataSourceSimple*> sources;
    manager.GetApplication()->GetDataCtrls(controls);
    for (znIBrowserDataCtrl* const control : controls) {
        if (!control) continue;
        control->GetDataSourcesSimple(sources);
        places.AddAll("datasource", sources);
    }
}

} // namespace

bool znBrowserManagerTcl::ConnectPopupMenuToView(bool connect) {
    const Operation operation(*this);
    return Connect(*this, current_.view, view_messages::noViewName, connect);
}

bool znBrowserManagerTcl::ConnectPopupMenuToFreeFolder(bool connect) {
    const Operation operation(*this);
    return Connect(*this, current_.freeFolder, view_messages::noFolderName, connect);
}

bool znBrowserManagerTcl::ConnectPopupMenuToColumn(bool connect) {
    const Operation operation(*this);
    return Connect(*this, current_.column, view_messages::noColumnName, connect);
}

bool znBrowserManagerTcl::ConnectPopupMenuToDataSourceSimple(const char* name, bool connect) {
    return ConnectDataSource(*this, name, connect);
}

bool znBrowserManagerTcl::GetPopupMenuConnections(znString& out) {
    const Operation operation(*this);
    if (!current_.popupMenu) return operation.Fail(popup_messages::noMenu);
    Places places(current_.popupMenu);
    const Views views = AllViews(*this);
    places.AddAll("view", views);
    for (znIBrowserView* const view : views) {
        if (view && !AddFolders(*view, places)) return operation.Fail("Cannot get list of folders");
    }
    for (znIBrowserView* const view : views) {
        if (view && !AddColumns(*view, places)) return operation.Fail("Cannot get list of view columns");
    }
    AddDataSources(*this, places);
    return operation.Give(places.Pairs(), out);
}
