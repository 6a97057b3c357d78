// view dataitem ...
#include "frame/command_table.h"
#include "host/znIBrowserView.h"
#include "view/view_helper_commands.h"
#include "view/view_words.h"

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

/// Whatever the kind of data source, a count that is none gets the usage text of the simple form. A negative
/// one asks for no values.
void SelectByValues(Call& call, const Selectors& selectors, bool select) {
    constexpr int firstValue = 7;
    int count = 0;
    if (!call.Has(6)) return call.Answer(*selectors.usage);
    if (!call.Integer(6, count)) return call.Answer(Messages::VIEW_DATAITEM_SIMPLE);
    if (call.Count() - firstValue < count) return call.Answer(Messages::VIEW);
    call.AnswerOutcome((call.manager.*selectors.byValues)(count, call.TextsFrom(firstValue), select, true));
}

/// The word at 6 is a value, or, where none is wanted, a word that is not looked at.
void SelectByProperty(Call& call, const Selectors& selectors, bool select) {
    const bool byValue = call.Is(5, Keyword::ByPropVal);
    bool recursive = true;
    if (byValue && !call.Has(6)) return call.Answer(*selectors.usage);
    if (!ReadFlag(call, 7, recursive, *selectors.usage)) return;
    call.AnswerOutcome(byValue ? (call.manager.*selectors.byValue)(call.Text(6), select, recursive)
                               : (call.manager.*selectors.byProperty)(select, recursive));
}

void Select(Call& call, const Selectors& selectors) {
    const bool select = call.Is(4, Keyword::Select);
    if (!select && !call.Is(4, Keyword::Deselect)) return call.Answer(*selectors.usage);
    const Keyword form = call.Word(5);
    if (form == Keyword::ByProp || form == Keyword::ByPropVal)
        return SelectByProperty(call, selectors, select);
    if (form == Keyword::ByPropVals) return SelectByValues(call, selectors, select);
    if (call.Has(5) && form != Keyword::TrueWord && form != Keyword::FalseWord)
        return call.Answer(*selectors.usage);
    call.AnswerOutcome((call.manager.*selectors.all)(select, form != Keyword::FalseWord));
}

void Simple(Call& call) { Select(call, simple); }
void Hierarchical(Call& call) { Select(call, hierarchical); }

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
    {Keyword::Hierarchical, Hierarchical},
    {Keyword::Selected, Selected},
    {Keyword::Simple, Simple},
    // The other words are those of the view helper.
    {Keyword::Current, AnswerByViewHelper},
    {Keyword::Deselect, AnswerByViewHelper},
    {Keyword::Select, AnswerByViewHelper},
};

} // namespace

constexpr CommandLevel viewDataItemLevel(dataItemRows, Messages::HELPER_DATAITEM);
