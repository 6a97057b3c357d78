// znbrowsermanager state ...
#include "frame/command_table.h"

const char* const znBrowserTclMessages::STATE =
    "    znbrowsermanager state [action] \n\n"
    "    \tcurrent [state_name]   Gets/sets the name of the current browser state.\n"
    "    \tdata                   Returns the current state configuration data.\n"
    "    \tnames                  Show existing browser state name list.\n"
    "    \tsave                   Saves current window's configuration to current state.\n"
    "    \trestore                Restores current window's configuration from current state.\n\n    ";

namespace {

using Manager = znBrowserManagerTcl;

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

void EntitiesAdd(Call& call) {
    if (!call.Has(4)) return call.Answer(notEnough);
    call.AnswerOutcome(call.manager.CurrentStateAddEntities(call.TextsFrom(4)));
}

void EntitiesRemove(Call& call) {
    if (!call.Has(4)) return call.Answer(notEnough);
    call.AnswerOutcome(call.manager.CurrentStateRemoveEntities(call.TextsFrom(4)));
}

constexpr CommandRow entityRows[] = {{Keyword::Add, EntitiesAdd}, {Keyword::Remove, EntitiesRemove}};
constexpr CommandLevel entityLevel(entityRows, notEnough, znBrowserTclMessages::GENERAL);

constexpr CommandRow rows[] = {
    {Keyword::Current, Current}, {Keyword::Data, Data},       {Keyword::Names, Names},
    {Keyword::Save, Save},       {Keyword::Restore, Restore}, {Keyword::Entity, nullptr, &entityLevel},
};

/// Keywords outside this range get the general usage text, as words that are no keywords do.
constexpr Keyword lastKeyword = Keyword::Entity;

} // namespace

constexpr CommandLevel stateLevel(rows, znBrowserTclMessages::STATE);

int znBrowserManagerTcl::StateTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    Call call(*this, objc, objv);
    const Keyword keyword = call.Word(2);
    if (call.Has(2) && (keyword == Keyword::Unknown || keyword > lastKeyword))
        call.Answer(znBrowserTclMessages::GENERAL);
    else
        RunLevel(call, stateLevel, 2);
    return call.Finish();
}
