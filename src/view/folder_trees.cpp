// The tree of the current free folder.
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataSource.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/view_messages.h"

#include <algorithm>
#include <string>

using namespace znlayer;
using namespace view_messages;

namespace {

using Trees = std::vector<znIBrowserDataSourceHierarchical*>;

Trees TreesOf(znIBrowserViewItemFreeFolder& folder) {
    Trees trees;
    folder.GetTrees(trees);
    return trees;
}

znIBrowserDataSourceHierarchical* FindTree(znIBrowserView* view, const char* name) {
    return FindNamed(view, &znIBrowserView::FindDataSourceHierarchical, name);
}

znIBrowserDataSource* FindDataSource(znIBrowserDataCtrl* control, const char* name) {
    return FindNamed(control, &znIBrowserDataCtrl::FindDataSource, name);
}

znIBrowserDataReference* FindDataReference(znIBrowserDataCtrl* control, const char* name) {
    return FindNamed(control, &znIBrowserDataCtrl::FindDataReference, name);
}

/// Whether a folder has a tree of any kind: of a hierarchical data source, or built from references.
bool HasTree(znIBrowserViewItemFreeFolder& folder) {
    std::vector<znString> names;
    return !TreesOf(folder).empty() || (folder.GetTreeToplevelNames(names) && !names.empty()) ||
           (folder.GetTreeParentChildNames(names) && !names.empty());
}

/// Whether a data control still holds a tree that it held under that name.
bool Holds(znIBrowserDataCtrl* control, const znIBrowserDataSourceHierarchical* tree, const znString& name) {
    return control && control->FindDataSourceHierarchical(name.c_str()) == tree;
}

} // namespace

bool znBrowserManagerTcl::CreateTree(const char* name) {
    const Operation operation(*this);
    znIBrowserViewItemFreeFolder* const folder = current_.freeFolder;
    if (!folder) return operation.Fail(noFolderName);
    if (!current_.dataSourceHierarchical && !current_.dataSourceSimple)
        return operation.Fail(noDataSourceName);
    const Trees trees = TreesOf(*folder);
    if (!trees.empty()) {
        return operation.Fail({"Only one tree per folder is allowed. Tree of: ", trees.front()->GetName(),
                               "(s) already configured in the folder: ", folder->GetName()});
    }
    znIBrowserDataSourceHierarchical* const tree = FindTree(current_.view, name);
    if (tree) return operation.Ask(&znIBrowser::AddTree, folder, tree);
    return operation.Fail(
        {"Cannot find the datasourcehierarcical :", "DatasourceHierarcical of: ", name,
         "not configured in the view: ", current_.view ? current_.view->GetName().c_str() : nullptr});
}

bool znBrowserManagerTcl::DeleteTree(const char* name) {
    const Operation operation(*this);
    znIBrowserViewItemFreeFolder* const folder = current_.freeFolder;
    if (!folder) return operation.Fail(noFolderName);
    znIBrowserDataSourceHierarchical* const tree = FindTree(current_.view, name);
    if (!tree) return operation.Fail("Cannot find the p_dsh :");
    const Trees trees = TreesOf(*folder);
    if (std::find(trees.begin(), trees.end(), tree) == trees.end())
        return operation.Fail({"Tree of: ", name, "(s) not found in the folder: ", folder->GetName()});
    znIBrowserDataCtrl* const control = tree->GetDataCtrl();
    const znString treeName = tree->GetName();
    if (!operation.Ask(&znIBrowser::RemoveTree, folder, tree)) return false;
    // The data source outlives its tree, unless the host thinks otherwise.
    if (current_.dataSourceHierarchical == tree && !Holds(control, tree, treeName))
        current_.dataSourceHierarchical = nullptr;
    return true;
}

bool znBrowserManagerTcl::GetTreeNames(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    return NameList(EntryForm::Braced)
        .AddNames(TreesOf(*current_.freeFolder), NullName::IsLeftOut)
        .Give(*this, out);
}

bool znBrowserManagerTcl::SetCurrentTreeGroup(bool group, bool second) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderHandle);
    if (!current_.dataSourceHierarchical) return operation.Fail(noListHandle);
    return operation.Ask(&znIBrowser::SetTreeGroup, current_.freeFolder, current_.dataSourceHierarchical,
                         group, second);
}

