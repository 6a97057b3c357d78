// znbrowsermanager state ...
#include "frame/command_table.h"

const char* const znBrowserTclMessages::STATE =
    "    znbrowsermanager state [action] \n\n"
    "    \tcurrent [state_name]   Gets/sets the name of the current browser state.\n"
    "    \tdata                   Returns the current state configuration data.\n"
    "    \tnames                  Show existing browser state name list.\n"
    "    \tsave                   Saves current window's configuration to current state.\n"
    "    \trestore                Restores current window's configuration from current state.\n\n    ";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

constexpr const char* notEnough = "Not enough arguments";

void Current(Call& call) { call.SetThenAnswer(3, &Manager::SetCurrentState, &Manager::GetCurrentState); }

/// Prints what the state delivers, be it nothing.
void Data(Call& call) {
    std::vector<znString> lines;
    call.manager.GetConfigData(lines);
    znString text;
    for (const znString& line : lines) {
        text += line;
        text += '\n';
    }
    call.Answer(text);
}

void Names(Call& call) { call.AnswerValue(&Manager::GetStateNames); }

void Save(Call& call) {
    call.AnswerOutcome(call.manager.SaveCurrentState(), "Configuration has been saved successfully");
}

void Restore(Call& call) {
    call.AnswerOutcome(call.manager.RestoreCurrentState(), "Configuration has been restored successfully");
}

template <bool (Manager::*change)(const std::vector<znString>&)>
void ChangeEntities(Call& call) {
    if (call.Count() < 5) return call.Answer(notEnough);
    call.AnswerOutcome((call.manager.*change)(call.TextsFrom(4)));
}

constexpr CommandRow entityRows[] = {
    {Keyword::Add, HandlerChecks("NAME ..."), "Adds entities to the current state.",
     ChangeEntities<&Manager::CurrentStateAddEntities>},
    {Keyword::Remove, HandlerChecks("NAME ..."), "Removes entities from the current state.",
     ChangeEntities<&Manager::CurrentStateRemoveEntities>},
};
constexpr CommandLevel entityLevel(entityRows, notEnough, Messages::GENERAL);

constexpr CommandRow rows[] = {
    {Keyword::Current, "?STATE? -> STATE", "Makes a state current, or tells which is.", Current, nullptr,
     &Messages::GENERAL},
    {Keyword::Data, "-> TEXT", "Prints the configuration that the current state holds.", Data},
    {Keyword::Names, "-> STATE ...", "Lists the states of the current data control.", Names},
    {Keyword::Save, "-> TEXT", "Saves the configuration of the current window in the current state.", Save},
    {Keyword::Restore, "-> TEXT", "Brings the current window back to the configuration of the current state.",
     Restore},
    {Keyword::Entity, "What the current state holds besides.", &entityLevel},
};

/// Keywords outside this range get the general usage text, as words that are no keywords do.
constexpr Keyword firstKeyword = Keyword::Data;
constexpr Keyword lastKeyword = Keyword::Entity;
static_assert(LieWithin(rows, firstKeyword, lastKeyword), "no word outside the range is ever looked up");

} // namespace

constexpr CommandLevel stateLevel(rows, Messages::STATE);

} // namespace znlayer

int znBrowserManagerTcl::StateTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    using namespace znlayer;
    Call call(*this, objc, objv);
    const Keyword keyword = call.Word(2);
    if (objc > 2 && (keyword < firstKeyword || keyword > lastKeyword))
        call.Answer(Messages::GENERAL);
    else
        RunLevel(call, stateLevel, 2);
    return call.Finish();
}
