// Free folders: made, chosen, deleted and listed.
#include "data/item_values.h"
#include "frame/messages.h"
#include "frame/name_list.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/ask_browser.h"
#include "view/view_messages.h"

#include <algorithm>
#include <cstring>

using namespace view_messages;

namespace {

bool IsListed(znIBrowserViewItemFreeFolder& folder, const znIBrowserDataSourceSimple* source) {
    std::vector<znIBrowserDataSourceSimple*> lists;
    return folder.GetLists(lists) && std::find(lists.begin(), lists.end(), source) != lists.end();
}

/// A folder below `start`, or the root folder itself: it has no parent in which it could be found by name.
znIBrowserViewItemFreeFolder* FindFolder(znIBrowserViewItemFreeFolder& start,
                                         znIBrowserViewItemFreeFolder* root, const char* name) {
    if (!name) return nullptr;
    if (znIBrowserViewItemFreeFolder* const child = start.FindChildFolder(name)) return child;
    const char* const rootName = root ? root->GetName() : nullptr;
    return rootName && std::strcmp(rootName, name) == 0 ? root : nullptr;
}

} // namespace

// What the host shows anew may run scripts: a folder is touched only while it is still the current one.
bool znBrowserManagerTcl::CreateFreeFolder(const char* name) {
    BeginOperation();
    if (!name) return Fail(nullName);
    znIBrowserViewItemFreeFolder* const parent = current_.freeFolder;
    if (!parent) return Fail(noFolderName);
    znIBrowserViewItemFreeFolder* child = parent->FindChildFolder(name);
    if (!child) {
        if (!AskBrowser(*this, &znIBrowser::CreateFreeFolder, parent, name)) return false;
        child = current_.freeFolder == parent ? parent->FindChildFolder(name) : nullptr;
    }
    if (!child) return true;
    znIBrowser* const browser = GetBrowser();
    if (!browser) return false;
    const bool groupLeafs = browser->GetFreeFolderGroupLeafs(parent);
    const bool style = browser->GetFreeFolderStyle(parent);
    SetCurrentFreeFolder(child);
    if (!HostAnswer(browser->SetFreeFolderGroupLeafs(child, groupLeafs))) return false;
    return current_.freeFolder != child || HostAnswer(browser->SetFreeFolderStyle(child, style));
}

bool znBrowserManagerTcl::DestroyFreeFolder(const char* name, bool recursive) {
    BeginOperation();
    znIBrowserViewItemFreeFolder* const folder = current_.freeFolder;
    if (!folder) return Fail(noFolderName);
    znIBrowserViewItemFreeFolder* const child = name ? folder->FindChildFolder(name) : nullptr;
    if (!child)
        return FailWith({"Cannot find folder: ", name, " in the current folder: ", folder->GetName()});
    const znBrowserCurrentObjects doomed = CurrentsInside(child);
    if (!AskBrowser(*this, &znIBrowser::DestroyFreeFolder, child, recursive)) return false;
    Forget(doomed);
    // The current list may have been one of a deleted folder.
    if (current_.list && current_.freeFolder && !IsListed(*current_.freeFolder, current_.list))
        ResetCurrentList();
    return true;
}

bool znBrowserManagerTcl::SetCurrentFreeFolder(const char* name) {
    BeginOperation();
    if (!current_.view) return Fail(noViewHandle);
    znIBrowserViewItemFreeFolder* const root = current_.view->GetRootFreeFolder();
    znIBrowserViewItemFreeFolder* const start = current_.freeFolder ? current_.freeFolder : root;
    if (!start) return Fail("Cannot get handle to the current free folder");
    znIBrowserViewItemFreeFolder* const folder = FindFolder(*start, root, name);
    if (!folder) return FailWith({"Cannot not find folder : ", name, " in the current folder"});
    SetCurrentFreeFolder(folder);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentFreeFolderName(znString& out) {
    BeginOperation();
    return current_.freeFolder ? GetFreeFolderName(current_.freeFolder, out) : Fail(noFolderName);
}

bool znBrowserManagerTcl::GetFreeFolderName(znIBrowserViewItemFreeFolder* folder, znString& out) {
    BeginOperation();
    if (!folder) return Fail(messages::nullPointer);
    out = folder->GetName();
    return true;
}

bool znBrowserManagerTcl::GetChildrenFreeFolderNames(znString& out) {
    BeginOperation();
    if (!current_.freeFolder) return Fail(noFolderName);
    std::vector<znIBrowserViewItemFreeFolder*> folders;
    if (!current_.freeFolder->GetChildFolders(folders))
        return Fail("Cannot get names of the current free folder children");
    return NameList(EntryForm::Braced).AddNames(folders, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::GetChildrenFreeFolderConfiguredTypes(znString& out) {
    BeginOperation();
    if (!current_.freeFolder) return Fail(noFolderName);
    std::vector<znString> names;
    if (!current_.freeFolder->GetConfiguredTypes(names)) return FailWithHostError();
    return NameList(EntryForm::Braced).AddTexts(names).Give(*this, out);
}

bool znBrowserManagerTcl::GetFreeFolderSelected(znString& out) {
    BeginOperation();
    if (!current_.freeFolder) return Fail(noFolderName);
    std::vector<znString> names;
    if (!current_.freeFolder->GetSelectedFolderNames(names)) return FailWithHostError();
    return NameList(EntryForm::Braced).AddTexts(names).Give(*this, out);
}

bool znBrowserManagerTcl::GetFreeFolderSelection(znString& out) {
    BeginOperation();
    if (!current_.freeFolder) return Fail(noFolderName);
    if (!current_.viewProperty) return Fail(noPropertyName);
    znBrowserDataItems items;
    if (!current_.freeFolder->GetSelection(items)) return FailWithHostError();
    return GiveCurrentPropertyValues(*this, items, out);
}
