#include "znBrowserTclCommandTree.h"

#include "frame/command_table.h"
#include "frame/shared_keywords.h"

void znBrowserTclCommandTree::GetNextWords(const std::vector<std::string>& words,
                                           std::vector<std::string>& next) {
    next.clear();
    const CommandLevel* level = &topLevel;
    for (const std::string& word : words) {
        const CommandRow* const row = level->Find(SharedKeywords().GetZnBrowserTclApiEnum(word.c_str()));
        if (!row || !row->level) return;
        level = row->level;
    }
    for (const CommandRow& row : *level) {
        if (const char* const spelling = znBrowserTclKeywords::GetSpelling(row.keyword))
            next.emplace_back(spelling);
    }
}
