// Popup menus: made, chosen, deleted and listed.
#include "window/popup_menus.h"
#include "frame/current_lifetimes.h"
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserPopupMenu.h"
#include "view/view_messages.h"
#include "window/popup_messages.h"

using namespace znlayer;
using namespace popup_messages;

znIBrowserPopupMenuList* znlayer::RequirePopupMenuList(znBrowserManagerTcl& manager) {
    znIBrowser* const browser = BrowserOf(manager);
    znIBrowserPopupMenuList* const list = browser ? browser->GetPopupMenuList() : nullptr;
    if (!list) Operation(manager, Operation::State::Kept).Fail(notSupported);
    return list;
}

znIBrowserPopupMenu* znlayer::RequirePopupMenu(znBrowserManagerTcl& manager, const char* name) {
    znIBrowserPopupMenuList* const list = RequirePopupMenuList(manager);
    if (!list) return nullptr;
    znIBrowserPopupMenu* const menu = FindNamed(list, &znIBrowserPopupMenuList::FindPopupMenu, name);
    if (!menu) Operation(manager, Operation::State::Kept).Fail({unknownMenu, name});
    return menu;
}

bool znBrowserManagerTcl::CreatePopupMenu(const char* name) {
    const Operation operation(*this);
    if (!name) return operation.Fail(view_messages::nullName);
    if (!*name) return operation.Fail("A popup menu needs a name");
    znIBrowserPopupMenuList* const list = RequirePopupMenuList(*this);
    if (!list) return false;
    if (list->FindPopupMenu(name)) return operation.Fail({"Popup menu exists already: ", name});
    return operation.Ask(&znIBrowser::CreatePopupMenu, name) && SetCurrentPopupMenu(name);
}

bool znBrowserManagerTcl::DeletePopupMenu(const char* name) {
    const Operation operation(*this);
    znIBrowserPopupMenu* const menu = RequirePopupMenu(*this, name);
    if (!menu) return false;
    const znBrowserCurrentObjects doomed = CurrentsInside(*this, menu);
    const auto deletion = [&] { return operation.Ask(&znIBrowser::DeletePopupMenu, menu); };
    return DeleteAndForget(*this, doomed, deletion);
}

bool znBrowserManagerTcl::SetCurrentPopupMenu(const char* name) {
    const Operation operation(*this);
    znIBrowserPopupMenu* const menu = RequirePopupMenu(*this, name);
    if (!menu) return false;
    SetCurrentPopupMenu(menu);
    UpdateCurrentPopupMenuItem(menu);
    return true;
}

bool znBrowserManagerTcl::GetPopupMenuNames(znString& out) {
    const Operation operation(*this);
    znIBrowserPopupMenuList* const list = RequirePopupMenuList(*this);
    if (!list) return false;
    std::vector<znIBrowserPopupMenu*> menus;
    if (!list->GetPopupMenus(menus)) return operation.FailWithHostError();
    return NameList(EntryForm::Braced).AddNames(menus, NullName::IsLeftOut).Give(*this, out);
}

bool znBrowserManagerTcl::SetPopupMenuPostScript(const char* procedure) {
    const Operation operation(*this);
    if (!current_.popupMenu) return operation.Fail(noMenu);
    return operation.HostAnswer(current_.popupMenu->SetPostScript(procedure));
}

bool znBrowserManagerTcl::GetPopupMenuPostScript(znString& out) {
    const Operation operation(*this);
    if (!current_.popupMenu) return operation.Fail(noMenu);
    out = current_.popupMenu->GetPostScript();
    return true;
}
