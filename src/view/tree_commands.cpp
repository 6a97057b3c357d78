// view tree ...
#include "frame/command_table.h"
#include "frame/command_words.h"

const char* const znBrowserTclMessages::VIEW_TREE =
    "    znbrowsermanager view tree [action] ?dataitemtype? \n\n"
    "    \tActions:\n"
    "    \tcreate <tree_name>                Creates a tree in the current folder.\n"
    "    \tcurrent [tree_name]               Gets/sets the current tree.\n"
    "    \tdelete <tree_name>                Deletes a tree from the current folder.\n"
    "    \tgroup <true|false> [true|false]   Sets the grouping of the items of the current tree.\n"
    "    \thide <dataitemtype>               Hides a dataitemtype in the tree of the current folder.\n"
    "    \tnames                             Returns the names of the trees in the current folder.\n"
    "    \tshow [dataitemtype]               "
    "Gets the shown dataitemtypes of the tree in the current folder, or shows one.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void Create(Call& call) { CreateWithName(call, 4, &Manager::CreateTree, Messages::VIEW_TREE); }

void Current(Call& call) {
    if (call.Has(4) && !call.manager.SetCurrentDataSourceHierarchical(call.Text(4)))
        return call.AnswerError();
    call.Answer(call.manager.GetCurrentDataSourceHierarchical());
}

void Delete(Call& call) { RunWithName(call, 4, &Manager::DeleteTree, Messages::VIEW_TREE); }

void Group(Call& call) {
    bool group = false;
    bool second = false;
    if (!RequireFlag(call, 4, group, Messages::VIEW_TREE)) return;
    if (!ReadFlag(call, 5, second, Messages::VIEW_TREE)) return;
    call.AnswerOutcome(call.manager.SetCurrentTreeGroup(group, second));
}

void Hide(Call& call) { call.AnswerOutcome(call.manager.SetShowChildType(call.Text(4), false)); }

void Names(Call& call) { call.AnswerValue(&Manager::GetTreeNames); }

void Show(Call& call) {
    if (!call.Has(4)) return call.AnswerValue(&Manager::GetShownChildrenTypes);
    call.AnswerOutcome(call.manager.SetShowChildType(call.Text(4), true));
}

constexpr CommandRow treeRows[] = {
    {Keyword::Create, "HIERARCHICAL -> HIERARCHICAL",
     "Shows a hierarchical data source as the tree of the current folder.", Create},
    {Keyword::Current, "?HIERARCHICAL? -> HIERARCHICAL",
     "Makes a hierarchical data source current, or tells which is.", Current},
    {Keyword::Delete, "TREE", "Takes a tree out of the current folder.", Delete},
    {Keyword::Group, "BOOL ?BOOL?", "Sets whether children stand together by data source.", Group},
    {Keyword::Hide, "DATASOURCE", "Hides the children of one data source.", Hide},
    {Keyword::Names, "-> TREE ...", "Lists the trees of the current folder.", Names},
    {Keyword::Show, "?DATASOURCE? -> DATASOURCE ...",
     "Shows the children of one data source, or lists those that are shown.", Show},
};

} // namespace

constexpr CommandLevel viewTreeLevel(treeRows, Messages::VIEW_TREE);

} // namespace znlayer
