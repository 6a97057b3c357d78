// Free folders: made, chosen, deleted and listed.
#include "data/item_values.h"
#include "frame/current_lifetimes.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/view_messages.h"
#include "znBrowserMessages.h"

#include <algorithm>
#include <cstring>

using namespace znlayer;
using namespace view_messages;

namespace {

using Folders = std::vector<znIBrowserViewItemFreeFolder*>;

bool IsListed(znIBrowserViewItemFreeFolder& folder, const znIBrowserDataSourceSimple* source) {
    std::vector<znIBrowserDataSourceSimple*> lists;
    return folder.GetLists(lists) && std::find(lists.begin(), lists.end(), source) != lists.end();
}

/// Whether a folder, or one below it, lists a data source.
bool IsListedWithin(znIBrowserViewItemFreeFolder* top, const znIBrowserDataSourceSimple* source) {
    Folders waiting{top};
    Folders children;
    while (!waiting.empty()) {
        znIBrowserViewItemFreeFolder* const folder = waiting.back();
        waiting.pop_back();
        if (!folder) continue;
        if (IsListed(*folder, source)) return true;
        if (folder->GetChildFolders(children))
            waiting.insert(waiting.end(), children.begin(), children.end());
    }
    return false;
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

// Each change lets the host redraw, which may run scripts: a folder is used only while it is still the
// current one.
bool znBrowserManagerTcl::CreateFreeFolder(const char* name) {
    const Operation operation(*this);
    if (!name) return operation.Fail(nullName);
    znIBrowserViewItemFreeFolder* const parent = current_.freeFolder;
    if (!parent) return operation.Fail(noFolderName);
    znIBrowserViewItemFreeFolder* child = parent->FindChildFolder(name);
    if (!child) {
        if (!operation.Ask(&znIBrowser::CreateFreeFolder, parent, name)) return false;
        child = current_.freeFolder == parent ? parent->FindChildFolder(name) : nullptr;
    }
    if (!child) return true;
    znIBrowser* const browser = BrowserOf(*this);
    if (!browser) return false;
    const bool groupLeafs = browser->GetFreeFolderGroupLeafs(parent);
    const bool style = browser->GetFreeFolderStyle(parent);
    SetCurrentFreeFolder(child);
    const bool grouped = operation.HostAnswer(browser->SetFreeFolderGroupLeafs(child, groupLeafs));
    if (current_.freeFolder != child || browser->SetFreeFolderStyle(child, style)) return grouped;
    // The text of the first refusal stays.
    return grouped && operation.FailWithHostError();
}

bool znBrowserManagerTcl::DestroyFreeFolder(const char* name, bool recursive) {
    const Operation operation(*this);
    znIBrowserViewItemFreeFolder* const folder = current_.freeFolder;
    if (!folder) return operation.Fail(noFolderName);
    znIBrowserViewItemFreeFolder* const child =
        FindNamed(folder, &znIBrowserViewItemFreeFolder::FindChildFolder, name);
    if (!child)
        return operation.Fail({"Cannot find folder: ", name, " in the current folder: ", folder->GetName()});
    znBrowserCurrentObjects doomed = CurrentsInside(*this, child);
    // The current list goes with the folder that lists it, unless the current folder lists it as well.
    if (current_.list && IsListedWithin(child, current_.list) && !IsListed(*folder, current_.list))
        doomed.list = current_.list;
    const auto deletion = [&] { return operation.Ask(&znIBrowser::DestroyFreeFolder, child, recursive); };
    return DeleteAndForget(*this, doomed, deletion);
}

bool znBrowserManagerTcl::SetCurrentFreeFolder(const char* name) {
    const Operation operation(*this);
    if (!current_.view) return operation.Fail(noViewHandle);
    znIBrowserViewItemFreeFolder* const root = current_.view->GetRootFreeFolder();
    znIBrowserViewItemFreeFolder* const start = current_.freeFolder ? current_.freeFolder : root;
    if (!start) return operation.Fail("Cannot get handle to the current free folder");
    znIBrowserViewItemFreeFolder* const folder = FindFolder(*start, root, name);
    if (!folder) return operation.Fail({"Cannot not find folder : ", name, " in the current folder"});
    SetCurrentFreeFolder(folder);
    return GetState();
}

bool znBrowserManagerTcl::GetCurrentFreeFolderName(znString& out) {
    const Operation operation(*this);
    return current_.freeFolder ? GetFreeFolderName(current_.freeFolder, out) : operation.Fail(noFolderName);
}

bool znBrowserManagerTcl::GetFreeFolderName(znIBrowserViewItemFreeFolder* folder, znString& out) {
    const Operation operation(*this);
    if (!folder) return operation.Fail(znBrowserMessages::nullPointer);
    out = folder->GetName();
    return true;
}

bool znBrowserManagerTcl::GetChildrenFreeFolderNames(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    Folders folders;
    if (!current_.freeFolder->GetChildFolders(folders))
        return operation.Fail("Cannot get names of the current free folder children");
    return NameList(EntryForm::Braced).AddNames(folders, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::GetChildrenFreeFolderConfiguredTypes(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    std::vector<znString> names;
    if (!current_.freeFolder->GetConfiguredTypes(names)) return operation.FailWithHostError();
    return NameList(EntryForm::Braced).AddTexts(names).Give(*this, out);
}

bool znBrowserManagerTcl::GetFreeFolderSelected(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    std::vector<znString> names;
    if (!current_.freeFolder->GetSelectedFolderNames(names)) return operation.FailWithHostError();
    return NameList(EntryForm::Braced).AddTexts(names).Give(*this, out);
}

bool znBrowserManagerTcl::GetFreeFolderSelection(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    if (!current_.viewProperty) return operation.Fail(noPropertyName);
    znBrowserDataItems items;
    if (!current_.freeFolder->GetSelection(items)) return operation.FailWithHostError();
    ItemProperty property(*this);
    return GiveItemValues(*this, items, {&property}, out);
}
