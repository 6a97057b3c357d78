// The saved states of a data control, as scripts see them.
#ifndef ZN_HOST_STATE_CONTAINER_H
#define ZN_HOST_STATE_CONTAINER_H

#include "base/host_call.h"
#include "base/named_list.h"
#include "host/znIBrowserState.h"
#include "state/state_store.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace znhost {

class StateContainer;

/// A saved state: a name, by which everything else is looked up in the database when it is asked for. One
/// that somebody has deleted refuses every question; when it is created again, the same object works again.
class State final : public znIBrowserState, public HostObject {
public:
    State(StateContainer& container, std::string name);

    const std::string& Name() const { return name_; }
    StateContainer& Owner() const { return container_; }
    /// All that was saved. False, with an error text, when the state does not exist any more.
    bool Read(Settings& settings) const;

    const char* GetName() const override;
    bool GetWindowPartVisibility(std::map<znString, bool>& visibility) override;
    bool GetTreeAreaColumnVisibility(std::map<znString, bool>& visibility) override;
    bool GetOptions(std::map<znString, bool>& options) override;
    bool GetFolderTrees(std::map<znString, znString>& trees) override;
    bool GetFolderLists(std::map<znString, std::vector<znString>>& lists) override;
    bool GetViewPropertyTypeMappings(std::map<znString, Pairs>& mappings) override;
    bool GetGuiMapTypes(std::map<znString, znString>& types) override;
    bool GetGuiMapRecords(std::map<znString, Pairs>& records) override;

private:
    bool Read(const char* kind, Settings& settings) const;
    bool ReadFolders(Settings& folders) const;
    bool ReadBooleans(const char* kind, std::map<znString, bool>& values) const;
    bool ReadPairs(const char* kind, const char* ownKey, std::map<znString, Pairs>& pairs) const;

    StateContainer& container_;
    const std::string name_;
};

/// The states in a data control's database. Every operation answers false, with an error text, when the
/// database refuses.
class StateContainer final : public znIBrowserStateContainer, public HostObject {
public:
    using EntityChange = bool (StateStore::*)(std::string_view name, const std::vector<std::string>& entities,
                                              std::string& error);

    using Report = std::function<void(const std::string& error)>;

    /// The database must outlive the container. `report` takes errors of questions whose answer has no place
    /// for them.
    StateContainer(Database& database, CallLog& log, Report report)
        : HostObject(log), store_(std::in_place, database), report_(std::move(report)) {}

    StateStore& Store() { return *store_; }
    /// From now on the states are those in that file, which is made when it is missing. False, with the
    /// reason, and as it was, when it cannot be opened.
    bool KeepIn(const std::string& file, std::string& error);
    /// The file; empty as long as the states are kept in the database itself.
    std::string Place() const { return elsewhere_ ? elsewhere_->Place() : std::string(); }
    /// The state of that name as an object, which stays as long as the container; made when there is none.
    State& Named(const std::string& name);
    /// Adds entities to a state, or removes them: `change` is that operation of the store.
    bool ChangeEntities(const znIBrowserState* state, const std::vector<znString>& entities,
                        EntityChange change);

    void GetStates(std::vector<znIBrowserState*>& states) override;
    znIBrowserState* FindState(const char* name) override;
    bool SaveState(znIBrowserState* state, znIBrowserWindowAccess* window) override;

private:
    const State* Own(const znIBrowserState* state) const;

    std::unique_ptr<Database> elsewhere_;
    std::optional<StateStore> store_;
    const Report report_;
    NamedList<State> states_; ///< those that were ever asked for
};

class DataCtrl;

/// The states in the database of a data control, which must outlive them.
std::shared_ptr<StateContainer> MakeStates(DataCtrl& control);
/// Those that were made for it.
StateContainer& StatesOf(const DataCtrl& control);

} // namespace znhost

#endif
