// What the collector shows and hides, the actions of scripts, and the steps as others ask for them.
#include "base/services.h"
#include "base/tcl_values.h"
#include "host/znBrowserDataItems.h"
#include "model/data_sources.h"
#include "model/row_source.h"
#include "model/view_links.h"
#include "window/browser_windows.h"
#include "window/collector.h"
#include "window/window.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace znhost {

namespace {

struct OwnOption {
    const char* name;
    ZNBROWSER_COLLECTOR_DISPLAY change;
};

/// The actions that are there from the start.
constexpr OwnOption ownOptions[] = {
    {"showhide", ZNBROWSER_COLLECTOR_TOGGLE},
    {"showonly", ZNBROWSER_COLLECTOR_SHOW_ONLY},
    {"isolate", ZNBROWSER_COLLECTOR_ISOLATE},
    {"isolateonly", ZNBROWSER_COLLECTOR_ISOLATE_ONLY},
};

const OwnOption* FindOwn(const std::string& name) {
    const auto found = std::find_if(std::begin(ownOptions), std::end(ownOptions),
                                    [&name](const OwnOption& option) { return name == option.name; });
    return found == std::end(ownOptions) ? nullptr : found;
}

/// By their numbers.
constexpr const char* displayWords[] = {"showhide show", "showhide hide", "showhide toggle", "showonly",
                                        "isolate",       "isolateonly",   "showhide all"};

View& Own(znIBrowserView* view) { return *static_cast<View*>(view); }

// ---- What lies above and below ----

/// Adds to `items` what lies above or below them, level by level; what is known already has been followed.
void AddRelated(const std::vector<RowLink>& links, bool above, ItemSets& items) {
    ItemSets open = items;
    while (!open.IsEmpty()) {
        ItemSets next;
        for (const RowLink& link : links) {
            RowSource* const from = above ? link.child : link.parent;
            RowSource* const to = above ? link.parent : link.child;
            const RowSet* const rows = open.Of(from->GetSource());
            if (!rows) continue;
            std::vector<std::int64_t> found;
            if (above) {
                link.child->Parents(link, rows->ToVector(), found);
            } else {
                link.child->Children(link, rows->ToVector(), found);
            }
            RowSet related;
            related.Add(std::move(found));
            if (const RowSet* const known = items.Of(to->GetSource())) related.Remove(*known);
            items.Add(to->GetSource(), related);
            next.Add(to->GetSource(), related);
        }
        open = std::move(next);
    }
}

/// The collected items with what lies above them and, if wanted, below them.
ItemSets Surroundings(const View& view, const ItemSets& collected, bool withBelow) {
    const std::vector<RowLink> links = LinksOf(view);
    ItemSets items = collected;
    AddRelated(links, true, items);
    if (!withBelow) return items;
    ItemSets below = collected;
    AddRelated(links, false, below);
    items.Add(below);
    return items;
}

void ChangeState(const View& view, ZNBROWSER_COLLECTOR_DISPLAY change, CollectorState& state) {
    DisplayState& display = state.display;
    const ItemSets& collected = state.collected;
    switch (change) {
    case ZNBROWSER_COLLECTOR_SHOW_ALL: return display.ShowAll();
    case ZNBROWSER_COLLECTOR_ISOLATE:
    case ZNBROWSER_COLLECTOR_ISOLATE_ONLY: {
        const ItemSets shown = Surroundings(view, collected, change == ZNBROWSER_COLLECTOR_ISOLATE);
        SimpleSources sources = view.ShowableSources();
        for (const auto& entry : shown.All()) AddNew(sources, entry.first);
        for (znIBrowserDataSourceSimple* const source : sources) {
            const RowSet* const rows = shown.Of(source);
            display.ShowOnly(source, rows ? *rows : RowSet());
        }
        return;
    }
    default: break;
    }
    for (const auto& [source, rows] : collected.All()) {
        if (change == ZNBROWSER_COLLECTOR_SHOW) display.Show(source, rows);
        if (change == ZNBROWSER_COLLECTOR_HIDE) display.Hide(source, rows);
        if (change == ZNBROWSER_COLLECTOR_TOGGLE) display.Toggle(source, rows);
        if (change == ZNBROWSER_COLLECTOR_SHOW_ONLY) display.ShowOnly(source, rows);
    }
}

} // namespace

// ---- The display state ----

bool Collector::Display(View& view, ZNBROWSER_COLLECTOR_DISPLAY change, const std::string& name) {
    const std::shared_ptr<View> held = view.shared_from_this();
    const bool done = Make(view, name, [&](CollectorState& state) {
        if (change != ZNBROWSER_COLLECTOR_SHOW_ALL && state.collected.IsEmpty())
            return Fail("Nothing is collected in the view \"" + view.Name() + "\"");
        ChangeState(view, change, state);
        return true;
    });
    if (done && !acting_) Fit(view);
    return done;
}

std::size_t Collector::CountHidden(View& view) const {
    const std::shared_ptr<View> held = view.shared_from_this();
    view.Changed(0);
    std::size_t hidden = 0;
    const DisplayState display = view.Collector().Display();
    for (const auto& [source, displayed] : display.All()) {
        const std::size_t size = displayed->rows.Size();
        if (!displayed->only) hidden += size;
        if (displayed->only) hidden += static_cast<std::size_t>(GetRowSource(source)->Count({})) - size;
    }
    return hidden;
}

