// Telling those who show the rows of a window what changed.
#include "rows/row_model.h"

#include <algorithm>
#include <utility>

namespace znhost {

void RowModel::Tell(RowChange::Kind kind, std::uint32_t index) noexcept {
    if (observers_.empty()) return;
    Note({kind, index});
    Deliver();
}

void RowModel::Note(const RowChange& change) noexcept {
    try {
        changes_.push_back(change);
    } catch (const std::bad_alloc&) {
        untold_ = true;
    }
}

void RowModel::Deliver() noexcept {
    if (answering_ || delivering_) return;
    delivering_ = true;
    try {
        while (!changes_.empty() || untold_) {
            if (untold_) changes_.assign(1, RowChange());
            untold_ = false;
            DeliverToAll(std::exchange(changes_, {}));
        }
    } catch (const std::exception&) { // who did not hear is told with the next change, or after a question
        untold_ = true;
    }
    delivering_ = false;
}

/// Observers may be added and removed while others are told.
void RowModel::DeliverToAll(const std::vector<RowChange>& changes) {
    const std::vector<RowObserver*> observers = observers_;
    for (RowObserver* const observer : observers) {
        const bool stays = std::find(observers_.begin(), observers_.end(), observer) != observers_.end();
        if (stays) observer->OnRowsChanged(changes);
    }
}

void RowModel::RemoveObserver(const RowObserver& observer) {
    observers_.erase(std::remove(observers_.begin(), observers_.end(), &observer), observers_.end());
}

} // namespace znhost
