// The browser object of the embedded host.
#ifndef ZN_HOST_BROWSER_H
#define ZN_HOST_BROWSER_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowser.h"
#include "model/popup_menu.h"
#include "model/view.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace znhost {

class GuiMapList;
class HostServices;

/// The host's views, in the order created.
class ViewList final : public znIBrowserViewList, public HostObject {
public:
    explicit ViewList(CallLog& log) : HostObject(log) {}

    NamedList<View>& All() { return views_; }

    znIBrowserView* FindView(const char* name) override;
    void GetViews(std::vector<znIBrowserView*>& views, int flags) override;

private:
    NamedList<View> views_;
};

/// Creates, changes and deletes everything but windows and saved states, with which later classes complete
/// it; owns the views and the GUI maps. What it deletes, it first makes every other object of the host let go
/// of.
class Browser : public znIBrowser, public HostObject {
public:
    explicit Browser(HostServices& services);
    ~Browser() override;

    HostServices& Services() const { return services_; }
    NamedList<View>& Views() { return views_.All(); }
    /// All views, held: telling them something may run scripts, which may delete some.
    std::vector<std::shared_ptr<View>> HeldViews() { return {Views().begin(), Views().end()}; }
    GuiMapList& GuiMaps() { return *guiMaps_; }
    NamedList<PopupMenu>& PopupMenus() { return popupMenus_.All(); }
    /// Whether changes wait before they reach the windows.
    bool HoldsBack() const { return !flush_; }
    /// Runs a data operation. @return false, with an error text, when it failed.
    bool RunDataOperation(znIBrowserDataOperation& operation);
    /// Performs a popup menu item on the selected rows of a window, see `znIBrowserPopupMenuItem::Perform`.
    virtual bool PerformPopupItem(PopupItem& item, znIBrowserWindowAccess& window,
                                  const std::string& value) = 0;

    // Makes views and windows let go of what a data control is about to delete.
    void Forget(znIBrowserDataSource& source);
    void Forget(const znIBrowserDataReference& reference);
    void Forget(const znIBrowserDataProperty& property);
    void Forget(const znIBrowserDataOperation& operation);
    /// Whether any view shows the source, or is connected to it.
    bool Uses(znIBrowserDataSource& source);
    /// Tells the windows that the items of that control changed: `changes` are bits of `ViewChange`.
    void DataChanged(const znIBrowserDataCtrl& control, unsigned changes);
    /// Notes the same, to be told with the next change, or before the next question about the rows: for when
    /// memory runs out.
    void NoteDataChange(const znIBrowserDataCtrl& control, unsigned changes) noexcept;

    const char* GetError() const override;
    bool ApplyPendingChanges(znIBrowserViewItemFreeFolder* folder) override;
    void SetFlushFlag(bool flush) override;

    // Views.
    bool CreateView(const char* name, bool flag) override;
    znIBrowserViewList* GetViewList() override;
    bool DeleteView(znIBrowserView* view) override;
    bool RedrawViews(znIBrowserDataCtrl* control) override;

    // Columns.
    bool CreateIconColumn(znIBrowserView* view, const char* name, const char* argument,
                          const char* icon) override;
    bool CreateButtonColumn(znIBrowserView* view, const char* name, const char* argument) override;
    bool CreateTextBoxColumn(znIBrowserView* view, const char* name, const char* argument) override;
    bool SetColumnJustify(znIBrowserView* view, znIBrowserViewColumn* column, const char* justify) override;
    bool SetColumnWidth(znIBrowserViewColumn* column, const char* width) override;
    bool MoveColumn(znIBrowserView* view, znIBrowserViewColumn* column, int position) override;
    bool DeleteColumn(znIBrowserViewColumn* column) override;
    bool SetColumnAscending(znIBrowserViewColumn* column, bool ascending) override;

