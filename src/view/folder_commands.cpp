// view folder ...
#include "frame/command_table.h"
#include "view/view_helper_commands.h"
#include "view/view_words.h"

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

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

void ChildrenCount(Call& call) {
    const bool byImage = call.Is(5, Keyword::ByImage);
    if (!byImage && !call.Is(5, Keyword::ByNumber)) return call.Answer(Messages::VIEW_FOLDER);
    bool show = false;
    bool recursive = false;
    if (!RequireFlag(call, 6, show, Messages::VIEW_FOLDER)) return;
    if (!ReadFlag(call, 7, recursive, Messages::VIEW_FOLDER)) return;
    call.AnswerOutcome(byImage ? call.manager.SetFreeFolderShowCountByImage(show, recursive)
                               : call.manager.SetFreeFolderShowCountByNumber(show, recursive));
}

void Children(Call& call) {
    if (!call.Has(4)) return call.AnswerValue(&Manager::GetChildrenFreeFolderNames);
    if (!call.Is(4, Keyword::Count)) return call.Answer(Messages::VIEW_FOLDER);
    ChildrenCount(call);
}

void Create(Call& call) { CreateWithName(call, 4, &Manager::CreateFreeFolder, Messages::VIEW_FOLDER); }

void Current(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentFreeFolder, &Manager::GetCurrentFreeFolderName);
}

/// The name is needed, although the usage text shows none.
void Delete(Call& call) {
    if (!call.Has(4)) return call.Answer(Messages::VIEW_FOLDER);
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
    if (!call.Has(4)) return call.Answer(Messages::VIEW_FOLDER);
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

void TreeUpdate(Call& call) {
    if (!call.Has(5)) return call.Answer(Messages::VIEW_FOLDER);
    call.AnswerOutcome(call.manager.UpdateTreeDataSource(call.Text(5)));
}

void DropItem(Call& call) {
    RunWithName(call, 6, &Manager::SetDropItemDataSourceHierarchical, Messages::VIEW_FOLDER);
}

constexpr CommandRow treeRows[] = {
    {Keyword::TopLevel, TreeToplevel},
    {Keyword::ParentChild, TreeParentChild},
    {Keyword::Update, TreeUpdate},
};
constexpr CommandLevel treeLevel(treeRows, Messages::VIEW_FOLDER);

constexpr CommandRow dropSourceRows[] = {{Keyword::Hierarchical, DropItem}};
constexpr CommandLevel dropSourceLevel(dropSourceRows, Messages::VIEW_FOLDER);
constexpr CommandRow dropItemRows[] = {{Keyword::DataSource, nullptr, &dropSourceLevel}};
constexpr CommandLevel dropItemLevel(dropItemRows, Messages::VIEW_FOLDER);

constexpr CommandRow folderRows[] = {
    {Keyword::Children, Children},
    {Keyword::Create, Create},
    {Keyword::Current, Current},
    {Keyword::Delete, Delete},
    {Keyword::Empty, Empty},
    {Keyword::KeepChildrenFoldersInOrderAsCreated, KeepChildrenAsCreated},
    {Keyword::Style, Style},
    {Keyword::DropItem, nullptr, &dropItemLevel},
    // Words that the usage text leaves out.
    {Keyword::Bold, Bold},
    {Keyword::Collapse, Collapse},
    {Keyword::CreateExpanded, CreateExpanded},
    {Keyword::DataItemType, DataItemType},
    {Keyword::DataSource, AnswerByViewHelper, &helperFolderDataSourceLevel},
    {Keyword::Expand, Expand},
    {Keyword::Italic, Italic},
    {Keyword::Selected, Selected},
    {Keyword::Selection, Selection},
    {Keyword::Tree, nullptr, &treeLevel},
};

} // namespace

constexpr CommandLevel viewFolderLevel(folderRows, Messages::VIEW_FOLDER);
