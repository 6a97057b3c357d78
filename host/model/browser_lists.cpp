// The trees and lists of free folders.
#include "host/znIBrowserDataReference.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "model/view.h"

namespace znhost {

namespace {

FreeFolder* Concrete(znIBrowserViewItemFreeFolder* folder) { return static_cast<FreeFolder*>(folder); }

} // namespace

// ---- Trees ----

bool Browser::AddTree(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source) {
    if (Refused("znIBrowser::AddTree", folder, source)) return false;
    if (!folder || !source) return Fail("No folder and hierarchical data source to make a tree of");
    FreeFolder& owner = *Concrete(folder);
    if (owner.Tree().source) {
        return Fail("The folder \"" + owner.Name() + "\" already shows the tree \"" +
                    NameOf(log_, owner.Tree().source) + "\"");
    }
    owner.SetTree(source);
    return true;
}

bool Browser::RemoveTree(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source) {
    if (Refused("znIBrowser::RemoveTree", folder, source)) return false;
    if (!folder) return Fail("No folder to remove a tree from");
    FreeFolder& owner = *Concrete(folder);
    if (!source || owner.Tree().source != source) {
        return Fail("The folder \"" + owner.Name() + "\" does not show the tree \"" + NameOf(log_, source) +
                    "\"");
    }
    owner.SetTree(nullptr);
    return true;
}

bool Browser::SetTreeGroup(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceHierarchical* source,
                           bool group, bool second) {
    if (Refused("znIBrowser::SetTreeGroup", folder, source, group, second)) return false;
    if (!folder) return Fail("No folder to group the tree of");
    FreeFolder& owner = *Concrete(folder);
    if (!source || owner.Tree().source != source) {
        return Fail("The folder \"" + owner.Name() + "\" does not show the tree \"" + NameOf(log_, source) +
                    "\"");
    }
    owner.SetTreeGroup(group, second);
    return true;
}

bool Browser::SetChildTypeShown(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* type,
                                bool shown) {
    if (Refused("znIBrowser::SetChildTypeShown", folder, type, shown)) return false;
    if (!folder || !type) return Fail("No folder and data source to show or hide");
    FreeFolder& owner = *Concrete(folder);
    if (!Contains(owner.Sources(), SimpleOf(log_, type))) {
        return Fail("The tree of the folder \"" + owner.Name() + "\" has no child \"" + NameOf(log_, type) +
                    "\"");
    }
    owner.ShowChildType(*type, shown);
    return true;
}

bool Browser::CreateTreeToplevel(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source,
                                 znIBrowserDataReference* reference) {
    if (Refused("znIBrowser::CreateTreeToplevel", folder, source, reference)) return false;
    if (!folder || !source || !reference) return Fail("A tree needs a folder, a data source and a reference");
    if (Concrete(folder)->AddTreeLink({nullptr, source, reference})) return true;
    return Fail("The folder \"" + Concrete(folder)->Name() + "\" already finds its top items by \"" +
                NameOf(log_, reference) + "\"");
}

bool Browser::CreateTreeParentChild(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* parent,
                                    znIBrowserDataSource* child, znIBrowserDataReference* reference) {
    if (Refused("znIBrowser::CreateTreeParentChild", folder, parent, child, reference)) return false;
    if (!folder || !parent || !child || !reference) {
        return Fail("A tree needs a folder, a parent and a child data source, and a reference");
    }
    if (Concrete(folder)->AddTreeLink({parent, child, reference})) return true;
    return Fail("The folder \"" + Concrete(folder)->Name() + "\" already finds children by \"" +
                NameOf(log_, reference) + "\"");
}

// ---- Lists ----

FolderList* Browser::ListOf(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source) {
    if (!folder) {
        Fail("No folder to change a list of");
        return nullptr;
    }
    FolderList* const list = Concrete(folder)->FindList(source);
    if (!list) {
        Fail("The folder \"" + Concrete(folder)->Name() + "\" does not show the list \"" +
             NameOf(log_, source) + "\"");
    }
    return list;
}

bool Browser::AddList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSource* source, bool flag) {
    if (Refused("znIBrowser::AddList", folder, source, flag)) return false;
    if (!folder || !source) return Fail("No folder and data source to make a list of");
    znIBrowserDataSourceSimple* const simple = SimpleOf(log_, source);
    if (!simple) {
        return Fail("The data source \"" + NameOf(log_, source) + "\" is not a simple one: it makes no list");
    }
    if (Concrete(folder)->FindList(simple)) {
        return Fail("The folder \"" + Concrete(folder)->Name() + "\" already shows the list \"" +
                    NameOf(log_, simple) + "\"");
    }
    Concrete(folder)->AddList(*simple, flag);
    return true;
}

bool Browser::RemoveList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source) {
    if (Refused("znIBrowser::RemoveList", folder, source)) return false;
    const FolderList* const list = ListOf(folder, source);
    if (list) Concrete(folder)->RemoveList(*list);
    return list != nullptr;
}

bool Browser::SetListCaption(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                             const char* caption) {
    if (Refused("znIBrowser::SetListCaption", folder, source, caption)) return false;
    FolderList* const list = ListOf(folder, source);
    if (!list) return false;
    list->caption = TextOf(caption);
    Concrete(folder)->Owner().Changed(VIEW_CELLS);
    return true;
}

bool Browser::SetListGroup(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                           bool group, bool second) {
    if (Refused("znIBrowser::SetListGroup", folder, source, group, second)) return false;
    FolderList* const list = ListOf(folder, source);
    if (!list) return false;
    list->group = group;
    list->second = second;
    Concrete(folder)->Owner().Changed(VIEW_ROWS);
    return true;
}

bool Browser::SetListStyle(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                           znIBrowserViewColumn* column, znIBrowserStyle* style, bool use) {
    if (Refused("znIBrowser::SetListStyle", folder, source, column, style, use)) return false;
    FolderList* const list = ListOf(folder, source);
    if (!list) return false;
    if (!column || (use && !style)) return Fail("No column and style to draw a list with");
    Concrete(folder)->SetListStyle(*list, *static_cast<Column*>(column),
                                   use ? static_cast<Style*>(style) : nullptr);
    return true;
}

bool Browser::ExpandListItems(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                              bool expand, bool recursive) {
    FolderList* const list = ListOf(folder, source);
    if (list) Concrete(folder)->Expand(*list, expand, recursive);
    return list != nullptr;
}

bool Browser::ExpandList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                         bool recursive) {
    if (Refused("znIBrowser::ExpandList", folder, source, recursive)) return false;
    return ExpandListItems(folder, source, true, recursive);
}

bool Browser::CollapseList(znIBrowserViewItemFreeFolder* folder, znIBrowserDataSourceSimple* source,
                           bool recursive) {
    if (Refused("znIBrowser::CollapseList", folder, source, recursive)) return false;
    return ExpandListItems(folder, source, false, recursive);
}

} // namespace znhost
