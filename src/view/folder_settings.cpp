// The settings of the current free folder.
#include "frame/operation.h"
#include "host/znIBrowserDataCtrl.h"
#include "host/znIBrowserView.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/view_messages.h"

using namespace znlayer;
using namespace view_messages;

namespace {

using Folder = znIBrowserViewItemFreeFolder;

/// Asks the browser object to change the current folder; `missing` is the message when there is none.
template <class... Parameters, class... Values>
bool ChangeFolder(znBrowserManagerTcl& manager, const char* missing,
                  bool (znIBrowser::*request)(Folder*, Parameters...), Values... values) {
    const Operation operation(manager);
    Folder* const folder = manager.GetCurrentFreeFolderPtr();
    return folder ? operation.Ask(request, folder, values...) : operation.Fail(missing);
}

/// As `ChangeFolder`, for what a folder does with the items of one simple data source.
bool ChangeItemSetting(znBrowserManagerTcl& manager,
                       bool (znIBrowser::*request)(Folder*, znIBrowserDataSourceSimple*, int),
                       const char* dataSource, int value) {
    znIBrowserDataSourceSimple* const source = manager.FindDataSourceSimple(dataSource);
    if (source || !manager.GetCurrentFreeFolderPtr())
        return ChangeFolder(manager, "Cannot get handle to current folder", request, source, value);
    return Operation(manager, Operation::State::Kept).Fail("Cannot find data source simple");
}

/// Expands or collapses the current folder in its view.
bool ShowContent(znBrowserManagerTcl& manager, bool (znIBrowser::*request)(znIBrowserView*, Folder*, bool),
                 bool recursive) {
    const Operation operation(manager);
    Folder* const folder = manager.GetCurrentFreeFolderPtr();
    znIBrowserView* const view = manager.GetCurrentViewPtr();
    if (folder && view) return operation.Ask(request, view, folder, recursive);
    return operation.Fail(folder ? noViewName : noFolderName);
}

} // namespace

bool znBrowserManagerTcl::ExpandFreeFolder(bool recursive) {
    return ShowContent(*this, &znIBrowser::ExpandFreeFolder, recursive);
}

bool znBrowserManagerTcl::CollapseFreeFolder(bool recursive) {
    return ShowContent(*this, &znIBrowser::CollapseFreeFolder, recursive);
}

bool znBrowserManagerTcl::SetFreeFolderGroupLeafs(bool group) {
    return ChangeFolder(*this, noFolderName, &znIBrowser::SetFreeFolderGroupLeafs, group);
}

bool znBrowserManagerTcl::GetFreeFolderGroupLeafs(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    znIBrowser* const browser = BrowserOf(*this);
    return browser && operation.GiveBool(browser->GetFreeFolderGroupLeafs(current_.freeFolder), out);
}

bool znBrowserManagerTcl::SetFreeFolderStyle(bool style) {
    return ChangeFolder(*this, noFolderName, &znIBrowser::SetFreeFolderStyle, style);
}

bool znBrowserManagerTcl::GetFreeFolderStyle(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    znIBrowser* const browser = BrowserOf(*this);
    return browser && operation.GiveBool(browser->GetFreeFolderStyle(current_.freeFolder), out);
}

bool znBrowserManagerTcl::SetFreeFolderShowEmptyContainers(bool show) {
    return ChangeFolder(*this, noFolderName, &znIBrowser::SetFreeFolderShowEmptyContainers, show);
}

bool znBrowserManagerTcl::GetFreeFolderShowEmptyContainers(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    return operation.GiveBool(current_.freeFolder->GetShowEmptyContainers(), out);
}

bool znBrowserManagerTcl::ShowEmptyFolders(bool show, bool recursive) {
    return ChangeFolder(*this, noFolderHandle, &znIBrowser::SetFreeFolderShowEmptyFolders, show, recursive);
}

bool znBrowserManagerTcl::GetShowEmptyFoldersFlag(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderHandle);
    return operation.GiveBool(current_.freeFolder->GetShowEmptyFolders(), out);
}

bool znBrowserManagerTcl::SetFreeFolderShowCountByImage(bool show, bool recursive) {
    return ChangeFolder(*this, noFolderHandle, &znIBrowser::SetFreeFolderShowCountByImage, show, recursive);
}

bool znBrowserManagerTcl::SetFreeFolderShowCountByNumber(bool show, bool recursive) {
    return ChangeFolder(*this, noFolderHandle, &znIBrowser::SetFreeFolderShowCountByNumber, show, recursive);
}

bool znBrowserManagerTcl::SetBoldFlagToFreeFolder(bool bold) {
    return ChangeFolder(*this, noFolderHandle, &znIBrowser::SetFreeFolderBold, bold);
}

bool znBrowserManagerTcl::SetItalicFlagToFreeFolder(bool italic) {
    return ChangeFolder(*this, noFolderHandle, &znIBrowser::SetFreeFolderItalic, italic);
}

bool znBrowserManagerTcl::SetFreeFolderKeepChildrenFreeFoldersAsCreated(bool keep) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    znIBrowser* const browser = BrowserOf(*this);
    if (browser && browser->SetFreeFolderKeepChildrenAsCreated(current_.freeFolder, keep)) return true;
    return operation.Fail(
        "Cannot change the setting for \"keep children free folders in the order created\" variable");
}

bool znBrowserManagerTcl::GetFreeFolderKeepChildrenFreeFoldersAsCreated(znString& out) {
    const Operation operation(*this);
    if (!current_.freeFolder) return operation.Fail(noFolderName);
    return operation.GiveBool(current_.freeFolder->GetKeepChildrenAsCreated(), out);
}

bool znBrowserManagerTcl::SetFreeFolderCreateExpandedItem(const char* dataSource, int depth) {
    return ChangeItemSetting(*this, &znIBrowser::SetFreeFolderCreateExpandedItem, dataSource, depth);
}

bool znBrowserManagerTcl::GetFreeFolderCreateExpandedItem(znString& out) {
    out.clear();
    return false;
}

bool znBrowserManagerTcl::SetFreeFolderSortingException(const char* dataSource, int value) {
    return ChangeItemSetting(*this, &znIBrowser::SetFreeFolderSortingException, dataSource, value);
}

bool znBrowserManagerTcl::GetFreeFolderSortingException(znString& out) {
    out.clear();
    return false;
}
