// What a state keeps of a view's collector: the display state and the named collections.
#include "model/view.h"
#include "state/setting_kinds.h"
#include "window/browser_windows.h"
#include "window/collector.h"

#include <charconv>
#include <string_view>

namespace znhost {

namespace {

// ---- Rows as text: "1-64 70 72-80" ----

std::string TextOf(const RowSet& rows) {
    std::string text;
    RowSet::Row first = 0;
    RowSet::Row last = -1;
    const auto append = [&] {
        if (last < first) return;
        text += (text.empty() ? "" : " ") + std::to_string(first);
        if (last > first) text += ":" + std::to_string(last);
    };
    rows.ForEach([&](RowSet::Row row) {
        if (last >= first && row == last + 1) {
            last = row;
            return;
        }
        append();
        first = last = row;
    });
    append();
    return text;
}

/// Takes a number from the front of a text. False when there is none.
bool TakeNumber(std::string_view& text, std::int64_t& number) {
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc()) return false;
    text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
    return true;
}

/// As far as the text can be read. What stands in a database may have been written by anyone: no more rows
/// are taken than a source can be thought to have.
RowSet RowsOf(std::string_view text) {
    constexpr std::int64_t most = std::int64_t{1} << 26;
    std::vector<RowSet::Row> rows;
    std::int64_t first = 0;
    while (TakeNumber(text, first)) {
        std::int64_t last = first;
        if (text.starts_with(':')) {
            text.remove_prefix(1);
            if (!TakeNumber(text, last)) break;
        }
        if (last < first || static_cast<std::uint64_t>(last) - static_cast<std::uint64_t>(first) >=
                                static_cast<std::uint64_t>(most) - rows.size()) {
            break;
        }
        for (std::int64_t row = first; row < last; ++row) rows.push_back(row);
        rows.push_back(last);
        if (!text.starts_with(' ')) break;
        text.remove_prefix(1);
    }
    RowSet set;
    set.Add(std::move(rows));
    return set;
}

// ---- The display state ----

constexpr std::string_view onlyWord = "only";

/// "hidden", or "only" and how far the rows were numbered then, table by table.
std::string KeyOf(const DisplayedRows& displayed) {
    if (!displayed.only) return "hidden";
    std::string key(onlyWord);
    for (const std::int64_t greatest : displayed.mark.greatest) key += " " + std::to_string(greatest);
    return key;
}

void KeepDisplayed(Keeping& keeping) {
    for (const auto& [source, displayed] : keeping.view.Collector().Display().All()) {
        keeping.Add(NameOf(keeping.view.Log(), source), KeyOf(*displayed), TextOf(displayed->rows));
    }
}

DisplayedRows DisplayedOf(const Setting& setting) {
    DisplayedRows displayed;
    displayed.rows = RowsOf(setting.value);
    std::string_view key = setting.key;
    if (!key.starts_with(onlyWord)) return displayed;
    displayed.only = true;
    key.remove_prefix(onlyWord.size());
    std::int64_t greatest = 0;
    while (key.starts_with(' ')) {
        key.remove_prefix(1);
        if (!TakeNumber(key, greatest)) break;
        displayed.mark.greatest.push_back(greatest);
    }
    return displayed;
}

// ---- Named collections ----

/// One without items has a setting without a source.
void KeepNamed(Keeping& keeping) {
    const ViewCollector& collector = keeping.view.Collector();
    for (const NamedCollection& named : collector.Named()) {
        if (named.items.IsEmpty()) keeping.Add(named.name, "", "");
        for (const auto& [source, rows] : named.items.All()) {
            keeping.Add(named.name, NameOf(keeping.view.Log(), source), TextOf(rows));
        }
    }
}

std::vector<NamedCollection> NamedOf(Restoring& restoring) {
    std::vector<NamedCollection> named;
    for (const Setting& setting : restoring.Of(kind::namedCollection)) {
        if (named.empty() || named.back().name != setting.subject) named.push_back({setting.subject, {}});
        if (setting.key.empty()) continue;
        if (znIBrowserDataSourceSimple* const source = restoring.FindSimple(setting.key)) {
            named.back().items.Add(source, RowsOf(setting.value));
        } else {
            restoring.Skip("data source", setting.key);
        }
    }
    return named;
}

/// Both are brought back at once. Named collections that have come since stay.
void RestoreCollector(Restoring& restoring, const Settings& settings) {
    DisplayState display;
    for (const Setting& setting : settings) {
        if (znIBrowserDataSourceSimple* const source = restoring.FindSimple(setting.subject)) {
            display.Set(source, DisplayedOf(setting));
        } else {
            restoring.Skip("data source", setting.subject);
        }
    }
    View& view = restoring.Shown();
    restoring.Target().Owner().VirtualCollector().RestoreState(view, std::move(display), NamedOf(restoring));
}

void RestoreNothing(Restoring&, const Settings&) {}

} // namespace

const std::vector<SettingKind>& CollectorKinds() {
    static const std::vector<SettingKind> kinds = {
        {kind::displayedItems, KeepDisplayed, RestoreCollector},
        {kind::namedCollection, KeepNamed, RestoreNothing},
    };
    return kinds;
}

} // namespace znhost
