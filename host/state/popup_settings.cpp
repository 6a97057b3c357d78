// What a state keeps of the popup menus.
#include "state/setting_kinds.h"
#include "window/browser_windows.h"

namespace znhost {

namespace {

const NamedList<PopupMenu>& Menus(const Window& window) { return window.Owner().PopupMenus(); }

/// Null when it is gone.
PopupItem* FindItem(const Restoring& restoring, const Setting& setting) {
    const PopupMenu* const menu = Menus(restoring.Target()).Find(setting.subject);
    return menu ? menu->Items().Find(setting.key) : nullptr;
}

void KeepEnabling(Keeping& keeping) {
    for (const auto& menu : Menus(keeping.window)) {
        for (const auto& item : menu->Items())
            keeping.Add(menu->Name(), item->Name(), OnOff(item->Settings().enabled));
    }
}

void RestoreEnabling(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        if (PopupItem* const item = FindItem(restoring, setting)) {
            item->Enable(IsOn(setting));
        } else {
            restoring.Skip("popup menu item", setting.subject + '/' + setting.key);
        }
    }
}

void KeepChecks(Keeping& keeping) {
    for (const auto& menu : Menus(keeping.window)) {
        for (const auto& item : menu->Items()) {
            if (item->Settings().checkable)
                keeping.Add(menu->Name(), item->Name(), OnOff(item->Settings().checked));
        }
    }
}

void RestoreChecks(Restoring& restoring, const Settings& settings) {
    for (const Setting& setting : settings) {
        if (PopupItem* const item = FindItem(restoring, setting)) item->Check(IsOn(setting));
    }
}

} // namespace

const std::vector<SettingKind>& PopupKinds() {
    static const std::vector<SettingKind> kinds = {
        {kind::popupEnabling, KeepEnabling, RestoreEnabling},
        {kind::popupCheck, KeepChecks, RestoreChecks},
    };
    return kinds;
}

} // namespace znhost
