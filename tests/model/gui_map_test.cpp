#include "model/gui_map_list.h"

#include <gtest/gtest.h>

#include <cmath>

namespace znhost {
namespace {

/// What the map shows for a value; "-" for nothing.
std::string Shown(const GuiMap& map, const znVariant& value) {
    const GuiMapRecord* const record = map.Find(value);
    return record ? record->value : "-";
}

GuiMap& Fill(GuiMap& map, ZNBROWSER_GUIMAP_TYPE type, std::initializer_list<GuiMap::Key> keys) {
    map.SetType(type);
    for (const GuiMap::Key& key : keys) map.SetRecord(key, {GuiMap::KeyText(key), false});
    return map;
}

TEST(GuiMap, LooksAValueUpAsItsKindOfKey) {
    CallLog log;
    GuiMap map(log, "map");
    Fill(map, ZNBROWSER_GUIMAP_INT_TO_STRING, {-1, 2});
    EXPECT_EQ(Shown(map, std::int64_t{-1}), "-1");
    EXPECT_EQ(Shown(map, 2.0), "2");
    EXPECT_EQ(Shown(map, 2.5), "-");
    EXPECT_EQ(Shown(map, 1e300), "-");
    EXPECT_EQ(Shown(map, "2"), "-");
    EXPECT_EQ(Shown(map, znVariant()), "-");
    Fill(map, ZNBROWSER_GUIMAP_UINT_TO_ICON, {7U});
    EXPECT_EQ(map.Records().size(), 1U) << "keys of another kind go with the type";
    EXPECT_EQ(Shown(map, -7), "-");
    EXPECT_EQ(Shown(map, 7), "7");
    Fill(map, ZNBROWSER_GUIMAP_BOOL_TO_RGB, {false, true});
    EXPECT_EQ(Shown(map, 5), "true");
    EXPECT_EQ(Shown(map, false), "false");
    Fill(map, ZNBROWSER_GUIMAP_STRING_TO_BUTTON, {std::string("12"), std::string("true")});
    EXPECT_EQ(Shown(map, 12), "12");
    EXPECT_EQ(Shown(map, true), "true");
    EXPECT_EQ(map.Shows(), GuiMapShows::Button);
}

TEST(GuiMap, OfRealNumbersIsAScale) {
    CallLog log;
    GuiMap map(log, "map");
    Fill(map, ZNBROWSER_GUIMAP_DOUBLE_TO_RGB, {0.0, 1.5, 10.0});
    EXPECT_EQ(Shown(map, -0.1), "-");
    EXPECT_EQ(Shown(map, 1.4), "0");
    EXPECT_EQ(Shown(map, 1.5), "1.5");
    EXPECT_EQ(Shown(map, 99), "10");
    EXPECT_EQ(Shown(map, std::nan("")), "-");
    EXPECT_FALSE(map.SetRecord(std::nan(""), {"x", false}));
}

TEST(GuiMap, TakesKeysOfItsTypeOnly) {
    CallLog log;
    GuiMap map(log, "map");
    EXPECT_FALSE(map.SetRecord(1, {"one", false}));
    EXPECT_EQ(log.Error(), "GUI map \"map\" has no type yet");
    map.SetType(ZNBROWSER_GUIMAP_INT_TO_ICON);
    EXPECT_TRUE(map.SetRecord(1, {"one", false}));
    EXPECT_FALSE(map.SetRecord(1U, {"one", false}));
    EXPECT_EQ(log.Error(), "GUI map \"map\" of type INT_TO_ICON does not take the key 1");
    EXPECT_FALSE(map.DeleteRecord(2));
    EXPECT_TRUE(map.HasRecord(1));
    EXPECT_FALSE(map.HasRecord(1U));
    EXPECT_FALSE(map.HasRecord(static_cast<const char*>(nullptr)));
}

TEST(GuiMap, ReadsEachKeyThatItPrints) {
    CallLog log;
    GuiMap map(log, "map");
    const std::pair<ZNBROWSER_GUIMAP_TYPE, GuiMap::Key> keys[] = {
        {ZNBROWSER_GUIMAP_INT_TO_RGB, -5},
        {ZNBROWSER_GUIMAP_UINT_TO_RGB, 4000000000U},
        {ZNBROWSER_GUIMAP_DOUBLE_TO_RGB, 0.1},
        {ZNBROWSER_GUIMAP_BOOL_TO_RGB, true},
        {ZNBROWSER_GUIMAP_STRING_TO_RGB, std::string("a b")}};
    for (const auto& [type, key] : keys) {
        map.SetType(type);
        EXPECT_EQ(GuiMap::TypeOf(GuiMap::TypeName(type)), type);
        GuiMap::Key read;
        ASSERT_TRUE(map.ReadKey(GuiMap::KeyText(key), read)) << GuiMap::KeyText(key);
        EXPECT_EQ(read, key);
        EXPECT_EQ(map.ReadKey("no number", read), std::holds_alternative<std::string>(key));
    }
}

} // namespace
} // namespace znhost