bool znBrowserManagerTcl::SetShowChildType(const char* type, bool show) {
    const Operation operation(*this);
    znIBrowserViewItemFreeFolder* const folder = current_.freeFolder;
    if (!folder) return operation.Fail(noFolderName);
    if (!type && !current_.dataSourceSimple) return operation.Fail(noDataItemType);
    znIBrowserDataSource* const source =
        type ? FindDataSource(current_.dataCtrl, type) : current_.dataSourceSimple->GetDataSource();
    if (!source) {
        const char* const name = type ? type : current_.dataSourceSimple->GetName();
        return operation.Fail((std::string("Cannot find the dataitemtype : ") + (name ? name : "")).c_str());
    }
    if (!HasTree(*folder)) return operation.Fail(noDataSourceName);
    return operation.Ask(&znIBrowser::SetChildTypeShown, folder, source, show);
}

bool znBrowserManagerTcl::GetShownChildrenTypes(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    if (!HasTree(*current_.freeFolder)) return operation.Fail(noDataSourceName);
    std::vector<znString> names;
    if (!current_.freeFolder->GetShownChildTypes(names)) return operation.Fail(noDataItemType);
    return NameList(EntryForm::Braced).AddTexts(names).Give(*this, out);
}

bool znBrowserManagerTcl::CreateFolderTreeToplevel(const char* dataSource, const char* dataReference) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    znIBrowserDataSource* const source = FindDataSource(current_.dataCtrl, dataSource);
    if (!source) return operation.Fail({"Cannot find data source : ", dataSource});
    znIBrowserDataReference* const reference = FindDataReference(current_.dataCtrl, dataReference);
    if (!reference) return operation.Fail({"Cannot find data reference : ", dataReference});
    znIBrowser* const browser = BrowserOf(*this);
    const bool created = browser && browser->CreateTreeToplevel(current_.freeFolder, source, reference);
    return created || operation.Fail("Cannot create tree toplevel");
}

bool znBrowserManagerTcl::CreateFolderTreeParentChild(const char* parent, const char* child,
                                                      const char* dataReference) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail("Cannot find current freefolder");
    znIBrowserDataSource* const parentSource = FindDataSource(current_.dataCtrl, parent);
    if (!parentSource) return operation.Fail("Cannot find data source parent");
    znIBrowserDataSource* const childSource = FindDataSource(current_.dataCtrl, child);
    if (!childSource) return operation.Fail("Cannot find data source child");
    znIBrowserDataReference* const reference = FindDataReference(current_.dataCtrl, dataReference);
    if (!reference) return operation.Fail("Cannot find data reference");
    return operation.Ask(&znIBrowser::CreateTreeParentChild, current_.freeFolder, parentSource, childSource,
                         reference);
}

bool znBrowserManagerTcl::GetFolderTreeToplevelNames(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    std::vector<znString> names;
    if (!current_.freeFolder->GetTreeToplevelNames(names)) return operation.FailWithHostError();
    return NameList(EntryForm::Braced).AddTexts(names).Give(*this, out);
}

bool znBrowserManagerTcl::GetFolderTreeParentChildNames(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    std::vector<znString> names;
    if (!current_.freeFolder->GetTreeParentChildNames(names)) return operation.FailWithHostError();
    return NameList(EntryForm::Braced).AddTexts(names).Give(*this, out);
}

// The host's answer is passed on as it is, without its text.
bool znBrowserManagerTcl::UpdateTreeDataSource(const znString& name) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail("Cannot find current freefolder");
    znIBrowserDataSource* const source = FindDataSource(current_.dataCtrl, name.GetText());
    if (!source) return operation.Fail("Cannot find data source parent");
    znIBrowser* const browser = BrowserOf(*this);
    return browser && browser->UpdateTreeDataSource(current_.freeFolder, source);
}

bool znBrowserManagerTcl::SetDropItemDataSourceHierarchical(const char* name) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    znIBrowserDataSourceHierarchical* const source = FindDataSourceHierarchical(name);
    if (!source) return operation.Fail({"Cannot find datasource hierarchical name : ", name});
    current_.freeFolder->SetDropItem(source);
    return true;
}
