// view style ...
#include "frame/command_table.h"
#include "frame/command_words.h"
#include "host/znIBrowserStyle.h"
#include "host/znIBrowserViewItemFreeFolder.h"

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

namespace znlayer {

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
    {Keyword::Connect, "", "Gives the current folder the current style.", Connect},
    {Keyword::Create, "NAME -> NAME", "Makes a style of the current column, and makes it current.", Create},
    {Keyword::Current, "?STYLE? -> STYLE", "Makes a style current, or tells which is.", Current},
    {Keyword::Delete, "-> STYLE", "Deletes the current style, and tells its name.", Delete},
    {Keyword::Names, "-> STYLE ...", "Lists the styles of the current column.", Names},
    // Missing in the usage text.
    {Keyword::Folder, "?STYLE? -> STYLE",
     "Makes a style current, or tells which is; an older word for current.", Current},
};

} // namespace

constexpr CommandLevel viewStyleLevel(styleRows, Messages::VIEW_STYLE);

} // namespace znlayer
