// The lists of the current free folder.
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/ask_browser.h"
#include "view/view_messages.h"

#include <cstring>

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
    if (!folder) manager.SetError(noFolderName);
    if (folder && !list)
        Refuse(manager, {"List of: ", name, "(s) is not configured in the folder: ", folder->GetName()});
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
    manager.SetOk();
    manager.ResetBuff();
    znIBrowserViewItemFreeFolder* const folder = manager.GetCurrentFreeFolderPtr();
    znIBrowserDataSourceSimple* const list = manager.GetCurrentListPtr();
    if (folder && list) return AskBrowser(manager, request, folder, list, recursive);
    manager.SetError(folder ? noListHandle : noFolderHandle);
    return false;
}

} // namespace

bool znBrowserManagerTcl::CreateList(const char* name, bool flag) {
    BeginOperation();
    znIBrowserViewItemFreeFolder* const folder = current_.freeFolder;
    if (!folder) return Fail(noFolderName);
    if (!current_.dataCtrl) return Fail(messages::noCurrentDataCtrl);
    znIBrowserDataSourceSimple* const source = name ? current_.dataCtrl->FindDataSourceSimple(name) : nullptr;
    if (!source) {
        return FailWith(
            {"Datasourcesimple ", name, " is not found in the datacontrol: ", current_.dataCtrl->GetName()});
    }
    if (FindList(*folder, name))
        return FailWith({"List of: ", name, "(s) already configured in the folder: ", folder->GetName()});
    return AskBrowser(*this, &znIBrowser::AddList, folder, source->GetDataSource(), flag);
}

bool znBrowserManagerTcl::ListAdd(const char* name, bool flag) {
    BeginOperation();
    if (!current_.freeFolder) return Fail(noFolderName);
    if (!current_.dataCtrl) return Fail(messages::noCurrentDataCtrl);
    znIBrowserDataSource* const source = name ? current_.dataCtrl->FindDataSource(name) : nullptr;
    if (!source) {
        return FailWith(
            {"Datasource ", name, " is not found in the datacontrol: ", current_.dataCtrl->GetName()});
    }
    return AskBrowser(*this, &znIBrowser::AddList, current_.freeFolder, source, flag);
}

bool znBrowserManagerTcl::DeleteList(const char* name) {
    BeginOperation();
    znIBrowserDataSourceSimple* const list = RequireList(*this, name);
    if (!list || !AskBrowser(*this, &znIBrowser::RemoveList, current_.freeFolder, list)) return false;
    if (current_.list == list) ResetCurrentList();
    return true;
}

bool znBrowserManagerTcl::SetCurrentList(const char* name) {
    BeginOperation();
    znIBrowserDataSourceSimple* const list = RequireList(*this, name);
    if (list) SetCurrentList(list);
    return list != nullptr;
}

bool znBrowserManagerTcl::GetListNames(znString& out, bool recursive) {
    BeginOperation();
    if (!current_.freeFolder) return Fail(noFolderName);
    NameList names(EntryForm::Braced);
    if (AddListNames(current_.freeFolder, recursive, names)) return names.Give(*this, out);
    return FailWith({"Cannot get list of lists for free folder : ", current_.freeFolder->GetName()});
}

bool znBrowserManagerTcl::SetCurrentListCaption(const char* caption) {
    BeginOperation();
    if (!current_.freeFolder) return Fail(noFolderHandle);
    if (!current_.list) return Fail(noListHandle);
    return AskBrowser(*this, &znIBrowser::SetListCaption, current_.freeFolder, current_.list, caption);
}

bool znBrowserManagerTcl::SetCurrentListGroup(bool group, bool second) {
    BeginOperation();
    if (!current_.freeFolder) return Fail(noFolderHandle);
    if (!current_.list) return Fail(noListHandle);
    return AskBrowser(*this, &znIBrowser::SetListGroup, current_.freeFolder, current_.list, group, second);
}

bool znBrowserManagerTcl::SetCurrentListStyle(bool use) {
    BeginOperation();
    if (!current_.freeFolder) return Fail(noFolderHandle);
    if (!current_.list) return Fail(noListHandle);
    if (!current_.style) return Fail(noStyleHandle);
    if (!current_.column) return Fail(noColumnHandle);
    return AskBrowser(*this, &znIBrowser::SetListStyle, current_.freeFolder, current_.list, current_.column,
                      current_.style, use);
}

bool znBrowserManagerTcl::ExpandFreeFolderList(bool recursive) {
    return ShowContent(*this, &znIBrowser::ExpandList, recursive);
}

bool znBrowserManagerTcl::CollapseFreeFolderList(bool recursive) {
    return ShowContent(*this, &znIBrowser::CollapseList, recursive);
}