    // View properties and operations.
    bool CreateViewProperty(znIBrowserView* view, const char* name) override;
    bool DeleteViewProperty(znIBrowserView* view, znIBrowserViewProperty* property) override;
    bool ConnectViewProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                             znIBrowserDataProperty* dataProperty) override;
    bool ConnectViewPropertyNew(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                                znIBrowserDataProperty* dataProperty) override;
    bool DisconnectViewProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source) override;
    bool ConnectScriptProperty(znIBrowserViewProperty* property, const char* argument) override;
    bool SetViewPropertyScripts(znIBrowserViewProperty* property, const char* updateScript,
                                const char* getScript, const char* third) override;
    bool SetViewPropertyType(znIBrowserView* view, znIBrowserViewProperty* property,
                             ZNBROWSER_DATA_TYPE type) override;
    bool CreateViewOperation(znIBrowserView* view, const char* name) override;

    // Free folders, trees and lists.
    bool AddTree(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source) override;
    bool CreateFreeFolder(znIBrowserViewItemFreeFolder* parent, const char* name) override;
    bool GetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder) override;
    bool GetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder) override;
    bool SetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder, bool group) override;
    bool SetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder, bool style) override;
    bool SetFreeFolderShowEmptyContainers(znIBrowserViewItemFreeFolder* folder, bool show) override;
    bool DestroyFreeFolder(znIBrowserViewItemFreeFolder* folder, bool recursive) override;
    bool RemoveTree(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source) override;
    bool SetTreeGroup(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source,
                      bool group, bool second) override;
    bool SetChildTypeShown(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* type,
                           bool shown) override;
    bool CreateTreeToplevel(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source,
                            znIBrowserDataReference* reference) override;
    bool CreateTreeParentChild(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* parent,
                               znIBrowserDataSource* child, znIBrowserDataReference* reference) override;
    bool AddList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source, bool flag) override;
    bool RemoveList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source) override;
    bool SetListCaption(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                        const char* caption) override;
    bool SetListGroup(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source, bool group,
                      bool second) override;
    bool SetListStyle(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                      znIBrowserViewColumn* column, znIBrowserStyle* style, bool use) override;
    bool ExpandList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                    bool recursive) override;
    bool CollapseList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                      bool recursive) override;
    bool ExpandFreeFolder(znIBrowserView* view, znIBrowserViewItemFreeFolder* folder,
                          bool recursive) override;
    bool CollapseFreeFolder(znIBrowserView* view, znIBrowserViewItemFreeFolder* folder,
                            bool recursive) override;
    bool SetFreeFolderShowEmptyFolders(znIBrowserViewItemFreeFolder* folder, bool show,
                                       bool recursive) override;
    bool SetFreeFolderShowCountByImage(znIBrowserViewItemFreeFolder* folder, bool show,
                                       bool recursive) override;
    bool SetFreeFolderShowCountByNumber(znIBrowserViewItemFreeFolder* folder, bool show,
                                        bool recursive) override;
    bool SetFreeFolderBold(znIBrowserViewItemFreeFolder* folder, bool bold) override;
    bool SetFreeFolderItalic(znIBrowserViewItemFreeFolder* folder, bool italic) override;
    bool SetFreeFolderKeepChildrenAsCreated(znIBrowserViewItemFreeFolder* folder, bool keep) override;
    bool SetFreeFolderCreateExpandedItem(znIBrowserViewItemFreeFolder* folder,
                                         znIBrowserDataSourceSimple* source, int depth) override;
    bool SetFreeFolderSortingException(znIBrowserViewItemFreeFolder* folder,
                                       znIBrowserDataSourceSimple* source, int value) override;

    // GUI maps.
    znIBrowserGuiMapList* GetGuiMapList() override;
    bool DeleteGuiMap(const char* name) override;
    bool CreateGuiMapRecord(znIBrowserGuiMap* map, bool key, const char* value) override;
    bool CreateGuiMapRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) override;
    bool CreateGuiMapRecord(znIBrowserGuiMap* map, double key, const char* value) override;
    bool CreateGuiMapRecord(znIBrowserGuiMap* map, int key, const char* value) override;
    bool CreateGuiMapRecord(znIBrowserGuiMap* map, const char* key, const char* value) override;
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, bool key, const char* value) override;
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) override;
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, double key, const char* value) override;
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, int key, const char* value) override;
    bool CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, const char* key, const char* value) override;
    bool DeleteGuiMapRecord(znIBrowserGuiMap* map, const char* key) override;
    bool DeleteGuiMapRecord(znIBrowserGuiMap* map, bool key) override;
    bool DeleteGuiMapRecord(znIBrowserGuiMap* map, unsigned int key) override;
    bool DeleteGuiMapRecord(znIBrowserGuiMap* map, double key) override;
    bool DeleteGuiMapRecord(znIBrowserGuiMap* map, int key) override;
    bool CreateGuiMap(const char* name) override;
    bool SetGuiMapType(znIBrowserGuiMap* map, ZNBROWSER_GUIMAP_TYPE type) override;

    // Popup menus.
    znIBrowserPopupMenuList* GetPopupMenuList() override;
    bool CreatePopupMenu(const char* name) override;
    bool DeletePopupMenu(znIBrowserPopupMenu* menu) override;

    // Data sources of a view.
    bool ConnectDataSourceSimple(znIBrowserView* view, const char* name) override;
    bool ConnectDataSourceHierarchical(znIBrowserView* view, const char* name) override;
    bool DisconnectDataSource(znIBrowserView* view, const char* name) override;
    bool GetSharedDataSourcesHierarchical(znIBrowserView* view, std::vector<Share>& shares) override;
    bool ShareDataSourceHierarchical(znIBrowserView* view, znIBrowserView* other,
                                     znIBrowserDataSourceHierarchical* source) override;
    bool UpdateTreeDataSource(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source) override;
    bool PerformDataOperation(znIBrowserDataOperation* operation) override;

protected:
    /// Closes the menu where it is open.
    virtual void OnPopupMenuDeleted(const PopupMenu& menu) = 0;

private:
    bool SetFolderFlag(znIBrowserViewItemFreeFolder* folder, bool FolderSettings::*setting, bool value,
                       bool recursive = false);
    bool AddColumn(znIBrowserView* view, const char* name, ColumnKind kind, const char* icon);
    bool ConnectProperty(znIBrowserViewProperty* property, znIBrowserDataSource* source,
                         znIBrowserDataProperty* dataProperty);
    bool ConnectByName(znIBrowserView* view, const char* name, bool hierarchical);
    FolderList* ListOf(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source);
    bool ExpandListItems(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                         bool expand, bool recursive);

    HostServices& services_;
    ViewList views_;
    std::unique_ptr<GuiMapList> guiMaps_;
    PopupMenuList popupMenus_;
    bool flush_ = true;
};

} // namespace znhost

#endif
