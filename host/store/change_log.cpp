#include "store/change_log.h"

#include "store/transaction.h"

#include <algorithm>

namespace znhost {

namespace {

constexpr std::size_t mostChanges = 10000;

bool RunStep(Database& database, const ChangeLog::Step& step, std::string& error) {
    const std::int64_t before = database.RowsChanged();
    Database::Rows none;
    if (!database.Run(step.sql, step.values, none, error)) return false;
    if (database.RowsChanged() != before) return true;
    error = "the row has been changed or deleted since";
    return false;
}

} // namespace

void ChangeLog::Add(Change change) {
    changes_.push_back(std::move(change));
    if (changes_.size() > mostChanges) changes_.pop_front();
}

bool ChangeLog::Undo(Database& database, std::string& error) {
    if (changes_.empty()) {
        error = "there is nothing to undo";
        return false;
    }
    const std::vector<Step>& steps = changes_.back().steps;
    Transaction transaction(database);
    const auto run = [&](const Step& step) { return RunStep(database, step, error); };
    if (!transaction.Begin(error) || !std::all_of(steps.rbegin(), steps.rend(), run)) return false;
    if (!transaction.Commit(error)) return false;
    changes_.pop_back();
    return true;
}

} // namespace znhost
