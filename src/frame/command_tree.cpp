#include "frame/command_table.h"
#include "frame/live_names.h"
#include "frame/shared_keywords.h"
#include "znBrowserTclCommandTree.h"

namespace znlayer {
namespace {

using Words = std::vector<std::string>;

/// Where a row of words leads.
struct Place {
    const CommandLevel* level = &topLevel; ///< whose words may come next; null where none may
    const CommandRow* row = nullptr;       ///< the last command word; null before the first
    std::size_t arguments = 0;             ///< how many words stand behind that one
};

Place Follow(const Words& words) {
    Place place;
    for (const std::string& word : words) {
        const Keyword keyword = SharedKeywords().GetZnBrowserTclApiEnum(word.c_str());
        const CommandRow* const row = place.level ? place.level->Find(keyword) : nullptr;
        if (row) {
            place = {row->level, row, 0};
        } else {
            place.level = nullptr;
            ++place.arguments;
        }
    }
    return place;
}

bool Describe(const CommandRow& row, znBrowserTclCommand& command) {
    const char* const spelling = znBrowserTclKeywords::GetSpelling(row.keyword);
    if (!spelling) return false; // "no", which no spelling reaches
    command = {spelling, std::string(row.arguments.Text()), row.summary, row.level != nullptr,
               std::string(row.arguments.Answer())};
    return true;
}

} // namespace
} // namespace znlayer

using namespace znlayer;

void znBrowserTclCommandTree::GetCommands(const Words& words, std::vector<znBrowserTclCommand>& commands) {
    commands.clear();
    const Place place = Follow(words);
    if (!place.level) return;
    znBrowserTclCommand command;
    for (const CommandRow& row : *place.level) {
        if (Describe(row, command)) commands.push_back(command);
    }
}

void znBrowserTclCommandTree::GetNextWords(const Words& words, Words& next) {
    next.clear();
    std::vector<znBrowserTclCommand> commands;
    GetCommands(words, commands);
    for (znBrowserTclCommand& command : commands) next.push_back(std::move(command.word));
}

bool znBrowserTclCommandTree::GetCommand(const Words& words, znBrowserTclCommand& command) {
    const Place place = Follow(words);
    return place.row && place.arguments == 0 && Describe(*place.row, command);
}

void znBrowserTclCommandTree::GetExpected(const Words& words, znBrowserTclExpectation& expected) {
    GetNextWords(words, expected.words);
    expected.kinds.clear();
    const Place place = Follow(words);
    if (!place.row) return;
    std::string_view alternatives = place.row->arguments.At(place.arguments).alternatives;
    while (!alternatives.empty()) {
        const std::string_view word = Arguments::TakeAlternative(alternatives);
        const bool literal = Arguments::KindOf(word) == ArgumentKind::Literal;
        (literal ? expected.words : expected.kinds).emplace_back(word);
    }
}

void znBrowserTclCommandTree::GetArgumentKinds(std::vector<znBrowserTclArgumentKind>& kinds) {
    kinds.clear();
    for (const ArgumentKindRow& row : argumentKinds) kinds.push_back({std::string(row.word), row.meaning});
}

void znBrowserTclCommandTree::GetNames(const znBrowserManagerTcl& manager, const std::string& kind,
                                       Words& names) {
    names.clear();
    AddLiveNames(manager, Arguments::KindOf(kind), names);
}
