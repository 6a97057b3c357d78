// view popupmenu ...
#include "frame/command_table.h"
#include "frame/command_words.h"

const char* const znBrowserTclMessages::VIEW_POPUPMENU =
    "    znbrowsermanager view popupmenu [action] \n\n"
    "    \tActions:\n"
    "    \tconnect <view|folder|column>       Shows the current popup menu in the current view, folder or "
    "column.\n"
    "    \tconnect datasource <name>          Shows the current popup menu on the rows of the simple "
    "datasource.\n"
    "    \tconnected                          Lists the places that show the current popup menu.\n"
    "    \tcreate <popupmenu_name>            Creates a new popup menu and makes it current.\n"
    "    \tcurrent [popupmenu_name]           Gets/sets the current popup menu.\n"
    "    \tdelete [popupmenu_name]            Deletes the popup menu, by default the current one, and its "
    "items.\n"
    "    \tdisconnect <view|folder|column>    Shows the current popup menu there no more.\n"
    "    \tdisconnect datasource <name>       Shows the current popup menu there no more.\n"
    "    \tnames                              Shows the existing popup menu name list.\n"
    "    \tonpost [Tcl_procedure|none]        Gets/sets the procedure called before the current popup menu "
    "is "
    "shown.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// Shows the menu in a current object, or no more.
template <bool (Manager::*setter)(bool), bool connect>
void InCurrent(Call& call) {
    call.AnswerOutcome((call.manager.*setter)(connect));
}

template <bool connect>
void OnDataSource(Call& call) {
    call.AnswerOutcome(call.manager.ConnectPopupMenuToDataSourceSimple(call.Text(5), connect));
}

constexpr CommandRow connectRows[] = {
    {Keyword::View, "", "Shows the menu in the current view.",
     InCurrent<&Manager::ConnectPopupMenuToView, true>},
    {Keyword::Folder, "", "Shows the menu in the current folder.",
     InCurrent<&Manager::ConnectPopupMenuToFreeFolder, true>},
    {Keyword::Column, "", "Shows the menu in the current column.",
     InCurrent<&Manager::ConnectPopupMenuToColumn, true>},
    {Keyword::DataSource, "DATASOURCE", "Shows the menu on the rows of a data source.", OnDataSource<true>},
};
constexpr CommandLevel connectLevel(connectRows, Messages::VIEW_POPUPMENU);

constexpr CommandRow disconnectRows[] = {
    {Keyword::View, "", "Takes the menu away from the current view.",
     InCurrent<&Manager::ConnectPopupMenuToView, false>},
    {Keyword::Folder, "", "Takes the menu away from the current folder.",
     InCurrent<&Manager::ConnectPopupMenuToFreeFolder, false>},
    {Keyword::Column, "", "Takes the menu away from the current column.",
     InCurrent<&Manager::ConnectPopupMenuToColumn, false>},
    {Keyword::DataSource, "DATASOURCE", "Takes the menu away from the rows of a data source.",
     OnDataSource<false>},
};
constexpr CommandLevel disconnectLevel(disconnectRows, Messages::VIEW_POPUPMENU);

void Connected(Call& call) { call.AnswerValue(&Manager::GetPopupMenuConnections); }

void Create(Call& call) { CreateWithName(call, 4, &Manager::CreatePopupMenu, Messages::VIEW_POPUPMENU); }

void Current(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentPopupMenu, &Manager::GetCurrentPopupMenu);
}

void Delete(Call& call) {
    znString name = call.Text(4);
    if (name.IsNull() && !call.manager.GetCurrentPopupMenu(name)) return call.AnswerError();
    call.AnswerOutcome(call.manager.DeletePopupMenu(name.c_str()));
}

void Names(Call& call) { call.AnswerValue(&Manager::GetPopupMenuNames); }

void OnPost(Call& call) {
    SetOrClearThenAnswer(call, 4, &Manager::SetPopupMenuPostScript, &Manager::GetPopupMenuPostScript);
}

constexpr CommandRow popupMenuRows[] = {
    {Keyword::Connect, "Shows the current menu where one is wanted.", &connectLevel},
    {Keyword::Connected, "-> TEXT ...", "Lists where the current menu is shown: pairs of a kind and a name.",
     Connected},
    {Keyword::Create, "NAME -> NAME", "Makes a popup menu, and makes it current.", Create},
    {Keyword::Current, "?POPUPMENU? -> POPUPMENU",
     "Makes a menu and its first item current, or tells which menu is.", Current},
    {Keyword::Delete, "?POPUPMENU?", "Deletes a menu, the current one by default, with its items.", Delete},
    {Keyword::Disconnect, "Shows the current menu somewhere no more.", &disconnectLevel},
    {Keyword::Names, "-> POPUPMENU ...", "Lists the popup menus.", Names},
    {Keyword::OnPost, "?none|PROC? -> ?PROC?",
     "Sets or reads what is called before the current menu is shown.", OnPost},
};

} // namespace

constexpr CommandLevel viewPopupMenuLevel(popupMenuRows, Messages::VIEW_POPUPMENU);

} // namespace znlayer
