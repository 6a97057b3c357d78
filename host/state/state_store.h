// Saved states in a database: tables of the browser's own beside the user's.
#ifndef ZN_HOST_STATE_STORE_H
#define ZN_HOST_STATE_STORE_H

#include "state/setting.h"
#include "store/database.h"

#include <string>
#include <string_view>
#include <vector>

namespace znhost {

/// The states in one database, and the only picture of them: every question is answered from the tables, so
/// that what other processes save shows at once. Every change is one transaction; who is killed in the middle
/// of it leaves what was there before.
///
/// The tables (`znbrowser_...`) are made with the first state and carry one version number. An older version
/// is upgraded when it is met; states of a newer one are refused, reading them included.
class StateStore {
public:
    /// What makes one version out of the one before it.
    using Upgrade = std::vector<const char*>;

    /// The database must outlive the store.
    explicit StateStore(Database& database)
        : StateStore(database, database.Sql().isServer ? UpgradesOfServer() : Upgrades()) {}
    /// With a history of upgrades of its own: the first makes version 1 out of nothing.
    StateStore(Database& database, std::vector<Upgrade> upgrades)
        : database_(database), upgrades_(std::move(upgrades)) {}

    // Each operation answers false, with the reason, when the database refuses, and when the state that it is
    // about does not exist.

    /// In the order of their creation.
    bool Names(std::vector<std::string>& names, std::string& error);
    /// A new state without settings. The name must not be empty, nor in use.
    bool Create(std::string_view name, std::string& error);
    /// Deletes the state with its settings and entities.
    bool Delete(std::string_view name, std::string& error);

    /// Replaces all settings of a state.
    bool Write(std::string_view name, const Settings& settings, std::string& error);
    /// All settings of a state, or those of one kind. Those of a kind come in the order written.
    bool Read(std::string_view name, Settings& settings, std::string& error);
    bool Read(std::string_view name, std::string_view kind, Settings& settings, std::string& error);

    /// In the order added.
    bool Entities(std::string_view name, std::vector<std::string>& entities, std::string& error);
    /// Entities that the state has already are left as they are.
    bool AddEntities(std::string_view name, const std::vector<std::string>& entities, std::string& error);
    /// All of them or, when the state lacks one, none.
    bool RemoveEntities(std::string_view name, const std::vector<std::string>& entities, std::string& error);

    /// The history of the tables as this program has them.
    static const std::vector<Upgrade>& Upgrades();
    /// The same on a server, where they have a schema of their own.
    static const std::vector<Upgrade>& UpgradesOfServer();

private:
    class Change;

    std::string Named(std::string_view sql) const;
    Statement Prepare(std::string_view sql);
    bool RunWith(const char* sql, std::int64_t state, std::string& error);
    bool FailToMake(std::string& error) const;
    bool ReadVersion(std::size_t& version, std::string& error);
    bool UpgradeFrom(std::size_t version, std::string& error);
    bool Ready(bool& hasTables, std::string& error);
    bool ReadyFor(std::string_view name, std::string& error);
    bool FindState(std::string_view name, std::int64_t& id, std::string& error);
    bool ReadSettings(Statement& rows, std::string_view name, Settings& settings, std::string& error);

    Database& database_;
    const std::vector<Upgrade> upgrades_;
};

} // namespace znhost

#endif
