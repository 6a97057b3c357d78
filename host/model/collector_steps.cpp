#include "model/collector_steps.h"

#include <algorithm>
#include <utility>

namespace znhost {

namespace {

constexpr std::size_t mostSteps = 100; ///< that are kept

const DisplayedRows& RowsOf(const DisplayState::Rows& rows) {
    static const DisplayedRows all;
    return rows ? *rows : all;
}

} // namespace

// ---- Changes ----

CollectorChange CollectorChange::Between(const CollectorState& from, const CollectorState& to) {
    CollectorChange change;
    change.collected = from.collected;
    change.collected.Toggle(to.collected);
    const auto compare = [&](ItemSets::Source* source) {
        const DisplayState::Rows before = from.display.Of(source);
        const DisplayState::Rows after = to.display.Of(source);
        if (before == after) return;
        RowSet rows = RowsOf(before).rows;
        rows.Toggle(RowsOf(after).rows);
        change.displayed.Set(source, std::move(rows));
        if (RowsOf(before).only != RowsOf(after).only) change.turned[source] = RowsOf(before).mark;
    };
    for (const auto& entry : from.display.All()) compare(entry.first);
    for (const auto& entry : to.display.All()) compare(entry.first);
    return change;
}

CollectorState CollectorChange::Apply(const CollectorState& state) {
    CollectorState other = state;
    other.collected.Toggle(collected);
    const auto apply = [&](ItemSets::Source* source, const RowSet& rows, RowMark* mark) {
        DisplayedRows own = RowsOf(state.display.Of(source));
        own.rows.Toggle(rows);
        if (mark) {
            own.only = !own.only;
            std::swap(own.mark, *mark);
        }
        other.display.Set(source, std::move(own));
    };
    for (const auto& [source, rows] : displayed.All()) {
        const auto turns = turned.find(source);
        apply(source, rows, turns == turned.end() ? nullptr : &turns->second);
    }
    for (auto& [source, mark] : turned) { // with an empty set on either side
        if (!displayed.Of(source)) apply(source, {}, &mark);
    }
    return other;
}

void CollectorLook::Toggle(const CollectorLook& other) {
    selected.Toggle(other.selected);
    folders.Toggle(other.folders);
    for (const auto& [window, look] : other.windows) {
        Window& own = windows[window];
        own.expanded.Toggle(look.expanded);
        own.selected.Toggle(look.selected);
        own.scroll ^= look.scroll;
        own.known = own.known != look.known;
    }
}

// ---- The stack ----

CollectorLook StepStack::Prepare(CollectorLook& look) {
    steps_.reserve(std::max(steps_.size() + 1, mostSteps + 1));
    CollectorLook whole = look;
    if (steps_.empty()) {
        look = {};
    } else {
        look.Toggle(topLook_);
    }
    return whole;
}

void StepStack::Push(CollectorStep step, CollectorLook topLook) noexcept {
    steps_.push_back(std::move(step));
    topLook_ = std::move(topLook);
    if (steps_.size() <= mostSteps) return;
    steps_.erase(steps_.begin());
    steps_.front().look = {}; // there is nothing below it any more
}

CollectorLook StepStack::LookBelow() const {
    if (steps_.size() < 2) return {};
    CollectorLook look = topLook_;
    look.Toggle(steps_.back().look);
    return look;
}

CollectorStep StepStack::Pop(CollectorLook lookBelow) noexcept {
    CollectorStep step = std::move(steps_.back());
    steps_.pop_back();
    topLook_ = std::move(lookBelow);
    return step;
}

void StepStack::Clear() noexcept {
    steps_.clear();
    steps_.shrink_to_fit();
    topLook_ = {};
}

// ---- What does not exist any more, and what is new ----

void StepStack::ForEachLook(const std::function<void(CollectorLook&)>& visit) {
    for (CollectorStep& step : steps_) visit(step.look);
    visit(topLook_);
}

void StepStack::Forget(const ItemSets::Source* source) noexcept {
    for (CollectorStep& step : steps_) {
        step.change.collected.Forget(source);
        step.change.displayed.Forget(source);
        step.change.turned.erase(const_cast<ItemSets::Source*>(source));
        step.look.selected.Forget(source);
    }
    topLook_.selected.Forget(source);
}

void StepStack::ForgetWindow(const ViewObserver* window) noexcept {
    for (CollectorStep& step : steps_) step.look.windows.erase(window);
    topLook_.windows.erase(window);
}

void StepStack::Forget(ItemSets::Source* source, const RowSet& rows) {
    for (CollectorStep& step : steps_) {
        step.change.collected.Forget(source, rows);
        step.change.displayed.Forget(source, rows);
    }
    ForEachLook([&](CollectorLook& look) { look.selected.Forget(source, rows); });
}

StepStack::Grown StepStack::AddNew(ItemSets::Source* source, const RowSet& rows) {
    const auto turns = [source](const CollectorStep& step) { return step.change.turned.count(source) != 0; };
    const auto last = std::find_if(steps_.rbegin(), steps_.rend(), turns);
    if (last == steps_.rend()) return {};
    Grown grown{&*last, last->change.displayed};
    grown.displayed.Toggle(source, rows);
    return grown;
}

void StepStack::AddRowsTo(std::map<ItemSets::Source*, RowSet>& rows) const {
    const auto add = [&rows](const ItemSets& items) {
        for (const auto& [source, own] : items.All()) rows[source].Add(own);
    };
    for (const CollectorStep& step : steps_) {
        add(step.change.collected);
        add(step.change.displayed);
        add(step.look.selected);
    }
    add(topLook_.selected);
}

} // namespace znhost
