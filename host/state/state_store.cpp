#include "state/state_store.h"

#include "store/transaction.h"

namespace znhost {

namespace {

std::string NoState(std::string_view name) { return "There is no state \"" + std::string(name) + "\""; }

} // namespace

const std::vector<StateStore::Upgrade>& StateStore::Upgrades() {
    static const std::vector<Upgrade> upgrades = {
        {"CREATE TABLE znbrowser_schema (version INTEGER NOT NULL)",
         "INSERT INTO znbrowser_schema VALUES (0)",
         "CREATE TABLE znbrowser_state (id INTEGER PRIMARY KEY, name TEXT NOT NULL UNIQUE)",
         "CREATE TABLE znbrowser_setting (state INTEGER NOT NULL, kind TEXT NOT NULL, "
         "position INTEGER NOT NULL, subject TEXT NOT NULL, key TEXT NOT NULL, value TEXT NOT NULL, "
         "PRIMARY KEY (state, kind, position)) WITHOUT ROWID",
         "CREATE TABLE znbrowser_entity (position INTEGER PRIMARY KEY, state INTEGER NOT NULL, "
         "name TEXT NOT NULL, UNIQUE (state, name))"},
    };
    return upgrades;
}

const std::vector<StateStore::Upgrade>& StateStore::UpgradesOfServer() {
    static const std::vector<Upgrade> upgrades = {
        {"DO $$ BEGIN IF to_regnamespace('znbrowser') IS NULL THEN CREATE SCHEMA znbrowser; END IF; END $$",
         "CREATE TABLE znbrowser.schema (version bigint NOT NULL)", "INSERT INTO znbrowser.schema VALUES (0)",
         "CREATE TABLE znbrowser.state (id bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY, "
         "name text COLLATE \"C\" NOT NULL UNIQUE)",
         "CREATE TABLE znbrowser.setting (state bigint NOT NULL, kind text COLLATE \"C\" NOT NULL, "
         "position bigint NOT NULL, subject text NOT NULL, key text NOT NULL, value text NOT NULL, "
         "PRIMARY KEY (state, kind, position))",
         "CREATE TABLE znbrowser.entity (position bigint GENERATED ALWAYS AS IDENTITY PRIMARY KEY, "
         "state bigint NOT NULL, name text COLLATE \"C\" NOT NULL, UNIQUE (state, name))"},
    };
    return upgrades;
}

// ---- Statements ----

/// The statement with the names that the tables have in this database.
std::string StateStore::Named(std::string_view sql) const {
    constexpr std::string_view prefix = "znbrowser_";
    const std::string_view own = database_.Sql().ownTables;
    std::string named(sql);
    for (std::size_t at = own == prefix ? named.npos : named.find(prefix); at != named.npos;
         at = named.find(prefix, at + own.size())) {
        named.replace(at, prefix.size(), own);
    }
    return named;
}

Statement StateStore::Prepare(std::string_view sql) { return database_.Prepare(Named(sql)); }

bool StateStore::RunWith(const char* sql, std::int64_t state, std::string& error) {
    Statement statement = Prepare(sql);
    statement.Bind(1, state);
    statement.Next();
    return statement.Finish(error);
}

// ---- Versions ----

/// Everything that one operation changes. The rows are the browser's own, and the windows that show the
/// database's need not look at them again.
class StateStore::Change {
public:
    explicit Change(StateStore& store)
        : store_(store), transaction_(store.database_), before_(store.database_.RowsChanged()) {}

