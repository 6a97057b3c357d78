// znbrowsermanager collector showhide ...: the collected items are shown or hidden.
#include "state/collector/collector_words.h"

const char* const znBrowserTclMessages::COLLECTOR_SHOWHIDE =
    "    znbrowsermanager collector showhide [action] \n\n"
    "    \tActions:\n"
    "    \tall       Shows everything again.\n"
    "    \thide      Hides the collected items.\n"
    "    \tshow      Shows the collected items.\n"
    "    \ttoggle    Hides those of the collected items that are shown, and shows the others.\n\n";

namespace znlayer {

namespace {

constexpr CommandRow rows[] = {
    {Keyword::All, "", "Shows everything again.", ChangeDisplay<ZNBROWSER_COLLECTOR_SHOW_ALL>},
    {Keyword::Hide, "", "Hides the collected items.", ChangeDisplay<ZNBROWSER_COLLECTOR_HIDE>},
    {Keyword::Show, "", "Shows the collected items.", ChangeDisplay<ZNBROWSER_COLLECTOR_SHOW>},
    {Keyword::Toggle, "", "Hides those of the collected items that are shown, and shows the others.",
     ChangeDisplay<ZNBROWSER_COLLECTOR_TOGGLE>},
};

} // namespace

constexpr CommandLevel collectorShowHideLevel(rows, znBrowserTclMessages::COLLECTOR_SHOWHIDE);

} // namespace znlayer