/// Scrolls to the first collected item. The step has been made: where that fails the windows stay.
void Collector::Fit(View& view) {
    if (!autofit_ || !IsThere(view)) return;
    for (const auto& window : WindowsOf(view)) {
        try {
            const std::int64_t position = window->Rows().ShowCollected();
            if (position >= 0) window->ScrollTo(static_cast<int>(position));
        } catch (const std::exception&) {
            return;
        }
    }
}

bool Collector::ChangeDisplay(znIBrowserView* view, ZNBROWSER_COLLECTOR_DISPLAY change) {
    if (Refused("znIBrowserCollector::ChangeDisplay", view, change)) return false;
    if (!FailWithout(view, "view")) return false;
    return Display(Own(view), change, displayWords[change]);
}

// ---- Actions ----

const Collector::Option* Collector::FindOption(const std::string& name) const {
    const auto found = std::find_if(options_.begin(), options_.end(),
                                    [&name](const Option& option) { return option.name == name; });
    return found == options_.end() ? nullptr : &*found;
}

void Collector::GetOptionNames(std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserCollector::GetOptionNames")) return;
    for (const OwnOption& option : ownOptions) names.emplace_back(option.name);
    for (const Option& option : options_) names.emplace_back(option.name);
}

const char* Collector::GetCurrentOption() const {
    if (Refused("znIBrowserCollector::GetCurrentOption")) return "";
    return option_.c_str();
}

bool Collector::SetCurrentOption(const char* name) {
    if (Refused("znIBrowserCollector::SetCurrentOption", name)) return false;
    std::string own = TextOf(name);
    if (!FindOwn(own) && !FindOption(own)) return Fail("There is no action \"" + own + "\"");
    option_ = std::move(own);
    TellBars(nullptr);
    return true;
}

bool Collector::CreateOption(const char* name, const char* procedure) {
    if (Refused("znIBrowserCollector::CreateOption", name, procedure)) return false;
    std::string own = TextOf(name);
    if (own.empty()) return Fail("An action needs a name");
    if (TextOf(procedure).empty()) return Fail("The action \"" + own + "\" needs a procedure");
    if (FindOwn(own) || FindOption(own)) return Fail("An action \"" + own + "\" already exists");
    options_.push_back({std::move(own), TextOf(procedure)});
    TellBars(nullptr);
    return true;
}

bool Collector::DeleteOption(const char* name) {
    if (Refused("znIBrowserCollector::DeleteOption", name)) return false;
    const std::string own = TextOf(name);
    if (FindOwn(own)) return Fail("The action \"" + own + "\" cannot be deleted");
    if (!FindOption(own)) return Fail("There is no action \"" + own + "\"");
    std::erase_if(options_, [&own](const Option& option) { return option.name == own; });
    if (option_ == own) option_ = ownOptions[0].name;
    TellBars(nullptr);
    return true;
}

bool Collector::PerformOption(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowserCollector::PerformOption", view, name)) return false;
    if (!FailWithout(view, "view")) return false;
    const std::string own = TextOf(name);
    const std::string step = "option perform " + ListText({own});
    if (const OwnOption* const option = FindOwn(own)) return Display(Own(view), option->change, step);
    const Option* const option = FindOption(own);
    if (!option) return Fail("There is no action \"" + own + "\"");
    return Run(Own(view), step, std::string(option->procedure));
}

/// Calls the procedure of an action.
bool Collector::Run(View& view, const std::string& name, const std::string& procedure) {
    if (working_) return Fail("A script that computes values cannot perform actions");
    const std::shared_ptr<View> held = view.shared_from_this();
    Begin(ViewsNow());
    std::string error;
    bool done = false;
    try {
        std::vector<std::string> items;
        CollectedItems(view).ForEach([&](const znBrowserDataItem& item) {
            items.push_back(ListText({NameOf(log_, item.source), std::to_string(item.row)}));
        });
        done = Services().CallProcedure({procedure, view.Name(), ListText(items)}, error);
        if (done) End(ViewsNow(), name);
    } catch (...) {
        TakeBack(ViewsNow());
        throw;
    }
    if (!done) {
        TakeBack(ViewsNow());
        return Fail(std::move(error));
    }
    if (!acting_) Fit(view);
    return true;
}

// ---- Steps ----

void Collector::GetStepNames(znIBrowserView* view, std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserCollector::GetStepNames", view) || !view) return;
    for (const CollectorStep& step : Own(view).Collector().Done().Steps()) names.emplace_back(step.name);
}

std::size_t Collector::GetStepCount(znIBrowserView* view) {
    if (Refused("znIBrowserCollector::GetStepCount", view) || !view) return 0;
    return Own(view).Collector().Done().Size();
}

std::size_t Collector::GetRestorableCount(znIBrowserView* view) {
    if (Refused("znIBrowserCollector::GetRestorableCount", view) || !view) return 0;
    return Own(view).Collector().Undone().Size();
}

bool Collector::Undo(znIBrowserView* view) {
    if (Refused("znIBrowserCollector::Undo", view)) return false;
    return FailWithout(view, "view") && Travel(&Own(view), true);
}

bool Collector::Restore(znIBrowserView* view) {
    if (Refused("znIBrowserCollector::Restore", view)) return false;
    return FailWithout(view, "view") && Travel(&Own(view), false);
}

bool Collector::ClearSteps(znIBrowserView* view) {
    if (Refused("znIBrowserCollector::ClearSteps", view)) return false;
    if (!FailWithout(view, "view")) return false;
    if (acting_) return Fail("Steps cannot be forgotten while an action runs");
    if (working_) return Fail("A script that computes values cannot forget steps");
    Own(view).Collector().ClearSteps();
    TellBars(&Own(view));
    return true;
}

} // namespace znhost
