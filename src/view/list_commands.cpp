// view list ...
#include "frame/command_table.h"
#include "frame/command_words.h"
#include "host/znIBrowserDataSourceSimple.h"

const char* const znBrowserTclMessages::VIEW_LIST =
    "    znbrowsermanager view list [action] \n\n"
    "    \tActions:\n"
    "    \tcreate <datasource_name> [true|false]  Creates a list in the current folder.\n"
    "    \tcurrent [datasource_name]              Gets/sets the current list.\n"
    "    \tgroup <true|false> [true|false]        Sets the grouping of the items of the current list.\n"
    "    \tdelete <datasource_name>               Deletes a list from the current folder.\n"
    "    \tnames [true|false]                     "
    "Returns the names of the lists in the current folder, or also below it.\n"
    "    \tstyle <true|false>                     "
    "Draws the current list with the current style, or with the style of the column.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// A name, and a flag whose meaning is the host's.
void NameAndFlag(Call& call, bool (Manager::*action)(const char*, bool)) {
    bool flag = false;
    if (!ReadFlag(call, 5, flag, Messages::VIEW_LIST)) return;
    call.AnswerOutcome((call.manager.*action)(call.Text(4), flag), call.Text(4));
}

void Create(Call& call) { NameAndFlag(call, &Manager::CreateList); }
void Add(Call& call) { NameAndFlag(call, &Manager::ListAdd); }

void Current(Call& call) {
    if (call.Has(4) && !call.manager.SetCurrentList(call.Text(4))) return call.AnswerError();
    const znIBrowserDataSourceSimple* const list = call.manager.GetCurrentListPtr();
    call.Answer(list ? list->GetName() : "");
}

void Group(Call& call) {
    bool group = false;
    bool second = false;
    if (!RequireFlag(call, 4, group, Messages::VIEW_LIST)) return;
    if (!ReadFlag(call, 5, second, Messages::VIEW_LIST)) return;
    call.AnswerOutcome(call.manager.SetCurrentListGroup(group, second));
}

void Delete(Call& call) { RunWithName(call, 4, &Manager::DeleteList, Messages::VIEW_LIST); }

void Names(Call& call) {
    bool recursive = false;
    if (!ReadFlag(call, 4, recursive, Messages::VIEW_LIST)) return;
    znString names;
    const bool listed = call.manager.GetListNames(names, recursive);
    call.AnswerOutcome(listed, names.c_str());
}

void Style(Call& call) { SetFlag(call, 4, &Manager::SetCurrentListStyle, Messages::VIEW_LIST); }
void Caption(Call& call) { RunWithName(call, 4, &Manager::SetCurrentListCaption, Messages::VIEW_LIST); }
void Expand(Call& call) { RunWithFlag(call, 4, &Manager::ExpandFreeFolderList, Messages::VIEW_LIST); }
void Collapse(Call& call) { RunWithFlag(call, 4, &Manager::CollapseFreeFolderList, Messages::VIEW_LIST); }

constexpr CommandRow listRows[] = {
    {Keyword::Create, "DATASOURCE ?BOOL? -> DATASOURCE",
     "Shows a data source as a list in the current folder.", Create},
    {Keyword::Current, "?LIST? -> LIST", "Makes a list current, or tells which is.", Current},
    {Keyword::Group, "BOOL ?BOOL?", "Sets whether the items of the current list are grouped.", Group},
    {Keyword::Delete, "LIST", "Takes a list out of the current folder.", Delete},
    {Keyword::Names, "?BOOL? -> LIST ...",
     "Lists the lists in the current folder; with true, also those below it.", Names},
    {Keyword::Style, "BOOL", "Draws the current list with the current style, or with the column's.", Style},
    // Words that the usage text leaves out.
    {Keyword::Add, "DATASOURCE ?BOOL? -> DATASOURCE",
     "Shows a data source as a list; the application decides whether it can be one.", Add},
    {Keyword::Caption, "TEXT", "Sets what stands above the current list.", Caption},
    {Keyword::Collapse, "?BOOL?", "Collapses the current list; with true, also what is below it.", Collapse},
    {Keyword::Expand, "?BOOL?", "Expands the current list; with true, also what is below it.", Expand},
};

} // namespace

constexpr CommandLevel viewListLevel(listRows, Messages::VIEW_LIST);

} // namespace znlayer
