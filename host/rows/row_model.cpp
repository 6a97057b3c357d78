// What a window shows: the questions about its rows, and how it hears of changes.
#include "rows/row_model.h"

#include "base/change_count.h"
#include "base/services.h"
#include "host/znBrowserDataItems.h"
#include "host/znIBrowserDataReference.h"
#include "host/znIBrowserDataSourceHierarchical.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "model/browser.h"
#include "model/view.h"

#include <algorithm>
#include <unordered_map>

namespace znhost {

RowModel::RowModel(View& view)
    : view_(&view), log_(view.Log()), plan_(view), cells_(view, plan_), pending_(VIEW_ALL) {
    plan_.SetStopped([this] { return stopped_ || !GoesOn(); });
    tree_.Root().content.folder = view.RootFolder().shared_from_this();
}

// ---- Changes ----

void RowModel::OnViewChanged(unsigned changes) noexcept {
    pending_ |= changes;
    if (changes & (VIEW_ROWS | VIEW_FILTER | VIEW_ITEMS)) {
        Tell(RowChange::AllFilled);
    } else if (changes & (VIEW_CELLS | VIEW_COLUMNS | VIEW_COLLECTED)) {
        Tell(RowChange::AllCells);
    }
    if (changes & VIEW_COLLECTED) Tell(RowChange::Collector);
    if (changes & VIEW_SELECTION) Tell(RowChange::Selection);
}

// The rows of a deleted source are not used again until they have been listed again.
void RowModel::OnSourceDeleted(znIBrowserDataSource&) noexcept {
    stopped_ = true;
    OnViewChanged(VIEW_ROWS);
}

void RowModel::OnFolderDeleted(FreeFolder&) noexcept { OnViewChanged(VIEW_ROWS); }

void RowModel::OnViewDeleted() noexcept {
    stopped_ = true;
    view_ = nullptr;
    if (!answering_) LetGo();
    Tell(RowChange::AllFilled);
}

RowModel::Answering::Answering(RowModel& model) : model_(model), quiet_(model.log_) {
    if (!model_.answering_ && model_.view_) model_.view_->Changed(0); // what it could not tell
    if (model_.answering_++) return;
    try {
        model_.TakeOver();
    } catch (...) {
        model_.pending_ |= VIEW_ROWS;
        model_.EndAnswer();
        throw;
    }
}

RowModel::Answering::~Answering() { model_.EndAnswer(); }

void RowModel::EndAnswer() noexcept {
    if (--answering_) return;
    if (tree_.IsBroken()) {
        tree_.Clear();
        selectedContainers_.clear();
        pending_ |= VIEW_ROWS;
        if (!observers_.empty()) Note({});
    }
    if (!view_) LetGo();
    Deliver();
}

/// Lets go of the rows: the view is gone.
void RowModel::LetGo() noexcept {
    cells_.Forget();
    tree_.Clear();
    tree_.Root().content.folder.reset();
    shown_.clear();
    kept_.reset();
    ForgetCounts();
}

void RowModel::ForgetCounts() noexcept {
    slow_.clear();
    whole_.clear();
    uncounted_.clear();
}

void RowModel::TakeOver() {
    stopped_ = false;
    cells_.Forget();
    if (!view_) {
        LetGo();
        return;
    }
    const unsigned changes = std::exchange(pending_, 0U);
    if (changes & ~unsigned{VIEW_SELECTION | VIEW_COLLECTED}) ++revision_;
    if (changes & VIEW_COLUMNS) shown_.clear();
    if (changes & (VIEW_ROWS | VIEW_CELLS | VIEW_ITEMS)) plan_.ForgetMatches();
    if (changes & (VIEW_ROWS | VIEW_FILTER | VIEW_CELLS | VIEW_ITEMS)) ForgetCounts();
    if (!(changes & (VIEW_ROWS | VIEW_FILTER | VIEW_ITEMS))) return;
    plan_.Forget();
    const std::uint64_t since = std::exchange(itemsSeen_, ChangeCount::Now());
    if ((changes & (VIEW_ROWS | VIEW_FILTER)) || kept_ || !RefreshItems(since)) Refresh();
    if (kept_ && !stopped_) BringBackKept();
    if (stopped_) pending_ |= VIEW_ROWS;
}

// ---- Questions ----

std::int64_t RowModel::Count() {
    const Answering answering(*this);
    return IsReady() ? tree_.Count() : 0;
}

std::vector<RowLook> RowModel::Read(std::int64_t first, std::int64_t count, bool countsBelow) {
    const Answering answering(*this);
    std::vector<Row> rows;
    if (!IsReady() || first < 0 || first >= tree_.Count()) return {};
    for (Row row = tree_.At(first); row && count > 0; row = tree_.Next(row), --count) rows.push_back(row);
    return LooksOf(rows, countsBelow);
}

void RowModel::ReadEach(std::int64_t first, std::int64_t count,
                        const std::function<bool(const RowLook&)>& take) {
    constexpr std::int64_t atOnce = 1000;
    const Answering answering(*this);
    while (count > 0) {
        const std::vector<RowLook> looks = Read(first, std::min(count, atOnce));
        if (looks.empty() || !std::all_of(looks.begin(), looks.end(), take)) return;
        first += atOnce;
        count -= atOnce;
    }
}

std::vector<RowLook> RowModel::ReadBelow(std::uint32_t index, std::int64_t first, std::int64_t count) {
    const Answering answering(*this);
    std::vector<Row> rows;
    const Row above = index == RowChange::root ? Row{&tree_.Root(), nullptr, 0} : Find(index);
    if (!IsReady() || !above.node || first < 0) return {};
    for (const TreePart& part : above.node->parts) {
        const auto size = part.node ? std::int64_t{1} : static_cast<std::int64_t>(part.block->rows.size());
        for (; first < size && count > 0; ++first, --count) {
            rows.push_back(part.node ? RowTree::RowOf(*part.node)
                                     : RowTree::ItemAt(*part.block, static_cast<std::uint32_t>(first)));
        }
        first = std::max<std::int64_t>(first - size, 0);
    }
    return LooksOf(rows);
}

bool RowModel::Has(std::uint32_t index) { return HasAll({index}); }

bool RowModel::HasAll(const std::vector<std::uint32_t>& indices) {
    const Answering answering(*this);
    return std::all_of(indices.begin(), indices.end(),
                       [this](std::uint32_t index) { return bool(Find(index)); });
}

std::int64_t RowModel::CountBelow(std::uint32_t index) {
    const Answering answering(*this);
    const Row row = Find(index);
    if (!row) return -1;
    if (row.IsItem()) return plan_.Count(row.Content(), row.Number());
    constexpr auto timeToCount = std::chrono::milliseconds(100);
    const HostServices::Hurry hurry(Services(), timeToCount);
    return CountOf(row).value_or(-1);
}

std::int64_t RowModel::PositionOf(std::uint32_t index) {
    const Answering answering(*this);
    const Row row = Find(index);
    return row ? tree_.PositionOf(row) : -1;
}

std::vector<std::uint32_t> RowModel::SelectedRows() {
    const Answering answering(*this);
    return IsReady() ? SelectedIndices() : std::vector<std::uint32_t>();
}

std::vector<std::uint32_t> RowModel::IndicesFrom(std::int64_t first, std::int64_t count) {
    const Answering answering(*this);
    std::vector<std::uint32_t> indices;
    if (!IsReady() || first < 0 || first >= tree_.Count()) return indices;
    for (Row row = tree_.At(first); row && count > 0; row = tree_.Next(row), --count)
        indices.push_back(row.Index());
    return indices;
}

bool RowModel::GetItem(std::uint32_t index, znBrowserDataItem& item) {
    const Answering answering(*this);
    const Row row = Find(index);
    if (!row.IsItem()) return false;
    item = {row.Content().source->GetSource(), row.Number()};
    return true;
}

const RowContent* RowModel::ContentAt(std::uint32_t index) {
    const Answering answering(*this);
    const Row row = Find(index);
    return row ? &row.Content() : nullptr;
}

ViewProperty* RowModel::PropertyOf(std::uint32_t index, const Column& column, const std::string& element) {
    const Answering answering(*this);
    const Row row = Find(index);
    return row.IsItem() ? cells_.PropertyOf(row.Content(), column, element) : nullptr;
}

// ---- What cannot be read, or not in time ----

HostServices& RowModel::Services() const { return view_->Owner().Services(); }

/// What others keep from being read is read again with the next question. @return whether there was trouble
bool RowModel::NoteTrouble(const ReadTrouble::Watch& watch) {
    if (!watch.Seen()) return false;
    trouble_ = watch.Text();
    if (watch.Why() == ReadTrouble::Kind::Passing) pending_ |= VIEW_ROWS;
    return true;
}

RowModel::Place RowModel::PlaceOf(const RowContent& container) {
    const void* const source = container.source;
    return {container.folder.get(), container.kind == RowKind::Tree ? container.scope->tree : source};
}

/// Whether there was no time to look: then it is not tried again before the data change, but when there is
/// nothing else to do.
bool RowModel::IsTooLong(const ReadTrouble::Watch& watch, const RowContent& container) {
    if (!watch.Seen() || watch.Why() != ReadTrouble::Kind::TooLong) return false;
    if (slow_.emplace(PlaceOf(container), std::nullopt).second) uncounted_.push_back({container});
    return true;
}

/// How many rows are shown directly below; nothing when some of them could not be read.
std::optional<std::int64_t> RowModel::CountIn(const RowNode& node) {
    std::int64_t count = 0;
    for (const TreePart& part : node.parts) {
        if (part.node && part.node->content.IsNote()) return std::nullopt;
        count += part.node ? 1 : static_cast<std::int64_t>(part.block->rows.size());
    }
    return count;
}

/// How many rows lie directly below; nothing when that is not known.
std::optional<std::int64_t> RowModel::CountOf(const Row& row) {
    const RowContent& container = row.Content();
    if (row.IsExpanded()) return CountIn(*row.node);
    if (const auto slow = slow_.find(PlaceOf(container)); slow != slow_.end()) return slow->second;
    const ReadTrouble::Watch watch(Services().Trouble());
    const std::int64_t count = plan_.Count(container);
    if (IsTooLong(watch, container) || NoteTrouble(watch)) return std::nullopt;
    return count;
}

/// Whether the rows were too many to be counted at once.
bool RowModel::IsWaiting(const RowContent& container) const {
    const auto slow = slow_.find(PlaceOf(container));
    return slow != slow_.end() && !slow->second;
}

/// "(12)", or where rows are hidden "(7 of 12)"; "(…)" as long as it is not known, nothing where it cannot
/// be.
std::string RowModel::CountText(const Row& row, std::optional<std::int64_t> count) {
    if (!count) return IsWaiting(row.Content()) ? " (…)" : "";
    const RowContent& container = row.Content();
    const auto [known, isNew] = whole_.try_emplace(PlaceOf(container));
    if (isNew) {
        const ReadTrouble::Watch watch(Services().Trouble());
        known->second = plan_.CountWhole(container);
        if (watch.Seen()) known->second.reset();
    }
    std::string text = " (" + std::to_string(*count);
    if (known->second && *known->second != *count) text += " of " + std::to_string(*known->second);
    return text + ")";
}

bool RowModel::MayHaveRows(const Row& row) {
    const RowContent& container = row.Content();
    if (container.IsNote()) return false; // though it has the place of what it speaks of
    const auto slow = slow_.find(PlaceOf(container));
    if (slow != slow_.end()) return !slow->second || *slow->second > 0;
    const ReadTrouble::Watch watch(Services().Trouble());
    const bool has = plan_.HasRows(container);
    if (!IsTooLong(watch, container)) NoteTrouble(watch);
    return has;
}

void RowModel::CountMore() {
    constexpr auto shortest = std::chrono::milliseconds(150);
    constexpr auto longest = std::chrono::milliseconds(2000);
    const Answering answering(*this);
    if (!view_ || uncounted_.empty()) return;
    const auto least =
        std::min_element(uncounted_.begin(), uncounted_.end(),
                         [](const Uncounted& a, const Uncounted& b) { return a.tried < b.tried; });
    Uncounted next = std::move(*least);
    uncounted_.erase(least);
    const auto time = std::max(shortest, 4 * next.tried);
    const HostServices::Hurry hurry(Services(), time);
    const ReadTrouble::Watch watch(Services().Trouble());
    const std::int64_t count = plan_.Count(next.container);
    if (!watch.Seen()) {
        slow_[PlaceOf(next.container)] = count;
        Tell(RowChange::AllCells);
        return;
    }
    const bool isTooLong = watch.Why() == ReadTrouble::Kind::TooLong;
    if (isTooLong) next.tried = time;
    if (next.tried < longest && (isTooLong || !Services().WhyStop().empty())) uncounted_.push_back(next);
}

} // namespace znhost
