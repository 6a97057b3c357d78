// What is collected: by words, by clicks, and under names.
#include "window/collector.h"

#include "base/services.h"
#include "base/tcl_values.h"
#include "host/znBrowserDataItems.h"
#include "model/data_sources.h"
#include "model/row_source.h"
#include "window/browser_windows.h"

#include <algorithm>
#include <utility>

namespace znhost {

namespace {

constexpr const char* collectWords[] = {"add", "remove", "toggle", "set"};
constexpr const char* fromWords[] = {"", " displayed", " all"};

View& Own(znIBrowserView* view) { return *static_cast<View*>(view); }

/// The sources of the view, then those of the items that it does not show any more.
SimpleSources SourcesOf(const View& view, const ItemSets& items) {
    SimpleSources sources = view.ShowableSources();
    for (const auto& entry : items.All()) AddNew(sources, entry.first);
    return sources;
}

} // namespace

Collector::Collector(BrowserWindows& browser) : HostObject(browser.Log()), browser_(browser) {}

bool Collector::FailWithout(const void* object, const char* what) const {
    return object != nullptr || Fail(std::string("There is no such ") + what);
}

// ---- The kind ----

bool Collector::GetKinds(znIBrowserView* view, std::vector<znIBrowserDataSourceSimple*>& kinds) {
    kinds.clear();
    if (Refused("znIBrowserCollector::GetKinds", view)) return false;
    if (!FailWithout(view, "view")) return false;
    kinds = Own(view).ShowableSources();
    return true;
}

bool Collector::SetKind(const char* name) {
    if (Refused("znIBrowserCollector::SetKind", name)) return false;
    kind_ = TextOf(name);
    TellBars(nullptr);
    return true;
}

// ---- Collecting ----

bool Collector::CollectChosen(View& view, ZNBROWSER_COLLECT change, const std::string& name,
                              znIBrowserDataSourceSimple* kind, const Choice& choose) {
    return Make(view, name, [&](CollectorState& state) {
        ItemSets items;
        if (!choose(items)) return false;
        items.KeepOnly(kind);
        ItemSets& collected = state.collected;
        if (change != ZNBROWSER_COLLECT_REMOVE) collected.KeepOnly(kind);
        if (change == ZNBROWSER_COLLECT_ADD) collected.Add(items);
        if (change == ZNBROWSER_COLLECT_REMOVE) collected.Remove(items);
        if (change == ZNBROWSER_COLLECT_TOGGLE) collected.Toggle(items);
        if (change == ZNBROWSER_COLLECT_SET) collected = std::move(items);
        return true;
    });
}

bool Collector::Choose(View& view, ZNBROWSER_COLLECT_FROM from, znIBrowserDataSourceSimple* kind,
                       ItemSets& items) {
    if (from == ZNBROWSER_COLLECT_FROM_SELECTED) {
        items = view.Selected().Items();
        return true;
    }
    const DisplayState display = view.Collector().Display(); // as it was when the step began
    for (znIBrowserDataSourceSimple* const source : view.ShowableSources()) {
        if (kind && source != kind) continue;
        const DisplayState::Rows displayed =
            from == ZNBROWSER_COLLECT_FROM_DISPLAYED ? display.Of(source) : nullptr;
        if (displayed && displayed->only) {
            items.Set(source, displayed->rows);
            continue;
        }
        std::vector<std::int64_t> all;
        GetRowSource(source)->List({}, all);
        RowSet rows;
        rows.Add(std::move(all));
        if (displayed) rows.Remove(displayed->rows);
        items.Set(source, std::move(rows));
    }
    return true;
}

bool Collector::Collect(znIBrowserView* view, ZNBROWSER_COLLECT change, ZNBROWSER_COLLECT_FROM from,
                        znIBrowserDataSourceSimple* kind) {
    if (Refused("znIBrowserCollector::Collect", view, change, from, kind)) return false;
    if (!FailWithout(view, "view")) return false;
    const std::string name = std::string("selection ") + collectWords[change] + fromWords[from];
    return CollectChosen(Own(view), change, name, kind,
                         [&](ItemSets& items) { return Choose(Own(view), from, kind, items); });
}

/// Values may be computed by scripts: what they delete is not asked any more.
bool Collector::ChooseByValues(View& view, ViewProperty& property, const std::vector<znString>& values,
                               znIBrowserDataSourceSimple* kind, ItemSets& items) {
    for (znIBrowserDataSourceSimple* const source : view.ShowableSources()) {
        if (kind && source != kind) continue;
        if (!Contains(view.ShowableSources(), source)) continue;
        znIBrowserDataProperty* const dataProperty = property.DataProperty(source);
        if (!dataProperty) continue;
        RowSource& rowSource = *GetRowSource(source);
        RowQuery query;
        query.conditions.push_back(rowSource.OneOf(*dataProperty, values));
        std::vector<std::int64_t> rows;
        rowSource.List(query, rows);
        RowSet found;
        found.Add(std::move(rows));
        items.Set(source, std::move(found));
    }
    const SimpleSources left = view.ShowableSources();
    for (const auto& entry : items.All()) {
        if (!Contains(left, entry.first))
            return Fail("A script deleted the data source whose items were to be collected");
    }
    return true;
}

bool Collector::CollectByValues(znIBrowserView* view, ZNBROWSER_COLLECT change,
                                znIBrowserViewProperty* property, const std::vector<znString>& values,
                                znIBrowserDataSourceSimple* kind) {
    if (Refused("znIBrowserCollector::CollectByValues", view, change, property, values, kind)) return false;
    if (!FailWithout(view, "view") || !FailWithout(property, "view property")) return false;
    ViewProperty& own = static_cast<ViewProperty&>(*property);
    const std::shared_ptr<View> heldView = Own(view).shared_from_this();
    const std::shared_ptr<ViewProperty> held = own.shared_from_this();
    std::vector<std::string> words{"selection", collectWords[change], "byprop", own.Name()};
    for (const znString& value : values) words.push_back(value.Str());
    return CollectChosen(Own(view), change, ListText(words), kind, [&](ItemSets& items) {
        return ChooseByValues(Own(view), own, values, kind, items);
    });
}

bool Collector::ClearCollection(znIBrowserView* view) {
    if (Refused("znIBrowserCollector::ClearCollection", view)) return false;
    if (!FailWithout(view, "view")) return false;
    return Make(Own(view), "selection clear", [](CollectorState& state) {
        state.collected = {};
        return true;
    });
}

bool Collector::GetCollectedCounts(znIBrowserView* view, std::vector<znBrowserCollectedCount>& counts) {
    counts.clear();
    if (Refused("znIBrowserCollector::GetCollectedCounts", view)) return false;
    if (!FailWithout(view, "view")) return false;
    const std::shared_ptr<View> held = Own(view).shared_from_this();
    Own(view).Changed(0);
    const ItemSets& collected = Own(view).Collector().Collected();
    for (znIBrowserDataSourceSimple* const source : SourcesOf(Own(view), collected)) {
        if (const RowSet* const rows = collected.Of(source)) counts.push_back({source, rows->Size()});
    }
    return true;
}

bool Collector::GetCollectedItems(znIBrowserView* view, znBrowserDataItems& items) {
    items.Clear();
    if (Refused("znIBrowserCollector::GetCollectedItems", view)) return false;
    if (!FailWithout(view, "view")) return false;
    items = CollectedItems(Own(view));
    return true;
}

/// By data source in the order of the view.
znBrowserDataItems Collector::CollectedItems(View& view) {
    const std::shared_ptr<View> held = view.shared_from_this();
    view.Changed(0);
    znBrowserDataItems items;
    const ItemSets& collected = view.Collector().Collected();
    for (znIBrowserDataSourceSimple* const source : SourcesOf(view, collected)) {
        if (const RowSet* const rows = collected.Of(source))
            rows->ForEach([&](RowSet::Row row) { items.Append(source, row); });
    }
    return items;
}

// ---- Clicks ----

namespace {

/// The kind of that name in a view: null for every kind. False when the view has none of that name.
bool FindKind(const View& view, const std::string& name, znIBrowserDataSourceSimple*& kind) {
    kind = nullptr;
    if (name.empty()) return true;
    for (znIBrowserDataSourceSimple* const source : view.ShowableSources()) {
        if (NameOf(view.Log(), source) == name) kind = source;
    }
    return kind != nullptr;
}

} // namespace

void Collector::OnSelected(View& view) {
    znIBrowserDataSourceSimple* kind = nullptr;
    if (clickMode_ != ZNBROWSER_COLLECTOR_CLICK_SELECT || !FindKind(view, kind_, kind)) return;
    CollectChosen(view, ZNBROWSER_COLLECT_SET, "selection set", kind, [&](ItemSets& items) {
        return Choose(view, ZNBROWSER_COLLECT_FROM_SELECTED, kind, items);
    });
}

void Collector::OnClicked(View& view, const znBrowserDataItem& item) {
    znIBrowserDataSourceSimple* kind = nullptr;
    if (clickMode_ != ZNBROWSER_COLLECTOR_CLICK_TOGGLE || !FindKind(view, kind_, kind)) return;
    if (!item.source || (kind && item.source != kind)) return;
    CollectChosen(view, ZNBROWSER_COLLECT_TOGGLE, "selection toggle", kind, [&item](ItemSets& items) {
        RowSet clicked;
        clicked.Add(item.row);
        items.Set(item.source, std::move(clicked));
        return true;
    });
}

void Collector::Preselect(View& view, const znBrowserDataItem& item) {
    view.Collector().SetPreselected(preselector_ ? item : znBrowserDataItem());
}

bool Collector::GetPreselectedItem(znIBrowserView* view, znBrowserDataItem& item) const {
    item = {};
    if (Refused("znIBrowserCollector::GetPreselectedItem", view)) return false;
    if (!view || !preselector_) return false;
    const std::shared_ptr<View> held = Own(view).shared_from_this();
    Own(view).Changed(0);
    item = Own(view).Collector().Preselected();
    return item.source != nullptr;
}

// ---- Named collections ----

void Collector::GetNamedCollections(znIBrowserView* view, std::vector<znString>& names) {
    names.clear();
    if (Refused("znIBrowserCollector::GetNamedCollections", view) || !view) return;
    for (const NamedCollection& named : Own(view).Collector().Named()) names.emplace_back(named.name);
}

const char* Collector::GetCurrentNamedCollection(znIBrowserView* view) const {
    if (Refused("znIBrowserCollector::GetCurrentNamedCollection", view) || !view) return "";
    return Own(view).Collector().CurrentNamed().c_str();
}

bool Collector::CreateNamedCollection(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowserCollector::CreateNamedCollection", view, name)) return false;
    if (!FailWithout(view, "view")) return false;
    const std::shared_ptr<View> held = Own(view).shared_from_this();
    std::string own = TextOf(name);
    if (own.empty()) return Fail("A named collection needs a name");
    Own(view).Changed(0);
    ViewCollector& collector = Own(view).Collector();
    collector.SetNamed(own, collector.Collected());
    collector.SetCurrentNamed(std::move(own));
    TellBars(&Own(view));
    return true;
}

namespace {

/// Null, and the reason is noted, when there is none.
NamedCollection* FindNamed(const View& view, ViewCollector& collector, const char* name) {
    NamedCollection* const named = collector.FindNamed(TextOf(name));
    if (!named) {
        view.Log().SetError("The view \"" + view.Name() + "\" has no collection \"" + TextOf(name) + "\"");
    }
    return named;
}

} // namespace

bool Collector::SetCurrentNamedCollection(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowserCollector::SetCurrentNamedCollection", view, name)) return false;
    if (!FailWithout(view, "view")) return false;
    const std::shared_ptr<View> held = Own(view).shared_from_this();
    ViewCollector& collector = Own(view).Collector();
    std::string own = TextOf(name);
    const bool collected =
        Make(Own(view), ListText({"pnlcolselector", "current", own}), [&](CollectorState& state) {
            const NamedCollection* const named = FindNamed(Own(view), collector, name);
            if (named) state.collected = named->items;
            return named != nullptr;
        });
    if (!collected) return false;
    collector.SetCurrentNamed(std::move(own));
    TellBars(&Own(view));
    return true;
}

bool Collector::DeleteNamedCollection(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowserCollector::DeleteNamedCollection", view, name)) return false;
    if (!FailWithout(view, "view")) return false;
    ViewCollector& collector = Own(view).Collector();
    if (!FindNamed(Own(view), collector, name)) return false;
    collector.DeleteNamed(TextOf(name));
    TellBars(&Own(view));
    return true;
}

bool Collector::AddToNamedCollection(znIBrowserView* view, const char* name) {
    if (Refused("znIBrowserCollector::AddToNamedCollection", view, name)) return false;
    if (!FailWithout(view, "view")) return false;
    const std::shared_ptr<View> held = Own(view).shared_from_this();
    Own(view).Changed(0);
    ViewCollector& collector = Own(view).Collector();
    NamedCollection* const named = FindNamed(Own(view), collector, name);
    if (!named) return false;
    ItemSets items = named->items;
    items.Add(collector.Collected());
    named->items = std::move(items);
    TellBars(&Own(view));
    return true;
}

// ---- Saved states ----

bool Collector::RestoreState(View& view, DisplayState display, std::vector<NamedCollection> named) {
    const std::shared_ptr<View> held = view.shared_from_this();
    for (NamedCollection& each : named) view.Collector().SetNamed(each.name, std::move(each.items));
    const bool made = Make(view, "state restore", [&display](CollectorState& state) {
        state.display = std::move(display);
        return true;
    });
    view.NoteItems(VIEW_ROWS); // some may not exist any more, others may be new
    view.Changed(0);
    return made;
}

} // namespace znhost
