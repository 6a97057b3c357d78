// The usage texts, to the letter: a change of any line is noticed here. Who changes one on purpose takes over
// the number that the test prints.
#include "znBrowserTclMessages.h"

#include <cstdint>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <string>

namespace {

/// FNV-1a.
std::uint32_t HashOf(const char* text) {
    std::uint32_t hash = 2166136261U;
    for (; *text; ++text) hash = (hash ^ static_cast<unsigned char>(*text)) * 16777619U;
    return hash;
}

struct Usage {
    const char* name;
    const char* const& text;
    std::uint32_t hash;
};

#define TEXT(NAME, HASH)                                                                                     \
    { #NAME, znBrowserTclMessages::NAME, HASH }
const Usage usages[] = {
    TEXT(GENERAL, 0xc09d8448),
    TEXT(EMPTY, 0x86cdb971),
    TEXT(NO_FILTER, 0x4fb0ecbf),
    TEXT(CHECKBOX, 0x3fb264e8),
    TEXT(ON_REQUEST_COLLAPSE, 0x26e12dab),
    TEXT(ON_REQUEST_COLLAPSE_ALL, 0x4f33b6bc),
    TEXT(ON_REQUEST_EXPAND, 0xd7860910),
    TEXT(ON_REQUEST_EXPAND_ALL, 0x2138519f),
    TEXT(ON_REQUEST_SELECT, 0xac76c68c),
    TEXT(ON_REQUEST_DESELECT, 0x28277b4d),
    TEXT(ON_SET_STATE_POS, 0x5fbe14b5),
    TEXT(ON_CHECK_BOX_CLICK, 0xe82cce0b),
    TEXT(ON_WINDOW_BUTTON_CLICK, 0x60161c0b),
    TEXT(ON_LEFT_HAND_CLICK, 0x16c807cc),
    TEXT(ON_RIGHT_HAND_CLICK, 0x28fce383),
    TEXT(ON_POPUP_MENU, 0x74e1a528),
    TEXT(ON_POPUP_OPERATION, 0xcd98f070),
    TEXT(ON_DRAG_AND_DROP, 0x5d06206d),
    TEXT(VIEW, 0xf75d1f34),
    TEXT(VIEW_DATACTRL, 0x449c18ae),
    TEXT(VIEW_GROUP, 0xfe75d0c8),
    TEXT(VIEW_ITALIC, 0x023d9079),
    TEXT(VIEW_COLUMN, 0x9df41f28),
    TEXT(VIEW_STYLE, 0xe334f8dc),
    TEXT(VIEW_ELEMENT, 0x14c2388d),
    TEXT(VIEW_PROPERTY, 0xfb94a5c5),
    TEXT(VIEW_FOLDER, 0xfa3dcc07),
    TEXT(VIEW_TREE, 0xd6e7e4d9),
    TEXT(VIEW_LIST, 0x98efde37),
    TEXT(VIEW_SELECTION, 0x93a5a650),
    TEXT(VIEW_DATAITEM_SIMPLE, 0xdbc5a063),
    TEXT(VIEW_DATAITEM_HIERARCHICAL, 0x6aabbf54),
    TEXT(VIEW_SORT, 0xf6e1a1af),
    TEXT(VIEW_FILTER, 0xd1a06ad4),
    TEXT(VIEW_FILTER_OPTION, 0xa74a6d83),
    TEXT(VIEW_FILTER_DATAITEMTYPE, 0x70d6296f),
    TEXT(VIEW_FILTER_STRING, 0x24030549),
    TEXT(VIEW_OPERATION, 0xffc156f3),
    TEXT(VIEW_DATASOURCE, 0xbcc7e261),
    TEXT(VIEW_DATAREFERENCE, 0xb739f9a7),
    TEXT(VIEW_POPUPMENU, 0x5469509f),
    TEXT(VIEW_POPUPMENUITEM, 0x5d9b2a56),
    TEXT(HELPER_VIEW, 0x0b6c626f),
    TEXT(HELPER_DATASOURCE, 0xf23335f6),
    TEXT(HELPER_DATAITEM, 0x454d93cb),
    TEXT(HELPER_FOLDER, 0xdddb51b6),
    TEXT(HELPER_FOLDER_DATASOURCE, 0x0a467524),
    TEXT(WINDOW, 0xa4d81edd),
    TEXT(WINDOW_PART, 0xf0354739),
    TEXT(WINDOW_EVENT, 0x8bfcd903),
    TEXT(WINDOW_OPERATION, 0xfb48a3c7),
    TEXT(WINDOW_MAP, 0xf5ae67c9),
    TEXT(WINDOW_MAP_RECORD, 0x00c35235),
    TEXT(WINDOW_FIND, 0x2541b0d5),
    TEXT(DATACTRL, 0xb496d09d),
    TEXT(DATASOURCE, 0xe8946087),
    TEXT(DATASOURCE_SIMPLE, 0x2c1a4124),
    TEXT(DATASOURCE_SIMPLE_CRITERIA, 0xcab584bd),
    TEXT(DATASOURCE_SIMPLE_PROPERTY, 0xf5edc567),
    TEXT(DATASOURCE_HIERARCHICAL, 0x4fbdc621),
    TEXT(DATAITEMTYPE, 0x7e5cf287),
    TEXT(DATAFIELD, 0x5c7f602e),
    TEXT(DATAOPERATION, 0x230c1ff7),
    TEXT(USERINPUT, 0x9fd213d6),
    TEXT(STATE, 0x5929c60c),
    TEXT(COLLECTOR, 0x0ced9112),
    TEXT(COLLECTOR_ADDREMOVE, 0xa49fa64f),
    TEXT(COLLECTOR_AUTOFIT, 0xd0b40bd4),
    TEXT(COLLECTOR_DATASOURCE, 0x2b7bead8),
    TEXT(COLLECTOR_ENTITYSELECTOR, 0x74b801f5),
    TEXT(COLLECTOR_OPTION, 0xa28224d8),
    TEXT(COLLECTOR_OPTIONSELECTOR, 0x07069c50),
    TEXT(COLLECTOR_PNLCOLSELECTOR, 0x06038f56),
    TEXT(COLLECTOR_PRESELECTOR, 0xe64b2413),
    TEXT(COLLECTOR_SELECTION, 0x2f3761f9),
    TEXT(COLLECTOR_SHOW, 0x63689f47),
    TEXT(COLLECTOR_SHOWHIDE, 0x58424d42),
    TEXT(COLLECTOR_UNDO, 0x3f6d158f),
};
#undef TEXT

TEST(UsageTexts, AreWhatTheyWere) {
    for (const Usage& usage : usages) {
        EXPECT_EQ(HashOf(usage.text), usage.hash)
            << usage.name << " has changed (0x" << std::hex << HashOf(usage.text) << "):\n"
            << usage.text;
    }
}

TEST(UsageTexts, AreAllLookedAt) {
    std::ifstream file(ZN_SOURCE_DIR "/include/znBrowserTclMessages.h");
    const std::string header(std::istreambuf_iterator<char>(file), {});
    const std::regex declaration("static const char\\* const (\\w+);");
    auto next = std::begin(usages);
    for (std::sregex_iterator found(header.begin(), header.end(), declaration), end; found != end;
         ++found, ++next) {
        ASSERT_NE(next, std::end(usages)) << (*found)[1];
        EXPECT_EQ(next->name, (*found)[1]);
    }
    EXPECT_EQ(next, std::end(usages));
}

} // namespace
