// What a state keeps of a view: columns, sorting, properties and filters.
#include "host/znIBrowserDataProperty.h"
#include "model/data_sources.h"
#include "model/view.h"
#include "state/setting_kinds.h"

#include <iterator>
#include <limits>

namespace znhost {

namespace {

// ---- Columns ----

void KeepColumns(Keeping& keeping) {
    for (const auto& column : keeping.view.Columns()) {
        keeping.Add(column->Name(), std::to_string(column->Width()), OnOff(column->IsShown()));
    }
}

void RestoreColumns(Restoring& restoring, const Settings& settings) {
    NamedList<Column>& columns = restoring.Shown().Columns();
    std::size_t place = 0;
    for (const Setting& setting : settings) {
        Column* const column = columns.Find(setting.subject);
        if (!column) {
            restoring.Skip("column", setting.subject);
            continue;
        }
        columns.Move(*column, place++);
        const std::size_t width = NumberOf(setting.key);
        if (width <= std::numeric_limits<int>::max()) column->SetWidth(static_cast<int>(width));
        column->SetShown(IsOn(setting));
    }
}

void KeepColumnSorting(Keeping& keeping) {
    for (const auto& column : keeping.view.Columns()) {
        keeping.Add(column->Name(), column->SortProperty(), OnOff(column->MaySort()));
    }
}

void RestoreColumnSorting(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        Column* const column = restoring.Shown().Columns().Find(setting.subject);
        if (!column) continue;
        column->SetSorting(IsOn(setting));
        if (!column->SetSortProperty(setting.key.c_str())) restoring.Skip("view property", setting.key);
    }
}

constexpr const char* naturally = "natural order";

void KeepSortColumn(Keeping& keeping) {
    for (const auto& column : keeping.view.Columns()) {
        const ZNBROWSER_SORT_ORDER order = column->SortOrder();
        if (column->SortsNaturally()) keeping.Add(column->Name(), naturally, OnOff(true));
        if (order != ZNBROWSER_UNSORTED) keeping.Add(column->Name(), "", OnOff(order == ZNBROWSER_ASCENDING));
    }
}

void RestoreSortColumn(Restoring& restoring, const Settings& settings) {
    View& view = restoring.Shown();
    view.SortBy(nullptr, true);
    for (const auto& column : view.Columns()) column->SetSortsNaturally(false);
    for (const Setting& setting : settings) {
        Column* const column = view.Columns().Find(setting.subject);
        if (!column) continue;
        if (setting.key == naturally) {
            column->SetSortsNaturally(true);
        } else {
            view.SortBy(column, IsOn(setting));
        }
    }
}

// ---- View properties ----

/// By their numbers.
constexpr const char* typeNames[] = {"UNDEFINED",    "Bool",        "Unsigned",   "Integer",
                                     "Double",       "String",      "BoolArray",  "UnsignedArray",
                                     "IntegerArray", "DoubleArray", "StringArray"};

const char* TypeName(ZNBROWSER_DATA_TYPE type) {
    const auto place = static_cast<std::size_t>(type);
    return place < std::size(typeNames) ? typeNames[place] : typeNames[0];
}

ZNBROWSER_DATA_TYPE TypeOf(const std::string& name) {
    const auto found = std::find(std::begin(typeNames), std::end(typeNames), name);
    return found == std::end(typeNames) ? ZNBROWSER_DATA_UNDEFINED
                                        : static_cast<ZNBROWSER_DATA_TYPE>(found - std::begin(typeNames));
}

void KeepPropertyTypes(Keeping& keeping) {
    for (const auto& property : keeping.view.Properties()) {
        keeping.Add(property->Name(), "", TypeName(property->Type()));
    }
}

void RestorePropertyTypes(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        ViewProperty* const property = restoring.Shown().Properties().Find(setting.subject);
        if (property) {
            property->SetType(TypeOf(setting.value));
        } else {
            restoring.Skip("view property", setting.subject);
        }
    }
}

void KeepConnections(Keeping& keeping) {
    CallLog& log = keeping.view.Log();
    for (const auto& property : keeping.view.Properties()) {
        for (const znBrowserConnection& connection : property->Connections()) {
            keeping.Add(property->Name(), NameOf(log, connection.dataSource),
                        NameOf(log, connection.dataProperty));
        }
    }
}

