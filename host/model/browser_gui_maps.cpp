// GUI maps and their records.
#include "model/browser.h"
#include "model/gui_map_list.h"

namespace znhost {

namespace {

GuiMap::Key KeyOf(const char* key) { return std::string(key ? key : ""); }
template <class Value>
GuiMap::Key KeyOf(Value key) {
    return key;
}

/// Changes a map by `change(GuiMap&)` and, where that succeeds, lets the windows draw what it shows.
template <class Change>
bool ChangeMap(Browser& browser, znIBrowserGuiMap* map, Change&& change) {
    if (!map) {
        browser.Log().SetError("There is no such GUI map");
        return false;
    }
    if (!change(static_cast<GuiMap&>(*map))) return false;
    for (const auto& view : browser.Views()) view->Changed(VIEW_CELLS);
    return true;
}

bool SetRecord(Browser& browser, znIBrowserGuiMap* map, const GuiMap::Key& key, const char* value,
               bool disabled) {
    return ChangeMap(browser, map, [&](GuiMap& own) {
        return own.SetRecord(key, {TextOf(value), disabled});
    });
}

bool DeleteRecord(Browser& browser, znIBrowserGuiMap* map, const GuiMap::Key& key) {
    return ChangeMap(browser, map, [&key](GuiMap& own) { return own.DeleteRecord(key); });
}

} // namespace

znIBrowserGuiMapList* Browser::GetGuiMapList() {
    if (Refused("znIBrowser::GetGuiMapList")) return nullptr;
    return guiMaps_.get();
}

bool Browser::CreateGuiMap(const char* name) {
    if (Refused("znIBrowser::CreateGuiMap", name)) return false;
    if (TextOf(name).empty()) return Fail("A GUI map needs a name");
    if (guiMaps_->All().Find(TextOf(name))) return Fail("A GUI map \"" + TextOf(name) + "\" already exists");
    guiMaps_->All().Add(std::make_shared<GuiMap>(log_, TextOf(name)));
    return true;
}

bool Browser::DeleteGuiMap(const char* name) {
    if (Refused("znIBrowser::DeleteGuiMap", name)) return false;
    GuiMap* const map = guiMaps_->All().Find(TextOf(name));
    if (!map) return Fail("There is no GUI map \"" + TextOf(name) + "\"");
    if (map->Name() == GuiMapList::defaultImages || map->Name() == GuiMapList::defaultColours) {
        return Fail("The GUI map \"" + map->Name() + "\" cannot be deleted");
    }
    guiMaps_->All().Remove(*map);
    for (const auto& view : Views()) view->Changed(VIEW_CELLS);
    return true;
}

bool Browser::SetGuiMapType(znIBrowserGuiMap* map, ZNBROWSER_GUIMAP_TYPE type) {
    if (Refused("znIBrowser::SetGuiMapType", map, type)) return false;
    return ChangeMap(*this, map, [type](GuiMap& own) {
        own.SetType(type);
        return true;
    });
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, bool key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, false);
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, false);
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, double key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, false);
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, int key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, false);
}

bool Browser::CreateGuiMapRecord(znIBrowserGuiMap* map, const char* key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, false);
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, bool key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, true);
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, unsigned int key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, true);
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, double key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, true);
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, int key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, true);
}

bool Browser::CreateGuiMapDisabledRecord(znIBrowserGuiMap* map, const char* key, const char* value) {
    return !Refused("znIBrowser::CreateGuiMapDisabledRecord", map, key, value) &&
           SetRecord(*this, map, KeyOf(key), value, true);
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, const char* key) {
    return !Refused("znIBrowser::DeleteGuiMapRecord", map, key) && DeleteRecord(*this, map, KeyOf(key));
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, bool key) {
    return !Refused("znIBrowser::DeleteGuiMapRecord", map, key) && DeleteRecord(*this, map, KeyOf(key));
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, unsigned int key) {
    return !Refused("znIBrowser::DeleteGuiMapRecord", map, key) && DeleteRecord(*this, map, KeyOf(key));
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, double key) {
    return !Refused("znIBrowser::DeleteGuiMapRecord", map, key) && DeleteRecord(*this, map, KeyOf(key));
}

bool Browser::DeleteGuiMapRecord(znIBrowserGuiMap* map, int key) {
    return !Refused("znIBrowser::DeleteGuiMapRecord", map, key) && DeleteRecord(*this, map, KeyOf(key));
}

} // namespace znhost
