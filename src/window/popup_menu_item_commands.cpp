// view popupmenuitem ...
#include "frame/command_table.h"
#include "frame/command_words.h"

const char* const znBrowserTclMessages::VIEW_POPUPMENUITEM =
    "    znbrowsermanager view popupmenuitem [action] \n\n"
    "    \tActions:\n"
    "    \tcaption [text]                                Gets/sets the caption of the current item.\n"
    "    \tcascade [popupmenu_name|none]                 Gets/sets the popup menu that the item opens.\n"
    "    \tcheckable [true|false]                        Gets/sets whether the item has a check box.\n"
    "    \tchecked [true|false]                          Gets/sets whether the check box is ticked.\n"
    "    \tcontainer [simple|hierarchical|none] [all]    "
    "Gets/sets the datasources for which the item stands, one entry each.\n"
    "    \tcreate <item_name> [beginning|end|up|down]    "
    "Creates a new item, by default at the end, and makes it current.\n"
    "    \tcurrent [item_name]                           Gets/sets the current item.\n"
    "    \tdataoperation [operation_name|none]           "
    "Gets/sets the data operation that the item performs.\n"
    "    \tdelete [item_name]                            Deletes the item, by default the current one.\n"
    "    \tdescription [text]                            Gets/sets the description of the item.\n"
    "    \tdisabled [true|false]                         Gets/sets whether the item is disabled.\n"
    "    \tenable [true|false]                           Gets/sets whether the item is enabled.\n"
    "    \thelp [text]                                   Gets/sets the bubble help of the item.\n"
    "    \ticon [filename]                               Gets/sets the picture of the item.\n"
    "    \tmove <beginning|end>                          Moves the item to an end of its popup menu.\n"
    "    \tmovedown                                      Moves the item one place down.\n"
    "    \tmoveto <index>                                Moves the item to a place, counted from 0.\n"
    "    \tmoveup                                        Moves the item one place up.\n"
    "    \tnames                                         Shows the item name list of the current popup "
    "menu.\n"
    "    \tonsingleitem [true|false]                     "
    "Gets/sets whether the item needs exactly one selected row.\n"
    "    \toperation [operation_name|none]               "
    "Gets/sets the view operation that the item performs.\n"
    "    \tperform [value]                               "
    "Performs the item on the selected rows of the current window.\n"
    "    \tpreoperation [Tcl_procedure|none]             "
    "Gets/sets the procedure called first: nothing is done when it answers false.\n"
    "    \tscript [Tcl_procedure|none]                   Gets/sets the procedure that the item calls.\n"
    "    \tseparator [true|false]                        Gets/sets whether the item is a line.\n"
    "    \tshowonfolder [true|false]                     "
    "Gets/sets whether the item is offered on folders, too.\n"
    "    \tuserinput [none|field1 ... fieldN]            "
    "Gets/sets the input fields that the user is asked for.\n"
    "    \tvisible [true|false]                          Gets/sets whether the item is shown.\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

template <bool (Manager::*setter)(const char*), bool (Manager::*getter)(znString&)>
void Text(Call& call) {
    call.SetThenAnswer(4, setter, getter);
}

template <bool (Manager::*setter)(bool), bool (Manager::*getter)(znString&)>
void Flag(Call& call) {
    SetOrGetFlag(call, 4, setter, getter, Messages::VIEW_POPUPMENUITEM);
}

/// A name that "none" takes away.
template <bool (Manager::*setter)(const char*), bool (Manager::*getter)(znString&)>
void Reference(Call& call) {
    SetOrClearThenAnswer(call, 4, setter, getter);
}

/// Reads a container. @return false for another word
bool ReadContainer(const Call& call, ZNBROWSER_POPUP_CONTAINER& container) {
    switch (call.Word(4)) {
    case Keyword::NoneWord: container = ZNBROWSER_POPUP_CONTAINER_NONE; return !call.Has(5);
    case Keyword::Simple: container = ZNBROWSER_POPUP_CONTAINER_SIMPLE; break;
    case Keyword::Hierarchical: container = ZNBROWSER_POPUP_CONTAINER_HIERARCHICAL; break;
    default: return false;
    }
    return !call.Has(5) || call.Is(5, Keyword::All);
}

