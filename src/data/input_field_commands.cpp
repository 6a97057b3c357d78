// userinput ...: named values that scripts and dialogs fill in and read back.
#include "frame/command_table.h"

const char* const znBrowserTclMessages::USERINPUT =
    "    znbrowsermanager userinput [action] \n\n"
    "    \tActions:\n"
    "    \tnames               show input field name list\n\n    ";

namespace {

using Manager = znBrowserManagerTcl;

/// Whether a word was given at `position`, but none that can be read.
bool IsUnreadable(const Call& call, int position) { return call.Count() > position && !call.Has(position); }

// Without a type word the name stands for the type, too.
void Create(Call& call) {
    if (IsUnreadable(call, 3) || IsUnreadable(call, 4)) return call.Answer(znBrowserTclMessages::USERINPUT);
    if (call.Has(3) && !call.manager.CreateInputField(call.Text(3), call.TextOr(4, call.Text(3))))
        return call.AnswerError();
    call.AnswerValue(&Manager::GetCurrentInputField);
}

void Current(Call& call) {
    if (IsUnreadable(call, 3)) return call.Answer(znBrowserTclMessages::USERINPUT);
    call.SetThenAnswer(3, &Manager::SetCurrentInputField, &Manager::GetCurrentInputField);
}

/// As `Call::SetThenAnswer`, but the value is answered after the failure of the setter, too.
void SetAndAnswer(Call& call, Call::TextSetter setter, Call::Getter getter) {
    if (call.Has(3)) call.AnswerOutcome((call.manager.*setter)(call.Text(3)));
    call.AnswerValue(getter);
}

void DataType(Call& call) {
    SetAndAnswer(call, &Manager::SetInputFieldDataType, &Manager::GetInputFieldDataType);
}

void Delete(Call& call) { call.AnswerOutcome(call.manager.DeleteInputField()); }
void Names(Call& call) { call.AnswerValue(&Manager::GetInputFieldNames); }
void Reset(Call& call) { call.AnswerOutcome(call.manager.ResetInputFieldValue()); }
void Script(Call&) {}

void Value(Call& call) { SetAndAnswer(call, &Manager::SetInputFieldValue, &Manager::GetInputFieldValue); }

// The usage text lists the names alone.
constexpr CommandRow userInputRows[] = {
    {Keyword::Names, Names},       {Keyword::Create, Create}, {Keyword::Current, Current},
    {Keyword::DataType, DataType}, {Keyword::Delete, Delete}, {Keyword::Reset, Reset},
    {Keyword::Script, Script},     {Keyword::Value, Value},
};

} // namespace

const CommandLevel userInputLevel(userInputRows, znBrowserTclMessages::USERINPUT);

int znBrowserManagerTcl::DataUserInputTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return RunFamily(*this, userInputLevel, objc, objv);
}
