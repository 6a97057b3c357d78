#include "frame/ascii.h"
#include "frame/keyword_table.h"
#include "frame/shared_keywords.h"

#include <clocale>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <vector>

using namespace znlayer;

namespace {

using keyword_table::rows;

/// What the lookup must give: a walk over all rows, in order.
Keyword Walk(const std::string& word, bool debugMode) {
    for (const KeywordRow& row : rows) {
        if ((debugMode || !row.IsDebugOnly()) && EqualsIgnoringCase(row.spelling, word)) return row.keyword;
    }
    return Keyword::Unknown;
}

void ExpectAsWalk(const std::vector<std::string>& words) {
    for (const bool debugMode : {true, false}) {
        const znBrowserTclKeywords keywords(debugMode);
        for (const std::string& word : words) {
            ASSERT_EQ(keywords.GetZnBrowserTclApiEnum(word.c_str()), Walk(word, debugMode))
                << '"' << word << "\" in debug mode " << debugMode;
        }
    }
}

std::string Capitals(std::string word, unsigned pattern) {
    for (char& character : word) {
        if ((pattern & 1) && character >= 'a' && character <= 'z')
            character = static_cast<char>(character - 32);
        pattern = pattern >> 1 | (pattern & 1) << 15;
    }
    return word;
}

/// Every spelling, whole, in several letter cases, cut off at each place, extended, and with each byte
/// changed in one bit.
std::vector<std::string> WordsAroundTheTable() {
    std::vector<std::string> words;
    for (const KeywordRow& row : rows) {
        const std::string spelling(row.spelling);
        for (const unsigned pattern : {0u, 0xffffu, 0x5555u, 0x0001u, 0xfffeu}) {
            words.push_back(Capitals(spelling, pattern));
        }
        for (std::size_t i = 0; i < spelling.size(); ++i) {
            words.push_back(spelling.substr(0, i));
            words.push_back(spelling.substr(i));
            for (int bit = 0; bit < 8; ++bit) {
                words.push_back(spelling);
                words.back()[i] = static_cast<char>(words.back()[i] ^ (1 << bit));
            }
        }
        for (const char* end : {"s", " ", "_", "view", "x234567890123456789"})
            words.push_back(spelling + end);
    }
    return words;
}

TEST(Keywords, LookupGivesWhatAWalkOverTheTableGives) { ExpectAsWalk(WordsAroundTheTable()); }

TEST(Keywords, LookupOfRandomWordsGivesWhatAWalkGives) {
    std::mt19937 random(1);
    std::vector<std::string> words(20000);
    for (std::string& word : words) {
        const bool anyByte = random() % 4 == 0;
        for (std::size_t size = random() % 5 * (random() % 9); size > 0; --size) {
            word += static_cast<char>(anyByte ? 1 + random() % 255 : 'a' + random() % 26);
        }
    }
    ExpectAsWalk(words);
}

TEST(Keywords, LookupDoesNotFollowTheLocale) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"tr_TR.UTF-8", "tr_TR.ISO-8859-9", "C.utf8", "C"}) {
        std::setlocale(LC_ALL, locale);
        EXPECT_EQ(SharedKeywords().GetZnBrowserTclApiEnum("ITEM"), Keyword::Item);
        EXPECT_EQ(SharedKeywords().GetZnBrowserTclApiEnum("\xddTEM"), Keyword::Unknown);
        EXPECT_TRUE(EqualsIgnoringCase("INTEGER", "integer"));
        EXPECT_FALSE(EqualsIgnoringCase("\xcd", "\xed"));
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(Keywords, NumbersAreThoseOfTheInterface) {
    const struct {
        const char* word;
        int debug;
        int plain;
    } cases[] = {
        {"VIEW", 2, 2},
        {"vi", 2, 0},
        {"app", 4, 0},
        {"w", 3, 0},
        {"post", 210, 210},
        {"dropitem", 191, 191},
        {"set", 79, 79},
        {"up", 98, 98},
        {"des", 174, 0},
        {"description", 47, 47},
        {"dis", 23, 0},
        {"el", 25, 0},
        {"ge", 26, 0},
        {"str", 211, 0},
        {"connect", 35, 0},
        {"preop", 66, 66},
        {"clps", 21, 0},
        {"collapse", 22, 22},
        {"geom", 26, 26},
        {"selections", 110, 110},
        {"moveup", 93, 93},
        {"rtclk", 97, 0},
        {"caption", 139, 139},
        {"sort", 175, 175},
        {"items", 184, 184},
        {"part", 207, 207},
        {"ontktreerequestselect", 220, 220},
        {"apply", 238, 238},
        {"onpresel", 234, 0},
        {"", 0, 0},
        {"stripedisplay", 0, 0},
        {"k", 182, 0},
        {"onlhc", 225, 0},
        {"button", 202, 0},
        {"icon", 200, 200},
    };
    const znBrowserTclKeywords debug(true);
    const znBrowserTclKeywords plain(false);
    for (const auto& row : cases) {
        EXPECT_EQ(static_cast<int>(debug.GetZnBrowserTclApiEnum(row.word)), row.debug) << row.word;
        EXPECT_EQ(static_cast<int>(plain.GetZnBrowserTclApiEnum(row.word)), row.plain) << row.word;
    }
    EXPECT_EQ(debug.GetZnBrowserTclApiEnum(nullptr), Keyword::Unknown);
}

TEST(Keywords, ThePlainWordReadsBack) {
    for (const KeywordRow& row : rows) {
        const char* const word = znBrowserTclKeywords::GetSpelling(row.keyword);
        EXPECT_EQ(SharedKeywords().GetZnBrowserTclApiEnum(word), row.keyword) << row.spelling;
    }
    for (const int value : {-1, 0, 64, 65, 74, 236, 239, 1 << 30}) {
        EXPECT_EQ(znBrowserTclKeywords::GetSpelling(static_cast<Keyword>(value)), nullptr) << value;
    }
    EXPECT_STREQ(znBrowserTclKeywords::GetSpelling(Keyword::DataItem), "dataitem");
}

TEST(Keywords, TypeWordsAreCaseSensitiveAndReadBack) {
    const znBrowserTclKeywords& keywords = SharedKeywords();
    const char* const criteria[] = {"unknown", "morethan", "lessthan", "equalto", "unknown"};
    const char* const requests[] = {"unknown", "all", "next", "previous", "unknown"};
    for (int value = 0; value < 5; ++value) {
        const auto criterion = static_cast<ZNBROWSER_CRITERION_TYPE>(value);
        const auto request = static_cast<ZNBROWSER_FIND_REQUEST_TYPE>(value);
        EXPECT_EQ(keywords.GetCriterionTypeString(criterion), criteria[value]);
        EXPECT_EQ(keywords.GetFindRequestTypeString(request), requests[value]);
        EXPECT_EQ(keywords.GetCriterionTypeEnum(criteria[value]), value % 4);
        EXPECT_EQ(keywords.GetFindRequestTypeEnum(requests[value]), value % 4);
    }
    EXPECT_EQ(keywords.GetCriterionTypeString(static_cast<ZNBROWSER_CRITERION_TYPE>(-1)), "unknown");
    for (const char* word : {"", "MoreThan", "ALL", "nex", "nexts"}) {
        EXPECT_EQ(keywords.GetCriterionTypeEnum(word), ZNBROWSER_CRITERION_UNKNOWN) << word;
        EXPECT_EQ(keywords.GetFindRequestTypeEnum(word), ZNBROWSER_FIND_REQUEST_UNKNOWN) << word;
    }
    EXPECT_EQ(keywords.GetCriterionTypeEnum(znString()), ZNBROWSER_CRITERION_UNKNOWN);
}

TEST(Keywords, AssignmentCopiesTheDebugMode) {
    znBrowserTclKeywords keywords(true);
    keywords = znBrowserTclKeywords(false);
    EXPECT_FALSE(keywords.GetDebugMode());
    keywords.SetDebugMode(true);
    EXPECT_EQ(keywords.GetZnBrowserTclApiEnum("app"), Keyword::App);
}

} // namespace
