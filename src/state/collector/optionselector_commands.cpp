// znbrowsermanager collector optionselector ...: how clicks in a window collect.
#include "state/collector/collector_words.h"

const char* const znBrowserTclMessages::COLLECTOR_OPTIONSELECTOR =
    "    znbrowsermanager collector optionselector [action] \n\n"
    "    \tActions:\n"
    "    \tcurrent [none|select|toggle]    Gets/sets how clicks in a window collect: not at all, what is\n"
    "    \t                                selected, or adding and removing.\n"
    "    \tenable [true|false]             Gets/sets whether the option selector of the collector bar "
    "answers.\n"
    "    \tnames                           Returns the ways in which clicks can collect.\n"
    "    \tshow [true|false]               Gets/sets whether it stands in the collector bar.\n\n";

namespace znlayer {

namespace {

using Messages = znBrowserTclMessages;

struct ClickMode {
    Keyword keyword;
    ZNBROWSER_COLLECTOR_CLICK mode;
};
constexpr ClickMode clickModes[] = {
    {Keyword::NoneWord, ZNBROWSER_COLLECTOR_CLICK_NONE},
    {Keyword::Select, ZNBROWSER_COLLECTOR_CLICK_SELECT},
    {Keyword::Toggle, ZNBROWSER_COLLECTOR_CLICK_TOGGLE},
};

/// The outcome of choosing the mode of that word; a word of no mode gets the usage text. @return success
bool SetMode(Call& call, Keyword keyword) {
    for (const ClickMode& row : clickModes) {
        if (row.keyword != keyword) continue;
        const bool set = call.manager.SetCollectorClickMode(row.mode);
        call.AnswerOutcome(set);
        return set;
    }
    call.Answer(Messages::COLLECTOR_OPTIONSELECTOR);
    return false;
}

void Current(Call& call) {
    if (call.Has(4) && !SetMode(call, call.Word(4))) return;
    ZNBROWSER_COLLECTOR_CLICK mode{};
    if (!call.manager.GetCollectorClickMode(mode)) return call.AnswerError();
    for (const ClickMode& row : clickModes) {
        if (row.mode == mode) call.Answer(znBrowserTclKeywords::GetSpelling(row.keyword));
    }
}

void Names(Call& call) {
    ZNBROWSER_COLLECTOR_CLICK mode{};
    if (!call.manager.GetCollectorClickMode(mode))
        return call.AnswerError(); // there is nothing to be clicked
    const char* gap = "";
    for (const ClickMode& row : clickModes) {
        call.Answer(gap);
        call.Answer(znBrowserTclKeywords::GetSpelling(row.keyword));
        gap = " ";
    }
}

constexpr CommandRow rows[] = {
    {Keyword::Current, "?none|select|toggle? -> none|select|toggle",
     "Sets or reads how clicks in a window collect.", Current},
    enableControlRow<ZNBROWSER_COLLECTOR_OPTIONSELECTOR, &Messages::COLLECTOR_OPTIONSELECTOR>,
    {Keyword::Names, "-> none|select|toggle ...", "Lists the ways in which clicks can collect.", Names},
    showControlRow<ZNBROWSER_COLLECTOR_OPTIONSELECTOR, &Messages::COLLECTOR_OPTIONSELECTOR>,
};

} // namespace

constexpr CommandLevel collectorOptionSelectorLevel(rows, Messages::COLLECTOR_OPTIONSELECTOR);

} // namespace znlayer
