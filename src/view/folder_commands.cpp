// view folder ...
#include "frame/command_table.h"
#include "frame/command_words.h"
#include "view/view_helper_commands.h"

const char* const znBrowserTclMessages::VIEW_FOLDER =
    "    znbrowsermanager view folder [action] \n\n"
    "    \tActions:\n"
    "    \tchildren count <byimage|bynumber> <true|false>    "
    "Sets the method of counting children in the current free folder\n"
    "    \tcreate <folder_name>                              "
    "Creates a new folder in the current free folder and makes it current.\n"
    "    \tcurrent [folder_name]                             Gets/sets the current free folder.\n"
    "    \tdelete [recursive]                                Deletes a folder from the current free folder.\n"
    "    \tempty [true|false] [recursive]                    "
    "Gets/sets the display of empty folders in the current free folder.\n"
    "    \tkeepchildrenfoldersinorderascreated [true|false]  "
    "Gets/sets the order as created of the folders in the current free folder.\n"
    "    \tstyle [true|false]                                "
    "Gets/sets the style state of the current free folder.\n"
    "    \tdropitem datasource hierarchical <tree_name>      "
    "Sets the tree that takes the items dropped on the current free folder.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

template <bool (Manager::*show)(bool, bool)>
void ShowCount(Call& call) {
    bool shown = false;
    bool recursive = false;
    if (!RequireFlag(call, 6, shown, Messages::VIEW_FOLDER)) return;
    if (!ReadFlag(call, 7, recursive, Messages::VIEW_FOLDER)) return;
    call.AnswerOutcome((call.manager.*show)(shown, recursive));
}

constexpr CommandRow countRows[] = {
    {Keyword::ByImage, "BOOL ?BOOL?", "Lets icons tell how many items there are: none, one or many.",
     ShowCount<&Manager::SetFreeFolderShowCountByImage>},
    {Keyword::ByNumber, "BOOL ?BOOL?", "Lets captions tell how many items there are.",
     ShowCount<&Manager::SetFreeFolderShowCountByNumber>},
};
constexpr CommandLevel countLevel(countRows, Messages::VIEW_FOLDER);

constexpr CommandRow childrenRows[] = {
    {Keyword::Count, "How the number of items is shown; a second true reaches the folders below.",
     &countLevel},
};
constexpr CommandLevel childrenLevel(childrenRows, Messages::VIEW_FOLDER);

void Children(Call& call) {
    if (call.Count() > 4) return RunLevel(call, childrenLevel, 4);
    call.AnswerValue(&Manager::GetChildrenFreeFolderNames);
}

void Create(Call& call) { CreateWithName(call, 4, &Manager::CreateFreeFolder, Messages::VIEW_FOLDER); }

void Current(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentFreeFolder, &Manager::GetCurrentFreeFolderName);
}

/// The name is needed, although the usage text shows none.
void Delete(Call& call) {
    call.AnswerOutcome(call.manager.DestroyFreeFolder(call.Text(4), call.Is(5, Keyword::Recursive)));
}

void Empty(Call& call) {
    if (!call.Has(4)) return call.AnswerValue(&Manager::GetShowEmptyFoldersFlag);
    bool show = false;
    if (!ReadFlag(call, 4, show, Messages::VIEW_FOLDER)) return;
    if (!call.manager.ShowEmptyFolders(show, call.Is(5, Keyword::Recursive))) return call.AnswerError();
    call.Answer(show);
}

void KeepChildrenAsCreated(Call& call) {
    SetOrGetFlag(call, 4, &Manager::SetFreeFolderKeepChildrenFreeFoldersAsCreated,
                 &Manager::GetFreeFolderKeepChildrenFreeFoldersAsCreated, Messages::VIEW_FOLDER);
}

void Style(Call& call) {
    SetOrGetFlag(call, 4, &Manager::SetFreeFolderStyle, &Manager::GetFreeFolderStyle, Messages::VIEW_FOLDER);
}

void Expand(Call& call) { RunWithFlag(call, 4, &Manager::ExpandFreeFolder, Messages::VIEW_FOLDER); }
void Collapse(Call& call) { RunWithFlag(call, 4, &Manager::CollapseFreeFolder, Messages::VIEW_FOLDER); }
void Selected(Call& call) { call.AnswerValue(&Manager::GetFreeFolderSelected); }
void Selection(Call& call) { call.AnswerValue(&Manager::GetFreeFolderSelection); }
void Bold(Call& call) { SetFlag(call, 4, &Manager::SetBoldFlagToFreeFolder, Messages::VIEW_FOLDER); }
void Italic(Call& call) { SetFlag(call, 4, &Manager::SetItalicFlagToFreeFolder, Messages::VIEW_FOLDER); }
void DataItemType(Call& call) { call.AnswerValue(&Manager::GetChildrenFreeFolderConfiguredTypes); }

