#include "frame/command_table.h"

const CommandRow* CommandLevel::Find(Keyword keyword) const {
    for (const CommandRow& row : *this) {
        if (row.keyword == keyword) return &row;
    }
    return nullptr;
}

void RunWord(Call& call, const CommandLevel& first, int position, Keyword keyword) {
    for (const CommandLevel* level = &first;; keyword = call.Word(position)) {
        const CommandRow* const row = level->Find(keyword);
        if (!row) return call.Answer(*level->unknownUsage);
        if (row->answer) return row->answer(call);
        level = row->level;
        if (!call.Has(++position)) return call.Answer(*level->missingUsage);
    }
}

void RunLevel(Call& call, const CommandLevel& level, int position) {
    if (!call.Has(position)) return call.Answer(*level.missingUsage);
    RunWord(call, level, position, call.Word(position));
}

int RunFamily(znBrowserManagerTcl& manager, const CommandLevel& level, int objc, Tcl_Obj* const objv[]) {
    Call call(manager, objc, objv);
    RunLevel(call, level, 2);
    return call.Finish();
}
