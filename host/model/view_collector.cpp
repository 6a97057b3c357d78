#include "model/view_collector.h"

#include "base/read_trouble.h"
#include "model/row_source.h"

#include <algorithm>
#include <utility>

namespace znhost {

// ---- Changing ----

std::optional<ViewCollector::Prepared> ViewCollector::Prepare(std::string name, const CollectorState& from,
                                                              CollectorState to, CollectorLook look) {
    CollectorChange change = CollectorChange::Between(from, to);
    if (change.IsEmpty()) return std::nullopt;
    CollectorLook whole = done_.Prepare(look);
    return Prepared{std::move(to), {std::move(name), std::move(change), std::move(look)}, std::move(whole)};
}

void ViewCollector::Commit(Prepared prepared) noexcept {
    now_ = std::move(prepared.state);
    done_.Push(std::move(prepared.step), std::move(prepared.look));
    undone_.Clear();
}

void ViewCollector::Travel(StepStack& from, StepStack& to, CollectorLook look) {
    CollectorStep step = from.Top();
    CollectorState state = step.change.Apply(now_);
    CollectorLook below = from.LookBelow();
    CollectorLook kept = to.Prepare(look);
    step.look = std::move(look);
    from.Pop(std::move(below)); // from here on nothing takes memory
    to.Push(std::move(step), std::move(kept));
    now_ = std::move(state);
}

void ViewCollector::ClearSteps() noexcept {
    done_.Clear();
    undone_.Clear();
    if (befores_.empty()) names_.Clear();
}

void ViewCollector::Reset() noexcept {
    ClearSteps();
    now_.collected = {};
    for (auto& entry : befores_) entry.second.state.collected = {};
    preselected_ = {};
}

// ---- Named collections ----

NamedCollection* ViewCollector::FindNamed(std::string_view name) {
    const auto found =
        std::find_if(named_.begin(), named_.end(), [name](const auto& named) { return named.name == name; });
    return found == named_.end() ? nullptr : &*found;
}

void ViewCollector::SetNamed(const std::string& name, ItemSets items) {
    if (NamedCollection* const named = FindNamed(name)) {
        named->items = std::move(items);
    } else {
        named_.push_back({name, std::move(items)});
    }
}

void ViewCollector::DeleteNamed(std::string_view name) {
    if (currentNamed_ == name) currentNamed_.clear();
    std::erase_if(named_, [name](const auto& named) { return named.name == name; });
}

// ---- What does not exist any more ----

void ViewCollector::Forget(const ItemSets::Source* source) noexcept {
    const auto forget = [source](CollectorState& state) {
        state.collected.Forget(source);
        state.display.Forget(source);
    };
    forget(now_);
    for (auto& entry : befores_) {
        forget(entry.second.state);
        entry.second.look.selected.Forget(source);
    }
    done_.Forget(source);
    undone_.Forget(source);
    for (NamedCollection& named : named_) named.items.Forget(source);
    if (preselected_.source == source) preselected_ = {};
}

void ViewCollector::ForgetWindow(const ViewObserver* window) noexcept {
    done_.ForgetWindow(window);
    undone_.ForgetWindow(window);
    for (auto& entry : befores_) entry.second.look.windows.erase(window);
}

namespace {

void ForgetRowsOf(CollectorState& state, ItemSets::Source* source, const RowSet& rows) {
    state.collected.Forget(source, rows);
    const DisplayState::Rows displayed = state.display.Of(source);
    if (!displayed) return;
    DisplayedRows left = *displayed;
    if (left.rows.Remove(rows)) state.display.Set(source, std::move(left));
}

/// The rows of that source that have come since its set was made; `mark` is moved to where they end. None
/// when they cannot be read.
RowSet NewRowsOf(DisplayState::Source* source, RowMark& mark, const ReadTrouble& trouble) {
    const ReadTrouble::Watch watch(trouble);
    RowSource& items = *GetRowSource(source);
    std::vector<std::int64_t> rows;
    items.NewRows(mark, rows);
    RowMark now = items.Mark();
    RowSet added;
    if (watch.Seen()) return added;
    added.Add(std::move(rows));
    mark = std::move(now);
    return added;
}

} // namespace

void ViewCollector::ForgetRows(ItemSets::Source* source, const RowSet& rows) {
    ForgetRowsOf(now_, source, rows);
    for (auto& entry : befores_) {
        ForgetRowsOf(entry.second.state, source, rows);
        entry.second.look.selected.Forget(source, rows);
    }
    done_.Forget(source, rows);
    undone_.Forget(source, rows);
    for (NamedCollection& named : named_) named.items.Forget(source, rows);
    if (preselected_.source == source && rows.Has(preselected_.row)) preselected_ = {};
}

bool ViewCollector::ForgetMissing(std::uint64_t since) {
    std::map<ItemSets::Source*, RowSet> known;
    const auto add = [&known](const ItemSets& items) {
        for (const auto& [source, rows] : items.All()) known[source].Add(rows);
    };
    const auto addState = [&](const CollectorState& state) {
        add(state.collected);
        for (const auto& [source, rows] : state.display.All()) known[source].Add(rows->rows);
    };
    addState(now_);
    for (const auto& entry : befores_) {
        addState(entry.second.state);
        add(entry.second.look.selected);
    }
    done_.AddRowsTo(known);
    undone_.AddRowsTo(known);
    for (const NamedCollection& named : named_) add(named.items);
    if (preselected_.source) known[preselected_.source].Add(preselected_.row);
    bool changed = false;
    for (const auto& [source, rows] : known) {
        RowSet missing;
        missing.Add(MissingOf(source, rows, since));
        if (missing.IsEmpty()) continue;
        ForgetRows(source, missing);
        changed = true;
    }
    return changed;
}

/// Where only the rows of a set are shown, those that come are added to it.
bool ViewCollector::AddNewRows(const ReadTrouble& trouble) {
    bool changed = false;
    std::vector<CollectorState*> states{&now_};
    for (auto& entry : befores_) states.push_back(&entry.second.state);
    for (CollectorState* const state : states) {
        const DisplayState::Sources sources = state->display.All();
        for (const auto& [source, displayed] : sources) {
            if (!displayed->only) continue;
            DisplayedRows more = *displayed;
            RowSet added = NewRowsOf(source, more.mark, trouble);
            added.Remove(more.rows);
            more.rows.Add(added);
            StepStack::Grown done;
            StepStack::Grown undone;
            if (state == &now_ && !added.IsEmpty()) {
                done = done_.AddNew(source, added);
                undone = undone_.AddNew(source, added);
                changed = true;
            }
            state->display.Set(source, std::move(more));
            done.Commit();
            undone.Commit();
        }
    }
    return changed;
}

bool ViewCollector::LookAgain(const ReadTrouble& trouble, std::uint64_t since) {
    ++looks_;
    const bool forgot = ForgetMissing(since);
    return AddNewRows(trouble) || forgot;
}

} // namespace znhost
