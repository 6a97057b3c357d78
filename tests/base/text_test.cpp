#include "base/text.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace znhost {
namespace {

using namespace std::string_literals;

// What a text of a script is in the database, and back.
struct Pair {
    std::string tcl;
    std::string stored;
};

const Pair pairs[] = {
    {"", ""},
    {"plain text of more than eight bytes", "plain text of more than eight bytes"},
    {"\u00FC\u20AC e\u0301 \u00DF\u0130", "\u00FC\u20AC e\u0301 \u00DF\u0130"},
    {"\xC0\x80", "\0"s},
    {"eight by\xC0\x80tes", "eight by\0tes"s},
    {"\xED\xA0\xBD\xED\xB8\x80", "\U0001F600"},
    {"a\xED\xAF\xBF\xED\xBF\xBFz", "a\U0010FFFFz"},
    {"\xED\xA0\xBD", "\xED\xA0\xBD"},                                   // first surrogates alone
    {"\xED\xA0\xBDx\xED\xB8\x80", "\xED\xA0\xBDx\xED\xB8\x80"},         // each alone
    {"\xED\xA0\xBD\xED\xA0\xBD\xED\xB8\x80", "\xED\xA0\xBD\U0001F600"}, // alone, then two together
    {"\xED\xB3\xBF", "\xFF"},                                           // bytes of no character
    {"\xED\xB3\x80\xED\xB2\x80", "\xC0\x80"},                           // Tcl's NUL, stored as it is
    {"\xED\xB3\xA2\xED\xB2\x82", "\xE2\x82"},                           // the start of a character
    {"\xED\xB3\xBF\xED\xA0\xBD\xED\xB8\x80", "\xFF\U0001F600"},
    {"\xED\xB3\xB0\xED\xB2\x82\xED\xB2\x82\xED\xB2\xAC", "\xF0\x82\x82\xAC"}, // longer than needed
    // What would become one character with what follows is given byte by byte.
    {"\xED\xB3\xAD\xED\xB2\xA0\xED\xB2\xBD\xED\xB3\xBF", "\xED\xA0\xBD\xFF"},
    {"\xED\xB3\xAD\xED\xB2\xA0\xED\xB2\xBD\xED\xB8\x80", "\xED\xA0\xBD\xED\xB8\x80"},
    // A stored surrogate that is what stands for a byte.
    {"\xED\xB3\xAD\xED\xB2\xB3\xED\xB2\xBF", "\xED\xB3\xBF"},
};

TEST(Text, CrossesTheBorderBothWays) {
    for (const Pair& pair : pairs) {
        EXPECT_EQ(ToTcl(pair.stored), pair.tcl) << testing::PrintToString(pair.stored);
        EXPECT_EQ(FromTcl(pair.tcl), pair.stored) << testing::PrintToString(pair.tcl);
    }
}

TEST(Text, IsNotCopiedWhereNothingChanges) {
    const std::string text = "a longer text, \u00FC\u20AC and 16 bytes of ASCII";
    std::string storage;
    EXPECT_EQ(FromTcl(text, storage).data(), text.data());
    EXPECT_EQ(ToTcl(text, storage).data(), text.data());
    EXPECT_EQ(storage, "");
}

// Pieces of characters in any order, so that valid and broken ones meet.
TEST(Text, OfTheDatabaseComesBackByteForByte) {
    const std::string pieces[] = {"a",      "\0"s,          "\x80",       "\xBD",         "\xFF",
                                  "\xC0",   "\xED\xA0\xBD", "\xED",       "\xB8",         "\xA0",
                                  "\xE2",   "\xF0",         "\x9F",       "\xED\xB8\x80", "\xF4",
                                  "\u20AC", "12345678",     "\U0001F600", "\xED\xB3\xBF"};
    std::mt19937 random(1);
    for (int round = 0; round < 20000; ++round) {
        std::string stored;
        for (unsigned left = random() % 8; left > 0; --left) stored += pieces[random() % std::size(pieces)];
        const std::string tcl = ToTcl(stored);
        ASSERT_EQ(FromTcl(tcl), stored) << testing::PrintToString(stored);
        ASSERT_EQ(tcl.find('\0'), tcl.npos);
        ASSERT_EQ(ToTcl(FromTcl(tcl)), tcl);
    }
}

TEST(Text, IsTakenCharacterByCharacter) {
    std::string_view text = "a\u00FC\xED\xA0\xBD\xED\xB8\x80\xED\xA0\xBD\xC0\x80\xFF";
    std::vector<char32_t> characters;
    while (!text.empty()) characters.push_back(TakeCharacter(text));
    EXPECT_EQ(characters, (std::vector<char32_t>{'a', 0xFC, 0x1F600, 0xD83D, 0, 0xFF}));
    EXPECT_EQ(LastCharacter("a\u20AC"), 0x20ACU);
    EXPECT_EQ(LastCharacter("\x80\x80\x80\x80\x80"), 0x80U);
}

TEST(Text, IsFoldedIntoAnotherStorage) {
    const Pair folded[] = {{"ABC xyz", "abc xyz"},
                           {"\u00C4\u00DF\u1E9E\u0130", "\u00E4\u00DF\u00DFi"},
                           {"\u023A\u023A\u023A", "\u2C65\u2C65\u2C65"}, // lower case is longer
                           {"A\xED\xA0\xBD\xED\xB8\x80Z", "a\xED\xA0\xBD\xED\xB8\x80z"},
                           {"A\U0001F600Z", "a\xED\xA0\xBD\xED\xB8\x80z"}, // no form of Tcl's
                           {"A\xC0\x80Z\xED\xB3\xBF", "a\xC0\x80z\xED\xB3\xBF"}};
    std::string storage;
    for (const Pair& pair : folded) EXPECT_EQ(Fold(pair.tcl, storage), pair.stored) << pair.tcl;
}

TEST(Text, IsComparedWithoutLetterCase) {
    EXPECT_EQ(Fold("\u212A \u00C4"), Fold("k \u00E4")); // the unit's K
    EXPECT_TRUE(BeginsWithFolded("\u00C4rger", "\u00E4R"));
    EXPECT_TRUE(BeginsWithFolded("x", ""));
    EXPECT_FALSE(BeginsWithFolded("\u00E4", "\u00E4r"));
}

TEST(Text, IsCutBetweenCharacters) {
    EXPECT_EQ(Cut("abc", 3), "abc");
    EXPECT_EQ(Cut("abcd", 3), "abc…");
    EXPECT_EQ(Cut("a\u20ACb", 3), "a…");
    EXPECT_EQ(Cut("a\U0001F600", 4), "a…");
    EXPECT_EQ(Cut("a\xED\xA0\xBD\xED\xB8\x80", 5), "a…");
    EXPECT_EQ(Cut("\x80\x80\x80\x80\x80\x80", 5), "\x80\x80…");
}

} // namespace
} // namespace znhost
