// view operation ...
#include "frame/command_table.h"
#include "frame/command_words.h"

// clang-format off: the texts keep their lines.
const char* const znBrowserTclMessages::VIEW_OPERATION =
    "    znbrowsermanager view operation [action] \n\n"
    "    \tconnect                   Connects current view operation to the current datasource operation.\n"
    "    \tcreate <view_operation>   Create a view operation for the current view.\n"
    "    \tcurrent [view_operation]  Gets/sets the current view operation for the current view.\n"
    "    \tscript <Tcl_scriptname>   Connects a Tcl script to the current view operation for the current "
    "view.\n"
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

/// What is missing stands in the result already; there is nothing else to say.
void Connect(Call& call) {
    call.KeepResult();
    call.manager.DataOperationConnect();
}

void Create(Call& call) { RunWithName(call, 4, &Manager::CreateViewOperation, Messages::VIEW_OPERATION); }

void Current(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentViewOperation, &Manager::GetCurrentViewOperation);
}

void Script(Call& call) { RunWithName(call, 4, &Manager::SetViewOperationScript, Messages::VIEW_OPERATION); }

void Editable(Call& call) { SetFlag(call, 4, &Manager::SetViewOperationEditable, Messages::VIEW_OPERATION); }

/// Performs the current operation: the words that the usage text describes are not read.
void Perform(Call& call) { call.Run(&Manager::PerformViewOperation); }

/// Lists nothing: it shows the error that is pending, if any.
void Names(Call& call) { call.Answer(call.manager.GetErrorText()); }

constexpr CommandRow operationRows[] = {
    {Keyword::Connect, "", "Lets the current operation perform the current data operation, too.", Connect},
    {Keyword::Create, "NAME", "Makes an operation of the current view, and makes it current.", Create},
    {Keyword::Current, "?VIEWOPERATION? -> VIEWOPERATION", "Makes an operation current, or tells which is.",
     Current},
    {Keyword::Script, "SCRIPT", "Sets the script that the current operation runs.", Script},
    {Keyword::Perform, "", "Performs the current operation.", Perform},
    // Words that the usage text leaves out.
    {Keyword::Editable, "BOOL", "Sets whether users may change the current operation.", Editable},
    {Keyword::Names, "-> ?TEXT?", "Tells the error that is pending; it lists nothing.", Names},
};

} // namespace

constexpr CommandLevel viewOperationLevel(operationRows, Messages::VIEW_OPERATION);

} // namespace znlayer
