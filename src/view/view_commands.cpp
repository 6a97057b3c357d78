// view ...: the views themselves, and the way to the families below them.
#include "data/data_ctrl_commands.h"
#include "frame/command_table.h"
#include "frame/command_words.h"

const char* const znBrowserTclMessages::VIEW =
    "    znbrowsermanager view [action] \n\n"
    "    \tActions:\n"
    "    \tcolumn                     Columns for current view...\n"
    "    \tcreate <view_name>         Create a new view and makes it current.\n"
    "    \tcurrent [view_name]        Gets/sets the current view.\n"
    "    \tdatasource                 Datasources for current view...\n"
    "    \tdelete                     Delete the current view.\n"
    "    \telement                    Element for the current view...\n"
    "    \tfilter                     Filter for the current view...\n"
    "    \tflush <true|false>         Sets the state of the browser flush operation.\n"
    "    \tfolder                     Folder for the current view...\n"
    "    \tgroup                      Group for the current view...\n"
    "    \titalic [enabled|disabled]  Gets/sets the italic font state for the current column in the current "
    "view.\n"
    "    \tlist                       List for the current view...\n"
    "    \tnames                      Show the existing view name list.\n"
    "    \tnamespace                  Gets the tcl namespace for the application.\n"
    "    \toperation                  Operation for the current view...\n"
    "    \tpopupitem                  Popup item for the current view...\n"
    "    \tproperty                   Property for the current view...\n"
    "    \tsort                       Sort for the current view...\n"
    "    \tstyle                      Style for the current view...\n"
    "    \ttree                       Tree for the current view...\n\n";

const char* const znBrowserTclMessages::VIEW_GROUP =
    "    znbrowsermanager group children [true|false]\n\n"
    "    \tActions:\n"
    "    \tset/get state of group children in the current folder flag\n\n";

const char* const znBrowserTclMessages::VIEW_ITALIC =
    "    znbrowsermanager view italic [action] \n\n"
    "    \tActions:\n"
    "    \t[enabled|disabled]    Sets the italic font state for the current column\n"
    "    \t                      in the current view.\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// A host that refuses makes `CreateView` throw; to a script that is a failure like any other.
bool CreateView(Manager& manager, const char* name, bool flag) {
    try {
        return manager.CreateView(name, flag);
    } catch (const char* refusal) {
        manager.SetError(refusal);
        return false;
    }
}

void Create(Call& call) {
    bool flag = false;
    if (!ReadFlag(call, 4, flag, Messages::VIEW)) return;
    call.AnswerOutcome(CreateView(call.manager, call.Text(3), flag), call.Text(3));
}

void Current(Call& call) {
    if (call.Has(3) && !call.manager.SetCurrentView(call.Text(3))) return call.AnswerError();
    call.Answer(call.manager.GetCurrentView());
}

void Delete(Call& call) {
    if (!call.manager.GetCurrentViewPtr()) return call.Answer("No current view available");
    const znString name = call.manager.GetCurrentView();
    call.AnswerOutcome(call.manager.DeleteView(name.c_str()));
}

void Flush(Call& call) { SetFlag(call, 3, &Manager::SetFlushFlag, Messages::VIEW); }

void GroupChildren(Call& call) {
    SetOrGetFlag(call, 4, &Manager::SetFreeFolderGroupLeafs, &Manager::GetFreeFolderGroupLeafs,
                 Messages::VIEW_GROUP);
}

void Italic(Call& call) {
    SetOrGetEnabled(call, 3, &Manager::SetItalic, &Manager::GetItalic, Messages::VIEW_ITALIC);
}

void Names(Call& call) { call.AnswerValue(&Manager::GetViewNames); }
void Namespace(Call& call) { call.AnswerValue(&Manager::GetTclNameSpace); }
void Redraw(Call& call) { call.Run(&Manager::RedrawAllViews); }
void ApplyPending(Call& call) { call.manager.ApplyPendingChanges(); }