void Container(Call& call) {
    if (call.Has(4)) {
        ZNBROWSER_POPUP_CONTAINER container = ZNBROWSER_POPUP_CONTAINER_NONE;
        if (!ReadContainer(call, container)) return call.Answer(Messages::VIEW_POPUPMENUITEM);
        if (!call.manager.SetPopupMenuItemContainer(container, call.Has(5))) return call.AnswerError();
    }
    call.AnswerValue(&Manager::GetPopupMenuItemContainer);
}

/// Reads a place in the menu, one beside the current item or an end. @return false for another word
bool ReadPlace(const Call& call, int position, ZNBROWSER_POPUP_PLACE& place) {
    switch (call.Word(position)) {
    case Keyword::Beginning: place = ZNBROWSER_POPUP_BEGINNING; return true;
    case Keyword::End: place = ZNBROWSER_POPUP_END; return true;
    case Keyword::Up: place = ZNBROWSER_POPUP_UP; return true;
    case Keyword::Down: place = ZNBROWSER_POPUP_DOWN; return true;
    default: return false;
    }
}

void Create(Call& call) {
    ZNBROWSER_POPUP_PLACE place = ZNBROWSER_POPUP_END;
    if (call.Has(5) && !ReadPlace(call, 5, place)) return call.Answer(Messages::VIEW_POPUPMENUITEM);
    call.AnswerOutcome(call.manager.CreatePopupMenuItem(call.Text(4), place), call.Text(4));
}

void Current(Call& call) {
    call.SetThenAnswer(4, &Manager::SetCurrentPopupMenuItem, &Manager::GetCurrentPopupMenuItem);
}

void Delete(Call& call) {
    znString name = call.Text(4);
    if (name.IsNull() && !call.manager.GetCurrentPopupMenuItem(name)) return call.AnswerError();
    call.AnswerOutcome(call.manager.DeletePopupMenuItem(name.c_str()));
}

template <ZNBROWSER_POPUP_PLACE place>
void Move(Call& call) {
    call.AnswerOutcome(call.manager.MovePopupMenuItem(place));
}

constexpr CommandRow moveRows[] = {
    {Keyword::Beginning, "", "Makes the current item the first of its menu.",
     Move<ZNBROWSER_POPUP_BEGINNING>},
    {Keyword::End, "", "Makes the current item the last of its menu.", Move<ZNBROWSER_POPUP_END>},
};
constexpr CommandLevel moveLevel(moveRows, Messages::VIEW_POPUPMENUITEM);

void MoveTo(Call& call) {
    int place = 0;
    if (!call.Integer(4, place)) return call.Answer(Messages::VIEW_POPUPMENUITEM);
    call.AnswerOutcome(call.manager.MovePopupMenuItemTo(place));
}

void Names(Call& call) { call.AnswerValue(&Manager::GetPopupMenuItemNames); }
void Perform(Call& call) { call.AnswerOutcome(call.manager.PerformPopupMenuItem(call.Text(4))); }

/// "none" alone takes the fields away.
void UserInput(Call& call) {
    if (call.Has(4)) {
        std::vector<znString> fields = call.TextsFrom(4);
        if (call.Count() == 5 && call.Is(4, Keyword::NoneWord)) fields.clear();
        if (!call.manager.SetPopupMenuItemUserInput(fields)) return call.AnswerError();
    }
    call.AnswerValue(&Manager::GetPopupMenuItemUserInput);
}

