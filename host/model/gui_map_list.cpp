#include "model/gui_map_list.h"

#include <utility>

namespace znhost {

namespace {

using Records = std::pair<const char*, const char*>;

/// What the rows themselves are drawn with, by what they are.
constexpr Records images[] = {
    {"checked", "checked.png"},
    {"count_many", "folder_many.png"},
    {"count_none", "folder_empty.png"},
    {"count_one", "folder_one.png"},
    {"folder", "folder.png"},
    {"item", "item.png"},
    {"list", "list.png"},
    {"tree", "tree.png"},
    {"unchecked", "unchecked.png"},
};

/// Colours that can be told from each other and read on white.
constexpr Records colours[] = {
    {"black", "#000000"}, {"blue", "#1f5fbf"},   {"brown", "#7f4f24"},  {"cyan", "#007f8f"},
    {"green", "#2e7d32"}, {"grey", "#6b6b6b"},   {"orange", "#c25e00"}, {"purple", "#7b3fa0"},
    {"red", "#b3261e"},   {"stripe", "#f2f5f9"}, {"white", "#ffffff"},  {"yellow", "#8f7a00"},
};

template <std::size_t count>
std::shared_ptr<GuiMap> MakeMap(CallLog& log, const char* name, ZNBROWSER_GUIMAP_TYPE type,
                                const Records (&records)[count]) {
    auto map = std::make_shared<GuiMap>(log, name);
    map->SetType(type);
    for (const Records& record : records) map->SetRecord(std::string(record.first), {record.second, false});
    return map;
}

} // namespace

GuiMapList::GuiMapList(CallLog& log) : HostObject(log) {
    maps_.Add(MakeMap(log, defaultImages, ZNBROWSER_GUIMAP_STRING_TO_ICON, images));
    maps_.Add(MakeMap(log, defaultColours, ZNBROWSER_GUIMAP_STRING_TO_RGB, colours));
}

std::shared_ptr<GuiMap> GuiMapList::Share(const std::string& name) const {
    GuiMap* const map = maps_.Find(name);
    return map ? map->shared_from_this() : nullptr;
}

znIBrowserGuiMap* GuiMapList::FindGuiMap(const char* name) {
    if (Refused("znIBrowserGuiMapList::FindGuiMap", name)) return nullptr;
    return maps_.Find(TextOf(name));
}

void GuiMapList::GetGuiMaps(std::vector<znIBrowserGuiMap*>& maps) {
    maps.clear();
    if (Refused("znIBrowserGuiMapList::GetGuiMaps")) return;
    maps_.CopyTo(maps);
}

} // namespace znhost
