// The words of views that connect data sources themselves.
#include "view/view_helper_commands.h"

#include "frame/command_table.h"
#include "frame/command_words.h"
#include "view/view_helper.h"

const char* const znBrowserTclMessages::HELPER_VIEW =
    "    znbrowsermanager view [action] \n\n"
    "    \tActions:\n"
    "    \tcreate <view_name>                Create a new view to the given name.\n"
    "    \tcurrent [view_name]               Gets/sets the current view.\n"
    "    \tdelete                            Deletes current view.\n"
    "    \tnames                             Shows the existing view name list.\n\n";

const char* const znBrowserTclMessages::HELPER_DATASOURCE =
    "    znbrowsermanager view datasource [action] ?name? \n\n"
    "    \tActions:\n"
    "    \tconnect <datasource_name>         Connects the datasource to the current view.\n"
    "    \tcurrent [datasource_name]         Gets/sets the current datasource of the current view.\n"
    "    \tdisconnect <datasource_name>      Disconnects the datasource from the current view.\n"
    "    \tnames                             Shows the datasources connected to the current view.\n"
    "    \tselected [recursive]              Shows the selected items of the current datasource.\n\n";

const char* const znBrowserTclMessages::HELPER_DATAITEM =
    "    znbrowsermanager view dataitem [action] ?name? \n\n"
    "    \tActions:\n"
    "    \tcurrent                           Shows the current data item.\n"
    "    \tdeselect                          Deselects the items of the current datasource.\n"
    "    \tselect                            Selects the items of the current datasource.\n"
    "    \tselect bypropval <value> [recursive]\n"
    "    \t                                  "
    "Selects the items with the given value of the current view property.\n"
    "    \tselected [all]                    Shows the selected items.\n\n";

const char* const znBrowserTclMessages::HELPER_FOLDER =
    "    znbrowsermanager view folder [action] \n\n"
    "    \tActions:\n"
    "    \tdatasource                        Datasources of the current folder...\n\n";

const char* const znBrowserTclMessages::HELPER_FOLDER_DATASOURCE =
    "    znbrowsermanager view folder datasource [action] \n\n"
    "    \tActions:\n"
    "    \tcurrent [datasource_name]         Gets/sets the current datasource of the current folder.\n"
    "    \tstyle <true|false>                "
    "Sets the style state of the current datasource of the current folder.\n\n";

