#include "frame/command_table.h"

#include <algorithm>

namespace znlayer {

namespace {

/// Whether the words behind `position` are those that the row needs, and can be read as far as it looks.
bool HasArguments(const Call& call, const CommandRow& row, int position) {
    const int behind = call.Count() - position - 1;
    if (behind < static_cast<int>(row.arguments.Fewest())) return false;
    const int last = position + std::min(behind, static_cast<int>(row.arguments.Most()));
    while (position < last) {
        if (!call.Has(++position)) return false;
    }
    return true;
}

void Answer(Call& call, const CommandLevel& level, const CommandRow& row, int position) {
    if (row.arguments.AreCheckedByTable() && !HasArguments(call, row, position))
        return call.Answer(row.usage ? *row.usage : *level.missingUsage);
    row.answer(call);
}

} // namespace

void RunWord(Call& call, const CommandLevel& first, int position, Keyword keyword) {
    for (const CommandLevel* level = &first;; keyword = call.Word(position)) {
        const CommandRow* const row = level->Find(keyword);
        if (!row) return call.Answer(*level->unknownUsage);
        if (row->answer) return Answer(call, *level, *row, position);
        level = row->level;
        if (++position >= call.Count()) return call.Answer(*level->missingUsage);
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
