// The levels of the collector's words, one a control, and what several of them have in common.
#ifndef COLLECTOR_WORDS_H
#define COLLECTOR_WORDS_H

#include "frame/command_table.h"

namespace znlayer {

extern const CommandLevel collectorDataSourceLevel;
extern const CommandLevel collectorOptionLevel;
extern const CommandLevel collectorOptionSelectorLevel;
extern const CommandLevel collectorPnlColSelectorLevel;
extern const CommandLevel collectorPreselectorLevel;
extern const CommandLevel collectorSelectionLevel;
extern const CommandLevel collectorShowHideLevel;
extern const CommandLevel collectorUndoLevel;

/// A change of what the current view shows.
template <ZNBROWSER_COLLECTOR_DISPLAY change>
void ChangeDisplay(Call& call) {
    call.AnswerOutcome(call.manager.ChangeCollectorDisplay(change));
}

/// Without a word at that position a flag's value. With one, sets it first; one that is no boolean gets the
/// usage text.
template <class Setter, class Getter>
void SetFlagThenAnswer(Call& call, int position, const char* usage, Setter setter, Getter getter) {
    bool flag = false;
    if (call.Count() > position) {
        if (!call.Boolean(position, flag)) return call.Answer(usage);
        if (!setter(flag)) return call.AnswerError();
    }
    if (!getter(flag)) return call.AnswerError();
    call.Answer(flag);
}

template <ZNBROWSER_COLLECTOR_CONTROL control, const char* const* usage>
void ShowControl(Call& call) {
    znBrowserManagerTcl& manager = call.manager;
    SetFlagThenAnswer(
        call, 4, *usage, [&](bool shown) { return manager.SetCollectorControlShown(control, shown); },
        [&](bool& shown) { return manager.GetCollectorControlShown(control, shown); });
}

template <ZNBROWSER_COLLECTOR_CONTROL control, const char* const* usage>
void EnableControl(Call& call) {
    znBrowserManagerTcl& manager = call.manager;
    SetFlagThenAnswer(
        call, 4, *usage, [&](bool enabled) { return manager.SetCollectorControlEnabled(control, enabled); },
        [&](bool& enabled) { return manager.GetCollectorControlEnabled(control, enabled); });
}

/// The two words that every control in the collector bar of a window has.
template <ZNBROWSER_COLLECTOR_CONTROL control, const char* const* usage>
constexpr CommandRow showControlRow{Keyword::Show, "?BOOL? -> BOOL",
                                    "Sets or reads whether the control stands in the window's collector bar.",
                                    ShowControl<control, usage>};
template <ZNBROWSER_COLLECTOR_CONTROL control, const char* const* usage>
constexpr CommandRow enableControlRow{Keyword::Enabled, "?BOOL? -> BOOL",
                                      "Sets or reads whether the control answers to the user.",
                                      EnableControl<control, usage>};

} // namespace znlayer

#endif
