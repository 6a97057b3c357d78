// znbrowsermanager collector undo ...: the steps of the current view.
#include "state/collector/collector_words.h"

const char* const znBrowserTclMessages::COLLECTOR_UNDO =
    "    znbrowsermanager collector undo [action] \n\n"
    "    \tActions:\n"
    "    \tclear                  Forgets the steps.\n"
    "    \tcount                  Shows how many steps can be taken back.\n"
    "    \tenable [true|false]    Gets/sets whether the undo control of the collector bar answers.\n"
    "    \tnames                  Shows what the steps did, the last one last.\n"
    "    \trestore                Does again the step that was taken back last.\n"
    "    \tshow [true|false]      Gets/sets whether it stands in the collector bar.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Clear(Call& call) { call.Run(&Manager::ClearCollectorSteps); }

void Count(Call& call) { call.AnswerValue(&Manager::GetCollectorStepCount); }

void Names(Call& call) { call.AnswerValue(&Manager::GetCollectorStepNames); }

void Restore(Call& call) { call.Run(&Manager::RestoreCollectorStep); }

constexpr CommandRow rows[] = {
    {Keyword::Clear, "", "Forgets the steps; what they did stays.", Clear},
    {Keyword::Count, "-> INT", "Tells how many steps can be taken back.", Count},
    enableControlRow<ZNBROWSER_COLLECTOR_UNDO, &Messages::COLLECTOR_UNDO>,
    {Keyword::Names, "-> TEXT ...", "Lists what the steps did, the last one last.", Names},
    {Keyword::Restore, "", "Does again the step that was taken back last.", Restore},
    showControlRow<ZNBROWSER_COLLECTOR_UNDO, &Messages::COLLECTOR_UNDO>,
};

} // namespace

constexpr CommandLevel collectorUndoLevel(rows, Messages::COLLECTOR_UNDO);

} // namespace znlayer
