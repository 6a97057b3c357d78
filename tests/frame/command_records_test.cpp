// What the command tables tell of each word: complete, and what the usage texts promise.
#include "frame/command_table.h"
#include "frame/shared_keywords.h"
#include "znBrowserTclCommandTree.h"

#include <algorithm>
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

using namespace znlayer;

namespace {

using Words = std::vector<std::string>;

std::string Joined(const Words& words) {
    std::string all;
    for (const std::string& word : words) all += (all.empty() ? "" : " ") + word;
    return all;
}

/// Calls `visit(words, row, level)` for each row, with the words that lead to it.
template <class Visit>
void VisitRows(const CommandLevel& level, const Words& words, Visit visit) {
    for (const CommandRow& row : level) {
        const char* const spelling = znBrowserTclKeywords::GetSpelling(row.keyword);
        Words path = words;
        path.emplace_back(spelling ? spelling : "?");
        visit(path, row, level);
        if (row.level) VisitRows(*row.level, path, visit);
    }
}

/// The words with which a line of a usage text begins, up to its arguments or the gap before its explanation:
/// "children count" of "    \tchildren count <true|false>    Sets ...". Empty for what is no such line.
Words PromisedWords(const std::string& line) {
    if (line.rfind("    \t", 0) != 0 || line.size() < 6 || line[5] == ' ') return {};
    std::istringstream text(line.substr(5, line.find("  ", 5) - 5));
    Words words;
    for (std::string word; text >> word;) {
        if (word.find_first_of("<[|(:/") != std::string::npos) break;
        words.push_back(word);
    }
    return words;
}

bool IsSameWord(const std::string& word, const std::string& other) {
    const Keyword keyword = SharedKeywords().GetZnBrowserTclApiEnum(word.c_str());
    return word == other ||
           (keyword != Keyword::Unknown && keyword == SharedKeywords().GetZnBrowserTclApiEnum(other.c_str()));
}

/// Whether a usage text is that of a level, which its first line names; some levels answer another's.
bool IsUsageOf(const char* usage, const Words& path) {
    std::istringstream text(usage);
    std::string word;
    text >> word; // the command
    for (const std::string& step : path) {
        if (!(text >> word) || !IsSameWord(word, step)) return false;
    }
    return (text >> word) && word.find_first_of("[<?") == 0;
}

/// Whether each of the promised words may stand in its place.
bool IsKept(Words path, const Words& promised) {
    for (const std::string& word : promised) {
        znBrowserTclExpectation expected;
        znBrowserTclCommandTree::GetExpected(path, expected);
        const auto isIt = [&](const std::string& other) { return IsSameWord(word, other); };
        if (std::none_of(expected.words.begin(), expected.words.end(), isIt)) return false;
        path.push_back(word);
    }
    return true;
}

TEST(CommandRecords, EachRowTellsInOneSentenceWhatItDoes) {
    std::size_t rows = 0;
    VisitRows(topLevel, {}, [&](const Words& path, const CommandRow& row, const CommandLevel&) {
        const std::string_view summary = row.summary;
        EXPECT_TRUE(summary.size() > 10 && summary.size() <= 110 && summary.back() == '.') << Joined(path);
        EXPECT_TRUE(row.answer || row.level) << Joined(path) << " leads nowhere";
        EXPECT_TRUE(znBrowserTclKeywords::GetSpelling(row.keyword) || row.keyword == Keyword::NoFilterForm)
            << "the keyword table has no word for " << Joined(path);
        ++rows;
    });
    EXPECT_GT(rows, 300u);
}

TEST(CommandRecords, WhatTheUsageTextsPromiseHasARow) {
    // Words that a text lists and that were never served.
    const std::set<std::string> unkept = {
        "collector: datsource simple", // spelled so
        "view: popupitem",
        "view selection: type",
        "datasource simple: dataitem ids", // the second word is not looked at
        "datasource simple: operation",
    };
    std::set<std::string> missing;
    std::size_t texts = 0;
    VisitRows(topLevel, {}, [&](const Words& path, const CommandRow& row, const CommandLevel& level) {
        if (!row.level || row.level->missingUsage == level.missingUsage ||
            !IsUsageOf(*row.level->missingUsage, path))
            return;
        ++texts;
        std::istringstream usage(*row.level->missingUsage);
        for (std::string line; std::getline(usage, line);) {
            const Words promised = PromisedWords(line);
            if (!IsKept(path, promised)) missing.insert(Joined(path) + ": " + Joined(promised));
        }
    });
    EXPECT_EQ(missing, unkept);
    EXPECT_GT(texts, 25u);
}

TEST(CommandRecords, TheCommandsThatTheHeaderNamesAreThere) {
    std::ifstream header(ZN_SOURCE_DIR "/include/znBrowserManagerTcl.h");
    std::size_t named = 0;
    for (std::string line; std::getline(header, line);) {
        const std::size_t quote = line.find('"');
        if (line.find("///") == std::string::npos || quote + 1 >= line.size() || line.back() != '"' ||
            line.find_first_not_of("/<; ", line.find("///")) != quote)
            continue;
        std::istringstream text(line.substr(quote + 1, line.size() - quote - 2));
        Words words;
        for (std::string word; text >> word && word != "...";) {
            if (word != "znbrowsermanager") words.push_back(word);
        }
        EXPECT_TRUE(IsKept({}, words)) << Joined(words);
        ++named;
    }
    EXPECT_GT(named, 300u);
}

TEST(CommandRecords, AnArgumentIsFoundByItsPlace) {
    constexpr Arguments arguments("NAME ?elem|VIEW? ?INDEX? ...");
    EXPECT_EQ(arguments.Fewest(), 1u);
    EXPECT_EQ(arguments.Most(), Arguments::any);
    EXPECT_EQ(arguments.At(0).alternatives, "NAME");
    EXPECT_EQ(arguments.At(1).alternatives, "elem|VIEW");
    EXPECT_TRUE(arguments.At(1).optional);
    EXPECT_EQ(arguments.At(7).alternatives, "INDEX");
    EXPECT_EQ(Arguments("NAME").At(1).alternatives, "");
}

TEST(CommandRecords, WhatMayStandNextDependsOnThePlace) {
    const struct {
        Words typed;
        std::string words, kinds;
    } rows[] = {
        {{"vi", "COLUMN", "current"}, "", "COLUMN"},
        {{"view", "column", "current", "x"}, "", ""},
        {{"view", "sort"}, "ascending descending disabled enabled", ""},
        {{"view", "column", "sort"}, "byname enabled disabled", ""},
        {{"view", "column", "sort", "byname"}, "", "PROPERTY"},
        {{"window", "current"}, "", "WINDOW"},
        {{"nosuch"}, "", ""},
    };
    for (const auto& row : rows) {
        znBrowserTclExpectation expected;
        znBrowserTclCommandTree::GetExpected(row.typed, expected);
        EXPECT_EQ(Joined(expected.words), row.words) << Joined(row.typed);
        EXPECT_EQ(Joined(expected.kinds), row.kinds) << Joined(row.typed);
    }
}

} // namespace
