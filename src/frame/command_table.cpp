#include "frame/command_table.h"

#include <algorithm>

const CommandRow* CommandLevel::Find(Keyword keyword) const {
    const CommandRow* const row = std::find_if(
        begin(), end(), [keyword](const CommandRow& candidate) { return candidate.keyword == keyword; });
    return row == end() ? nullptr : row;
}

void RunLevel(Call& call, const CommandLevel& level, int position) {
    if (!call.Has(position)) return call.Answer(*level.missingUsage);
    const CommandRow* const row = level.Find(call.Word(position));
    if (!row) return call.Answer(*level.unknownUsage);
    if (row->answer) return row->answer(call);
    RunLevel(call, *row->level, position + 1);
}

int RunFamily(znBrowserManagerTcl& manager, const CommandLevel& level, int objc, Tcl_Obj* const objv[]) {
    Call call(manager, objc, objv);
    RunLevel(call, level, 2);
    return call.Finish();
}
