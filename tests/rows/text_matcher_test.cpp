#include "rows/text_matcher.h"

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
