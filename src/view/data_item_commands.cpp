// view dataitem ...
#include "frame/command_table.h"
#include "frame/command_words.h"
#include "host/znIBrowserView.h"
#include "view/view_helper_commands.h"

// The lines that the texts of both kinds of data source share.
#define SELECTION_FORMS                                                                                      \
    "    \t[true|false]                             All dataitems, with or without those below them.\n"      \
    "    \tbyprop <any> [true|false]                Those that have the current view property.\n"            \
    "    \tbypropval <value> [true|false]           Those with the given value of the current view "         \
    "property.\n"                                                                                            \
    "    \tbypropvals <count> <value1> ... <valueN> "                                                        \
    "Those with one of the given values of the current view property.\n\n"

const char* const znBrowserTclMessages::VIEW_DATAITEM_SIMPLE =
    "    znbrowsermanager view dataitem simple select <byprop/bypropval> <propval> <recursive> [action]\n\n"
    "    \tActions:\n"
    "    \tdeselect                                 "
    "Deselects dataitems of the current simple datasource in the current view.\n"
    "    \tselect                                   "
    "Selects dataitems of the current simple datasource in the current view.\n" SELECTION_FORMS;

const char* const znBrowserTclMessages::VIEW_DATAITEM_HIERARCHICAL =
    "    znbrowsermanager view dataitem hierarchical select <byprop/bypropval> <propval> <recursive> "
    "[action]\n\n"
    "    \tActions:\n"
    "    \tdeselect                                 "
    "Deselects dataitems of the current hierarchical datasource in the current view.\n"
    "    \tselect                                   "
    "Selects dataitems of the current hierarchical datasource in the current view.\n" SELECTION_FORMS;

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// The four ways to select the items of one kind of data source.
struct Selectors {
    bool (Manager::*all)(bool select, bool recursive);
    bool (Manager::*byProperty)(bool select, bool recursive);
    bool (Manager::*byValue)(const char* value, bool select, bool recursive);
    bool (Manager::*byValues)(int count, const std::vector<znString>& values, bool select, bool recursive);
    const char* const* usage;
};

constexpr Selectors simple = {
    &Manager::SelectDataItemSimples,
    &Manager::SelectDataItemSimplesByProp,
    &Manager::SelectDataItemSimplesByPropAndValue,
    &Manager::SelectDataItemSimplesByPropAndValues,
    &Messages::VIEW_DATAITEM_SIMPLE,
};

constexpr Selectors hierarchical = {
    &Manager::SelectDataItemHierarchicals,
    &Manager::SelectDataItemHierarchicalsByProp,
    &Manager::SelectDataItemHierarchicalsByPropAndValue,
    &Manager::SelectDataItemHierarchicalsByPropAndValues,
    &Messages::VIEW_DATAITEM_HIERARCHICAL,
};

bool IsSelect(const Call& call) { return call.Is(4, Keyword::Select); }

/// The word at 6 is not looked at.
template <const Selectors& selectors>
void SelectByProperty(Call& call) {
    bool recursive = true;
    if (ReadFlag(call, 7, recursive, *selectors.usage))
        call.AnswerOutcome((call.manager.*selectors.byProperty)(IsSelect(call), recursive));
}

template <const Selectors& selectors>
void SelectByValue(Call& call) {
    bool recursive = true;
    if (ReadFlag(call, 7, recursive, *selectors.usage))
        call.AnswerOutcome((call.manager.*selectors.byValue)(call.Text(6), IsSelect(call), recursive));
}

/// Whatever the kind of data source, a count that is none gets the usage text of the simple form. A negative
/// one asks for no values.
template <const Selectors& selectors>
void SelectByValues(Call& call) {
    constexpr int firstValue = 7;
    int count = 0;
    if (!call.Integer(6, count)) return call.Answer(Messages::VIEW_DATAITEM_SIMPLE);
    if (call.Count() - firstValue < count) return call.Answer(Messages::VIEW);
    const std::vector<znString> values = call.TextsFrom(firstValue);
    call.AnswerOutcome((call.manager.*selectors.byValues)(count, values, IsSelect(call), true));
}

template <const Selectors& selectors>
constexpr CommandRow formRows[] = {
    {Keyword::ByProp, "?ANY? ?BOOL?", "Only those that have the current view property.",
     SelectByProperty<selectors>},
    {Keyword::ByPropVal, "VALUE ?BOOL?", "Only those with that value of the current view property.",
     SelectByValue<selectors>},
    {Keyword::ByPropVals, "COUNT ?VALUE? ...",
     "Only those with one of these values of the current view property.", SelectByValues<selectors>},
};
template <const Selectors& selectors>
constexpr CommandLevel formLevel(formRows<selectors>, *selectors.usage);

template <const Selectors& selectors>
void Select(Call& call) {
    const Keyword form = call.Word(5);
    if (formLevel<selectors>.Find(form)) return RunWord(call, formLevel<selectors>, 5, form);
    if (call.Has(5) && form != Keyword::TrueWord && form != Keyword::FalseWord)
        return call.Answer(*selectors.usage);
    call.AnswerOutcome((call.manager.*selectors.all)(IsSelect(call), form != Keyword::FalseWord));
}

template <const Selectors& selectors>
constexpr CommandRow selectRows[] = {
    {Keyword::Deselect, "?true|false?", "Deselects the items; with false, not those below them.",
     Select<selectors>, &formLevel<selectors>},
    {Keyword::Select, "?true|false?", "Selects the items; with false, not those below them.",
     Select<selectors>, &formLevel<selectors>},
};
template <const Selectors& selectors>
constexpr CommandLevel selectLevel(selectRows<selectors>, *selectors.usage);

void Selected(Call& call) {
    const znIBrowserView* const view = call.manager.GetCurrentViewPtr();
    if (view && view->UsesNewConnections()) return AnswerByViewHelper(call);
    const bool all = call.Is(4, Keyword::All);
    const bool recursive = call.Is(all ? 5 : 4, Keyword::Recursive);
    if (call.Has(4) && !all && !recursive) return call.Answer(Messages::HELPER_DATAITEM);
    znString values;
    const bool listed = all ? call.manager.DataItemsSelectedAll(values, false, recursive)
                            : call.manager.DataItemsSelected(values, false, recursive);
    call.AnswerOutcome(listed, values.c_str());
}

constexpr CommandRow dataItemRows[] = {
    {Keyword::Hierarchical, "The items of the current hierarchical data source.", &selectLevel<hierarchical>},
    {Keyword::Selected, "?all|recursive? ?recursive? -> TEXT ...",
     "Lists the selected items of the current data source, or of all of them.", Selected},
    {Keyword::Simple, "The items of the current simple data source.", &selectLevel<simple>},
    // The other words are those of the view helper.
    {Keyword::Current, "-> ?TEXT?", "Tells the current item.", AnswerByViewHelper},
    {Keyword::Deselect, "", "Deselects the items of the helper's current data source.", AnswerByViewHelper,
     &helperSelectLevel},
    {Keyword::Select, "", "Selects the items of the helper's current data source.", AnswerByViewHelper,
     &helperSelectLevel},
};

} // namespace

constexpr CommandLevel viewDataItemLevel(dataItemRows, Messages::HELPER_DATAITEM);

} // namespace znlayer
