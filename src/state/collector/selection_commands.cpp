// znbrowsermanager collector selection ...: what is collected in the current view.
#include "state/collector/collector_words.h"

const char* const znBrowserTclMessages::COLLECTOR_SELECTION =
    "    znbrowsermanager collector selection [action] \n\n"
    "    \tActions:\n"
    "    \tadd [selected|displayed|all]            Collects the selected items, those displayed, or all.\n"
    "    \tadd byprop <property> <value> ...       Collects the items with one of the values.\n"
    "    \tclear                                   Collects nothing any more.\n"
    "    \tcount                                   Shows how many items of each datasource are collected.\n"
    "    \tdataitems [property]                    Shows the values of the collected items.\n"
    "    \tenable [true|false]                     Gets/sets whether the selection of the collector bar "
    "answers.\n"
    "    \tremove [selected|displayed|all]         Collects these items no more.\n"
    "    \tremove byprop <property> <value> ...    Collects the items with one of the values no more.\n"
    "    \tset [selected|displayed|all]            Collects these items, and no others.\n"
    "    \tset byprop <property> <value> ...       Collects the items with one of the values, and no "
    "others.\n"
    "    \tshow [true|false]                       Gets/sets whether it stands in the collector bar.\n"
    "    \ttoggle [selected|displayed|all]         Collects those of these items that are not, and the "
    "others\n"
    "    \t                                        no more.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// Which items are meant; those selected without a word. @return false for any other word
bool ReadFrom(const Call& call, ZNBROWSER_COLLECT_FROM& from) {
    struct Row {
        Keyword keyword;
        ZNBROWSER_COLLECT_FROM from;
    };
    constexpr Row words[] = {{Keyword::Selected, ZNBROWSER_COLLECT_FROM_SELECTED},
                             {Keyword::Displayed, ZNBROWSER_COLLECT_FROM_DISPLAYED},
                             {Keyword::All, ZNBROWSER_COLLECT_FROM_ALL}};
    from = ZNBROWSER_COLLECT_FROM_SELECTED;
    if (call.Count() <= 4) return true;
    for (const Row& row : words) {
        from = row.from;
        if (call.Is(4, row.keyword)) return true;
    }
    return false;
}

template <ZNBROWSER_COLLECT change>
void ByProp(Call& call) {
    const std::vector<znString> values = call.TextsFrom(6);
    call.AnswerOutcome(call.manager.ChangeCollectorSelectionByProp(change, call.Text(5), values));
}

template <ZNBROWSER_COLLECT change>
constexpr CommandRow byPropRows[] = {
    {Keyword::ByProp, "PROPERTY VALUE ...", "The items with one of these values of a property.",
     ByProp<change>},
};
template <ZNBROWSER_COLLECT change>
constexpr CommandLevel byPropLevel(byPropRows<change>, Messages::COLLECTOR_SELECTION);

template <ZNBROWSER_COLLECT change>
void Change(Call& call) {
    ZNBROWSER_COLLECT_FROM from{};
    if constexpr (change != ZNBROWSER_COLLECT_TOGGLE) {
        if (call.Is(4, Keyword::ByProp)) return RunLevel(call, byPropLevel<change>, 4);
    }
    if (!ReadFrom(call, from)) return call.Answer(Messages::COLLECTOR_SELECTION);
    call.AnswerOutcome(call.manager.ChangeCollectorSelection(change, from));
}

void Clear(Call& call) { call.Run(&Manager::ClearCollectorSelection); }

void Count(Call& call) { call.AnswerValue(&Manager::GetCollectorSelectionCount); }

void DataItems(Call& call) {
    znString values;
    const bool read = call.manager.GetCollectorDataItems(call.Text(4), values);
    call.AnswerOutcome(read, values.c_str());
}

constexpr CommandRow rows[] = {
    {Keyword::Add, "?selected|displayed|all?", "Collects the selected items, those displayed, or all.",
     Change<ZNBROWSER_COLLECT_ADD>, &byPropLevel<ZNBROWSER_COLLECT_ADD>},
    {Keyword::Clear, "", "Collects nothing any more.", Clear},
    {Keyword::Count, "-> TEXT ...", "Lists the data sources with collected items, and how many they have.",
     Count},
    {Keyword::DataItem, "?PROPERTY? -> TEXT ...",
     "Lists what a property, or the current one, shows for the collected items.", DataItems},
    enableControlRow<ZNBROWSER_COLLECTOR_SELECTION, &Messages::COLLECTOR_SELECTION>,
    {Keyword::Remove, "?selected|displayed|all?", "Collects these items no more.",
     Change<ZNBROWSER_COLLECT_REMOVE>, &byPropLevel<ZNBROWSER_COLLECT_REMOVE>},
    {Keyword::Set, "?selected|displayed|all?", "Collects these items, and no others.",
     Change<ZNBROWSER_COLLECT_SET>, &byPropLevel<ZNBROWSER_COLLECT_SET>},
    showControlRow<ZNBROWSER_COLLECTOR_SELECTION, &Messages::COLLECTOR_SELECTION>,
    {Keyword::Toggle, "?selected|displayed|all?",
     "Collects those of these items that are not, and the others no more.", Change<ZNBROWSER_COLLECT_TOGGLE>},
};

} // namespace

constexpr CommandLevel collectorSelectionLevel(rows, Messages::COLLECTOR_SELECTION);

} // namespace znlayer
