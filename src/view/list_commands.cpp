// view list ...
#include "frame/command_table.h"
#include "host/znIBrowserDataSourceSimple.h"
#include "view/view_words.h"

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

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// A name, and a flag whose meaning is the host's.
void NameAndFlag(Call& call, bool (Manager::*action)(const char*, bool)) {
    if (!call.Has(4)) return call.Answer(Messages::VIEW_LIST);
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
    {Keyword::Create, Create},
    {Keyword::Current, Current},
    {Keyword::Group, Group},
    {Keyword::Delete, Delete},
    {Keyword::Names, Names},
    {Keyword::Style, Style},
    // Words that the usage text leaves out.
    {Keyword::Add, Add},
    {Keyword::Caption, Caption},
    {Keyword::Collapse, Collapse},
    {Keyword::Expand, Expand},
};

} // namespace

constexpr CommandLevel viewListLevel(listRows, Messages::VIEW_LIST);
