// What a state keeps of a view's folders: what they show and how.
#include "host/znIBrowserDataReference.h"
#include "model/data_sources.h"
#include "model/view.h"
#include "state/setting_kinds.h"

#include <unordered_map>

namespace znhost {

namespace {

// What is on or off, by name.
struct FolderOption {
    const char* name;
    bool FolderSettings::*value;
};
constexpr FolderOption folderOptions[] = {
    {"bold", &FolderSettings::bold},
    {"count by image", &FolderSettings::countByImage},
    {"count by number", &FolderSettings::countByNumber},
    {"group leafs", &FolderSettings::groupLeafs},
    {"italic", &FolderSettings::italic},
    {"keep children as created", &FolderSettings::keepChildrenAsCreated},
    {"show empty containers", &FolderSettings::showEmptyContainers},
    {"show empty folders", &FolderSettings::showEmptyFolders},
    {"style", &FolderSettings::style},
};
struct TreeOption {
    const char* name;
    bool FolderTree::*value;
};
constexpr TreeOption treeOptions[] = {
    {"group tree", &FolderTree::group},
    {"group tree, second", &FolderTree::second},
};
struct ListOption {
    const char* name;
    bool FolderList::*value;
};
constexpr ListOption listOptions[] = {
    {"flag", &FolderList::flag},
    {"group", &FolderList::group},
    {"group, second", &FolderList::second},
};

/// Calls `visit(number, folder)` for each folder of the view that is being taken down.
template <class Visit>
void ForEachFolder(Keeping& keeping, Visit&& visit) {
    std::size_t number = 0;
    for (FreeFolder* const folder : keeping.view.RootFolder().WithBelow()) {
        visit(std::to_string(number++), *folder);
    }
}

// ---- Folders and their trees ----

void KeepFolders(Keeping& keeping) {
    std::unordered_map<const FreeFolder*, std::string> numbers;
    ForEachFolder(keeping, [&](const std::string& number, FreeFolder& folder) {
        numbers[&folder] = number;
        keeping.Add(folder.Name(), folder.Parent() ? numbers[folder.Parent()] : std::string(),
                    NameOf(keeping.view.Log(), folder.Tree().source));
    });
}

void RestoreTree(Restoring& restoring, FreeFolder& folder, const std::string& name) {
    if (NameOf(restoring.Log(), folder.Tree().source) == name) return;
    znIBrowserDataSourceHierarchical* const source =
        name.empty() ? nullptr : restoring.FindHierarchical(name);
    if (!source && !name.empty()) restoring.Skip("tree", name);
    folder.SetTree(source);
}

void RestoreFolders(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        FreeFolder* folder = nullptr;
        if (setting.key.empty()) {
            folder = &restoring.Shown().RootFolder();
        } else if (const FreeFolder* const parent = restoring.Folder(setting.key)) {
            folder = parent->Children().Find(setting.subject);
            if (!folder) restoring.Skip("folder", setting.subject);
        }
        restoring.folders.push_back(folder);
        if (folder) RestoreTree(restoring, *folder, setting.value);
    }
}

// ---- Trees tied by data references ----

void KeepTies(Keeping& keeping) {
    CallLog& log = keeping.view.Log();
    ForEachFolder(keeping, [&](const std::string& number, FreeFolder& folder) {
        for (const FolderTreeLink& link : folder.TreeLinks()) {
            keeping.Add(number, NameOf(log, link.child), NameOf(log, link.reference));
        }
    });
}

void KeepTieParents(Keeping& keeping) {
    std::size_t number = 0;
    ForEachFolder(keeping, [&](const std::string&, FreeFolder& folder) {
        for (const FolderTreeLink& link : folder.TreeLinks()) {
            if (link.parent) keeping.Add(std::to_string(number), "", NameOf(keeping.view.Log(), link.parent));
            ++number;
        }
    });
}

/// The tie as the folder has it now, else a new one; without a reference when something of it is gone.
/// @param parent  null: it finds the top items.
FolderTreeLink FindTie(Restoring& restoring, const FreeFolder& folder, const Setting& setting,
                       const std::string* parent) {
    CallLog& log = restoring.Log();
    for (const FolderTreeLink& link : folder.TreeLinks()) {
        if ((link.parent != nullptr) != (parent != nullptr)) continue;
        if (parent && NameOf(log, link.parent) != *parent) continue;
        if (NameOf(log, link.child) == setting.key && NameOf(log, link.reference) == setting.value)
            return link;
    }
    FolderTreeLink link{parent ? restoring.FindSource(*parent) : nullptr, restoring.FindSource(setting.key),
                        restoring.FindReference(setting.value)};
    if (parent && !link.parent) restoring.Skip("data source", *parent);
    if (!link.child) restoring.Skip("data source", setting.key);
    if (!link.reference) restoring.Skip("data reference", setting.value);
    if (!link.child || (parent && !link.parent)) link.reference = nullptr;
    return link;
}

void RestoreTies(Restoring& restoring, const Settings& settings) {
    const auto& parents = restoring.tieParents;
    std::unordered_map<FreeFolder*, std::vector<FolderTreeLink>> ties;
    for (std::size_t number = 0; number < settings.size(); ++number) {
        FreeFolder* const folder = restoring.Folder(settings[number].subject);
        if (!folder) continue;
        const auto parent = parents.find(std::to_string(number));
        const FolderTreeLink link = FindTie(restoring, *folder, settings[number],
                                            parent == parents.end() ? nullptr : &parent->second);
        if (link.reference) ties[folder].push_back(link);
    }
    for (FreeFolder* const folder : restoring.folders) {
        if (folder) folder->SetTreeLinks(std::move(ties[folder]));
    }
}

void RestoreTieParents(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) restoring.tieParents[setting.subject] = setting.value;
}

