// A free folder of a view, with the trees and lists in it.
#ifndef ZN_HOST_FREE_FOLDER_H
#define ZN_HOST_FREE_FOLDER_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "model/popup_place.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

class znIBrowserDataReference;

namespace znhost {

class Column;
class Style;
class View;

/// How a folder is shown.
struct FolderSettings {
    bool groupLeafs = false; ///< Items without children stand together, by data source.
    bool style = false;      ///< The folder's own style is used for its items too.
    bool showEmptyContainers = true;
    bool showEmptyFolders = true;
    bool countByImage = false;
    bool countByNumber = false;
    bool bold = false;
    bool italic = false;
    bool keepChildrenAsCreated = false; ///< The child folders are not sorted with the rows.
};

/// A style for one column. Both may have been deleted since.
struct ColumnStyle {
    std::weak_ptr<Column> column;
    std::weak_ptr<Style> style;
};

/// The hierarchical data source that a folder shows as a tree.
struct FolderTree {
    znIBrowserDataSourceHierarchical* source = nullptr;
    bool group = false;
    bool second = false;
    /// Child types that are not shown.
    std::vector<znIBrowserDataSource*> hidden;
};

/// A simple data source that a folder shows as a list.
struct FolderList {
    znIBrowserDataSourceSimple* source = nullptr;
    bool flag = false;
    bool group = false;
    bool second = false;
    bool expanded = false;
    /// "" for the data source's own caption.
    std::string caption;
    std::vector<ColumnStyle> styles;
};

/// One level of a tree that is tied together by data references, without a hierarchical data source: the top
/// items (no parent), or the children of one data source in another.
struct FolderTreeLink {
    znIBrowserDataSource* parent = nullptr;
    znIBrowserDataSource* child = nullptr;
    znIBrowserDataReference* reference = nullptr;
};

class FreeFolder final : public znIBrowserViewItemFreeFolder,
                         public HostObject,
                         public std::enable_shared_from_this<FreeFolder> {
public:
    /// `parent` is null for the root folder.
    FreeFolder(View& view, FreeFolder* parent, std::string name);
    ~FreeFolder() override;

    const std::string& Name() const { return name_; }
    View& Owner() const { return view_; }
    FreeFolder* Parent() const { return parent_; }

    const NamedList<FreeFolder>& Children() const { return children_; }
    FreeFolder& AddChild(const std::string& name);
    /// Deletes a child folder with everything below it.
    void RemoveChild(FreeFolder& child);
    /// This folder and those below it: a parent before its children, the children in order.
    std::vector<FreeFolder*> WithBelow();

    const FolderSettings& Settings() const { return settings_; }
    void Set(bool FolderSettings::*setting, bool value, bool recursive = false);
    bool IsExpanded() const { return expanded_; }
    bool IsSelected() const { return selected_; }
    /// Through `View::SelectFolder` only.
    void MarkSelected(bool selected) { selected_ = selected; }
    /// Expands or collapses the folder, or one of its lists, now and in windows still to be opened.
    void Expand(bool expanded, bool recursive);
    void Expand(FolderList& list, bool expanded, bool recursive);

    // The tree and the lists.
    /// `source` null: no tree.
    const FolderTree& Tree() const { return tree_; }
    void SetTree(znIBrowserDataSourceHierarchical* source);
    void SetTreeGroup(bool group, bool second);
    bool ShowsChildType(const znIBrowserDataSource* type) const;
    void ShowChildType(znIBrowserDataSource& type, bool shown);
    const std::vector<FolderTreeLink>& TreeLinks() const { return links_; }
    /// False when the folder has that link.
    bool AddTreeLink(const FolderTreeLink& link);
    /// Exactly these, each once.
    void SetTreeLinks(std::vector<FolderTreeLink> links);
    const std::vector<FolderList>& Lists() const { return lists_; }
    FolderList* FindList(const znIBrowserDataSourceSimple* source);
    void AddList(znIBrowserDataSourceSimple& source, bool flag);
    void RemoveList(const FolderList& list);
    /// Exactly these, each of another source.
    void SetLists(std::vector<FolderList> lists);
    znIBrowserDataSourceHierarchical* DropSource() const { return dropSource_; }
    /// The simple data sources shown in the folder itself: its lists', and its tree's.
    std::vector<znIBrowserDataSourceSimple*> Sources() const;

    /// How deep the items of a source are expanded when they are first shown; and its sorting exception.
    int CreateExpandedDepth(const znIBrowserDataSourceSimple* source) const;
    void SetCreateExpandedDepth(znIBrowserDataSourceSimple& source, int depth);
    int SortingException(const znIBrowserDataSourceSimple* source) const;
    void SetSortingException(znIBrowserDataSourceSimple& source, int value);

    /// The folder's own popup menu; null for none.
    PopupMenu* Popup() const { return popupMenu_.Get(); }

    // Styles.
    /// The style of the folder itself in that column: its own, else the column's.
    Style* StyleIn(const Column& column) const;
    /// The style of the items of a source in that column: the list's, the folder's, or the column's.
    Style* ItemStyleIn(const Column& column, const znIBrowserDataSourceSimple* source) const;
    /// Null gives the list's items the column's own style again.
    void SetListStyle(FolderList& list, Column& column, Style* style);

    /// Lets go of what is about to be deleted.
    void Forget(znIBrowserDataSource& source);
    void Forget(const znIBrowserDataReference& reference);

    bool SetStyle(znIBrowserStyle* style) override;
    const char* GetName() const override;
    znIBrowserViewItemFreeFolder* FindChildFolder(const char* name) override;
    void GetTrees(std::vector<znIBrowserDataSourceHierarchical*>& trees) override;
    bool GetLists(std::vector<znIBrowserDataSourceSimple*>& lists) override;
    bool GetChildFolders(std::vector<znIBrowserViewItemFreeFolder*>& folders) override;
    znIBrowserViewItemFreeFolder* GetParent() override;
    znIBrowserView* GetView() override;
    bool SetDropItem(znIBrowserDataSourceHierarchical* source) override;
    bool GetShowEmptyContainers() const override;
    bool GetShowEmptyFolders() const override;
    bool GetKeepChildrenAsCreated() const override;
    bool GetConfiguredTypes(std::vector<znString>& names) override;
    bool GetShownChildTypes(std::vector<znString>& names) override;
    bool GetTreeToplevelNames(std::vector<znString>& names) override;
    bool GetTreeParentChildNames(std::vector<znString>& names) override;
    bool GetSelectedFolderNames(std::vector<znString>& names) override;
    bool GetSelection(znBrowserDataItems& items) override;
    znIBrowserDataSource* FindDataSource(const char* name) override;
    znIBrowserDataSource* GetCurrentDataSource() override;
    bool SetCurrentDataSource(znIBrowserDataSource* source) override;
    bool SetDataSourceStyle(znIBrowserDataSource* source, znIBrowserViewColumn* column, bool style) override;
    znIBrowserPopupMenu* GetPopupMenu() override;
    bool SetPopupMenu(const char* name) override;

private:
    struct SourceStyle {
        znIBrowserDataSource* source;
        std::weak_ptr<Column> column;
        bool ownStyle;
    };

    void Changed(unsigned what) const;
    std::vector<znIBrowserDataSource*> DataSources() const;
    bool UsesOwnStyle(const Column& column, const znIBrowserDataSourceSimple* source) const;

    View& view_;
    FreeFolder* const parent_;
    const std::string name_;
    NamedList<FreeFolder> children_;
    FolderSettings settings_;
    bool expanded_ = false;
    bool selected_ = false;
    FolderTree tree_;
    std::vector<FolderTreeLink> links_;
    std::vector<FolderList> lists_;
    znIBrowserDataSourceHierarchical* dropSource_ = nullptr;
    znIBrowserDataSource* currentSource_ = nullptr;
    std::map<const znIBrowserDataSourceSimple*, int> createExpanded_;
    std::map<const znIBrowserDataSourceSimple*, int> sortingExceptions_;
    std::vector<ColumnStyle> styles_;
    std::vector<SourceStyle> sourceStyles_;
    PopupPlace popupMenu_;
};

} // namespace znhost

#endif
