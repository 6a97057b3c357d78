// Command levels: one static table per level of the command language.
#ifndef COMMAND_TABLE_H
#define COMMAND_TABLE_H

#include "frame/arguments.h"
#include "frame/call.h"

#include <cstddef>

namespace znlayer {

struct CommandLevel;

/// One word of a level, and all that is to be told of it. It is answered by a function, or leads to the level
/// of the words that follow it. A row that has both is answered by the function; the level then tells what
/// may follow.
struct CommandRow {
    using AnswerFunction = void (*)(Call& call);

    /// A word that is answered.
    constexpr CommandRow(Keyword rowKeyword, Arguments rowArguments, const char* rowSummary,
                         AnswerFunction rowAnswer, const CommandLevel* rowLevel = nullptr,
                         const char* const* rowUsage = nullptr)
        : keyword(rowKeyword), arguments(rowArguments), summary(rowSummary), answer(rowAnswer),
          level(rowLevel), usage(rowUsage) {}
    /// A word that only leads on.
    constexpr CommandRow(Keyword rowKeyword, const char* rowSummary, const CommandLevel* rowLevel)
        : CommandRow(rowKeyword, "", rowSummary, nullptr, rowLevel) {}

    Keyword keyword;
    Arguments arguments;
    const char* summary; ///< one sentence
    AnswerFunction answer;
    const CommandLevel* level;
    /// The answer to missing or unreadable arguments where it is not the level's; null where it is.
    const char* const* usage;
};

/// The words that may stand at one position. The rows stand in the order in which the usage text lists them.
struct CommandLevel {
    /// A row of a keyword behind the last one does not compile.
    static constexpr std::size_t keywordCount = static_cast<std::size_t>(Keyword::Apply) + 1;

    template <std::size_t count>
    constexpr CommandLevel(const CommandRow (&table)[count], const char* const& usage)
        : CommandLevel(table, usage, usage) {}
    /// For a level whose answer to an unknown word differs from its answer to a missing one.
    template <std::size_t count>
    constexpr CommandLevel(const CommandRow (&table)[count], const char* const& missing,
                           const char* const& unknown)
        : rows(table), rowCount(count), missingUsage(&missing), unknownUsage(&unknown) {
        static_assert(count < 256, "a place is one byte");
        for (std::size_t i = count; i-- > 0;)
            places[static_cast<std::size_t>(table[i].keyword)] = static_cast<unsigned char>(i + 1);
    }

    const CommandRow* begin() const { return rows; }
    const CommandRow* end() const { return rows + rowCount; }
    /// The place of the keyword's row, counted from 1; 0: there is none.
    std::size_t PlaceOf(Keyword keyword) const {
        const auto number = static_cast<std::size_t>(keyword);
        return number < keywordCount ? places[number] : 0;
    }
    /// The row of that keyword, or null.
    const CommandRow* Find(Keyword keyword) const {
        const std::size_t place = PlaceOf(keyword);
        return place ? &rows[place - 1] : nullptr;
    }

    const CommandRow* rows;
    std::size_t rowCount;
    const char* const* missingUsage;
    const char* const* unknownUsage;
    unsigned char places[keywordCount] = {}; ///< by keyword: the place of its row, counted from 1; 0: none
};

/// Whether each row of a table can be reached where only keywords from `first` to `last` get to it.
template <std::size_t count>
constexpr bool LieWithin(const CommandRow (&table)[count], Keyword first, Keyword last) {
    for (const CommandRow& row : table) {
        if (row.keyword < first || row.keyword > last) return false;
    }
    return true;
}

/// Answers a word that stands at `position` by the level's table, or with the level's text for unknown words.
void RunWord(Call& call, const CommandLevel& level, int position, Keyword keyword);

/// Answers the word at `position` by the level's table, or with the level's usage text.
void RunLevel(Call& call, const CommandLevel& level, int position);

/// Runs a whole command family: its words begin at position 2. @return the Tcl code
int RunFamily(znBrowserManagerTcl& manager, const CommandLevel& level, int objc, Tcl_Obj* const objv[]);

// The levels of the command language. Each is defined in the file of its name.
extern const CommandLevel topLevel;
extern const CommandLevel viewLevel;
extern const CommandLevel viewColumnLevel;
extern const CommandLevel viewStyleLevel;
extern const CommandLevel viewElementLevel;
extern const CommandLevel viewPropertyLevel;
extern const CommandLevel viewFolderLevel;
extern const CommandLevel viewTreeLevel;
extern const CommandLevel viewListLevel;
extern const CommandLevel viewSelectionLevel;
extern const CommandLevel viewDataItemLevel;
extern const CommandLevel viewSortLevel;
extern const CommandLevel viewFilterLevel;
extern const CommandLevel viewOperationLevel;
extern const CommandLevel viewPopupMenuLevel;
extern const CommandLevel viewPopupMenuItemLevel;
extern const CommandLevel viewDataSourceLevel;
extern const CommandLevel viewDataReferenceLevel;
extern const CommandLevel windowLevel;
extern const CommandLevel dataCtrlLevel;
extern const CommandLevel dataSourceLevel;
extern const CommandLevel dataOperationLevel;
extern const CommandLevel dataReferenceLevel;
extern const CommandLevel userInputLevel;
extern const CommandLevel stateLevel;
extern const CommandLevel collectorLevel;

} // namespace znlayer

#endif
