#include "store/row_journal.h"

#include <algorithm>
#include <new>

namespace znhost {

namespace {

/// Who shows the rows would not look at so many one by one.
constexpr std::size_t mostEntries = 256;

} // namespace

RowJournal::RowJournal(Database& database)
    : database_(database), isTold_(database.WatchRows(this)), forgotten_(ChangeCount::Now()) {}

RowJournal::~RowJournal() { database_.WatchRows(nullptr); }

void RowJournal::Forget() noexcept {
    entries_.clear();
    forgotten_ = ChangeCount::Now();
}

void RowJournal::OnRowChange(std::string_view table, std::int64_t row) noexcept {
    if (entries_.size() == mostEntries) Forget();
    if (forgotten_ == ChangeCount::Last()) { // nobody has looked since
        forgotten_ = ChangeCount::Now();
        return;
    }
    try {
        entries_.push_back({ChangeCount::Now(), std::string(table), row});
    } catch (const std::bad_alloc&) {
        Forget();
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
