#include "store/row_journal.h"

#include "store/database.h"

#include <algorithm>
#include <new>

// Tells both numbers of a row that got another one, and of rows that others replaced.
#define SQLITE_ENABLE_PREUPDATE_HOOK
#include <sqlite3.h>

namespace znhost {

namespace {

/// Who shows the rows would not look at so many one by one.
constexpr std::size_t mostEntries = 256;

} // namespace

RowJournal::RowJournal(Database& database) : database_(database), forgotten_(ChangeCount::Now()) { Watch(); }

RowJournal::~RowJournal() {
    sqlite3_preupdate_hook(database_.Handle(), nullptr, nullptr);
    sqlite3_rollback_hook(database_.Handle(), nullptr, nullptr);
}

void RowJournal::Watch() noexcept {
    const auto note = [](void* self, sqlite3*, int, const char* database, const char* table,
                         sqlite3_int64 before, sqlite3_int64 after) {
        RowJournal& journal = *static_cast<RowJournal*>(self);
        journal.Note(database, table, before);
        if (after != before) journal.Note(database, table, after);
    };
    sqlite3_preupdate_hook(database_.Handle(), note, this);
    const auto lose = [](void* self) { static_cast<RowJournal*>(self)->Lose(); };
    sqlite3_rollback_hook(database_.Handle(), lose, this);
}

void RowJournal::Forget() noexcept {
    Watch();
    Lose();
}

void RowJournal::Lose() noexcept {
    entries_.clear();
    forgotten_ = ChangeCount::Now();
}

/// The host's own copies lie in the temporary database.
void RowJournal::Note(std::string_view database, const char* table, std::int64_t row) noexcept {
    if (database == "temp") return;
    if (entries_.size() == mostEntries) Lose();
    if (forgotten_ == ChangeCount::Last()) { // nobody has looked since
        forgotten_ = ChangeCount::Now();
        return;
    }
    try {
        entries_.push_back({ChangeCount::Now(), table, row});
    } catch (const std::bad_alloc&) {
        Lose();
    }
}

bool RowJournal::IsQuiet(std::uint64_t since) const {
    return since >= forgotten_ && (entries_.empty() || entries_.back().number <= since);
}

bool RowJournal::Read(std::uint64_t since, std::string_view table, std::vector<std::int64_t>& rows) const {
    if (since < forgotten_) return false;
    for (const Entry& entry : entries_) {
        if (entry.number > since && entry.table == table) rows.push_back(entry.row);
    }
    return true;
}

} // namespace znhost
