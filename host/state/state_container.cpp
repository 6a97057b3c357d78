#include "state/state_container.h"

#include "state/setting.h"
#include "state/window_settings.h"
#include "store/data_ctrl.h"
#include "window/window.h"

#include <algorithm>
#include <set>

namespace znhost {

// ---- One state ----

State::State(StateContainer& container, std::string name)
    : HostObject(container.Log()), container_(container), name_(std::move(name)) {}

bool State::Read(Settings& settings) const {
    std::string error;
    return container_.Store().Read(name_, settings, error) || Fail(error);
}

bool State::Read(const char* kind, Settings& settings) const {
    std::string error;
    return container_.Store().Read(name_, kind, settings, error) || Fail(error);
}

const char* State::GetName() const {
    if (Refused("znIBrowserState::GetName")) return nullptr;
    return name_.c_str();
}

bool State::ReadBooleans(const char* kind, std::map<znString, bool>& values) const {
    values.clear();
    Settings settings;
    if (!Read(kind, settings)) return false;
    for (const Setting& setting : settings) values[setting.subject] = IsOn(setting);
    return true;
}

bool State::GetWindowPartVisibility(std::map<znString, bool>& visibility) {
    if (Refused("znIBrowserState::GetWindowPartVisibility")) return false;
    return ReadBooleans(kind::part, visibility);
}

bool State::GetTreeAreaColumnVisibility(std::map<znString, bool>& visibility) {
    if (Refused("znIBrowserState::GetTreeAreaColumnVisibility")) return false;
    return ReadBooleans(kind::column, visibility);
}

bool State::GetOptions(std::map<znString, bool>& options) {
    if (Refused("znIBrowserState::GetOptions")) return false;
    return ReadBooleans(kind::option, options);
}

/// The folders, each name once: folders of one name in different places get a number behind it.
bool State::ReadFolders(Settings& folders) const {
    if (!Read(kind::folder, folders)) return false;
    std::map<std::string, int> uses;
    for (Setting& folder : folders) {
        const int number = ++uses[folder.subject];
        if (number > 1) folder.subject += " (" + std::to_string(number) + ")";
    }
    return true;
}

/// A tree's name, then the data references that tie it; "" for no tree.
bool State::GetFolderTrees(std::map<znString, znString>& trees) {
    trees.clear();
    if (Refused("znIBrowserState::GetFolderTrees")) return false;
    Settings folders, ties;
    if (!ReadFolders(folders) || !Read(kind::tie, ties)) return false;
    for (const Setting& folder : folders) {
        if (!folder.value.empty()) trees[folder.subject] = folder.value;
    }
    std::set<std::pair<std::size_t, std::string>> named; // a reference may find top items and children
    for (const Setting& tie : ties) {
        const std::size_t number = NumberOf(tie.subject);
        if (number >= folders.size() || !named.emplace(number, tie.value).second) continue;
        znString& tree = trees[folders[number].subject];
        if (!tree.empty()) tree += ' ';
        tree += tie.value.c_str();
    }
    return true;
}

bool State::GetFolderLists(std::map<znString, std::vector<znString>>& lists) {
    lists.clear();
    if (Refused("znIBrowserState::GetFolderLists")) return false;
    Settings folders, all;
    if (!ReadFolders(folders) || !Read(kind::list, all)) return false;
    for (const Setting& list : all) {
        const std::size_t number = NumberOf(list.subject);
        if (number < folders.size()) lists[folders[number].subject].emplace_back(list.key);
    }
    return true;
}

/// @param ownKey  the first text of each pair; null: the setting's own.
bool State::ReadPairs(const char* kind, const char* ownKey, std::map<znString, Pairs>& pairs) const {
    Settings settings;
    if (!Read(kind, settings)) return false;
    for (const Setting& setting : settings) {
        pairs[setting.subject].emplace_back(ownKey ? ownKey : setting.key, setting.value);
    }
    return true;
}

bool State::GetViewPropertyTypeMappings(std::map<znString, Pairs>& mappings) {
    mappings.clear();
    if (Refused("znIBrowserState::GetViewPropertyTypeMappings")) return false;
    return ReadPairs(kind::propertyType, "type", mappings) && ReadPairs(kind::connection, nullptr, mappings);
}

bool State::GetGuiMapTypes(std::map<znString, znString>& types) {
    types.clear();
    if (Refused("znIBrowserState::GetGuiMapTypes")) return false;
    Settings settings;
    if (!Read(kind::guiMap, settings)) return false;
    for (const Setting& setting : settings) types[setting.subject] = setting.value;
    return true;
}

bool State::GetGuiMapRecords(std::map<znString, Pairs>& records) {
    records.clear();
    if (Refused("znIBrowserState::GetGuiMapRecords")) return false;
    return ReadPairs(kind::guiMapRecord, nullptr, records);
}

// ---- All of them ----

State& StateContainer::Named(const std::string& name) {
    State* const known = states_.Find(name);
    return known ? *known : states_.Add(std::make_shared<State>(*this, name));
}

/// Null, with an error text, when the state is not one of this container.
const State* StateContainer::Own(const znIBrowserState* state) const {
    const State* const own = static_cast<const State*>(state);
    if (own && &own->Owner() == this) return own;
    Fail(own ? "The state \"" + own->Name() + "\" belongs to another data control" : "No state is given");
    return nullptr;
}

void StateContainer::GetStates(std::vector<znIBrowserState*>& states) {
    states.clear();
    if (Refused("znIBrowserStateContainer::GetStates")) return;
    std::vector<std::string> names;
    std::string error;
    if (!store_->Names(names, error)) report_(error);
    for (const std::string& name : names) states.push_back(&Named(name));
}

znIBrowserState* StateContainer::FindState(const char* name) {
    if (Refused("znIBrowserStateContainer::FindState", name)) return nullptr;
    std::vector<std::string> names;
    std::string error;
    if (!store_->Names(names, error)) report_(error);
    const bool exists = std::find(names.begin(), names.end(), TextOf(name)) != names.end();
    return exists ? &Named(TextOf(name)) : nullptr;
}

bool StateContainer::SaveState(znIBrowserState* state, znIBrowserWindowAccess* window) {
    if (Refused("znIBrowserStateContainer::SaveState", state, window)) return false;
    const State* const own = Own(state);
    if (!own) return false;
    if (!window) return Fail("No window to save the configuration of");
    const std::string name = own->Name(); // a script that gives a value may delete the state
    Settings settings;
    std::string error;
    return (KeepSettings(static_cast<Window&>(*window), settings, error) &&
            store_->Write(name, settings, error)) ||
           Fail(error);
}

bool StateContainer::ChangeEntities(const znIBrowserState* state, const std::vector<znString>& entities,
                                    EntityChange change) {
    const State* const own = Own(state);
    if (!own) return false;
    std::vector<std::string> names;
    names.reserve(entities.size());
    for (const znString& entity : entities) names.push_back(entity.Str());
    std::string error;
    return ((*store_).*change)(own->Name(), names, error) || Fail(error);
}

bool StateContainer::KeepIn(const std::string& file, std::string& error) {
    std::unique_ptr<Database> database = Database::OpenFile(file, error);
    if (!database) return false;
    store_.emplace(*database);
    elsewhere_ = std::move(database);
    return true;
}

std::shared_ptr<StateContainer> MakeStates(DataCtrl& control) {
    return std::make_shared<StateContainer>(
        control.Db(), control.Log(),
        [&control](const std::string& error) { control.Report("the saved states cannot be read", error); });
}

StateContainer& StatesOf(const DataCtrl& control) { return static_cast<StateContainer&>(*control.States()); }

} // namespace znhost