    /// Afterwards the tables are there, and of the present version.
    bool Begin(std::string& error) {
        std::size_t version = 0;
        if (!store_.database_.MayChange()) {
            error = "the database is only read, and states are kept in it: changes must be allowed first";
            return false;
        }
        const char* const lock = store_.database_.Sql().lockOwnTables;
        return transaction_.Begin(error) && (!lock || store_.database_.Execute(lock, error)) &&
               store_.ReadVersion(version, error) && store_.UpgradeFrom(version, error);
    }
    bool Commit(std::string& error) {
        if (!transaction_.Commit(error)) return false;
        store_.database_.DisregardChanges(store_.database_.RowsChanged() - before_);
        return true;
    }

private:
    StateStore& store_;
    Transaction transaction_;
    const std::int64_t before_;
};

bool StateStore::ReadVersion(std::size_t& version, std::string& error) {
    version = 0;
    Statement table = database_.Prepare(database_.Sql().hasOwnTables);
    const bool exists = table.Next();
    if (!exists) return table.Finish(error);
    Statement row = Prepare("SELECT version FROM znbrowser_schema");
    const std::int64_t number = row.Next() ? row.Integer(0) : 0;
    if (!row.Finish(error)) return false;
    version = static_cast<std::size_t>(number);
    if (number > 0 && version <= upgrades_.size()) return true;
    error = "The saved states of the database are of version " + std::to_string(number) +
            "; this program knows those up to version " + std::to_string(upgrades_.size());
    return false;
}

/// Who may read a server's tables need not have the right to make some.
bool StateStore::FailToMake(std::string& error) const {
    if (database_.Sql().isServer) error = "the tables for states cannot be made: " + error;
    return false;
}

bool StateStore::UpgradeFrom(std::size_t version, std::string& error) {
    if (version == upgrades_.size()) return true;
    for (; version < upgrades_.size(); ++version) {
        for (const char* const statement : upgrades_[version]) {
            if (!database_.Execute(statement, error)) return FailToMake(error);
        }
    }
    return RunWith("UPDATE znbrowser_schema SET version = ?", static_cast<std::int64_t>(version), error);
}

/// Before reading: looks whether there are tables, and brings them up to date.
bool StateStore::Ready(bool& hasTables, std::string& error) {
    std::size_t version = 0;
    if (!ReadVersion(version, error)) return false;
    hasTables = version > 0;
    if (!hasTables || version == upgrades_.size()) return true;
    Change change(*this);
    return change.Begin(error) && change.Commit(error);
}

bool StateStore::ReadyFor(std::string_view name, std::string& error) {
    bool hasTables = false;
    if (!Ready(hasTables, error)) return false;
    if (!hasTables) error = NoState(name);
    return hasTables;
}

// ---- States ----

bool StateStore::FindState(std::string_view name, std::int64_t& id, std::string& error) {
    Statement state = Prepare("SELECT id FROM znbrowser_state WHERE name = ?");
    state.Bind(1, name);
    const bool found = state.Next();
    if (found) id = state.Integer(0);
    if (state.Finish(error) && !found) error = NoState(name);
    return found;
}

bool StateStore::Names(std::vector<std::string>& names, std::string& error) {
    names.clear();
    bool hasTables = false;
    if (!Ready(hasTables, error)) return false;
    if (!hasTables) return true;
    Statement states = Prepare("SELECT name FROM znbrowser_state ORDER BY id");
    while (states.Next()) names.emplace_back(states.Text(0));
    return states.Finish(error);
}

bool StateStore::Create(std::string_view name, std::string& error) {
    if (name.empty()) {
        error = "A state needs a name";
        return false;
    }
    Change change(*this);
    if (!change.Begin(error)) return false;
    Statement state = Prepare("INSERT INTO znbrowser_state (name) VALUES (?) "
                              "ON CONFLICT DO NOTHING RETURNING id");
    state.Bind(1, name);
    const bool isNew = state.Next();
    state.Next();
    if (!state.Finish(error)) return false;
    if (!isNew) error = "A state \"" + std::string(name) + "\" already exists";
    return isNew && change.Commit(error);
}

bool StateStore::Delete(std::string_view name, std::string& error) {
    Change change(*this);
    std::int64_t id = 0;
    return change.Begin(error) && FindState(name, id, error) &&
           RunWith("DELETE FROM znbrowser_setting WHERE state = ?", id, error) &&
           RunWith("DELETE FROM znbrowser_entity WHERE state = ?", id, error) &&
           RunWith("DELETE FROM znbrowser_state WHERE id = ?", id, error) && change.Commit(error);
}

// ---- Settings ----

bool StateStore::Write(std::string_view name, const Settings& settings, std::string& error) {
    Change change(*this);
    std::int64_t id = 0;
    if (!change.Begin(error) || !FindState(name, id, error)) return false;
    if (!RunWith("DELETE FROM znbrowser_setting WHERE state = ?", id, error)) return false;
    Statement row = Prepare("INSERT INTO znbrowser_setting VALUES (?, ?, ?, ?, ?, ?)");
    row.Bind(1, id);
    std::int64_t position = 0;
    for (const Setting& setting : settings) {
        row.Bind(2, setting.kind);
        row.Bind(3, ++position);
        row.Bind(4, setting.subject);
        row.Bind(5, setting.key);
        row.Bind(6, setting.value);
        row.Next();
        row.Rewind();
    }
    return row.Finish(error) && change.Commit(error);
}

bool StateStore::ReadSettings(Statement& rows, std::string_view name, Settings& settings,
                              std::string& error) {
    bool found = false;
    while (rows.Next()) {
        found = true;
        if (rows.IsNull(0)) continue; // the state has none
        Setting& setting = settings.emplace_back();
        setting.kind = rows.Text(0);
        setting.subject = rows.Text(1);
        setting.key = rows.Text(2);
        setting.value = rows.Text(3);
    }
    if (rows.Finish(error) && !found) error = NoState(name);
    return found && !rows.Failed();
}

bool StateStore::Read(std::string_view name, Settings& settings, std::string& error) {
    settings.clear();
    if (!ReadyFor(name, error)) return false;
    Statement rows = Prepare("SELECT kind, subject, key, value FROM znbrowser_state "
                             "LEFT JOIN znbrowser_setting ON state = id "
                             "WHERE name = ? ORDER BY kind, position");
    rows.Bind(1, name);
    return ReadSettings(rows, name, settings, error);
}

bool StateStore::Read(std::string_view name, std::string_view kind, Settings& settings, std::string& error) {
    settings.clear();
    if (!ReadyFor(name, error)) return false;
    Statement rows = Prepare("SELECT kind, subject, key, value FROM znbrowser_state "
                             "LEFT JOIN znbrowser_setting ON state = id AND kind = ? "
                             "WHERE name = ? ORDER BY position");
    rows.Bind(1, kind);
    rows.Bind(2, name);
    return ReadSettings(rows, name, settings, error);
}

// ---- Entities ----

bool StateStore::Entities(std::string_view name, std::vector<std::string>& entities, std::string& error) {
    entities.clear();
    std::int64_t id = 0;
    if (!ReadyFor(name, error) || !FindState(name, id, error)) return false;
    Statement rows = Prepare("SELECT name FROM znbrowser_entity WHERE state = ? ORDER BY position");
    rows.Bind(1, id);
    while (rows.Next()) entities.emplace_back(rows.Text(0));
    return rows.Finish(error);
}

bool StateStore::AddEntities(std::string_view name, const std::vector<std::string>& entities,
                             std::string& error) {
    Change change(*this);
    std::int64_t id = 0;
    if (!change.Begin(error) || !FindState(name, id, error)) return false;
    Statement row = Prepare("INSERT INTO znbrowser_entity (state, name) VALUES (?, ?) "
                            "ON CONFLICT DO NOTHING");
    row.Bind(1, id);
    for (const std::string& entity : entities) {
        row.Bind(2, entity);
        row.Next();
        row.Rewind();
    }
    return row.Finish(error) && change.Commit(error);
}

bool StateStore::RemoveEntities(std::string_view name, const std::vector<std::string>& entities,
                                std::string& error) {
    Change change(*this);
    std::int64_t id = 0;
    if (!change.Begin(error) || !FindState(name, id, error)) return false;
    Statement row = Prepare("DELETE FROM znbrowser_entity WHERE state = ? AND name = ? "
                            "RETURNING position");
    row.Bind(1, id);
    for (const std::string& entity : entities) {
        row.Bind(2, entity);
        const bool found = row.Next();
        row.Rewind();
        if (!row.Finish(error)) return false;
        if (found) continue;
        error = "The state \"" + std::string(name) + "\" has no entity \"" + entity + "\"";
        return false;
    }
    return change.Commit(error);
}

} // namespace znhost
