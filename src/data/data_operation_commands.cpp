// dataoperation ...: named actions that a data control offers.
#include "frame/command_table.h"

// clang-format off: the texts keep their lines.
const char* const znBrowserTclMessages::DATAOPERATION =
    "    znbrowsermanager dataoperation [action] \n\n"
    "    \tcurrent                             Gets/sets the current data operation.\n"
    "    \tnames                               Returns the names of all the simple datasource operations.\n"
    "    \tperform <operation_name> [input_name datatypevalue...]    Performs the simple datasource "
    "operation\n"
    "    \t                                                          with the given name.  The 2nd argument "
    "is formated as the \n"
    "    \t                                                          following example:\n"
    "    \t                                                          '$name1 integer $newvalue1 $name2 bool "
    "$newvalue2...'\n"
    "    \t                                                          Valid datatypes values are: bool, "
    "double, int or string.\n\n";
// clang-format on

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Create(Call& call) {
    call.SetThenAnswer(3, &Manager::CreateDataOperation, &Manager::GetCurrentDataOperation);
}

void Current(Call& call) {
    call.SetThenAnswer(3, &Manager::SetCurrentDataOperation, &Manager::GetCurrentDataOperation);
}

void Names(Call& call) { call.AnswerValue(&Manager::GetDataOperationNames); }

// Runs the current operation: the words that the usage text describes are not read.
void Perform(Call& call) { call.AnswerOutcome(call.manager.PerformDataOperation()); }

// The script is the second word; the first is not read.
void Script(Call& call) {
    if (call.Count() == 3) return call.AnswerValue(&Manager::GetCurrentDataOperation);
    if (!call.Has(4)) return call.Answer(Messages::DATAOPERATION);
    call.AnswerOutcome(call.manager.SetDataOperationScript(call.Text(4)));
}

// The usage text leaves out the last two.
constexpr CommandRow dataOperationRows[] = {
    {Keyword::Current, "?DATAOPERATION? -> DATAOPERATION",
     "Makes a data operation current, or tells which is.", Current},
    {Keyword::Names, "-> DATAOPERATION ...", "Lists the data operations of the current data control.", Names},
    {Keyword::Perform, "", "Runs the current data operation.", Perform},
    {Keyword::Create, "NAME -> NAME", "Makes a data operation and makes it current.", Create},
    {Keyword::Script,
     {"?ANY? ?SCRIPT? -> ?DATAOPERATION?", Arguments::Check::ByHandler},
     "Sets the script of the current data operation; alone, tells its name.",
     Script},
};

} // namespace

constexpr CommandLevel dataOperationLevel(dataOperationRows, Messages::DATAOPERATION);

} // namespace znlayer

int znBrowserManagerTcl::DataOperationTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return znlayer::RunFamily(*this, znlayer::dataOperationLevel, objc, objv);
}
