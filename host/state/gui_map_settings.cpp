// What a state keeps of the GUI maps.
#include "model/gui_map_list.h"
#include "state/setting_kinds.h"
#include "window/browser_windows.h"

namespace znhost {

namespace {

const NamedList<GuiMap>& Maps(const Window& window) { return window.Owner().GuiMaps().All(); }

void KeepTypes(Keeping& keeping) {
    for (const auto& map : Maps(keeping.window)) keeping.Add(map->Name(), "", GuiMap::TypeName(map->Type()));
}

void RestoreTypes(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        GuiMap* const map = Maps(restoring.Target()).Find(setting.subject);
        if (map) {
            map->SetType(GuiMap::TypeOf(setting.value));
        } else {
            restoring.Skip("GUI map", setting.subject);
        }
    }
}

void KeepRecords(Keeping& keeping) {
    for (const auto& map : Maps(keeping.window)) {
        for (const auto& [key, record] : map->Records()) {
            keeping.Add(map->Name(), GuiMap::KeyText(key), record.value);
        }
    }
}

/// A map that was there before has the records of that time and no others.
void RestoreRecords(Restoring& restoring, const Settings& settings) {
    const NamedList<GuiMap>& maps = Maps(restoring.Target());
    for (const Setting& setting : restoring.Of(kind::guiMap)) {
        GuiMap* const map = maps.Find(setting.subject);
        if (!map) continue;
        const auto records = map->Records();
        for (const auto& record : records) map->DeleteRecord(record.first);
    }
    for (const Setting& setting : settings) {
        GuiMap* const map = maps.Find(setting.subject);
        GuiMap::Key key;
        if (!map || !map->ReadKey(setting.key, key)) continue;
        map->SetRecord(key, {setting.value, false});
    }
    for (const auto& view : restoring.Target().Owner().Views()) view->Changed(VIEW_CELLS);
}

void KeepDisabledRecords(Keeping& keeping) {
    for (const auto& map : Maps(keeping.window)) {
        for (const auto& [key, record] : map->Records()) {
            if (record.disabled) keeping.Add(map->Name(), GuiMap::KeyText(key), "");
        }
    }
}

void RestoreDisabledRecords(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        GuiMap* const map = Maps(restoring.Target()).Find(setting.subject);
        GuiMap::Key key;
        if (!map || !map->ReadKey(setting.key, key)) continue;
        const auto record = map->Records().find(key);
        if (record != map->Records().end()) map->SetRecord(key, {record->second.value, true});
    }
}

} // namespace

const std::vector<SettingKind>& GuiMapKinds() {
    static const std::vector<SettingKind> kinds = {
        {kind::guiMap, KeepTypes, RestoreTypes},
        {kind::guiMapRecord, KeepRecords, RestoreRecords},
        {kind::disabledRecord, KeepDisabledRecords, RestoreDisabledRecords},
    };
    return kinds;
}

} // namespace znhost
