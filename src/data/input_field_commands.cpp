// userinput ...: named values that scripts and dialogs fill in and read back.
#include "frame/command_table.h"

const char* const znBrowserTclMessages::USERINPUT =
    "    znbrowsermanager userinput [action] \n\n"
    "    \tActions:\n"
    "    \tnames               show input field name list\n\n    ";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

// Without a type word the name stands for the type, too.
void Create(Call& call) {
    if (call.Has(3) && !call.manager.CreateInputField(call.Text(3), call.TextOr(4, call.Text(3))))
        return call.AnswerError();
    call.AnswerValue(&Manager::GetCurrentInputField);
}

void Current(Call& call) {
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
    {Keyword::Names, "-> FIELD ...", "Is always refused: the application knows its input fields.", Names},
    {Keyword::Create, "?NAME? ?TYPE? -> ?FIELD?",
     "Is refused: the application makes input fields; alone, tells which is current.", Create},
    {Keyword::Current, "?FIELD? -> FIELD", "Makes an input field current, or tells which is.", Current},
    {Keyword::DataType, "?TYPE? -> TYPE", "Sets or reads the data type of the current input field.",
     DataType},
    {Keyword::Delete, "", "Is always refused: the application deletes input fields.", Delete},
    {Keyword::Reset, "", "Sets the value of the current input field to the zero of its type.", Reset},
    {Keyword::Script, "", "Does nothing.", Script},
    {Keyword::Value, "?VALUE? -> VALUE", "Sets or reads the value of the current input field.", Value},
};

} // namespace

constexpr CommandLevel userInputLevel(userInputRows, Messages::USERINPUT);

} // namespace znlayer

int znBrowserManagerTcl::DataUserInputTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return znlayer::RunFamily(*this, znlayer::userInputLevel, objc, objv);
}
