// What a state keeps of the window itself: its parts, its options, and which rows it shows.
#include "model/view.h"
#include "state/setting_kinds.h"
#include "window/browser_windows.h"

#include <limits>

namespace znhost {

namespace {

// ---- Parts ----

void KeepParts(Keeping& keeping) {
    std::vector<WindowPart*> parts;
    WindowPart::Append(keeping.window.Parts(), true, parts);
    for (const WindowPart* const part : parts) {
        keeping.Add(part->Name(), part->Parent() ? part->Parent()->Name() : std::string(),
                    OnOff(part->IsShown()));
    }
}

void RestoreParts(Restoring& restoring, const Settings& settings) {
    Window& window = restoring.Target();
    std::map<std::string, int> placed; // how many children of a part have found their places
    for (const Setting& setting : settings) {
        const auto find = [&window, &setting] { return window.FindPart(setting.subject); };
        WindowPart* part = find();
        WindowPart* const parent = setting.key.empty() ? nullptr : window.FindPart(setting.key);
        if (!part) {
            restoring.Skip("window part", setting.subject);
            continue;
        }
        if (parent || setting.key.empty()) {
            // Each step may run a script that deletes the part.
            if (part->Parent() != parent && !(parent && part->Holds(*parent))) window.MovePart(*part, parent);
            part = find();
            if (part && part->Parent() == parent) window.PlacePart(*part, placed[setting.key]++);
            part = find();
        }
        if (part) window.ShowPart(*part, IsOn(setting));
    }
}

// ---- Options ----

struct Option {
    const char* name;
    bool (*get)(Window& window, const View& view);
    void (*set)(Window& window, View& view, bool on);
};

constexpr Option options[] = {
    {"group filter", [](Window&, const View& view) { return view.GroupsFilter(); },
     [](Window&, View& view, bool on) { view.SetGroupFilter(on); }},
    {"match case", [](Window&, const View& view) { return view.Filter().matchCase; },
     [](Window&, View& view, bool on) { view.SetFilterMatchCase(on); }},
    {"match word", [](Window&, const View& view) { return view.Filter().matchWord; },
     [](Window&, View& view, bool on) { view.SetFilterMatchWord(on); }},
    {"single selection", [](Window& window, const View&) { return window.Rows().IsSingle(); },
     [](Window& window, View&, bool on) { window.Rows().SetSingle(on); }},
    {"sorting", [](Window&, const View& view) { return view.GetSorting(); },
     [](Window&, View& view, bool on) { view.SetSorting(on); }},
    {"stripes", [](Window& window, const View&) { return window.HasStripes(); },
     [](Window& window, View&, bool on) { window.SetStripes(on); }},
};

void KeepOptions(Keeping& keeping) {
    for (const Option& option : options) {
        keeping.Add(option.name, "", OnOff(option.get(keeping.window, keeping.view)));
    }
}

void RestoreOptions(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        for (const Option& option : options) {
            View* const view = restoring.Target().ShownView();
            if (view && setting.subject == option.name) option.set(restoring.Target(), *view, IsOn(setting));
        }
    }
}

void KeepBackground(Keeping& keeping) { keeping.Add("", "", keeping.window.Background()); }

void RestoreBackground(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) restoring.Target().SetBackground(setting.value);
}

// ---- Rows ----

constexpr const char* kindWords[] = {"folder", "tree", "list"}; // in the order of RowKind

void KeepExpandedRows(Keeping& keeping) {
    const std::vector<KeptRow> rows = keeping.window.Rows().Expanded();
    for (auto next = rows.begin(); next != rows.end();) {
        const KeptRow& first = *next;
        const auto isBeside = [&first](const KeptRow& row) {
            return row.kind == RowKind::Item && row.above == first.above && row.name == first.name;
        };
        std::string value;
        for (; next != rows.end() && isBeside(*next); ++next)
            value += (value.empty() ? "" : " ") + std::to_string(next->row);
        if (value.empty()) value = kindWords[static_cast<std::size_t>(next++->kind)];
        keeping.Add(first.name, std::to_string(first.above), std::move(value));
    }
}

void AddRows(const Setting& setting, std::vector<KeptRow>& rows) {
    const auto word = std::find(std::begin(kindWords), std::end(kindWords), setting.value);
    KeptRow row{NumberOf(setting.key), static_cast<RowKind>(word - std::begin(kindWords)), setting.subject,
                0};
    if (row.kind != RowKind::Item) return rows.push_back(std::move(row));
    const char* next = setting.value.data();
    const char* const end = next + setting.value.size();
    do {
        const auto read = std::from_chars(next, end, row.row);
        rows.push_back(row);
        next = read.ec == std::errc() && read.ptr != end ? read.ptr + 1 : end;
    } while (next != end);
}

void RestoreExpandedRows(Restoring& restoring, const Settings& settings) {
    std::vector<KeptRow> rows;
    rows.reserve(settings.size());
    for (const Setting& setting : settings) AddRows(setting, rows);
    for (const std::size_t place : restoring.Target().Rows().SetExpanded(rows)) {
        const KeptRow& row = rows[place];
        restoring.Skip("expanded row",
                       row.kind == RowKind::Item ? row.name + ' ' + std::to_string(row.row) : row.name);
    }
}

void KeepScrollPosition(Keeping& keeping) {
    keeping.Add("", "", std::to_string(keeping.window.ScrollPosition()));
}

void RestoreScrollPosition(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        const std::size_t position = NumberOf(setting.value);
        if (position <= std::numeric_limits<int>::max()) {
            restoring.Target().SetStatePos(static_cast<int>(position));
        }
    }
}

} // namespace

const std::vector<SettingKind>& WindowKinds() {
    static const std::vector<SettingKind> kinds = {
        {kind::part, KeepParts, RestoreParts},
        {kind::option, KeepOptions, RestoreOptions},
        {kind::background, KeepBackground, RestoreBackground},
        {kind::expandedRow, KeepExpandedRows, RestoreExpandedRows},
        {kind::scrollPosition, KeepScrollPosition, RestoreScrollPosition},
    };
    return kinds;
}

} // namespace znhost
