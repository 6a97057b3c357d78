// view style ...
#include "frame/command_table.h"
#include "host/znIBrowserStyle.h"
#include "host/znIBrowserViewItemFreeFolder.h"
#include "view/view_words.h"

const char* const znBrowserTclMessages::VIEW_STYLE =
    "    znbrowsermanager view style [action] ?name? \n\n"
    "    \tActions:\n"
    "    \tconnect                     Connects the current view style in the current view to the current "
    "folder.\n"
    "    \tcreate <view_style_name>    Creates a new view style in the current view.\n"
    "    \tcurrent [view_style_name]   Gets/sets the current view style for the current view.\n"
    "    \tdelete                      Deletes the current view style in the current view.\n"
    "    \tnames                       Returns the names of all the existing view styles for the current "
    "view.\n\n";

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Connect(Call& call) {
    call.AnswerOutcome(call.manager.SetViewItemStyle(call.manager.GetCurrentFreeFolderPtr()));
}

void Create(Call& call) { CreateWithName(call, 4, &Manager::CreateViewStyle, Messages::VIEW_STYLE); }

void Current(Call& call) { call.SetThenAnswer(4, &Manager::SetCurrentStyle, &Manager::GetCurrentStyle); }

void Delete(Call& call) {
    const znIBrowserStyle* const style = call.manager.GetCurrentStylePtr();
    if (!style) return call.Answer(Messages::VIEW_STYLE);
    const znString name = style->GetName();
    call.AnswerOutcome(call.manager.DeleteViewStyle(name.GetText()), name.c_str());
}

void Names(Call& call) { call.AnswerValue(&Manager::GetStyleNames); }

constexpr CommandRow styleRows[] = {
    {Keyword::Connect, Connect},
    {Keyword::Create, Create},
    {Keyword::Current, Current},
    {Keyword::Delete, Delete},
    {Keyword::Names, Names},
    {Keyword::Folder, Current}, // an older word for "current", missing in the usage text
};

} // namespace

constexpr CommandLevel viewStyleLevel(styleRows, Messages::VIEW_STYLE);
