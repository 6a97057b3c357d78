#include "frame/data_types.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>

using namespace znlayer;

namespace {

TEST(DataTypes, WordsNameTypesWithoutLetterCase) {
    const std::pair<const char*, int> cases[] = {
        {"bool", 1},       {"boolarray", 6},   {"boolarr", 6},      {"integer", 3},
        {"INT", 3},        {"Int", 3},         {"integerarray", 8}, {"intarr", 8},
        {"unsigned", 2},   {"UInt", 2},        {"integerarr", 8},   {"unsignedarray", 7},
        {"uintarr", 7},    {"unsignedarr", 7}, {"double", 4},       {"doublearray", 9},
        {"doublearr", 9},  {"string", 5},      {"str", 5},          {"stringarray", 10},
        {"stringarr", 10}, {"StrArr", 10},     {"boolean", 0},      {"", 0},
        {"intarray", 0},
    };
    for (const auto& [word, type] : cases) EXPECT_EQ(DataTypeFromWord(word), type) << word;
}

TEST(DataTypes, ViewPropertyWordsAreTheFullScalarOnes) {
    const std::pair<const char*, int> cases[] = {{"Integer", 3},  {"double", 4},   {"STRING", 5},
                                                 {"unsigned", 2}, {"bool", 1},     {"uint", 0},
                                                 {"int", 0},      {"boolarray", 0}};
    for (const auto& [word, type] : cases) EXPECT_EQ(ViewPropertyTypeFromWord(word), type) << word;
}

TEST(DataTypes, EveryFormOfNameForEveryValue) {
    const struct {
        int type;
        const char* name;
        const char* viewProperty;
        const char* keyword;
    } cases[] = {
        {-1, "UNDEFINED", "UNDEFINED", "unknown"},
        {0, "UNDEFINED", "UNDEFINED", "unknown"},
        {1, "Bool", "Bool", "boolean"},
        {2, "Unsigned", "Unsigned", "unknown"},
        {3, "Integer", "Integer", "integer"},
        {4, "Double", "Double", "double"},
        {5, "String", "String", "string"},
        {6, "BoolArray", "UNDEFINED", "unknown"},
        {7, "UnsignedArray", "UNDEFINED", "unknown"},
        {8, "IntegerArray", "UNDEFINED", "unknown"},
        {9, "DoubleArray", "UNDEFINED", "unknown"},
        {10, "StringArray", "UNDEFINED", "unknown"},
        {11, "UNDEFINED", "UNDEFINED", "unknown"},
        {13, "UNDEFINED", "UNDEFINED", "unknown"},
    };
    for (const auto& row : cases) {
        const auto type = static_cast<ZNBROWSER_DATA_TYPE>(row.type);
        EXPECT_STREQ(DataTypeName(type), row.name) << row.type;
        EXPECT_STREQ(ViewPropertyTypeName(type), row.viewProperty) << row.type;
        EXPECT_STREQ(KeywordTypeName(type), row.keyword) << row.type;
    }
}

TEST(DataTypes, GuiMapTypesAreNamedByTheirPairOfWords) {
    const char* const keys[] = {"integer", "DOUBLE", "unsigned", "Bool", "string", "int", ""};
    const char* const keyNames[] = {"INT", "DOUBLE", "UINT", "BOOL", "STRING"};
    const char* const shown[] = {"Icon", "string", "RGB", "button", ""};
    const char* const shownNames[] = {"ICON", "STRING", "RGB", "BUTTON"};
    for (int key = 0; key < 7; ++key) {
        for (int show = 0; show < 5; ++show) {
            const bool exists = key < 5 && (show < 3 || (show == 3 && key == 4));
            const int expected = exists ? key * 3 + show + 1 : 0;
            const ZNBROWSER_GUIMAP_TYPE type = GuiMapTypeFromWords(keys[key], shown[show]);
            EXPECT_EQ(type, expected) << keys[key] << ' ' << shown[show];
            EXPECT_EQ(GuiMapTypeName(type), exists ? std::string(keyNames[key]) + "_TO_" + shownNames[show]
                                                   : std::string("UNDEFINED"));
        }
    }
    EXPECT_STREQ(GuiMapTypeName(static_cast<ZNBROWSER_GUIMAP_TYPE>(17)), "UNDEFINED");
    EXPECT_STREQ(GuiMapTypeName(static_cast<ZNBROWSER_GUIMAP_TYPE>(-1)), "UNDEFINED");
}

TEST(DataTypes, CallbackOperationsReadBothWays) {
    EXPECT_EQ(CallbackOperationFromText("tree_area_select_PARENT_items"), 1);
    EXPECT_EQ(CallbackOperationFromText("TREE_AREA_SELECT_CHILDREN_ITEMS"), 2);
    for (const char* text : {"", "UNDEFINED", "TREE_AREA_SELECT"}) {
        EXPECT_EQ(CallbackOperationFromText(text), 0) << text;
    }
    EXPECT_STREQ(CallbackOperationName(ZNBROWSER_CALLBACK_TREE_AREA_SELECT_PARENT_ITEMS),
                 "TREE_AREA_SELECT_PARENT_ITEMS");
    EXPECT_STREQ(CallbackOperationName(static_cast<ZNBROWSER_CALLBACK_OPERATION>(3)), "UNDEFINED");
}

TEST(DataTypes, HostValuesAsText) {
    const std::pair<znVariant, const char*> cases[] = {
        {true, "true"},
        {false, "false"},
        {std::numeric_limits<int>::min(), "-2147483648"},
        {std::int64_t{7}, "7"},
        {std::int64_t{1} << 32, "0"},
        {std::int64_t{0xffffffff}, "-1"},
        {1.5f, "1.500000"},
        {1.5, "1.500000"},
        {-0.0000001, "-0.000000"},
        {"a {b", "a {b"},
        {znString(), ""},
    };
    for (const auto& [value, expected] : cases) {
        znString text = "before";
        EXPECT_TRUE(VariantToText(value, text)) << expected;
        EXPECT_EQ(text, expected);
    }
    znString text = "before";
    EXPECT_FALSE(VariantToText(znVariant(), text));
    EXPECT_EQ(text, "before");
    EXPECT_TRUE(VariantToText(-std::numeric_limits<double>::max(), text));
    EXPECT_EQ(text.size(), 317u); // a sign, 309 digits, a point, 6 digits
}

} // namespace
