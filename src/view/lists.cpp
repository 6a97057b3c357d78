// The lists of the current free folder.
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/view_messages.h"
#include "znBrowserMessages.h"

#include <cstring>

using namespace znlayer;
using namespace view_messages;

namespace {

using Lists = std::vector<znIBrowserDataSourceSimple*>;
using Folders = std::vector<znIBrowserViewItemFreeFolder*>;

/// The list of that name in the folder, or null.
znIBrowserDataSourceSimple* FindList(znIBrowserViewItemFreeFolder& folder, const char* name) {
    Lists lists;
    if (!name || !folder.GetLists(lists)) return nullptr;
    for (znIBrowserDataSourceSimple* const list : lists) {
        const char* const listName = list ? list->GetName() : nullptr;
        if (listName && std::strcmp(listName, name) == 0) return list;
    }
    return nullptr;
}

/// The list of that name in the current folder; null when there is none, with the error set.
znIBrowserDataSourceSimple* RequireList(znBrowserManagerTcl& manager, const char* name) {
    znIBrowserViewItemFreeFolder* const folder = manager.GetCurrentFreeFolderPtr();
    znIBrowserDataSourceSimple* const list = folder ? FindList(*folder, name) : nullptr;
    const Operation operation(manager, Operation::State::Kept);
    if (!folder) operation.Fail(noFolderName);
    if (folder && !list)
        operation.Fail({"List of: ", name, "(s) is not configured in the folder: ", folder->GetName()});
    return list;
}

/// Adds the names of the lists in the folder, and with `recursive` of those below it, top to bottom.
bool AddListNames(znIBrowserViewItemFreeFolder* top, bool recursive, NameList& names) {
    Folders waiting{top};
    Lists lists;
    Folders children;
    while (!waiting.empty()) {
        znIBrowserViewItemFreeFolder* const folder = waiting.back();
        waiting.pop_back();
        if (!folder) continue;
        if (!folder->GetLists(lists)) return false;
        names.AddNames(lists, NullName::IsLeftOut);
        if (recursive && folder->GetChildFolders(children))
            waiting.insert(waiting.end(), children.rbegin(), children.rend());
    }
    return true;
}

/// Expands or collapses the current list.
bool ShowContent(znBrowserManagerTcl& manager,
                 bool (znIBrowser::*request)(znIBrowserViewItemFreeFolder*, znIBrowserDataSourceSimple*,
                                             bool),
                 bool recursive) {
    const Operation operation(manager);
    znIBrowserViewItemFreeFolder* const folder = manager.GetCurrentFreeFolderPtr();
    znIBrowserDataSourceSimple* const list = manager.GetCurrentListPtr();
    if (folder && list) return operation.Ask(request, folder, list, recursive);
    return operation.Fail(folder ? noListHandle : noFolderHandle);
}

} // namespace

bool znBrowserManagerTcl::CreateList(const char* name, bool flag) {
    const Operation operation(*this);
    znIBrowserViewItemFreeFolder* const folder = current_.freeFolder;
    if (!folder) return operation.Fail(noFolderName);
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    znIBrowserDataSourceSimple* const source =
        FindNamed(current_.dataCtrl, &znIBrowserDataCtrl::FindDataSourceSimple, name);
    if (!source) {
        return operation.Fail(
            {"Datasourcesimple ", name, " is not found in the datacontrol: ", current_.dataCtrl->GetName()});
    }
    if (FindList(*folder, name))
        return operation.Fail(
            {"List of: ", name, "(s) already configured in the folder: ", folder->GetName()});
    return operation.Ask(&znIBrowser::AddList, folder, source->GetDataSource(), flag);
}

bool znBrowserManagerTcl::ListAdd(const char* name, bool flag) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    if (!current_.dataCtrl) return operation.Fail(znBrowserMessages::noCurrentDataCtrl);
    znIBrowserDataSource* const source =
        FindNamed(current_.dataCtrl, &znIBrowserDataCtrl::FindDataSource, name);
    if (!source) {
        return operation.Fail(
            {"Datasource ", name, " is not found in the datacontrol: ", current_.dataCtrl->GetName()});
    }
    return operation.Ask(&znIBrowser::AddList, current_.freeFolder, source, flag);
}

bool znBrowserManagerTcl::DeleteList(const char* name) {
    const Operation operation(*this);
    znIBrowserDataSourceSimple* const list = RequireList(*this, name);
    if (!list || !operation.Ask(&znIBrowser::RemoveList, current_.freeFolder, list)) return false;
    if (current_.list == list) ResetCurrentList();
    return true;
}

bool znBrowserManagerTcl::SetCurrentList(const char* name) {
    const Operation operation(*this);
    znIBrowserDataSourceSimple* const list = RequireList(*this, name);
    if (list) SetCurrentList(list);
    return list != nullptr;
}

bool znBrowserManagerTcl::GetListNames(znString& out, bool recursive) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    NameList names(EntryForm::Braced);
    if (AddListNames(current_.freeFolder, recursive, names)) return names.Give(*this, out);
    return operation.Fail({"Cannot get list of lists for free folder : ", current_.freeFolder->GetName()});
}

bool znBrowserManagerTcl::SetCurrentListCaption(const char* caption) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderHandle);
    if (!current_.list) return operation.Fail(noListHandle);
    return operation.Ask(&znIBrowser::SetListCaption, current_.freeFolder, current_.list, caption);
}

bool znBrowserManagerTcl::SetCurrentListGroup(bool group, bool second) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderHandle);
    if (!current_.list) return operation.Fail(noListHandle);
    return operation.Ask(&znIBrowser::SetListGroup, current_.freeFolder, current_.list, group, second);
}

bool znBrowserManagerTcl::SetCurrentListStyle(bool use) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderHandle);
    if (!current_.list) return operation.Fail(noListHandle);
    if (!current_.style) return operation.Fail(noStyleHandle);
    if (!current_.column) return operation.Fail(noColumnHandle);
    return operation.Ask(&znIBrowser::SetListStyle, current_.freeFolder, current_.list, current_.column,
                         current_.style, use);
}

bool znBrowserManagerTcl::ExpandFreeFolderList(bool recursive) {
    return ShowContent(*this, &znIBrowser::ExpandList, recursive);
}

bool znBrowserManagerTcl::CollapseFreeFolderList(bool recursive) {
    return ShowContent(*this, &znIBrowser::CollapseList, recursive);
}
