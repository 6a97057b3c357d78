// The collector's steps: how one is made, how the windows looked before it, and how that comes back.
#include "base/services.h"
#include "window/browser_windows.h"
#include "window/collector.h"
#include "window/window_list.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace znhost {

namespace {

/// While one lives a flag is up.
class Raised {
public:
    explicit Raised(bool& flag) : flag_(flag) { flag_ = true; }
    ~Raised() { flag_ = false; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

private:
    bool& flag_;
};

// ---- Rows by their numbers ----

/// The numbers of rows each of which lies in one of `above`, by place counted from 1; 0: the top.
std::vector<std::uint32_t> NumbersOf(RowNames& names, const std::vector<KeptRow>& rows,
                                     const std::vector<std::uint32_t>& above) {
    std::vector<std::uint32_t> numbers{0};
    const std::vector<std::uint32_t>& places = above.empty() ? numbers : above;
    for (const KeptRow& row : rows) {
        numbers.push_back(names.NumberOf({places[row.above], static_cast<int>(row.kind), row.name, row.row}));
    }
    return numbers;
}

/// All but the first one, which stands for the top.
RowSet SetOf(const std::vector<std::uint32_t>& numbers) {
    RowSet set;
    set.Add(std::vector<RowSet::Row>(numbers.begin() + 1, numbers.end()));
    return set;
}

std::uint32_t NumberOf(RowNames& names, const FreeFolder& folder) {
    constexpr auto kind = static_cast<int>(RowKind::Folder);
    const FreeFolder* const parent = folder.Parent();
    if (!parent) return names.NumberOf({0, kind, folder.Name(), -1}); // the root, which is no row
    const std::uint32_t above = parent->Parent() ? NumberOf(names, *parent) : 0;
    return names.NumberOf({above, kind, folder.Name(), 0});
}

/// The rows of these numbers, each in one of `above`, which receives the place of each number; its own set is
/// one in which each row lies in one of the same set.
std::vector<KeptRow> RowsOf(const RowNames& names, const RowSet& numbers,
                            std::map<std::uint32_t, std::size_t>& places, bool own) {
    std::vector<KeptRow> rows;
    rows.reserve(numbers.Size());
    numbers.ForEach([&](RowSet::Row number) {
        RowNames::Name name = names.NameOf(static_cast<std::uint32_t>(number));
        const auto above = places.find(name.above);
        if (above == places.end()) return;
        rows.push_back({above->second, static_cast<RowKind>(name.kind), std::move(name.name), name.row});
        if (own) places.emplace(static_cast<std::uint32_t>(number), rows.size());
    });
    return rows;
}

unsigned WhatChanges(const CollectorChange& change) {
    const bool displays = !change.displayed.IsEmpty() || !change.turned.empty();
    return (displays ? VIEW_ROWS | VIEW_COLLECTED : 0U) | (change.collected.IsEmpty() ? 0U : VIEW_COLLECTED);
}

} // namespace

HostServices& Collector::Services() const { return browser_.Services(); }

std::vector<std::shared_ptr<Window>> Collector::WindowsOf(const View& view) const {
    std::vector<std::shared_ptr<Window>> windows;
    for (const auto& window : browser_.Windows().All()) {
        if (window->ShownView() == &view) windows.push_back(window);
    }
    return windows;
}

bool Collector::IsThere(const View& view) const { return browser_.Views().Find(view.Name()) == &view; }

/// Tells the windows. Whoever could not be told for want of memory has taken note all the same: the step has
/// happened.
void Collector::Tell(View& view, unsigned changes) noexcept {
    try {
        view.Changed(changes);
    } catch (const std::exception&) {
    }
    TellBars(&view);
}

void Collector::TellBars(const View* view) noexcept {
    for (const auto& window : browser_.Windows().All()) {
        if (!view || window->ShownView() == view) window->Rows().Tell(RowChange::Collector);
    }
}

// ---- Looks ----

/// How the windows look now. What their rows show may come from scripts.
CollectorLook Collector::TakeLook(View& view) {
    CollectorLook look;
    RowNames& names = view.Collector().Names();
    for (const auto& window : WindowsOf(view)) {
        const RowModel::Answering answering(window->Rows());
        if (window->ShownView() != &view) continue;
        const auto expanded = NumbersOf(names, window->Rows().Expanded(), {});
        const auto selected = NumbersOf(names, window->Rows().SelectedContainers(), expanded);
        CollectorLook::Window& own = look.windows[window.get()];
        own = {SetOf(expanded), SetOf(selected), static_cast<std::uint32_t>(window->ScrollPosition()), true};
    }
    look.selected = view.Selected().Items();
    for (const FreeFolder* const folder : view.RootFolder().WithBelow()) {
        if (folder->IsSelected()) look.folders.Add(NumberOf(names, *folder));
    }
    return look;
}

/// A look on its way back: all that it takes memory for.
struct Collector::Brought {
    struct Rows {
        std::shared_ptr<Window> window;
        int scroll;
        bool isOther;
        std::vector<KeptRow> expanded;
        std::vector<KeptRow> selected;
    };

