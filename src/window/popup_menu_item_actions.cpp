// What choosing the current popup menu item does.
#include "frame/name_list.h"
#include "frame/operation.h"
#include "host/znIBrowserPopupMenu.h"
#include "host/znIBrowserPopupMenuItem.h"
#include "window/popup_menu_items.h"
#include "window/popup_menus.h"
#include "znBrowserMessages.h"

#include <string>
#include <unordered_set>

using namespace znlayer;

namespace {

using Manager = znBrowserManagerTcl;
using Item = znIBrowserPopupMenuItem;

const char* TextOr(const char* text) { return text ? text : ""; }

/// One step on the way through cascades: a menu, and the item of the menu before it that opens it.
struct Step {
    znIBrowserPopupMenu* menu;
    std::size_t before; ///< the step from which this one is reached
    std::string item;
};

/// Adds a step for each menu that the items of the menu of step `at` open, unless it was met before.
void AddCascades(std::vector<Step>& steps, std::size_t at, std::unordered_set<znIBrowserPopupMenu*>& met) {
    std::vector<Item*> items;
    if (!steps[at].menu->GetItems(items)) return;
    for (Item* const item : items) {
        znIBrowserPopupMenu* const cascade = item ? item->GetCascade() : nullptr;
        if (cascade && met.insert(cascade).second) steps.push_back({cascade, at, TextOr(item->GetName())});
    }
}

/// How `item` of `menu` would lead back to that menu if it opened `cascade`: "A/item > B/other > A"; "" when
/// it would not.
std::string WayBack(znIBrowserPopupMenu* menu, const Item& item, znIBrowserPopupMenu* cascade) {
    std::vector<Step> steps{{menu, 0, ""}, {cascade, 0, TextOr(item.GetName())}};
    std::unordered_set<znIBrowserPopupMenu*> met{cascade};
    std::size_t at = 1;
    while (at < steps.size() && steps[at].menu != menu) AddCascades(steps, at++, met);
    if (at == steps.size()) return "";
    std::string way = TextOr(menu->GetName());
    for (; at != 0; at = steps[at].before) {
        const Step& opener = steps[steps[at].before];
        way.insert(0, std::string(TextOr(opener.menu->GetName())) + "/" + steps[at].item + " > ");
    }
    return way;
}

} // namespace

bool znBrowserManagerTcl::SetPopupMenuItemCascade(const char* name) {
    const Operation operation(*this);
    Item* const item = RequireItem(*this);
    if (!item) return false;
    znIBrowserPopupMenu* const cascade = name && *name ? RequirePopupMenu(*this, name) : nullptr;
    if (name && *name && !cascade) return false;
    znIBrowserPopupMenu* const menu = item->GetMenu();
    const std::string way = menu && cascade ? WayBack(menu, *item, cascade) : "";
    if (!way.empty()) return operation.Fail({"A popup menu cannot open itself: ", way.c_str()});
    return operation.HostAnswer(item->SetCascade(cascade));
}

bool znBrowserManagerTcl::GetPopupMenuItemCascade(znString& out) {
    const Operation operation(*this);
    Item* const item = RequireItem(*this);
    if (!item) return false;
    const znIBrowserPopupMenu* const cascade = item->GetCascade();
    out = cascade ? cascade->GetName() : "";
    return true;
}

bool znBrowserManagerTcl::SetPopupMenuItemContainer(ZNBROWSER_POPUP_CONTAINER container, bool all) {
    return SetInItem(*this, &Item::SetContainer, container,
                     all && container != ZNBROWSER_POPUP_CONTAINER_NONE);
}

bool znBrowserManagerTcl::GetPopupMenuItemContainer(znString& out) {
    const Operation operation(*this);
    Item* const item = RequireItem(*this);
    if (!item) return false;
    NameList words;
    switch (item->GetContainer()) {
    case ZNBROWSER_POPUP_CONTAINER_SIMPLE: words.Add("simple"); break;
    case ZNBROWSER_POPUP_CONTAINER_HIERARCHICAL: words.Add("hierarchical"); break;
    default: return operation.Give(words, out);
    }
    if (item->GetContainerAll()) words.Add(znBrowserTclKeywords::KEYWORD_ALL);
    return operation.Give(words, out);
}

bool znBrowserManagerTcl::SetPopupMenuItemOperation(const char* name) {
    return SetInItem(*this, &Item::SetOperation, name);
}
bool znBrowserManagerTcl::GetPopupMenuItemOperation(znString& out) {
    return GetText(*this, &Item::GetOperation, out);
}

bool znBrowserManagerTcl::SetPopupMenuItemDataOperation(const char* name) {
    return SetInItem(*this, &Item::SetDataOperation, name);
}
bool znBrowserManagerTcl::GetPopupMenuItemDataOperation(znString& out) {
    return GetText(*this, &Item::GetDataOperation, out);
}

bool znBrowserManagerTcl::SetPopupMenuItemScript(const char* procedure) {
    return SetInItem(*this, &Item::SetScript, procedure);
}
bool znBrowserManagerTcl::GetPopupMenuItemScript(znString& out) {
    return GetText(*this, &Item::GetScript, out);
}

bool znBrowserManagerTcl::SetPopupMenuItemPreOperation(const char* procedure) {
    return SetInItem(*this, &Item::SetPreOperation, procedure);
}
bool znBrowserManagerTcl::GetPopupMenuItemPreOperation(znString& out) {
    return GetText(*this, &Item::GetPreOperation, out);
}

bool znBrowserManagerTcl::SetPopupMenuItemUserInput(const std::vector<znString>& fields) {
    return SetInItem<const std::vector<znString>&>(*this, &Item::SetUserInput, fields);
}

bool znBrowserManagerTcl::GetPopupMenuItemUserInput(znString& out) {
    const Operation operation(*this);
    Item* const item = RequireItem(*this);
    if (!item) return false;
    std::vector<znString> fields;
    if (!item->GetUserInput(fields)) return operation.FailWithHostError();
    return operation.Give(NameList(EntryForm::Braced).AddTexts(fields), out);
}

bool znBrowserManagerTcl::PerformPopupMenuItem(const char* value) {
    const Operation operation(*this);
    Item* const item = RequireItem(*this);
    if (!item) return false;
    if (!current_.windowAccess) return operation.Fail(znBrowserMessages::noCurrentWindow);
    // Its scripts may delete everything, the item and the window included, and may leave an error behind.
    if (!item->Perform(current_.windowAccess, value)) return operation.FailWithHostError();
    SetOk();
    return true;
}
