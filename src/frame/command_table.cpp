#include "frame/command_table.h"

#include <algorithm>

namespace znlayer {

namespace {

/// Whether the words behind `position` are those that the row needs, and can be read as far as it looks.
bool HasArguments(const Call& call, const CommandRow& row, int position) {
    const int behind = call.Count() - position - 1;
    if (behind < static_cast<int>(row.arguments.Fewest())) return false;
    Tcl_Obj* const* const words = call.Words() + position;
    for (int i = std::min(behind, static_cast<int>(row.arguments.Most())); i > 0; --i) {
        if (!words[i]) return false;
    }
    return true;
}

/// Apart from the way through the levels, which needs half of the registers then.
[[gnu::noinline]] void Answer(Call& call, const CommandLevel& level, const CommandRow& row, int position) {
    if (row.arguments.AreCheckedByTable() && !HasArguments(call, row, position))
        return call.Answer(row.usage ? *row.usage : *level.missingUsage);
    row.answer(call);
}

[[gnu::noinline]] void AnswerUsage(Call& call, const char* usage) { call.Answer(usage); }

} // namespace

void RunWord(Call& call, const CommandLevel& first, int position, Keyword keyword) {
    for (const CommandLevel* level = &first;; keyword = call.Word(position)) {
        const std::size_t place = level->PlaceOf(keyword);
        if (!place) return AnswerUsage(call, *level->unknownUsage);
        const CommandRow& row = level->rows[place - 1];
        if (row.answer) return Answer(call, *level, row, position);
        level = row.level;
        if (++position >= call.Count()) return AnswerUsage(call, *level->missingUsage);
    }
}

void RunLevel(Call& call, const CommandLevel& level, int position) {
    if (position >= call.Count()) return call.Answer(*level.missingUsage);
    RunWord(call, level, position, call.Word(position));
}

int RunFamily(znBrowserManagerTcl& manager, const CommandLevel& level, int objc, Tcl_Obj* const objv[]) {
    Call call(manager, objc, objv);
    RunLevel(call, level, 2);
    return call.Finish();
}

} // namespace znlayer