// ---- Settings of folders and trees ----

void KeepFolderOptions(Keeping& keeping) {
    ForEachFolder(keeping, [&](const std::string& number, FreeFolder& folder) {
        for (const FolderOption& option : folderOptions) {
            keeping.Add(number, option.name, OnOff(folder.Settings().*option.value));
        }
        for (const TreeOption& option : treeOptions) {
            if (folder.Tree().source) keeping.Add(number, option.name, OnOff(folder.Tree().*option.value));
        }
    });
}

void RestoreFolderOptions(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        FreeFolder* const folder = restoring.Folder(setting.subject);
        if (!folder) continue;
        for (const FolderOption& option : folderOptions) {
            if (setting.key == option.name) folder->Set(option.value, IsOn(setting));
        }
        FolderTree tree = folder->Tree();
        for (const TreeOption& option : treeOptions) {
            if (setting.key != option.name || !tree.source) continue;
            tree.*option.value = IsOn(setting);
            folder->SetTreeGroup(tree.group, tree.second);
        }
    }
}

void KeepHiddenTypes(Keeping& keeping) {
    ForEachFolder(keeping, [&](const std::string& number, FreeFolder& folder) {
        for (znIBrowserDataSource* const type : folder.Tree().hidden) {
            keeping.Add(number, NameOf(keeping.view.Log(), type), "");
        }
    });
}

void RestoreHiddenTypes(Restoring& restoring, const Settings& settings) {
    for (FreeFolder* const folder : restoring.folders) {
        if (!folder) continue;
        const std::vector<znIBrowserDataSource*> hidden = folder->Tree().hidden;
        for (znIBrowserDataSource* const type : hidden) folder->ShowChildType(*type, true);
    }
    for (const Setting& setting : settings) {
        FreeFolder* const folder = restoring.Folder(setting.subject);
        znIBrowserDataSource* const type = restoring.FindSource(setting.key);
        if (!type) restoring.Skip("data source", setting.key);
        if (folder && type) folder->ShowChildType(*type, false);
    }
}

// ---- Lists ----

void KeepLists(Keeping& keeping) {
    ForEachFolder(keeping, [&](const std::string& number, FreeFolder& folder) {
        for (const FolderList& list : folder.Lists()) {
            keeping.Add(number, NameOf(keeping.view.Log(), list.source), list.caption);
        }
    });
}

/// The list as the folder has it now, else a new one; without a source when that is gone.
FolderList FindList(Restoring& restoring, const FreeFolder& folder, const std::string& name) {
    for (const FolderList& list : folder.Lists()) {
        if (NameOf(restoring.Log(), list.source) == name) return list;
    }
    FolderList list;
    list.source = restoring.FindSimple(name);
    return list;
}

void RestoreLists(Restoring& restoring, const Settings& settings) {
    std::unordered_map<FreeFolder*, std::vector<FolderList>> contents;
    for (const Setting& setting : settings) {
        FreeFolder* const folder = restoring.Folder(setting.subject);
        restoring.lists.emplace_back();
        if (!folder) continue;
        FolderList list = FindList(restoring, *folder, setting.key);
        if (!list.source) {
            restoring.Skip("list", setting.key);
            continue;
        }
        list.caption = setting.value;
        restoring.lists.back() = {folder, list.source};
        contents[folder].push_back(std::move(list));
    }
    for (FreeFolder* const folder : restoring.folders) {
        if (folder) folder->SetLists(std::move(contents[folder]));
    }
}

void KeepListOptions(Keeping& keeping) {
    std::size_t number = 0;
    ForEachFolder(keeping, [&](const std::string&, FreeFolder& folder) {
        for (const FolderList& list : folder.Lists()) {
            for (const ListOption& option : listOptions) {
                keeping.Add(std::to_string(number), option.name, OnOff(list.*option.value));
            }
            ++number;
        }
    });
}

void RestoreListOptions(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        FolderList* const list = restoring.List(setting.subject);
        for (const ListOption& option : listOptions) {
            if (list && setting.key == option.name) list->*option.value = IsOn(setting);
        }
    }
    restoring.Shown().Changed(VIEW_ROWS);
}

} // namespace

const std::vector<SettingKind>& FolderKinds() {
    static const std::vector<SettingKind> kinds = {
        {kind::folder, KeepFolders, RestoreFolders},
        {kind::tieParent, KeepTieParents, RestoreTieParents},
        {kind::tie, KeepTies, RestoreTies},
        {kind::folderOption, KeepFolderOptions, RestoreFolderOptions},
        {kind::hiddenType, KeepHiddenTypes, RestoreHiddenTypes},
        {kind::list, KeepLists, RestoreLists},
        {kind::listOption, KeepListOptions, RestoreListOptions},
    };
    return kinds;
}

} // namespace znhost
