// Free folders: making and deleting them, and their settings.
#include "host/znIBrowserDataSourceSimple.h"
#include "model/browser.h"
#include "model/view.h"

namespace znhost {

namespace {

FreeFolder* Concrete(znIBrowserViewItemFreeFolder* folder) { return static_cast<FreeFolder*>(folder); }

} // namespace

bool Browser::CreateFreeFolder(znIBrowserViewItemFreeFolder* parent, const char* name) {
    if (Refused("znIBrowser::CreateFreeFolder", parent, name)) return false;
    if (!parent) return Fail("No folder to create a folder in");
    FreeFolder& owner = *Concrete(parent);
    const std::string newName = TextOf(name);
    if (owner.Children().Find(newName)) {
        return Fail("The folder \"" + owner.Name() + "\" already has a folder \"" + newName + "\"");
    }
    owner.AddChild(newName);
    return true;
}

bool Browser::DestroyFreeFolder(znIBrowserViewItemFreeFolder* folder, bool recursive) {
    if (Refused("znIBrowser::DestroyFreeFolder", folder, recursive)) return false;
    if (!folder) return Fail("No folder to delete");
    FreeFolder& doomed = *Concrete(folder);
    if (!doomed.Parent()) {
        return Fail("The folder \"" + doomed.Name() + "\" is the root of its view and cannot be deleted");
    }
    if (!recursive && !doomed.Children().IsEmpty()) {
        return Fail("The folder \"" + doomed.Name() + "\" is not empty: it has " +
                    std::to_string(doomed.Children().Size()) + " folder(s)");
    }
    doomed.Parent()->RemoveChild(doomed);
    return true;
}

bool Browser::SetFolderFlag(znIBrowserViewItemFreeFolder* folder, bool FolderSettings::*setting, bool value,
                            bool recursive) {
    if (!folder) return Fail("No folder to change the settings of");
    Concrete(folder)->Set(setting, value, recursive);
    return true;
}

bool Browser::GetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder) {
    if (Refused("znIBrowser::GetFreeFolderGroupLeafs", folder)) return false;
    return folder && Concrete(folder)->Settings().groupLeafs;
}

bool Browser::GetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder) {
    if (Refused("znIBrowser::GetFreeFolderStyle", folder)) return false;
    return folder && Concrete(folder)->Settings().style;
}

bool Browser::SetFreeFolderGroupLeafs(znIBrowserViewItemFreeFolder* folder, bool group) {
    if (Refused("znIBrowser::SetFreeFolderGroupLeafs", folder, group)) return false;
    return SetFolderFlag(folder, &FolderSettings::groupLeafs, group);
}

bool Browser::SetFreeFolderStyle(znIBrowserViewItemFreeFolder* folder, bool style) {
    if (Refused("znIBrowser::SetFreeFolderStyle", folder, style)) return false;
    return SetFolderFlag(folder, &FolderSettings::style, style);
}

bool Browser::SetFreeFolderShowEmptyContainers(znIBrowserViewItemFreeFolder* folder, bool show) {
    if (Refused("znIBrowser::SetFreeFolderShowEmptyContainers", folder, show)) return false;
    return SetFolderFlag(folder, &FolderSettings::showEmptyContainers, show);
}

bool Browser::SetFreeFolderShowEmptyFolders(znIBrowserViewItemFreeFolder* folder, bool show, bool recursive) {
    if (Refused("znIBrowser::SetFreeFolderShowEmptyFolders", folder, show, recursive)) return false;
    return SetFolderFlag(folder, &FolderSettings::showEmptyFolders, show, recursive);
}

bool Browser::SetFreeFolderShowCountByImage(znIBrowserViewItemFreeFolder* folder, bool show, bool recursive) {
    if (Refused("znIBrowser::SetFreeFolderShowCountByImage", folder, show, recursive)) return false;
    return SetFolderFlag(folder, &FolderSettings::countByImage, show, recursive);
}

bool Browser::SetFreeFolderShowCountByNumber(znIBrowserViewItemFreeFolder* folder, bool show,
                                             bool recursive) {
    if (Refused("znIBrowser::SetFreeFolderShowCountByNumber", folder, show, recursive)) return false;
    return SetFolderFlag(folder, &FolderSettings::countByNumber, show, recursive);
}

bool Browser::SetFreeFolderBold(znIBrowserViewItemFreeFolder* folder, bool bold) {
    if (Refused("znIBrowser::SetFreeFolderBold", folder, bold)) return false;
    return SetFolderFlag(folder, &FolderSettings::bold, bold);
}

bool Browser::SetFreeFolderItalic(znIBrowserViewItemFreeFolder* folder, bool italic) {
    if (Refused("znIBrowser::SetFreeFolderItalic", folder, italic)) return false;
    return SetFolderFlag(folder, &FolderSettings::italic, italic);
}

bool Browser::SetFreeFolderKeepChildrenAsCreated(znIBrowserViewItemFreeFolder* folder, bool keep) {
    if (Refused("znIBrowser::SetFreeFolderKeepChildrenAsCreated", folder, keep)) return false;
    return SetFolderFlag(folder, &FolderSettings::keepChildrenAsCreated, keep);
}

bool Browser::SetFreeFolderCreateExpandedItem(znIBrowserViewItemFreeFolder* folder,
                                              znIBrowserDataSourceSimple* source, int depth) {
    if (Refused("znIBrowser::SetFreeFolderCreateExpandedItem", folder, source, depth)) return false;
    if (!folder || !source) return Fail("No folder and data source to create expanded");
    if (depth < 0) return Fail("The depth " + std::to_string(depth) + " is below 0");
    Concrete(folder)->SetCreateExpandedDepth(*source, depth);
    return true;
}

bool Browser::SetFreeFolderSortingException(znIBrowserViewItemFreeFolder* folder,
                                            znIBrowserDataSourceSimple* source, int value) {
    if (Refused("znIBrowser::SetFreeFolderSortingException", folder, source, value)) return false;
    if (!folder || !source) return Fail("No folder and data source to make a sorting exception for");
    Concrete(folder)->SetSortingException(*source, value);
    return true;
}

bool Browser::ExpandFreeFolder(znIBrowserView* view, znIBrowserViewItemFreeFolder* folder, bool recursive) {
    if (Refused("znIBrowser::ExpandFreeFolder", view, folder, recursive)) return false;
    if (!folder) return Fail("No folder to expand");
    Concrete(folder)->Expand(true, recursive);
    return true;
}

bool Browser::CollapseFreeFolder(znIBrowserView* view, znIBrowserViewItemFreeFolder* folder, bool recursive) {
    if (Refused("znIBrowser::CollapseFreeFolder", view, folder, recursive)) return false;
    if (!folder) return Fail("No folder to collapse");
    Concrete(folder)->Expand(false, recursive);
    return true;
}

} // namespace znhost
