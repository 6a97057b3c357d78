#include "rows/text_matcher.h"

#include "base/text.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace znhost {
namespace {

struct Case {
    const char* pattern;
    const char* text;
    const char* options; ///< letters: c match case, w match word, r regular expression, g glob
    bool matches;
};

void PrintTo(const Case& shown, std::ostream* out) {
    *out << '"' << shown.pattern << "\" in \"" << shown.text << '"';
}

class Matching : public ::testing::TestWithParam<Case> {};

TEST_P(Matching, Follows) {
    const std::string letters = GetParam().options;
    const auto has = [&letters](char letter) { return letters.find(letter) != letters.npos; };
    const TextMatcher matcher(GetParam().pattern, {has('c'), has('w'), has('r'), has('g')});
    EXPECT_EQ(matcher.Matches(GetParam().text), GetParam().matches)
        << GetParam().pattern << " in " << GetParam().text << " with " << letters;
    EXPECT_TRUE(!GetParam().matches || Fold(GetParam().text).find(matcher.Held()) != std::string::npos);
}

TEST(TextMatcher, TellsTheLongestTextThatIsHeld) {
    const auto held = [](const char* pattern, bool glob) {
        TextMatcher::Options options;
        options.glob = glob;
        return TextMatcher(pattern, options).Held();
    };
    EXPECT_EQ(held("Gear", true), "gear");
    EXPECT_EQ(held("g?arBox*S", true), "arbox");
    EXPECT_EQ(held("*?", true), "");
    EXPECT_EQ(held("a*b", false), "a*b");
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Matching,
    ::testing::Values(Case{"gear", "Main GEAR box", "", true}, Case{"gear", "Main GEAR box", "c", false},
                      Case{"GEAR", "Main GEAR box", "c", true}, Case{"gear", "Gearbox", "w", false},
                      Case{"gear", "reGear, gear", "w", true}, Case{"gear", "the gear", "w", true},
                      Case{"", "anything", "", true}, Case{"müßig", "MÜßIG Wälzlager", "", true},
                      Case{"ig", "Müßig", "w", false}, Case{"*", "a*b", "", true}, Case{"*", "ab", "", false},
                      Case{"g*r", "gear", "g", true}, Case{"g*r", "gears", "g", false},
                      Case{"[a]*", "[A] b", "g", true}, Case{"[a]*", "ab", "g", false},
                      Case{"a?c", "abc", "g", true}, Case{"plain", "a plain text", "g", true},
                      Case{"^M\\d+$", "m12", "r", true}, Case{"^M\\d+$", "m12", "rc", false},
                      Case{"\\d|x", "12", "rw", false}, Case{"a", "", "", false}));

// Tcl's form of U+1F600, of NUL, and of the byte FF; letters whose lower case has another length.
INSTANTIATE_TEST_SUITE_P(
    Characters, Matching,
    ::testing::Values(Case{"SMILE", "\xED\xA0\xBD\xED\xB8\x80\xED\xA0\xBD\xED\xB8\x80 smile", "", true},
                      Case{"smile", "\xF0\x9F\x98\x80\xF0\x9F\x98\x80 Smile", "", true},
                      Case{"\u2C65b", "\u023A\u023A\u023A\u023AB", "", true},
                      Case{"\u023Ab", "\u2C65B", "", true}, Case{"\u0130stanbul", "ISTANBUL", "", true},
                      Case{"stra\u00DFe", "STRA\u1E9EE", "", true}, Case{"strasse", "Stra\u00DFe", "", false},
                      Case{"E\u0301", "e\u0301cole", "", true}, Case{"\xC0\x80z", "A\xC0\x80Z", "", true},
                      Case{"\xED\xB3\xBF", "a\xED\xB3\xBFz", "", true},
                      Case{"x", "\xED\xA0\xBD\xED\xB8\x80x", "w", true}, Case{"x", "\u00FCx", "w", false},
                      Case{"x", "x\u00FC", "w", false},
                      Case{"?b",
                           "\xED\xA0\xBD\xED\xB8\x80"
                           "B",
                           "g", true},
                      Case{"??b",
                           "\xED\xA0\xBD\xED\xB8\x80"
                           "B",
                           "g", false},
                      Case{"a?b",
                           "a\u20AC"
                           "b",
                           "g", true},
                      Case{"a?b",
                           "a\xC0\x80"
                           "b",
                           "g", true},
                      Case{"*b*", "abc", "g", true}, Case{"a*bc", "abbbc", "g", true},
                      Case{"**", "", "g", true}, Case{"?", "", "g", false}, Case{"a*b?", "aabbc", "g", true},
                      Case{"a*b?", "aabb", "g", true}, Case{"a*b??", "aabb", "g", false}));

TEST(TextMatcher, TriesNoMoreThanTheLastStar) {
    TextMatcher::Options options;
    options.glob = true;
    std::string pattern;
    for (int i = 0; i < 30; ++i) pattern += "*a";
    EXPECT_FALSE(TextMatcher(pattern + "*b", options).Matches(std::string(10000, 'a')));
    EXPECT_TRUE(TextMatcher(pattern + "*b", options).Matches(std::string(10000, 'a') + "b"));
}

TEST(TextMatcher, TellsWhatIsWrongWithAnExpression) {
    TextMatcher::Options options;
    options.regexp = true;
    const TextMatcher broken("(", options);
    EXPECT_NE(broken.GetError(), "");
    EXPECT_FALSE(broken.Matches("("));
    EXPECT_EQ(TextMatcher("a|b", options).GetError(), "");
}

} // namespace
} // namespace znhost
