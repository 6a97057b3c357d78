// znbrowsermanager window ...
#include "frame/command_words.h"
#include "host/znIBrowserWindowAccess.h"
#include "window/window_levels.h"

// "create" reads the name alone: the frame is given afterwards, with "frame".
const char* const znBrowserTclMessages::WINDOW =
    "    znbrowsermanager window [action] \n\n"
    "    \tActions:\n"
    "    \tcollapseall                       Collapses all the items in the current window.\n"
    "    \tcollapseselected                  Collapses the selected items in the current window.\n"
    "    \tcreate <window_name> <tk_frame>   Create a new window inside an existing Tk frame and\n"
    "    \t                                  makes it the current window.\n"
    "    \tcurrent [window_name]             Gets/sets the current window.\n"
    "    \tdelete                            Deletes current window.\n"
    "    \texpandall                         Expands all the items in the current window.\n"
    "    \texpandselected                    Expands the selected items in the current window.\n"
    "    \tfind                              Search for all items matching a given search criteria...\n"
    "    \tframe                             Shows the name of the frame for the current window.\n"
    "    \tmap                               Window map for current window...\n"
    "    \tnames                             Shows the existing window name list.\n"
    "    \tpart                              Window part for current window...\n\n";

namespace znlayer {

namespace {

using Manager = znBrowserManagerTcl;
using Messages = znBrowserTclMessages;

constexpr char noWindow[] = "No current window available";

void Usage(Call& call) { call.Answer(Messages::WINDOW); }

/// The banner, as a Tcl error.
void Refuse(Call& call) {
    call.AnswerError();
    call.Raise();
}

void CollapseAll(Call& call) { call.Run(&Manager::CollapseAllItems); }
void CollapseSelected(Call& call) { call.Run(&Manager::CollapseSelectedItems); }
void ExpandAll(Call& call) { call.Run(&Manager::ExpandAllItems); }
void ExpandSelected(Call& call) { call.Run(&Manager::ExpandSelectedItems); }

void Create(Call& call) { CreateWithName(call, 3, &Manager::CreateWindowAccess, Messages::WINDOW); }

void Current(Call& call) {
    if (!call.Has(3) && !call.manager.GetCurrentWindowAccessPtr()) return call.Answer(noWindow);
    if (call.Has(3) && !call.manager.SetCurrentWindowAccess(call.Text(3))) return Refuse(call);
    call.AnswerValue(&Manager::GetCurrentWindowAccess);
}

/// The window itself is asked for its name: the manager gives it only while a column is current.
void Delete(Call& call) {
    const znIBrowserWindowAccess* const window = call.manager.GetCurrentWindowAccessPtr();
    if (!window) return call.Answer(noWindow);
    call.AnswerOutcome(call.manager.DeleteWindowAccess(window->GetName()));
}

void Frame(Call& call) {
    if (call.Has(3) && !call.manager.SetCurrentWindowTkFrame(call.Text(3))) return Refuse(call);
    call.AnswerValue(&Manager::GetCurrentWindowTkFrame);
}

void Names(Call& call) { call.AnswerValue(&Manager::GetWindowAccessNames); }

void Background(Call& call) {
    if (!call.Has(3)) return call.AnswerValue(&Manager::GetCurrentWindowBackgroundColor);
    bool flag = false;
    if (call.Has(4) && !call.Boolean(4, flag)) return Usage(call);
    if (!call.manager.SetWindowBackgroundColor(call.Text(3), flag)) Refuse(call);
}

void Post(Call& call) {
    bool posted = false;
    if (!call.Has(3)) return call.AnswerValue(&Manager::IsWindowAccessPosted);
    bool post = false;
    if (!call.Boolean(3, post)) return Usage(call);
    call.manager.IsWindowAccessPosted(posted);
    if (post != posted) call.AnswerOutcome(call.manager.PostWindowAccess(post));
}

void Stripe(Call& call) {
    if (!call.Has(3)) return call.AnswerValue(&Manager::GetCurrentWindowStripeDisplay);
    bool on = false;
    if (!call.Boolean(3, on)) return Usage(call);
    const bool all = std::string_view(call.TextOr(4, "")) == znBrowserTclKeywords::KEYWORD_ALL;
    if (!call.manager.SetWindowStripeDisplay(on, all)) Refuse(call);
}

// What a window accepts as drop items is not configured here: these answers never change.
void DropItemNothing(Call&) {}
void DropItemTopLevel(Call& call) { call.Answer(false); }

constexpr CommandRow dropItemRows[] = {
    {Keyword::Name, "", "Answers nothing.", DropItemNothing},
    {Keyword::TopLevel, "-> BOOL", "Answers false.", DropItemTopLevel},
    {Keyword::DataItemType, "", "Answers nothing.", DropItemNothing},
};
constexpr CommandLevel dropItemLevel(dropItemRows, Messages::WINDOW);

constexpr CommandRow rows[] = {
    {Keyword::CollapseAll, "", "Collapses every row of the current window.", CollapseAll},
    {Keyword::CollapseSelected, "", "Collapses the selected rows of the current window.", CollapseSelected},
    {Keyword::Create, "NAME -> NAME", "Makes a window for the current view and makes it current.", Create},
    {Keyword::Current, "?WINDOW? -> ?WINDOW?", "Makes a window and its view current, or tells which is.",
     Current},
    {Keyword::Delete, "", "Deletes the current window.", Delete},
    {Keyword::ExpandAll, "", "Expands every row of the current window.", ExpandAll},
    {Keyword::ExpandSelected, "", "Expands the selected rows of the current window.", ExpandSelected},
    {Keyword::Find, "Searches in the current window.", &windowFindLevel},
    {Keyword::Frame, "?FRAME? -> ?FRAME?", "Sets or reads in which Tk frame the window is shown.", Frame},
    {Keyword::Map, "The maps that show values as texts, pictures, colours or buttons.", &windowMapLevel},
    {Keyword::Names, "-> WINDOW ...", "Lists the windows.", Names},
    {Keyword::Part, "The parts of the current window.", &windowPartLevel},
    // The usage text does not tell of these.
    {Keyword::Background, "?COLOR? ?BOOL? -> ?COLOR?", "Sets or reads the background colour of the window.",
     Background},
    {Keyword::DropItem, "What the current window accepts as drop items.", &dropItemLevel},
    {Keyword::Listener, "The listeners of the current window.", &windowListenerLevel},
    {Keyword::Post, "?BOOL? -> ?BOOL?", "Shows the window or takes it away, or tells whether it is shown.",
     Post},
    {Keyword::Stripe, "?BOOL? ?all? -> ?BOOL?",
     "Sets the stripes of the window or of all, or reads the window's.", Stripe},
};

} // namespace

constexpr CommandLevel windowLevel(rows, Messages::WINDOW);

} // namespace znlayer

int znBrowserManagerTcl::WindowTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return znlayer::RunFamily(*this, znlayer::windowLevel, objc, objv);
}