/// Without a depth it asks for the sorting exception: neither setting can be read, and both say so alike.
void CreateExpanded(Call& call) {
    if (!call.Has(5)) return call.AnswerValue(&Manager::GetFreeFolderSortingException);
    int depth = 0;
    if (!call.Integer(5, depth)) return call.Answer(Messages::VIEW_FOLDER);
    call.AnswerOutcome(call.manager.SetFreeFolderCreateExpandedItem(call.Text(4), depth));
}

void TreeToplevel(Call& call) {
    if (!call.Has(5)) return call.AnswerValue(&Manager::GetFolderTreeToplevelNames);
    if (!call.Has(6)) return call.Answer(Messages::VIEW_FOLDER);
    call.AnswerOutcome(call.manager.CreateFolderTreeToplevel(call.Text(5), call.Text(6)));
}

void TreeParentChild(Call& call) {
    if (!call.Has(5)) return call.AnswerValue(&Manager::GetFolderTreeParentChildNames);
    if (!call.Has(7)) return call.Answer(Messages::VIEW_FOLDER);
    call.AnswerOutcome(call.manager.CreateFolderTreeParentChild(call.Text(5), call.Text(6), call.Text(7)));
}

void TreeUpdate(Call& call) { call.AnswerOutcome(call.manager.UpdateTreeDataSource(call.Text(5))); }

void DropItem(Call& call) {
    RunWithName(call, 6, &Manager::SetDropItemDataSourceHierarchical, Messages::VIEW_FOLDER);
}

constexpr CommandRow treeRows[] = {
    {Keyword::TopLevel, "?DATASOURCE? ?REFERENCE? -> REFERENCE ...",
     "Sets the top items of the current folder's tree, or lists what finds them.", TreeToplevel},
    {Keyword::ParentChild, "?DATASOURCE? ?DATASOURCE? ?REFERENCE? -> REFERENCE ...",
     "Hangs items below those of the first data source, or lists what finds them.", TreeParentChild},
    {Keyword::Update, "DATASOURCE", "Reads the items of a data source again.", TreeUpdate},
};
constexpr CommandLevel treeLevel(treeRows, Messages::VIEW_FOLDER);

constexpr CommandRow dropSourceRows[] = {
    {Keyword::Hierarchical, "HIERARCHICAL", "Sets the tree that takes the items dropped.", DropItem},
};
constexpr CommandLevel dropSourceLevel(dropSourceRows, Messages::VIEW_FOLDER);
constexpr CommandRow dropItemRows[] = {
    {Keyword::DataSource, "The data source that takes the items dropped.", &dropSourceLevel},
};
constexpr CommandLevel dropItemLevel(dropItemRows, Messages::VIEW_FOLDER);

constexpr CommandRow folderRows[] = {
    {Keyword::Children, "-> FOLDER ...", "The folders in the current folder; alone, their names.", Children,
     &childrenLevel},
    {Keyword::Create, "NAME -> NAME", "Makes a folder in the current folder, and makes it current.", Create},
    {Keyword::Current, "?FOLDER? -> FOLDER", "Makes a folder current, or tells which is.", Current},
    {Keyword::Delete, "FOLDER ?recursive?", "Deletes a folder; with recursive, also those below it.", Delete},
    {Keyword::Empty, "?BOOL? ?recursive? -> BOOL",
     "Sets or reads whether folders that show nothing are shown.", Empty},
    {Keyword::KeepChildrenFoldersInOrderAsCreated, "?BOOL? -> BOOL",
     "Sets or reads whether the folders in it keep the order in which they were made.",
     KeepChildrenAsCreated},
    {Keyword::Style, "?BOOL? -> BOOL",
     "Sets or reads whether the items in it are drawn with the folder's style.", Style},
    {Keyword::DropItem, "What becomes of the items dropped on the current folder.", &dropItemLevel},
    // Words that the usage text leaves out.
    {Keyword::Bold, "BOOL", "Sets whether the caption is bold.", Bold},
    {Keyword::Collapse, "?BOOL?", "Collapses the current folder; with true, also what is below it.",
     Collapse},
    {Keyword::CreateExpanded, "DATASOURCE ?INT?",
     "Sets how many levels of a data source's items are expanded at first.", CreateExpanded},
    {Keyword::DataItemType, "-> DATASOURCE ...", "Lists the data sources in the current folder and below it.",
     DataItemType},
    {Keyword::DataSource, "", "The data sources that the current folder shows.", AnswerByViewHelper,
     &helperFolderDataSourceLevel},
    {Keyword::Expand, "?BOOL?", "Expands the current folder; with true, also what is below it.", Expand},
    {Keyword::Italic, "BOOL", "Sets whether the caption is italic.", Italic},
    {Keyword::Selected, "-> FOLDER ...", "Lists the selected folders below the current one.", Selected},
    {Keyword::Selection, "-> TEXT ...", "Lists the selected items in the current folder and below it.",
     Selection},
    {Keyword::Tree, "The tree of the current folder, tied together by data references.", &treeLevel},
};

} // namespace

constexpr CommandLevel viewFolderLevel(folderRows, Messages::VIEW_FOLDER);

} // namespace znlayer