/// Connects as the setting says: as before, else to what now bears the names.
void RestoreConnection(Restoring& restoring, ViewProperty& property, const Setting& setting,
                       const std::vector<znBrowserConnection>& before) {
    CallLog& log = restoring.Log();
    for (const znBrowserConnection& old : before) {
        if (NameOf(log, old.dataSource) != setting.key) continue;
        if (NameOf(log, old.dataProperty) != setting.value) continue;
        property.Connect(*old.dataSource, *old.dataProperty);
        return;
    }
    znIBrowserDataSource* const source = restoring.FindSource(setting.key);
    if (!source) return restoring.Skip("data source", setting.key);
    znIBrowserDataProperty* const values = source->FindDataProperty(setting.value.c_str());
    if (!values) return restoring.Skip("data property", setting.value);
    property.Connect(*source, *values);
}

/// A property that was there then has the connections of that time and no others.
void RestoreConnections(Restoring& restoring, const Settings& settings) {
    std::map<std::string, Settings> byProperty;
    for (const Setting& setting : settings) byProperty[setting.subject].push_back(setting);
    for (const Setting& setting : restoring.Of(kind::propertyType)) {
        ViewProperty* const property = restoring.Shown().Properties().Find(setting.subject);
        if (!property) continue;
        const std::vector<znBrowserConnection> before = property->Connections();
        for (const znBrowserConnection& connection : before) property->Disconnect(*connection.dataSource);
        for (const Setting& connection : byProperty[setting.subject]) {
            RestoreConnection(restoring, *property, connection, before);
        }
    }
}

// ---- Filters ----

constexpr const char* allColumns = "all columns";
constexpr const char* upTo = "to";

/// The text filter, and behind it those of columns, each with its kind; what ends at a value has another
/// line.
void KeepFilter(Keeping& keeping) {
    const TextFilter& text = keeping.view.Filter();
    keeping.Add("", text.allColumns ? allColumns : "", text.pattern);
    for (const auto& column : keeping.view.Columns()) {
        const ColumnFilter& filter = column->Filter();
        if (!filter.IsSet()) continue;
        keeping.Add(column->Name(), WordsOf(filter)[0], filter.value);
        if (filter.kind == ColumnFilter::Kind::Between) keeping.Add(column->Name(), upTo, filter.to);
    }
}

void RestoreFilter(Restoring& restoring, const Settings& settings) {
    View& view = restoring.Shown();
    std::map<std::string, std::vector<std::string>> words; // by column
    for (const Setting& setting : settings) {
        if (setting.subject.empty()) {
            view.SetFilterAllColumns(setting.key == allColumns);
            view.SetFilterString(setting.value.c_str());
        } else if (setting.key == upTo) {
            words[setting.subject].push_back(setting.value);
        } else {
            words[setting.subject] = {setting.key, setting.value};
            if (setting.value.empty() && setting.key == WordsOf({ColumnFilter::Kind::Null, {}, {}})[0])
                words[setting.subject].pop_back();
        }
    }
    for (const auto& column : view.Columns()) {
        ColumnFilter filter;
        ReadColumnFilter(words[column->Name()], filter);
        column->SetFilter(filter);
        words.erase(column->Name());
    }
    for (const auto& [column, filter] : words) restoring.Skip("column", column);
}

void KeepHiddenSources(Keeping& keeping) {
    for (znIBrowserDataSourceSimple* const source : keeping.view.ShowableSources()) {
        if (!keeping.view.IsShown(source)) keeping.Add(NameOf(keeping.view.Log(), source), "", "");
    }
}

void RestoreHiddenSources(Restoring& restoring, const Settings& settings) {
    View& view = restoring.Shown();
    std::vector<znString> shown;
    view.GetFilterNames(shown);
    for (const Setting& setting : settings) {
        const std::size_t before = shown.size();
        RemoveAll(shown, znString(setting.subject));
        if (shown.size() == before) restoring.Skip("data source", setting.subject);
    }
    view.SetShownFilters(shown);
}

} // namespace

const std::vector<SettingKind>& ViewKinds() {
    static const std::vector<SettingKind> kinds = {
        {kind::column, KeepColumns, RestoreColumns},
        {kind::propertyType, KeepPropertyTypes, RestorePropertyTypes},
        {kind::connection, KeepConnections, RestoreConnections},
        {kind::columnSorting, KeepColumnSorting, RestoreColumnSorting},
        {kind::sortColumn, KeepSortColumn, RestoreSortColumn},
        {kind::filter, KeepFilter, RestoreFilter},
        {kind::hiddenSource, KeepHiddenSources, RestoreHiddenSources},
    };
    return kinds;
}

} // namespace znhost