namespace znlayer {

namespace {

using Messages = znBrowserTclMessages;
using Helper = znBrowserManagerViewTcl;

using Action = bool (Helper::*)(const char*);
using Getter = bool (Helper::*)(znString&);

void AnswerText(Call& call, Getter getter) {
    znString text;
    const bool known = (ViewHelperOf(call.manager).*getter)(text);
    call.AnswerOutcome(known, text.c_str());
}

void SetThenAnswer(Call& call, int position, Action setter, Getter getter) {
    if (call.Has(position) && !(ViewHelperOf(call.manager).*setter)(call.Text(position)))
        return call.AnswerError();
    AnswerText(call, getter);
}

/// `word NAME`: the name, or the error.
void RunThenEcho(Call& call, Action action) {
    call.AnswerOutcome((ViewHelperOf(call.manager).*action)(call.Text(4)), call.Text(4));
}

void Connect(Call& call) { RunThenEcho(call, &Helper::Connect); }
void Disconnect(Call& call) { RunThenEcho(call, &Helper::Disconnect); }

void Current(Call& call) {
    SetThenAnswer(call, 4, &Helper::SetCurrentDataSource, &Helper::GetCurrentDataSource);
}

void Names(Call& call) { AnswerText(call, &Helper::GetDataSourceNames); }

void SelectedOfSource(Call& call) {
    const bool recursive = call.Is(4, Keyword::Recursive);
    if (call.Has(4) && !recursive) return call.Answer(Messages::HELPER_DATASOURCE);
    znString values;
    const bool listed = ViewHelperOf(call.manager).GetSelectedItems(values, recursive);
    call.AnswerOutcome(listed, values.c_str());
}

void FolderCurrent(Call& call) {
    SetThenAnswer(call, 5, &Helper::SetFolderDataSource, &Helper::GetFolderDataSource);
}

void FolderStyle(Call& call) {
    bool style = false;
    if (!RequireFlag(call, 5, style, Messages::HELPER_FOLDER_DATASOURCE)) return;
    call.AnswerOutcome(ViewHelperOf(call.manager).SetFolderDataSourceStyle(style));
}

void CurrentItem(Call& call) { AnswerText(call, &Helper::GetCurrentItem); }

void SelectedItems(Call& call) {
    const bool all = call.Is(4, Keyword::All);
    const bool recursive = call.Is(all ? 5 : 4, Keyword::Recursive);
    if (call.Has(all ? 5 : 4) && !recursive) return call.Answer(Messages::HELPER_DATAITEM);
    Helper& helper = ViewHelperOf(call.manager);
    znString values;
    const bool listed =
        all ? helper.GetAllSelectedItems(values, recursive) : helper.GetSelectedItems(values, recursive);
    call.AnswerOutcome(listed, values.c_str());
}

bool IsSelect(const Call& call) { return call.Is(3, Keyword::Select); }

void SelectByValue(Call& call) {
    const bool recursive = call.Is(6, Keyword::Recursive);
    if (call.Has(6) && !recursive) return call.Answer(Messages::HELPER_DATAITEM);
    call.AnswerOutcome(
        ViewHelperOf(call.manager).SelectItemsByValue(call.Text(5), IsSelect(call), recursive));
}

void Select(Call& call) {
    if (call.Count() > 4) return RunLevel(call, helperSelectLevel, 4);
    call.AnswerOutcome(ViewHelperOf(call.manager).SelectItems(IsSelect(call), false));
}

constexpr CommandRow dataSourceRows[] = {
    {Keyword::Connect, "DATASOURCE|HIERARCHICAL -> DATASOURCE|HIERARCHICAL",
     "Connects a data source to the current view.", Connect},
    {Keyword::Current, "?DATASOURCE|HIERARCHICAL? -> DATASOURCE|HIERARCHICAL",
     "Makes a data source of the view current, or tells which is.", Current},
    {Keyword::Disconnect, "DATASOURCE|HIERARCHICAL -> DATASOURCE|HIERARCHICAL",
     "Disconnects a data source from the current view.", Disconnect},
    {Keyword::Names, "-> DATASOURCE|HIERARCHICAL ...",
     "Lists the data sources that are connected to the current view.", Names},
    {Keyword::Selected, "?recursive? -> TEXT ...", "Lists the selected items of the current data source.",
     SelectedOfSource},
};
constexpr CommandLevel dataSourceLevel(dataSourceRows, Messages::HELPER_DATASOURCE);

constexpr CommandRow selectRows[] = {
    {Keyword::ByPropVal, "VALUE ?recursive?", "Only those with that value of the current view property.",
     SelectByValue},
};

constexpr CommandRow dataItemRows[] = {
    {Keyword::Current, "-> ?TEXT?", "Tells the current item.", CurrentItem},
    {Keyword::Deselect, "", "Deselects the items of the current data source.", Select, &helperSelectLevel},
    {Keyword::Select, "", "Selects the items of the current data source.", Select, &helperSelectLevel},
    {Keyword::Selected, "?all|recursive? ?recursive? -> TEXT ...",
     "Lists the selected items of the current data source, or of all of them.", SelectedItems},
};
constexpr CommandLevel dataItemLevel(dataItemRows, Messages::HELPER_DATAITEM);

constexpr CommandRow folderDataSourceRows[] = {
    {Keyword::Current, "?DATASOURCE|HIERARCHICAL? -> DATASOURCE|HIERARCHICAL",
     "Makes a data source of the current folder current in it, or tells which is.", FolderCurrent},
    {Keyword::Style, "BOOL", "Sets whether the current one's items are drawn with the folder's style.",
     FolderStyle},
};
constexpr CommandRow folderRows[] = {
    {Keyword::DataSource, "The data sources that the current folder shows.", &helperFolderDataSourceLevel},
};
constexpr CommandLevel folderLevel(folderRows, Messages::HELPER_FOLDER);

constexpr CommandRow helperRows[] = {
    {Keyword::DataSource, "The data sources of the current view.", &dataSourceLevel},
    {Keyword::Folder, "The folders of the current view.", &folderLevel},
    {Keyword::DataItem, "The items of the current view.", &dataItemLevel},
    {Keyword::DataItemList, "The items of the current view; another word for dataitem.", &dataItemLevel},
};
constexpr CommandLevel helperLevel(helperRows, Messages::HELPER_VIEW);

} // namespace

constexpr CommandLevel helperFolderDataSourceLevel(folderDataSourceRows, Messages::HELPER_FOLDER_DATASOURCE);
constexpr CommandLevel helperSelectLevel(selectRows, Messages::HELPER_DATAITEM);

void AnswerByViewHelper(Call& call) { RunLevel(call, helperLevel, 2); }

} // namespace znlayer
