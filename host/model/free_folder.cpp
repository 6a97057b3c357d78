// A free folder: its child folders, its settings, and what it tells about itself.
#include "model/free_folder.h"

#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataReference.h"
#include "model/browser.h"
#include "model/data_sources.h"
#include "model/view.h"

namespace znhost {

FreeFolder::FreeFolder(View& view, FreeFolder* parent, std::string name)
    : HostObject(view.Log()), view_(view), parent_(parent), name_(std::move(name)) {}

// Takes the folders below apart level by level: folders may be nested deeper than the stack is.
FreeFolder::~FreeFolder() {
    NamedList<FreeFolder>::Objects doomed = children_.TakeAll();
    while (!doomed.empty()) {
        const std::shared_ptr<FreeFolder> folder = std::move(doomed.back());
        doomed.pop_back();
        doomed.splice(doomed.end(), folder->children_.TakeAll());
    }
}

void FreeFolder::Changed(unsigned what) const { view_.Changed(what); }

FreeFolder& FreeFolder::AddChild(const std::string& name) {
    FreeFolder& child = children_.Add(std::make_shared<FreeFolder>(view_, this, name));
    Changed(VIEW_ROWS);
    return child;
}

void FreeFolder::RemoveChild(FreeFolder& child) {
    const std::vector<FreeFolder*> doomed = child.WithBelow();
    for (auto folder = doomed.rbegin(); folder != doomed.rend(); ++folder) {
        view_.TellObservers([&](ViewObserver& observer) { observer.OnFolderDeleted(**folder); });
    }
    children_.Remove(child);
    Changed(VIEW_ROWS | VIEW_SELECTION);
}

std::vector<FreeFolder*> FreeFolder::WithBelow() {
    std::vector<FreeFolder*> folders;
    std::vector<FreeFolder*> waiting{this};
    while (!waiting.empty()) {
        FreeFolder* const folder = waiting.back();
        waiting.pop_back();
        folders.push_back(folder);
        const std::size_t first = waiting.size();
        for (const auto& child : folder->children_) waiting.push_back(child.get());
        std::reverse(waiting.begin() + static_cast<std::ptrdiff_t>(first), waiting.end());
    }
    return folders;
}

void FreeFolder::Set(bool FolderSettings::*setting, bool value, bool recursive) {
    if (recursive) {
        for (FreeFolder* const folder : WithBelow()) folder->settings_.*setting = value;
    } else {
        settings_.*setting = value;
    }
    Changed(VIEW_ROWS | VIEW_CELLS);
}

void FreeFolder::Expand(bool expanded, bool recursive) {
    expanded_ = expanded;
    if (recursive) {
        for (FreeFolder* const folder : WithBelow()) {
            folder->expanded_ = expanded;
            for (FolderList& list : folder->lists_) list.expanded = expanded;
        }
    }
    const std::shared_ptr<FreeFolder> self = shared_from_this(); // listing what is in it may run scripts
    const std::shared_ptr<View> view = view_.shared_from_this();
    view_.TellObservers(
        [&](ViewObserver& observer) { observer.OnExpanded(*this, nullptr, expanded, recursive); });
    Changed(VIEW_ROWS);
}

void FreeFolder::Expand(FolderList& list, bool expanded, bool recursive) {
    list.expanded = expanded;
    znIBrowserDataSourceSimple* const source = list.source;
    const std::shared_ptr<FreeFolder> self = shared_from_this(); // listing what is in it may run scripts
    const std::shared_ptr<View> view = view_.shared_from_this();
    view_.TellObservers(
        [&](ViewObserver& observer) { observer.OnExpanded(*this, source, expanded, recursive); });
    Changed(VIEW_ROWS);
}

const char* FreeFolder::GetName() const {
    if (Refused("znIBrowserViewItemFreeFolder::GetName")) return nullptr;
    return name_.c_str();
}

znIBrowserViewItemFreeFolder* FreeFolder::FindChildFolder(const char* name) {
    if (Refused("znIBrowserViewItemFreeFolder::FindChildFolder", name)) return nullptr;
    return children_.Find(TextOf(name));
}

bool FreeFolder::GetChildFolders(std::vector<znIBrowserViewItemFreeFolder*>& folders) {
    folders.clear();
    if (Refused("znIBrowserViewItemFreeFolder::GetChildFolders")) return false;
    children_.CopyTo(folders);
    return true;
}

znIBrowserViewItemFreeFolder* FreeFolder::GetParent() {
    if (Refused("znIBrowserViewItemFreeFolder::GetParent")) return nullptr;
    return parent_;
}

znIBrowserView* FreeFolder::GetView() {
    if (Refused("znIBrowserViewItemFreeFolder::GetView")) return nullptr;
    return &view_;
}

bool FreeFolder::GetShowEmptyContainers() const {
    if (Refused("znIBrowserViewItemFreeFolder::GetShowEmptyContainers")) return false;
    return settings_.showEmptyContainers;
}

bool FreeFolder::GetShowEmptyFolders() const {
    if (Refused("znIBrowserViewItemFreeFolder::GetShowEmptyFolders")) return false;
    return settings_.showEmptyFolders;
}

bool FreeFolder::GetKeepChildrenAsCreated() const {
    if (Refused("znIBrowserViewItemFreeFolder::GetKeepChildrenAsCreated")) return false;
    return settings_.keepChildrenAsCreated;
}

bool FreeFolder::GetConfiguredTypes(std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserViewItemFreeFolder::GetConfiguredTypes")) return false;
    SimpleSources sources;
    for (FreeFolder* const folder : WithBelow()) {
        for (znIBrowserDataSourceSimple* const source : folder->Sources()) AddNew(sources, source);
    }
    CopyNames(log_, sources, names);
    return true;
}

bool FreeFolder::GetSelectedFolderNames(std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserViewItemFreeFolder::GetSelectedFolderNames")) return false;
    for (FreeFolder* const folder : WithBelow()) {
        if (folder != this && folder->selected_) names.emplace_back(folder->name_);
    }
    return true;
}

bool FreeFolder::GetSelection(znBrowserDataItems& items) {
    items.Clear();
    if (Refused("znIBrowserViewItemFreeFolder::GetSelection")) return false;
    SimpleSources sources;
    for (FreeFolder* const folder : WithBelow()) {
        for (znIBrowserDataSourceSimple* const source : folder->Sources()) AddNew(sources, source);
    }
    for (znIBrowserDataSourceSimple* const source : sources) view_.Selected().AppendTo(items, source);
    return true;
}

znIBrowserPopupMenu* FreeFolder::GetPopupMenu() {
    if (Refused("znIBrowserViewItemFreeFolder::GetPopupMenu")) return nullptr;
    return Popup();
}

bool FreeFolder::SetPopupMenu(const char* name) {
    if (Refused("znIBrowserViewItemFreeFolder::SetPopupMenu", name)) return false;
    return popupMenu_.Set(view_.Owner(), name);
}

} // namespace znhost
