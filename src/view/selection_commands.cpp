// view selection ...
#include "frame/command_table.h"

const char* const znBrowserTclMessages::VIEW_SELECTION =
    "    znbrowsermanager view selection <single/multiple> [action]\n\n"
    "    \tActions:\n"
    "    \tclear                     clears all selections in the current browser\n"
    "    \ttype <single/multiple>    sets the selection type (single selection or multiple selection.\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;

void Clear(Call& call) { call.Run(&Manager::ClearCurrentViewSelection); }
void Single(Call& call) { call.Run(&Manager::SetSingleSelection); }
void Multiple(Call& call) { call.Run(&Manager::SetMultipleSelection); }

constexpr CommandRow selectionRows[] = {
    {Keyword::Clear, "", "Deselects everything in the current view.", Clear},
    {Keyword::Single, "", "Lets users of the current window select one row at a time.", Single},
    {Keyword::Multiple, "", "Lets users of the current window select any number of rows.", Multiple},
};

} // namespace

constexpr CommandLevel viewSelectionLevel(selectionRows, znBrowserTclMessages::VIEW_SELECTION);

} // namespace znlayer
