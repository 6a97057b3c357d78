// znbrowsermanager window ...
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

namespace {

using Manager = znBrowserManagerTcl;

constexpr char noWindow[] = "No current window available";

void Usage(Call& call) { call.Answer(znBrowserTclMessages::WINDOW); }

/// The banner, as a Tcl error.
void Refuse(Call& call) {
    call.AnswerError();
    call.Raise();
}

void CollapseAll(Call& call) { call.Run(&Manager::CollapseAllItems); }
void CollapseSelected(Call& call) { call.Run(&Manager::CollapseSelectedItems); }
void ExpandAll(Call& call) { call.Run(&Manager::ExpandAllItems); }
void ExpandSelected(Call& call) { call.Run(&Manager::ExpandSelectedItems); }

void Create(Call& call) {
    if (!call.Has(3)) return Usage(call);
    call.AnswerOutcome(call.manager.CreateWindowAccess(call.Text(3)), call.Text(3));
}

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
    {Keyword::Name, DropItemNothing},
    {Keyword::TopLevel, DropItemTopLevel},
    {Keyword::DataItemType, DropItemNothing},
};
constexpr CommandLevel dropItemLevel(dropItemRows, znBrowserTclMessages::WINDOW);

constexpr CommandRow rows[] = {
    {Keyword::CollapseAll, CollapseAll},
    {Keyword::CollapseSelected, CollapseSelected},
    {Keyword::Create, Create},
    {Keyword::Current, Current},
    {Keyword::Delete, Delete},
    {Keyword::ExpandAll, ExpandAll},
    {Keyword::ExpandSelected, ExpandSelected},
    {Keyword::Find, nullptr, &windowFindLevel},
    {Keyword::Frame, Frame},
    {Keyword::Map, nullptr, &windowMapLevel},
    {Keyword::Names, Names},
    {Keyword::Part, nullptr, &windowPartLevel},
    // The usage text does not tell of these.
    {Keyword::Background, Background},
    {Keyword::DropItem, nullptr, &dropItemLevel},
    {Keyword::Listener, nullptr, &windowListenerLevel},
    {Keyword::Post, Post},
    {Keyword::Stripe, Stripe},
};

} // namespace

constexpr CommandLevel windowLevel(rows, znBrowserTclMessages::WINDOW);

int znBrowserManagerTcl::WindowTclAPICommands(int objc, Tcl_Obj* const objv[]) {
    return RunFamily(*this, windowLevel, objc, objv);
}
