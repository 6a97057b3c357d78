// view column ...
#include "frame/command_table.h"
#include "frame/command_words.h"
#include "host/znIBrowserViewColumn.h"

#include <cstdlib>

const char* const znBrowserTclMessages::VIEW_COLUMN =
    "    znbrowsermanager view column [action] \n\n"
    "    \tActions:\n"
    "    \tcaption [caption_name]            Gets/sets the current column's caption.\n"
    "    \tcurrent [column_name]             Gets/sets the current column.\n"
    "    \tcreate <columnname> <columntype>  Create a new column with given name and type for the current "
    "view.\n"
    "    \tdelete                            Delete the current column from the current view.\n"
    "    \titalic <enabled/disabled>         Enables/disables the italics display for the current column\n"
    "    \tjustify <left/center/right>       Sets the justification of the current column.\n"
    "    \twidth <size>                      Gets/Sets the width of the current column.\n"
    "    \tnames                             Gives a list of column names for the current view.\n"
    "    \tshow [true/false]                 Gets/sets the display state of the current column.\n"
    "    \tsort [enabled/disabled]           Gives or enables/disables the sorting for the current "
    "column.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

/// Whether a column is current; if none is, that is the answer.
bool RequireColumn(Call& call) {
    if (call.manager.GetCurrentColumnPtr()) return true;
    call.Answer("No current column available");
    return false;
}

/// The current column's name, kept apart: the column may die in the operation that gets it.
znString ColumnName(Call& call) { return call.manager.GetCurrentColumnPtr()->GetName(); }

void Caption(Call& call) {
    if (!RequireColumn(call)) return;
    call.SetThenAnswer(4, &Manager::SetColumnCaption, &Manager::GetColumnCaption);
}

void Current(Call& call) { call.SetThenAnswer(4, &Manager::SetCurrentColumn, &Manager::GetCurrentColumn); }

bool CreateColumn(Call& call) {
    Manager& manager = call.manager;
    const char* const name = call.Text(4);
    switch (call.Word(5)) {
    case Keyword::Checkbox: return manager.CreateCheckBoxColumn(name, "");
    case Keyword::Icon: return manager.CreateIconColumn(name, "", call.TextOr(6, ""));
    case Keyword::Button: return manager.CreateButtonColumn(name, "");
    default: return manager.CreateTextBoxColumn(name, "");
    }
}

void Create(Call& call) { call.AnswerOutcome(CreateColumn(call), call.Text(4)); }

void Delete(Call& call) {
    if (RequireColumn(call))
        call.AnswerOutcome(call.manager.DeleteScriptedColumn(ColumnName(call).GetText()));
}

void Italic(Call& call) {
    SetOrGetEnabled(call, 4, &Manager::SetColumnItalic, &Manager::GetColumnItalic, Messages::VIEW_COLUMN);
}

void Justify(Call& call) {
    if (!RequireColumn(call)) return;
    call.AnswerOutcome(call.manager.SetViewColumnJustify(ColumnName(call).GetText(), call.Text(4)));
}

/// A width begins with a decimal number that is not negative; what follows the number is the host's business.
bool IsWidth(const char* text) {
    char* end = nullptr;
    const long width = std::strtol(text, &end, 10);
    return end != text && width >= 0;
}

void Width(Call& call) {
    if (call.Has(4) && !IsWidth(call.Text(4))) return call.Answer(Messages::VIEW_COLUMN);
    if (!RequireColumn(call)) return;
    const znString name = ColumnName(call);
    if (call.Has(4)) return call.AnswerOutcome(call.manager.SetViewColumnWidth(name.GetText(), call.Text(4)));
    call.KeepResult(); // the window puts its report there
    call.AnswerOutcome(call.manager.GetViewColumnWidth(name.GetText()));
}

void Names(Call& call) { call.AnswerValue(&Manager::GetColumnNames); }

void Show(Call& call) {
    if (!RequireColumn(call)) return;
    if (!call.Has(4)) return call.AnswerValue(&Manager::GetViewColumnShownState);
    bool show = false;
    if (!ReadFlag(call, 4, show, Messages::VIEW_COLUMN)) return;
    call.AnswerOutcome(call.manager.ShowScriptedColumn(ColumnName(call).GetText(), show));
}

void SortByName(Call& call) {
    call.SetThenAnswer(5, &Manager::SetSortDefaultColumnByCustomProperty,
                       &Manager::SortDefaultColumnByCustomProperty);
}

constexpr CommandRow sortRows[] = {
    {Keyword::ByName, "?PROPERTY? -> ?PROPERTY?",
     "Sets or reads by which property the default column is sorted.", SortByName},
};
constexpr CommandLevel sortLevel(sortRows, Messages::VIEW_COLUMN);

void Sort(Call& call) {
    if (call.Is(4, Keyword::ByName)) return RunLevel(call, sortLevel, 4);
    SetOrGetEnabled(call, 4, &Manager::SetColumnSorting, &Manager::GetColumnSorting, Messages::VIEW_COLUMN);
}

/// Unlike its neighbours it has nothing to say when no column is current.
void Move(Call& call) {
    int position = 0;
    if (!call.Integer(4, position)) return call.Answer(Messages::VIEW_COLUMN);
    if (!call.manager.GetCurrentColumnPtr()) return;
    call.AnswerOutcome(call.manager.MoveCurrentColumn(ColumnName(call).GetText(), position));
}

void PopupMenu(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentColumnPopupMenu, &Manager::GetCurrentColumnPopupMenu);
}

constexpr CommandRow columnRows[] = {
    {Keyword::Caption, "?TEXT? -> TEXT", "Sets or reads the caption of the current column.", Caption},
    {Keyword::Current, "?COLUMN? -> COLUMN", "Makes a column of the view current, or tells which is.",
     Current},
    {Keyword::Create, "NAME ?textbox|checkbox|icon|button? ?MAP? -> NAME",
     "Makes a column, but none with checkbox; an icon column may be given the map of its pictures.", Create},
    {Keyword::Delete, "", "Deletes the current column.", Delete},
    {Keyword::Italic, "?enabled|disabled? -> BOOL", "Sets or reads whether the column's texts are italic.",
     Italic},
    {Keyword::Justify, "left|center|right", "Sets on which side the column's texts stand.", Justify},
    {Keyword::Width, "?INT? -> ?INT?", "Sets the column's width in pixels, or asks the window for it.",
     Width},
    {Keyword::Names, "-> COLUMN ...", "Lists the columns of the view.", Names},
    {Keyword::Show, "?BOOL? -> ?BOOL?", "Shows or hides the column, or tells whether it is shown.", Show},
    {Keyword::Sort, "?enabled|disabled? -> BOOL", "Sets or reads whether the column can be sorted.", Sort,
     &sortLevel},
    // Words that the usage text leaves out.
    {Keyword::Move, "INT", "Moves the column to a place, counted from 0.", Move},
    {Keyword::PopupMenu, "?POPUPMENU? -> ?POPUPMENU?", "Sets or reads the popup menu of the column.",
     PopupMenu},
};

} // namespace

constexpr CommandLevel viewColumnLevel(columnRows, Messages::VIEW_COLUMN);

} // namespace znlayer
