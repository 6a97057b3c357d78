// znbrowsermanager collector preselector ...: the item under the pointer.
#include "state/collector/collector_words.h"

const char* const znBrowserTclMessages::COLLECTOR_PRESELECTOR =
    "    znbrowsermanager collector preselector [action] \n\n"
    "    \tActions:\n"
    "    \tdataitem [property]    Shows the value of the item under the pointer.\n"
    "    \tenable [true|false]    Gets/sets whether the pre-selector of the collector bar answers.\n"
    "    \toff                    The item under the pointer is not marked.\n"
    "    \ton                     The item under the pointer is marked.\n"
    "    \tshow [true|false]      Gets/sets whether it stands in the collector bar.\n\n";

namespace znlayer {

namespace {

using Messages = znBrowserTclMessages;

void DataItem(Call& call) {
    znString value;
    const bool read = call.manager.GetCollectorPreselectedDataItem(call.Text(4), value);
    call.AnswerOutcome(read, value.c_str());
}

template <bool on>
void Switch(Call& call) {
    call.AnswerOutcome(call.manager.SetCollectorPreselector(on),
                       on ? znBrowserTclKeywords::KEYWORD_ON : znBrowserTclKeywords::KEYWORD_OFF);
}

constexpr CommandRow rows[] = {
    {Keyword::DataItem, "?PROPERTY? -> ?TEXT?",
     "Tells what a property, or the current one, shows for the marked item.", DataItem},
    enableControlRow<ZNBROWSER_COLLECTOR_PRESELECTOR, &Messages::COLLECTOR_PRESELECTOR>,
    {Keyword::Off, "-> on|off", "Lets windows mark no item under the pointer.", Switch<false>},
    {Keyword::On, "-> on|off", "Lets windows mark the item under the pointer.", Switch<true>},
    showControlRow<ZNBROWSER_COLLECTOR_PRESELECTOR, &Messages::COLLECTOR_PRESELECTOR>,
};

} // namespace

constexpr CommandLevel collectorPreselectorLevel(rows, Messages::COLLECTOR_PRESELECTOR);

} // namespace znlayer