void Sort(Call& call) {
    if (call.Count() > 3) return RunLevel(call, viewSortLevel, 3);
    znString sorting;
    znString order;
    if (!call.manager.GetSorting(sorting) || !call.manager.GetAscendingOrder(order))
        return call.AnswerError();
    for (const char* const text : {sorting.c_str(), " ", order.c_str()}) call.Answer(text);
}

constexpr CommandRow groupRows[] = {
    {Keyword::Children, "?BOOL? -> BOOL", "Sets or reads whether the current folder groups its children.",
     GroupChildren},
};
constexpr CommandLevel groupLevel(groupRows, Messages::VIEW_GROUP);

constexpr CommandRow applyRows[] = {
    {Keyword::Pending, "", "Shows what was held back in the current folder.", ApplyPending},
};
constexpr CommandLevel applyLevel(applyRows, Messages::VIEW);

constexpr CommandRow viewRows[] = {
    {Keyword::Column, "The columns of the current view.", &viewColumnLevel},
    {Keyword::Create, "NAME ?BOOL? -> NAME",
     "Makes a view; with true, one that connects data sources itself.", Create},
    {Keyword::Current, "?VIEW? -> VIEW", "Makes a view current, or tells which is.", Current},
    {Keyword::DataSource, "The data sources of the current view.", &viewDataSourceLevel},
    {Keyword::Delete, "", "Deletes the current view.", Delete},
    {Keyword::Element, "The elements of the current style.", &viewElementLevel},
    {Keyword::Filter, "What the current view shows.", &viewFilterLevel},
    {Keyword::Flush, "BOOL", "Lets changes reach the windows at once, or holds them back.", Flush},
    {Keyword::Folder, "The folders of the current view.", &viewFolderLevel},
    {Keyword::Group, "How the current folder groups what is in it.", &groupLevel},
    {Keyword::Italic, "?enabled|disabled? -> BOOL", "Sets or reads whether the view's texts are italic.",
     Italic},
    {Keyword::List, "The lists of the current folder.", &viewListLevel},
    {Keyword::Names, "-> VIEW ...", "Lists the views.", Names},
    {Keyword::Namespace, "-> TEXT", "Tells the Tcl namespace of the application's scripts.", Namespace},
    {Keyword::Operation, "What users can do with the items of the current view.", &viewOperationLevel},
    {Keyword::Property, "The values that the current view shows.", &viewPropertyLevel},
    {Keyword::Sort, "-> BOOL ascending|descending",
     "Sorting of the current view; alone, the state and the direction.", Sort, &viewSortLevel},
    {Keyword::Style, "The styles of the current column.", &viewStyleLevel},
    {Keyword::Tree, "The trees of the current folder.", &viewTreeLevel},
    // Words that the usage text leaves out.
    {Keyword::Apply, "Shows what was held back.", &applyLevel},
    {Keyword::DataCtrl, "-> DATACTRL", "The data control of the current view; alone, its name.",
     AnswerViewDataCtrl, &viewDataCtrlLevel},
    {Keyword::DataItem, "The items of the current view.", &viewDataItemLevel},
    {Keyword::DataItemList, "The items of the current view; another word for dataitem.", &viewDataItemLevel},
    {Keyword::DataReference, "The data references of the current view.", &viewDataReferenceLevel},
    {Keyword::PopupMenu, "The menus that users get on a right click.", &viewPopupMenuLevel},
    {Keyword::PopupMenuItem, "The items of the current popup menu.", &viewPopupMenuItemLevel},
    {Keyword::Redraw, "", "Draws all views again.", Redraw},
    {Keyword::Selection, "What is selected in the current view.", &viewSelectionLevel},
};

} // namespace

constexpr CommandLevel viewLevel(viewRows, Messages::VIEW);

} // namespace znlayer

int znBrowserManagerTcl::ViewTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return znlayer::RunFamily(*this, znlayer::viewLevel, objc, objv);
}
