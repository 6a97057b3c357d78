// view sort ...
#include "frame/command_table.h"

const char* const znBrowserTclMessages::VIEW_SORT =
    "    znbrowsermanager view sort [action] \n\n"
    "    \tActions:\n"
    "    \tascending     Sort the current column in ascending order in the current view.\n"
    "    \tdescending    Sort the current column in descending order in the current view.\n"
    "    \tdisabled      Set the sorting state to disabled for the current column in the current view.\n"
    "    \tenabled       Set the sorting state to enabled for the current column in the current view.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;

void Direction(Call& call) {
    if (!call.manager.SetAscendingOrder(call.Is(3, Keyword::Ascending))) return call.AnswerError();
    call.AnswerValue(&Manager::GetAscendingOrder);
}

void State(Call& call) {
    if (!call.manager.SetSorting(call.Is(3, Keyword::Enabled))) return call.AnswerError();
    call.AnswerValue(&Manager::GetSorting);
}

constexpr CommandRow sortRows[] = {
    {Keyword::Ascending, "-> ascending|descending", "Sorts the current column from small to large.",
     Direction},
    {Keyword::Descending, "-> ascending|descending", "Sorts the current column from large to small.",
     Direction},
    {Keyword::Disabled, "-> BOOL", "Switches the sorting of the current view off.", State},
    {Keyword::Enabled, "-> BOOL", "Switches the sorting of the current view on.", State},
};

} // namespace

constexpr CommandLevel viewSortLevel(sortRows, znBrowserTclMessages::VIEW_SORT);

} // namespace znlayer