constexpr CommandRow popupMenuItemRows[] = {
    {Keyword::Caption, "?TEXT? -> TEXT", "Sets or reads what the current item says.",
     Text<&Manager::SetPopupMenuItemCaption, &Manager::GetPopupMenuItemCaption>},
    {Keyword::Cascade, "?none|POPUPMENU? -> ?POPUPMENU?",
     "Sets or reads the menu that the current item opens.",
     Reference<&Manager::SetPopupMenuItemCascade, &Manager::GetPopupMenuItemCascade>},
    {Keyword::Checkable, "?BOOL? -> BOOL", "Sets or reads whether the current item has a check box.",
     Flag<&Manager::SetPopupMenuItemCheckable, &Manager::GetPopupMenuItemCheckable>},
    {Keyword::Checked, "?BOOL? -> BOOL", "Sets or reads whether the check box of the current item is ticked.",
     Flag<&Manager::SetPopupMenuItemChecked, &Manager::GetPopupMenuItemChecked>},
    {Keyword::Container, "?simple|hierarchical|none? ?all? -> ?simple|hierarchical? ?all?",
     "Lets the current item stand for data sources of the view, or all, one entry each.", Container},
    {Keyword::Create, "NAME ?beginning|end|up|down? -> NAME",
     "Makes an item: at an end, or before or behind the current one.", Create},
    {Keyword::Current, "?POPUPMENUITEM? -> POPUPMENUITEM", "Makes an item current, or tells which is.",
     Current},
    {Keyword::DataOperation, "?none|DATAOPERATION? -> ?DATAOPERATION?",
     "Sets or reads the data operation that the current item performs.",
     Reference<&Manager::SetPopupMenuItemDataOperation, &Manager::GetPopupMenuItemDataOperation>},
    {Keyword::Delete, "?POPUPMENUITEM?", "Deletes an item, the current one by default.", Delete},
    {Keyword::Description, "?TEXT? -> TEXT", "Sets or reads what the current item is for.",
     Text<&Manager::SetPopupMenuItemDescription, &Manager::GetPopupMenuItemDescription>},
    {Keyword::Disabled, "?BOOL? -> BOOL", "Sets or reads whether the current item is switched off.",
     Flag<&Manager::SetPopupMenuItemDisabled, &Manager::GetPopupMenuItemDisabled>},
    {Keyword::Enabled, "?BOOL? -> BOOL", "Sets or reads whether the current item is switched on.",
     Flag<&Manager::SetPopupMenuItemEnabled, &Manager::GetPopupMenuItemEnabled>},
    {Keyword::Help, "?TEXT? -> TEXT", "Sets or reads the bubble help of the current item.",
     Text<&Manager::SetPopupMenuItemHelp, &Manager::GetPopupMenuItemHelp>},
    {Keyword::Icon, "?FILE? -> FILE", "Sets or reads the picture of the current item.",
     Text<&Manager::SetPopupMenuItemIcon, &Manager::GetPopupMenuItemIcon>},
    {Keyword::Move, "Moves the current item to an end of its menu.", &moveLevel},
    {Keyword::MoveDown, "", "Moves the current item one place down.", Move<ZNBROWSER_POPUP_DOWN>},
    {Keyword::MoveTo, "INT", "Moves the current item to a place, counted from 0.", MoveTo},
    {Keyword::MoveUp, "", "Moves the current item one place up.", Move<ZNBROWSER_POPUP_UP>},
    {Keyword::Names, "-> POPUPMENUITEM ...", "Lists the items of the current menu.", Names},
    {Keyword::OnSingleItem, "?BOOL? -> BOOL", "Sets or reads whether the current item needs exactly one row.",
     Flag<&Manager::SetPopupMenuItemOnSingleItem, &Manager::GetPopupMenuItemOnSingleItem>},
    {Keyword::Operation, "?none|VIEWOPERATION? -> ?VIEWOPERATION?",
     "Sets or reads the view operation that the current item performs.",
     Reference<&Manager::SetPopupMenuItemOperation, &Manager::GetPopupMenuItemOperation>},
    {Keyword::Perform, "?VALUE?", "Performs the current item on the selected rows of the current window.",
     Perform},
    {Keyword::PreOperation, "?none|PROC? -> ?PROC?",
     "Sets or reads what is called first, and may call the item off.",
     Reference<&Manager::SetPopupMenuItemPreOperation, &Manager::GetPopupMenuItemPreOperation>},
    {Keyword::Script, "?none|PROC? -> ?PROC?", "Sets or reads the procedure that the current item calls.",
     Reference<&Manager::SetPopupMenuItemScript, &Manager::GetPopupMenuItemScript>},
    {Keyword::Separator, "?BOOL? -> BOOL", "Sets or reads whether the current item is a line.",
     Flag<&Manager::SetPopupMenuItemSeparator, &Manager::GetPopupMenuItemSeparator>},
    {Keyword::ShowOnFolder, "?BOOL? -> BOOL", "Sets or reads whether the current item is for folders, too.",
     Flag<&Manager::SetPopupMenuItemShowOnFolder, &Manager::GetPopupMenuItemShowOnFolder>},
    {Keyword::UserInput, "?none|FIELD? ... -> FIELD ...",
     "Sets or reads the input fields that the user is asked for.", UserInput},
    {Keyword::Visible, "?BOOL? -> BOOL", "Sets or reads whether the current item is shown.",
     Flag<&Manager::SetPopupMenuItemVisible, &Manager::GetPopupMenuItemVisible>},
};

} // namespace

constexpr CommandLevel viewPopupMenuItemLevel(popupMenuItemRows, Messages::VIEW_POPUPMENUITEM);

} // namespace znlayer