    Selection selection{nullptr};
    std::vector<std::pair<std::shared_ptr<FreeFolder>, bool>> folders;
    std::vector<Rows> rows;
};

Collector::Brought Collector::PrepareLook(View& view, const CollectorLook& look, const CollectorLook& now) {
    Brought brought;
    RowNames& names = view.Collector().Names();
    brought.selection = view.Selected().With(look.selected);
    for (FreeFolder* const folder : view.RootFolder().WithBelow()) {
        brought.folders.emplace_back(folder->shared_from_this(), look.folders.Has(NumberOf(names, *folder)));
    }
    for (auto& window : WindowsOf(view)) {
        const auto wanted = look.windows.find(window.get());
        if (wanted == look.windows.end() || !wanted->second.known) continue;
        const auto known = now.windows.find(window.get());
        const bool isOther = known == now.windows.end() ||
                             !(known->second.expanded == wanted->second.expanded) ||
                             !(known->second.selected == wanted->second.selected);
        Brought::Rows rows{std::move(window), static_cast<int>(wanted->second.scroll), isOther, {}, {}};
        std::map<std::uint32_t, std::size_t> places{{0, 0}};
        if (isOther) rows.expanded = RowsOf(names, wanted->second.expanded, places, true);
        if (isOther) rows.selected = RowsOf(names, wanted->second.selected, places, false);
        brought.rows.push_back(std::move(rows));
    }
    return brought;
}

void Collector::BringBack(View& view, Brought brought) noexcept {
    view.Selected().Exchange(brought.selection);
    for (const auto& [folder, selected] : brought.folders) folder->MarkSelected(selected);
    for (Brought::Rows& rows : brought.rows) {
        rows.window->ScrollTo(rows.scroll);
        if (rows.isOther) {
            rows.window->Rows().BringBack(std::move(rows.expanded), std::move(rows.selected));
        }
    }
    Tell(view, VIEW_ROWS | VIEW_SELECTION | VIEW_COLLECTED);
}

// ---- Making steps ----

/// Makes a step, or a part of the one of the action that runs. A script that computes a value meanwhile may
/// do anything but change a collector.
bool Collector::Make(View& view, const std::string& name, const Work& work) {
    const std::shared_ptr<View> held = view.shared_from_this();
    if (working_) return Fail("A script that computes values cannot collect, show or hide items");
    const Raised working(working_);
    const CallLog::Quiet quiet(log_);
    view.Changed(0); // lets go of what has vanished
    if (!acting_ && view.Collector().Done().IsEmpty() && view.Collector().Undone().IsEmpty())
        view.Collector().ClearSteps(); // and with them the numbers of rows that nothing names any more
    CollectorLook look;
    if (!acting_) look = TakeLook(view);
    const std::size_t looks = view.Collector().Looks();
    const ReadTrouble::Watch watch(Services().Trouble());
    CollectorState next = view.Collector().Now();
    if (!work(next)) return false;
    if (watch.Seen()) return Fail(watch.Text());
    if (!IsThere(view)) return Fail("A script deleted the view \"" + view.Name() + "\"");
    if (!Finish(view, name, std::move(next), std::move(look))) return true;
    if (view.Collector().Looks() != looks) view.NoteItems(VIEW_ROWS); // what was chosen may have gone since
    return true;
}

/// @return false when nothing changes, and there is no step
bool Collector::Finish(View& view, const std::string& name, CollectorState next, CollectorLook look) {
    ViewCollector& own = view.Collector();
    unsigned changes = 0;
    if (acting_) {
        changes = WhatChanges(CollectorChange::Between(own.Now(), next));
        if (changes) own.Replace(std::move(next));
    } else if (auto step = own.Prepare(name, own.Now(), std::move(next), std::move(look))) {
        changes = WhatChanges(step->step.change);
        own.Commit(*std::move(step));
    }
    if (changes) Tell(view, changes);
    return changes != 0;
}

// ---- Actions of scripts ----

Collector::Views Collector::ViewsNow() const { return browser_.HeldViews(); }

/// Keeps how all is before an action.
void Collector::Begin(const Views& views) {
    std::vector<ViewCollector::Before> befores;
    for (const auto& view : views) {
        view->Changed(0);
        CollectorLook look = TakeLook(*view);
        befores.push_back({view->Collector().Now(), std::move(look)});
    }
    ++acting_;
    for (std::size_t i = 0; i < views.size(); ++i) {
        try {
            views[i]->Collector().Befores()[acting_] = std::move(befores[i]);
        } catch (...) {
            for (const auto& view : views) view->Collector().Befores().erase(acting_);
            --acting_;
            throw;
        }
    }
}

/// Makes what an action changed a step of each view; within another action it becomes part of that one's.
void Collector::End(const Views& views, const std::string& name) {
    std::vector<std::pair<View*, ViewCollector::Prepared>> steps;
    for (const auto& view : views) {
        if (!IsThere(*view)) continue;
        view->Changed(0);
        if (acting_ > 1) continue;
        ViewCollector& own = view->Collector();
        const auto before = own.Befores().find(acting_);
        const ViewCollector::Before none; // of a view that is new
        const ViewCollector::Before& from = before == own.Befores().end() ? none : before->second;
        if (auto step = own.Prepare(name, from.state, own.Now(), from.look)) {
            steps.emplace_back(view.get(), *std::move(step));
        }
    }
    for (const auto& view : views) view->Collector().Befores().erase(acting_);
    --acting_;
    for (auto& [view, step] : steps) {
        view->Collector().Commit(std::move(step));
        TellBars(view);
    }
}

/// Makes all what it was before the action.
void Collector::TakeBack(const Views& views) noexcept {
    for (const auto& view : views) {
        ViewCollector& own = view->Collector();
        const auto before = own.Befores().find(acting_);
        if (before == own.Befores().end()) { // the view is new
            own.Replace({});
            Tell(*view, VIEW_ALL);
            continue;
        }
        own.Replace(std::move(before->second.state));
        try {
            BringBack(*view, PrepareLook(*view, before->second.look, {}));
        } catch (const std::exception&) { // without memory the rows are as they are
            Tell(*view, VIEW_ALL);
        }
        own.Befores().erase(before);
    }
    --acting_;
}

// ---- Taking back ----

bool Collector::Travel(View* view, bool back) {
    if (acting_) return Fail("Steps cannot be taken back or restored while an action runs");
    if (working_) return Fail("A script that computes values cannot take back or restore steps");
    const std::shared_ptr<View> held = view->shared_from_this();
    const Raised working(working_);
    const CallLog::Quiet quiet(log_);
    view->Changed(0);
    CollectorLook look = TakeLook(*view);
    if (!IsThere(*view)) return Fail("A script deleted the view \"" + view->Name() + "\"");
    ViewCollector& own = view->Collector();
    StepStack& from = back ? own.Done() : own.Undone();
    StepStack& to = back ? own.Undone() : own.Done();
    if (from.IsEmpty()) return Fail(back ? "There is no step to take back" : "There is no step to restore");
    Brought brought = PrepareLook(*view, from.TopLook(), look);
    own.Travel(from, to, std::move(look));
    BringBack(*view, std::move(brought));
    return true;
}

} // namespace znhost
